// A member's example, run by the package: the same for the pages as they are made and as they are
// read.

/** Inputs come from fields, the table's preparation has numbers as texts: both as the member wants. */
const typed = (row, inputs) =>
  inputs.map((value, i) => (row.inputs[i]?.type === 'string' ? String(value) : Number(value)));

/** Ten digits, as the command line prints. */
export const shown = value =>
  typeof value !== 'number'
    ? String(value)
    : Number.isFinite(value)
      ? String(Number(value.toPrecision(10)))
      : String(value);

/** Runs a member in a new engine of the loaded package, with units by the keyword of their quantity.
 * Answers `outputs`, a row { name, value, unit } for each result, or `failure`, { reason, cause, code };
 * `warnings` either way. */
export function runExample(calvex, member, inputs, units = {}) {
  const engine = new calvex.Engine(units);
  try {
    for (const call of member.preparation)
      perform(engine, calvex.findMember(call.member), call.inputs);
    const values = perform(engine, member, inputs);
    const outputs = member.outputs.map((output, i) => ({
      name: output.name,
      value: values[i],
      unit: output.group < 0 ? '' : engine.unit(output.group),
    }));
    return { outputs, warnings: warningsOf(engine.trace()) };
  } catch (failure) {
    if (!(failure instanceof calvex.CalvexError) && !(failure instanceof TypeError)) throw failure;
    const { code = 0, reason = failure.message, cause = '' } = failure;
    return { failure: { code, reason, cause }, warnings: warningsOf(engine.trace()) };
  } finally {
    engine.destroy();
  }
}

/** Calls a member, or sets a setting and reads it back; its results in their order. */
function perform(engine, member, inputs) {
  const { name, kind, outputs } = member;
  if (kind === 'reading') return [engine[name]];
  if (kind === 'setting') {
    if (inputs.length > 0) {
      engine[name] = outputs[0].type === 'string' ? String(inputs[0]) : Number(inputs[0]);
    }
    return [engine[name]];
  }
  const answer = engine[name](...typed(member, inputs));
  return outputs.length === 1 ? [answer] : outputs.map(output => answer[output.name]);
}

function warningsOf(node) {
  const own = node.kind === 'warning' ? [{ code: node.code, text: node.text }] : [];
  return own.concat(...node.children.map(warningsOf));
}
