// What readers do, by pointer and by keyboard, in light and dark, on a phone, without JavaScript.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { after, before, test } from 'node:test';

import { address, launch, openPage, run } from './browser.mjs';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
/** One page of each kind. */
const kinds = [
  'index.html',
  'equipment.html',
  'members.html',
  'members/TurbineA.html',
  'members/SolverTol.html',
  'members/Convert.html',
  'equations.html',
  'units.html',
  'messages.html',
  'accuracy.html',
  'examples.html',
  'search.html?q=boiling',
];
const phone = { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true };

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

/** A test on a page of its own, without console errors or foreign requests. */
function onPage(name, path, check, options) {
  test(name, async () => {
    const page = await openPage(browser, path, options);
    try {
      await check(page);
      assert.deepEqual(page.faults, []);
    } finally {
      await page.context().close();
    }
  });
}

/** Chooses a unit and waits for the answer in it. */
async function choose(page, label, unit) {
  await page.locator('#outcome').evaluate(line => {
    line.textContent = '';
  });
  await page.getByLabel(label, { exact: true }).selectOption(unit);
  await page.waitForFunction(() => document.querySelector('#outcome').textContent !== '');
}

const outcome = page => page.locator('#outcome').textContent();

onPage('A typed input and a chosen unit hold for the answer', 'members/HPT.html', async page => {
  await choose(page, 'unit of T', 'C');
  assert.equal(await page.getByLabel('T', { exact: true }).inputValue(), '500');
  await choose(page, 'unit of P', 'bara');
  assert.equal(await page.getByLabel('P', { exact: true }).inputValue(), '100');
  await run(page);
  assert.equal(await outcome(page), 'H = 3373.998049 kJ/kg'); // the README's first example
  await page.getByLabel('T', { exact: true }).fill('3000');
  await run(page);
  // The README's example of a refusal.
  assert.equal(
    await outcome(page),
    'Temperature parameter out of range (Valid range -13.15 to 2226.85 C).',
  );
  await page.getByRole('button', { name: 'As it was' }).click();
  await page.waitForFunction(() =>
    document.querySelector('#outcome').textContent.startsWith('H ='),
  );
  assert.equal(await page.getByLabel('T', { exact: true }).inputValue(), '773.15');
  assert.equal(await page.getByLabel('unit of T', { exact: true }).inputValue(), 'K');
});

onPage('Streams of one quantity share their unit', 'members/TurbineA.html', async page => {
  await choose(page, 'unit of PIn', 'bara');
  assert.equal(await page.getByLabel('unit of POut').inputValue(), 'bara');
  assert.equal(await page.getByLabel('POut', { exact: true }).inputValue(), '10');
  await run(page);
  assert.match(await outcome(page), /^Power = 4729\.91789 kW/);
});

onPage('What is no number is told beside its field', 'members/HPT.html', async page => {
  const P = page.getByLabel('P', { exact: true });
  for (const [typed, reason] of [
    ['abc', 'P is to be a number, not abc.'],
    ['', 'P is missing.'],
  ]) {
    await P.fill(typed);
    await run(page);
    assert.equal(await outcome(page), reason);
    assert.ok(
      await P.evaluate(
        field => field === document.activeElement && field.hasAttribute('aria-invalid'),
      ),
    );
    assert.equal(await page.locator('output').textContent(), '–');
  }
  await P.fill('10');
  await run(page);
  assert.ok(!(await P.evaluate(field => field.hasAttribute('aria-invalid'))));
});

onPage('What the engine refuses is told beside its field', 'members/HPT.html', async page => {
  const typed = name => page.getByLabel(name, { exact: true });
  const isInvalid = field => field.hasAttribute('aria-invalid');
  for (const [wrong, right, value, reason] of [
    ['P', 'T', '0', / Pressure must be above 0 MPa\.$/],
    ['T', 'P', '5000', /^Temperature parameter out of range/],
  ]) {
    const before = await typed(wrong).inputValue();
    await typed(wrong).fill(value);
    await run(page);
    assert.match(await outcome(page), reason);
    assert.ok(await typed(wrong).evaluate(isInvalid));
    assert.ok(await typed(wrong).evaluate(field => field === document.activeElement));
    assert.ok(!(await typed(right).evaluate(isInvalid)));
    await typed(wrong).fill(before);
    await run(page);
    assert.equal(await page.locator('[aria-invalid]').count(), 0);
  }
});

onPage(
  'A unit may stand behind a number, and the command line follows',
  'members/HPT.html',
  async page => {
    const typed = name => page.getByLabel(name, { exact: true });
    await typed('P').fill('100 bar');
    await typed('T').fill('500 °C');
    await run(page);
    assert.match(await outcome(page), /^H = 3373\.998/); // the README's first example
    await choose(page, 'unit of P', 'bara');
    await typed('T').fill('773.15');
    await run(page);
    assert.equal(await outcome(page), 'H = 3373.998049 kJ/kg');
    assert.equal(await page.locator('#command').textContent(), 'calvex -u P=bara HPT 100 773.15');
    for (const [wrong, reason] of [
      ['100 furlong', /furlong/],
      ['1e999 bar', /is to be a number/],
    ]) {
      await typed('P').fill(wrong);
      await run(page);
      assert.match(await outcome(page), reason);
      assert.ok(await typed('P').evaluate(field => field === document.activeElement));
    }
  },
);

