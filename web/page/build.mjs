// Builds the page into a folder: build.mjs TARGET. With a second word, worker, only the list of files
// that the browser keeps is made anew: to be done when other parts of the folder have changed.
import { createHash } from 'node:crypto';
import { copyFileSync, mkdirSync, readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { join, relative } from 'node:path';
import { build } from 'esbuild';

const [target, only] = process.argv.slice(2);
const here = import.meta.dirname;

async function page() {
  mkdirSync(target, { recursive: true });
  // One classic script: a page from a file may load no modules.
  const { metafile } = await build({
    entryPoints: { page: join(here, 'src/main.tsx') },
    outdir: target,
    bundle: true,
    metafile: true,
    format: 'iife',
    target: 'es2022',
    minify: true,
    legalComments: 'none',
    charset: 'utf8',
    logLevel: 'warning',
    jsx: 'automatic',
    jsxImportSource: 'preact',
  });
  writeFileSync(join(target, 'licences.txt'), licences(metafile));
  copyFileSync(join(here, 'index.html'), join(target, 'index.html'));
  copyFileSync(join(here, 'src/icon.svg'), join(target, 'icon.svg'));
  writeFileSync(
    join(target, 'calvex.webmanifest'),
    JSON.stringify({
      name: 'Calvex – water and steam',
      short_name: 'Calvex',
      start_url: 'index.html',
      display: 'standalone',
      icons: [{ src: 'icon.svg', sizes: 'any', type: 'image/svg+xml' }],
    }),
  );
}

/** The licences of the packages that are in the script, each text once with all whose it is. */
function licences({ inputs }) {
  const folders = new Set(
    Object.keys(inputs).flatMap(
      file => /^.*node_modules\/(?:@[^/]+\/)?[^/]+/.exec(file)?.[0] ?? [],
    ),
  );
  const owners = new Map();
  for (const folder of [...folders].sort()) {
    const file = readdirSync(folder).find(name => /^licen[cs]e/i.test(name));
    const { name, version } = JSON.parse(readFileSync(join(folder, 'package.json'), 'utf8'));
    const text = readFileSync(join(folder, file), 'utf8').trim();
    owners.set(text, [...(owners.get(text) ?? []), `${name} ${version}`]);
  }
  const ours = readFileSync(join(here, '../../LICENSE'), 'utf8').trim();
  return [[ours, ['Calvex']], ...owners]
    .map(([text, names]) => `${names.join(', ')}\n\n${text}\n`)
    .join(`\n${'-'.repeat(72)}\n\n`);
}

/** The worker knows all files of the folder, and their contents by its version. */
function worker() {
  const files = readdirSync(target, { recursive: true, withFileTypes: true })
    .filter(entry => entry.isFile() && entry.name !== 'worker.js')
    .map(entry => relative(target, join(entry.parentPath, entry.name)))
    .sort();
  const hash = createHash('sha256');
  for (const file of files) hash.update(file).update(readFileSync(join(target, file)));
  const text = readFileSync(join(here, 'src/worker.js'), 'utf8')
    .replace('VERSION;', `'calvex-${hash.digest('hex').slice(0, 16)}';`)
    .replace('FILES;', `${JSON.stringify(['./', ...files], null, 1)};`);
  writeFileSync(join(target, 'worker.js'), text);
}

if (only !== 'worker') await page();
worker();
