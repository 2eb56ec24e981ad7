// The examples as they are in the tree, each with what it prints.
import { existsSync, readFileSync, readdirSync } from 'node:fs';

import { root } from '../source/places.mjs';

const folder = (id, title, path, suffix) => ({
  id,
  title,
  path,
  examples: readdirSync(root + path)
    .filter(name => name.endsWith(suffix))
    .sort()
    .map(name => {
      const printed = `${root}${path}/${name.replace(suffix, '.txt')}`;
      return {
        name,
        text: readFileSync(`${root}${path}/${name}`, 'utf8'),
        printed: existsSync(printed) ? readFileSync(printed, 'utf8') : '',
      };
    }),
});

export default [
  folder('plants', 'Plants, for the command line', 'examples', '.calvex'),
  folder('windows', 'Scripts for Windows', 'examples/windows', '.vbs'),
  folder('python', 'Python', 'examples/python', '.py'),
];
