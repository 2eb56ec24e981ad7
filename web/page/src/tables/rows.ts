// The rows of a table: saturated states over a range, or states at one pressure.
import type { State } from 'calvex/load';

import { pretty, propertyOf, show, steam, toModel, unitName } from '../engine.ts';
import { fullQuality, phaseName } from '../state/properties.tsx';

export interface Column {
  words: string;
  of?: 'liquid' | 'vapour';
  unit: string;
  symbol: string;
}
export interface Table {
  columns: Column[];
  /** A text is a phase; NaN is a value that there is not. */
  rows: (number | string)[][];
  /** Which rows are missing, and why. */
  missing: string[];
}

export interface Range {
  from: number;
  to: number;
  step: number;
}
export const mostRows = 5000;

/** The values of a range, its end too where a step reaches it but for rounding. */
export function valuesOf({ from, to, step }: Range): number[] {
  const count = Math.floor((to - from) / step + 1e-9);
  return Array.from({ length: count + 1 }, (_, i) => Number((from + i * step).toPrecision(14)));
}

const column = (letter: string, of?: Column['of']): Column => {
  const { words, group, name } = propertyOf(letter);
  return { words, unit: group < 0 ? '' : pretty(unitName(group)), symbol: name, ...(of && { of }) };
};

/** Which points of an array failed, by each reason. */
function missingOf(given: Float64Array): string[] {
  const rows = new Map<string, string[]>();
  steam.value.reasons().forEach((text, i) => {
    // At the boiling point a table has nothing else to give.
    const reason = text.replace(/ Give the pressure with the quality.*/, '');
    if (reason) rows.set(reason, [...(rows.get(reason) ?? []), show(given[i]!, 7)]);
  });
  return Array.from(rows, ([reason, places]) => {
    const some = places.length > 8 ? [...places.slice(0, 4), '…', ...places.slice(-2)] : places;
    return `Left out: the row${places.length > 1 ? 's' : ''} at ${some.join(', ')}. ${reason}`;
  });
}

const ofPhases = ['V', 'R', 'H', 'S', 'U'];
const phases = ['liquid', 'vapour'] as const;

/** Saturated liquid and vapour by temperature or by pressure. */
export function saturation(by: 'T' | 'P', range: Range): Table {
  const given = Float64Array.from(valuesOf(range));
  const other = by === 'T' ? 'P' : 'T';
  const ends = phases.map(
    (_, end) =>
      steam.value.state({
        [by]: given,
        x: new Float64Array(given.length).fill(end * fullQuality()),
      }) as State<Float64Array>,
  );
  const missing = missingOf(given);
  const columns = [
    column(by),
    column(other),
    ...ofPhases.flatMap(letter => phases.map(phase => column(letter, phase))),
  ];
  const values = [
    given,
    ends[1]!.get(other),
    ...ofPhases.flatMap(letter => ends.map(states => states.get(propertyOf(letter).name))),
  ];
  const rows = Array.from(given, (_, i) => values.map(each => each[i]!));
  return { columns, rows: rows.filter(row => !Number.isNaN(row[1])), missing };
}

const ofStates = ['V', 'R', 'H', 'S', 'U', 'C', 'W', 'M', 'K'];

/** States at one pressure by temperature, with both saturated states where it crosses the line. */
export function isobar(pressure: number, range: Range): Table {
  const given = Float64Array.from(valuesOf(range));
  const states = steam.value.state({
    P: new Float64Array(given.length).fill(pressure),
    T: given,
  }) as State<Float64Array>;
  const missing = missingOf(given);
  const [temperature, density] = ['T', 'R'].map(letter => propertyOf(letter).group) as [
    number,
    number,
  ];
  const modelPressure = toModel(propertyOf('P').group, pressure);
  const values = ofStates.map(letter => states.get(propertyOf(letter).name));
  const rows: (number | string)[][] = Array.from(given, (T, i) => [
    T,
    phaseName(states.phase[i]!, {
      P: modelPressure,
      T: toModel(temperature, T),
      rho: toModel(density, states.rho[i]!),
      x: 1,
    }),
    ...values.map(each => each[i]!),
  ]).filter(row => row[1] !== '');
  for (const [end, phase] of phases.entries()) {
    try {
      const state = steam.value.state({ P: pressure, x: end * fullQuality() });
      if (state.T < range.from || state.T > range.to) continue;
      const row = [state.T, `saturated ${phase}`, ...ofStates.map(letter => one(state, letter))];
      const place = rows.findIndex(each => (each[0] as number) > state.T);
      rows.splice(place < 0 ? rows.length : place, 0, row);
    } catch {
      // Above the critical pressure there is no line to cross.
    }
  }
  const phase: Column = { words: 'phase', unit: '', symbol: 'phase' };
  return {
    columns: [column('T'), phase, ...ofStates.map(letter => column(letter))],
    rows,
    missing,
  };
}

function one(state: State, letter: string): number {
  try {
    return state.get(propertyOf(letter).name);
  } catch {
    return NaN;
  }
}

export const heading = ({ symbol, of, unit }: Column): string =>
  `${symbol}${of ? ` ${of}` : ''}${unit ? ` [${unit}]` : ''}`;

/** With all digits, for a spreadsheet; what is missing is an empty cell. */
export const asText = ({ columns, rows }: Table, between: string): string =>
  [
    columns.map(heading),
    ...rows.map(row =>
      row.map(cell =>
        typeof cell === 'string' ? cell : Number.isFinite(cell) ? String(cell) : '',
      ),
    ),
  ]
    .map(cells => cells.map(cell => (cell.includes(between) ? `"${cell}"` : cell)).join(between))
    .map(text => `${text}\r\n`)
    .join('');
