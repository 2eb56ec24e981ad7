// The messages of a member, found by asking it: its example with one input at a time outside of what
// is accepted, at its limits, or where no water is.
import { runExample } from './example.mjs';

/** Values for an input, in model units. */
function* probes(input) {
  if (input.type === 'string') return yield 'none';
  // Whole numbers and the values of settings: the table has no limits of these.
  if (input.type === 'integer' || input.low === undefined) return yield* [-1, 0];
  for (const limit of [input.low, input.high]) {
    if (!Number.isFinite(limit)) continue;
    yield limit;
    yield limit + (limit === input.low ? -1 : 1) * Math.max(1, Math.round(Math.abs(limit) / 10));
  }
  if (input.group >= 0) yield* [1e6, 1e-6];
}

function* calls(calvex, member) {
  const given = member.example.inputs;
  const inputs = member.kind === 'setting' ? member.outputs : member.inputs;
  for (const [i, input] of inputs.entries()) {
    for (const value of probes(input)) yield given.with(i, value);
  }
  // Pressure and temperature on the saturation line.
  const at = ['P', 'T'].map(name => member.inputs.findIndex(input => input.name === name));
  if (at.every(i => i >= 0)) {
    const onLine = new calvex.Engine().PSatT(500).toPrecision(6);
    yield given.with(at[0], Number(onLine)).with(at[1], 500);
  }
}

/** What two messages of a kind have in common. */
const form = text => text.replace(/-?\d+(\.\d+)?(e[+-]?\d+)?/gi, '#');

/** Messages with the inputs that they came from: { kind, code, text, cause, inputs }, each form once. */
export function messagesOf(calvex, member) {
  const found = new Map();
  for (const inputs of calls(calvex, member)) {
    const { failure, warnings } = runExample(calvex, member, inputs);
    const said = warnings.map(({ code, text }) => ({ kind: 'warning', code, text, cause: '' }));
    if (failure && failure.code > 0) {
      said.push({ kind: 'error', code: failure.code, text: failure.reason, cause: failure.cause });
    }
    for (const message of said) {
      const key = `${message.kind} ${form(message.text)} ${form(message.cause)}`;
      if (!found.has(key)) found.set(key, { ...message, inputs });
    }
  }
  return [...found.values()].sort((a, b) => a.kind.localeCompare(b.kind) || a.code - b.code);
}
