// The lines of a diagram as points in the diagram's units. A window decides which lines there are and
// what part of them is computed, so that they are smooth and many enough at any magnification.
import type { Engine, State } from 'calvex/load';

import { roundLevels, roundPowers } from '../numbers.ts';
import { drawn, modelToDrawn, type Kind } from './kinds.ts';

export interface Points {
  x: Float64Array;
  y: Float64Array;
}
export interface Line extends Points {
  family: string;
  level: number;
}
type Range = readonly [number, number];
export interface Window {
  x: Range;
  y: Range;
}

const spaced = (low: number, high: number, count: number): Float64Array =>
  Float64Array.from({ length: count }, (_, i) => low + ((high - low) * i) / (count - 1));
const geometric = (low: number, high: number, count: number): Float64Array =>
  spaced(Math.log(low), Math.log(high), count).map(Math.exp);
const filled = (count: number, value: number): Float64Array => new Float64Array(count).fill(value);

/** What the window has of each property, by a grid of states. */
export type Survey = Readonly<Record<string, Range>>;

export function survey(kind: Kind, window: Window): Survey {
  const count = 24;
  const across = spaced(...window.x, count);
  const up = kind.logarithmic ? geometric(...window.y, count) : spaced(...window.y, count);
  const x = new Float64Array(count * count),
    y = new Float64Array(count * count);
  for (let i = 0; i < count; ++i) {
    for (let k = 0; k < count; ++k) {
      x[i * count + k] = across[i]!;
      y[i * count + k] = up[k]!;
    }
  }
  const states = drawn.value.state({ [kind.x]: x, [kind.y]: y });
  const found: Record<string, Range> = {};
  for (const name of ['P', 'T', 'v', 'h', 's', 'x']) {
    let low = Infinity,
      high = -Infinity;
    states.get(name).forEach((value, i) => {
      if (Number.isNaN(value) || (name === 'x' && states.phase[i] !== 'two-phase')) return;
      low = Math.min(low, value);
      high = Math.max(high, value);
    });
    if (low < high) found[name] = [low, high];
  }
  return found;
}

/** The levels of a family in a window; `count` is about how many there are to be. */
export function levels(family: string, seen: Survey, count: number): number[] {
  const range = seen[family];
  if (!range) return [];
  if (family === 'P') {
    return roundPowers(range[0], Math.min(range[1], modelToDrawn('P', mostPressure)), count);
  }
  if (family === 'v') return roundPowers(...range, count);
  if (family !== 'x') return roundLevels(...range, count);
  const [none, all] = [modelToDrawn('x', 0), modelToDrawn('x', 1)];
  return roundLevels(...range, Math.min(count, 10)).filter(level => level > none && level < all);
}

/** A line of the family through the window. */
export function line(kind: Kind, family: string, level: number, seen: Survey): Points {
  return lineOf[family]!(new Pen(kind, drawn.value, seen), level);
}

/** The saturation line, over the critical point. */
export function dome(kind: Kind, seen: Survey): Points {
  const pen = new Pen(kind, drawn.value, seen);
  const [liquid, vapour] = [0, 1].map(x => pen.saturated(modelToDrawn('x', x)));
  const critical = pen.critical();
  return joined(liquid!, critical, { x: vapour!.x.reverse(), y: vapour!.y.reverse() });
}

export const criticalPoint = (kind: Kind): Points => new Pen(kind, drawn.value, {}).critical();

/** Lines end with the range of the formulation, 1000 MPa; the solver goes on to 3000. */
const mostPressure = 1000;

/** Computes points of one diagram. */
class Pen {
  constructor(
    private kind: Kind,
    private engine: Engine,
    private seen: Survey,
  ) {}

  points(pair: Readonly<Record<string, number | Float64Array>>): Points {
    return this.of(this.engine.state(pair) as State<Float64Array>);
  }

  private of(states: State<Float64Array>): Points {
    const highest = modelToDrawn('P', mostPressure * 1.000001);
    const inside = (value: number, i: number) => (states.P[i]! <= highest ? value : NaN);
    return { x: states.get(this.kind.x).map(inside), y: states.get(this.kind.y).map(inside) };
  }

