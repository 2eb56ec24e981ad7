// A diagram as one sees it: small beside a state, or whole with zoom, readout and keyboard.
import type { State } from 'calvex/load';
import { useId, useLayoutEffect, useMemo, useRef, useState } from 'preact/hooks';

import { address, own, value } from '../address.ts';
import { answer } from '../state/inputs.ts';
import { phaseText } from '../state/properties.tsx';
import { draw, wholeView, type Drawing, type View } from './drawing.ts';
import { firstKind, kinds, roomFor, toDrawn, drawn, type Kind } from './kinds.ts';
import { processPath, type Process } from './process.ts';

const margin = { left: 68, right: 14, top: 12, bottom: 44 };
const smallMargin = { left: 54, right: 8, top: 8, bottom: 40 };

export const kindNow = (): Kind =>
  own(kinds, address.value.page === 'diagram' ? address.value.item : '') ??
  own(kinds, value('kind')) ??
  kinds[firstKind]!;
export const kindName = (): string =>
  Object.entries(kinds).find(([, kind]) => kind === kindNow())![0];

/** The families of lines that are not shown, and those that are. */
export const hiddenNow = (kind: Kind): string[] =>
  value('without', kind.without).split(',').filter(Boolean);
export const familiesNow = (kind: Kind): string[] =>
  Object.keys(kind.families).filter(family => !hiddenNow(kind).includes(family));

export function viewNow(): View {
  const [k, x, y] = value('zoom').split(',').map(Number);
  const within = (low: number, value: number, high: number) => value >= low && value <= high;
  return within(1, k!, 200) && within(0, x!, 1) && within(0, y!, 1)
    ? { k: k!, x: x!, y: y! }
    : wholeView;
}

/** The width that an element has, as it changes. */
function useWidth(element: { current: Element | null }): number {
  const [width, setWidth] = useState(0);
  useLayoutEffect(() => {
    const measure = () => setWidth(Math.floor(element.current?.getBoundingClientRect().width ?? 0));
    measure();
    const watch = new ResizeObserver(measure);
    watch.observe(element.current!);
    return () => watch.disconnect();
  }, []);
  return width;
}

export interface Surface {
  svg: SVGSVGElement;
  /** The plot without its margins. */
  frame: SVGRectElement;
  lines: SVGGElement;
  over: SVGGElement;
}

interface Props {
  small?: boolean;
  kind?: Kind;
  process?: Process;
  /** What the whole diagram adds: its keys and pointers, and what lies over the lines. */
  over?: preact.ComponentChildren;
  onDrawn?: (surface: Surface, drawing: Drawing) => () => void;
}

export function Diagram({
  small = false,
  kind: wanted = kindNow(),
  process,
  over,
  onDrawn,
}: Props) {
  const { state } = answer.value;
  const marked = process ? process.points.map(point => point.state) : state ? [state] : [];
  const kind = small ? roomFor(wanted, marked) : wanted;
  const box = useRef<HTMLDivElement>(null),
    plot = useRef<SVGRectElement>(null);
  const svg = useRef<SVGSVGElement>(null),
    lines = useRef<SVGGElement>(null);
  const overlay = useRef<SVGGElement>(null);
  const id = useId().replaceAll(':', '');
  const width = useWidth(box);
  const around = small ? smallMargin : margin;
  const height = Math.round(Math.min(Math.max(width * 0.62, small ? 200 : 320), small ? 300 : 640));
  const view = small ? wholeView : viewNow();
  const families = familiesNow(kind);
  const engine = drawn.value;
  const drawing = useMemo(
    () =>
      width < 120
        ? undefined
        : draw(
            kind,
            view,
            width - around.left - around.right,
            height - around.top - around.bottom,
            small ? families.filter(family => family !== 'v') : families,
            small ? 9 : 11,
          ),
    [wanted, kind.window.join(), engine, width, height, view.k, view.x, view.y, families.join()],
  );
  useLayoutEffect(() => {
    if (!drawing) return undefined;
    lines.current!.removeAttribute('transform');
    overlay.current!.removeAttribute('transform');
    return onDrawn?.(
      {
        svg: svg.current!,
        frame: plot.current!,
        lines: lines.current!,
        over: overlay.current!,
      },
      drawing,
    );
  }, [drawing, onDrawn]);

  const described = state && !process ? `The state is marked. ${phaseText(state)}.` : '';
  return (
    <div class={small ? 'diagram small' : 'diagram'} ref={box}>
      {drawing && (
        <svg
          ref={svg}
          class="plot"
          role="img"
          aria-labelledby={`${id}-t ${id}-d`}
          width={width}
          height={height}
          viewBox={`0 0 ${width} ${height}`}
          {...(small ? {} : { tabindex: 0 })}
        >
          <title id={`${id}-t`}>{kind.title}</title>
          <desc id={`${id}-d`}>
            {`${drawing.titles.y} over ${drawing.titles.x}, with the saturation line, `}
            {`isolines and their labels. ${described}`}
          </desc>
          <defs>
            <clipPath id={`${id}-c`}>
              <rect width={drawing.width} height={drawing.height} />
            </clipPath>
          </defs>
          <g transform={`translate(${around.left},${around.top})`}>
            <Axes drawing={drawing} left={around.left} />
            <g clip-path={`url(#${id}-c)`}>
              <g ref={lines}>
                {drawing.paths.map(({ family, d }) => (
                  <path key={family} class={`line of-${family}`} d={d} />
                ))}
                <path class="dome" d={drawing.dome} />
                <path class="critical" d={drawing.critical} />
              </g>
              <g class="labels">
                {drawing.labels.map((label, i) => (
                  <g
                    key={i}
                    class={`label of-${label.family}`}
                    transform={`translate(${label.x.toFixed(1)},${label.y.toFixed(1)}) rotate(${label.angle.toFixed(1)})`}
                  >
                    <rect x={-label.width / 2} y={-6} width={label.width} height={12} />
                    <text dy="0.34em">{label.text}</text>
                  </g>
                ))}
              </g>
              <g ref={overlay}>
                {process && <path class="process" d={processPath(kind, drawing, process)} />}
                {!process && state && <Dot kind={kind} drawing={drawing} state={state} />}
              </g>
              {process && <Marks kind={kind} drawing={drawing} process={process} />}
              {over}
            </g>
            <rect class="frame" ref={plot} width={drawing.width} height={drawing.height} />
          </g>
        </svg>
      )}
    </div>
  );
}

