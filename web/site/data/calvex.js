// The member table, the quantities and the messages, as the package has them, with what its engine
// answers to the examples.
import { execFileSync } from 'node:child_process';

import * as calvex from 'calvex';
import { runExample, shown } from '../source/example.mjs';
import { commandLine } from '../source/places.mjs';
import { messagesOf } from '../source/probes.mjs';

/** "above 0 to 3000" */
function limits({ low, high, aboveLow, belowHigh }) {
  const lower = Number.isFinite(low) && `${aboveLow ? 'above' : 'from'} ${low}`;
  const upper = Number.isFinite(high) && `${belowHigh ? 'below' : 'to'} ${high}`;
  return [lower, upper].filter(Boolean).join(' ');
}

/** What a setting or a constant answers has the member's name. */
const nameOf = (row, output) =>
  row.inputs.length === 0 && row.outputs.length === 1 ? row.name : output.name;

const ofGroup = value => (value.group < 0 ? undefined : calvex.groups[value.group]);

/** What the command line's help has beside the table: a setting's values, the call that it shows, and
 * what automation clients see. */
function help(name) {
  const text = execFileSync(commandLine, ['help', name], { encoding: 'utf8' });
  const sections = {};
  for (const part of text.split('\n\n')) {
    const [title, ...lines] = part.split('\n');
    sections[title] = lines.filter(Boolean).map(line => line.slice(2));
  }
  const calls =
    sections.example?.slice(0, 1) ??
    sections['example, in a script'].filter(line => !line.startsWith(' '));
  const isScript = sections.example === undefined;
  return {
    calls,
    isScript,
    value: sections.value ?? [],
    automation: sections['for automation clients'],
  };
}

function page(row) {
  const given =
    row.kind === 'setting' ? row.outputs.map(output => ({ ...output, name: 'value' })) : row.inputs;
  const { outputs, failure } = runExample(calvex, row, row.example.inputs);
  if (failure) throw new Error(`the example of ${row.name} fails: ${failure.reason}`);
  return {
    ...row,
    sentence: `${row.title[0].toUpperCase()}${row.title.slice(1)}.`,
    url: `members/${row.name}.html`,
    given: given.map((input, i) => ({
      ...input,
      group: ofGroup(input),
      limits: limits(input),
      value: row.example.inputs[i] ?? '',
    })),
    answered: row.outputs.map((output, i) => ({
      ...output,
      name: nameOf(row, output),
      group: ofGroup(output),
      value: outputs[i].value,
      shown: shown(outputs[i].value),
    })),
    groups: [...new Set([...given, ...row.outputs].map(value => value.group))].filter(n => n >= 0),
    messages: messagesOf(calvex, row),
    help: help(row.name),
  };
}

const members = calvex.members.map(page);
const headings = new Map();
for (const member of members) {
  headings.set(member.heading, [...(headings.get(member.heading) ?? []), member]);
}

/** Which members said a message. */
function saidBy(number) {
  return members.flatMap(member =>
    member.messages
      .filter(message => message.code === number)
      .slice(0, 1)
      .map(message => ({ member, message })),
  );
}

export default {
  version: calvex.version,
  members,
  headings: [...headings].map(([title, list]) => ({ title, members: list })),
  groups: calvex.groups,
  letters: calvex.letters.map(letter => ({ ...letter, unit: ofGroup(letter)?.modelUnit ?? '' })),
  messages: calvex.messages.map(row => ({ ...row, said: saidBy(row.number) })),
};
