// The units: chosen once for the whole page, and a value in all units of its quantity.
import { convert } from 'calvex/load';

import { put, value } from '../address.ts';
import { capital, chooseUnits, groups, pretty, readInput, show, unitName } from '../engine.ts';
import { Field, UnitChoice } from '../field.tsx';

const modelUnits = () =>
  Object.fromEntries(groups.map(group => [group.keywords[0]!, group.modelUnit]));

/** What people mostly work in, beside the units of the model. */
const sets: readonly { title: string; units: Readonly<Record<string, string>> }[] = [
  { title: 'MPa and K', units: {} },
  {
    title: 'bar and °C',
    units: {
      P: 'bara',
      T: 'C',
      'Flow Rate': 'te/h',
      Power: 'MW',
      'Heat Duty': 'MW',
      I: 'kJ/(kg.bar)',
      J: 'C/bar',
      B: '1/C',
      L: '1/bar',
      DT: 'C',
      DP: 'bara',
    },
  },
  {
    title: 'psi and °F',
    units: {
      P: 'psia',
      T: 'F',
      H: 'Btu/lb',
      S: 'Btu/(lb.R)',
      U: 'Btu/lb',
      A: 'Btu/lb',
      G: 'Btu/lb',
      V: 'ft3/lbm',
      R: 'lb/ft³',
      C: 'Btu/(lb.F)',
      W: 'ft/s',
      'Flow Rate': 'lb/h',
      'Heat Duty': 'MMBtu/h',
      Power: 'hp',
      DT: 'F',
      DP: 'psia',
      M: 'lb/(ft.h)',
      K: 'Btu/(F.ft.h)',
      X: 'lbf/ft',
      I: 'Btu/(lb.psi)',
      J: 'F/psi',
      B: '1/F',
      L: '1/psi',
      'Molecular Weight': 'lb/lb-mol',
    },
  },
];

export function UnitsView() {
  return (
    <div class="units-view">
      <section aria-labelledby="units-title">
        <h2 id="units-title">Units of this page</h2>
        <p class="quiet">
          They hold in every view and stand in the address, so a link keeps them. Numbers that were
          typed are converted.
        </p>
        <fieldset class="buttons">
          <legend class="unseen">Sets of units</legend>
          {sets.map(({ title, units }) => (
            <button
              key={title}
              type="button"
              onClick={() => chooseUnits({ ...modelUnits(), ...units })}
            >
              {title}
            </button>
          ))}
        </fieldset>
        <table class="properties">
          <caption class="unseen">The unit of each quantity</caption>
          <tbody>
            {groups.map(group => (
              <tr key={group.number}>
                <th scope="row">{group.name}</th>
                <td>
                  <UnitChoice group={group.number} label={group.name} />
                </td>
                <td class="quiet">{noticeOf(group.number)}</td>
              </tr>
            ))}
          </tbody>
        </table>
      </section>
      <Converter />
    </div>
  );
}

/** What one who chose the unit should know. */
const noticeOf = (group: number): string => {
  const now = unitName(group);
  return groups[group]!.units.find(unit => unit.name === now)?.notice ?? '';
};

function Converter() {
  const known = groups.find(group => group.keywords[0] === value('quantity', 'P')) ?? groups[0]!;
  const text = value('amount', '1');
  const quantity = { group: known.number, words: known.name };
  const reading = readInput(text, quantity);
  const rows = known.units.filter(
    (unit, i, all) => all.findIndex(other => pretty(other.name) === pretty(unit.name)) === i,
  );
  return (
    <section aria-labelledby="convert-title">
      <h2 id="convert-title">A value in all units</h2>
      <form class="inputs" aria-label="Value to convert" onSubmit={event => event.preventDefault()}>
        <div class="field">
          <label for="quantity">Quantity</label>
          <select
            id="quantity"
            value={known.keywords[0]}
            onChange={event => put({ quantity: event.currentTarget.value, amount: undefined })}
          >
            {groups.map(group => (
              <option key={group.number} value={group.keywords[0]}>
                {group.name}
              </option>
            ))}
          </select>
        </div>
        <Field name="amount" label="Value" text={text} {...quantity} trouble={reading.trouble} />
      </form>
      {known.notice && <p class="quiet">{known.notice}</p>}
      {reading.value !== undefined && (
        <table class="properties">
          <caption class="unseen">{capital(known.name)} in all units</caption>
          <tbody>
            {rows.map(unit => (
              <tr key={unit.name}>
                <th scope="row">{pretty(unit.name) || 'fraction'}</th>
                <td class="number" data-unit={unit.name}>
                  {show(convert(known.number, reading.value, unitName(known.number), unit.name))}
                </td>
              </tr>
            ))}
          </tbody>
        </table>
      )}
    </section>
  );
}