function Dot({ kind, drawing, state }: { kind: Kind; drawing: Drawing; state: State }) {
  const x = drawing.x(toDrawn(kind.x, state.get(kind.x)));
  const y = drawing.y(toDrawn(kind.y, state.get(kind.y)));
  if (!Number.isFinite(x) || !Number.isFinite(y)) return null;
  return <path class="state-dot" d={`M${x.toFixed(2)},${y.toFixed(2)}h0.01`} />;
}

/** The states of a process with their names, each where it covers no other and no state. */
function Marks({ kind, drawing, process }: { kind: Kind; drawing: Drawing; process: Process }) {
  const places = process.points.map(({ name, state }) => ({
    name,
    x: drawing.x(toDrawn(kind.x, state.get(kind.x))),
    y: drawing.y(toDrawn(kind.y, state.get(kind.y))),
  }));
  const taken = places.map(({ x, y }) => ({ x: x - 6, y: y + 6, width: 12, height: 12 }));
  return (
    <>
      {places.map(({ name, x, y }) => {
        // A name from its left end on its line, as wide as its letters are at most.
        const [width, height] = [7.5 * name.length, 12];
        const spots = [-7, 14, -20, 27, -33, 40, -46, -59].flatMap(dy =>
          [8, -8 - width, 22, 36].map(dx => ({ x: x + dx, y: y + dy, width, height })),
        );
        const free =
          spots.find(
            spot =>
              spot.x > 0 &&
              spot.x + width < drawing.width &&
              spot.y > height &&
              spot.y < drawing.height - 4 &&
              taken.every(
                other =>
                  spot.y + 2 < other.y - other.height ||
                  spot.y - height > other.y + 2 ||
                  spot.x > other.x + other.width ||
                  other.x > spot.x + width,
              ),
          ) ?? spots[0]!;
        taken.push(free);
        return (
          <g key={name} class="point" data-process={name}>
            <circle r={4.5} cx={x} cy={y} />
            <text class="name" x={free.x} y={free.y}>
              {name}
            </text>
          </g>
        );
      })}
    </>
  );
}

function Axes({ drawing, left }: { drawing: Drawing; left: number }) {
  const { width, height, ticks, titles } = drawing;
  return (
    <g class="axes">
      {ticks.x.map(({ at, text }) => (
        <g key={text} transform={`translate(${at},0)`}>
          <path class="grid" d={`M0,0V${height}`} />
          <text y={height + 16} text-anchor="middle">
            {text}
          </text>
        </g>
      ))}
      {ticks.y.map(({ at, text }) => (
        <g key={text} transform={`translate(0,${at})`}>
          <path class="grid" d={`M0,0H${width}`} />
          <text x={-8} dy="0.32em" text-anchor="end">
            {text}
          </text>
        </g>
      ))}
      <text class="title" x={width} y={height + 35} text-anchor="end">
        {titles.x}
      </text>
      <text
        class="title"
        text-anchor="end"
        dy="0.8em"
        transform={`translate(${-left},0) rotate(-90)`}
      >
        {titles.y}
      </text>
    </g>
  );
}
