// A state from what one types, against the command line; and what is wrong beside the field.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { commandLine, lookAt, near, onPage, textOf, troubled, troubleOf } from './browser.mjs';

const valuesOf = page =>
  page
    .locator('.results [data-letter]')
    .evaluateAll(rows =>
      Object.fromEntries(
        rows.map(row => [
          row.dataset.letter,
          Number(row.querySelector('[data-value]')?.dataset.value),
        ]),
      ),
    );

const commandState = (...words) =>
  JSON.parse(commandLine('state', ...words, '-u', 'P=bara', '-u', 'T=C', '--json'));

function sameState(values, expected) {
  const letters = Object.keys(expected).filter(letter => /^[A-Z]$/.test(letter));
  assert.ok(letters.length >= 8);
  for (const letter of letters) near(values[letter], expected[letter], 1e-9, letter);
}

const units = 'u.P=bara&u.T=C';
/** Pairs with values that give superheated steam, water and wet steam. */
const cases = [
  { P: 100, T: 500 },
  { P: 100, H: 3000 },
  { P: 50, S: 2.5 },
  { P: 1, U: 2000 },
  { P: 10, R: 900 },
  { P: 10, V: 0.15 },
  { P: 10, Q: 0.3 },
  { T: 150, H: 2000 },
  { T: 300, S: 6.5 },
  { T: 150, Q: 0.9 },
  { T: 400, V: 0.05 },
  { T: 400, R: 20 },
];

test('all properties of every pair are those of the command line', async () => {
  await onPage(`#state?${units}`, async page => {
    for (const given of cases) {
      await lookAt(page, `#state?${new URLSearchParams(given)}&${units}`);
      for (const [letter, text] of Object.entries(given)) {
        await page.waitForFunction(
          ([key, wanted]) => document.querySelector(`[data-key=${key}]`)?.value === wanted,
          [letter, String(text)],
        );
      }
      const words = Object.entries(given).map(([letter, value]) => `${letter}=${value}`);
      sameState(await valuesOf(page), commandState(...words));
    }
  });
});

test('enthalpy and entropy tell the state that has them', async () => {
  const { H, S } = commandState('P=100', 'T=500');
  await onPage(`#state?H=${H}&S=${S}&${units}`, async page => {
    const values = await valuesOf(page);
    near(values.P, 100, 1e-8, 'P');
    near(values.T, 500, 1e-8, 'T');
  });
});

test('by keyboard alone one types a state, with units of any kind', async () => {
  await onPage(`#state?${units}`, async page => {
    await page.keyboard.press('/');
    assert.equal(await page.evaluate(() => document.activeElement.id), 'pair');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Control+A');
    await page.keyboard.type('1450 psia');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Control+A');
    await page.keyboard.type('900 °F');
    const expected = JSON.parse(
      commandLine('state', 'P=1450psia', 'T=900F', '-u', 'P=bara', '-u', 'T=C', '--json'),
    );
    await page.waitForFunction(
      T =>
        Math.abs(document.querySelector('[data-letter=T] [data-value]')?.dataset.value - T) < 1e-6,
      expected.T,
    );
    sameState(await valuesOf(page), expected);
  });
});

test('another pair keeps the state', async () => {
  await onPage(`#state?P=100&T=500&${units}`, async page => {
    const before = await valuesOf(page);
    for (const pair of ['PH', 'HS', 'TV', 'PT']) {
      await page.selectOption('#pair', pair);
      await page.waitForSelector(`[data-key="${pair[1]}"]`);
      const after = await valuesOf(page);
      for (const letter of 'PTHSUR') near(after[letter], before[letter], 1e-7, `${pair} ${letter}`);
    }
  });
});

