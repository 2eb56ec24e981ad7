// A number that one types, with its unit beside it and what is wrong with it below.
import { useId } from 'preact/hooks';

import { put } from './address.ts';
import { chooseUnits, groups, keyword, pretty, unitName } from './engine.ts';
import type { Quantity } from './engine.ts';

/** The units of a quantity; choosing one chooses it everywhere. */
export function UnitChoice({ group, label }: { group: number; label: string }) {
  const now = unitName(group);
  const { units } = groups[group]!;
  const known = units.map(unit => unit.name);
  // Of two ways to write a unit, m³ and m^3, one is enough.
  const names = [...new Set([now, ...known])]
    .sort((a, b) => known.indexOf(a) - known.indexOf(b))
    .filter(
      (name, i, all) =>
        name === now || all.findIndex(other => pretty(other) === pretty(name)) === i,
    );
  if (names.length < 2) return <span class="unit">{pretty(now)}</span>;
  return (
    <select
      class="unit"
      aria-label={`Unit of ${label}`}
      value={now}
      onChange={event => chooseUnits({ [keyword(group)]: event.currentTarget.value })}
    >
      {names.map(name => (
        <option key={name} value={name}>
          {pretty(name) || 'fraction'}
        </option>
      ))}
    </select>
  );
}

interface Props extends Quantity {
  /** The key of the address that has the text. No name of the input: as "U" it would be a property of
   * its form, where others keep their own. */
  name: string;
  label: preact.ComponentChildren;
  text: string;
  hint?: string;
  trouble?: string;
  withoutUnits?: boolean;
}

export function Field({ name, label, text, hint, trouble, group, words, withoutUnits }: Props) {
  const id = useId();
  const told = [hint && `${id}-hint`, trouble && `${id}-trouble`].filter(Boolean).join(' ');
  return (
    <div class={trouble ? 'field wrong' : 'field'}>
      <div class="named">
        <label for={id}>{label}</label>
        {hint && (
          <span class="hint" id={`${id}-hint`}>
            {hint}
          </span>
        )}
      </div>
      <div class="typed">
        <input
          id={id}
          data-key={name}
          type="text"
          inputMode="text"
          autocomplete="off"
          spellcheck={false}
          value={text}
          aria-invalid={trouble ? 'true' : undefined}
          aria-describedby={told || undefined}
          onInput={event => put({ [name]: event.currentTarget.value })}
        />
        {group >= 0 && !withoutUnits && <UnitChoice group={group} label={words} />}
      </div>
      {trouble && (
        <p class="trouble" id={`${id}-trouble`}>
          {trouble}
        </p>
      )}
    </div>
  );
}
