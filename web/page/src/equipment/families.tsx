// A drawing for each family of models: where its streams enter and leave, and between which of them
// a process runs. Drawn on a page of 520 by 260.
import type { MemberInfo } from 'calvex/load';
import type { ComponentChildren } from 'preact';

/** Where a stream meets the drawing: the line of its pipe, and where its values stand. */
export interface Port {
  stream: string;
  title: string;
  pipe: string;
  at: readonly [number, number];
  anchor?: 'start' | 'middle' | 'end';
  outlet?: boolean;
}

export interface Sketch {
  ports: readonly Port[];
  /** From which stream to which a process runs. */
  lines: readonly (readonly [string, string])[];
  shapes: ComponentChildren;
}

export interface Family {
  title: string;
  has: RegExp;
  sketch: (member: MemberInfo) => Sketch;
}

const inlet = (
  stream: string,
  title: string,
  pipe: string,
  x: number,
  y: number,
  anchor: Port['anchor'] = 'start',
): Port => ({ stream, title, pipe, at: [x, y], anchor });
const outlet = (...[stream, title, pipe, x, y, anchor]: Parameters<typeof inlet>): Port => ({
  ...inlet(stream, title, pipe, x, y, anchor),
  outlet: true,
});

const outletCount = (member: MemberInfo): number =>
  Math.max(1, ...member.inputs.map(input => Number(/ outlet (\d)$/.exec(input.words)?.[1] ?? 1)));

/** Turbines widen towards their outlets, compressors narrow; extractions leave below. */
function machine(member: MemberInfo, widens: boolean): Sketch {
  const count = outletCount(member);
  const left = 150,
    right = 390,
    middle = 105;
  const half = (x: number) => {
    const share = (x - left) / (right - left);
    return widens ? 28 + 42 * share : 70 - 42 * share;
  };
  const names =
    count === 1 ? ['outlet'] : Array.from({ length: count }, (_, i) => `${i + 1} outlet`);
  const outlets = names.map((stream, i) => {
    const x = right - 10 - (count - 1 - i) * 105;
    return outlet(
      stream,
      count === 1 ? 'outlet' : `outlet ${i + 1}`,
      `M${x},${(middle + half(x)).toFixed(1)}V200`,
      x + 6,
      190,
      'start',
    );
  });
  const [a, b] = [half(left), half(right)];
  return {
    ports: [inlet('inlet', 'inlet', `M40,${middle}H${left}`, 40, middle + 16), ...outlets],
    lines: [['inlet', names[0]!], ...names.slice(1).map((name, i) => [names[i]!, name] as const)],
    shapes: (
      <>
        <path
          class="body"
          d={`M${left},${middle - a}L${right},${middle - b}V${middle + b}L${left},${middle + a}Z`}
        />
        <path class="shaft" d={`M${right},${middle}H440`} />
        <circle class="body" cx={462} cy={middle} r={22} />
        <text class="sign" x={462} y={middle} dy="0.35em">
          {widens ? 'G' : 'M'}
        </text>
      </>
    ),
  };
}

const pump = (): Sketch => ({
  ports: [
    inlet('inlet', 'inlet', 'M90,130H210', 90, 146),
    outlet('outlet', 'outlet', 'M310,130H440', 340, 146),
  ],
  lines: [['inlet', 'outlet']],
  shapes: (
    <>
      <circle class="body" cx={260} cy={130} r={50} />
      <path class="body" d="M236,90L310,130L236,170" />
    </>
  ),
});

const valve = (): Sketch => ({
  ports: [
    inlet('inlet', 'inlet', 'M80,130H210', 80, 146),
    outlet('outlet', 'outlet', 'M310,130H440', 340, 146),
  ],
  lines: [['inlet', 'outlet']],
  shapes: (
    <>
      <path class="body" d="M210,100L310,160V100L210,160Z" />
      <path class="shaft" d="M260,130V84M236,84H284" />
    </>
  ),
});

const deaerator = (): Sketch => ({
  ports: [
    inlet('make-up', 'make-up water', 'M50,96H222', 50, 18),
    inlet('heating', 'heating steam', 'M50,174H140', 30, 190),
    outlet('deaerated', 'deaerated water', 'M340,196V236H388', 396, 206),
  ],
  lines: [
    ['make-up', 'deaerated'],
    ['heating', 'deaerated'],
  ],
  shapes: (
    <>
      <rect class="body" x={140} y={120} width={250} height={76} rx={36} />
      <path class="body" d="M222,122V56a38,24 0 0 1 76,0V122" />
      <path class="level" d="M147,165H383" />
      <path class="pipe" d="M260,32V12H330" marker-end="url(#arrow)" />
      <text class="name" x={340} y={16}>
        vent
      </text>
    </>
  ),
});

const desuperheater = (): Sketch => ({
  ports: [
    inlet('inlet', 'steam', 'M40,140H150', 40, 156),
    inlet('spray', 'spray water', 'M250,30V112', 262, 36),
    outlet('cooled', 'cooled steam', 'M370,140H480', 390, 156),
  ],
  lines: [
    ['inlet', 'cooled'],
    ['spray', 'cooled'],
  ],
  shapes: (
    <>
      <rect class="body" x={150} y={112} width={220} height={56} rx={10} />
      <path class="level" d="M250,116L286,140M250,116L292,128M250,116L276,152M250,116L262,158" />
    </>
  ),
});

