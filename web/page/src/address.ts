// The page's address: behind the # stand the view and everything that was chosen or typed, so that a
// link shows another what one sees.
//
//   #diagram/hs?P=100+bar&T=500&u.T=C&zoom=2,0.4,0.5
//
// The view and what it shows, then the values: u.KEYWORD is the unit of a quantity; capital letters
// are the inputs of the state in their order; the other keys belong to the views that read them.
import { signal } from '@preact/signals';

export interface Address {
  page: string;
  item: string;
  values: Readonly<Record<string, string>>;
  /** Keys that a link has more than once: of their values the last one counts. */
  twice?: readonly string[];
  /** It came from elsewhere: what this page wrote may also have what other views read. */
  linked?: boolean;
}

export const firstPage = 'state';

export function read(hash: string): Address {
  const text = hash.replace(/^#\/?/, '');
  const mark = text.indexOf('?');
  const path = mark < 0 ? text : text.slice(0, mark);
  const [page = '', item = ''] = path.split('/').map(part => {
    try {
      return decodeURIComponent(part);
    } catch {
      return part; // a lone % is no fault of who follows the link
    }
  });
  const query = new URLSearchParams(mark < 0 ? '' : text.slice(mark + 1));
  const keys = [...query.keys()];
  const twice = [...new Set(keys.filter((key, i) => keys.indexOf(key) < i))];
  return { page: page || firstPage, item, values: Object.fromEntries(query), twice };
}

export function write({ page, item, values }: Address): string {
  const query = new URLSearchParams(values)
    .toString()
    .replaceAll('%2C', ',')
    .replaceAll('%3A', ':');
  const path = item ? `${page}/${encodeURIComponent(item)}` : page;
  return `#${path}${query && '?'}${query}`;
}

/** On the entries of the history that this page made; loading it again keeps them. */
const ours = 'of this page';
const here = (): Address => ({ ...read(location.hash), linked: history.state !== ours });

export const address = signal<Address>(here());

/** What a table has under a word of the address, which may be "constructor" as well. */
export const own = <T>(table: Readonly<Record<string, T>>, word: string): T | undefined =>
  Object.hasOwn(table, word) ? table[word] : undefined;

export const value = (key: string, otherwise = ''): string =>
  own(address.value.values, key) ?? otherwise;

/** The address with some values changed; undefined takes one out. */
export function changed(changes: Record<string, string | undefined>): Address {
  const values = { ...address.value.values };
  for (const [key, text] of Object.entries(changes)) {
    if (text === undefined) delete values[key];
    else values[key] = text;
  }
  return { ...address.value, values };
}

/** The address of another view with the same values. */
export const linkTo = (page: string, item = ''): string => write({ ...address.value, page, item });

// Browsers refuse an address that changes with every key and every turn of a wheel.
let pending: ReturnType<typeof setTimeout> | undefined;
function writeNow() {
  clearTimeout(pending);
  pending = undefined;
  const hash = write(address.peek());
  if (hash !== location.hash) history.replaceState(history.state, '', hash);
}

/** What was typed or chosen: it replaces the entry of the history. */
export function put(changes: Record<string, string | undefined>) {
  replace(changed(changes));
}

export function replace(next: Address) {
  if (write(next) === write(address.peek())) return;
  address.value = next;
  pending ??= setTimeout(writeNow, 150);
}

/** Another view: an entry of its own, to go back from. */
export function go(next: Address) {
  if (pending !== undefined) writeNow();
  const hash = write(next);
  if (hash === write(address.peek())) return;
  history.pushState(ours, '', hash);
  address.value = next;
}

export function followAddress() {
  addEventListener('popstate', () => {
    address.value = here();
  });
  addEventListener('pagehide', () => {
    if (pending !== undefined) writeNow();
  });
}
