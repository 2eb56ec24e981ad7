// The page as a whole: its links, its keys, on a phone, on paper, without a network, for everybody.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { test } from 'node:test';
import { near, onPage, serve, textOf } from './browser.mjs';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const units = 'u.P=bara&u.T=C';
/** Each view, and what there is when it is drawn. */
const views = {
  first: ['#state', 'aside .plot'],
  state: [`#state?P=100&T=500&${units}`, 'aside .plot'],
  failure: [`#state?P=100&T=5000&${units}`, '.trouble'],
  diagram: [`#diagram/hs?P=100&T=500&${units}&zoom=2,0.4,0.5&without=v`, '.plot .dome'],
  equipment: [`#equipment/TurbineA2?${units}&in.Eff1=0.9`, 'aside .plot'],
  tables: [`#tables?table=isobar&at=50&from=100&to=500&step=50&${units}`, '.data'],
  units: [`#units?${units}&quantity=H&amount=3000`, '[data-unit]'],
};
const ready = name => ({ ready: views[name][1] });
const phone = { hasTouch: true, isMobile: true };
/** What one sees: the text and the lines of the view, and what is typed. */
const seen = page =>
  page.evaluate(() =>
    [
      document.querySelector('main').innerText,
      ...[...document.querySelectorAll('main input, main select')].map(field => field.value),
      ...[...document.querySelectorAll('main svg path')].map(path => path.getAttribute('d')),
    ].join('\n'),
  );

test('the first state is there within a second of opening', async () => {
  const times = [];
  for (let i = 0; i < 5; ++i) {
    await onPage('', async page => {
      await page.waitForFunction(() => performance.getEntriesByName('first state').length > 0);
      times.push(
        await page.evaluate(() => performance.getEntriesByName('first state')[0].startTime),
      );
      assert.match(await textOf(page, '[data-letter=H] .number'), /^3373\.998/);
    });
  }
  console.log(`first state after ${times.map(time => time.toFixed(0)).join(', ')} ms`);
  // The best: others may be at work on the machine.
  assert.ok(Math.min(...times) < 1000, `${times}`);
});

for (const [name, [hash]] of Object.entries(views)) {
  test(`a link shows another the same: ${name}`, async () => {
    let link, first;
    const { url, server } = await serve();
    try {
      await onPage(
        hash,
        async page => {
          await page.waitForTimeout(500);
          first = await seen(page);
          await page.getByRole('button', { name: 'Copy link' }).click();
          await page.getByRole('button', { name: 'Copied' }).first().waitFor();
          link = await page.evaluate(() => navigator.clipboard.readText());
        },
        { url, permissions: ['clipboard-read', 'clipboard-write'], ...ready(name) },
      );
      assert.ok(link.startsWith(url));
      const parts = text => [...new URLSearchParams(text.split('?')[1])].sort();
      assert.deepEqual(parts(link), parts(hash));
      await onPage(
        link.slice(url.length),
        async page => {
          await page.waitForTimeout(500);
          assert.equal(await seen(page), first);
        },
        { url, ...ready(name) },
      );
    } finally {
      server.close();
    }
  });

  for (const colorScheme of ['light', 'dark']) {
    test(`axe finds nothing in ${name}, ${colorScheme}`, async () => {
      await onPage(
        hash,
        async page => {
          await page.waitForTimeout(300);
          await page.evaluate(axe);
          const { violations } = await page.evaluate(() =>
            globalThis.axe.run(document, { preload: false, resultTypes: ['violations'] }),
          );
          assert.deepEqual(
            violations.map(({ id, nodes }) => `${id}: ${nodes.map(node => node.html).join(' | ')}`),
            [],
          );
        },
        { colorScheme, ...ready(name) },
      );
    });
  }

  for (const width of [390, 320]) {
    test(`${name} fits a phone of ${width} pixels, for fingers`, async () => {
      await onPage(
        hash,
        async page => {
          const facts = await page.evaluate(() => ({
            wide: document.documentElement.scrollWidth,
            small: [...document.querySelectorAll('a, button, input, select, summary')]
              .map(element => ({
                element,
                box: (element.closest('label') ?? element).getBoundingClientRect(),
              }))
              .filter(
                ({ element, box }) =>
                  box.width > 0 &&
                  !element.matches('.skip') &&
                  Math.min(box.height, box.width) < 43.5,
              )
              .map(
                ({ element, box }) =>
                  `${element.outerHTML.slice(0, 90)} ${box.width}x${box.height}`,
              ),
          }));
          assert.ok(facts.wide <= width, `${facts.wide} pixels wide`);
          assert.deepEqual(facts.small, []);
        },
        { ...phone, viewport: { width, height: 844 }, ...ready(name) },
      );
    });
  }
}

