// Numbers as people read and type them.

/** Ten significant digits, as the command line prints them. */
export function show(value: number, digits = 10): string {
  if (Number.isNaN(value)) return '–';
  if (!Number.isFinite(value)) return value > 0 ? '∞' : '−∞';
  if (value === 0) return '0';
  const [mantissa = '', power = ''] = value.toExponential(digits - 1).split('e');
  const exponent = Number(power);
  if (exponent < -4 || exponent >= digits) {
    const short = mantissa.includes('.') ? mantissa.replace(/\.?0+$/, '') : mantissa;
    return `${short}e${exponent}`;
  }
  return String(Number(value.toPrecision(digits)));
}

/** A number that was converted, as one would type it: without the dust of binary fractions. */
export const tidy = (value: number): string => String(Number(value.toPrecision(10)));

/** The same of one that is reckoned with elsewhere: it stays the same to 1e-10. */
export const withoutDust = (value: number): number => Number(value.toPrecision(11));

// A unit begins with a letter, a degree or a per cent sign, or it is one of "1/K"; half a power of ten
// and another base's digits, "1e" and "0x10", are none.
const shape =
  /^([+-]?(?:\d+\.?\d*|\.\d+)(?:e[+-]?\d+)?)(?:\s*((?![ex][+-]?\d*$)[\p{L}°%].*)|\s+(1\/\p{L}.*)|\s*)$/iu;

interface Parts {
  number: number;
  unit: string;
  /** A number that there is not among those that a machine reckons with. */
  beyond?: 'large' | 'small';
}

/** "100 bar" apart: the number and the words behind it; undefined where it begins with no number. */
export function apart(text: string): Parts | undefined {
  const [, digits, unit, inverse] = shape.exec(text.trim().replace(/^[−–]/, '-')) ?? [];
  if (digits === undefined) return undefined;
  const number = Number(digits);
  const beyond =
    Math.abs(number) === Infinity
      ? 'large'
      : number === 0 && /[1-9]/.test(digits.replace(/e.*/i, ''))
        ? 'small'
        : undefined;
  return { number, unit: unit ?? inverse ?? '', beyond };
}

/** Round numbers for ticks and levels: about so many between two, 1, 2, 2.5 or 5 of a power of ten. */
export function roundLevels(low: number, high: number, count: number): number[] {
  const raw = (high - low) / count;
  if (!(raw > 0)) return [];
  const power = 10 ** Math.floor(Math.log10(raw));
  const step = [1, 2, 2.5, 5, 10].map(m => m * power).find(s => s >= raw * 0.99) ?? 10 * power;
  const levels: number[] = [];
  for (let i = Math.ceil(low / step); i <= Math.floor(high / step); ++i) {
    levels.push(Number((i * step).toPrecision(12)));
  }
  return levels;
}

/** 1, 2 and 5 of each power of ten between two, or only powers of ten where those would be many; where
 * they are few, round numbers. */
export function roundPowers(low: number, high: number, count: number): number[] {
  if (!(low > 0 && high > low)) return [];
  const decades = Math.log10(high / low);
  if (decades < 1) return roundLevels(low, high, Math.min(count, 8));
  const factors = decades * 3 <= count * 1.5 ? [1, 2, 5] : [1];
  const powers: number[] = [];
  for (let p = Math.floor(Math.log10(low)); p <= Math.ceil(Math.log10(high)); ++p) {
    for (const m of factors) {
      const level = Number(`${m}e${p}`);
      if (level >= low && level <= high) powers.push(level);
    }
  }
  return powers;
}
