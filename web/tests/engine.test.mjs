import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { test } from 'node:test';
import { fileURLToPath } from 'node:url';
import {
  CalvexError,
  convert,
  Engine,
  findGroup,
  findMember,
  findMembers,
  findUnit,
  groups,
  members,
  messages,
  pairs,
  properties,
  version,
} from 'calvex';

const program = fileURLToPath(new URL('../../build/release/apps/calvex', import.meta.url));
const commandLine = (...words) =>
  execFileSync(program, ['--no-config', '--json', ...words], { encoding: 'utf8' });

function near(actual, expected, tolerance = 1e-10) {
  assert.ok(
    Math.abs(actual - expected) <= tolerance * Math.abs(expected),
    `${actual} is not ${expected}`,
  );
}

/** The failure of a call. */
function failureOf(call) {
  try {
    call();
  } catch (failure) {
    return failure;
  }
  return assert.fail('it did not fail');
}

test('units are chosen in plain words, for one engine', () => {
  const steam = new Engine({ temperature: '°C', P: 'bar' });
  const { pH } = JSON.parse(commandLine('-u', 'T=C', '-u', 'P=bara', 'HPT', '100', '500'));
  near(steam.HPT(100, 500), pH, 1e-12);
  near(new Engine().HPT(10, 773.15), pH, 1e-12);
  assert.equal(steam.unit('pressure'), 'bara');
  assert.equal(steam.units().T, 'C');
  steam.setUnit('flow', 't/h');
  assert.equal(steam.unit(9), 'te/h');
  assert.equal(new Engine(steam.units()).unit('flow'), 'te/h');
});

test('a unit that there is not is refused with the nearest and all', () => {
  const steam = new Engine();
  const failure = failureOf(() => steam.setUnit('P', 'psix'));
  assert.ok(failure instanceof CalvexError);
  assert.equal(failure.reason, "'psix' is not a unit of Pressure; did you mean psia or psig?");
  assert.match(failure.cause, /^Units: .*MPa/);
  assert.throws(() => steam.unit('prssure'), /"prssure" is no quantity/);
  assert.throws(() => new Engine('bar'), TypeError);
  for (const list of [['bar'], new Map([['P', 'bar']]), new Set(['bar']), null]) {
    assert.throws(() => new Engine(list), {
      name: 'TypeError',
      message: /chosen by their quantity/,
    });
  }
  assert.equal(steam.unit('P'), 'MPa');
});

test('a failure has the words of the engine, the cause and the number of the message', () => {
  const steam = new Engine({ T: 'C', P: 'bar' });
  const range = failureOf(() => steam.HPT(100, 3000));
  assert.equal(
    range.message,
    'HPT failed: Temperature parameter out of range (Valid range -13.15 to 2226.85 C).',
  );
  assert.deepEqual([range.code, range.cause, range.member], [108, '', 'HPT']);
  const search = failureOf(() => steam.TPH(100, 9000));
  assert.equal(search.code, 104);
  assert.equal(search.reason, 'Solution Error.');
  assert.match(search.cause, /^Enthalpy 9000 kJ\/kg is above any that water has at 100 bara/);
  assert.equal(search.full, `${search.reason} ${search.cause}`);
});

test('wrong calls are named with the input', () => {
  const steam = new Engine();
  assert.throws(() => steam.HPT(10), {
    name: 'TypeError',
    message: 'HPT(P, T) takes 2 arguments, 1 was given: T is missing',
  });
  assert.throws(() => steam.HPT(10, '500'), {
    name: 'TypeError',
    message: 'HPT(P, T): T is to be a number or an array of numbers, not "500"',
  });
  assert.throws(() => steam.HPT([1, null], 500), {
    message: 'HPT(P, T): P is to be a number or an array of numbers; at [1] it has null',
  });
  assert.throws(() => steam.HPT(new Float64Array(3), new Float64Array(2)), {
    name: 'RangeError',
    message: 'HPT(P, T): arrays of these lengths do not go together: P 3, T 2',
  });
  assert.throws(() => steam.SetUserUnit('T', 5), /newVal is to be a text, not 5/);
  assert.throws(() => steam.XLTurbineA(3374, 10, 1, 0.8, undefined), /MIn is to be a number/);
});

