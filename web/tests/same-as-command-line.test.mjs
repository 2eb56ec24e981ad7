// Two forms of one engine: random calls of every member answer as the command line does, in numbers
// and in the words of a failure.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { CalvexError, Engine, members } from 'calvex';

const program = fileURLToPath(new URL('../../build/release/apps/calvex', import.meta.url));
const tolerance = 1e-12;

// Lehmer's generator with the constants of Park and Miller, 1988.
let seed = Number(process.env.CALVEX_SEED ?? 20260601);
const random = () => (seed = (seed * 16807) % 2147483647) / 2147483647;
const between = (low, high) => low + (high - low) * random();
const oneOf = list => list[Math.floor(random() * list.length)];

/** The command line's answers to a script, a line each. */
function commandLine(script) {
  const run = spawnSync(program, ['--no-config', '--json', 'run', '-'], {
    input: `${script.join('\n')}\n`,
    encoding: 'utf8',
    maxBuffer: 1 << 28,
  });
  const lines = run.stdout.trim().split('\n');
  assert.equal(lines.length, script.length, run.stderr.slice(0, 2000));
  return lines.map(line => JSON.parse(line));
}

/** Near the numbers that make sense, and now and then far away. */
function input(limits, sensible) {
  if (random() < 0.05) return oneOf([0, -1, 1e9, limits.high, limits.low].filter(Number.isFinite));
  return sensible * (random() < 0.5 ? between(0.95, 1.05) : between(0.4, 1.8));
}

/** Of the interface's "pHOut" the command line tells by its own name. */
function results(answer, row) {
  const values = row.hasTokens
    ? answer.pRetArray.map(line => line[1])
    : row.outputs.map(({ name }) => answer[`p${name}`] ?? answer[name]);
  return values.map(value => ({ nan: NaN, inf: Infinity, '-inf': -Infinity })[value] ?? value);
}

/** Where water has no such state, the last digits of the search decide how it ends. */
const noState = /^(Maximum number of iterations reached|No solution !! .*|Solution Error)\.$/;

/** Letter by letter, but for the last digits of numbers that were found on the way. */
function sameWords(a, b) {
  const number = /-?\d+(\.\d+)?(e-?\d+)?/g;
  const [mine, theirs] = [a, b].map(text => (text.match(number) ?? []).map(Number));
  return (
    a.replace(number, '') === b.replace(number, '') &&
    mine.every((value, i) => apart(value, theirs[i]) < 1e-6)
  );
}

function sameFailure(failure, answer) {
  if (answer.pSucc === 1) return false;
  const sameReason = failure.reason === answer.lastError;
  const sameMeaning = noState.test(failure.reason) && noState.test(answer.lastError);
  const cause = (answer.cause ?? '').replace(/ \(on the command line also [^)]*\)/, '');
  return (sameReason || sameMeaning) && sameWords(failure.cause, cause);
}

/** How far apart two answers are, for their size. */
function apart(a, b) {
  return Object.is(a, b) || a === b ? 0 : Math.abs(a - b) / Math.max(Math.abs(a), Math.abs(b));
}

/** A number whose last digits, as bits, are others. */
function moved(x, bits) {
  const shifted = new BigInt64Array(Float64Array.of(x).buffer);
  shifted[0] += BigInt(x === 0 ? Math.abs(bits) : bits);
  return new Float64Array(shifted.buffer)[0];
}

/** How far the command line's own answers go apart when an input moves by its last bits: the
 * difference of two nearly equal numbers, and the end of a search, have no more digits than that. */
function ownSpread({ row, given }) {
  const near = [-4, -3, -2, -1, 1, 2, 3, 4];
  const others = given.flatMap((x, i) =>
    near.map(bits => given.map((y, j) => (i === j ? moved(x, bits) : y))),
  );
  const answers = commandLine([given, ...others].map(inputs => call(row, inputs)));
  const values = answers.map(answer => (answer.pSucc === 1 ? results(answer, row) : []));
  return row.outputs.map((_, j) => Math.max(...values.map(other => apart(other[j], values[0][j]))));
}

const functions = members.filter(row => row.kind === 'function');
const rounds = Math.ceil(2000 / functions.length);

/** A call as a line of a script; of a spreadsheet's member with all its tokens. */
function call(row, given) {
  const tokens = row.hasTokens ? [`"${row.outputs.map(output => output.name).join(' ')}"`] : [];
  return [row.name, ...given, ...tokens].join(' ');
}

test(`${rounds * functions.length} random calls of all members`, () => {
  const steam = new Engine();
  const script = [];
  const calls = [];
  for (let round = 0; round < rounds; ++round) {
    for (const row of functions) {
      const given = row.inputs.map((limits, i) => input(limits, row.example.inputs[i]));
      script.push(call(row, given));
      calls.push({ row, given });
    }
  }
  const wrong = [];
  let failures = 0;
  let rounded = 0;
  commandLine(script).forEach((answer, i) => {
    const { row, given } = calls[i];
    try {
      const mine = steam[row.name](...given);
      const values = row.outputs.length === 1 ? [mine] : Object.values(mine);
      const theirs = answer.pSucc === 1 ? results(answer, row) : [];
      const far = values.map((value, j) => apart(value, theirs[j]));
      if (far.every(distance => distance <= tolerance)) return;
      const spread = answer.pSucc === 1 ? ownSpread(calls[i]) : [];
      ++rounded;
      if (!far.every((distance, j) => distance <= Math.max(tolerance, 10 * spread[j]))) {
        wrong.push(`${script[i]}: ${values}, and the command line: ${theirs} ${answer.lastError}`);
      }
    } catch (failure) {
      if (!(failure instanceof CalvexError)) throw failure;
      ++failures;
      if (!sameFailure(failure, answer)) {
        wrong.push(
          `${script[i]}: ${failure.message}, and the command line: ${JSON.stringify(answer)}`,
        );
      }
    }
  });
  assert.deepEqual(wrong, []);
  assert.ok(rounded <= 5, `${rounded} answers have fewer digits`);
  assert.ok(failures > 100 && failures < script.length / 2, `${failures} failures`);
});
