// Every model of the page: its results and its lines for other faces against the command line.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { load, members } from 'calvex/load';
import {
  commandLine,
  near,
  onPage,
  shellLine,
  site,
  textOf,
  troubled,
  troubleOf,
} from './browser.mjs';

await load();
const models = members.filter(row => row.heading === 'equipment' && row.kind === 'function');
const web = fileURLToPath(new URL('../..', import.meta.url));

const resultsOf = page =>
  page
    .locator('[data-result]')
    .evaluateAll(cells =>
      Object.fromEntries(cells.map(cell => [cell.dataset.result, Number(cell.dataset.value)])),
    );

async function snippet(page, language) {
  await page.locator('.snippets label', { hasText: language }).click();
  return page.locator('.snippets code').innerText();
}

/** What the command line's JSON has under the names of the results. */
function answered(text, row) {
  const json = JSON.parse(text);
  const values = row.hasTokens
    ? json.pRetArray.map(line => line[1])
    : row.outputs.map(({ name }) => json[`p${name}`] ?? json[name]);
  return Object.fromEntries(row.outputs.map(({ name }, i) => [name, values[i]]));
}

const units = 'u.P=barg&u.T=C&u.Flow+Rate=te/h&u.H=Btu/lb';

test('there are the models of the member table, no more and no less', async () => {
  assert.ok(models.length > 25);
  await onPage('#equipment', async page => {
    const shown = await page.locator('#model option').evaluateAll(all => all.map(o => o.value));
    assert.deepEqual([...shown].sort(), models.map(row => row.name).sort());
  });
});

for (const choice of ['', units]) {
  test(`each model computes what its line computes, ${choice ? 'in other units' : 'in model units'}`, async () => {
    await onPage(`#equipment?${choice}`, async page => {
      for (const row of models) {
        await page.selectOption('#model', row.name);
        await page.waitForFunction(
          name => document.querySelector('form').getAttribute('aria-label').endsWith(name),
          row.name,
        );
        const results = await resultsOf(page);
        assert.deepEqual(
          Object.keys(results),
          row.outputs.map(({ name }) => name),
          row.name,
        );
        const expected = answered(shellLine(await snippet(page, 'Command line')), row);
        for (const [name, value] of Object.entries(expected)) {
          near(results[name], value, 1e-9, `${row.name} ${name}`);
        }
        const about = await page.getByRole('link', { name: `All about ${row.name}` });
        assert.ok(existsSync(join(site, await about.getAttribute('href'))), row.name);
        const sketch = page.locator('svg.sketch');
        assert.ok((await sketch.getAttribute('aria-label')).length > 10, row.name);
      }
    });
  });
}

test('the JavaScript of a model prints its results', async () => {
  await onPage(`#equipment/TurbineA?${units}`, async page => {
    for (const name of ['TurbineA', 'XLThermoCompressorB', 'LetDownValve']) {
      await page.selectOption('#model', name);
      await page.waitForFunction(
        wanted =>
          document.querySelector('.snippets code').textContent.includes(wanted.replace('XL', '')),
        name,
      );
      const printed = execFileSync('node', ['--input-type=module'], {
        cwd: web,
        input: await snippet(page, 'JavaScript'),
        encoding: 'utf8',
      });
      const results = await resultsOf(page);
      assert.ok(Object.keys(results).length > 0);
      for (const [key, value] of Object.entries(results)) {
        near(
          Number(new RegExp(`${key}: ([-\\d.e]+)`).exec(printed)[1]),
          value,
          1e-12,
          `${name} ${key}`,
        );
      }
    }
  });
});

