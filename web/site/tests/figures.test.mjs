// The numbers of the guides are those of the engine.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';

import { Engine } from 'calvex';

import { root } from '../source/places.mjs';

const engine = new Engine();
const members = { enthalpy: 'H', volume: 'V', 'heat capacity': 'C', 'speed of sound': 'W' };

/** What the engine has for a row such as "3 MPa, 300 K | enthalpy, kJ/kg". */
function computed(state, quantity) {
  const line = state.match(/^saturation at ([\d.]+) K$/);
  if (line) return engine.PSatT(Number(line[1]));
  const [, P, T] = state.match(/^([\d.]+) MPa, ([\d.]+) K$/);
  return engine[`${members[quantity.split(',')[0]]}PT`](Number(P), Number(T));
}

const digits = text => text.replace(/^[0.]*/, '').replace('.', '').length;

test('The table against other formulations has the numbers of the engine, and their differences', () => {
  const text = readFileSync(`${root}docs/accuracy-and-speed.md`, 'utf8');
  const [, table] = text.match(/\| state \|.*\n\|[-|]*\|\n((?:\|.*\n)+)/);
  const rows = table
    .trim()
    .split('\n')
    .map(line =>
      line
        .split('|')
        .slice(1, -1)
        .map(cell => cell.trim()),
    );
  assert.equal(rows.length, 20);
  let state;
  const faults = rows.flatMap(([name, quantity, here, there, difference]) => {
    state = name || state;
    const value = computed(state, quantity);
    const [printed, other, percent] = [here, there, difference].map(Number.parseFloat);
    const decimals = difference.match(/\.(\d+)/)[1].length;
    const places = `${state}, ${quantity}`;
    return [
      ...(Number(value.toPrecision(digits(here))) === printed
        ? []
        : [`${places}: ${here}, engine ${value}`]),
      ...(Math.abs(100 * (value / other - 1) - percent) <= 0.51 * 10 ** -decimals
        ? []
        : [`${places}: ${difference}, computed ${100 * (value / other - 1)} %`]),
    ];
  });
  assert.deepEqual(faults, []);
});

test('Every measured row is one of the benchmark that the table names', () => {
  const sources = { calvex_bench: 'members_bench', calvex_bench_direct: 'direct_bench' };
  let count = 0;
  for (const guide of ['accuracy-and-speed', 'direct-road']) {
    const text = readFileSync(`${root}docs/${guide}.md`, 'utf8');
    const tables = text.matchAll(/<!-- measured: (\w+) -->\n[^|]*\n\|.*\n\|.*\n((?:\|.*\n)+)/g);
    for (const [, program, rows] of tables) {
      const source = readFileSync(`${root}bench/${sources[program]}.cpp`, 'utf8');
      for (const row of rows.trim().split('\n')) {
        const label = row
          .split('|')[1]
          .trim()
          .replace(/ \([\d-]+\)$/, '');
        assert.ok(source.includes(`"${label}"`), `${program} measures no ${label}`);
        ++count;
      }
    }
  }
  assert.ok(count > 30);
});
