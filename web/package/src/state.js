// States of water from any pair of properties.
import { commonLength, isColumn, keepFailed } from './columns.js';
import { groups } from './table.js';
import { memoryNumbers, memoryView, wasm, withRoom } from './wasm.js';

/** name: letter of the members' names, unit group, words. */
export const properties = Object.freeze(Object.fromEntries(Object.entries({
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
}).map(([name, [letter, group, words]]) => [name, Object.freeze({ name, letter, group, words })])));

const ofMixtures = ['P', 'T', 'h', 's', 'u', 'rho', 'v', 'x'];
/** The pairs of letters that give a state. */
export const pairs = Object.freeze(
  ['PT', 'PH', 'PS', 'PU', 'PR', 'PV', 'TH', 'TS', 'TU', 'TR', 'TV', 'PQ', 'TQ', 'HS']);
/** As the engine numbers them; -1 is none. */
const phases = ['liquid', 'vapour', 'supercritical', 'two-phase'];

const letterOf = Object.fromEntries(ofMixtures.flatMap(name => {
  const { letter, words } = properties[name];
  return [[name, letter], [letter, letter], [words, letter]];
}).concat([['r', 'R'], ['q', 'Q'], ['quality', 'Q'], ['p', 'P'], ['t', 'T']]));

function letter(name) {
  const found = letterOf[name] ?? letterOf[name.replaceAll('_', ' ')];
  if (found !== undefined) return found;
  throw new TypeError(`a state is given by two of ${ofMixtures.join(', ')}; "${name}" is none`);
}

/** Solves the points for some letters; a call with numbers alone throws where it fails. */
function solve(engine, pair, given, letters, scalar) {
  const length = scalar ? 1 : given.find(isColumn).length;
  const block = Math.min(4096, Math.max(length, 1));
  const results = letters.map(() => new Float64Array(length));
  const phase = new Int16Array(length), failed = [];
  const codes = 8 * block * (2 + letters.length), lists = codes + 16 * Math.ceil(block / 4);
  const request = lists + 28 * letters.length;
  withRoom(request + 64, room => {
    const memory = memoryView();
    const put = (at, value) => memory.setUint32(at, value, true);
    const column = i => room + 8 * block * i;
    new Uint8Array(wasm.memory.buffer).fill(0, room + lists, room + request + 60);
    letters.forEach((wanted, i) => {
      const at = room + lists + 28 * i;
      memory.setUint8(at, wanted.charCodeAt(0));
      put(at + 4, column(2 + i));
      put(at + 8, 1);
    });
    memory.setUint8(room + request, pair.charCodeAt(0));
    memory.setUint8(room + request + 1, pair.charCodeAt(1));
    given.forEach((value, i) => {
      put(room + request + 8 + 8 * i, column(i));
      put(room + request + 12 + 8 * i, isColumn(value) ? 1 : 0);
      if (!isColumn(value)) memoryNumbers()[column(i) / 8] = value;
    });
    [room + lists, letters.length, room + codes, 1, room + codes + 2 * block, 1].forEach(
      (value, i) => put(room + request + 24 + 4 * i, value));
    put(room + request + 56, 1);

    for (let begin = 0; begin < length; begin += block) {
      const count = Math.min(block, length - begin);
      given.forEach((value, i) => {
        if (isColumn(value)) memoryNumbers().set(value.slice(begin, begin + count), column(i) / 8);
      });
      memoryView().setUint32(room + request + 4, count, true);
      const code = wasm.calvex_direct(engine.address, room + request, 60);
      if (code !== 0) throw engine.failure(code, 'state');
      results.forEach((result, i) => {
        const at = column(2 + i) / 8;
        result.set(memoryNumbers().subarray(at, at + count), begin);
      });
      const status = new Int16Array(wasm.memory.buffer, room + codes, count);
      phase.set(new Int16Array(wasm.memory.buffer, room + codes + 2 * block, count), begin);
      for (let i = 0; i < count; ++i) {
        if (status[i] === 0) continue;
        if (scalar) throw engine.failure(status[i], 'state');
        failed.push(begin + i);
      }
    }
  });
  return { results, phase, failed };
}

export class State {
  #engine;
  #pair;
  #given;
  #scalar;
  #values = new Map();

  constructor(engine, pair) {
    const names = Object.keys(pair);
    if (names.length !== 2) {
      throw new TypeError(`a state is given by two of ${ofMixtures.join(', ')}, as ` +
        `{ P: 10, T: 773.15 }; ${names.length} were given`);
    }
    const [first, second] = names.map(letter);
    this.#pair = pairs.find(known => known === first + second || known === second + first);
    if (this.#pair === undefined || first === second) {
      throw new TypeError(`${names.join(' and ')} are no pair that gives a state; the pairs are ` +
        `${pairs.join(', ')} (R density, Q vapour fraction)`);
    }
    this.#given = this.#pair[0] === first ? Object.values(pair) : Object.values(pair).reverse();
    const inOrder = this.#pair[0] === first ? names : [...names].reverse();
    this.#scalar = commonLength(`state({ ${names.join(', ')} })`, inOrder, this.#given) === undefined;
    this.#engine = engine.kept();
    this.#given = this.#given.map(value => isColumn(value) ? Float64Array.from(value) : value);

    const { results, phase, failed } = this.#solve(ofMixtures.map(name => properties[name].letter));
    ofMixtures.forEach((name, i) => this.#keep(name, results[i]));
    const names_ = Array.from(phase, number => phases[number] ?? '');
    this.#values.set('phase', this.#scalar ? names_[0] : names_);
    if (!this.#scalar) this.#tellReasons(engine, failed);
    Object.freeze(this);
  }

  get phase() { return this.#values.get('phase'); }

  #solve(letters) { return solve(this.#engine, this.#pair, this.#given, letters, this.#scalar); }
  #keep(name, column) { this.#values.set(name, this.#scalar ? column[0] : column); }
  #tellReasons(engine, failed) {
    const letters = ofMixtures.map(name => properties[name].letter);
    keepFailed(engine, this.#given.find(isColumn).length, failed, this.#given, (then, point) =>
      solve(then, this.#pair, point, letters, true));
  }

  /** A property, for the accessors by name. */
  get(name) {
    if (properties[name] === undefined) {
      throw new RangeError(`a state has no property "${name}"; it has ${Object.keys(properties).join(', ')}`);
    }
    if (!this.#values.has(name)) this.#keep(name, this.#solve([properties[name].letter]).results[0]);
    return this.#values.get(name);
  }

  unit(name) {
    if (properties[name] === undefined) this.get(name);
    const { group } = properties[name];
    return group < 0 ? '' : this.#engine.unit(group);
  }

  all() {
    return Object.values(properties).map(property => {
      const row = { ...property, unit: this.unit(property.name), value: NaN, reason: '' };
      try {
        row.value = this.get(property.name);
      } catch (failure) {
        row.reason = failure.cause ? `${failure.reason} ${failure.cause}` : failure.reason;
      }
      return row;
    });
  }
}

for (const name of Object.keys(properties)) {
  Object.defineProperty(State.prototype, name, { get() { return this.get(name); } });
}