test('units changed back give back what was typed; what is no number stays', async () => {
  await onPage('#state?P=1e400&T=773.15', async page => {
    const typed = name => page.inputValue(`[data-key=${name}]`);
    const choose = (words, unit) => page.getByLabel(`Unit of ${words}`).selectOption(unit);
    await choose('pressure', 'barg');
    assert.equal(await typed('P'), '1e400');
    for (let i = 0; i < 20; ++i) {
      for (const unit of ['F', 'R', 'C', 'K']) await choose('temperature', unit);
    }
    assert.equal(await typed('T'), '773.15');
    await page.locator('[data-key=P]').fill('145.03773773020923');
    await choose('pressure', 'psig');
    assert.ok((await typed('P')).replace(/\D/g, '').length <= 10);
    await choose('pressure', 'barg');
    assert.equal(await typed('P'), '145.03773773020923');
    // What is typed in the meantime is what counts.
    await choose('pressure', 'bara');
    await page.locator('[data-key=P]').fill('100');
    await choose('pressure', 'MPa');
    assert.equal(await typed('P'), '10');
    await choose('pressure', 'barg');
    assert.equal(await typed('P'), '98.98675');
  });
});

test('another pair keeps the text of what both have', async () => {
  await onPage(`#state?P=10.0&H=2000&${units}`, async page => {
    await page.selectOption('#pair', 'PQ');
    await page.waitForSelector('[data-key=Q]');
    assert.equal(await page.inputValue('[data-key=P]'), '10.0');
  });
});

test('a pair that does not tell the state does not lose it', async () => {
  await onPage(`#state?P=10&Q=1&${units}`, async page => {
    const choose = async (pair, letter) => {
      await page.selectOption('#pair', pair);
      await page.waitForSelector(`[data-key=${letter}]`);
    };
    await choose('PT', 'T');
    assert.match(await textOf(page, '.trouble'), /“Given” has these pairs/);
    await choose('PQ', 'Q');
    assert.equal(await page.inputValue('[data-key=Q]'), '1');
    assert.equal(await textOf(page, '.results h2'), 'Saturated vapour');
    await choose('PT', 'T');
    await page.locator('[data-key=T]').fill('400');
    await choose('PH', 'H');
    near(Number(await page.inputValue('[data-key=H]')), 3264.4, 1e-3, 'steam of 10 bar, 400 °C');
  });
});

/** Water of 100 bar and 25 °C has the enthalpy of wet steam of 25 °C, and no quality tells superheated
 * steam. */
for (const [given, pair, was, now] of [
  [
    'P=100&T=25',
    'TH',
    /It was compressed liquid at 100 bara and 25 °C, density 100\d\.\d+ kg/,
    /^Wet/,
  ],
  ['P=100&T=500', 'PQ', /It was superheated vapour at 100 bara and 500 °C/, /^Saturated vapour/],
]) {
  test(`another pair that shows another state tells so: ${given} by ${pair}`, async () => {
    await onPage(`#state?${given}&${units}`, async page => {
      const before = await valuesOf(page);
      const notice = page.locator('.inputs .warning');
      await page.selectOption('#pair', pair);
      await page.waitForSelector(`[data-key=${pair[1]}]`);
      assert.equal(await notice.count(), 1);
      assert.match(await notice.innerText(), was);
      assert.match(await textOf(page, '.results h2'), now);
      // One that has the state shows it again, and what is typed is a new one.
      await page.selectOption('#pair', 'PS');
      await page.waitForSelector('[data-key=S]');
      assert.equal(await notice.count(), 0);
      near((await valuesOf(page)).R, before.R, 1e-7, 'density');
      await page.selectOption('#pair', pair);
      await notice.waitFor();
      await page.locator(`[data-key=${pair[1]}]`).fill('0.5');
      await notice.waitFor({ state: 'detached' });
    });
  });
}

/** The regions by the critical point, 647.126 K and 22.055 MPa, and the words of the command line. */
const phases = [
  ['P=100&T=500', /^Superheated vapour$/],
  ['P=1&T=2000', /^Superheated vapour$/],
  ['P=3.5&T=641', /^Superheated vapour$/],
  ['P=250&T=500', /^Supercritical fluid$/],
  ['P=1323&T=106', /^Compressed liquid$/],
  ['P=10&T=20', /^Compressed liquid$/],
  ['P=10&Q=0', /^Saturated liquid$/],
  ['P=10&Q=1', /^Saturated vapour$/],
  ['P=10&Q=100&u.Q=%25', /^Saturated vapour$/],
  ['P=10&Q=50&u.Q=%25', /^Wet steam, x = 0.5 \(50 % vapour\)$/],
];

