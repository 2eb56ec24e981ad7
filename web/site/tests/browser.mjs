// Debian's Chromium, and pages that note what must not happen.
import { chromium } from 'playwright-core';

import { output } from '../source/places.mjs';

export const launch = () =>
  chromium.launch({ executablePath: '/usr/bin/chromium', args: ['--no-sandbox'] });

export const address = path => `file://${output}/${path}`;

/** A page whose `faults` are console errors, exceptions and requests beyond the folder. */
export async function openPage(browser, path, options = {}) {
  const context = await browser.newContext(options);
  const page = await context.newPage();
  page.faults = [];
  page.on('console', message => {
    if (['error', 'warning'].includes(message.type())) page.faults.push(message.text());
  });
  page.on('pageerror', error => page.faults.push(error.message));
  page.on('request', request => {
    const url = request.url();
    if (!url.startsWith(address('')) && !/^(data|blob):/.test(url))
      page.faults.push(`asks for ${url}`);
  });
  if (path !== undefined) await page.goto(address(path));
  return page;
}

/** Presses the button and waits for the answer. */
export async function run(page) {
  await page.locator('#outcome').evaluate(outcome => {
    outcome.textContent = '';
  });
  await page.getByRole('button', { name: 'Run', exact: true }).click();
  await page.waitForFunction(() => document.querySelector('#outcome').textContent !== '');
}
