// Every property of the state, and the saturated liquid and vapour beside it.
import { computed } from '@preact/signals';
import { convert, Engine, type State } from 'calvex/load';

import {
  capital,
  groups,
  letterRow,
  pretty,
  properties,
  propertyOf,
  reasonOf,
  show,
  steam,
  unitName,
} from '../engine.ts';
import { useLater } from '../shell/later.ts';
import { warnings } from './trace.tsx';

const critical = computed(() => {
  const model = new Engine();
  return { P: model.CritP(), T: model.CritT(), rho: model.CritR() };
});

/** What engineers call a state, by its properties in model units: the engine's "supercritical" has all
 * that is above one of the critical values. */
export function phaseName(
  phase: string,
  { P, T, rho, x }: Record<'P' | 'T' | 'rho' | 'x', number>,
): string {
  if (phase === '') return '';
  if (phase === 'two-phase') {
    return x === 0 ? 'saturated liquid' : x === 1 ? 'saturated vapour' : 'wet steam';
  }
  const { P: pressure, T: temperature, rho: density } = critical.value;
  if (T >= temperature) return P >= pressure ? 'supercritical fluid' : 'superheated vapour';
  return rho > density ? 'compressed liquid' : 'superheated vapour';
}

/** The same in a sentence, of a mixture with its quality. */
export function phaseText(state: State, digits = 10): string {
  const inModel = (name: string) => {
    const { group } = properties[name]!;
    return convert(group, state.get(name), state.unit(name), groups[group]!.modelUnit);
  };
  const x = inModel('x');
  const name = phaseName(state.phase, {
    P: inModel('P'),
    T: inModel('T'),
    rho: inModel('rho'),
    x,
  });
  const fraction =
    name === 'wet steam' ? `, x = ${show(x, digits)} (${show(100 * x, digits)} % vapour)` : '';
  return capital(name) + fraction;
}

/** A mixture has no more than its eight properties; of one phase the phase says the quality. */
export const shown = (state: State) =>
  state
    .all()
    .filter(row => (state.phase === 'two-phase' ? !Number.isNaN(row.value) : row.name !== 'x'));

export function Properties({ state }: { state: State }) {
  const later = useLater();
  return (
    <section aria-labelledby="properties-title">
      <h2 id="properties-title" class="phase">
        {phaseText(state)}
      </h2>
      {later &&
        warnings.value.map(text => (
          <p key={text} class="warning">
            {text}
          </p>
        ))}
      <table class="properties">
        <caption class="unseen">Properties of the state</caption>
        <thead class="unseen">
          <tr>
            <th scope="col">Property</th>
            <th scope="col">Letter</th>
            <th scope="col">Value</th>
            <th scope="col">Unit</th>
          </tr>
        </thead>
        <tbody>
          {shown(state).map(row => (
            <tr key={row.name} data-letter={row.letter}>
              <th scope="row">{capital(row.words)}</th>
              <td class="letter">{row.name}</td>
              {row.reason ? (
                <td class="why" colSpan={2}>
                  {row.reason}
                </td>
              ) : (
                <>
                  <td class="number" data-value={row.value}>
                    {show(row.value)}
                  </td>
                  <td class="unit">{pretty(row.unit)}</td>
                </>
              )}
            </tr>
          ))}
        </tbody>
      </table>
    </section>
  );
}

/** What both ends of a tie line have. */
const saturated = ['V', 'R', 'H', 'S', 'U'];

export function Saturation({ state }: { state: State }) {
  let phases: State[];
  let at: string;
  try {
    phases = [0, 1].map(end => steam.value.state({ P: state.P, x: end * fullQuality() }));
    at =
      `${show(phases[0]!.P)} ${pretty(unitName(letterRow('P').group))}, ` +
      `${show(phases[0]!.T)} ${pretty(unitName(letterRow('T').group))}`;
  } catch (failure) {
    return (
      <section class="saturation" aria-labelledby="saturation-title">
        <h2 id="saturation-title">Saturation at this pressure</h2>
        <p class="quiet">{reasonOf(failure)}</p>
      </section>
    );
  }
  return (
    <section class="saturation" aria-labelledby="saturation-title">
      <h2 id="saturation-title">Saturation at this pressure</h2>
      <table class="properties">
        <caption>{at}</caption>
        <thead>
          <tr>
            <td />
            <th scope="col">Liquid</th>
            <th scope="col">Vapour</th>
            <th scope="col">Unit</th>
          </tr>
        </thead>
        <tbody>
          {saturated.map(letter => {
            const { name, words, group } = propertyOf(letter);
            return (
              <tr key={letter}>
                <th scope="row">{capital(words)}</th>
                {phases.map((phase, i) => (
                  <td key={i} class="number">
                    {show(phase.get(name), 8)}
                  </td>
                ))}
                <td class="unit">{pretty(unitName(group))}</td>
              </tr>
            );
          })}
        </tbody>
      </table>
    </section>
  );
}

/** All vapour in the unit of qualities: 1, or 100 %. */
export const fullQuality = (): number => (unitName(letterRow('Q').group) === '%' ? 100 : 1);
