// The engine in the units that the address has, and what its tables say.
import { computed } from '@preact/signals';
import { CalvexError, Engine, convert, groups, letters, members, properties } from 'calvex/load';

import { address, changed, replace } from './address.ts';
import { blamed } from './blame.ts';
import { apart, show, tidy } from './numbers.ts';

export const keyword = (group: number): string => groups[group]!.keywords[0]!;

/** The units that the address chooses, as one text: an engine is made anew when it changes. */
const chosen = computed(() =>
  JSON.stringify(
    Object.entries(address.value.values)
      .filter(([key]) => key.startsWith('u.'))
      .map(([key, unit]) => [key.slice(2), unit])
      .sort(),
  ),
);

interface Made {
  steam: Engine;
  troubles: string[];
}

const made = computed<Made>(() => {
  const steam = new Engine();
  const troubles: string[] = [];
  for (const [quantity, unit] of JSON.parse(chosen.value) as [string, string][]) {
    try {
      steam.setUnit(quantity, unit);
    } catch (failure) {
      troubles.push(`The address asks for ${quantity} in ${unit}: ${reasonOf(failure)}`);
    }
  }
  return { steam, troubles };
});

export const steam = computed(() => made.value.steam);
/** What is wrong with the units of the address; the model's stand in their place. */
export const unitTroubles = computed(() => made.value.troubles);

/** What the engine says to those who call members or type commands, for those who fill in fields. */
const otherWords: readonly (readonly [RegExp, string])[] = [
  [/\(\w+SatPQ: 0 is liquid/g, '(0 is liquid'],
  [/(([\d.e+-]+) % is \S+ as a Fraction)( \([^)]*\))?\./g, '$1 (or type $2 %).'],
];
export const inFields = (text: string): string =>
  otherWords.reduce((said, [words, ours]) => said.replace(words, ours), text);

/** Why a call failed, in the engine's words. */
export function reasonOf(failure: unknown): string {
  if (failure instanceof CalvexError) return inFields(failure.full);
  return failure instanceof Error ? failure.message : String(failure);
}

/** The name of the unit of a quantity; none of a plain number. */
export const unitName = (group: number): string => (group < 0 ? '' : steam.value.unit(group));

/** A unit as it is printed: "kJ/(kg·K)", "m³/kg", "°C". */
export function pretty(unit: string): string {
  const known: Record<string, string> = { C: '°C', F: '°F', Fraction: '' };
  return (known[unit] ?? unit).replaceAll('^2', '²').replaceAll('^3', '³').replaceAll('.', '·');
}

/** A value in the model's unit, in the chosen one, and the way back. */
export const toUser = (group: number, model: number): number =>
  group < 0 ? model : convert(group, model, groups[group]!.modelUnit, unitName(group));
export const toModel = (group: number, user: number): number =>
  group < 0 ? user : convert(group, user, unitName(group), groups[group]!.modelUnit);

export const letterRow = (letter: string) => letters.find(row => row.letter === letter)!;
export const propertyOf = (letter: string) =>
  Object.values(properties).find(property => property.letter === letter)!;

/** "pressure", "Pressure" */
export const capital = (text: string): string => text.charAt(0).toUpperCase() + text.slice(1);

/** A member by its name. */
export const call = (engine: Engine, name: string, given: readonly number[]): unknown =>
  (engine as unknown as Record<string, (...numbers: number[]) => unknown>)[name]!(...given);

// --- What people type -----------------------------------------------------------------------------

export interface Quantity {
  /** The unit group, -1 for a plain number. */
  group: number;
  words: string;
  /** A difference of two values, of which only the size of the unit matters. */
  difference?: boolean;
}

export type Reading =
  | { value: number; trouble?: undefined }
  | { value?: undefined; trouble: string };

/** What was typed, in the chosen unit; a unit may stand behind the number. */
export function readInput(text: string, { group, words, difference }: Quantity): Reading {
  const name = capital(words.replace(/,.*/, ''));
  const unit = group < 0 ? '' : unitName(group);
  if (text.trim() === '') return { trouble: `${name} is empty: a number is wanted.` };
  if (/^[+-]?\d+,\d+(\s|$|[a-z°])/i.test(text.trim())) {
    return { trouble: `“${text.trim()}” has a comma: the decimal sign is a point.` };
  }
  const parts = apart(text);
  if (parts?.beyond) {
    return { trouble: `“${text.trim()}” is too ${parts.beyond} for a number.` };
  }
  if (!parts) {
    const example = pretty(unit) ? `100 or 100 ${pretty(unit)}` : '100';
    return { trouble: `“${text.trim()}” is no number; it reads like ${example}.` };
  }
  if (parts.unit === '') return { value: parts.number };
  if (group < 0) return { trouble: `${name} has no unit; “${parts.unit}” is one too many.` };
  try {
    const there = convert(group, parts.number, parts.unit, unit);
    return { value: difference ? there - convert(group, 0, parts.unit, unit) : there };
  } catch (failure) {
    return { trouble: reasonOf(failure) };
  }
}

/** What was typed where the page has written it in another unit: the way back is exact. */
const origins = new Map<string, { text: string; unit: string; written: string; now: string }>();

/** The same text in another unit; one that names its unit itself, and one that is no number, stays as
 * it is. */
function inUnit(
  key: string,
  text: string,
  { group, difference }: Quantity,
  from: string,
  to: string,
): string {
  const before = origins.get(key);
  const origin = before?.written === text && before.now === from ? before : { text, unit: from };
  const parts = apart(origin.text);
  if (!parts || parts.unit !== '' || parts.beyond || from === to) return text;
  const there = convert(group, parts.number, origin.unit, to);
  const size = difference ? there - convert(group, 0, origin.unit, to) : there;
  const written = to === origin.unit ? origin.text : tidy(size);
  origins.set(key, { text: origin.text, unit: origin.unit, written, now: to });
  return written;
}

/** Which keys of the address hold a quantity: each view adds its own. */
export type Holder = () => Record<string, Quantity>;
export const holders: Holder[] = [];

/** Chooses a unit, everywhere; numbers that were typed stay the same quantities. */
export function chooseUnits(units: Record<string, string>) {
  const before = steam.value.units();
  const changes: Record<string, string | undefined> = {};
  for (const [word, unit] of Object.entries(units)) {
    const group = groups.find(row => row.keywords[0] === word)!;
    changes[`u.${word}`] = unit === group.modelUnit ? undefined : unit;
  }
  for (const holder of holders) {
    for (const [key, quantity] of Object.entries(holder())) {
      const text = address.value.values[key];
      if (text === undefined || quantity.group < 0) continue;
      const word = keyword(quantity.group);
      const to = units[word];
      if (to !== undefined) changes[key] = inUnit(key, text, quantity, before[word]!, to);
    }
  }
  replace(changed(changes));
}

/** The model's example of an input, in the chosen unit, as one would type it. */
export const exampleText = (group: number, model: number): string => tidy(toUser(group, model));

export { blamed, groups, members, properties, show };
