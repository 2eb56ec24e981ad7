/** Properties of water and steam, and the equipment of steam systems, in any unit of measure. */
import type { Members } from './members.js';

export type { Members } from './members.js';

/** Numbers of many points: a Float64Array, another array of numbers. */
export type Numbers =
  | Float64Array
  | Float32Array
  | Int32Array
  | Int16Array
  | Uint32Array
  | Int8Array
  | Uint8Array
  | Uint8ClampedArray
  | Uint16Array
  | readonly number[];

/** The names of the properties that give a state. */
type StateInput =
  | ('P' | 'p' | 'pressure')
  | ('T' | 't' | 'temperature')
  | ('h' | 'H' | 'enthalpy')
  | ('s' | 'S' | 'entropy')
  | ('u' | 'U' | 'internal energy' | 'internal_energy')
  | ('rho' | 'r' | 'R' | 'density')
  | ('v' | 'V' | 'specific volume' | 'specific_volume')
  | ('x' | 'q' | 'Q' | 'quality' | 'vapour fraction' | 'vapour_fraction');
/** Values by the names that they may have; a name that is known only when it runs is told of then. */
type Named<Given> = {
  readonly [name in keyof Given]: string extends name
    ? Given[name]
    : name extends StateInput
      ? Given[name]
      : never;
};

/** A quantity with units: a word ("pressure"), a letter ("P") or its number. */
export type Quantity = string | number;

/** What a member answers with several results: by name, and the unit of each. */
export type Results<Names extends string, N> = { readonly [name in Names]: N } & {
  readonly units: { readonly [name in Names]: string };
};

/** Makes the engine ready: to be awaited once before anything else is used. `import 'calvex'` has
 * done it. `simd: false` takes the engine for machines without vectors. */
export function load(options?: { simd?: boolean }): Promise<void>;

/** Whether the engine works on two numbers at a time. */
export const simd: boolean;

/** "4.4.8" */
export const version: string;

/** A call that failed. `message` has all of it. */
export class CalvexError extends Error {
  /** The number of the engine's message, or a negative number for misuse. */
  readonly code: number;
  /** The engine's text, in the engine's units. */
  readonly reason: string;
  /** What is behind it where the reason does not say so; mostly empty. */
  readonly cause: string;
  /** Both. */
  readonly full: string;
  /** The member that failed. */
  readonly member: string;
}

/** Every member of the table, in one's own units.
 *
 *     const steam = new Engine({ T: '°C', P: 'bar' });
 *     steam.HPT(100, 500);                             // a number
 *     steam.HPT(100, Float64Array.of(480, 500, 520));  // a Float64Array, NaN where a point fails
 *     steam.state({ P: 100, T: 500 }).w;               // speed of sound
 *     steam.TurbineA(3374, 100, 10, 0.8, 5).Power;     // results by name
 */
export interface Engine extends Members {}
export class Engine {
  /** Units by quantity: letters or words, units as people write them. */
  constructor(units?: { readonly [quantity: string]: string });

  /** The unit of a quantity that the engine's values have. */
  unit(quantity: Quantity): string;
  /** Chooses a unit. Throws a CalvexError that names the nearest where there is no such unit. */
  setUnit(quantity: Quantity, unit: string): void;
  /** The unit of each quantity by its keyword, as the constructor takes them. */
  units(): { [keyword: string]: string };

  /** A state from any pair of properties: P with T, h, s, u, rho, v or x; T with h, s, u, rho, v or
   * x; h with s. Numbers, or arrays of one length. One of numbers throws where there is none. */
  state<Given extends { readonly [name: string]: number | Numbers }>(
    pair: Given & Named<Given>,
  ): State<Given[keyof Given] extends number ? number : Float64Array>;

  /** Why the points of the last array failed; "" for those that did not. */
  reasons(): string[];
  /** The record of scalar calls that left messages. */
  trace(): TraceNode;

  /** Trace and settings as at the beginning. The units stay. */
  reset(): void;
  /** Another engine with the units and the settings of this one. */
  clone(): Engine;
  /** Gives its memory back at once; without it that happens when nobody has the engine any more. */
  destroy(): void;
}

/** What a result or an input is in words. */
export interface PropertyInfo {
  /** "h" */
  readonly name: string;
  /** "H": as in the members' names. */
  readonly letter: string;
  /** The number of its quantity, -1 for a number without unit. */
  readonly group: number;
  /** "enthalpy" */
  readonly words: string;
}

/** The properties of a state by name. */
export const properties: { readonly [name: string]: PropertyInfo };
/** The pairs of letters that give a state: "PT", "PH", ... */
export const pairs: readonly string[];

/** As the engine has it: supercritical is all above the critical temperature or the critical pressure. */
export type Phase = 'liquid' | 'vapour' | 'supercritical' | 'two-phase';

