// Pointer, fingers and keys on a diagram.
import { pointer, select } from 'd3-selection';
import { zoom, zoomIdentity, zoomTransform, type D3ZoomEvent, type ZoomTransform } from 'd3-zoom';

import type { Surface } from './diagram.tsx';
import { transformOf, type Drawing, type View } from './drawing.ts';
import type { Spot } from './readout.tsx';

interface Deeds {
  /** The pointer is there; nowhere. */
  look(spot: Spot | undefined): void;
  /** The same for those who do not see it. */
  tell(spot: Spot): void;
  zoomed(transform: ZoomTransform): void;
  take(spot: Spot): void;
}

export interface Zoomer {
  by(factor: number): void;
  stop(): void;
}

export function handle(
  { svg, frame, lines, over }: Surface,
  { width, height }: Drawing,
  view: View,
  pointed: Spot | undefined,
  deeds: Deeds,
): Zoomer {
  const origin = transformOf(view, width, height);
  let moved = false;
  // While it moves, what is drawn is moved; it is drawn anew when it rests.
  const behaviour = zoom<SVGRectElement, unknown>()
    .extent([
      [0, 0],
      [width, height],
    ])
    .translateExtent([
      [0, 0],
      [width, height],
    ])
    .scaleExtent([1, 200])
    .clickDistance(4)
    // One finger reads the diagram or scrolls the page; two zoom.
    .filter(
      (event: Event) =>
        !('touches' in event && (event as TouchEvent).touches.length < 2) &&
        !(event instanceof MouseEvent && event.button !== 0),
    )
    .on('zoom', ({ transform }: D3ZoomEvent<SVGRectElement, unknown>) => {
      const k = transform.k / origin.k;
      const change = `translate(${transform.x - k * origin.x},${transform.y - k * origin.y}) scale(${k})`;
      moved = Math.abs(k - 1) > 1e-9 || transform.x !== origin.x || transform.y !== origin.y;
      if (!moved) return;
      lines.setAttribute('transform', change);
      over.setAttribute('transform', change);
      svg.classList.add('moving');
    })
    .on('end', ({ transform }: D3ZoomEvent<SVGRectElement, unknown>) => {
      svg.classList.remove('moving');
      if (moved) deeds.zoomed(transform);
    });
  const selection = select(frame).call(behaviour).on('dblclick.zoom', null);
  behaviour.transform(selection, origin);

  const spotOf = (event: MouseEvent): Spot | undefined => {
    const [x, y] = pointer(event, frame);
    return x >= 0 && y >= 0 && x <= width && y <= height ? { x, y } : undefined;
  };
  let cursor: Spot = pointed ?? { x: width / 2, y: height / 2 };

  const by = (factor: number, dx = 0, dy = 0) => {
    const now = zoomTransform(frame);
    const k = Math.min(Math.max(now.k * factor, 1), 200),
      s = k / now.k;
    const bound = (offset: number, size: number) => Math.min(0, Math.max(size - k * size, offset));
    const x = bound(width / 2 - s * (width / 2 - now.x) + dx, width);
    const y = bound(height / 2 - s * (height / 2 - now.y) + dy, height);
    deeds.zoomed(zoomIdentity.translate(x, y).scale(k));
  };

  const key = (event: KeyboardEvent) => {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const arrow = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] }[
      event.key
    ];
    if (arrow && event.shiftKey) {
      cursor = {
        x: Math.min(Math.max(cursor.x + 8 * arrow[0]!, 0), width),
        y: Math.min(Math.max(cursor.y + 8 * arrow[1]!, 0), height),
      };
      deeds.look(cursor);
      deeds.tell(cursor);
    } else if (arrow) by(1, -60 * arrow[0]!, -60 * arrow[1]!);
    else if (event.key === '+' || event.key === '=') by(1.5);
    else if (event.key === '-') by(1 / 1.5);
    else if (event.key === '0') by(1e-9);
    else if (event.key === 'Enter') deeds.take(cursor);
    else return;
    event.preventDefault();
    event.stopPropagation();
  };
  const look = (event: PointerEvent) => {
    const spot = spotOf(event);
    if (spot) cursor = spot;
    deeds.look(spot);
  };
  // A finger that is lifted leaves what it has shown.
  const leave = (event: PointerEvent) => {
    if (event.pointerType !== 'touch') deeds.look(undefined);
  };
  const click = (event: MouseEvent) => {
    // What was read last: a click is told in whole pixels.
    if (!event.defaultPrevented) deeds.take(cursor);
  };
  svg.addEventListener('keydown', key);
  frame.addEventListener('pointermove', look);
  frame.addEventListener('pointerdown', look);
  frame.addEventListener('pointerleave', leave);
  frame.addEventListener('click', click);
  return {
    by,
    stop() {
      selection.on('.zoom', null);
      svg.removeEventListener('keydown', key);
      frame.removeEventListener('pointermove', look);
      frame.removeEventListener('pointerdown', look);
      frame.removeEventListener('pointerleave', leave);
      frame.removeEventListener('click', click);
    },
  };
}