test('arrays answer what numbers do, to 1e-10', () => {
  const steam = new Engine();
  const count = 10_000; // more than a block
  for (const [row, low, high] of [
    ['HPT', [0.01, 280], [40, 1000]],
    ['TPS', [0.01, 1], [20, 8]],
    ['PSatT', [274], [640]],
    ['TurbineA', [2800, 5, 0.05, 0.6, 1], [3600, 12, 1, 0.9, 50]],
    ['XLTurbineA', [2800, 5, 0.05, 0.6, 1], [3600, 12, 1, 0.9, 50]],
  ]) {
    const inputs = low.map((from, i) =>
      Float64Array.from({ length: count }, (_, k) => {
        const step = ((k * (i + 3) * 7919) % count) / count;
        return from + (high[i] - from) * step;
      }),
    );
    const all = steam[row](...inputs);
    const reasons = steam.reasons();
    for (let k = 0; k < count; k += 37) {
      const point = inputs.map(list => list[k]);
      const results = findMember(row).outputs.map(output => output.name);
      const value = (answer, name, at) => {
        const one = results.length === 1 ? answer : answer[name];
        return at === undefined ? one : one[at];
      };
      if (reasons[k] !== '') {
        assert.equal(failureOf(() => steam[row](...point)).full, reasons[k]);
        for (const name of results) assert.ok(Number.isNaN(value(all, name, k)));
        continue;
      }
      const one = steam[row](...point);
      for (const name of results) near(value(all, name, k), value(one, name), 1e-10);
    }
  }
});

test('so does every function around its example, with the same words where one fails', () => {
  const count = 40;
  for (const row of members.filter(({ kind }) => kind === 'function')) {
    const steam = new Engine();
    for (const { member, inputs } of row.preparation) steam[member](...inputs);
    const inputs = row.example.inputs.map((x, i) =>
      Float64Array.from({ length: count }, (_, k) => x * (0.6 + ((k * (2 * i + 7)) % count) / 50)),
    );
    const all = steam[row.name](...inputs);
    const columns = row.outputs.length === 1 ? [all] : Object.values(all);
    steam.reasons().forEach((reason, k) => {
      const point = inputs.map(list => list[k]);
      const text = `${row.name}(${point.join(', ')})`;
      if (reason !== '') {
        assert.equal(failureOf(() => steam[row.name](...point)).full, reason, text);
        for (const column of columns) assert.ok(Number.isNaN(column[k]), text);
        return;
      }
      const one = steam[row.name](...point);
      const values = row.outputs.length === 1 ? [one] : Object.values(one);
      values.forEach((value, i) => {
        const close = Math.abs(columns[i][k] - value) <= 1e-10 * Math.abs(value);
        assert.ok(close || Object.is(columns[i][k], value), `${text}: ${columns[i][k]}, ${value}`);
      });
    });
  }
});

test('a failed point is NaN and tells why, in the units of its call', () => {
  const steam = new Engine({ T: 'C', P: 'bar' });
  const h = steam.HPT(100, Float64Array.of(500, 3000));
  steam.setUnit('T', 'K');
  near(h[0], new Engine().HPT(10, 773.15));
  assert.ok(Number.isNaN(h[1]));
  assert.deepEqual(steam.reasons(), [
    '',
    'Temperature parameter out of range (Valid range -13.15 to 2226.85 C).',
  ]);
  assert.deepEqual(steam.HPT(100, new Float64Array(0)), new Float64Array(0));
  assert.deepEqual(steam.reasons(), []);
});