/** A state of water, or many of them, in the units that the engine had when it was made. */
export class State<N extends number | Float64Array = number> {
  private constructor();
  /** Of many states: of each, "" where it failed. */
  readonly phase: N extends number ? Phase : (Phase | '')[];
  readonly P: N;
  readonly T: N;
  /** enthalpy */
  readonly h: N;
  /** entropy */
  readonly s: N;
  /** internal energy */
  readonly u: N;
  /** density */
  readonly rho: N;
  /** specific volume */
  readonly v: N;
  /** vapour fraction */
  readonly x: N;
  // Those that follow are of one phase: a mixture's throw.
  /** Helmholtz energy */
  readonly a: N;
  /** Gibbs energy */
  readonly g: N;
  /** isobaric heat capacity */
  readonly cp: N;
  /** isochoric heat capacity */
  readonly cv: N;
  /** speed of sound */
  readonly w: N;
  /** dynamic viscosity */
  readonly mu: N;
  /** thermal conductivity */
  readonly k: N;
  /** Prandtl number */
  readonly Pr: N;
  /** compressibility factor */
  readonly Z: N;
  /** static dielectric constant */
  readonly epsilon: N;
  /** isothermal throttling coefficient */
  readonly delta_T: N;
  /** Joule-Thomson coefficient */
  readonly mu_JT: N;
  /** thermal expansion coefficient */
  readonly beta: N;
  /** isothermal compressibility */
  readonly kappa: N;
  /** A property by its name. */
  get(name: string): N;
  /** The unit of a property; "" where there is none. */
  unit(name: string): string;
  /** Every property; where there is none, NaN and the reason. */
  all(): (PropertyInfo & { unit: string; value: N; reason: string })[];
}

export interface TraceNode {
  text: string;
  kind: 'root' | 'call' | 'error' | 'warning' | 'note' | 'external error';
  /** The gravest kind of message in it or below. */
  gravest: TraceNode['kind'];
  /** Of an error, a warning or a note the number of its message, else 0. */
  code: number;
  /** Texts that a client added; those of the root are their titles. */
  columns: string[];
  children: TraceNode[];
}

/** An input or a result of a member. */
export interface ValueInfo {
  readonly name: string;
  readonly type: 'number' | 'integer' | 'string' | 'table';
  /** The number of its quantity, -1 for none. */
  readonly group: number;
  /** "outlet temperature" */
  readonly words: string;
}
export interface InputInfo extends ValueInfo {
  /** What is accepted, in model units; infinite: no bound. */
  readonly low: number;
  readonly high: number;
  /** The bound itself is refused. */
  readonly aboveLow: boolean;
  readonly belowHigh: boolean;
}
export interface CallInfo {
  readonly member: string;
  /** In model units. */
  readonly inputs: readonly (number | string)[];
}
export interface MemberInfo {
  readonly name: string;
  /** The same for ever. */
  readonly number: number;
  /** function: numbers from numbers, or arrays; setting and reading: a property of the engine. */
  readonly kind: 'function' | 'method' | 'setting' | 'reading';
  /** "properties", "saturation line", "equipment", ... */
  readonly heading: string;
  /** "enthalpy from pressure and temperature" */
  readonly title: string;
  /** What else to know, in sentences; may be empty. */
  readonly notes: string;
  /** Other words that people may look for; may be empty. */
  readonly other: string;
  readonly inputs: readonly InputInfo[];
  readonly outputs: readonly ValueInfo[];
  /** A spreadsheet's member, whose outputs are those that its tokens name. */
  readonly hasTokens: boolean;
  /** What must run before the example. */
  readonly preparation: readonly CallInfo[];
  /** A call that succeeds in a new engine. */
  readonly example: CallInfo;
}
/** The members in the order of the table. */
export const members: readonly MemberInfo[];
/** By name, in any case; also models that have only a spreadsheet's member by their own name. */
export function findMember(name: string): MemberInfo | undefined;
/** Those whose name or explanation has all these words. */
export function findMembers(...words: string[]): MemberInfo[];

export interface UnitInfo {
  readonly name: string;
  /** Value in the reference unit of the quantity = (value + offset) * factor. */
  readonly factor: number;
  readonly offset: number;
  /** What one who chooses it should know; mostly empty. */
  readonly notice: string;
}
export interface GroupInfo {
  readonly number: number;
  /** "Mass Specific Enthalpy" */
  readonly name: string;
  /** Words that select it; the first is the shortest. */
  readonly keywords: readonly string[];
  readonly modelUnit: string;
  readonly notice: string;
  readonly units: readonly UnitInfo[];
}
/** The quantities with units, by number. */
export const groups: readonly GroupInfo[];
export function findGroup(word: Quantity): GroupInfo;
/** A unit by its name or a common word for it. */
export function findUnit(quantity: Quantity, word: string): UnitInfo;
/** A number, or many, of a quantity from one unit to another. */
export function convert(quantity: Quantity, value: number, from: string, to: string): number;
export function convert(quantity: Quantity, value: Numbers, from: string, to: string): Float64Array;

/** The letters of the members' names. */
export const letters: readonly {
  readonly letter: string;
  readonly group: number;
  readonly words: string;
  readonly definition: string;
  readonly other: string;
}[];
/** The engine's messages, as formats of C. */
export const messages: readonly { readonly number: number; readonly text: string }[];
