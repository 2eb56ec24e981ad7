// The diagrams: their lines, what one reads off them, and every way to look closer.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { commandLine, near, onPage, textOf } from './browser.mjs';

const units = 'u.P=bara&u.T=C';
const families = {
  Ts: ['P', 'v', 'h', 'x'],
  hs: ['P', 'T', 'v', 'x'],
  logph: ['T', 's', 'v', 'x'],
};
const onDiagram = (kind, test, query = '', how = {}) =>
  onPage(`#diagram/${kind}?${units}${query}`, test, { ready: '.plot .dome', ...how });

const readout = page =>
  page
    .locator('.readout [data-name]')
    .evaluateAll(cells =>
      Object.fromEntries(cells.map(cell => [cell.dataset.name, cell.textContent])),
    );
const frame = page => page.locator('.diagrams .plot .frame').boundingBox();
const zoomOf = page =>
  page.evaluate(() => new URLSearchParams(location.hash.split('?')[1]).get('zoom'));
const domeOf = page => page.locator('.diagrams .plot .dome').getAttribute('d');

/** What happens changes the drawing. */
async function redraws(page, deed) {
  const before = await domeOf(page);
  await deed();
  await page.waitForFunction(
    d => document.querySelector('.diagrams .plot .dome').getAttribute('d') !== d,
    before,
  );
}

