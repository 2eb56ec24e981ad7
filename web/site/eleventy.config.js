// The documentation: guides, members, equations. Run in web/: npx eleventy --config=site/eleventy.config.js
import { posix } from 'node:path';

import * as esbuild from 'esbuild';

import './data/guides.js';
import { copied } from './source/markdown.mjs';
import { formula } from './source/mathematics.mjs';
import { output, root } from './source/places.mjs';

/** An address from the page that has it: pages are opened from files as well. */
const relative = (target, from) => {
  const path = posix.relative(posix.dirname(from), `/${target}`);
  return path.startsWith('.') ? path : `./${path}`;
};

/** Numbers as tables print them, with a true minus sign. Printed coefficients have at most 15 digits. */
const printed = number =>
  String(Number(Number(number).toPrecision(15)))
    .replace('e-', ' × 10⁻')
    .replace(/^-/, '−')
    .replace(
      /10⁻(\d+)/,
      (_, digits) => `10⁻${[...digits].map(digit => '⁰¹²³⁴⁵⁶⁷⁸⁹'[digit]).join('')}`,
    );

export default function (config) {
  config.addFilter('from', relative);
  config.addPairedShortcode('display', tex => formula(tex));
  config.addPairedShortcode('inline', tex => formula(tex, false));
  config.addFilter('symbol', tex => formula(tex, false));
  config.addFilter('greek', name =>
    /^[a-z]{3}/.test(name) ? `\\${name}` : name.replace(/(\d+)/, '_$1'),
  );
  config.addFilter('printed', printed);
  config.addFilter('rounded', number => (number === 0 ? '0' : printed(number.toExponential(1))));
  config.addFilter('script', value => JSON.stringify(value).replaceAll('<', '\\u003c'));
  // Few systems have a font with the tables that formulas need.
  const font = 'node_modules/@fontsource/noto-sans-math';
  config.addPassthroughCopy({
    [`${font}/files/noto-sans-math-latin-400-normal.woff2`]: 'noto-sans-math.woff2',
    [`${font}/LICENSE`]: 'noto-sans-math.txt',
  });
  for (const [source, place] of copied) config.addPassthroughCopy({ [`../${source}`]: place });

  // What pages run and look like: classic scripts and one sheet, which need no server.
  const source = `${root}web/site`;
  config.on('eleventy.after', () =>
    esbuild.build({
      entryPoints: [
        `${source}/source/theme.js`,
        `${source}/source/member.mjs`,
        `${source}/source/search.mjs`,
        `${source}/style.css`,
      ],
      outdir: output,
      entryNames: '[name]',
      bundle: true,
      minify: true,
      format: 'iife',
      target: 'es2022',
      legalComments: 'none',
      external: ['*.woff2'],
    }),
  );

  config.setQuietMode(true);
  return {
    dir: {
      input: 'site/pages',
      includes: '../layouts',
      data: '../data',
      output: '../build/site/docs',
    },
    markdownTemplateEngine: 'njk',
    htmlTemplateEngine: 'njk',
  };
}
