// The diagrams: what stands on their axes, what part of the plane they open with, and which families
// of lines they have.
import { convert, type Engine, type State } from 'calvex/load';
import { computed } from '@preact/signals';

import { groups, properties, steam } from '../engine.ts';

export interface Kind {
  title: string;
  x: string;
  y: string;
  logarithmic: boolean;
  /** In model units: x from, to, y from, to. */
  window: readonly [number, number, number, number];
  /** Where on a line of the family its label is best, from 0 to 1. */
  families: Readonly<Record<string, number>>;
  /** Families that are left out until one asks for them: all together hide each other. */
  without?: string;
}

export const kinds: Readonly<Record<string, Kind>> = {
  Ts: {
    title: 'Temperature over entropy',
    x: 's',
    y: 'T',
    logarithmic: false,
    window: [0, 9.5, 273.15, 1073.15],
    families: { P: 0.94, v: 0.8, h: 0.3, x: 0.35 },
    without: 'v,h',
  },
  hs: {
    title: 'Enthalpy over entropy',
    x: 's',
    y: 'h',
    logarithmic: false,
    window: [5.5, 9.2, 1900, 4000],
    families: { P: 0.9, T: 0.97, v: 0.82, x: 0.75 },
  },
  logph: {
    title: 'Pressure over enthalpy',
    x: 'h',
    y: 'P',
    logarithmic: true,
    window: [0, 4000, 0.001, 100],
    families: { T: 0.9, s: 0.7, v: 0.6, x: 0.25 },
  },
};
/** What one looks at first: Mollier's. */
export const firstKind = 'hs';

/** What the lines of a family have in common. */
export const familyWords: Readonly<Record<string, string>> = {
  P: 'isobars',
  T: 'isotherms',
  v: 'isochores',
  s: 'isentropes',
  h: 'isenthalps',
  x: 'quality',
};

/** The engine of the diagrams, whose pressures are absolute: no logarithm is there of a gauge's zero. */
export const drawn = computed<Engine>(() => {
  const { group } = properties.P!;
  const { units, modelUnit } = groups[group]!;
  const now = steam.value.unit('P');
  const unit = units.find(row => row.name === now);
  // A gauge's zero is off the reference's; a unit of one's own making tells by its conversion.
  const offset = unit ? unit.offset : convert(group, 0, now, modelUnit);
  if (offset === 0) return steam.value;
  const alike = units.find(row => row.offset === 0 && row.factor === unit?.factor);
  const absolute = steam.value.clone();
  absolute.setUnit(group, alike?.name ?? modelUnit);
  return absolute;
});

/** A property of a state in the chosen unit, in the diagrams'. */
export const toDrawn = (name: string, value: number): number => {
  const { group } = properties[name]!;
  return name === 'P'
    ? convert(group, value, steam.value.unit(group), drawn.value.unit(group))
    : value;
};

export const fromDrawn = (name: string, value: number): number => {
  const { group } = properties[name]!;
  return name === 'P'
    ? convert(group, value, drawn.value.unit(group), steam.value.unit(group))
    : value;
};

/** A value in the model's unit, in the diagrams'. */
export const modelToDrawn = (name: string, value: number): number => {
  const { group } = properties[name]!;
  return convert(group, value, groups[group]!.modelUnit, drawn.value.unit(group));
};

/** The diagram with room for these states: as it is where it has them, else with more of the plane, by
 * quarters, so that it stays while the states change a little. */
export function roomFor(kind: Kind, states: readonly State[]): Kind {
  const ends = [...kind.window];
  for (const [axis, name] of [kind.x, kind.y].entries()) {
    const scale = axis === 1 && kind.logarithmic ? [Math.log, Math.exp] : [Number, Number];
    const [to, back] = scale as [typeof Number, typeof Number];
    const { group } = properties[name]!;
    const [low, high] = [to(kind.window[2 * axis]!), to(kind.window[2 * axis + 1]!)];
    const quarter = (high - low) / 4;
    for (const state of states) {
      const at = to(convert(group, state.get(name), state.unit(name), groups[group]!.modelUnit));
      // A tenth more, so that the dot is whole.
      const below = Math.ceil((low - at) / quarter + 0.1);
      const above = Math.ceil((at - high) / quarter + 0.1);
      if (below > 0) ends[2 * axis] = Math.min(ends[2 * axis]!, back(low - below * quarter));
      if (above > 0)
        ends[2 * axis + 1] = Math.max(ends[2 * axis + 1]!, back(high + above * quarter));
    }
  }
  const window = ends as unknown as Kind['window'];
  return window.every((end, i) => end === kind.window[i]) ? kind : { ...kind, window };
}

/** Whether the chosen pressures are a gauge's. */
export const gauge = computed(() => drawn.value !== steam.value);
