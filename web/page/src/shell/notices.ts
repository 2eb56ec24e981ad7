// What in the address was not understood: what is shown instead is not what its sender saw.
import { findMember } from 'calvex/load';
import { computed } from '@preact/signals';

import { address, firstPage, own, value } from '../address.ts';
import { viewNow } from '../diagram/diagram.tsx';
import { wholeView } from '../diagram/drawing.ts';
import { familyWords, kinds as diagrams } from '../diagram/kinds.ts';
import { groups, unitTroubles } from '../engine.ts';
import { keyOf, model } from '../equipment/model.ts';
import { lettersOf, pair } from '../state/inputs.ts';
import { tableKeys, kinds as tables } from '../tables/view.tsx';

/** The keys of the address that each view reads, beside the units. */
const readers: Readonly<Record<string, (key: string) => boolean>> = {
  state: key => ['kind', 'without', 'trace'].includes(key) || isLetter(key),
  diagram: key => ['kind', 'zoom', 'without'].includes(key) || isLetter(key),
  equipment: key => key === 'without' || model.value.inputs.some(info => keyOf(info) === key),
  tables: key => tableKeys().includes(key),
  units: key => ['quantity', 'amount'].includes(key),
};
const isLetter = (key: string): boolean => lettersOf([key]).length > 0;

/** Whether what is seen depends on a key of the address. */
export const isRead = (key: string): boolean =>
  key.startsWith('u.') || (own(readers, address.value.page) ?? readers[firstPage]!)(key);

/** Whether another view, or this one with another table, reads it. */
const isReadElsewhere = (key: string): boolean =>
  ['from', 'to', 'step', 'at'].includes(key) ||
  (key.startsWith('in.') && address.value.page !== 'equipment') ||
  Object.values(readers).some(reads => reads(key));

export const unknowns = computed<string[]>(() => {
  const { page, item, values, twice = [], linked } = address.value;
  const words: string[] = [];
  if (!own(readers, page)) words.push(`the view “${page}”`);
  if (item && ['state', 'tables', 'units'].includes(page)) words.push(`“${item}”`);
  if (page === 'diagram' && item && !own(diagrams, item)) words.push(`the diagram “${item}”`);
  if (page === 'equipment' && item && findMember(item) !== model.value) {
    words.push(`the model “${item}”`);
  }
  const kind = value('kind');
  if (kind && !own(diagrams, kind)) words.push(`the diagram “${kind}”`);
  const zoom = value('zoom');
  if (zoom && viewNow() === wholeView) words.push(`the zoom “${zoom}”`);
  for (const family of value('without').split(',').filter(Boolean)) {
    if (!own(familyWords, family)) words.push(`the lines “${family}”`);
  }
  const trace = value('trace');
  if (trace && trace !== 'notes') words.push(`the trace “${trace}”`);
  const table = value('table');
  if (table && !own(tables, table)) words.push(`the table “${table}”`);
  const quantity = value('quantity');
  if (quantity && !groups.some(group => group.keywords[0] === quantity)) {
    words.push(`the quantity “${quantity}”`);
  }
  const letters = lettersOf(Object.keys(values)).filter(key => !pair.value.includes(key));
  if (letters.length > 0 && isRead(letters[0]!)) {
    const [first, second] = pair.value;
    words.push(
      `the ${letters.length > 1 ? 'inputs' : 'input'} ${letters.join(', ')} (a pair gives a state, here ${first} and ${second})`,
    );
  }
  const unread = Object.keys(values).filter(key => !isRead(key));
  const elsewhere = unread.filter(isReadElsewhere);
  words.push(...unread.filter(key => !elsewhere.includes(key)).map(key => `“${key}”`));
  if (linked && elsewhere.length > 0) {
    words.push(`${elsewhere.map(key => `“${key}”`).join(', ')} (not used here)`);
  }
  words.push(...twice.map(key => `all but the last “${key}”`));
  const notice = `Left out of what the address asks for: ${words.join('; ')}.`;
  return [...unitTroubles.value, ...(words.length > 0 ? [notice] : [])];
});
