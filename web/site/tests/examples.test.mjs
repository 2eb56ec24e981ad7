// The example of every member, run in its page: what the command line answers to the same lines.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { after, before, test } from 'node:test';

import { members } from 'calvex';
import { commandLine } from '../source/places.mjs';
import { address, launch, openPage, run } from './browser.mjs';

const tolerance = 1e-12;
const pagesAtOnce = 3;
/** A whole number that a member leaves out (hWnd, where there are no windows). */
const leftOut = 0;

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

/** The page has the results of all tokens, the line of the command line names some. */
const allTokens = member => `"${member.outputs.map(output => output.name).join(' ')}"`;

/** What the command line answers to the last of the lines that a page shows, value by value. */
function answered(member, lines) {
  const script = lines
    .map(line => line.replace(/^calvex /, ''))
    .join('\n')
    .replace(/"[^"]*"$/, tokens => (member.hasTokens ? allTokens(member) : tokens));
  const { stdout } = spawnSync(commandLine, ['--no-config', '--json', 'run', '-'], {
    input: `${script}\n`,
    encoding: 'utf8',
  });
  const answer = JSON.parse(stdout.trim().split('\n').at(-1));
  assert.equal(answer.pSucc ?? 1, 1, `${member.name}: ${answer.lastError}`);
  if (member.hasTokens) return answer.pRetArray.map(row => row[1]);
  return member.outputs.map(
    ({ name, type }) =>
      answer[`p${name}`] ??
      answer[name] ??
      answer.value ??
      (type === 'integer' ? leftOut : undefined),
  );
}

function same(shown, expected) {
  if (typeof expected !== 'number')
    return shown === (typeof expected === 'string' ? expected : JSON.stringify(expected));
  return Math.abs(Number(shown) - expected) <= tolerance * Math.abs(expected);
}

async function faultsOf(page, member) {
  await page.goto(address(`members/${member.name}.html`));
  const [shownLines, printed] = await page.evaluate(() => [
    document.querySelector('dd code').textContent,
    [...document.querySelectorAll('output')].map(o => o.textContent),
  ]);
  await run(page);
  const failed = await page.locator('#outcome.failed').count();
  if (failed) return [`${member.name}: ${await page.locator('#outcome').textContent()}`];
  const [values, texts] = await page.evaluate(() =>
    ['value', 'text'].map(what =>
      [...document.querySelectorAll('output')].map(o =>
        what === 'text' ? o.textContent : o.dataset.value,
      ),
    ),
  );
  const expected = answered(member, shownLines.split('\n'));
  assert.equal(values.length, expected.length, member.name);
  return values.flatMap((value, i) => {
    const faults = same(value, expected[i])
      ? []
      : [`${member.name}: ${value}, the command line ${expected[i]}`];
    return texts[i] === printed[i]
      ? faults
      : [...faults, `${member.name}: printed ${printed[i]}, then ${texts[i]}`];
  });
}

test('Every example runs in its page and answers as the command line does', async () => {
  const left = [...members],
    faults = [];
  await Promise.all(
    Array.from({ length: pagesAtOnce }, async () => {
      const page = await openPage(browser);
      while (left.length > 0) faults.push(...(await faultsOf(page, left.shift())));
      faults.push(...page.faults);
    }),
  );
  assert.deepEqual(faults, []);
});
