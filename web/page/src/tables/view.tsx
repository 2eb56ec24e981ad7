// Tables: saturation by temperature or pressure, isobars; into a spreadsheet or a file.
import { computed } from '@preact/signals';
import { useState } from 'preact/hooks';

import { address, own, put, value } from '../address.ts';
import { capital, holders, letterRow, readInput, reasonOf, show, toUser } from '../engine.ts';
import type { Quantity } from '../engine.ts';
import { Field } from '../field.tsx';
import { copy, save } from '../files.ts';
import { roundLevels, tidy } from '../numbers.ts';
import { Announce } from '../shell/announce.tsx';
import { asText, isobar, mostRows, saturation, type Table } from './rows.ts';

interface Kind {
  title: string;
  /** The letter that the rows run over. */
  by: 'T' | 'P';
  at?: 'P';
  /** In model units: what the table opens with, in about so many rows of round numbers. */
  first: { from: number; to: number; rows: number; at?: number };
}

export const kinds: Readonly<Record<string, Kind>> = {
  T: { title: 'Saturation by temperature', by: 'T', first: { from: 273.16, to: 643.16, rows: 37 } },
  P: { title: 'Saturation by pressure', by: 'P', first: { from: 0.1, to: 20, rows: 40 } },
  isobar: {
    title: 'Isobar',
    by: 'T',
    at: 'P',
    first: { from: 273.16, to: 1073.15, rows: 40, at: 1 },
  },
};

interface Wanted extends Quantity {
  key: string;
  label: string;
  text: string;
}

const kind = computed<Kind>(() => own(kinds, value('table')) ?? kinds.T!);

/** The fields of the table, in the order in which one reads them. */
const wanted = computed<Wanted[]>(() => {
  const { by, at, first } = kind.value;
  const { group, words } = letterRow(by);
  const round = roundLevels(toUser(group, first.from), toUser(group, first.to), first.rows);
  const text = (key: string, otherwise: number) => value(key, tidy(otherwise));
  const fields: Wanted[] = [
    { key: 'from', label: 'From', group, words, text: text('from', round[0]!) },
    { key: 'to', label: 'To', group, words, text: text('to', round.at(-1)!) },
    {
      key: 'step',
      label: 'Step',
      group,
      words: `step of ${words}`,
      difference: true,
      text: text('step', round[1]! - round[0]!),
    },
  ];
  if (!at) return fields;
  const fixed = letterRow(at);
  return [
    {
      key: 'at',
      label: capital(fixed.words),
      group: fixed.group,
      words: fixed.words,
      text: text('at', toUser(fixed.group, first.at!)),
    },
    ...fields,
  ];
});

/** The keys of the address that the table is made of. */
export const tableKeys = (): string[] => ['table', ...wanted.value.map(({ key }) => key)];

holders.push(() => Object.fromEntries(wanted.value.map(field => [field.key, field])));

interface Made {
  table?: Table;
  troubles: Record<string, string>;
}

const made = computed<Made>(() => {
  const troubles: Record<string, string> = {};
  const given: Record<string, number> = {};
  for (const field of wanted.value) {
    const reading = readInput(field.text, field);
    if (reading.trouble !== undefined) troubles[field.key] = reading.trouble;
    else given[field.key] = reading.value;
  }
  if (Object.keys(troubles).length > 0) return { troubles };
  const { from, to, step, at } = given as { from: number; to: number; step: number; at: number };
  if (!(step > 0)) return { troubles: { step: 'The step must be above 0.' } };
  if (to < from)
    return {
      troubles: { to: `The range ends at ${show(to)}, below its beginning at ${show(from)}.` },
    };
  if ((to - from) / step >= mostRows) {
    return { troubles: { step: `These are more than ${mostRows} rows: take a larger step.` } };
  }
  try {
    const range = { from, to, step };
    return {
      table: kind.value.at ? isobar(at, range) : saturation(kind.value.by, range),
      troubles,
    };
  } catch (failure) {
    return { troubles: { from: reasonOf(failure) } };
  }
});

function chooseKind(name: string) {
  const { values } = address.value;
  const [now, next] = [kind.value, kinds[name]!];
  // A range of temperatures is none of pressures.
  const keeps = now.by === next.by;
  put({
    table: name,
    ...(keeps ? {} : { from: undefined, to: undefined, step: undefined }),
    at: next.at ? values.at : undefined,
  });
}

