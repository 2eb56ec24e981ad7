// Tables of the page against those of the command line, on the screen, in the clipboard and in files.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { commandLine, near, onPage, serve, textOf, troubled, troubleOf } from './browser.mjs';

const rowsOf = (text, between) =>
  text
    .trim()
    .split(/\r?\n/)
    .slice(1)
    .map(line => line.split(between));
/** The columns of the command line's table by what stands before the unit. */
function commandTable(...words) {
  const [head, ...rows] = commandLine('table', ...words, '-u', 'P=bara', '-u', 'T=C', '--csv')
    .trim()
    .split('\n');
  const names = head.split(',').map(name => name.split(' ')[0]);
  return rows.map(row => Object.fromEntries(row.split(',').map((cell, i) => [names[i], cell])));
}
const shown = page =>
  page
    .locator('.data tbody tr')
    .evaluateAll(rows => rows.map(row => [...row.children].map(cell => cell.textContent)));

async function csvOf(page) {
  const [file] = await Promise.all([
    page.waitForEvent('download'),
    page.getByRole('button', { name: 'CSV' }).click(),
  ]);
  return { name: file.suggestedFilename(), text: readFileSync(await file.path(), 'utf8') };
}

const units = 'u.P=bara&u.T=C';

for (const [by, range] of [
  ['T', [20, 360, 20]],
  ['P', [1, 200, 7]],
]) {
  test(`saturation by ${by} is the command line’s`, async () => {
    const [from, to, step] = range;
    const expected = commandTable(
      'saturation',
      '--by',
      by,
      '--from',
      from,
      '--to',
      to,
      '--step',
      step,
    );
    await onPage(`#tables?table=${by}&from=${from}&to=${to}&step=${step}&${units}`, async page => {
      const { name, text } = await csvOf(page);
      assert.equal(name, `calvex-saturation-${by}.csv`);
      const rows = rowsOf(text, ',');
      assert.equal(rows.length, expected.length);
      rows.forEach((row, i) => {
        const wanted = expected[i];
        const [T, P] = by === 'T' ? row : [row[1], row[0]];
        const { v_liq, v_vap, h_liq, h_vap, s_liq, s_vap, u_liq, u_vap } = wanted;
        near(T, wanted.T, 1e-10, 'T');
        near(P, wanted.P, 1e-10, 'P');
        const [v, rho, h, s, u] = [2, 4, 6, 8, 10].map(k => [row[k], row[k + 1]]);
        [
          [v, v_liq, v_vap],
          [h, h_liq, h_vap],
          [s, s_liq, s_vap],
          [u, u_liq, u_vap],
          [rho, 1 / v_liq, 1 / v_vap],
        ].forEach(([[liquid, vapour], a, b], k) => {
          near(liquid, a, 1e-9, `${k} liquid at ${T}`);
          near(vapour, b, 1e-9, `${k} vapour at ${T}`);
        });
      });
      const onScreen = await shown(page);
      assert.equal(onScreen.length, rows.length);
      onScreen[3].forEach((cell, k) => near(Number(cell), rows[3][k], 1e-6, `on the screen ${k}`));
    });
  });
}

test('an isobar is the command line’s, with both states where it crosses the line', async () => {
  const expected = commandTable('isobar', '100', '--from', '20', '--to', '700', '--step', '20');
  await onPage(`#tables?table=isobar&at=100&from=20&to=700&step=20&${units}`, async page => {
    const rows = rowsOf((await csvOf(page)).text, ',');
    assert.equal(rows.length, expected.length);
    rows.forEach(([T, phase, v, rho, h, s, u, cp, w], i) => {
      const wanted = expected[i];
      near(T, wanted.T, 1e-9, 'T');
      assert.equal(phase.startsWith('saturated'), wanted.phase.startsWith('saturated'));
      const pairs = { v, rho, h, s, u };
      for (const [name, value] of Object.entries(pairs))
        near(value, wanted[name], 1e-9, `${name} at ${T}`);
      if (phase.startsWith('saturated')) return;
      near(cp, wanted.cp, 1e-9, `cp at ${T}`);
      near(w, wanted.w, 1e-9, `w at ${T}`);
    });
  });
});

