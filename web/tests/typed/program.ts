// What a program with types may say, and what it may not; read by the compiler, never run.
import {
  CalvexError,
  convert,
  Engine,
  findMember,
  type GroupInfo,
  groups,
  load,
  members,
  type State,
  version,
} from 'calvex';
import { load as again } from 'calvex/load';

await load({ simd: false });
await again();

const steam = new Engine({ T: '°C', P: 'bar' });
const h: number = steam.HPT(100, 500);
const many: Float64Array = steam.HPT(100, [480, 500, 520]);
const more: Float64Array = steam.TPH(Float64Array.of(1, 2), many);
const power: number = steam.TurbineA(3374, 100, 10, 0.8, 5).Power;
const powers: Float64Array = steam.TurbineA(3374, [90, 100], 10, 0.8, 5).Power;
const unit: string = steam.TurbineA(3374, 100, 10, 0.8, 5).units.Power;
const rows: number = steam.XLTurbineA(3374, 100, 10, 0.8, 5).T_Out;
const own: number = steam.ThermoCompressorB(3000, 10, 2700, 1, 2, 0.5).T_Out;
const one: State = steam.state({ P: 100, T: 500 });
const speed: number = one.w;
const states: State<Float64Array> = steam.state({ P: 100, T: many });
const phases: string[] = states.phase;
steam.SatPolish = 0;
const text: string = steam.VersionStr;
const group: GroupInfo | undefined = groups[0];
const limits: number | undefined = findMember('HPT')?.inputs[0]?.low;
const names: string[] = members.map(member => member.name);
const bar: number = convert('P', 100, 'psi', 'bar');

try {
  steam.trace().children.map(node => node.text);
} catch (failure) {
  if (failure instanceof CalvexError) console.log(failure.code, failure.reason, failure.cause);
}

const named: State = steam.state({ pressure: 100, x: 0.5 });
const given: Record<string, number> = { P: 100, T: 500 };
const chosen: State = steam.state(given);
const columns: Record<string, Float64Array> = { P: many, T: many };
const laid: State<Float64Array> = steam.state(columns);
const bytes: Float64Array = steam.HPT(100, Uint8Array.of(200, 210));

// @ts-expect-error: there is no such property
steam.state({ P: 1, TT: 2 });
// @ts-expect-error: there is no such setting
steam.SatPolsh = 0;
// @ts-expect-error: a text is no pressure
steam.HPT('100', 500);
// @ts-expect-error: the temperature is missing
steam.HPT(100);
// @ts-expect-error: there is no such member
steam.HXY(100, 500);
// @ts-expect-error: nor such a result
steam.TurbineA(3374, 100, 10, 0.8, 5).Pressure;
// @ts-expect-error: the version can only be read
steam.VersionStr = '5';
// @ts-expect-error: an array is answered by an array
const wrong: number = steam.HPT([100], 500);

console.log(
  h,
  more,
  power,
  powers,
  unit,
  rows,
  own,
  speed,
  phases,
  text,
  group,
  limits,
  names,
  bar,
  named,
  chosen,
  laid,
  bytes,
);
console.log(version, wrong);
