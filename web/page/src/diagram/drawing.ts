// A diagram of some size at some magnification, as paths, labels and ticks in pixels.
import { scaleLinear, scaleLog } from 'd3-scale';
import { line as path } from 'd3-shape';
import { zoomIdentity, type ZoomTransform } from 'd3-zoom';

import { capital, pretty, properties, show } from '../engine.ts';
import { drawn, modelToDrawn, gauge, type Kind } from './kinds.ts';
import { Labeller, type Label } from './labels.ts';
import { criticalPoint, dome, levels, line, survey, type Points } from './lines.ts';

/** From values to pixels and back. */
export interface Scale {
  (value: number): number;
  invert(pixel: number): number;
  domain(): number[];
  ticks(count: number): number[];
}

export interface Drawing {
  width: number;
  height: number;
  x: Scale;
  y: Scale;
  ticks: { x: Tick[]; y: Tick[] };
  titles: { x: string; y: string };
  paths: { family: string; d: string }[];
  dome: string;
  critical: string;
  labels: Label[];
}
export interface Tick {
  at: number;
  text: string;
}

/** The part of the plane that is looked at: how much larger, and what is in the middle, from 0 to 1. */
export interface View {
  k: number;
  x: number;
  y: number;
}
export const wholeView: View = { k: 1, x: 0.5, y: 0.5 };

export const transformOf = ({ k, x, y }: View, width: number, height: number): ZoomTransform =>
  zoomIdentity.translate(width / 2 - k * x * width, height / 2 - k * y * height).scale(k);
export const viewOf = ({ k, x, y }: ZoomTransform, width: number, height: number): View => ({
  k,
  x: (width / 2 - x) / (k * width),
  y: (height / 2 - y) / (k * height),
});

/** The scales of the whole diagram. */
function scales(kind: Kind, width: number, height: number) {
  const [x0, x1] = [0, 1].map(i => modelToDrawn(kind.x, kind.window[i]!));
  const [y0, y1] = [2, 3].map(i => modelToDrawn(kind.y, kind.window[i]!));
  const up = kind.logarithmic ? scaleLog() : scaleLinear();
  return { x: scaleLinear([x0!, x1!], [0, width]), y: up.domain([y0!, y1!]).range([height, 0]) };
}

export function draw(
  kind: Kind,
  view: View,
  width: number,
  height: number,
  families: readonly string[],
  labelSize: number,
): Drawing {
  const whole = scales(kind, width, height);
  const transform = transformOf(view, width, height);
  const x: Scale = transform.rescaleX(whole.x),
    y: Scale = transform.rescaleY(whole.y);
  const range = (scale: Scale) => {
    const [a, b] = scale.domain() as [number, number];
    return [Math.min(a, b), Math.max(a, b)] as const;
  };
  const seen = survey(kind, { x: range(x), y: range(y) });
  const pixels = (points: Points): Points => ({ x: points.x.map(x), y: points.y.map(y) });
  const labeller = new Labeller(width, height, labelSize);

  const domeLine = pixels(dome(kind, seen));
  for (let i = 0; i < domeLine.x.length; i += 3) labeller.take(domeLine.x[i]!, domeLine.y[i]!);
  const paths: Drawing['paths'] = [],
    labels: Label[] = [];
  const count = Math.max(5, Math.round(width / 55));
  for (const family of families) {
    let d = '';
    for (const level of levels(family, seen, count)) {
      const points = pixels(line(kind, family, level, seen));
      d += pathOf(points);
      const label = labeller.put(family, levelText(family, level), points, kind.families[family]!);
      if (label) labels.push(label);
    }
    paths.push({ family, d });
  }
  const critical = pixels(criticalPoint(kind));
  return {
    width,
    height,
    x,
    y,
    paths,
    labels,
    dome: pathOf(domeLine),
    critical: dot(critical.x[0]!, critical.y[0]!),
    ticks: { x: ticks(x, width / 80, false), y: ticks(y, height / 50, kind.logarithmic) },
    titles: { x: axisTitle(kind.x), y: axisTitle(kind.y) },
  };
}

/** A point as a line without length: its round ends make it a dot at any magnification. */
export const dot = (x: number, y: number): string => `M${x.toFixed(2)},${y.toFixed(2)}h0.01`;

/** Far outside the page the numbers would be long and the lines nobody's. */
const pathOf = ({ x, y }: Points): string =>
  path<number>()
    .defined((_, i) => Math.abs(x[i]!) < 1e5 && Math.abs(y[i]!) < 1e5)
    .x((_, i) => x[i]!)
    .y((_, i) => y[i]!)
    .digits(1)(Array.from(x)) ?? '';

function ticks(scale: Scale, count: number, logarithmic: boolean): Tick[] {
  let values = scale.ticks(Math.max(2, Math.round(count)));
  if (logarithmic && values.length > 2 * count) {
    const first = (value: number) => Number(value.toExponential()[0]);
    const some = values.filter(value => [1, 2, 5].includes(first(value)));
    values = some.length > 2 * count ? values.filter(value => first(value) === 1) : some;
  }
  return values.map(value => ({ at: scale(value), text: show(value, 6) }));
}

const unitOf = (name: string): string => pretty(drawn.value.unit(properties[name]!.group));

function axisTitle(name: string): string {
  const unit = unitOf(name);
  const absolute = name === 'P' && gauge.value ? ' (absolute)' : '';
  return `${capital(properties[name]!.words)}${unit && `, ${unit}`}${absolute}`;
}

function levelText(family: string, level: number): string {
  const unit = unitOf(family);
  return unit ? `${show(level, 6)} ${unit}` : `${family} = ${show(level, 6)}`;
}