onPage('A message’s button leads to the input that is wrong', 'members/HPT.html', async page => {
  await page
    .getByRole('button', { name: /^HPT 10 (?!773\.15)/ })
    .first()
    .click();
  await page.waitForFunction(() => document.activeElement.matches('#in-2'));
});

onPage('Every message comes up again with the inputs beside it', 'members/TPH.html', async page => {
  const rows = page.locator('table.stacked tbody tr');
  const count = await rows.count();
  assert.ok(count >= 4);
  for (let i = 0; i < count; ++i) {
    const said = (await rows.nth(i).locator('td').nth(1).innerText())
      .replace(/^Warning: /, '')
      .split('\n');
    await page.locator('#outcome').evaluate(line => {
      line.textContent = '';
    });
    await rows.nth(i).getByRole('button').click();
    await page.waitForFunction(() => document.querySelector('#outcome').textContent !== '');
    const now = await outcome(page);
    for (const part of said) assert.ok(now.includes(part), `${now} instead of ${part}`);
  }
});

onPage('The example is computed by keyboard alone', 'members/PSatT.html', async page => {
  await page.getByLabel('T', { exact: true }).focus();
  await page.keyboard.press('Control+A');
  await page.keyboard.type('373.15');
  await page.keyboard.press('Enter');
  await page.waitForFunction(() => document.querySelector('#outcome').textContent !== '');
  const [, value] = (await outcome(page)).match(/^P = (\S+) MPa$/);
  assert.equal(Number(value).toFixed(6), '0.101322'); // the README's table
});

onPage('The search is reached by a key and finds as one types', 'index.html', async page => {
  await page.keyboard.press('Tab');
  assert.equal(await page.evaluate(() => document.activeElement.textContent), 'To the content');
  await page.keyboard.press('/');
  await page.keyboard.type('surface tension');
  await page.keyboard.press('Enter');
  await page.waitForURL(/search\.html\?q=surface/);
  await page.getByText(/found for/).waitFor();
  assert.ok((await page.locator('#found a').allTextContents()).slice(0, 3).includes('XT'));
  await page.keyboard.press('/');
  await page.keyboard.press('Control+A');
  await page.keyboard.type('psia');
  await page.getByRole('link', { name: 'Pressure', exact: true }).click();
  await page.waitForURL(/units\.html#u1/);
  await page.goto(address('search.html?q=%3Cimg%3Ezzz'));
  assert.equal(await page.locator('#count').textContent(), 'Nothing found for “<img>zzz”.');
});

onPage(
  'The colours are the system’s until chosen, and stay chosen',
  'index.html',
  async page => {
    const paper = () => page.evaluate(() => getComputedStyle(document.body).backgroundColor);
    const dark = await paper();
    await page.getByRole('button', { name: 'Colours: auto' }).click();
    const light = await paper();
    assert.notEqual(light, dark);
    await page.goto(address('members/HPT.html'));
    assert.equal(await paper(), light);
    await page.getByRole('button', { name: 'Colours: light' }).click();
    assert.equal(await paper(), dark);
  },
  { colorScheme: 'dark' },
);

/** What the checker finds, with all its rules or with those that are named. */
async function violations(page, rules) {
  const found = await page.evaluate(
    only => globalThis.axe.run({ preload: false, ...(only && { runOnly: only }) }),
    rules,
  );
  return found.violations.map(
    ({ id, nodes }) => `${id}: ${nodes.map(node => node.html).slice(0, 3)}`,
  );
}

for (const path of kinds) {
  onPage(`${path} is accessible in light and dark`, path, async page => {
    await page.addScriptTag({ content: axe });
    assert.deepEqual(await violations(page), []);
    await page.emulateMedia({ colorScheme: 'dark' });
    assert.deepEqual(await violations(page, ['color-contrast']), []);
  });
  onPage(
    `${path} fits a phone`,
    path,
    async page => {
      const [wide, small] = await page.evaluate(() => {
        const isSmall = each =>
          each.offsetParent !== null && each.getBoundingClientRect().height < 43.5;
        return [
          document.documentElement.scrollWidth - innerWidth,
          [...document.querySelectorAll('main :is(button, input, select)')]
            .filter(isSmall)
            .map(each => each.outerHTML),
        ];
      });
      assert.ok(wide <= 0, `${wide} px too wide`);
      assert.deepEqual(small, []);
    },
    phone,
  );
}

onPage('On paper there is the text alone', 'members/HPT.html', async page => {
  await page.emulateMedia({ media: 'print' });
  for (const part of ['.top form', '.guides', '.actions', 'footer']) {
    assert.equal(await page.locator(part).isVisible(), false, part);
  }
  assert.ok(await page.getByRole('heading', { name: 'Results' }).isVisible());
});

onPage(
  'Without JavaScript the example stands there with its answer',
  'members/HPT.html',
  async page => {
    assert.equal(await page.locator('output').textContent(), '3373.998049');
  },
  { javaScriptEnabled: false },
);
