// The sketch of a model with the values of its streams beside their pipes.
import { letterRow, pretty, show, unitName, groups } from '../engine.ts';
import type { Sketch } from './families.tsx';
import type { Stream, Streams } from './streams.ts';

const order: readonly (keyof Stream)[] = ['P', 'T', 'H', 'Q', 'M'];
const groupOf = (letter: keyof Stream): number =>
  letter === 'M'
    ? groups.find(group => group.name === 'Mass Flow Rate')!.number
    : letterRow(letter).group;

const text = (letter: keyof Stream, value: number): string => {
  const unit = pretty(unitName(groupOf(letter)));
  return letter === 'Q' ? `x = ${show(value, 4)}${unit}` : `${show(value, 5)} ${unit}`;
};

export function SketchView({
  sketch,
  streams,
  title,
}: {
  sketch: Sketch;
  streams: Streams;
  title: string;
}) {
  const values = (stream: string) =>
    order.flatMap(letter => {
      const value = streams[stream]?.[letter];
      return value === undefined ? [] : [text(letter, value)];
    });
  const bottom = Math.max(
    220,
    ...sketch.ports.map(({ at, stream }) => at[1] + 18 * (values(stream).length + 1)),
  );
  const told = sketch.ports
    .map(port => `${port.title}: ${values(port.stream).join(', ')}`)
    .join('; ');
  return (
    <svg
      class="sketch"
      viewBox={`0 0 520 ${Math.ceil(bottom)}`}
      role="img"
      aria-label={`${title}. ${told}`}
    >
      <defs>
        <marker
          id="arrow"
          viewBox="0 0 8 8"
          refX="7"
          refY="4"
          markerWidth="8"
          markerHeight="8"
          markerUnits="userSpaceOnUse"
          orient="auto"
        >
          <path class="arrow" d="M0,0L8,4L0,8Z" />
        </marker>
      </defs>
      {sketch.ports.map(port => (
        <path key={port.stream} class="pipe" d={port.pipe} marker-end="url(#arrow)" />
      ))}
      {sketch.shapes}
      {sketch.ports.map(port => (
        <text
          key={port.stream}
          text-anchor={port.anchor}
          x={port.at[0]}
          y={port.at[1]}
          data-stream={port.stream}
        >
          <tspan class="name" x={port.at[0]}>
            {port.title}
          </tspan>
          {values(port.stream).map(value => (
            <tspan key={value} x={port.at[0]} dy="1.25em">
              {value}
            </tspan>
          ))}
        </text>
      ))}
    </svg>
  );
}
