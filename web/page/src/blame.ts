// Whose fault a failure is.

/** The inputs that a failure speaks of first, also two that it compares; all of them where it names
 * none. */
export function blamed<Input extends { words: string }>(reason: string, inputs: Input[]): Input[] {
  const text = reason.toLowerCase();
  const wholes = inputs.map(input => {
    const words = input.words.replace(/,.*/, '').toLowerCase();
    // "Outlet pressure 1" is said of the pressure at outlet 1 too.
    const other = words.replace(/^(\w+) at (\w+)( \d)?$/, '$2 $1$3');
    const either = [words, other].map(each => each.replace(/[^a-z0-9 ]/g, '.')).join('|');
    return text.search(new RegExp(`\\b(${either})\\b`));
  });
  const places = inputs.map((input, i) => {
    const words = input.words.replace(/,.*/, '').toLowerCase();
    if (wholes[i]! >= 0) return wholes[i]!;
    // "Pressure parameter out of range" is said of an inlet pressure too.
    const kind =
      /enthalpy|pressure|temperature|entropy|quality|density|volume|energy|efficiency|flow/.exec(
        words,
      )?.[0];
    const at = kind ? text.indexOf(kind) : -1;
    return at < 0 ? Infinity : at;
  });
  const first = Math.min(...places);
  const compared = / (less than|greater than|both) /.test(text) && wholes.includes(first);
  return first === Infinity
    ? inputs
    : inputs.filter((_, i) => places[i] === first || (compared && wholes[i]! >= 0));
}
