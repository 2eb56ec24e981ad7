// Equipment: a form for each model of the member table, its sketch, its results, its process and the
// lines of other faces that compute the same.
import { useState } from 'preact/hooks';

import { address, go } from '../address.ts';
import { capital, pretty, show, unitName } from '../engine.ts';
import { Field } from '../field.tsx';
import { copy } from '../files.ts';
import { apart, withoutDust } from '../numbers.ts';
import { Diagram } from '../diagram/diagram.tsx';
import { kinds } from '../diagram/kinds.ts';
import type { Process } from '../diagram/process.ts';
import { Announce } from '../shell/announce.tsx';
import { families, familyOf, type Sketch } from './families.tsx';
import { answer, limitsText, model, modelsNow, typed } from './model.ts';
import { SketchView } from './sketch.tsx';
import { snippets } from './snippets.ts';
import { stateOf, streamsOf, type Streams } from './streams.ts';

function choose(name: string) {
  const values = Object.fromEntries(
    Object.entries(address.value.values).filter(([key]) => !key.startsWith('in.')),
  );
  go({ page: 'equipment', item: name, values });
}

/** The states that are known, and between them the lines of the model's process. */
function processOf(sketch: Sketch, streams: Streams): Process | undefined {
  const points = sketch.ports.flatMap(({ stream, title }) => {
    const state = streams[stream] && stateOf(streams[stream]);
    return state ? [{ name: title, stream, state }] : [];
  });
  const place = (stream: string) => points.findIndex(point => point.stream === stream);
  const lines = sketch.lines
    .map(([from, to]) => [place(from), place(to)] as [number, number])
    .filter(([from, to]) => from >= 0 && to >= 0);
  return lines.length > 0 ? { points, lines } : undefined;
}

export function EquipmentView() {
  const member = model.value;
  const { results, warnings, troubles, trouble } = answer.value;
  const values = Object.fromEntries([
    ...(results ?? []).map(({ name, value }) => [name, value] as const),
    ...typed.value.flatMap(({ info, value }) =>
      value === undefined ? [] : [[info.name, value] as const],
    ),
  ]);
  const streams = streamsOf(member, values);
  const sketch = familyOf(member)?.sketch(member);
  const process = results && sketch && processOf(sketch, streams);
  const told = results
    ? results
        .slice(0, 3)
        .map(
          ({ words, value, group }) =>
            `${words} ${show(value, 5)} ${group < 0 ? '' : unitName(group)}`,
        )
        .join(', ')
    : (trouble ?? Object.values(troubles)[0] ?? '');
  return (
    <div class="equipment">
      <form
        class="inputs"
        aria-label={`Inputs of ${member.name}`}
        onSubmit={event => event.preventDefault()}
      >
        <div class="field">
          <label for="model">Model</label>
          <select
            id="model"
            value={member.name}
            onChange={event => choose(event.currentTarget.value)}
          >
            {families.map(family => (
              <optgroup key={family.title} label={family.title}>
                {modelsNow()
                  .filter(each => familyOf(each) === family)
                  .map(each => (
                    <option key={each.name} value={each.name}>
                      {each.name} – {each.title}
                    </option>
                  ))}
              </optgroup>
            ))}
          </select>
        </div>
        {typed.value.map(({ info, key, text }) => (
          <Field
            key={key}
            name={key}
            text={text}
            group={info.group}
            words={info.words}
            trouble={troubles[info.name]}
            hint={limitsText(info)}
            label={
              <>
                {capital(info.words)} <i>{info.name}</i>
              </>
            }
          />
        ))}
        {trouble && (
          <p class="trouble" role="alert">
            {trouble}
          </p>
        )}
        <Announce text={told} />
      </form>
      <div class="results">
        <section aria-labelledby="model-title">
          <h2 id="model-title">{capital(member.title)}</h2>
          {member.notes && <p class="quiet notes">{member.notes}</p>}
          <a class="onward" href={`docs/members/${member.name}.html`}>
            All about {member.name}
          </a>
          {sketch && <SketchView sketch={sketch} streams={streams} title={capital(member.title)} />}
        </section>
        <section aria-labelledby="results-title">
          <h2 id="results-title">Results</h2>
          {warnings.map(text => (
            <p key={text} class="warning">
              {text}
            </p>
          ))}
          {results ? (
            <table class="properties">
              <caption class="unseen">Results of {member.name}</caption>
              <tbody>
                {results.map(({ name, words, value, group }) => (
                  <tr key={name}>
                    <th scope="row">{capital(words)}</th>
                    <td class="letter">{name}</td>
                    <td class="number" data-result={name} data-value={value}>
                      {show(value)}
                    </td>
                    <td class="unit">{group < 0 ? '' : pretty(unitName(group))}</td>
                  </tr>
                ))}
              </tbody>
            </table>
          ) : (
            <p class="quiet">No results: what is wrong stands beside the inputs.</p>
          )}
        </section>
      </div>
      <aside>
        {process && (
          <section aria-labelledby="process-title">
            <h2 id="process-title">Process</h2>
            <Diagram small kind={kinds.hs!} process={process} />
          </section>
        )}
        {results && <Snippets />}
      </aside>
    </div>
  );
}

function Snippets() {
  const all = snippets(
    model.value,
    // What was typed in another unit was converted.
    typed.value.map(({ text, value }) => (apart(text)?.unit ? withoutDust(value!) : value!)),
    unitName,
  );
  const [shown, show] = useState(0);
  const [copied, setCopied] = useState(false);
  const { code } = all[shown]!;
  return (
    <section class="snippets" aria-labelledby="snippets-title">
      <h2 id="snippets-title">The same elsewhere</h2>
      <fieldset class="choice">
        <legend class="unseen">Language</legend>
        {all.map((each, i) => (
          <label key={each.title}>
            <input type="radio" name="language" checked={i === shown} onChange={() => show(i)} />
            <span>{each.title}</span>
          </label>
        ))}
      </fieldset>
      <pre>
        <code>{code}</code>
      </pre>
      <button
        type="button"
        onClick={async () => {
          setCopied(await copy(code));
          setTimeout(() => setCopied(false), 2500);
        }}
      >
        {copied ? 'Copied' : 'Copy'}
      </button>
    </section>
  );
}
