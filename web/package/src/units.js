// Units, in the words that people use.
import { commonLength } from './columns.js';
import { Engine } from './engine.js';
import { findGroup } from './quantities.js';

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
