// The model that is looked at: its inputs as they are typed, and what it answers.
import { computed } from '@preact/signals';
import {
  CalvexError,
  findMember,
  type InputInfo,
  type MemberInfo,
  type TraceNode,
} from 'calvex/load';

import { address } from '../address.ts';
import {
  blamed,
  call,
  exampleText,
  holders,
  members,
  pretty,
  readInput,
  reasonOf,
  show,
  steam,
  toUser,
  unitName,
} from '../engine.ts';

/** The members of the table that are equipment; once, when the engine is there. */
export const modelsNow = (): MemberInfo[] =>
  members.filter(row => row.heading === 'equipment' && row.kind === 'function');

export const model = computed<MemberInfo>(() => {
  const { page, item } = address.value;
  const wanted = page === 'equipment' ? findMember(item) : undefined;
  const all = modelsNow();
  return all.find(row => row === wanted) ?? all[0]!;
});

/** The key of an input in the address. */
export const keyOf = (input: InputInfo): string => `in.${input.name}`;

export interface Typed {
  info: InputInfo;
  key: string;
  text: string;
  value?: number;
  trouble?: string;
}

export const typed = computed<Typed[]>(() =>
  model.value.inputs.map((info, i) => {
    const key = keyOf(info);
    const example = model.value.example.inputs[i];
    const text =
      address.value.values[key] ??
      (typeof example === 'number' ? exampleText(info.group, example) : '');
    return { info, key, text, ...readInput(text, info) };
  }),
);

holders.push(() => Object.fromEntries(model.value.inputs.map(info => [keyOf(info), info])));

export interface Result {
  name: string;
  words: string;
  group: number;
  value: number;
}
export interface Answer {
  results?: Result[];
  warnings: string[];
  /** By the name of the input. */
  troubles: Record<string, string>;
  /** What is no single input's fault. */
  trouble?: string;
}

export const answer = computed<Answer>(() => {
  const troubles: Record<string, string> = {};
  for (const { info, trouble } of typed.value)
    if (trouble !== undefined) troubles[info.name] = trouble;
  if (Object.keys(troubles).length > 0) return { troubles, warnings: [] };
  const { name, outputs } = model.value;
  const recorder = steam.value.clone();
  recorder.TraceLevel = 1;
  try {
    const found = call(
      recorder,
      name,
      typed.value.map(input => input.value!),
    );
    const values =
      typeof found === 'number' ? { [outputs[0]!.name]: found } : (found as Record<string, number>);
    return {
      results: outputs.map(output => ({ ...output, value: values[output.name]! })),
      warnings: warningsOf(recorder.trace()),
      troubles,
    };
  } catch (failure) {
    const reason = reasonOf(failure);
    const guilty =
      outsiders().length > 0
        ? outsiders()
        : blamed(
            reason,
            typed.value.map(({ info }) => info),
          );
    if (!(failure instanceof CalvexError) || guilty.length === typed.value.length) {
      return { troubles, trouble: reason, warnings: [] };
    }
    for (const info of guilty) troubles[info.name] = reason;
    return { troubles, warnings: [] };
  } finally {
    recorder.destroy();
  }
});

/** The inputs that are outside of their own limits. */
const outsiders = (): InputInfo[] =>
  typed.value
    .filter(({ info, value }) => {
      const low = toUser(info.group, info.low),
        high = toUser(info.group, info.high);
      return (
        value! < low ||
        value! > high ||
        (info.aboveLow && value === low) ||
        (info.belowHigh && value === high)
      );
    })
    .map(({ info }) => info);

function warningsOf(node: TraceNode): string[] {
  const found = new Set<string>();
  const look = (each: TraceNode) => {
    if (each.kind === 'warning') found.add(each.text);
    each.children.forEach(look);
  };
  look(node);
  return [...found];
}

/** "above 0 to 30000 bara" */
export function limitsText({ low, high, aboveLow, belowHigh, group }: InputInfo): string {
  const bound = (value: number) => show(toUser(group, value), 7);
  const unit = group < 0 ? '' : ` ${pretty(unitName(group))}`.trimEnd();
  const least = Number.isFinite(low)
    ? `${aboveLow ? 'above' : Number.isFinite(high) ? '' : 'at least'} ${bound(low)}`.trim()
    : '';
  const most = Number.isFinite(high)
    ? `${belowHigh ? 'below' : least ? 'to' : 'at most'} ${bound(high)}`
    : '';
  return least || most ? `${least} ${most}`.trim() + unit : '';
}
