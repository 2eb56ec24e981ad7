// The record of calls.
import { memoryView, scratch, textFrom, wasm } from './wasm.js';

const kinds = ['root', 'call', 'error', 'warning', 'note', 'external error'];
const none = 0xffffffff;

/** The tree of scalar calls that left messages. */
export function trace(address) {
  const place = scratch();
  wasm.calvex_trace_take(address, place);
  const count = memoryView().getUint32(place, true);
  const nodes = [];
  for (let i = 0; i < count; ++i) {
    wasm.calvex_trace_node(address, i, place, 28);
    const [kind, gravest, code, parent, , , columns] = new Uint32Array(
      wasm.memory.buffer,
      place,
      7,
    );
    const node = {
      text: textFrom((...room) => wasm.calvex_trace_text(address, i, ...room)),
      kind: kinds[kind],
      gravest: kinds[gravest],
      code,
      columns: Array.from({ length: columns }, (_, column) =>
        textFrom((...room) => wasm.calvex_trace_column(address, i, column, ...room)),
      ),
      children: [],
    };
    nodes.push(node);
    if (parent !== none) nodes[parent].children.push(node);
  }
  return nodes[0];
}
