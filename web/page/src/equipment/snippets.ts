// The same call in other faces of the engine, in the chosen units.
import { findMember, groups, type MemberInfo } from 'calvex/load';

/** The unit that is chosen for a quantity. */
type UnitOf = (group: number) => string;

export interface Snippet {
  title: string;
  code: string;
}

/** The units of the member's quantities that are not the model's. */
function unitsOf(member: MemberInfo, unitOf: UnitOf): [string, string][] {
  const numbers = [...member.inputs, ...member.outputs]
    .map(({ group }) => group)
    .filter(group => group >= 0);
  return [...new Set(numbers)]
    .filter(group => unitOf(group) !== groups[group]!.modelUnit)
    .map(group => [groups[group]!.keywords[0]!, unitOf(group)]);
}

/** For a shell: plain where it can be. */
const shell = (text: string): string =>
  /^[\w.=/+-]+$/.test(text) ? text : `'${text.replaceAll("'", "'\\''")}'`;
const quoted = (text: string): string => `"${text}"`;

/** "HOut", and of a name that is taken by an input "HOut2" */
const tokens = (member: MemberInfo): string => member.outputs.map(output => output.name).join(' ');

export function commandLine(member: MemberInfo, given: readonly number[], unitOf: UnitOf): string {
  const units = unitsOf(member, unitOf)
    .map(([group, unit]) => `-u ${shell(`${group}=${unit}`)} `)
    .join('');
  // A number below zero is none of an option.
  const numbers = given.map(String).join(' ');
  const wanted = member.hasTokens ? ` ${shell(tokens(member))}` : '';
  return `calvex ${units}${member.name} ${numbers}${wanted}`;
}

function python(member: MemberInfo, given: readonly number[], unitOf: UnitOf): string {
  const units = unitsOf(member, unitOf);
  const asWords = units.every(([group]) => /^\w+$/.test(group));
  const chosen = asWords
    ? units.map(([group, unit]) => `${group}=${quoted(unit)}`).join(', ')
    : `units={${units.map(([group, unit]) => `${quoted(group)}: ${quoted(unit)}`).join(', ')}}`;
  return (
    `import calvex\nsteam = calvex.Engine(${units.length ? chosen : ''})\n` +
    `print(steam.${ownName(member)}(${given.join(', ')}))`
  );
}

function javascript(member: MemberInfo, given: readonly number[], unitOf: UnitOf): string {
  const units = unitsOf(member, unitOf)
    .map(([group, unit]) => `${/^\w+$/.test(group) ? group : `'${group}'`}: '${unit}'`)
    .join(', ');
  return (
    `import { Engine } from 'calvex';\nconst steam = new Engine(${units && `{ ${units} }`});\n` +
    `console.log(steam.${ownName(member)}(${given.join(', ')}));`
  );
}

/** A model that has only a spreadsheet's member goes by its own name. */
const ownName = (member: MemberInfo): string =>
  member.hasTokens && findMember(member.name.slice(2)) === member
    ? member.name.slice(2)
    : member.name;

function visualBasic(member: MemberInfo, given: readonly number[], unitOf: UnitOf): string {
  const variable = (name: string) => `r${name.replace(/\W/g, '')}`;
  const results = member.hasTokens
    ? ['results']
    : member.outputs.map(output => variable(output.name));
  const inputs = given.map(String);
  const call = member.hasTokens
    ? [...inputs, quoted(tokens(member)), 'results']
    : [...results, ...inputs];
  const lines = [
    'Set steam = CreateObject("Calvex32.ZvCalvex.3")',
    "steam.SatPolish = 2  ' the exact saturation line, as here",
    ...unitsOf(member, unitOf).map(
      ([group, unit]) => `steam.SetUserUnit ${quoted(group)}, ${quoted(unit)}`,
    ),
    `If steam.${member.name}(${call.join(', ')}) = 0 Then WScript.Echo steam.LastError : WScript.Quit 1`,
  ];
  if (member.hasTokens) {
    lines.push(
      'For row = 0 To UBound(results, 1)',
      '  WScript.Echo results(row, 0) & ": " & results(row, 1) & " " & results(row, 2)',
      'Next',
    );
  } else {
    lines.push(
      ...member.outputs.map(
        output => `WScript.Echo ${quoted(`${output.name}: `)} & ${variable(output.name)}`,
      ),
    );
  }
  return lines.join('\n');
}

export const snippets = (
  member: MemberInfo,
  given: readonly number[],
  unitOf: UnitOf,
): Snippet[] => [
  { title: 'Command line', code: commandLine(member, given, unitOf) },
  { title: 'Python', code: python(member, given, unitOf) },
  { title: 'VBScript', code: visualBasic(member, given, unitOf) },
  { title: 'JavaScript', code: javascript(member, given, unitOf) },
];
