// The types of the members, members.d.ts, from the member table.
const types = {
  number: 'number',
  integer: 'number',
  string: 'string',
  table: '(string | number)[][]',
};

/** An input's name; that of a reserved word would be none. */
const given = (row, type) => row.inputs.map(input => `${input.name}: ${type(input)}`).join(', ');

function comment(row) {
  const unit = value => value.words;
  const lines = [
    `${row.title[0].toUpperCase()}${row.title.slice(1)}.`,
    row.notes,
    ...row.inputs.map(input => `@param ${input.name} ${unit(input)}`),
  ].filter(Boolean);
  return `  /** ${lines.join('\n   * ')} */\n`;
}

function answer(row, number) {
  if (row.outputs.length === 0) return 'void';
  if (row.outputs.length === 1) return number ?? types[row.outputs[0].type];
  return `Results<${row.outputs.map(output => `'${output.name}'`).join(' | ')}, ${number ?? 'number'}>`;
}

function declaration(name, row) {
  const type = value => types[value.type];
  switch (row.kind) {
    case 'setting':
      return `  ${name}: ${type(row.outputs[0])};\n`;
    case 'reading':
      return `  readonly ${name}: ${type(row.outputs[0])};\n`;
    case 'method':
      return `  ${name}(${given(row, type)}): ${answer(row)};\n`;
    default:
      return (
        `  ${name}(${given(row, () => 'number')}): ${answer(row, 'number')};\n` +
        `  ${name}(${given(row, () => 'number | Numbers')}): ${answer(row, 'Float64Array')};\n`
      );
  }
}

/** The text of members.d.ts, from the loaded package. */
export function memberTypes({ findMember, members }) {
  const names = members.flatMap(row => {
    const own = row.hasTokens && findMember(row.name.slice(2)) === row ? [row.name.slice(2)] : [];
    return [row.name, ...own].map(name => [name, row]);
  });
  return (
    '// Made from the member table.\n' +
    "import type { Numbers, Results } from './load.js';\n\n" +
    '/** What every engine has. */\nexport interface Members {\n' +
    names.map(([name, row]) => comment(row) + declaration(name, row)).join('') +
    '}\n'
  );
}
