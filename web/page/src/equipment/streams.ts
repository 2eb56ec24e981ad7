// The streams of a model, read out of the engine's words for its inputs and results: "enthalpy of the
// heating steam" is the enthalpy of the stream "heating", "pressure at outlet 1" the pressure of
// "outlet 1".
import { convert, type MemberInfo, type State, type ValueInfo } from 'calvex/load';

import { groups, letterRow, steam, unitName } from '../engine.ts';

/** What is known of a stream by the letter of its quantity; M is its flow. */
export type Stream = Partial<Record<'P' | 'T' | 'H' | 'S' | 'Q' | 'M', number>>;
export type Streams = Record<string, Stream>;

const kindsOfValue: readonly { letter: keyof Stream; words: RegExp }[] = [
  { letter: 'P', words: /\bpressure\b/ },
  { letter: 'T', words: /\btemperature\b/ },
  { letter: 'H', words: /\benthalpy\b/ },
  { letter: 'S', words: /\bentropy\b/ },
  { letter: 'Q', words: /\bquality\b/ },
  { letter: 'M', words: /\bflow( rate)?\b/ },
];
const flowGroup = () => groups.find(group => group.name === 'Mass Flow Rate')!.number;
const groupOf = (letter: keyof Stream): number =>
  letter === 'M' ? flowGroup() : letterRow(letter).group;

const fillers = /\b(of|the|at|that|leaves|stream|flow)\b/g;
/** "steam" and "water" count only where nothing else tells streams apart. */
const media = /\b(steam|water)\b/g;

/** The stream of a value, and which property of it the value is. */
export function streamOf({
  words,
  group,
}: ValueInfo): { stream: string; letter: keyof Stream } | undefined {
  const text = words.replace(/,.*/, '');
  const kind = kindsOfValue.find(each => each.words.test(text) && groupOf(each.letter) === group);
  if (!kind) return undefined;
  const rest = text.replace(kind.words, '').replace(fillers, ' ');
  const name =
    [rest.replace(media, ' '), rest].map(each => each.replace(/\s+/g, ' ').trim()).find(Boolean) ??
    '';
  // "hot outlet" and "outlet hot" are one.
  return { stream: name.split(' ').sort().join(' '), letter: kind.letter };
}

/** The streams of a call: a value for each of the model's inputs and results, in the chosen units. */
export function streamsOf(member: MemberInfo, values: Readonly<Record<string, number>>): Streams {
  const streams: Streams = {};
  for (const info of [...member.inputs, ...member.outputs]) {
    const place = streamOf(info);
    const value = values[info.name];
    if (!place || value === undefined || !Number.isFinite(value)) continue;
    (streams[place.stream] ??= {})[place.letter] ??= value;
  }
  nameInlet(streams);
  shareFlows(streams);
  dropPressures(member, values, streams);
  sharePressure(streams);
  return streams;
}

/** Where there is an inlet, what is said of the water without saying where is said of it. */
function nameInlet(streams: Streams) {
  if (!streams.inlet) return;
  for (const name of ['', 'water']) {
    streams.inlet = { ...streams[name], ...streams.inlet };
    delete streams[name];
  }
}

/** What flows in flows out: the flow of "cold" is that of "cold inlet" and "cold outlet". */
function shareFlows(streams: Streams) {
  for (const [name, { M }] of Object.entries(streams)) {
    for (const end of ['inlet', 'outlet']) {
      const stream = streams[`${name} ${end}`];
      if (stream && M !== undefined) stream.M ??= M;
    }
  }
}

/** A stream leaves with its inlet pressure less the drop. */
function dropPressures(
  member: MemberInfo,
  values: Readonly<Record<string, number>>,
  streams: Streams,
) {
  for (const info of member.inputs) {
    const side = /^pressure drop of the (\w+) stream$/.exec(info.words)?.[1];
    const drop = values[info.name];
    const before = streams[`${side} inlet`]?.P;
    if (side === undefined || drop === undefined || before === undefined) continue;
    const { group } = letterRow('P');
    const { modelUnit } = groups[group]!;
    const after =
      convert(group, before, unitName(group), modelUnit) -
      convert(info.group, drop, unitName(info.group), groups[info.group]!.modelUnit);
    (streams[`${side} outlet`] ??= {}).P = convert(group, after, modelUnit, unitName(group));
  }
}

/** Where a model has one pressure, all of its streams have it. */
function sharePressure(streams: Streams) {
  const pressures = Object.values(streams).flatMap(({ P }) => (P === undefined ? [] : [P]));
  if (pressures.length !== 1) return;
  for (const stream of Object.values(streams)) stream.P ??= pressures[0];
}

/** The state of a stream where enough of it is known. */
export function stateOf({ P, T, H, Q }: Stream): State | undefined {
  const pairs: Record<string, number | undefined>[] = [{ P, h: H }];
  // A temperature on the saturation line tells a state only with the quality.
  const wet = Q !== undefined && Q > 0 && Q < 1;
  pairs.push(
    ...(wet
      ? [{ P, x: Q }]
      : [
          { P, T },
          { P, x: Q },
        ]),
  );
  for (const pair of pairs) {
    if (Object.values(pair).some(value => value === undefined)) continue;
    try {
      return steam.value.state(pair as Record<string, number>);
    } catch {
      // The next pair may tell it.
    }
  }
  return undefined;
}
