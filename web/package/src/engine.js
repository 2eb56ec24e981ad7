// Engines: every member of the table in one's own units.
import { columns, isColumn, shown } from './columns.js';
import { groupNumber } from './quantities.js';
import { State } from './state.js';
import { groups, memberNames } from './table.js';
import { trace } from './trace.js';
import {
  CalvexError,
  memoryNumbers,
  memoryView,
  scratch,
  textFrom,
  wasm,
  withTexts,
} from './wasm.js';

/** Engines that nobody has any more give their memory back. */
const lost = new FinalizationRegistry(address => wasm.calvex_destroy(address));

export class Engine {
  #address;
  #kept;
  #unitNames = [];
  #reasons = () => [];

  constructor(units = {}) {
    if (wasm === undefined) throw new Error('the engine is not there yet: await load() first');
    // A list or a Map has its units where nobody looks for them.
    if (typeof units !== 'object' || units === null || Symbol.iterator in units) {
      throw new TypeError('units are chosen by their quantity: new Engine({ T: "°C", P: "bar" })');
    }
    const place = scratch();
    const code = wasm.calvex_create(place);
    if (code !== 0) throw new CalvexError(code, 'Out of memory.');
    this.#address = memoryView().getUint32(place, true);
    lost.register(this, this.#address, this);
    for (const [quantity, unit] of Object.entries(units)) this.setUnit(quantity, unit);
    // A setting that is misspelt is none; a class of one's own has what it likes.
    if (new.target === Engine) Object.preventExtensions(this);
  }

  /** The address of the engine, for this package. */
  get address() {
    if (this.#address === 0) throw new Error('the engine has been destroyed');
    return this.#address;
  }

  destroy() {
    if (this.#address === 0) return;
    lost.unregister(this);
    wasm.calvex_destroy(this.#address);
    this.#address = 0;
  }

  clone() {
    const other = new Engine();
    wasm.calvex_take_settings(other.address, this.address);
    return other;
  }

  reset() {
    this.changed();
    wasm.calvex_reset(this.address);
  }

  /** A copy with the units and settings of the moment, the same one until they change: for states or
   * reasons, which are asked for later. */
  kept() {
    return (this.#kept ??= this.clone());
  }
  /** Units or settings may be others from now on. */
  changed() {
    this.#kept = undefined;
    this.#unitNames = [];
  }

  // Units -----------------------------------------------------------------------------------------

  unit(quantity) {
    const group = groupNumber(quantity);
    this.#unitNames[group] ??= textFrom((...room) =>
      wasm.calvex_unit(this.address, group, ...room),
    );
    return this.#unitNames[group];
  }

  setUnit(quantity, unit) {
    this.changed();
    const word = groups[groupNumber(quantity)].keywords[0];
    const code = withTexts([word, String(unit)], (_texts, _sizes, [group, name]) =>
      wasm.calvex_set_unit(this.address, ...group, ...name),
    );
    this.require(code, '');
  }

  units() {
    return Object.fromEntries(groups.map(group => [group.keywords[0], this.unit(group.number)]));
  }

  // States ----------------------------------------------------------------------------------------

  state(pair) {
    return new State(this, pair);
  }

  // What the engine has to tell -------------------------------------------------------------------

  trace() {
    return trace(this.address);
  }

  reasons() {
    return this.#reasons();
  }

  /** Keeps what tells why points of an array failed, for this package. */
  keepReasons(reasons) {
    this.#reasons = reasons;
  }

  /** Throws the last failure, if the code is that of one; for this package. */
  require(code, member) {
    if (code === 0) return;
    const text = which => textFrom((...room) => which(this.address, ...room));
    throw new CalvexError(code, text(wasm.calvex_last_error), text(wasm.calvex_last_cause), member);
  }
}

// --- Members -------------------------------------------------------------------------------------

const isNumber = value => value.type === 'number' || value.type === 'integer';

/** "HPT(P, T)" */
const callText = (name, row) => `${name}(${row.inputs.map(input => input.name).join(', ')})`;

function requireCount(name, row, given) {
  const count = row.inputs.length;
  if (given.length === count) return;
  const missing = row.inputs.slice(given.length).map(input => input.name);
  throw new TypeError(
    `${callText(name, row)} takes ${count} argument${count === 1 ? '' : 's'}, ` +
      `${given.length} ${given.length === 1 ? 'was' : 'were'} given` +
      (missing.length === 0
        ? ''
        : `: ${missing.join(' and ')} ${missing.length === 1 ? 'is' : 'are'} missing`),
  );
}

function refuse(name, row, i, wanted, value) {
  const wrong = `${callText(name, row)}: ${row.inputs[i].name} is to be ${wanted}`;
  throw new TypeError(`${wrong}, not ${shown(value)}`);
}

/** The results of a member by name; `units` tells the unit of each. */
export class Results {
  constructor(engine, outputs, values) {
    outputs.forEach((output, i) => {
      this[output.name] = values[i];
    });
    const units = Object.fromEntries(
      outputs.map(output => [output.name, output.group < 0 ? '' : engine.unit(output.group)]),
    );
    Object.defineProperty(this, 'units', { value: Object.freeze(units) });
    Object.freeze(this);
  }
}

function answer(engine, row, values) {
  return values.length === 1 ? values[0] : new Results(engine, row.outputs, values);
}

/** Numbers in, numbers out, beside the layout of `calvex_call`. */
function callNumbers(engine, name, row, given) {
  const place = scratch(),
    room = memoryNumbers(),
    at = place / 8;
  const inputs = row.inputs.length,
    outputs = row.outputs.length;
  for (let i = 0; i < inputs; ++i) {
    if (typeof given[i] !== 'number')
      refuse(name, row, i, 'a number or an array of numbers', given[i]);
    room[at + i] = given[i];
  }
  const results = place + 8 * inputs;
  const code = wasm.calvex_call(engine.address, row.number, place, inputs, results, outputs);
  engine.require(code, name);
  const numbers = memoryNumbers();
  if (outputs === 1) return numbers[at + inputs];
  return answer(engine, row, Array.from(numbers.subarray(at + inputs, at + inputs + outputs)));
}

/** The results that tokens name, all of them. */
function callTokens(engine, name, row, given) {
  given.forEach((value, i) => {
    if (typeof value !== 'number') refuse(name, row, i, 'a number or an array of numbers', value);
  });
  const place = scratch();
  const tokens = row.outputs.map(output => output.name).join(' ');
  const code = withTexts([tokens], (list, sizes) => {
    memoryNumbers().set(given, place / 8);
    const { address } = engine;
    return wasm.calvex_call_texts(
      address,
      row.number,
      place,
      given.length,
      list,
      sizes,
      1,
      place,
      0,
    );
  });
  engine.require(code, name);
  // A row has a label and a unit as well, as the settings want.
  const numberOf = cells => cells.find(cell => typeof cell === 'number');
  return answer(engine, row, table(engine).map(numberOf));
}

/** A member that was taken off its engine has none. */
function requireEngine(self, name, row) {
  if (self instanceof Engine) return;
  throw new TypeError(`${callText(name, row)} is called on an engine, as steam.${name}(...)`);
}

function functionOf(name, row) {
  return function (...given) {
    requireEngine(this, name, row);
    requireCount(name, row, given);
    if (given.some(isColumn)) return answer(this, row, columns(this, name, row, given));
    return (row.hasTokens ? callTokens : callNumbers)(this, name, row, given);
  };
}

/** Any kinds of values in and out. */
function methodOf(name, row) {
  const outputs = row.outputs.filter(isNumber);
  return function (...given) {
    requireEngine(this, name, row);
    requireCount(name, row, given);
    const numbers = [],
      texts = [];
    row.inputs.forEach((input, i) => {
      const isText = input.type === 'string';
      if (typeof given[i] !== (isText ? 'string' : 'number')) {
        refuse(name, row, i, isText ? 'a text' : 'a number', given[i]);
      }
      (isText ? texts : numbers).push(given[i]);
    });
    if (row.inputs.length !== 0) this.changed();
    const place = scratch(),
      results = place + 8 * numbers.length;
    const code = withTexts(texts, (list, sizes) => {
      memoryNumbers().set(numbers, place / 8);
      return wasm.calvex_call_texts(
        this.address,
        row.number,
        place,
        numbers.length,
        list,
        sizes,
        texts.length,
        results,
        outputs.length,
      );
    });
    this.require(code, name);
    const found = Array.from(memoryNumbers().subarray(results / 8, results / 8 + outputs.length));
    const values = row.outputs.map(output =>
      isNumber(output)
        ? found.shift()
        : output.type === 'string'
          ? (table(this)[0]?.[0] ?? '')
          : table(this),
    );
    return values.length === 0 ? undefined : answer(this, row, values);
  };
}

/** What the last call answered besides numbers. */
function table(engine) {
  const place = scratch();
  wasm.calvex_answer_size(engine.address, place, place + 4);
  const rows = memoryView().getUint32(place, true),
    count = memoryView().getUint32(place + 4, true);
  const cell = (row, column) => {
    wasm.calvex_answer_kind(engine.address, row, column, place);
    if (memoryView().getInt32(place, true) === 1) {
      return textFrom((...room) => wasm.calvex_answer_text(engine.address, row, column, ...room));
    }
    wasm.calvex_answer_number(engine.address, row, column, place);
    return memoryNumbers()[place / 8];
  };
  return Array.from({ length: rows }, (_, row) =>
    Array.from({ length: count }, (_, column) => cell(row, column)),
  );
}

function settingOf(name, row) {
  const read = methodOf(name, { ...row, inputs: [], outputs: row.outputs });
  const isText = row.outputs[0].type === 'string';
  return {
    configurable: true,
    get() {
      return read.call(this);
    },
    set:
      row.kind === 'reading'
        ? undefined
        : function (value) {
            if (typeof value !== (isText ? 'string' : 'number')) {
              throw new TypeError(
                `${name} is to be ${isText ? 'a text' : 'a number'}, not ${String(value)}`,
              );
            }
            this.changed();
            const code = isText
              ? withTexts([value], (_texts, _sizes, [text]) =>
                  wasm.calvex_put_text(this.address, row.number, ...text),
                )
              : wasm.calvex_put(this.address, row.number, value);
            this.require(code, name);
          },
  };
}

/** Gives all engines the members of the table. */
export function defineMembers() {
  for (const [name, row] of memberNames()) {
    const property =
      row.kind === 'setting' || row.kind === 'reading'
        ? settingOf(name, row)
        : { value: row.kind === 'function' ? functionOf(name, row) : methodOf(name, row) };
    Object.defineProperty(Engine.prototype, name, { configurable: true, ...property });
  }
}
