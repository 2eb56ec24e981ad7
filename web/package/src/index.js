// The package with its engine loaded.
import { load } from './load.js';

export * from './load.js';

await load();
