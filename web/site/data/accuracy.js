// How far the engine is from the tables that its tests compare with: evaluations of the equations with
// 15 and 12 digits.
import { readFileSync } from 'node:fs';

import * as calvex from 'calvex';
import { root } from '../source/places.mjs';

const engine = new calvex.Engine();

function table(name) {
  const [comment, head, ...lines] = readFileSync(`${root}tests/data/${name}`, 'utf8')
    .trim()
    .split('\n');
  const names = head.split(',');
  return {
    origin: comment.replace(/^# /, '').split(';')[0],
    rows: lines.map(line =>
      Object.fromEntries(line.split(',').map((cell, i) => [names[i], Number(cell)])),
    ),
  };
}

const outOfRange = 108;

/** The relative deviations of a member from a column, over the rows that lie in its range. */
function deviation({ rows }, column, compute) {
  const all = rows.flatMap(row => {
    try {
      return Math.abs(compute(row) / row[column] - 1);
    } catch (failure) {
      if (failure.code === outOfRange) return [];
      throw failure;
    }
  });
  all.sort((a, b) => a - b);
  return { count: all.length, greatest: all.at(-1), median: all[all.length >> 1] };
}

const lettersOf = ({ rows }) => Object.keys(rows[0]);
const wordsOf = letter => calvex.letters.find(row => row.letter === letter).words;

const states = table('single-phase.csv');
const ofStates = lettersOf(states)
  .filter(letter => !'PT'.includes(letter))
  .map(letter => ({
    member: `${letter}PT`,
    words: wordsOf(letter),
    ...deviation(states, letter, row => engine[`${letter}PT`](row.P, row.T)),
  }));

// Next to the triple point enthalpy, entropy and energy of the liquid are zero, of which there is no
// relative deviation.
const line = table('saturation.csv');
const away = { ...line, rows: line.rows.filter(row => row.T > 280) };
const phases = { L: ['liquid', 0], V: ['vapour', 1] };
const ofLine = [
  { member: 'PSatT', words: 'pressure', ...deviation(line, 'P', row => engine.PSatT(row.T)) },
  { member: 'TSatP', words: 'temperature', ...deviation(away, 'T', row => engine.TSatP(row.P)) },
  ...lettersOf(line)
    .filter(name => name[1] === '_')
    .map(name => {
      const [letter, phase] = name.split('_');
      const [words, quality] = phases[phase];
      const member = `${letter}SatTQ`;
      return {
        member,
        words: `${wordsOf(letter)} of the ${words}`,
        ...deviation(away, name, row => engine[member](row.T, quality)),
      };
    }),
  { member: 'XT', words: wordsOf('X'), ...deviation(line, 'X', row => engine.XT(row.T)) },
];

const range = (rows, name) => {
  const values = rows.map(row => row[name]);
  return [Math.min(...values), Math.max(...values)];
};

export default [
  { title: 'States of one phase, from pressure and temperature', ...states, results: ofStates },
  { title: 'The saturation line', ...line, results: ofLine },
].map(({ rows, ...part }) => ({
  ...part,
  count: rows.length,
  pressures: range(rows, 'P'),
  temperatures: range(rows, 'T'),
}));
