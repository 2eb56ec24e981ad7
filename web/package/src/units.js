// Quantities and their units, in the words that people use.
import { commonLength } from './columns.js';
import { Engine } from './engine.js';
import { groups } from './table.js';
import { memoryView, scratch, wasm, withTexts } from './wasm.js';

/** The number of a quantity by itself, a letter, a name or a common word: "T", "flow". */
export function groupNumber(word) {
  if (typeof word === 'number') {
    if (groups[word] !== undefined) return word;
    throw new RangeError(`there is no quantity number ${word}: they are 0 to ${groups.length - 1}`);
  }
  if (typeof word !== 'string') {
    throw new TypeError(`a quantity is a text such as "T" or "pressure", not ${String(word)}`);
  }
  const code = withTexts([word], (_texts, _sizes, [text]) =>
    wasm.calvex_find_group(...text, scratch()),
  );
  if (code === 0) return memoryView().getInt32(scratch(), true);
  throw new RangeError(
    `"${word}" is no quantity with a unit; there are ` +
      groups.map(group => group.keywords[0]).join(', '),
  );
}

export const findGroup = word => groups[groupNumber(word)];

let finder;
/** The row of a unit by its name or a common word for it. */
export function findUnit(quantity, word) {
  const group = findGroup(quantity);
  const known = group.units.find(unit => unit.name === word);
  if (known) return known;
  finder ??= new Engine();
  finder.setUnit(group.number, word);
  const name = finder.unit(group.number);
  return group.units.find(unit => unit.name === name);
}

/** A number, or an array of them, from one unit of a quantity to another. */
export function convert(quantity, value, from, to) {
  commonLength('convert(quantity, value, from, to)', ['value'], [value]);
  const a = findUnit(quantity, from),
    b = findUnit(quantity, to);
  const one = x => (a === b ? x : ((x + a.offset) * a.factor) / b.factor - b.offset);
  return typeof value === 'number' ? one(value) : Float64Array.from(value, one);
}