test('other arrays of numbers do as well', () => {
  const steam = new Engine();
  const expected = [steam.HPT(1, 500), steam.HPT(2, 500)];
  for (const P of [[1, 2], Float32Array.of(1, 2), Int32Array.of(1, 2), Uint8Array.of(1, 2)]) {
    const h = steam.HPT(P, 500);
    assert.ok(h instanceof Float64Array);
    expected.forEach((value, i) => near(h[i], value));
  }
});

/** An array whose memory has gone elsewhere. */
function sentAway() {
  const column = Float64Array.of(500, 600);
  structuredClone(column, { transfer: [column.buffer] });
  return column;
}

test('what is no number and no array of numbers is refused, by every call', () => {
  const steam = new Engine();
  const bare = Object.create(null);
  const strangers = [
    '100',
    '',
    null,
    undefined,
    true,
    1n,
    {},
    bare,
    new Set([1]),
    new Map(),
    sentAway(),
  ];
  const lists = [['1', ''], [[1, 2]], [null], [1, 2n], new BigInt64Array(2)];
  for (const value of [...strangers, ...lists]) {
    const calls = {
      T: () => steam.HPT(10, value),
      P: () => steam.state({ P: value, T: 500 }),
      value: () => convert('T', value, 'C', 'F'),
    };
    for (const [input, call] of Object.entries(calls)) {
      const wanted = new RegExp(`${input} is to be a number or an array of numbers`);
      assert.throws(call, { name: 'TypeError', message: wanted }, `${input} ${typeof value}`);
    }
  }
  assert.throws(() => steam.HPT(10, new BigInt64Array(2)), /at \[0\] it has 0n$/);
  assert.deepEqual(convert('T', [], 'C', 'F'), new Float64Array(0));
  assert.deepEqual(convert('T', Uint8Array.of(0, 100), 'C', 'K'), Float64Array.of(273.15, 373.15));
});

test('a setting that is misspelt is refused; a class of one’s own has fields', () => {
  const steam = new Engine();
  assert.throws(() => {
    steam.SatPolsh = 0;
  }, TypeError);
  steam.SatPolish = 0;
  class Own extends Engine {
    name = 'mine';
  }
  assert.equal(new Own().name, 'mine');
});

test('a member without its engine says so', () => {
  const { HPT, Convert } = new Engine();
  assert.throws(() => HPT(10, 773.15), {
    name: 'TypeError',
    message: /HPT\(P, T\) is called on an/,
  });
  assert.throws(() => Convert('T', 1, 'K', 'C'), /Convert\(.*\) is called on an engine/);
});

test('a failure names its member once', () => {
  const silent = new Engine();
  silent.FunctionCallTracing = 0;
  assert.throws(() => silent.HPT(-1, 300), /^CalvexError: HPT failed; tracing is off/);
  assert.throws(
    () => new Engine().SetCustomTraceText(-1, 'x'),
    /^CalvexError: SetCustomTraceText failed: the trace has no column/,
  );
});

test('a percentage is told as a fraction, without what commands take', () => {
  const told = /Valid range 0\.00 to 1\.00 Fraction\)\. 5 % is 0\.05 as a Fraction\.$/;
  for (const call of [
    engine => engine.state({ P: 1, x: 5 }),
    engine => engine.HSatPQ(1, 5),
    engine => assert.fail(`Error: ${engine.HSatPQ([1], [5]) && engine.reasons()[0]}`),
  ]) {
    assert.throws(() => call(new Engine()), told);
  }
});

test('a state has no property by a name of JavaScript’s own', () => {
  const state = new Engine().state({ P: 10, T: 500 });
  for (const name of ['__proto__', 'constructor', 'toString']) {
    assert.throws(() => state.get(name), /a state has no property/);
    assert.throws(() => new Engine().state({ P: 10, [name]: 1 }), /is none/);
  }
  for (const nothing of [undefined, null]) {
    assert.throws(() => new Engine().state(nothing), /a state is given by two of/);
  }
});

