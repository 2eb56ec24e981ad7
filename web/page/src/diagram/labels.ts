// Writes on lines: where a line is straight enough and the page is free.
import type { Points } from './lines.ts';

export interface Label {
  text: string;
  family: string;
  x: number;
  y: number;
  angle: number;
  width: number;
}

interface Spot {
  x: number;
  y: number;
}

/** The place of labels on a page of some size, each kept clear of those before it. */
export class Labeller {
  private taken: Spot[] = [];

  constructor(
    private width: number,
    private height: number,
    private size: number,
  ) {}

  /** Keeps a place free. */
  take(x: number, y: number) {
    this.taken.push({ x, y });
  }

  /** A label near `place`, from 0 to 1, of the visible part of a line in pixels; none where there is
   * no room. */
  put(family: string, text: string, line: Points, place: number): Label | undefined {
    const part = this.longest(line);
    if (part.length < 2) return undefined;
    const lengths = [0];
    for (let i = 1; i < part.length; ++i) {
      lengths.push(
        lengths[i - 1]! + Math.hypot(part[i]!.x - part[i - 1]!.x, part[i]!.y - part[i - 1]!.y),
      );
    }
    const whole = lengths.at(-1)!;
    const width = 0.56 * this.size * text.length + 6;
    if (whole < 1.6 * width) return undefined;
    for (const shift of [0, -0.06, 0.06, -0.12, 0.12, -0.2, 0.2, -0.3, 0.3, -0.4, -0.5, -0.6]) {
      const at = (place + shift) * whole;
      if (at < 0.6 * width || at > whole - 0.6 * width) continue;
      const [a, middle, b] = [-1, 0, 1].map(side => along(part, lengths, at + (side * width) / 2));
      const label = this.fits(a!, middle!, b!, width);
      if (label) return { text, family, width: width - 4, ...label };
    }
    return undefined;
  }

  private fits(a: Spot, middle: Spot, b: Spot, width: number) {
    const dx = b.x - a.x,
      dy = b.y - a.y,
      chord = Math.hypot(dx, dy);
    if (chord < 0.8 * width) return undefined;
    const bend = Math.abs(dx * (middle.y - a.y) - dy * (middle.x - a.x)) / chord;
    if (bend > 0.35 * this.size) return undefined;
    const spots = Array.from({ length: 7 }, (_, i) => ({
      x: a.x + (dx * i) / 6,
      y: a.y + (dy * i) / 6,
    }));
    const margin = 0.5 * this.size;
    if (
      spots.some(
        ({ x, y }) =>
          x < margin || x > this.width - margin || y < margin || y > this.height - margin,
      )
    )
      return undefined;
    if (
      spots.some(spot =>
        this.taken.some(other => Math.hypot(spot.x - other.x, spot.y - other.y) < 1.25 * this.size),
      )
    )
      return undefined;
    this.taken.push(...spots);
    const degrees = (Math.atan2(dy, dx) * 180) / Math.PI;
    return { x: middle.x, y: middle.y, angle: ((degrees + 90 + 360) % 180) - 90 };
  }

  /** The longest stretch of the line that can be seen. */
  private longest({ x, y }: Points): Spot[] {
    let best: Spot[] = [],
      bestLength = 0,
      now: Spot[] = [],
      length = 0;
    for (let i = 0; i <= x.length; ++i) {
      const spot = { x: x[i] ?? NaN, y: y[i] ?? NaN };
      const seen = spot.x > 0 && spot.x < this.width && spot.y > 0 && spot.y < this.height;
      if (seen) {
        const last = now.at(-1);
        if (last) length += Math.hypot(spot.x - last.x, spot.y - last.y);
        now.push(spot);
      } else {
        if (length > bestLength) [best, bestLength] = [now, length];
        [now, length] = [[], 0];
      }
    }
    return best;
  }
}

function along(part: Spot[], lengths: number[], at: number): Spot {
  let high = lengths.findIndex(length => length >= at);
  if (high < 1) high = high === 0 ? 1 : part.length - 1;
  const a = part[high - 1]!,
    b = part[high]!;
  const share = (at - lengths[high - 1]!) / Math.max(lengths[high]! - lengths[high - 1]!, 1e-9);
  return { x: a.x + (b.x - a.x) * share, y: a.y + (b.y - a.y) * share };
}