const countOf = ({ rows }: Table): string => `${rows.length} row${rows.length === 1 ? '' : 's'}`;

export function TablesView() {
  const { table, troubles } = made.value;
  const [said, say] = useState('');
  const chosen = Object.keys(kinds).find(key => kinds[key] === kind.value)!;
  const name = `calvex-${chosen === 'isobar' ? chosen : `saturation-${chosen}`}`;
  const copyTable = async () => {
    say(
      (await copy(asText(table!, '\t')))
        ? 'Copied: paste it into a spreadsheet.'
        : 'The browser keeps its clipboard closed: take the CSV file.',
    );
    setTimeout(() => say(''), 4000);
  };
  return (
    <div class="tables">
      <form
        class="inputs"
        aria-label="What the table has"
        onSubmit={event => event.preventDefault()}
      >
        <div class="field">
          <label for="table">Table</label>
          <select
            id="table"
            value={chosen}
            onChange={event => chooseKind(event.currentTarget.value)}
          >
            {Object.entries(kinds).map(([key, { title }]) => (
              <option key={key} value={key}>
                {title}
              </option>
            ))}
          </select>
        </div>
        {wanted.value.map(({ key, label, ...field }) => (
          <Field
            key={key}
            name={key}
            label={label}
            {...field}
            trouble={troubles[key]}
            withoutUnits={key === 'to' || key === 'step'}
          />
        ))}
        <div class="buttons">
          <button type="button" disabled={!table} onClick={copyTable}>
            Copy
          </button>
          <button
            type="button"
            disabled={!table}
            // By the mark of its bytes a spreadsheet knows that it is UTF-8.
            onClick={() => save(`${name}.csv`, 'text/csv', `\uFEFF${asText(table!, ',')}`)}
          >
            CSV
          </button>
          <button type="button" disabled={!table} onClick={() => print()}>
            Print
          </button>
        </div>
        <output class="quiet">{said}</output>
      </form>
      {table ? (
        <Shown table={table} title={kind.value.title} />
      ) : (
        <p class="quiet">No table: what is wrong stands beside its field.</p>
      )}
      <Announce
        text={table ? `${kind.value.title}: ${countOf(table)}` : Object.values(troubles)[0]!}
      />
    </div>
  );
}

/** Columns of both phases stand under one heading. */
function Shown({ table, title }: { table: Table; title: string }) {
  const { columns, rows, missing } = table;
  const parted = columns.some(column => column.of);
  const heads = columns.filter((column, i) => columns[i - 1]?.symbol !== column.symbol);
  return (
    <section class="wide" aria-label={title}>
      {missing.map(text => (
        <p key={text} class="warning">
          {text}
        </p>
      ))}
      {rows.length === 0 ? (
        <p class="quiet">There is no row.</p>
      ) : (
        // biome-ignore lint/a11y/noNoninteractiveTabindex: what scrolls is to be reached by keyboard
        <section class="scroll" tabIndex={0} aria-label={`${title}, the table`}>
          <table class="data">
            <caption>
              {title}, {countOf(table)}
            </caption>
            <thead>
              <tr>
                {heads.map(column => (
                  <th
                    key={column.symbol}
                    scope={column.of ? 'colgroup' : 'col'}
                    colSpan={column.of ? 2 : 1}
                  >
                    {capital(column.words)} <span class="unit">{column.unit}</span>
                  </th>
                ))}
              </tr>
              {parted && (
                <tr>
                  {columns.map((column, i) =>
                    column.of ? (
                      <th key={i} scope="col" class="part">
                        {column.of}
                      </th>
                    ) : (
                      <td key={i} />
                    ),
                  )}
                </tr>
              )}
            </thead>
            <tbody>
              {rows.map((row, i) => (
                <tr key={i}>
                  {row.map((cell, k) =>
                    k === 0 ? (
                      <th key={k} scope="row" class="number">
                        {show(cell as number, 7)}
                      </th>
                    ) : (
                      <td key={k} class={typeof cell === 'number' ? 'number' : undefined}>
                        {typeof cell === 'number' ? show(cell, 7) : cell}
                      </td>
                    ),
                  )}
                </tr>
              ))}
            </tbody>
          </table>
        </section>
      )}
    </section>
  );
}
