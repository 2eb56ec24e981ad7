// What the engine's tables say: the members, the quantities and their units.
import tables from './tables.js';

const infinite = { low: -Infinity, high: Infinity };

/** The members in the order of the table; see load.d.ts. */
export const members = tables.members.map(row => ({
  ...row,
  inputs: row.inputs.map(input => ({
    ...input,
    low: input.low ?? infinite.low,
    high: input.high ?? infinite.high,
  })),
}));
/** The quantities with units, by number. */
export const { groups, letters, messages, version } = tables;

const byName = new Map(members.map(row => [row.name, row]));
// A model that has only a member for spreadsheets goes by its own name too.
for (const row of members) {
  if (row.hasTokens && !byName.has(row.name.slice(2))) byName.set(row.name.slice(2), row);
}

/** The names by which an engine has its members, with their rows. */
export const memberNames = () => byName.entries();

/** A member by its name, in any case. */
export function findMember(name) {
  const found = byName.get(name);
  if (found) return found;
  const lower = String(name).toLowerCase();
  for (const [known, row] of byName) if (known.toLowerCase() === lower) return row;
  return undefined;
}

/** The members whose name or explanation has all these words. */
export function findMembers(...words) {
  const wanted = words.join(' ').toLowerCase().split(/\s+/).filter(Boolean);
  return members.filter(row => {
    const text = `${row.name} ${row.title} ${row.other}`.toLowerCase();
    return wanted.every(word => text.includes(word));
  });
}
