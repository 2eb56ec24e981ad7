// Quantities, in the words that people use.
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
