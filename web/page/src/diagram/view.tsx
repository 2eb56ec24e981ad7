// The diagrams: choose one, look closer, read states off, take it along.
import { useCallback, useRef, useState } from 'preact/hooks';

import { address, go, put } from '../address.ts';
import { capital, properties, show } from '../engine.ts';
import { Announce } from '../shell/announce.tsx';
import { tidy } from '../numbers.ts';
import { withInputs } from '../state/inputs.ts';
import { phaseText } from '../state/properties.tsx';
import {
  Diagram,
  familiesNow,
  hiddenNow,
  kindName,
  kindNow,
  viewNow,
  type Surface,
} from './diagram.tsx';
import { viewOf, wholeView, type Drawing, type View } from './drawing.ts';
import { saveSvg, savePng } from './export.ts';
import { handle, type Zoomer } from './handling.ts';
import { familyWords, fromDrawn, kinds } from './kinds.ts';
import { Readout, stateAt, type Reader, type Spot } from './readout.tsx';

const viewText = ({ k, x, y }: View): string | undefined =>
  k <= 1.0001 ? undefined : [k, x, y].map(number => Number(number.toPrecision(6))).join(',');

export function DiagramView() {
  const kind = kindNow();
  const reader = useRef<Reader | undefined>(undefined),
    cross = useRef<SVGPathElement>(null);
  const surface = useRef<Surface | undefined>(undefined),
    zoomer = useRef<Zoomer | undefined>(undefined),
    pointed = useRef<Spot | undefined>(undefined);
  const [drawing, setDrawing] = useState<Drawing>();
  const [said, say] = useState('');

  const tell = (spot: Spot, now: Drawing) => {
    const state = stateAt(kind, now, spot);
    say(
      typeof state === 'string'
        ? 'No state here'
        : ['P', 'T', 'h', 's'].reduce(
            (text, name) =>
              `${text}, ${properties[name]!.words} ${show(state.get(name), 5)} ${state.unit(name)}`,
            phaseText(state, 5),
          ),
    );
  };

  const onDrawn = useCallback(
    (made: Surface, now: Drawing) => {
      surface.current = made;
      setDrawing(now);
      zoomer.current = handle(made, now, viewNow(), pointed.current, {
        look: spot => {
          pointed.current = spot;
          // While it moves the lines are not where the scales have them.
          if (!made.svg.classList.contains('moving')) reader.current?.move(spot);
        },
        tell: spot => tell(spot, now),
        zoomed: transform => put({ zoom: viewText(viewOf(transform, now.width, now.height)) }),
        take: spot => {
          const state = stateAt(kind, now, spot);
          if (typeof state === 'string') return;
          // Pressure and enthalpy tell a state everywhere; in the chosen units, not the diagram's.
          const texts = Object.fromEntries(
            [
              ['P', 'P'],
              ['H', 'h'],
            ].map(([letter, name]) => {
              return [letter, tidy(fromDrawn(name!, state.get(name!)))];
            }),
          );
          go(withInputs(texts));
          say(`State taken: ${phaseText(state)}`);
        },
      });
      return () => zoomer.current?.stop();
    },
    [kind],
  );

  const toggle = (family: string) => {
    const hidden = hiddenNow(kind);
    const next = hidden.includes(family)
      ? hidden.filter(name => name !== family)
      : [...hidden, family];
    put({ without: next.join() });
  };
  const name = `calvex-${kindName()}`;
  return (
    <div class="diagrams">
      <div class="tools" role="toolbar" aria-label="Diagram">
        <fieldset class="choice">
          <legend class="unseen">Which diagram</legend>
          {Object.entries(kinds).map(([key, each]) => (
            <label key={key} title={each.title}>
              <input
                type="radio"
                name="kind"
                checked={each === kind}
                onChange={() =>
                  go({
                    ...address.value,
                    page: 'diagram',
                    item: key,
                    values: { ...address.value.values, kind: key, zoom: '' },
                  })
                }
              />
              <span>{{ Ts: 'T–s', hs: 'h–s', logph: 'log p–h' }[key]}</span>
            </label>
          ))}
        </fieldset>
        <fieldset class="legend">
          <legend class="unseen">Lines</legend>
          {Object.keys(kind.families).map(family => (
            <label key={family} class={`check of-${family}`}>
              <input
                type="checkbox"
                checked={familiesNow(kind).includes(family)}
                onChange={() => toggle(family)}
              />
              {capital(familyWords[family]!)}
            </label>
          ))}
        </fieldset>
        <span class="buttons">
          <button type="button" onClick={() => zoomer.current?.by(1.5)} aria-label="Zoom in">
            +
          </button>
          <button type="button" onClick={() => zoomer.current?.by(1 / 1.5)} aria-label="Zoom out">
            −
          </button>
          <button
            type="button"
            disabled={viewNow() === wholeView}
            onClick={() => put({ zoom: undefined })}
          >
            Reset view
          </button>
          <button type="button" onClick={() => saveSvg(surface.current!.svg, name)}>
            SVG
          </button>
          <button type="button" onClick={() => savePng(surface.current!.svg, name)}>
            PNG
          </button>
          <button type="button" onClick={() => print()}>
            Print
          </button>
        </span>
      </div>
      <div class="beside">
        <div>
          <Diagram
            kind={kind}
            onDrawn={onDrawn}
            over={<path ref={cross} class="cross" data-screen="" />}
          />
          <p class="quiet keys">
            Wheel or <kbd>+</kbd> <kbd>−</kbd> zooms, dragging or the arrows move, <kbd>0</kbd>{' '}
            resets the view. <kbd>Shift</kbd> and the arrows move the cross, a click or{' '}
            <kbd>Enter</kbd> takes the state there.
          </p>
        </div>
        {drawing && (
          <Readout
            kind={kind}
            drawing={drawing}
            cross={cross}
            spot={made => {
              reader.current = made;
              made.move(pointed.current);
            }}
          />
        )}
      </div>
      <Announce text={said} />
    </div>
  );
}
