// The page in a real Chromium, watched: what it says on its console, what it asks for and from whom.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { join } from 'node:path';
import { after, before } from 'node:test';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';
import { serve as serveFolder } from '../serve.mjs';

export const site = fileURLToPath(new URL('../../../build/site/', import.meta.url));
const program = fileURLToPath(new URL('../../../build/release/apps/calvex', import.meta.url));
const fromFile = pathToFileURL(join(site, 'index.html')).href;

/** What the command line prints, without one's own units. */
export const commandLine = (...words) =>
  execFileSync(program, words, {
    encoding: 'utf8',
    env: { ...process.env, CALVEX_CONFIG: '' },
    stdio: ['ignore', 'pipe', 'ignore'],
  });
/** A line for a shell, with `calvex` before it. */
export const shellLine = line =>
  execFileSync('sh', ['-c', `calvex() { "${program}" "$@"; }\n${line} --json`], {
    encoding: 'utf8',
    env: { ...process.env, CALVEX_CONFIG: '' },
    stdio: ['ignore', 'pipe', 'ignore'],
  });

let browser;
before(async () => {
  browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox'], // root has none
  });
});
after(() => browser.close());

/** The folder on a port of its own. */
export const serve = () => serveFolder(site);

/** Opens the page and runs a test on it; afterwards its console must be silent and all that it asked
 * for must be in its folder. */
export async function onPage(
  hash,
  test,
  { url = fromFile, ready = 'main h2, main table', ...how } = {},
) {
  const context = await browser.newContext({
    viewport: { width: 1360, height: 900 },
    colorScheme: 'light',
    acceptDownloads: true,
    ...how,
  });
  context.setDefaultTimeout(10_000);
  const page = await context.newPage();
  const complaints = [];
  page.on('console', message => {
    if (['error', 'warning'].includes(message.type())) complaints.push(message.text());
  });
  page.on('pageerror', failure => complaints.push(failure.stack));
  const folder = url.replace(/[^/]*$/, '');
  page.on('request', request => {
    const asked = request.url();
    if (!asked.startsWith(folder) && !/^(data|blob):/.test(asked))
      complaints.push(`asked ${asked}`);
  });
  try {
    await page.goto(url + hash);
    await page.waitForSelector(ready);
    await test(page, context);
  } catch (failure) {
    if (complaints.length > 0) failure.message += `\nThe page said: ${complaints.join('\n')}`;
    throw failure;
  } finally {
    await context.close();
  }
  assert.deepEqual(complaints, []);
}

/** Another address of the same page, as if one had typed it. */
export const lookAt = (page, hash) =>
  page.evaluate(address => {
    location.hash = address;
  }, hash);

/** The text of one that is there. */
export const textOf = async (page, selector) =>
  (await page.locator(selector).first().textContent()).replace(/\s+/g, ' ').trim();

export const near = (actual, expected, tolerance, what) =>
  assert.ok(
    Math.abs(actual - expected) <= tolerance * Math.max(Math.abs(expected), 1e-300),
    `${what}: ${actual} is not ${expected}`,
  );

/** The trouble beside a field, once it says it. */
export const troubleOf = (page, name) => textOf(page, `.field:has([data-key="${name}"]) .trouble`);
export const troubled = page =>
  page.locator('.field.wrong input').evaluateAll(fields => fields.map(field => field.dataset.key));
