// The pair of inputs of the state that is looked at, which the address keeps for all views.
import { CalvexError, pairs, type State } from 'calvex/load';
import { computed, signal } from '@preact/signals';

import { address, replace, changed } from '../address.ts';
import {
  blamed,
  exampleText,
  holders,
  letterRow,
  members,
  propertyOf,
  readInput,
  reasonOf,
  steam,
} from '../engine.ts';
import type { Quantity } from '../engine.ts';

export interface Input extends Quantity {
  letter: string;
  text: string;
}

const quantityOf = (letter: string): Quantity => {
  const { group, words } = letterRow(letter);
  return { group, words };
};

/** The keys of the state in the address: its inputs, in their order. */
const stateLetters = new Set(pairs.join(''));
export const lettersOf = (keys: string[]) => keys.filter(key => stateLetters.has(key));
const pairOf = (letters: string[]) =>
  pairs.find(
    pair => letters.length === 2 && pair.includes(letters[0]!) && pair.includes(letters[1]!),
  );

/** A value to begin with: that of the member's example which answers or takes the letter. */
function firstText(letter: string, pair: string): string {
  for (const name of [`H${pair}`, `T${pair}`, `HSat${pair}`]) {
    const member = members.find(row => row.name === name);
    const i = member?.inputs.findIndex(input => input.name === letter) ?? -1;
    const given = member?.example.inputs[i];
    if (typeof given === 'number') return exampleText(letterRow(letter).group, given);
  }
  // Enthalpy and entropy have no member: the first state's.
  const { P, T } = { P: Number(firstText('P', 'PT')), T: Number(firstText('T', 'PT')) };
  return exampleText(-1, steam.value.state({ P, T }).get(propertyOf(letter).name));
}

export const pair = computed(() => pairOf(lettersOf(Object.keys(address.value.values))) ?? 'PT');

export const inputs = computed<Input[]>(() =>
  pair.value.split('').map(letter => ({
    letter,
    ...quantityOf(letter),
    text: address.value.values[letter] ?? firstText(letter, pair.value),
  })),
);

holders.push(() =>
  Object.fromEntries([...stateLetters].map(letter => [letter, quantityOf(letter)])),
);

export type Answer =
  | { state: State; troubles?: undefined }
  | { state?: undefined; troubles: Record<string, string>; code?: number };

/** The state, or what is wrong by the letter of the input whose fault it is. */
export const answer = computed<Answer>(() => {
  const troubles: Record<string, string> = {};
  const given: Record<string, number> = {};
  for (const input of inputs.value) {
    const reading = readInput(input.text, input);
    if (reading.trouble !== undefined) troubles[input.letter] = reading.trouble;
    else given[propertyOf(input.letter).name] = reading.value;
  }
  if (Object.keys(troubles).length > 0) return { troubles };
  try {
    return { state: steam.value.state(given) };
  } catch (failure) {
    const reason = reasonOf(failure);
    const code = failure instanceof CalvexError ? failure.code : undefined;
    // Boiling: what the engine asks for instead is another pair.
    const told = code === 106 ? `${reason} “Given” has these pairs.` : reason;
    for (const input of blamed(reason, inputs.value)) troubles[input.letter] = told;
    return { troubles, code };
  }
});

const textsNow = () =>
  JSON.stringify(Object.fromEntries(inputs.value.map(({ letter, text }) => [letter, text])));

/** The state that another pair was chosen for, until something else is typed or chosen: a pair that
 * does not tell it, pressure and temperature of wet steam, does not lose it. */
const left = signal<{ state: State; texts: string; units: unknown } | undefined>(undefined);
const kept = computed<State | undefined>(() =>
  left.value?.texts === textsNow() && left.value.units === steam.value
    ? left.value.state
    : undefined,
);

/** The state that was there before another pair was chosen, where that pair shows another one: two
 * states have a temperature and enthalpy in common, and no quality tells superheated vapour. */
export const lost = computed<State | undefined>(() => {
  const [before, now] = [kept.value, answer.value.state];
  // The inputs are written with ten digits: what rounds off with them is the same state.
  const same = before && now && Math.abs(now.rho / before.rho - 1) < 1e-6;
  return now && !same ? before : undefined;
});

/** Another pair: what the state is now, in other properties; one that both have stays as typed. */
export function choosePair(next: string) {
  const typed = Object.fromEntries(inputs.value.map(({ letter, text }) => [letter, text]));
  const state = kept.value ?? answer.value.state;
  const texts = Object.fromEntries(
    next.split('').map(letter => {
      const known = state?.get(propertyOf(letter).name) ?? NaN;
      const text = Number.isFinite(known) ? exampleText(-1, known) : firstText(letter, next);
      return [letter, typed[letter] ?? text];
    }),
  );
  left.value = state && { state, texts: JSON.stringify(texts), units: steam.value };
  replace(withInputs(texts));
}

/** The address with these inputs of the state. */
export function withInputs(texts: Record<string, string>) {
  const others = Object.fromEntries(
    lettersOf(Object.keys(address.value.values)).map(letter => [letter, undefined]),
  );
  const without = changed(others);
  return { ...without, values: { ...texts, ...without.values } };
}
