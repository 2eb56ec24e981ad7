// The pages as files: every member has one, every link leads somewhere in the folder, the HTML is valid.
import assert from 'node:assert/strict';
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { posix } from 'node:path';
import { test } from 'node:test';

import { members } from 'calvex';
import { HtmlValidate } from 'html-validate';
import { Parser } from 'htmlparser2';

import { output } from '../source/places.mjs';

/** What a page has for links: its names, and what it asks for. */
function read(path) {
  const page = { ids: [], links: [] };
  new Parser({
    onopentag(_tag, { id, href, src, action }) {
      if (id !== undefined) page.ids.push(id);
      for (const link of [href, src, action]) if (link !== undefined) page.links.push(link);
    },
  }).end(readFileSync(posix.join(output, path), 'utf8'));
  return page;
}

const paths = readdirSync(output, { recursive: true }).filter(name => name.endsWith('.html'));
const pages = new Map(paths.map(path => [path, read(path)]));

test('Every member has a page', () => {
  const absent = members.filter(member => !pages.has(`members/${member.name}.html`));
  assert.deepEqual(
    absent.map(member => member.name),
    [],
  );
  assert.equal(paths.filter(path => path.startsWith('members/')).length, members.length);
});

test('Every guide has a page, and what it shows is in the folder', () => {
  assert.ok(pages.get('command-line.html').ids.includes('when-a-call-fails'));
  assert.ok(existsSync(`${output}/files/mollier.svg`));
});

/** Why a link is none that leads somewhere in the folder; empty for one that does. */
function fault(path, link) {
  if (link === 'data:,') return ''; // the icon that there is none
  if (!/^(\.\.?\/|#)/.test(link)) return 'is not relative';
  const [file, fragment] = link.split('#');
  const target = file === '' ? path : posix.normalize(posix.join(posix.dirname(path), file));
  if (target === '../index.html') return ''; // the page to look at steam, which has this folder
  if (!existsSync(posix.join(output, target))) return 'leads nowhere';
  if (fragment && !pages.get(target)?.ids.includes(fragment)) return 'names nothing there';
  return '';
}

test('Every link is relative and leads somewhere', () => {
  const faults = [];
  let count = 0;
  for (const [path, { links }] of pages) {
    for (const link of links) {
      ++count;
      const why = fault(path, link);
      if (why) faults.push(`${path}: ${link} ${why}`);
    }
  }
  assert.deepEqual(faults, []);
  assert.ok(count > 20 * members.length);
});

test('A link that is not relative, leads nowhere or names nothing is found', () => {
  assert.equal(fault('index.html', 'https://example.org/'), 'is not relative');
  assert.equal(fault('members/HPT.html', './members.html'), 'leads nowhere');
  assert.equal(fault('members/HPT.html', '../messages.html#m999'), 'names nothing there');
});

test('“Page” leads out of the documentation, from every depth', () => {
  for (const [path, { links }] of pages) {
    const places = links.map(link => posix.join(posix.dirname(path), link));
    assert.ok(places.includes('../index.html'), path);
  }
});

test('No name stands twice on a page', () => {
  const twice = [...pages].flatMap(([path, { ids }]) =>
    ids.filter((id, i) => ids.indexOf(id) !== i).map(id => `${path}#${id}`),
  );
  assert.deepEqual(twice, []);
});

test('The HTML is valid', async () => {
  const validator = new HtmlValidate({
    extends: ['html-validate:standard'],
    elements: ['html5'],
    rules: { 'no-trailing-whitespace': 'off', 'no-raw-characters': 'off', 'long-title': 'off' },
  });
  const faults = [];
  for (const path of paths) {
    const { results } = await validator.validateFile(posix.join(output, path));
    for (const { messages } of results) {
      faults.push(
        ...messages.map(({ line, ruleId, message }) => `${path}:${line}: ${ruleId}: ${message}`),
      );
    }
  }
  assert.deepEqual(faults.slice(0, 20), []);
});
