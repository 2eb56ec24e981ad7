// States of water from any pair of properties.
import { commonLength, inBlocks, isColumn, keepFailed, strideOf, write } from './columns.js';
import { memoryView, reasonOf, wasm } from './wasm.js';

/** name: letter of the members' names, unit group, words. */
export const properties = Object.freeze(
  Object.fromEntries(
    Object.entries({
      P: ['P', 1, 'pressure'],
      T: ['T', 0, 'temperature'],
      h: ['H', 5, 'enthalpy'],
      s: ['S', 4, 'entropy'],
      u: ['U', 6, 'internal energy'],
      rho: ['R', 2, 'density'],
      v: ['V', 3, 'specific volume'],
      x: ['Q', 7, 'vapour fraction'],
      a: ['A', 23, 'Helmholtz energy'],
      g: ['G', 24, 'Gibbs energy'],
      cp: ['C', 8, 'isobaric heat capacity'],
      cv: ['D', 8, 'isochoric heat capacity'],
      w: ['W', 16, 'speed of sound'],
      mu: ['M', 13, 'dynamic viscosity'],
      k: ['K', 14, 'thermal conductivity'],
      Pr: ['N', -1, 'Prandtl number'],
      Z: ['Z', -1, 'compressibility factor'],
      epsilon: ['E', -1, 'static dielectric constant'],
      delta_T: ['I', 17, 'isothermal throttling coefficient'],
      mu_JT: ['J', 18, 'Joule-Thomson coefficient'],
      beta: ['B', 19, 'thermal expansion coefficient'],
      kappa: ['L', 20, 'isothermal compressibility'],
    }).map(([name, [letter, group, words]]) => [
      name,
      Object.freeze({ name, letter, group, words }),
    ]),
  ),
);

const ofMixtures = ['P', 'T', 'h', 's', 'u', 'rho', 'v', 'x'];
/** The pairs of letters that give a state. */
export const pairs = Object.freeze([
  'PT',
  'PH',
  'PS',
  'PU',
  'PR',
  'PV',
  'TH',
  'TS',
  'TU',
  'TR',
  'TV',
  'PQ',
  'TQ',
  'HS',
]);
/** As the engine numbers them; -1 is none. */
const phases = ['liquid', 'vapour', 'supercritical', 'two-phase'];

const letterOf = Object.fromEntries(
  ofMixtures
    .flatMap(name => {
      const { letter, words } = properties[name];
      return [
        [name, letter],
        [letter, letter],
        [words, letter],
      ];
    })
    .concat([
      ['r', 'R'],
      ['q', 'Q'],
      ['quality', 'Q'],
      ['p', 'P'],
      ['t', 'T'],
    ]),
);

function letter(name) {
  const word = name.replaceAll('_', ' ');
  if (Object.hasOwn(letterOf, word)) return letterOf[word];
  throw new TypeError(`a state is given by two of ${ofMixtures.join(', ')}; "${name}" is none`);
}

/** Some letters of the points, and their phases; a point of numbers throws where it fails. */
function solve(engine, pair, given, letters) {
  const length = given.find(isColumn)?.length;
  const [status, phase] = [new Int16Array(length ?? 1), new Int16Array(length ?? 1)];
  const results = letters.map(() => new Float64Array(length ?? 1));
  inBlocks(given, results, [status, phase], 60 + 28 * letters.length, place => {
    const { view, at } = place;
    const list = at + 60;
    // calvex_result: letter, value, by_first, by_second
    letters.forEach((wanted, i) => {
      const letter = wanted.charCodeAt(0);
      write(view, list + 28 * i, [letter, place.output(i), 1, 0, 0, 0, 0]);
    });
    // calvex_request: letters, count, first, second, results, status, phase, line_slope, threads
    const code = pair.charCodeAt(0) + 256 * pair.charCodeAt(1);
    const inputs = given.flatMap((value, i) => [place.input(i), strideOf(value)]);
    const codes = [place.code(0), 1, place.code(1), 1];
    write(view, at, [code, 0, ...inputs, list, letters.length, ...codes, 0, 0, 1]);
    return count => {
      memoryView().setUint32(at + 4, count, true);
      engine.require(wasm.calvex_direct(engine.address, at, 60), 'state');
    };
  });
  if (length === undefined) engine.require(status[0], 'state');
  return { results, phase, status };
}

