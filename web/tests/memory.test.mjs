// A long session takes no more memory than a short one.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Engine } from 'calvex';
import { wasm } from '../../build/web/package/wasm.js';

const size = () => wasm.memory.buffer.byteLength;

test('a million calls, failures among them, leave the memory as it is', () => {
  const steam = new Engine();
  const call = i => {
    try {
      steam.HPT(10, i % 10 === 0 ? 5000 : 400 + (i % 500));
    } catch {}
  };
  for (let i = 0; i < 10_000; ++i) call(i);
  const before = size();
  for (let i = 0; i < 1_000_000; ++i) call(i);
  assert.equal(size(), before);
});

test('arrays, states and engines give back what they took', () => {
  const steam = new Engine();
  const T = Float64Array.from({ length: 50_000 }, (_, i) => 300 + i / 50);
  const round = () => {
    steam.HPT(10, T);
    steam.state({ P: 10, T });
    steam.state({ P: 10, T: 500 }).all();
    steam.setUnit('T', 'K');
    const other = new Engine({ T: 'C' });
    other.TPH(1, 2000);
    other.destroy();
    steam.trace();
  };
  for (let i = 0; i < 20; ++i) round();
  const before = size();
  for (let i = 0; i < 60; ++i) round();
  assert.ok(size() - before < 1 << 20, `${size() - before} bytes more`);
});