for (const kind of Object.keys(families)) {
  test(`${kind} has its dome and its families of lines with labels`, async () => {
    await onDiagram(
      kind,
      async page => {
        for (const family of families[kind]) {
          const d = await page.locator(`.diagrams .line.of-${family}`).getAttribute('d');
          assert.ok(d.split('M').length > 4, `${family} has several lines`);
          assert.ok(
            (await page.locator(`.diagrams .label.of-${family}`).count()) > 2,
            `${family} has labels`,
          );
        }
        assert.doesNotMatch(
          await page.locator('.diagrams .plot').innerHTML(),
          /NaN|Infinity|undefined/,
        );
        assert.ok((await domeOf(page)).length > 500);
      },
      '&without=',
    );
  });

  test(`${kind}: what is read under the pointer is the state there, by the command line`, async () => {
    await onDiagram(kind, async page => {
      const { x, y, width, height } = await frame(page);
      for (const [across, down] of [
        [0.5, 0.25],
        [0.8, 0.3],
        [0.55, 0.8],
      ]) {
        await page.mouse.move(x + width * across, y + height * down);
        await page.waitForFunction(
          () => !['–', ''].includes(document.querySelector('.readout [data-name=P]').textContent),
        );
        await page.waitForTimeout(50);
        const read = await readout(page);
        const wet = /Wet/.test(read.phase);
        const given = wet ? [`P=${read.P}`, `Q=${read.x}`] : [`P=${read.P}`, `T=${read.T}`];
        const state = JSON.parse(
          commandLine('state', ...given, '-u', 'P=bara', '-u', 'T=C', '--json'),
        );
        for (const [name, letter] of Object.entries({ h: 'H', s: 'S', u: 'U', v: 'V', rho: 'R' })) {
          near(Number(read[name]), state[letter], 1e-4, `${name} at ${given}`);
        }
        if (!wet) near(Number(read.cp), state.C, 1e-3, `cp at ${given}`);
        assert.equal(read.cp === '–', wet);
        assert.equal(/left out/.test(read.why), wet);
        if (wet) assert.equal(/x = (\S+) \(/.exec(read.phase)[1], read.x);
      }
    });
  });
}

test('no state is there beyond what the equation covers', async () => {
  await onDiagram('Ts', async page => {
    const { x, y, height } = await frame(page);
    await page.mouse.move(x + 4, y + height * 0.1);
    await page.waitForFunction(
      () => document.querySelector('.readout [data-name=phase]').textContent === 'No state here',
    );
    assert.equal((await readout(page)).P, '–');
    assert.ok((await readout(page)).why.length > 10);
  });
});

test('reading off costs less than a frame of 60 a second', async () => {
  await onDiagram('hs', async page => {
    const { x, y, width, height } = await frame(page);
    for (let i = 0; i < 90; ++i) {
      await page.mouse.move(
        x + width * (0.1 + (0.8 * i) / 90),
        y + height * (0.5 + 0.4 * Math.sin(i / 9)),
      );
    }
    const costs = await page.evaluate(() =>
      performance
        .getEntriesByName('readout')
        .map(e => e.duration)
        .sort((a, b) => a - b),
    );
    assert.ok(costs.length > 30, `${costs.length} frames`);
    const [median, most] = [costs[Math.floor(costs.length / 2)], costs.at(-1)];
    console.log(
      `readout: median ${median.toFixed(2)} ms, 95 % below ${costs[Math.floor(costs.length * 0.95)].toFixed(2)} ms, most ${most.toFixed(2)} ms of ${costs.length} frames`,
    );
    assert.ok(median < 16, `median ${median} ms`);
  });
});

test('keys look closer, move and come back', async () => {
  await onDiagram('hs', async page => {
    await page.locator('.diagrams .plot').focus();
    const whole = await domeOf(page);
    await redraws(page, () => page.keyboard.press('+'));
    await redraws(page, () => page.keyboard.press('+'));
    await redraws(page, () => page.keyboard.press('ArrowRight'));
    await redraws(page, () => page.keyboard.press('ArrowDown'));
    await redraws(page, () => page.keyboard.press('-'));
    await page.waitForTimeout(300);
    assert.match(await zoomOf(page), /^1\.5,/);
    await page.keyboard.press('0');
    await page.waitForFunction(
      d => document.querySelector('.diagrams .plot .dome').getAttribute('d') === d,
      whole,
    );
    await page.waitForTimeout(300);
    assert.equal(await zoomOf(page), null);
  });
});

test('the wheel looks closer where the pointer is, dragging moves', async () => {
  await onDiagram('hs', async page => {
    const { x, y, width, height } = await frame(page);
    // A wheel is told in whole pixels.
    const spot = [Math.round(x + width * 0.4), Math.round(y + height * 0.4)];
    await page.mouse.move(...spot);
    await page.waitForTimeout(100);
    const before = await readout(page);
    await redraws(page, () => page.mouse.wheel(0, -500));
    await page.waitForTimeout(200);
    const after = await readout(page);
    near(Number(after.h), Number(before.h), 1e-4, 'enthalpy under the pointer');
    near(Number(after.s), Number(before.s), 1e-4, 'entropy under the pointer');
    await redraws(page, async () => {
      await page.mouse.down();
      await page.mouse.move(spot[0] + 80, spot[1] + 30, { steps: 5 });
      await page.mouse.up();
    });
    await page.waitForTimeout(200);
    const there = await readout(page);
    near(Number(there.h), Number(before.h), 1e-4, 'what was dragged is under the pointer');
  });
});

test('a closer look has more and finer lines', async () => {
  await onDiagram('hs', async page => {
    const labels = () =>
      page
        .locator('.diagrams .label.of-T')
        .evaluateAll(all => all.map(l => Number.parseFloat(l.textContent)));
    const step = list => Math.min(...list.slice(1).map((value, i) => Math.abs(value - list[i])));
    const before = step(await labels());
    await redraws(page, () => page.getByRole('button', { name: 'Zoom in' }).click());
    await redraws(page, () => page.getByRole('button', { name: 'Zoom in' }).click());
    await redraws(page, () => page.getByRole('button', { name: 'Zoom in' }).click());
    assert.ok(step(await labels()) < before);
    await redraws(page, () => page.getByRole('button', { name: 'Reset view' }).click());
  });
});

test('a click takes the state there', async () => {
  await onDiagram('logph', async page => {
    const { x, y, width, height } = await frame(page);
    await page.mouse.move(x + width * 0.8, y + height * 0.4);
    await page.waitForTimeout(100);
    const read = await readout(page);
    await page.mouse.down();
    await page.mouse.up();
    await page.waitForFunction(() => /[?&]P=/.test(location.hash));
    await page.getByRole('link', { name: 'State', exact: true }).click();
    await page.waitForSelector('[data-letter=P]');
    const P = await page.locator('[data-letter=P] [data-value]').getAttribute('data-value');
    near(Number(P), Number(read.P), 1e-4, 'pressure');
  });
});

test('with Shift and the arrows one reads without a pointer, and hears it', async () => {
  await onDiagram('hs', async page => {
    await page.locator('.diagrams .plot').focus();
    for (let i = 0; i < 5; ++i) await page.keyboard.press('Shift+ArrowUp');
    await page.waitForFunction(() =>
      [...document.querySelectorAll('output')].some(o =>
        /pressure [\d.]+ bara, temperature/.test(o.textContent),
      ),
    );
    assert.notEqual((await readout(page)).P, '–');
    await page.keyboard.press('Enter');
    await page.waitForFunction(() => /[?&]H=/.test(location.hash));
  });
});

test('families of lines can be left out, and the link keeps that', async () => {
  await onDiagram('hs', async page => {
    await page.getByLabel('Isochores').uncheck();
    await page.waitForFunction(() => !document.querySelector('.line.of-v'));
    await page.waitForFunction(() => location.hash.includes('without=v'));
  });
});

test('T–s begins with isobars and quality, and shows the others to who asks', async () => {
  await onDiagram('Ts', async page => {
    const lines = family => page.locator(`.diagrams .line.of-${family}`);
    for (const [family, count] of [...'Px'].map(f => [f, 1]).concat([...'vh'].map(f => [f, 0]))) {
      assert.equal(await lines(family).count(), count, family);
    }
    await page.getByLabel('Isochores').check();
    await page.getByLabel('Isenthalps').check();
    await lines('h').waitFor({ state: 'attached' });
    assert.equal(await lines('v').count(), 1);
    await page.waitForFunction(() => /without=(&|$)/.test(location.hash));
  });
});

test('a gauge’s pressures are drawn as absolute ones', async () => {
  await onPage(
    '#diagram/logph?u.P=barg',
    async page => {
      assert.match(
        await textOf(page, '.diagrams .plot .title >> nth=1'),
        /Pressure, bara \(absolute\)/,
      );
      assert.doesNotMatch(await page.locator('.diagrams .plot').innerHTML(), /NaN/);
    },
    { ready: '.plot .dome' },
  );
});

async function saved(page, button) {
  const [file] = await Promise.all([
    page.waitForEvent('download'),
    page.getByRole('button', { name: button, exact: true }).click(),
  ]);
  return { name: file.suggestedFilename(), bytes: readFileSync(await file.path()) };
}

test('SVG and PNG are pictures of their own', async () => {
  await onDiagram('hs', async page => {
    const svg = await saved(page, 'SVG');
    assert.equal(svg.name, 'calvex-hs.svg');
    const text = svg.bytes.toString();
    const facts = await page.evaluate(source => {
      const tree = new DOMParser().parseFromString(source, 'image/svg+xml');
      const dark = [...tree.querySelectorAll('path')].filter(p =>
        p.getAttribute('stroke')?.startsWith('rgb'),
      );
      return {
        faulty: tree.querySelector('parsererror') !== null,
        texts: tree.querySelectorAll('text').length,
        coloured: dark.length,
      };
    }, text);
    assert.equal(facts.faulty, false);
    assert.ok(facts.texts > 30 && facts.coloured > 5);
    assert.doesNotMatch(text, /class=|var\(/);
    const png = await saved(page, 'PNG');
    assert.equal(png.bytes.subarray(1, 4).toString(), 'PNG');
    const { width } = await page.locator('.diagrams .plot').boundingBox();
    assert.equal(png.bytes.readUInt32BE(16), 2 * Math.round(width));
    // A picture of one colour would be tiny.
    assert.ok(png.bytes.length > 50_000);
  });
});

test('a finger reads the diagram, and a tap takes the state', async () => {
  await onDiagram(
    'hs',
    async page => {
      const { x, y, width, height } = await frame(page);
      await page.touchscreen.tap(x + width * 0.5, y + height * 0.3);
      await page.waitForFunction(() => /[?&]H=/.test(location.hash));
      assert.notEqual((await readout(page)).P, '–');
    },
    '',
    { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true },
  );
});
