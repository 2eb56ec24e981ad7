// The packed file, used as its receiver would.
import assert from 'node:assert/strict';
import { execFileSync, spawnSync } from 'node:child_process';
import { cpSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';

const root = fileURLToPath(new URL('../..', import.meta.url));
const version = /calvex VERSION ([0-9.]+)/.exec(
  readFileSync(join(root, 'CMakeLists.txt'), 'utf8'),
)[1];
const options = ['--offline', '--ignore-scripts', '--no-audit', '--no-fund'];
let folder;

before(() => {
  folder = mkdtempSync(join(tmpdir(), 'calvex-'));
  writeFileSync(join(folder, 'package.json'), '{"private":true,"type":"module"}');
  const file = join(root, 'build', `calvex-${version}.tgz`);
  execFileSync('npm', ['install', ...options, file], { cwd: folder, stdio: 'ignore' });
});
after(() => rmSync(folder, { recursive: true }));

const node = (...words) => execFileSync(process.execPath, words, { cwd: folder, encoding: 'utf8' });

test('an empty folder with the package answers', () => {
  writeFileSync(
    join(folder, 'program.js'),
    `import { Engine, simd, version } from 'calvex';
     console.log(new Engine({ T: '°C', P: 'bar' }).HPT(100, 500).toFixed(6), simd, version);`,
  );
  assert.equal(node('program.js'), `3373.998049 true ${version}\n`);
});

test('the example of its page runs', () => {
  const page = readFileSync(join(folder, 'node_modules/calvex/README.md'), 'utf8');
  const [, example] = /```js\n(.*?)```/s.exec(page);
  assert.doesNotMatch(page, /\]\((?!https?:)/);
  writeFileSync(join(folder, 'example.js'), example);
  const [, shown] = /HPT\(100, 500\)\); +\/\/ ([0-9.]+)\.\.\., kJ\/kg/.exec(example);
  assert.ok(node('example.js').startsWith(shown), shown);
});

test('the engine for machines without vectors gives the same answers', () => {
  writeFileSync(
    join(folder, 'plain.js'),
    `import { Engine, load, simd } from 'calvex/load';
     await load({ simd: false });
     const h = new Engine().HPT([10, 1, 0.01], [773.15, 300, 400]);
     console.log(simd, ...Array.from(h, x => x.toPrecision(10)));`,
  );
  const plain = node('plain.js').trim().split(' ');
  const vectors = node(
    '-e',
    `import('calvex').then(({ Engine }) => console.log(...Array.from(
      new Engine().HPT([10, 1, 0.01], [773.15, 300, 400]), x => x.toPrecision(10))))`,
  );
  assert.deepEqual(plain, ['false', ...vectors.trim().split(' ')]);
});

test('it has what belongs to it, and nothing else', () => {
  const files = readdirSync(join(folder, 'node_modules/calvex')).sort();
  const sources = readdirSync(join(root, 'web/package/src'));
  const made = ['engine.wasm.js', 'engine-simd.wasm.js', 'members.d.ts', 'tables.js'];
  const papers = ['LICENSE', 'README.md', 'THIRD-PARTY-NOTICES.md', 'package.json'];
  assert.deepEqual(files, [...sources, ...made, ...papers].sort());
  const facts = JSON.parse(readFileSync(join(folder, 'node_modules/calvex/package.json')));
  assert.equal(facts.version, version);
  assert.equal(facts.dependencies, undefined);
});

test('its types hold for a program, and refuse what is wrong', () => {
  cpSync(join(root, 'web/tests/typed'), folder, { recursive: true });
  const compiler = join(root, 'web/node_modules/typescript/bin/tsc');
  const run = spawnSync(process.execPath, [compiler, '-p', folder], { encoding: 'utf8' });
  assert.equal(run.stdout, '');
});
