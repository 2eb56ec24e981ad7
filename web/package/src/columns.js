// Arrays: requests of the engine, laid out in its memory and run in blocks that stay in the
// processor's cache.
import { memoryNumbers, memoryView, reasonOf, wasm, withRoom } from './wasm.js';

const blockRows = 4096;

export const isColumn = value =>
  Array.isArray(value) || (ArrayBuffer.isView(value) && !(value instanceof DataView));

/** How a value is shown in a message. */
export const shown = value =>
  typeof value === 'string'
    ? JSON.stringify(value)
    : typeof value === 'object' && value !== null
      ? Object.prototype.toString.call(value)
      : `${String(value)}${typeof value === 'bigint' ? 'n' : ''}`;

/** Whether the memory of a typed array has been transferred: it is empty then, and refuses a view. */
function isDetached(value) {
  if (value.length > 0 || Array.isArray(value)) return false;
  try {
    return new Uint8Array(value.buffer).length < 0;
  } catch {
    return true;
  }
}

/** The length that the arrays among the inputs have together; undefined: all are numbers. */
export function commonLength(called, names, given) {
  let length;
  given.forEach((value, i) => {
    const wanted = `${called}: ${names[i]} is to be a number or an array of numbers`;
    if (typeof value === 'number') return;
    if (!isColumn(value)) throw new TypeError(`${wanted}, not ${shown(value)}`);
    if (isDetached(value)) {
      throw new TypeError(`${wanted}; this one is detached, as one that was sent to a worker`);
    }
    const mixed = Array.isArray(value) || typeof value[0] === 'bigint';
    const at = mixed ? value.findIndex(x => typeof x !== 'number') : -1;
    if (at >= 0) throw new TypeError(`${wanted}; at [${at}] it has ${shown(value[at])}`);
    length ??= value.length;
    if (value.length !== length) {
      const lengths = names.flatMap((name, j) =>
        isColumn(given[j]) ? `${name} ${given[j].length}` : [],
      );
      throw new RangeError(
        `${called}: arrays of these lengths do not go together: ${lengths.join(', ')}`,
      );
    }
  });
  return length;
}

/** Runs a request over the inputs, into lists of numbers and of codes, all of one length.
 *
 * `layOut` is told the addresses of the columns and of `size` bytes, writes into these what else the
 * engine reads, and answers what runs so many rows. */
export function inBlocks(given, numbers, codes, size, layOut) {
  const { length } = codes[0];
  const rows = Math.min(blockRows, Math.max(length, 1));
  const columns = given.length + numbers.length;
  const codeBytes = 8 * Math.ceil(rows / 4);
  const tail = 8 * rows * columns + codeBytes * codes.length;
  withRoom(tail + size, room => {
    const input = i => room + 8 * rows * i;
    const output = i => input(given.length + i);
    const code = i => room + 8 * rows * columns + codeBytes * i;
    const run = layOut({ view: memoryView(), at: room + tail, input, output, code });
    for (let begin = 0; begin < length; begin += rows) {
      const count = Math.min(rows, length - begin);
      given.forEach((value, i) => {
        const place = input(i) / 8;
        if (!isColumn(value)) memoryNumbers()[place] = value;
        else if (count === value.length) memoryNumbers().set(value, place);
        else memoryNumbers().set(value.slice(begin, begin + count), place);
      });
      run(count);
      numbers.forEach((list, i) => {
        list.set(memoryNumbers().subarray(output(i) / 8, output(i) / 8 + count), begin);
      });
      codes.forEach((list, i) => {
        list.set(new Int16Array(wasm.memory.buffer, code(i), count), begin);
      });
    }
  });
}

/** The place from one row to the next: none for a number, which all rows have. */
export const strideOf = value => (isColumn(value) ? 1 : 0);

/** Writes whole numbers, one after the other. */
export function write(view, at, values) {
  values.forEach((value, i) => view.setUint32(at + 4 * i, value, true));
}

/** The outputs of a member over arrays and numbers: a Float64Array each, NaN where a row fails. A
 * call with numbers alone has one row, and throws where that fails. */
export function columns(engine, name, row, given) {
  const names = row.inputs.map(input => input.name);
  const length = commonLength(`${name}(${names.join(', ')})`, names, given);
  const results = row.outputs.map(() => new Float64Array(length ?? 1));
  const status = new Int16Array(length ?? 1);
  const inputs = given.length;
  const outputs = results.length;
  inBlocks(given, results, [status], 44 + 8 * inputs + 12 * outputs, place => {
    const { view, at } = place;
    const inputList = at + 44;
    const outputList = inputList + 8 * inputs;
    given.forEach((value, i) => write(view, inputList + 8 * i, [place.input(i), strideOf(value)]));
    results.forEach((_, i) => write(view, outputList + 12 * i, [i, place.output(i), 1]));
    // calvex_rows: member, count, inputs, outputs, status, reason, context, threads
    const lists = [inputList, inputs, outputList, outputs];
    write(view, at, [row.number, 0, ...lists, place.code(0), 1, 0, 0, 1]);
    return count => {
      memoryView().setUint32(at + 4, count, true);
      engine.require(wasm.calvex_columns(engine.address, at, 44), name);
    };
  });
  if (length === undefined) engine.require(status[0], name);
  else keepFailed(engine, status, given, (then, point) => columns(then, name, row, point));
  return results;
}

/** Keeps why rows failed, to be found out when somebody asks: with the inputs and the units that
 * they had. */
export function keepFailed(engine, status, given, again) {
  const failed = [];
  status.forEach((code, row) => {
    if (code !== 0) failed.push([row, given.map(value => (isColumn(value) ? value[row] : value))]);
  });
  const then = failed.length === 0 ? undefined : engine.kept();
  engine.keepReasons(() => {
    const reasons = new Array(status.length).fill('');
    for (const [row, point] of failed) {
      try {
        again(then, point);
      } catch (failure) {
        reasons[row] = reasonOf(failure);
      }
    }
    return reasons;
  });
}