test('what is typed and chosen stands in the address', async () => {
  await onPage('', async page => {
    await page.locator('[data-key=P]').fill('100 bar');
    await page.getByLabel('Unit of temperature').selectOption('C');
    await page.waitForFunction(
      () => /P=100\+bar/.test(location.hash) && /u\.T=C/.test(location.hash),
    );
    await page.getByRole('link', { name: 'Equipment' }).click();
    await page.waitForSelector('.sketch');
    assert.match(await page.evaluate(() => location.hash), /^#equipment\?.*P=100\+bar/);
    await page.goBack();
    await page.waitForSelector('[data-key=P]');
    assert.equal(await page.inputValue('[data-key=P]'), '100 bar');
  });
});

for (const [hash, told] of [
  ['#tables?table=constructor', /the table “constructor”/],
  ['#tables?table=__proto__', /the table “__proto__”/],
  ['#diagram?kind=__proto__', /the diagram “__proto__”/],
  ['#diagram/constructor', /the diagram “constructor”/],
  ['#state?kind=constructor', /the diagram “constructor”/],
  ['#foo', /the view “foo”/],
  ['#equipment/Nope', /the model “Nope”/],
  ['#tables/isobar', /Left out .*: “isobar”\.$/],
  ['#equipment/TurbineA?in.Nope=1', /“in.Nope”/],
  ['#state?U=3000&S=6', /: the inputs U, S \(a pair gives a state, here P and T\)\.$/],
  ['#state?P=1&T=300&H=3', /: the input H \(a pair gives a state, here P and T\)\.$/],
  ['#tables?table=isobar&P=5', /: “P” \(not used here\)\.$/],
  ['#tables?at=5&u.T=C', /: “at” \(not used here\)\.$/],
  ['#equipment/TurbineA?P=5&T=300', /: “P”, “T” \(not used here\)\.$/],
  ['#state?from=5&in.Eff=0.5&P=10', /: “from”, “in.Eff” \(not used here\)\.$/],
  ['#units?p=1&table=P', /: “p”; “table” \(not used here\)\.$/],
  ['#state?p=1', /“p”/],
  ['#units?quantity=Mood', /the quantity “Mood”/],
  ['#state?P=1&T=300&P=2', /all but the last “P”/],
  ['#diagram/Ts?zoom=near', /the zoom “near”/],
  ['#diagram/Ts?zoom=200,-50,90', /the zoom “200,-50,90”/],
  ['#diagram/Ts?without=v,constructor', /the lines “constructor”/],
  ['#state?trace=all', /the trace “all”/],
]) {
  test(`what is not understood in ${hash} is told, and the page goes on`, async () => {
    await onPage(
      hash,
      async page => {
        const notices = await page.locator('.notice').allInnerTexts();
        assert.equal(notices.length, 1);
        assert.match(notices[0], told);
        await page.getByRole('link', { name: 'Diagrams', exact: true }).click();
        await page.waitForSelector('.plot .dome');
        await page.getByRole('link', { name: 'State', exact: true }).click();
        await page.waitForSelector('.state');
      },
      { ready: 'main form, main svg, main table' },
    );
  });
}

test('what is understood in an address is told nothing of', async () => {
  for (const [name, [hash, selector]] of Object.entries(views)) {
    await onPage(hash, async page => assert.equal(await page.locator('.notice').count(), 0, name), {
      ready: selector,
    });
  }
});

test('what other views read goes along without a word, and not into a link', async () => {
  const { url, server } = await serve();
  try {
    await onPage(
      `#state?P=100&T=500&${units}`,
      async page => {
        await page.getByRole('link', { name: 'Tables' }).click();
        await page.selectOption('#table', 'isobar');
        await page.locator('[data-key=at]').fill('50');
        await page.waitForFunction(() => /P=100.*at=50/.test(location.hash));
        assert.equal(await page.locator('.notice').count(), 0);
        await page.getByRole('button', { name: 'Copy link' }).click();
        await page.getByRole('button', { name: 'Copied' }).first().waitFor();
        const link = await page.evaluate(() => navigator.clipboard.readText());
        assert.equal(link, `${url}#tables?u.P=bara&u.T=C&table=isobar&at=50`);
        await page.reload();
        await page.waitForSelector('.data');
        assert.equal(await page.locator('.notice').count(), 0);
        await page.getByRole('link', { name: 'State', exact: true }).click();
        assert.equal(await page.inputValue('[data-key=P]'), '100');
      },
      { url, permissions: ['clipboard-read', 'clipboard-write'] },
    );
  } finally {
    server.close();
  }
});

test('where a view fails the first one comes back', async () => {
  await onPage('#state?P=10&T=700', async page => {
    await page.waitForSelector('aside .plot');
    await page.evaluate(() => {
      const Real = ResizeObserver;
      window.ResizeObserver = class {
        constructor() {
          window.ResizeObserver = Real;
          throw new Error('a fault of this test');
        }
      };
    });
    await page.getByRole('link', { name: 'Diagrams', exact: true }).click();
    await page.waitForSelector('.state .properties');
    assert.match(await textOf(page, '.notice'), /begins anew: a fault of this test/);
    await page.getByRole('link', { name: 'Tables' }).click();
    await page.waitForSelector('.data');
    assert.equal(await page.locator('.notice').count(), 0);
  });
});

test('the diagram is reached by Tab and moved by its keys', async () => {
  await onPage(
    '#diagram',
    async page => {
      const atDiagram = () => page.evaluate(() => document.activeElement.matches('svg.plot'));
      for (let i = 0; i < 40 && !(await atDiagram()); ++i) await page.keyboard.press('Tab');
      assert.ok(await atDiagram());
      await page.keyboard.press('+');
      await page.waitForFunction(() => /zoom=/.test(location.hash));
    },
    { ready: '.plot .dome' },
  );
});

test('a unit that there is not is told, and the page goes on', async () => {
  await onPage('#state?u.P=furlong&u.Weight=kg&P=10&T=773.15', async page => {
    const told = await page.locator('.notice').allInnerTexts();
    assert.equal(told.length, 2);
    assert.match(told.join(), /furlong/);
    assert.match(await textOf(page, '[data-letter=H] .number'), /^3373\.998/);
  });
});

test('nonsense in the address opens the first view', async () => {
  for (const hash of [
    '#%E0%A4%A',
    '#nowhere/at%2Fall?x=%',
    '#diagram/none?zoom=a,b',
    '#equipment/Nothing',
    '#state?P=1&T=2&H=3',
  ]) {
    await onPage(
      hash,
      async page => {
        await page.waitForTimeout(300);
        assert.ok((await page.locator('main').innerText()).length > 50);
      },
      { ready: 'main form, main .diagrams' },
    );
  }
});

test('keys go through the views and tell themselves', async () => {
  await onPage('#state', async page => {
    for (const [key, selector] of [
      ['2', '.diagrams'],
      ['3', '.equipment'],
      ['4', '.tables'],
      ['5', '.units-view'],
      ['1', '.state'],
    ]) {
      await page.keyboard.press(key);
      await page.waitForSelector(selector);
    }
    await page.keyboard.press('?');
    await page.waitForSelector('dialog[open]');
    assert.match(await textOf(page, 'dialog'), /the first field of the view/);
    await page.getByLabel('single keys work').uncheck();
    await page.keyboard.press('Escape');
    await page.waitForSelector('dialog', { state: 'hidden' });
    await page.keyboard.press('2');
    await page.waitForTimeout(200);
    assert.equal(await page.locator('.state').count(), 1);
  });
});

test('every control is reached by Tab, and shows it', async () => {
  await onPage(
    '#equipment/TurbineA',
    async page => {
      const reached = new Set();
      for (let i = 0; i < 60; ++i) {
        await page.keyboard.press('Tab');
        const here = await page.evaluate(() => {
          const element = document.activeElement;
          if (element === document.body) return null;
          const all = [...document.querySelectorAll('a, button, input, select')];
          return {
            at: all.indexOf(element),
            shown:
              getComputedStyle(element).outlineStyle !== 'none' ||
              getComputedStyle(element.nextElementSibling ?? element).outlineStyle !== 'none',
          };
        });
        if (!here) break;
        assert.ok(here.shown, `control ${here.at} shows its focus`);
        reached.add(here.at);
      }
      // Of the languages, radio buttons, one is reached by Tab and the others by the arrows.
      const wanted = await page.evaluate(() =>
        [...document.querySelectorAll('a, button, input, select')]
          .map((element, i) =>
            element.checkVisibility() && !(element.type === 'radio' && !element.checked) ? i : -1,
          )
          .filter(i => i >= 0),
      );
      assert.deepEqual(
        wanted.filter(i => !reached.has(i)),
        [],
      );
    },
    { ready: '.snippets' },
  );
});

test('units are chosen once for all views', async () => {
  await onPage('#units', async page => {
    await page.getByRole('button', { name: 'psi and °F' }).click();
    await page.waitForFunction(() => location.hash.includes('u.P=psia'));
    await page.getByRole('link', { name: 'State', exact: true }).click();
    await page.waitForSelector('[data-letter=T]');
    assert.equal(await textOf(page, '[data-letter=T] .unit'), '°F');
    assert.equal(await textOf(page, '[data-letter=H] .unit'), 'Btu/lb');
    near(
      Number(await page.locator('[data-letter=T] [data-value]').getAttribute('data-value')),
      932,
      1e-9,
      '500 °C',
    );
    await page.getByRole('link', { name: 'Units' }).click();
    await page.getByRole('button', { name: 'MPa and K' }).click();
    await page.waitForFunction(() => !location.hash.includes('u.'));
  });
});

test('a set of units leaves none of another behind', async () => {
  const left = {
    'bar and °C': /MPa|^K|\/K$/,
    'psi and °F': /MPa|Pa|kg|\bm\b|kJ|kW|\bK\b/,
  };
  await onPage('#units', async page => {
    for (const [set, stranger] of Object.entries(left)) {
      await page.getByRole('button', { name: set }).click();
      const units = await page
        .locator('select.unit')
        .evaluateAll(fields =>
          fields.map(field => [field.getAttribute('aria-label'), field.value]),
        );
      assert.ok(units.length > 20);
      assert.deepEqual(
        units.filter(([, unit]) => stranger.test(unit)),
        [],
      );
    }
  });
});

test('a value is shown in all units of its quantity', async () => {
  await onPage('#units?quantity=P&amount=1+atm', async page => {
    const of = unit => page.locator(`[data-unit="${unit}"]`).innerText().then(Number);
    // The standard atmosphere, CGPM 1954: 101325 Pa.
    near(await of('Pa'), 101325, 1e-9, 'Pa');
    near(await of('bara'), 1.01325, 1e-9, 'bar');
    near(await of('mm Hg'), 760, 1e-5, 'mm Hg');
  });
});

test('light, dark or as the system is, remembered', async () => {
  await onPage('#state', async page => {
    const paper = () => page.evaluate(() => getComputedStyle(document.body).backgroundColor);
    const system = await paper();
    const button = page.getByRole('button', { name: /^Colours/ });
    await button.click();
    assert.equal(await paper(), system);
    await button.click();
    assert.notEqual(await paper(), system);
    await page.reload();
    await page.waitForSelector('.properties');
    assert.notEqual(await paper(), system);
  });
});

test('after the first load it works without a network', async () => {
  const { url, server } = await serve();
  await onPage(
    '#state',
    async (page, context) => {
      await page.evaluate(() => navigator.serviceWorker.ready.then(() => undefined));
      await page.waitForFunction(() => navigator.serviceWorker.controller !== null);
      await context.setOffline(true);
      await new Promise(done => {
        server.close(done);
        server.closeAllConnections();
      });
      await page.goto(`${url}index.html#equipment/TurbineA`);
      await page.reload();
      await page.waitForSelector('[data-result]');
      await page.goto(`${url}#diagram/Ts`);
      await page.waitForSelector('.plot .dome');
    },
    { url },
  );
});

test('on paper are the results, black on white, without what one clicks', async () => {
  await onPage(
    views.state[0],
    async page => {
      await page.emulateMedia({ media: 'print', colorScheme: 'dark' });
      const facts = await page.evaluate(() => ({
        clickable: [...document.querySelectorAll('button, nav')].filter(e => e.checkVisibility())
          .length,
        ink: getComputedStyle(document.body).color,
      }));
      assert.equal(facts.clickable, 0);
      // A number without its unit says nothing.
      assert.ok(await page.getByLabel('Unit of pressure').isVisible());
      await page.emulateMedia({ media: 'screen' });
      await page.getByRole('link', { name: 'Diagrams', exact: true }).click();
      await page.waitForSelector('.readout');
      assert.ok(await page.locator('.readout').isVisible());
      await page.emulateMedia({ media: 'print', colorScheme: 'dark' });
      assert.ok(!(await page.locator('.readout').isVisible()));
      assert.match(facts.ink, /^rgb\(29, 39, 49\)$/);
      assert.ok((await page.pdf({ format: 'A4' })).length > 10_000);
    },
    { colorScheme: 'dark', ...ready('state') },
  );
});

test('a screen reader is told the result, once typing rests', async () => {
  await onPage(`#state?P=100&T=500&${units}`, async page => {
    await page.locator('[data-key=T]').fill('5000');
    await page.waitForFunction(() =>
      [...document.querySelectorAll('output')].some(o => /Valid range/.test(o.textContent)),
    );
    await page.locator('[data-key=T]').fill('200');
    await page.waitForFunction(() =>
      [...document.querySelectorAll('output')].some(
        o => o.textContent.trim() === 'Compressed liquid',
      ),
    );
  });
});
