// The engine's record of the calls behind a state, as a tree that folds.
import type { TraceNode } from 'calvex/load';
import { computed } from '@preact/signals';

import { put, value } from '../address.ts';
import { call, inFields, members, readInput, steam } from '../engine.ts';
import { inputs, pair } from './inputs.ts';

/** The members that take the pair, asked one by one: scalar calls leave a trace. */
export const trace = computed<TraceNode | undefined>(() => {
  const given = inputs.value.map(input => readInput(input.text, input).value);
  if (given.some(number => number === undefined)) return undefined;
  const asked = members.filter(row => new RegExp(`^[A-Z](Sat)?${pair.value}$`).test(row.name));
  const recorder = steam.value.clone();
  recorder.TraceLevel = value('trace') === 'notes' ? 2 : 1;
  for (const row of asked) {
    try {
      call(recorder, row.name, given as number[]);
    } catch {
      // The trace tells it.
    }
  }
  const root = recorder.trace();
  recorder.destroy();
  return root;
});

const messages = (node: TraceNode): number =>
  node.children.reduce(
    (count, child) => count + messages(child),
    node.kind === 'call' || node.kind === 'root' ? 0 : 1,
  );

/** Calls that left the same are one, with all their names. */
function folded(root: TraceNode): TraceNode {
  const groups = new Map<string, TraceNode[]>();
  for (const child of root.children.map(inWords)) {
    const left = JSON.stringify([child.kind, child.children]);
    groups.set(left, [...(groups.get(left) ?? []), child]);
  }
  return {
    ...root,
    children: Array.from(groups.values(), calls => ({
      ...calls[0]!,
      text: calls.map(each => each.text).join(', '),
    })),
  };
}
const inWords = (node: TraceNode): TraceNode => ({
  ...node,
  text: inFields(node.text),
  children: node.children.map(inWords),
});

function Node({ node, open }: { node: TraceNode; open: boolean }) {
  const text = (
    <>
      <span class={`kind ${node.kind.replace(' ', '-')}`}>{node.kind}</span> {node.text}
    </>
  );
  if (node.children.length === 0) return <li>{text}</li>;
  return (
    <li>
      <details open={open}>
        <summary>{text}</summary>
        <ul>
          {node.children.map((child, i) => (
            <Node key={i} node={child} open={open} />
          ))}
        </ul>
      </details>
    </li>
  );
}

export function Trace() {
  const root = trace.value && folded(trace.value);
  const notes = value('trace') === 'notes';
  const count = root ? messages(root) : 0;
  return (
    <section class="trace" aria-labelledby="trace-title">
      <h2 id="trace-title">Trace</h2>
      <p class="quiet">
        {pair.value === 'HS'
          ? 'No member takes enthalpy and entropy, so nothing is recorded.'
          : count === 0
            ? 'The calls left no message.'
            : `${count} message${count === 1 ? '' : 's'} of the calls behind this state.`}
      </p>
      <label class="check">
        <input
          type="checkbox"
          checked={notes}
          onChange={event => put({ trace: event.currentTarget.checked ? 'notes' : undefined })}
        />
        with the notes of the solver
      </label>
      {root && root.children.length > 0 && (
        <ul class="tree">
          {root.children.map((child, i) => (
            <Node
              key={`${child.text}${i}`}
              node={child}
              open={child.gravest !== 'note' && child.gravest !== 'call'}
            />
          ))}
        </ul>
      )}
    </section>
  );
}

/** The warnings of the calls, each once. */
export const warnings = computed<string[]>(() => {
  const found = new Set<string>();
  const look = (node: TraceNode) => {
    if (node.kind === 'warning') found.add(node.text);
    node.children.forEach(look);
  };
  if (trace.value) look(trace.value);
  return [...found];
});