test('a phase is called as engineers and the command line do', async () => {
  for (const [given, words] of phases) {
    await onPage(`#state?${given}&${units}`, async page => {
      const heading = await textOf(page, '.results h2');
      assert.match(heading, words, given);
      if (given.includes('%25')) return;
      const said = commandLine('state', ...given.split('&'), '-u', 'P=bara', '-u', 'T=C');
      assert.equal(said.split('\n')[0].toLowerCase(), heading.toLowerCase());
    });
  }
});

test('the dot is inside the diagram whatever the state', async () => {
  for (const kind of ['hs', 'Ts', 'logph']) {
    for (const given of [
      'P=1&T=-5',
      'P=0.5&T=60',
      'P=10&Q=0.5',
      'P=1&T=2200',
      'P=5000&T=100',
      'P=0.001&T=800',
    ]) {
      await onPage(`#state?kind=${kind}&${given}&${units}`, async page => {
        const { dot, frame } = await page.evaluate(async () => {
          while (!document.querySelector('.state-dot')) await new Promise(requestAnimationFrame);
          const box = selector => document.querySelector(selector).getBoundingClientRect().toJSON();
          return { dot: box('.state-dot'), frame: box('.frame') };
        });
        assert.ok(dot.left > frame.left && dot.right < frame.right, `${kind} ${given}`);
        assert.ok(dot.top > frame.top && dot.bottom < frame.bottom, `${kind} ${given}`);
      });
    }
  }
});

test('another unit keeps what was typed the same quantity', async () => {
  await onPage('#state?P=10&T=773.15', async page => {
    const before = await valuesOf(page);
    await page.getByLabel('Unit of temperature').selectOption('C');
    await page.getByLabel('Unit of pressure').selectOption('barg');
    assert.equal(await page.inputValue('[data-key=T]'), '500');
    near(Number(await page.inputValue('[data-key=P]')), 100 - 1.01325, 1e-11, 'gauge');
    const after = await valuesOf(page);
    near(after.H, before.H, 1e-10, 'H');
    near(after.T, 500, 1e-12, 'T');
    assert.equal(await textOf(page, '[data-letter=T] .unit'), '°C');
  });
});

/** What is typed, which field is at fault, and what must be said there. */
const bad = [
  [{ P: 'steam', T: '500' }, ['P'], /“steam” is no number/],
  [{ P: '', T: '500' }, ['P'], /Pressure is empty/],
  [{ P: '100', T: '' }, ['T'], /Temperature is empty/],
  [
    { P: '100', T: '3000' },
    ['T'],
    /Temperature parameter out of range \(Valid range -13.15 to 2226.85 C\)/,
  ],
  [{ P: '0', T: '500' }, ['P'], /Pressure must be above 0 bara/],
  [{ P: '100', T: '500 furlong' }, ['T'], /furlong/],
  [{ P: '100 kg', T: '500' }, ['P'], /kg/],
  [{ P: '1,5', T: '500' }, ['P'], /decimal sign is a point/],
  [{ P: 'x', T: 'y' }, ['P', 'T'], /no number/],
  [{ P: '100', H: '9000' }, ['H'], /Enthalpy 9000 kJ\/kg is above any that water has at 100 bara/],
  [{ H: '100', S: '9' }, ['H', 'S'], /No state within the range is found that has both/],
  [{ P: '100', Q: '1.5' }, ['Q'], /Quality parameter out of range/],
  [{ P: '1e999', T: '500' }, ['P'], /“1e999” is too large/],
  [{ P: '1e-400', T: '500' }, ['P'], /“1e-400” is too small/],
  [{ P: '0e0 ft H2O', T: '500' }, ['P'], /Pressure must be above 0/],
  ...[
    '1,000.5',
    '1.000,5',
    '1 000',
    "1'000",
    '1.2.3',
    '10^2',
    '1/2',
    '10🙂',
    '0x10',
    '1e',
    '1e-',
  ].map(text => [{ P: text, T: '500' }, ['P'], /is no number/]),
  [{ P: '-5', T: '500' }, ['P'], /Pressure/],
];