  /** A little more than the window has, which a grid may miss, inside what the equation covers. */
  range(name: string): Range {
    const [low, high] = this.seen[name] ?? [0, 0];
    const margin = 0.1 * (high - low);
    const [least, most] = {
      T: [modelToDrawn('T', 260.01), modelToDrawn('T', 2499)],
      h: [-Infinity, Infinity],
      s: [-Infinity, Infinity],
    }[name]!;
    return [Math.max(low - margin, least!), Math.min(high + margin, most!)];
  }

  pressures(count: number): Float64Array {
    const [low, high] = this.seen.P!;
    return geometric(
      Math.max(low / 2, modelToDrawn('P', 1e-7)),
      Math.min(high * 2, modelToDrawn('P', mostPressure)),
      count,
    );
  }

  /** Of a quality, close together near the critical point. */
  saturated(level: number): Points {
    const [low, high] = this.range('T');
    const bottom = Math.max(low, modelToDrawn('T', 273.16));
    const top = Math.min(high, this.engine.CritT());
    if (!(bottom < top)) return { x: new Float64Array(), y: new Float64Array() };
    const T = spaced(1, 0, 200).map(part => top - (top - bottom) * part * part);
    if (top === this.engine.CritT()) T[199] = top - (top - bottom) * 1e-6;
    return this.points({ T, x: filled(200, level) });
  }

  critical(): Points {
    const T = this.engine.CritT() - 1e-6 * (this.engine.CritT() - modelToDrawn('T', 273.16));
    const both = this.points({
      T: filled(2, T),
      x: Float64Array.of(modelToDrawn('x', 0), modelToDrawn('x', 1)),
    });
    const middle = (values: Float64Array) => Float64Array.of((values[0]! + values[1]!) / 2);
    return { x: middle(both.x), y: middle(both.y) };
  }

  isobar(P: number): Points {
    const [low, high] = this.range('h');
    const within = [...spaced(low, high, 300)];
    if (P < this.engine.CritP()) {
      // with the corners on the saturation line
      const x = Float64Array.of(modelToDrawn('x', 0), modelToDrawn('x', 1));
      const corners = this.engine.state({ P: filled(2, P), x }) as State<Float64Array>;
      within.push(...corners.h.filter(h => h > low && h < high));
      within.sort((a, b) => a - b);
    }
    return this.points({ P: filled(within.length, P), h: Float64Array.from(within) });
  }

  isotherm(T: number): Points {
    const P = this.pressures(240).reverse();
    if (T >= this.engine.CritT()) return this.points({ P, T: filled(P.length, T) });
    let boiling: number;
    try {
      boiling = this.engine.PSatT(T);
    } catch {
      return this.points({ P, T: filled(P.length, T) }); // below the triple point
    }
    const one = (side: Float64Array) => this.points({ P: side, T: filled(side.length, T) });
    const x = spaced(modelToDrawn('x', 0), modelToDrawn('x', 1), 30);
    const across = this.points({ T: filled(30, T), x });
    if ('P' in this.kind.families) across.x.fill(NaN); // where an isotherm is an isobar
    return joined(
      one(P.filter(p => p > boiling * 1.00001)),
      across,
      one(Float64Array.from([boiling * 0.9998, ...P.filter(p => p < boiling * 0.9997)])),
    );
  }

  along(name: string, level: number): Points {
    const P = this.pressures(300);
    return this.points({ P, [name]: filled(P.length, level) });
  }

  isochore(v: number): Points {
    const T = spaced(...this.range('T'), 300);
    return this.points({ T, v: filled(T.length, v) });
  }
}

const lineOf: Readonly<Record<string, (pen: Pen, level: number) => Points>> = {
  P: (pen, level) => pen.isobar(level),
  T: (pen, level) => pen.isotherm(level),
  x: (pen, level) => pen.saturated(level),
  v: (pen, level) => pen.isochore(level),
  h: (pen, level) => pen.along('h', level),
  s: (pen, level) => pen.along('s', level),
};

const joined = (...parts: Points[]): Points => ({
  x: Float64Array.from(parts.flatMap(part => [...part.x])),
  y: Float64Array.from(parts.flatMap(part => [...part.y])),
});
