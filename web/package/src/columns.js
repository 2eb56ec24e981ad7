// Members over arrays, in blocks that stay in the processor's cache: properties by the direct road.
import { memoryNumbers, memoryView, wasm, withRoom } from './wasm.js';

const blockRows = 4096;

export const isColumn = value =>
  Array.isArray(value) || (ArrayBuffer.isView(value) && !(value instanceof DataView));

/** The inputs as numbers or lists of numbers, and the length that they have together. */
export function commonLength(called, names, given) {
  let length;
  given.forEach((value, i) => {
    const wanted = `${called}: ${names[i]} is to be a number or an array of numbers`;
    if (isColumn(value)) {
      if (length !== undefined && value.length !== length) {
        const lengths = names.map((name, j) => isColumn(given[j]) ? `${name} ${given[j].length}` : '');
        throw new RangeError(`${called}: arrays of these lengths do not go together: ` +
          lengths.filter(Boolean).join(', '));
      }
      length = value.length;
      if (!Array.isArray(value)) return;
      const at = value.findIndex(element => typeof element !== 'number');
      if (at >= 0) throw new TypeError(`${wanted}; at [${at}] it has ${String(value[at])}`);
    } else if (typeof value !== 'number') {
      const shown = typeof value === 'string' ? JSON.stringify(value) : String(value);
      throw new TypeError(`${wanted}, not ${shown}`);
    }
  });
  return length;
}

/** The outputs of a member over arrays and numbers: a Float64Array each, NaN where a row fails. A call
 * with numbers alone has one row, and throws where it fails. */
export function columns(engine, name, row, given) {
  const names = row.inputs.map(input => input.name);
  const arrayLength = commonLength(`${name}(${names.join(', ')})`, names, given);
  const length = arrayLength ?? 1;
  const results = row.outputs.map(() => new Float64Array(length));
  const failed = [];
  const block = Math.min(blockRows, Math.max(length, 1));
  const inputs = given.length, outputs = results.length;
  // The columns, one after the other, the statuses, then the lists and the request of calvex_columns.
  const statuses = 8 * block * (inputs + outputs), lists = statuses + 8 * Math.ceil(block / 4);
  const request = lists + 8 * inputs + 12 * outputs;
  withRoom(request + 48, room => {
    const memory = memoryView();
    const put = (at, value) => memory.setUint32(at, value, true);
    const column = i => room + 8 * block * i;
    given.forEach((value, i) => {
      put(room + lists + 8 * i, column(i));
      put(room + lists + 8 * i + 4, isColumn(value) ? 1 : 0);
      if (!isColumn(value)) memoryNumbers()[column(i) / 8] = value;
    });
    results.forEach((_, i) => {
      const at = room + lists + 8 * inputs + 12 * i;
      put(at, i);
      put(at + 4, column(inputs + i));
      put(at + 8, 1);
    });
    const rows = [row.number, 0, room + lists, inputs, room + lists + 8 * inputs, outputs,
      room + statuses, 1, 0, 0, 1];
    rows.forEach((value, i) => put(room + request + 4 * i, value));

    for (let begin = 0; begin < length; begin += block) {
      const count = Math.min(block, length - begin);
      const numbers = memoryNumbers();
      given.forEach((value, i) => {
        if (!isColumn(value)) return;
        const part = begin === 0 && count === length ? value
          : Array.isArray(value) ? value.slice(begin, begin + count)
          : value.subarray(begin, begin + count);
        numbers.set(part, column(i) / 8);
      });
      memoryView().setUint32(room + request + 4, count, true);
      const code = wasm.calvex_columns(engine.address, room + request, 44);
      if (code !== 0) throw engine.failure(code, name);
      const after = memoryNumbers();
      results.forEach((result, i) => {
        const at = column(inputs + i) / 8;
        result.set(after.subarray(at, at + count), begin);
      });
      const status = new Int16Array(wasm.memory.buffer, room + statuses, count);
      for (let i = 0; i < count; ++i) {
        if (status[i] === 0) continue;
        if (arrayLength === undefined) throw engine.failure(status[i], name);
        failed.push(begin + i);
      }
    }
  });
  if (arrayLength !== undefined) {
    keepFailed(engine, length, failed, given, (then, inputsOfRow) =>
      columns(then, name, row, inputsOfRow));
  }
  return results;
}

/** Keeps why rows failed, to be found out when somebody asks: with the inputs and the units that they
 * had. */
export function keepFailed(engine, length, failed, given, again) {
  const then = failed.length === 0 ? undefined : engine.kept();
  const kept = failed.map(row => given.map(value => isColumn(value) ? value[row] : value));
  engine.keepArray(length, failed.map((row, i) => [row, () => {
    try {
      again(then, kept[i]);
    } catch (failure) {
      return failure.cause ? `${failure.reason} ${failure.cause}` : failure.reason;
    }
    return '';
  }]));
}
