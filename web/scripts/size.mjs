// What the engine weighs, as it is and compressed: size.mjs ENGINE.wasm ...
import { readFileSync } from 'node:fs';
import { basename } from 'node:path';
import { brotliCompressSync, gzipSync } from 'node:zlib';

const limit = 500;
const kB = bytes => Math.round(bytes.length / 1000);
for (const file of process.argv.slice(2)) {
  const engine = readFileSync(file);
  const packed = gzipSync(engine, { level: 9 });
  console.log(
    `${basename(file).padEnd(18)}${kB(engine)} kB, gzip ${kB(packed)} kB, ` +
      `brotli ${kB(brotliCompressSync(engine))} kB`,
  );
  if (kB(packed) >= limit) process.exitCode = 1;
}
if (process.exitCode) console.error(`an engine is to stay below ${limit} kB compressed`);
