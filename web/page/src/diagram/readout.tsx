// What the state under the pointer is: the diagram's pair through the engine, once a frame, into cells
// that stay where they are.
import type { State } from 'calvex/load';
import { useEffect, useRef } from 'preact/hooks';

import { capital, pretty, properties, reasonOf, show } from '../engine.ts';
import { phaseText, shown } from '../state/properties.tsx';
import type { Drawing } from './drawing.ts';
import { drawn, type Kind } from './kinds.ts';

export interface Spot {
  x: number;
  y: number;
}

/** What a pointer can tell apart. */
const digits = 6;

/** The state at a place of a diagram, or why there is none. */
export function stateAt(kind: Kind, drawing: Drawing, { x, y }: Spot): State | string {
  try {
    return drawn.value.state({ [kind.x]: drawing.x.invert(x), [kind.y]: drawing.y.invert(y) });
  } catch (failure) {
    return reasonOf(failure);
  }
}

/** Keeps the table of a readout, the cross and the dot on the state under the pointer; at most once a
 * frame, whose cost the browser keeps as the measure "readout". */
export class Reader {
  private frame = 0;
  private spot: Spot | undefined;
  private cells = new Map<string, HTMLElement>();

  constructor(
    private kind: Kind,
    private drawing: Drawing,
    private table: HTMLElement,
    private cross: SVGPathElement,
  ) {
    for (const cell of table.querySelectorAll<HTMLElement>('[data-name]')) {
      this.cells.set(cell.dataset.name!, cell);
    }
  }

  move(spot: Spot | undefined) {
    this.spot = spot;
    this.frame ||= requestAnimationFrame(() => this.write());
  }

  stop() {
    cancelAnimationFrame(this.frame);
  }

  private write() {
    this.frame = 0;
    const start = performance.now();
    const { width, height } = this.drawing;
    if (!this.spot) {
      this.cross.setAttribute('d', '');
      return;
    }
    const { x, y } = this.spot;
    this.cross.setAttribute('d', `M${x},0V${height}M0,${y}H${width}`);
    const state = stateAt(this.kind, this.drawing, this.spot);
    const found = typeof state === 'string' ? undefined : state;
    this.cells.get('phase')!.textContent = found ? phaseText(found, digits) : 'No state here';
    this.cells.get('why')!.textContent = found
      ? found.phase === 'two-phase'
        ? 'Liquid and vapour are together here: what only one of them has is left out.'
        : ''
      : String(state);
    this.table.classList.toggle('nothing', !found);
    const values = new Map((found ? shown(found) : []).map(row => [row.name, row.value]));
    for (const name of Object.keys(properties)) {
      this.cells.get(name)!.textContent = show(values.get(name) ?? NaN, digits);
    }
    performance.measure('readout', { start, end: performance.now() });
    if (performance.getEntriesByName('readout').length > 600) performance.clearMeasures('readout');
  }
}

export function Readout({
  kind,
  drawing,
  spot,
  cross,
}: {
  kind: Kind;
  drawing: Drawing;
  spot: (reader: Reader) => void;
  cross: { current: SVGPathElement | null };
}) {
  const table = useRef<HTMLElement>(null);
  useEffect(() => {
    const reader = new Reader(kind, drawing, table.current!, cross.current!);
    spot(reader);
    return () => reader.stop();
  }, [kind, drawing]);
  return (
    <section class="readout nothing" ref={table} aria-label="State under the pointer">
      <h2 class="phase" data-name="phase">
        Point at the diagram
      </h2>
      <table class="properties">
        <caption class="unseen">Properties of the state under the pointer</caption>
        <colgroup>
          <col class="words" />
          <col />
          <col class="units" />
        </colgroup>
        <tbody>
          {Object.values(properties).map(({ name, words, group }) => (
            <tr key={name}>
              <th scope="row">{capital(words)}</th>
              <td class="number" data-name={name}>
                –
              </td>
              <td class="unit">{group < 0 ? '' : pretty(drawn.value.unit(group))}</td>
            </tr>
          ))}
        </tbody>
      </table>
      <p class="quiet" data-name="why" />
    </section>
  );
}