test('a bad input is told beside its field, in one’s own units, and only there', async () => {
  await onPage(`#state?${units}`, async page => {
    for (const [given, fields, says] of bad) {
      await lookAt(page, `#state?${new URLSearchParams(given)}&${units}`);
      await page
        .waitForFunction(
          wanted =>
            [...document.querySelectorAll('.field.wrong input')].map(f => f.dataset.key).join() ===
            wanted,
          fields.join(),
          { timeout: 5000 },
        )
        .catch(async () => assert.deepEqual(await troubled(page), fields, JSON.stringify(given)));
      for (const field of fields) assert.match(await troubleOf(page, field), says);
      const input = page.locator(`[data-key="${fields[0]}"]`);
      assert.equal(await input.getAttribute('aria-invalid'), 'true');
      const told = (await input.getAttribute('aria-describedby')).split(' ').at(-1);
      assert.match(await page.locator(`[id="${told}"]`).innerText(), says);
      assert.equal(await textOf(page, '.results h2'), 'No state');
      assert.equal(await page.locator('.results .number').count(), 0);
    }
  });
});

test('the boiling point with its pressure asks for another pair', async () => {
  await onPage(`#state?P=1.01325&T=100&${units}`, async page => {
    assert.match(await textOf(page, '.trouble'), /Two phase conditions/);
    const told = await textOf(page, '.trouble');
    assert.match(told, /Give the pressure with the quality instead \(0 is liquid/);
    assert.match(told, /“Given” has these pairs\.$/);
    // The calls of all members of the pair, which fail alike, are few branches with all their names.
    await page.waitForSelector('.tree');
    assert.ok((await page.locator('.tree > li').count()) <= 3);
    assert.ok((await page.locator('.tree .error').count()) <= 6);
    const tree = await textOf(page, '.tree');
    for (const name of ['HPT', 'SPT', 'CPT']) assert.match(tree, new RegExp(`\\b${name}\\b`));
  });
});

test('the trace has the calls behind a state as a tree that folds', async () => {
  await onPage(`#state?P=100&T=3000&${units}`, async page => {
    const errors = page.locator('.tree .error');
    await errors.first().waitFor();
    assert.match(await errors.first().locator('..').innerText(), /Temperature parameter/);
    assert.match(await textOf(page, '.tree summary'), /HPT, .*, WPT/);
    const branch = page.locator('.tree details').first();
    assert.equal(await branch.getAttribute('open'), '');
    await branch.locator('summary').first().focus();
    await page.keyboard.press('Enter');
    assert.equal(await branch.getAttribute('open'), null);
  });
  await onPage(`#state?P=100&T=500&${units}`, async page => {
    assert.equal(await page.locator('.tree').count(), 0);
    await page.getByLabel('with the notes of the solver').check();
    await page.locator('.tree .note').first().waitFor({ state: 'attached' });
  });
});

test('outside of the strictly valid range the state is warned of', async () => {
  await onPage(`#state?P=100&T=1500&${units}`, async page => {
    await page.locator('.warning').first().waitFor();
    assert.match(await textOf(page, '.results .warning'), /strictly valid/);
  });
});

test('the state’s dot stands where the axes have its entropy and enthalpy', async () => {
  await onPage(`#state?P=100&T=500&${units}`, async page => {
    await page.waitForSelector('.state-dot', { state: 'attached' });
    const found = await page.evaluate(() => {
      const [x, y] = document
        .querySelector('.state-dot')
        .getAttribute('d')
        .match(/[\d.]+/g)
        .map(Number);
      // Two ticks of an axis tell its scale.
      const scale = (transform, text, at) => {
        const ticks = [...document.querySelectorAll('.axes > g')]
          .map(g => ({
            place: g
              .getAttribute('transform')
              .match(/[\d.]+/g)
              .map(Number),
            text: g.textContent,
          }))
          .filter(({ place }) => transform(place) !== 0 && text(place) === 0);
        const [a, b] = [ticks[0], ticks.at(-1)].map(t => [transform(t.place), Number(t.text)]);
        return a[1] + ((at - a[0]) * (b[1] - a[1])) / (b[0] - a[0]);
      };
      return {
        s: scale(
          p => p[0],
          p => p[1],
          x,
        ),
        h: scale(
          p => p[1],
          p => p[0],
          y,
        ),
      };
    });
    const { H, S } = commandState('P=100', 'T=500');
    near(found.s, S, 2e-3, 'entropy');
    near(found.h, H, 2e-3, 'enthalpy');
  });
});