test('the VBScript has the arguments of the automation interface in their order', async () => {
  await onPage('#equipment', async page => {
    for (const row of models) {
      await page.selectOption('#model', row.name);
      await page.waitForFunction(
        name => document.querySelector('form').getAttribute('aria-label').endsWith(name),
        row.name,
      );
      const code = await snippet(page, 'VBScript');
      const given = new RegExp(`steam\\.${row.name}\\((.*)\\) = 0`).exec(code)[1].split(', ');
      const signature = new RegExp(`  ${row.name}\\((.*)\\)`).exec(
        commandLine('help', row.name),
      )[1];
      const parameters = signature.split(/, (?=\[)/).filter(text => !text.includes('retval'));
      assert.equal(given.length, parameters.length, code);
      parameters.forEach((text, i) => {
        const [, direction, type] = /^\[(.*)\] (\w+)/.exec(text);
        const kind = direction.includes('out')
          ? /^[a-z]\w*$/
          : type === 'string'
            ? /^".*"$/
            : /^-?[\d.e-]+$/;
        assert.match(given[i], kind, `${row.name}: ${text}`);
      });
    }
  });
});

test('Python’s line has the call and the units', async () => {
  await onPage('#equipment/TurbineA?u.P=bara&u.T=C', async page => {
    const code = await snippet(page, 'Python');
    assert.match(code, /calvex\.Engine\(P="bara", T="C"\)|calvex\.Engine\(T="C", P="bara"\)/);
    assert.match(code, /steam\.TurbineA\(3374, 100, 10, 0\.8, 10\)/);
  });
});

test('the lines have what was typed in another unit without the dust of its conversion', async () => {
  await onPage('#equipment/TurbineA?in.MIn=36+t/h&in.PIn=101.25+bar', async page => {
    assert.match(await snippet(page, 'Command line'), /^calvex TurbineA 3374 10\.125 1 0\.8 10$/);
  });
});

test('a turbine’s expansion is drawn from its inlet over its outlets', async () => {
  await onPage('#equipment/TurbineA3?u.P=bara&u.T=C', async page => {
    const names = await page
      .locator('[data-process]')
      .evaluateAll(all => all.map(g => g.dataset.process));
    assert.deepEqual(names, ['inlet', 'outlet 1', 'outlet 2', 'outlet 3']);
    const places = await page
      .locator('[data-process] circle')
      .evaluateAll(all =>
        all.map(c => [Number(c.getAttribute('cx')), Number(c.getAttribute('cy'))]),
      );
    for (let i = 1; i < 4; ++i) {
      assert.ok(places[i][0] > places[i - 1][0], 'entropy rises');
      assert.ok(places[i][1] > places[i - 1][1], 'enthalpy falls');
    }
    assert.match(await page.locator('path.process').getAttribute('d'), /^M.*L.*M.*L.*M.*L/);
  });
});

test('every model with streams has a process, the others none', async () => {
  const without = ['XLGasTurbineA', 'SolvePoly5'];
  await onPage('#equipment', async page => {
    for (const { name } of models) {
      await page.selectOption('#model', name);
      await page.waitForFunction(
        wanted => document.querySelector('form').getAttribute('aria-label').endsWith(wanted),
        name,
      );
      assert.equal(
        await page.locator('path.process').count(),
        without.includes(name) ? 0 : 1,
        name,
      );
    }
  });
});

/** What covers what on the page, of the names and values of a sketch and of a process. */
const covered = page =>
  page.evaluate(() => {
    const boxOf = element => element.getBoundingClientRect();
    const meets = (a, b) =>
      a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
    const faults = [];
    const together = (texts, things) => {
      texts.forEach((text, i) => {
        for (const other of [...texts.slice(i + 1), ...things]) {
          if (meets(boxOf(text), boxOf(other)))
            faults.push(`${text.textContent} meets ${other.textContent || other.outerHTML}`);
        }
      });
    };
    together(
      [...document.querySelectorAll('.point .name')],
      [...document.querySelectorAll('.point circle')],
    );
    const texts = [...document.querySelectorAll('.sketch text:not(.sign)')];
    together(texts, []);
    for (const path of document.querySelectorAll('.sketch path.pipe, .sketch path.body')) {
      const toScreen = path.getScreenCTM();
      for (let at = 0; at <= path.getTotalLength(); at += 2) {
        const { x, y } = path.getPointAtLength(at).matrixTransform(toScreen);
        const text = texts.find(each =>
          meets(boxOf(each), { left: x, right: x, top: y, bottom: y }),
        );
        if (!text) continue;
        faults.push(`${text.textContent} lies on ${path.getAttribute('d')}`);
        break;
      }
    }
    const frame = boxOf(document.querySelector('.sketch'));
    for (const text of texts) {
      const { top, left, right, bottom } = boxOf(text);
      if (top < frame.top || left < frame.left || right > frame.right || bottom > frame.bottom)
        faults.push(`${text.textContent} is cut`);
    }
    return faults;
  });

for (const [where, how] of Object.entries({
  'a desk': {},
  'a phone': { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true },
})) {
  test(`on ${where} what names a stream or a state covers nothing and is whole`, async () => {
    const faults = [];
    await onPage(
      '#equipment',
      async page => {
        for (const { name } of models) {
          await page.selectOption('#model', name);
          await page.waitForFunction(
            wanted => document.querySelector('form').getAttribute('aria-label').endsWith(wanted),
            name,
          );
          faults.push(...(await covered(page)).map(fault => `${name}: ${fault}`));
        }
      },
      how,
    );
    assert.deepEqual(faults, []);
  });
}

const bad = [
  ['TurbineA', 'Eff', '2', /Efficiency/],
  ['TurbineA', 'PIn', '-1', /Pressure/],
  ['TurbineA', 'HIn', 'much', /no number/],
  ['TurbineA', 'MIn', '', /empty/],
  ['Boiler', 'TOut', '9000', /Temperature/],
  ['XLHeatExchangerA', 'HotTempIn', '-400', /Temperature/],
];

test('a bad input is told beside its field and leaves no results', async () => {
  for (const [name, input, text, says] of bad) {
    await onPage(`#equipment/${name}?in.${input}=${text}`, async page => {
      assert.deepEqual(await troubled(page), [`in.${input}`], name);
      assert.match(await troubleOf(page, `in.${input}`), says);
      assert.equal(await page.locator('[data-result]').count(), 0);
      assert.equal(await page.locator('.snippets').count(), 0);
    });
  }
});

test('pressures that are compared are both told of, each beside its field', async () => {
  for (const [given, fields] of [
    ['TurbineA?in.POut=20', ['in.PIn', 'in.POut']],
    ['TurbineA2?in.POut1=20', ['in.PIn', 'in.POut1']],
    ['TurbineA3?in.POut2=9', ['in.POut1', 'in.POut2']],
  ]) {
    await onPage(`#equipment/${given}`, async page => {
      assert.deepEqual(await troubled(page), fields);
      for (const field of fields) assert.match(await troubleOf(page, field), /less than/);
    });
  }
});

test('per cent that were typed as a fraction are told how to be typed, and so they do', async () => {
  await onPage('#equipment/TurbineA?in.Eff=80', async page => {
    assert.match(await troubleOf(page, 'in.Eff'), /or type 80 %\)/);
    assert.doesNotMatch(await troubleOf(page, 'in.Eff'), /command line/);
    await page.locator('[data-key="in.Eff"]').fill('80 %');
    await page.waitForSelector('[data-result]');
  });
});

test('what no plant can do is warned of', async () => {
  await onPage('#equipment/LetDownValve?in.PIn=1&in.POut=2', async page => {
    assert.match(await textOf(page, '.warning'), /Outlet pressure/);
  });
  await onPage('#equipment/XLHeatExchangerA?in.HotTempIn=300', async page => {
    const warning = page.locator('.warning', { hasText: 'heat does not flow from cold to hot' });
    await warning.waitFor();
    assert.match(await textOf(page, '[data-result=M_HOut]'), /^[-−]/);
  });
});

test('by keyboard one chooses a model and types its inputs', async () => {
  await onPage('#equipment?u.P=bara', async page => {
    await page.keyboard.press('/');
    await page.keyboard.type('WaterPump');
    await page.waitForSelector('[data-key="in.m"]');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Control+A');
    await page.keyboard.type('400');
    await page.waitForFunction(() =>
      document.querySelector('.snippets code').textContent.includes(' 400 '),
    );
    const expected = answered(
      shellLine(await snippet(page, 'Command line')),
      models.find(row => row.name === 'WaterPump'),
    );
    near((await resultsOf(page)).Power, expected.Power, 1e-9, 'Power');
  });
});
