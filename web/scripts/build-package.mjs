// Puts the npm package together: build-package.mjs BUILT TARGET, where BUILT has the engines.
import { cpSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { deflateRawSync } from 'node:zlib';
import { memberTypes } from './member-types.mjs';

const [built, target] = process.argv.slice(2);
const root = fileURLToPath(new URL('../..', import.meta.url));

rmSync(target, { recursive: true, force: true });
mkdirSync(target, { recursive: true });
cpSync(join(root, 'web/package/src'), target, { recursive: true });
for (const file of ['LICENSE', 'THIRD-PARTY-NOTICES.md']) cpSync(join(root, file), join(target, file));

// A browser reads the engine from the module itself, so that files and pages without a server do.
for (const engine of ['engine', 'engine-simd']) {
  const packed = deflateRawSync(readFileSync(join(built, `${engine}.wasm`)), { level: 9 });
  writeFileSync(join(target, `${engine}.wasm.js`), `export default '${packed.toString('base64')}';\n`);
}

const calvex = await import(pathToFileURL(join(target, 'load.js')));
await calvex.load();
writeFileSync(join(target, 'members.d.ts'), memberTypes(calvex));
const facts = JSON.parse(readFileSync(join(root, 'web/package/package.json')));
writeFileSync(join(target, 'package.json'),
  `${JSON.stringify({ ...facts, version: calvex.version }, null, 2)}\n`);
