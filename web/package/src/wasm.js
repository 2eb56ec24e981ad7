// The engine in WebAssembly: its memory, texts and lists that go in and out, and the codes that its
// functions answer.

/** The functions of the module; set by `start`. */
export let wasm;

let bytes;
let numbers;
let view;
const encoder = new TextEncoder();
const decoder = new TextDecoder();

/** Where the next call of the engine is laid out; what is larger gets room of its own. */
let desk;
const deskSize = 1 << 16;

/** Views of the memory, which are others after it has grown. */
function look() {
  if (bytes?.buffer !== wasm.memory.buffer) {
    bytes = new Uint8Array(wasm.memory.buffer);
    numbers = new Float64Array(wasm.memory.buffer);
    view = new DataView(wasm.memory.buffer);
  }
}
function memoryBytes() {
  look();
  return bytes;
}
export function memoryNumbers() {
  look();
  return numbers;
}
export function memoryView() {
  look();
  return view;
}

/** Words of the engine for those who type commands. */
const ofCommandLine = / \(on the command line also [^)]*\)/;

/** A call that failed: `message` is the reason and, where there is one, the cause behind it. */
export class CalvexError extends Error {
  constructor(code, reason, behind = '', member = '') {
    const cause = behind.replace(ofCommandLine, '');
    const full = cause ? `${reason} ${cause}` : reason;
    // Some reasons name their member, "HPT failed; tracing is off".
    const named = full.startsWith(`${member} failed`);
    super(member && !named ? `${member} failed: ${full}` : full);
    this.name = 'CalvexError';
    this.code = code;
    this.reason = reason;
    this.cause = cause;
    this.full = full;
    this.member = member;
  }
}

/** What a failed call has to tell; what else went wrong goes on. */
export function reasonOf(failure) {
  if (failure instanceof CalvexError) return failure.full;
  throw failure;
}

const noFiles = () => 8; // "bad file number": there are none
const imports = {
  wasi_snapshot_preview1: {
    fd_close: noFiles,
    fd_read: noFiles,
    fd_seek: noFiles,
    fd_write: noFiles,
    proc_exit: code => {
      throw new Error(`the engine ended with ${code}`);
    },
    environ_sizes_get: (count, size) => {
      const view = memoryView();
      view.setUint32(count, 0, true);
      view.setUint32(size, 0, true);
      return 0;
    },
    environ_get: () => 0,
    clock_time_get: (_clock, _precision, time) => {
      memoryView().setBigUint64(time, BigInt(Date.now()) * 1000000n, true);
      return 0;
    },
  },
  env: { emscripten_notify_memory_growth: () => {} },
};

export async function start(module) {
  wasm = (await WebAssembly.instantiate(module, imports)).exports;
  wasm._initialize();
  desk = wasm.malloc(deskSize);
}

// --- Room for what goes in and out ---------------------------------------------------------------

/** Calls `use` with the address of so many bytes, aligned for numbers. */
export function withRoom(size, use) {
  const room = wasm.malloc(size);
  if (room === 0) throw new CalvexError(-7, 'Out of memory.');
  try {
    return use(room);
  } finally {
    wasm.free(room);
  }
}

/** A place for the few numbers of a scalar call: of two calls at a time the second has others. */
export const scratch = () => desk;

// --- Texts ---------------------------------------------------------------------------------------

/** Calls `use` with the address and the size of each text. */
export function withTexts(texts, use) {
  const encoded = texts.map(text => encoder.encode(text));
  const total = encoded.reduce((sum, text) => sum + text.length, 0);
  return withRoom(8 * texts.length + total + 8, room => {
    const memory = memoryBytes(),
      view = memoryView();
    let at = room + 8 * texts.length;
    const places = encoded.map((text, i) => {
      memory.set(text, at);
      view.setUint32(room + 4 * i, at, true);
      view.setUint32(room + 4 * (texts.length + i), text.length, true);
      const place = at;
      at += text.length;
      return [place, text.length];
    });
    return use(room, room + 4 * texts.length, places);
  });
}

/** A text that a function writes: give(address, size, address of the size that is needed). */
export function textFrom(give) {
  const needed = desk,
    room = desk + 8;
  let code = give(room, deskSize - 8, needed);
  const size = memoryView().getUint32(needed, true) - 1;
  if (code === 0) return decoder.decode(memoryBytes().subarray(room, room + size));
  if (code !== -6) throw new CalvexError(code, 'There is no such text.');
  return withRoom(size + 1, large => {
    code = give(large, size + 1, needed);
    return decoder.decode(memoryBytes().subarray(large, large + size));
  });
}
