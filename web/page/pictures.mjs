// Draws the page for the documentation: pictures.mjs SITE TARGET, from a built folder.
import { join, resolve } from 'node:path';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const [site, target] = process.argv.slice(2);
const units = 'u.P=bara&u.T=C';
const desk = { viewport: { width: 1360, height: 860 }, colorScheme: 'light' };
const phone = { viewport: { width: 390, height: 844 }, colorScheme: 'dark', isMobile: true };

const pictures = {
  'page-state': [`#state?P=100+bar&T=500&${units}`, 'aside .plot', desk],
  'page-diagram': [`#diagram/hs?P=100&T=500&${units}`, '.plot .dome', desk],
  'page-equipment': [`#equipment/TurbineA3?${units}`, 'aside .plot', desk],
  'page-phone': [`#diagram/Ts?P=100&T=500&${units}`, '.plot .dome', phone],
};

const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--no-sandbox'],
});
for (const [name, [hash, ready, how]] of Object.entries(pictures)) {
  const page = await browser.newPage(how);
  await page.goto(pathToFileURL(resolve(site, 'index.html')).href + hash);
  await page.waitForSelector(ready);
  if (name.endsWith('diagram')) {
    const { x, y, width, height } = await page.locator('.diagrams .frame').boundingBox();
    await page.mouse.move(x + width * 0.62, y + height * 0.42);
  }
  await page.waitForTimeout(400);
  await page.screenshot({ path: join(target, `${name}.png`) });
  await page.close();
}
await browser.close();
