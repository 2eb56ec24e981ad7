// The constants and coefficients of the equations, printed by the program that has them.
import { execFileSync } from 'node:child_process';

import { generator } from '../source/places.mjs';

export default JSON.parse(execFileSync(generator, ['formulation'], { encoding: 'utf8' }));