test('equipment answers its results by name, with units', () => {
  const steam = new Engine({ power: 'MW' });
  const results = steam.TurbineA(3374, 10, 1, 0.8, 5);
  const theirs = JSON.parse(commandLine('TurbineA', '3374', '10', '1', '0.8', '5'));
  assert.deepEqual(Object.keys(results), ['Power', 'TOut', 'HOut', 'QOut']);
  near(results.Power, theirs.pPower / 1000, 1e-12);
  near(results.HOut, theirs.pHOut, 1e-12);
  assert.deepEqual(results.units, { Power: 'MW', TOut: 'K', HOut: 'kJ/kg', QOut: 'Fraction' });
});

test('a state has every property, in the units that its engine had', () => {
  const steam = new Engine({ T: 'C', P: 'bar' });
  const state = steam.state({ P: 100, T: 500 });
  steam.setUnit('T', 'F');
  const answer = JSON.parse(commandLine('state', 'P=100', 'T=500', '-u', 'T=C', '-u', 'P=bara'));
  assert.equal(state.T, 500);
  assert.equal(state.unit('T'), 'C');
  assert.equal(state.phase, 'supercritical');
  near(state.h, steam.HPT(100, convert('T', 500, 'C', 'F')));
  for (const { name, letter, value, reason } of state.all()) {
    assert.equal(reason, '', name);
    if (answer[letter] !== undefined) near(value, answer[letter], 1e-9);
    assert.equal(value, state[name]);
  }
});

test('every pair finds the state again', () => {
  const steam = new Engine();
  const given = steam.state({ P: 3, T: 650 });
  const wet = steam.state({ P: 3, x: 0.3 });
  assert.equal(wet.phase, 'two-phase');
  const nameOf = Object.fromEntries(Object.values(properties).map(row => [row.letter, row.name]));
  for (const pair of pairs) {
    const state = pair.includes('Q') ? wet : given;
    const again = steam.state(
      Object.fromEntries([...pair].map(letter => [nameOf[letter], state[nameOf[letter]]])),
    );
    for (const name of ['P', 'T', 'h', 's', 'u', 'rho', 'v']) near(again[name], state[name], 1e-8);
    assert.equal(again.phase, state.phase);
  }
});

test('a mixture has no speed of sound, and says so', () => {
  const wet = new Engine().state({ P: 1, x: 0.5 });
  assert.throws(
    () => wet.w,
    /Two phase conditions - Underspecified problem\. .* liquid and vapour are together/,
  );
  const row = wet.all().find(({ name }) => name === 'w');
  assert.ok(Number.isNaN(row.value));
  assert.match(row.reason, /liquid and vapour/);
  assert.throws(() => new Engine().state({ P: 1, T: 9999 }), CalvexError);
  assert.throws(() => new Engine().state({ P: 1 }), /two of P, T, h/);
  assert.throws(() => new Engine().state({ P: 1, w: 5 }), /"w" is none/);
  assert.throws(() => new Engine().state({ h: 1, u: 5 }), /no pair that gives a state/);
});

test('states of arrays', () => {
  const steam = new Engine();
  const states = steam.state({ P: 1, h: Float64Array.of(200, 1500, 3000, 1e6) });
  assert.deepEqual(states.phase, ['liquid', 'two-phase', 'vapour', '']);
  near(states.T[2], steam.TPH(1, 3000));
  assert.ok(Number.isNaN(states.T[3]));
  assert.match(steam.reasons()[3], /above any that water has|out of range/);
  assert.ok(Number.isNaN(states.w[1]));
  near(states.w[0], steam.state({ P: 1, h: 200 }).w);
  // Words and the other order are the same.
  const other = steam.state({ enthalpy: [200, 1500], pressure: 1 });
  assert.equal(other.T[1], states.T[1]);
});

