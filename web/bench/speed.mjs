// What a million points cost: on this machine with two lanes, in WebAssembly with vectors and
// without, in turns.
//
//   node web/bench/speed.mjs [MEMBER]
//
// after scripts/build-web and scripts/build release calvex_web_native
import { spawnSync } from 'node:child_process';
import { fileURLToPath } from 'node:url';

const count = 1_000_000,
  limit = 2.5;
const [member = 'HPT', engine] = process.argv.slice(2);

// States that a plant or a simulator has: 0.01 to 40 MPa, 280 to 1000 K. (A generator of Lehmer,
// 1951, with the constants of Park and Miller, 1988: the same points in every process.)
let seed = 7;
const between = (low, high) =>
  low + (high - low) * ((seed = (seed * 16807) % 2147483647) / 2147483647);
const P = new Float64Array(count),
  T = new Float64Array(count);
for (let i = 0; i < count; ++i) {
  P[i] = Math.exp(between(Math.log(0.01), Math.log(40)));
  T[i] = between(280, 1000);
}

if (engine !== undefined) {
  const { Engine, load } = await import('../../build/web/package/load.js');
  await load({ simd: engine === 'simd' });
  const steam = new Engine();
  let best = Infinity;
  for (let run = 0; run < 5; ++run) {
    const start = performance.now();
    steam[member](P, T);
    best = Math.min(best, performance.now() - start);
  }
  console.log(((1e6 * best) / count).toFixed(1));
  process.exit();
}

const self = fileURLToPath(import.meta.url);
const native = fileURLToPath(new URL('../../build/release/web/calvex_web_native', import.meta.url));
const points = Buffer.concat([Buffer.from(P.buffer), Buffer.from(T.buffer)]);
const forms = [
  { words: 'this machine, SSE 4 (two lanes)', run: [native, [member, 'SSE4'], points] },
  { words: 'WebAssembly with vectors', run: [process.execPath, [self, member, 'simd']] },
  { words: 'WebAssembly without', run: [process.execPath, [self, member, 'plain']] },
];
for (let turn = 0; turn < 3; ++turn) {
  for (const form of forms) {
    const [command, parameters, input] = form.run;
    const run = spawnSync(command, parameters, { input, encoding: 'utf8' });
    if (run.status !== 0) throw new Error(`${command}: ${run.stderr}`);
    form.best = Math.min(form.best ?? Infinity, Number(run.stdout));
  }
}
console.log(`${member}, ${count} points, ns a point`);
for (const { words, best } of forms) {
  console.log(
    `${words.padEnd(34)}${best.toFixed(0).padStart(6)}${(best / forms[0].best).toFixed(2).padStart(8)}`,
  );
}
if (forms[1].best > limit * forms[0].best) {
  console.error(`WebAssembly with vectors is to stay below ${limit} times this machine`);
  process.exitCode = 1;
}