export class State {
  #engine;
  #pair;
  #given;
  #scalar;
  #values = new Map();

  constructor(engine, pair) {
    const names = Object.keys(pair ?? {});
    if (names.length !== 2) {
      throw new TypeError(
        `a state is given by two of ${ofMixtures.join(', ')}, as ` +
          `{ P: 10, T: 773.15 }; ${names.length} were given`,
      );
    }
    const [first, second] = names.map(letter);
    this.#pair = pairs.find(known => known === first + second || known === second + first);
    if (this.#pair === undefined || first === second) {
      throw new TypeError(
        `${names.join(' and ')} are no pair that gives a state; the pairs are ` +
          `${pairs.join(', ')} (R density, Q vapour fraction)`,
      );
    }
    this.#given = this.#pair[0] === first ? Object.values(pair) : Object.values(pair).reverse();
    const inOrder = this.#pair[0] === first ? names : [...names].reverse();
    this.#scalar =
      commonLength(`state({ ${names.join(', ')} })`, inOrder, this.#given) === undefined;
    this.#engine = engine.kept();
    this.#given = this.#given.map(value => (isColumn(value) ? Float64Array.from(value) : value));

    const letters = ofMixtures.map(name => properties[name].letter);
    const { results, phase, status } = solve(this.#engine, this.#pair, this.#given, letters);
    ofMixtures.forEach((name, i) => this.#keep(name, results[i]));
    const words = Array.from(phase, number => phases[number] ?? '');
    this.#values.set('phase', this.#scalar ? words[0] : words);
    if (!this.#scalar) {
      keepFailed(engine, status, this.#given, (then, point) =>
        solve(then, this.#pair, point, letters),
      );
    }
    Object.freeze(this);
  }

  get phase() {
    return this.#values.get('phase');
  }

  #keep(name, column) {
    this.#values.set(name, this.#scalar ? column[0] : column);
  }

  /** A property, for the accessors by name. */
  get(name) {
    if (!Object.hasOwn(properties, name)) {
      throw new RangeError(
        `a state has no property "${String(name)}"; it has ${Object.keys(properties).join(', ')}`,
      );
    }
    if (!this.#values.has(name)) {
      const { letter } = properties[name];
      this.#keep(name, solve(this.#engine, this.#pair, this.#given, [letter]).results[0]);
    }
    return this.#values.get(name);
  }

  unit(name) {
    if (!Object.hasOwn(properties, name)) this.get(name);
    const { group } = properties[name];
    return group < 0 ? '' : this.#engine.unit(group);
  }

  all() {
    const reason = this.#getAtOnce();
    return Object.values(properties).map(property => {
      const row = { ...property, unit: this.unit(property.name), value: NaN, reason: '' };
      if (reason !== '' && !this.#values.has(property.name)) return { ...row, reason };
      try {
        row.value = this.get(property.name);
      } catch (failure) {
        row.reason = reasonOf(failure);
      }
      return row;
    });
  }

  /** All properties of a point from one solve. Answers the reason why a mixture lacks those of one
   * phase; "" of another point that lacks one: each has its own. */
  #getAtOnce() {
    const missing = Object.values(properties).filter(({ name }) => !this.#values.has(name));
    if (!this.#scalar || missing.length === 0) return '';
    try {
      const letters = missing.map(({ letter }) => letter);
      const { results } = solve(this.#engine, this.#pair, this.#given, letters);
      missing.forEach(({ name }, i) => this.#keep(name, results[i]));
    } catch (failure) {
      const reason = reasonOf(failure);
      if (this.phase === 'two-phase') return reason;
    }
    return '';
  }
}

for (const name of Object.keys(properties)) {
  Object.defineProperty(State.prototype, name, {
    get() {
      return this.get(name);
    },
  });
}
