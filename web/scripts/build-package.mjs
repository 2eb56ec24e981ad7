// Puts the npm package together: build-package.mjs BUILT TARGET, where BUILT has the modules.
import { cpSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { deflateSync } from 'node:zlib';
import { memberTypes } from './member-types.mjs';

const [built, target] = process.argv.slice(2);
const root = fileURLToPath(new URL('../..', import.meta.url));
const write = (file, text) => writeFileSync(join(target, file), text);

/** What the member table says, from the module that is made for it. */
async function readTables() {
  const module = await WebAssembly.compile(readFileSync(join(built, 'tables.wasm')));
  const imports = {};
  for (const { module: from, name } of WebAssembly.Module.imports(module)) {
    imports[from] ??= {};
    imports[from][name] = () => 0;
  }
  const wasm = (await WebAssembly.instantiate(module, imports)).exports;
  wasm._initialize();
  const at = wasm.calvex_web_tables();
  const bytes = new Uint8Array(wasm.memory.buffer);
  const { messages, members, ...tables } = JSON.parse(
    new TextDecoder().decode(bytes.subarray(at, bytes.indexOf(0, at))),
  );
  // A spreadsheet's member is called with its numbers alone.
  for (const row of members) if (row.hasTokens) row.example.inputs.pop();
  const [{ text: version }, ...rest] = messages;
  return { version, members, messages: rest, ...tables };
}

rmSync(target, { recursive: true, force: true });
mkdirSync(target, { recursive: true });
cpSync(join(root, 'web/package/src'), target, { recursive: true });
for (const file of ['LICENSE', 'THIRD-PARTY-NOTICES.md']) {
  cpSync(join(root, file), join(target, file));
}
// The other pages of the documentation are not in the package: of links to them the words stay.
const page = readFileSync(join(root, 'docs/javascript.md'), 'utf8');
write('README.md', page.replace(/\[([^\]]+)\]\((?!https?:)[^)]*\)/g, '$1'));

const tables = await readTables();
write('tables.js', `export default JSON.parse(${JSON.stringify(JSON.stringify(tables))});\n`);
// A browser reads the engine from the module itself, so that files and pages without a server do.
for (const engine of ['engine', 'engine-simd']) {
  const packed = deflateSync(readFileSync(join(built, `${engine}.wasm`)), { level: 9 });
  write(`${engine}.wasm.js`, `export default '${packed.toString('base64')}';\n`);
}
write('members.d.ts', memberTypes(await import(pathToFileURL(join(target, 'table.js')))));
const facts = JSON.parse(readFileSync(join(root, 'web/package/package.json')));
write('package.json', `${JSON.stringify({ ...facts, version: tables.version }, null, 2)}\n`);
