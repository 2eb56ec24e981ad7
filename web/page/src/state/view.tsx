// One state: any pair of inputs, all properties at once.
import { pairs, type State } from 'calvex/load';

import { linkTo } from '../address.ts';
import { capital, letterRow, pretty, show } from '../engine.ts';
import { Field } from '../field.tsx';
import { Diagram } from '../diagram/diagram.tsx';
import { Announce } from '../shell/announce.tsx';
import { useLater } from '../shell/later.ts';
import { answer, choosePair, inputs, lost, pair } from './inputs.ts';
import { phaseText, Properties, Saturation } from './properties.tsx';
import { Trace } from './trace.tsx';

const pairWords = (letters: string) =>
  letters
    .split('')
    .map(letter => letterRow(letter).words)
    .join(' and ');

/** What it was before the pair was chosen. */
function lostText(was: State): string {
  const [pressure, temperature, density] = ['P', 'T', 'rho'].map(
    name => `${show(was.get(name), 7)} ${pretty(was.unit(name))}`,
  );
  const phase = phaseText(was);
  return (
    `It was ${phase.charAt(0).toLowerCase()}${phase.slice(1)} at ${pressure} and ${temperature}, ` +
    `density ${density}. ${capital(pairWords(pair.value))} do not tell it: the state shown now is ` +
    'another. Another pair gives it back, until something else is typed or chosen.'
  );
}

export function StateView() {
  const { state, troubles } = answer.value;
  const was = lost.value && lostText(lost.value);
  const later = useLater();
  return (
    <div class="state">
      <form
        class="inputs"
        aria-label="Inputs of the state"
        onSubmit={event => event.preventDefault()}
      >
        <div class="field">
          <label for="pair">Given</label>
          <select
            id="pair"
            value={pair.value}
            onChange={event => choosePair(event.currentTarget.value)}
          >
            {pairs.map(letters => (
              <option key={letters} value={letters}>
                {capital(pairWords(letters))}
              </option>
            ))}
          </select>
          {was && <p class="warning">{was}</p>}
        </div>
        {inputs.value.map(input => (
          <Field
            key={input.letter}
            name={input.letter}
            text={input.text}
            group={input.group}
            words={input.words}
            trouble={troubles?.[input.letter]}
            label={
              <>
                {capital(input.words)} <i>{input.letter}</i>
              </>
            }
          />
        ))}
        <p class="quiet">A unit may stand behind a number: 100 bar, 500 °C.</p>
        <Announce
          text={
            state ? [phaseText(state), was].filter(Boolean).join('. ') : Object.values(troubles)[0]!
          }
        />
      </form>
      <div class="results">
        {state ? (
          <Properties state={state} />
        ) : (
          <section>
            <h2 class="phase none">No state</h2>
            <p class="quiet">What is wrong stands beside the field that caused it.</p>
          </section>
        )}
      </div>
      {later && (
        <aside>
          <section aria-label="The state on a diagram">
            <Diagram small />
            <a class="onward" href={linkTo('diagram')}>
              Open the diagrams
            </a>
          </section>
          {state && <Saturation state={state} />}
          <Trace />
        </aside>
      )}
    </div>
  );
}