test('copied, a table is text with tabs for a spreadsheet', async () => {
  const { url, server } = await serve();
  try {
    await onPage(
      `#tables?table=T&from=100&to=200&step=50&${units}`,
      async page => {
        await page.getByRole('button', { name: 'Copy', exact: true }).click();
        await page.getByText('Copied: paste it').waitFor();
        const text = await page.evaluate(() => navigator.clipboard.readText());
        const lines = text.trim().split(/\r?\n/);
        assert.equal(lines.length, 4);
        assert.deepEqual(lines[0].split('\t').slice(0, 4), [
          'T [°C]',
          'P [bara]',
          'v liquid [m³/kg]',
          'v vapour [m³/kg]',
        ]);
        const [boiling] = commandTable('saturation', '--from', 100, '--to', 100, '--step', 1);
        near(lines[1].split('\t')[1], boiling.P, 1e-10, 'P');
      },
      { url, permissions: ['clipboard-read', 'clipboard-write'] },
    );
  } finally {
    server.close();
  }
});

const bad = [
  ['from=x', 'from', /no number/],
  ['from=200&to=100', 'to', /below its beginning/],
  ['step=0', 'step', /above 0/],
  ['step=', 'step', /empty/],
  ['from=20&to=300&step=0.001', 'step', /larger step/],
];
test('a bad range is told beside its field', async () => {
  for (const [query, field, says] of bad) {
    await onPage(
      `#tables?${query}&${units}`,
      async page => {
        assert.deepEqual(await troubled(page), [field], query);
        assert.match(await troubleOf(page, field), says);
        assert.equal(await page.locator('.data').count(), 0);
      },
      { ready: '.trouble' },
    );
  }
});

test('rows beyond the critical point are left out and told', async () => {
  await onPage(`#tables?table=T&from=350&to=400&step=10&${units}`, async page => {
    assert.equal((await shown(page)).length, 3);
    assert.match(await textOf(page, '.warning'), /Temperature/);
  });
});

test('a table tells which rows it leaves out', async () => {
  await onPage('#tables?table=T&from=0&to=500&step=50&u.T=C', async page => {
    assert.equal((await shown(page)).length, 7);
    const told = await textOf(page, '.warning');
    assert.match(told, /the rows at 0, 400, 450, 500\. .*0\.01 to 373\.98 C/);
  });
});

test('one row is one', async () => {
  await onPage('#tables?table=T&from=100&to=100&step=1&u.T=C', async page => {
    assert.match(await textOf(page, '.data caption'), /, 1 row$/);
  });
});

test('the row of the boiling point is left out, and the saturated states are there', async () => {
  await onPage(`#tables?table=isobar&at=1.01325&from=50&to=150&step=50&${units}`, async page => {
    const told = await textOf(page, '.warning');
    assert.match(told, /the row at 100\. .*liquid and vapour are together\.$/);
    const phases = (await shown(page)).map(row => row[1]);
    assert.deepEqual(phases, [
      'compressed liquid',
      'saturated liquid',
      'saturated vapour',
      'superheated vapour',
    ]);
  });
});

test('a spreadsheet knows the file’s letters by its first bytes', async () => {
  await onPage('#tables', async page => {
    const { text } = await csvOf(page);
    assert.ok(text.startsWith('\uFEFF'));
    assert.ok(text.includes('m³/kg'));
  });
});

test('an isobar calls its phases as engineers do', async () => {
  await onPage(`#tables?table=isobar&at=10&from=100&to=600&step=100&${units}`, async page => {
    assert.deepEqual(
      (await shown(page)).map(row => row[1]),
      [
        'compressed liquid',
        'saturated liquid',
        'saturated vapour',
        ...new Array(5).fill('superheated vapour'),
      ],
    );
  });
});
