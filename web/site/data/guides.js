// The guides: the README, docs/ in the order in which the README names them, and what the project's
// people read.
import { readFileSync, readdirSync } from 'node:fs';

import { render } from '../source/markdown.mjs';
import { root } from '../source/places.mjs';

const readme = readFileSync(`${root}README.md`, 'utf8');
const named = [...readme.matchAll(/\]\((docs\/[\w-]+\.md)\)/g)].map(match => match[1]);
const all = readdirSync(`${root}docs`)
  .filter(name => name.endsWith('.md'))
  .sort()
  .map(name => `docs/${name}`);
const project = ['CONTRIBUTING.md', 'CHANGELOG.md', 'THIRD-PARTY-NOTICES.md'];

const urlOf = source =>
  source === 'README.md'
    ? 'index.html'
    : `${source.split('/').at(-1).replace('.md', '').toLowerCase()}.html`;

const sources = ['README.md', ...new Set([...named, ...all]), ...project];
/** The pages of the site by the file that they are made of. */
const pages = new Map(sources.map(source => [source, urlOf(source)]));
pages
  .set('examples', 'examples.html')
  .set('examples/windows', 'examples.html#windows')
  .set('examples/python', 'examples.html#python');

export default sources.map(source => ({
  source,
  url: urlOf(source),
  isProject: project.includes(source),
  ...render(readFileSync(`${root}${source}`, 'utf8'), source, pages),
}));
