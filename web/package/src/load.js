// Everything of the package, and the engine that must be loaded before it is used.
import { defineMembers } from './engine.js';
import { start } from './wasm.js';

export { Engine, Results } from './engine.js';
export { findGroup } from './quantities.js';
export { State, pairs, properties } from './state.js';
export { findMember, findMembers, groups, letters, members, messages, version } from './table.js';
export { convert, findUnit } from './units.js';
export { CalvexError } from './wasm.js';

/** Whether the engine works on two numbers at a time. */
export let simd = false;

// A function that splats a number over a vector: (func (drop (f64x2.splat (f64.const 0))))
const vectors = Uint8Array.from(
  '0 61 73 6d 1 0 0 0 1 4 1 60 0 0 3 2 1 0 a 10 1 e 0 44 0 0 0 0 0 0 0 0 fd 14 1a b'.split(' '),
  byte => Number.parseInt(byte, 16),
);

async function unpacked(base64) {
  const text = atob(base64);
  const packed = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) packed[i] = text.charCodeAt(i);
  const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream('deflate'));
  return new Response(stream).arrayBuffer();
}

let loading;
/** Makes the engine ready; once, however often it is called. */
export function load(options = {}) {
  loading ??= (async () => {
    simd = (options.simd ?? true) && WebAssembly.validate(vectors);
    const { default: packed } = await (simd
      ? import('./engine-simd.wasm.js')
      : import('./engine.wasm.js'));
    await start(await WebAssembly.compile(await unpacked(packed)));
    defineMembers();
  })();
  return loading;
}
