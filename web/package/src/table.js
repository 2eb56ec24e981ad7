// What the engine's tables say: the members, the quantities and their units.
import { textAt, wasm } from './wasm.js';

/** The members in the order of the table; see index.d.ts. */
export const members = [];
/** The quantities with units, by number. */
export const groups = [];
/** The letters of the members' names. */
export const letters = [];
/** The messages of the engine. */
export const messages = [];
export let version = '';

const byName = new Map();

/** Reads the tables of the engine that has been started. */
export function readTables() {
  const tables = JSON.parse(textAt(wasm.calvex_web_tables()));
  members.push(...tables.members.map(member));
  groups.push(...tables.groups);
  letters.push(...tables.letters);
  messages.push(...tables.messages.filter(row => row.number >= 2));
  version = tables.messages[0].text;
  for (const row of members) byName.set(row.name, row);
  // A model that has only a member for spreadsheets goes by its own name too.
  for (const row of members) {
    if (row.hasTokens && !byName.has(row.name.slice(2))) byName.set(row.name.slice(2), row);
  }
}

function member(row) {
  const bound = (value, infinite) => value ?? infinite;
  for (const input of row.inputs) {
    input.low = bound(input.low, -Infinity);
    input.high = bound(input.high, Infinity);
  }
  if (row.hasTokens) row.example.inputs.pop();
  return row;
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
