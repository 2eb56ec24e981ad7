// What in the address was not understood: what is shown instead is not what its sender saw.
import { findMember } from 'calvex/load';
import { computed } from '@preact/signals';

import { address, own, value } from '../address.ts';
import { viewNow } from '../diagram/diagram.tsx';
import { wholeView } from '../diagram/drawing.ts';
import { familyWords, kinds as diagrams } from '../diagram/kinds.ts';
import { groups, unitTroubles } from '../engine.ts';
import { keyOf, model } from '../equipment/model.ts';
import { lettersOf, pair } from '../state/inputs.ts';
import { kinds as tables } from '../tables/view.tsx';

const views = ['state', 'diagram', 'equipment', 'tables', 'units'];
const keys = ['zoom', 'without', 'kind', 'table', 'at', 'from', 'to', 'step', 'trace', 'quantity'];
const known = new Set([...keys, 'amount']);

const isKnown = (key: string): boolean =>
  known.has(key) ||
  /^u\./.test(key) ||
  lettersOf([key]).length > 0 ||
  (key.startsWith('in.') &&
    (address.value.page !== 'equipment' || model.value.inputs.some(info => keyOf(info) === key)));

export const unknowns = computed<string[]>(() => {
  const { page, item, values, twice = [] } = address.value;
  const words: string[] = [];
  if (!views.includes(page)) words.push(`the view “${page}”`);
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
  const letters = lettersOf(Object.keys(values));
  if (letters.some(letter => !pair.value.includes(letter))) {
    words.push(`the inputs ${letters.join(', ')}, which are no pair that gives a state`);
  }
  words.push(
    ...Object.keys(values)
      .filter(key => !isKnown(key))
      .map(key => `“${key}”`),
  );
  words.push(...twice.map(key => `all but the last “${key}”`));
  const notice = `Not understood in the address, and left out: ${words.join('; ')}.`;
  return [...unitTroubles.value, ...(words.length > 0 ? [notice] : [])];
});