const boiler = (): Sketch => ({
  ports: [
    inlet('feed', 'feed water', 'M30,120H170', 30, 136),
    outlet('steam', 'steam', 'M290,40V20H400', 410, 20),
    outlet('blowdown', 'blowdown', 'M330,180V214H400', 410, 206),
  ],
  lines: [
    ['feed', 'steam'],
    ['feed', 'blowdown'],
  ],
  shapes: (
    <>
      <rect class="body" x={170} y={40} width={190} height={140} rx={18} />
      <path class="level" d="M172,104H358" />
      <path
        class="flame"
        d="M244,170c-16,-14 -4,-26 4,-40c4,12 18,18 12,40zM278,170c-14,-12 -4,-22 2,-34c6,10 16,18 10,34z"
      />
    </>
  ),
});

const flash = (): Sketch => ({
  ports: [
    inlet('inlet', 'inlet', 'M60,130H210', 60, 146),
    outlet('vapour', 'vapour', 'M260,40V18H370', 380, 18),
    outlet('liquid', 'liquid', 'M260,220V244H370', 380, 200),
  ],
  lines: [
    ['inlet', 'vapour'],
    ['inlet', 'liquid'],
  ],
  shapes: (
    <>
      <rect class="body" x={210} y={40} width={100} height={180} rx={44} />
      <path class="level" d="M212,168H308" />
    </>
  ),
});

const exchanger = (): Sketch => ({
  ports: [
    inlet('hot inlet', 'hot, in', 'M40,114H190', 40, 12),
    outlet('hot outlet', 'hot, out', 'M330,114H480', 400, 12),
    inlet('cold inlet', 'cold, in', 'M480,174H320', 400, 192),
    outlet('cold outlet', 'cold, out', 'M200,174H40', 40, 192),
  ],
  lines: [
    ['hot inlet', 'hot outlet'],
    ['cold inlet', 'cold outlet'],
  ],
  shapes: (
    <>
      <circle class="body" cx={260} cy={144} r={76} />
      <path class="hot" d="M190,114H222L240,92L262,136L284,92L298,114H330" />
      <path class="cold" d="M320,174H298L284,152L262,196L240,152L222,174H200" />
    </>
  ),
});

const ejector = (): Sketch => ({
  ports: [
    inlet('motive', 'motive steam', 'M14,90H120', 14, 24),
    inlet('suction', 'suction steam', 'M170,220V150', 30, 178),
    outlet('discharge', 'discharge', 'M410,105H490', 418, 128),
  ],
  lines: [
    ['motive', 'discharge'],
    ['suction', 'discharge'],
  ],
  shapes: (
    <>
      <path class="body" d="M120,60H210L280,88H310L410,66V144L310,122H280L210,150H120Z" />
      <path class="hot" d="M120,76L196,98V112L120,134" />
    </>
  ),
});

const gasTurbine = (): Sketch => ({
  ports: [outlet('steam', 'steam', 'M414,60V30H492', 444, 46)],
  lines: [],
  shapes: (
    <>
      <path class="body" d="M60,70L130,90V130L60,150Z" />
      <path class="body" d="M190,90L260,66V154L190,130Z" />
      <path class="shaft" d="M130,110H190" />
      <circle class="body" cx={160} cy={60} r={16} />
      <path class="flame" d="M154,70c-8,-8 -2,-14 4,-22c2,7 9,11 5,22z" />
      <path class="pipe" d="M100,80V60H144M176,60H210V82" />
      <path class="pipe" d="M260,110H330" marker-end="url(#arrow)" />
      <rect class="body" x={330} y={60} width={106} height={110} rx={12} />
      <path class="hot" d="M350,150V90l14,50l14,-50l14,50l14,-50l14,50V84" />
      <path class="pipe" d="M16,110H60" marker-end="url(#arrow)" />
      <text class="name" x={16} y={100}>
        air
      </text>
      <text class="name" x={266} y={128}>
        exhaust
      </text>
      <text class="name" x={346} y={192}>
        heat-recovery boiler
      </text>
    </>
  ),
});

const polynomial = (): Sketch => ({
  ports: [],
  lines: [],
  shapes: (
    <>
      <path class="shaft" d="M60,140H460M100,30V230" />
      <path class="hot" d="M90,220C150,20 200,60 250,140S340,240 440,40" />
      <circle class="body" cx={250} cy={140} r={6} />
    </>
  ),
});

export const families: readonly Family[] = [
  { title: 'Gas turbine', has: /gas turbine/, sketch: gasTurbine },
  { title: 'Ejectors', has: /thermocompressor/, sketch: ejector },
  { title: 'Turbines', has: /turbine/, sketch: member => machine(member, true) },
  { title: 'Compressors', has: /compressor/, sketch: member => machine(member, false) },
  { title: 'Pump', has: /pump/, sketch: pump },
  { title: 'Desuperheaters', has: /spray water/, sketch: desuperheater },
  { title: 'Deaerator', has: /deaerator/, sketch: deaerator },
  { title: 'Valve', has: /valve/, sketch: valve },
  { title: 'Boilers', has: /boiler/, sketch: boiler },
  { title: 'Flash vessel', has: /flashed/, sketch: flash },
  { title: 'Heat exchangers', has: /heat exchanger/, sketch: exchanger },
  { title: 'Numbers', has: /polynomial/, sketch: polynomial },
];

export const familyOf = (member: MemberInfo): Family | undefined =>
  families.find(family => family.has.test(member.title));
