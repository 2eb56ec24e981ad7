// Where things are in the checkout and in the site.
import { fileURLToPath } from 'node:url';

export const root = fileURLToPath(new URL('../../..', import.meta.url));
export const output = `${root}build/site/docs`;
/** Programs of the machine. */
export const commandLine = `${root}build/release/apps/calvex`;
export const generator = `${root}build/release/apps/calvex_generate`;