test('the trace is a tree', () => {
  const steam = new Engine();
  steam.TraceLevel = 2;
  assert.throws(() => steam.TPH(10, 9000));
  const call = steam.trace().children.find(({ text }) => text === 'TPH');
  assert.equal(call.gravest, 'error');
  const texts = call.children.map(node => [node.kind, node.code, node.text]);
  assert.ok(
    texts.some(
      ([kind, code, text]) => kind === 'error' && code === 104 && text === 'Solution Error.',
    ),
  );
  steam.ClearTraceInfo();
  assert.deepEqual(steam.trace().children, []);
});

test('settings, texts and tables', () => {
  const steam = new Engine();
  steam.SatPolish = 0;
  assert.equal(steam.SatPolish, 0);
  assert.equal(steam.clone().SatPolish, 0);
  steam.reset();
  assert.equal(steam.SatPolish, 2);
  assert.throws(() => {
    steam.TraceLevel = 7;
  }, /Invalid reporting level/);
  assert.throws(() => {
    steam.SolverIter = 1.5;
  }, /must be a whole number/);
  assert.throws(() => {
    steam.VersionStr = '5';
  }, TypeError);
  assert.equal(steam.VersionStr, version);
  near(steam.Convert('P', 'psia', 'bara', 100), 6.89476751);
  assert.equal(steam.SetUserUnit('T', '°F'), undefined);
  assert.equal(steam.GetUserUnit('T'), 'F');
  assert.equal(steam.GetAlarms()[0].length, 2);
  near(steam.CritP(), 22.055, 1e-3);
});

test('texts go there and back unharmed', () => {
  const steam = new Engine();
  const titles = ['Größe in m³ – €', '蒸気 🜂'];
  for (const title of titles) steam.AddCustomTraceTitle(title);
  assert.deepEqual(steam.trace().columns, titles);
});

test('units are converted and found by words', () => {
  near(convert('P', 100, 'psi', 'bar'), 6.89476751);
  assert.deepEqual(convert('T', [0, 100], '°C', 'K'), Float64Array.of(273.15, 373.15));
  assert.equal(findGroup('flow').number, 9);
  assert.equal(findUnit('T', '°C').name, 'C');
  assert.throws(() => convert('P', 1, 'bar', 'parsec'), /'parsec' is not a unit of Pressure/);
  assert.equal(groups.length, 27);
});

test('the table of members is whole: every function and its example', () => {
  assert.equal(members.length, 205);
  for (const row of members.filter(({ kind }) => kind === 'function')) {
    const steam = new Engine();
    for (const { member, inputs } of row.preparation) steam[member](...inputs);
    const answer = steam[row.name](...row.example.inputs);
    const values =
      row.outputs.length === 1 ? [answer] : row.outputs.map(({ name }) => answer[name]);
    for (const value of values) assert.ok(Number.isFinite(value), row.name);
    row.inputs.forEach((input, i) => {
      const value = row.example.inputs[i];
      assert.ok(input.low <= value && value <= input.high, `${row.name} ${input.name}`);
    });
  }
  assert.equal(findMember('hpt').name, 'HPT');
  assert.equal(findMember('ThermoCompressorB').name, 'XLThermoCompressorB');
  assert.ok(findMembers('saturation pressure').some(({ name }) => name === 'PSatT'));
  assert.ok(messages.some(({ number, text }) => number === 104 && text === 'Solution Error.'));
});

test('an engine that was destroyed says so', () => {
  const steam = new Engine();
  steam.destroy();
  steam.destroy();
  assert.throws(() => steam.HPT(10, 500), /destroyed/);
});

test('a member with tokens leaves its warnings in the record, as others do', () => {
  const steam = new Engine();
  const inputs = [10, 1, 0.05, 320.15, 360.15, 0, 0, 0.3, 0.02, 300, 393.15, 1, 0];
  assert.ok(steam.XLHeatExchangerA(...inputs).M_HOut < 0);
  const warnings = [];
  const look = node => {
    if (node.kind === 'warning') warnings.push(node.text);
    node.children.forEach(look);
  };
  look(steam.trace());
  assert.ok(
    warnings.some(text => text.endsWith('heat does not flow from cold to hot.')),
    warnings.join('\n'),
  );
});
