// The line of a process over its states: along the isobar between two of one pressure, straight
// between others, as expansion lines are drawn.
import type { State } from 'calvex/load';

import { steam } from '../engine.ts';
import { toDrawn, type Kind } from './kinds.ts';
import type { Drawing } from './drawing.ts';

export interface Process {
  points: { name: string; state: State }[];
  /** Pairs of the points' numbers. */
  lines: [number, number][];
}

export function processPath(kind: Kind, drawing: Drawing, { points, lines }: Process): string {
  const at = (x: number, y: number) =>
    `${drawing.x(toDrawn(kind.x, x)).toFixed(2)},${drawing.y(toDrawn(kind.y, y)).toFixed(2)}`;
  return lines
    .map(([from, to]) => {
      const a = points[from]!.state,
        b = points[to]!.state;
      const way = [at(a.get(kind.x), a.get(kind.y)), at(b.get(kind.x), b.get(kind.y))];
      if (Math.abs(a.P - b.P) <= 1e-6 * Math.abs(a.P)) {
        const count = 60;
        const h = Float64Array.from(
          { length: count },
          (_, i) => a.h + ((b.h - a.h) * i) / (count - 1),
        );
        const between = steam.value.state({
          P: new Float64Array(count).fill(a.P),
          h,
        }) as State<Float64Array>;
        const x = between.get(kind.x),
          y = between.get(kind.y);
        if (!x.some(Number.isNaN) && !y.some(Number.isNaN)) {
          return `M${Array.from(x, (value, i) => at(value, y[i]!)).join('L')}`;
        }
      }
      return `M${way.join('L')}`;
    })
    .join('');
}
