// The search page: what is asked in its address, and as one types.
import MiniSearch from 'minisearch';

const field = document.querySelector('#sought');
const count = document.querySelector('#count');
const list = document.querySelector('#found');

const index = new MiniSearch({
  fields: ['title', 'words', 'text', 'kind'],
  idField: 'url',
  storeFields: ['title', 'words', 'kind'],
  searchOptions: { boost: { title: 4, words: 2 }, prefix: true, fuzzy: 0.15, combineWith: 'AND' },
});
index.addAll(globalThis.searched);

function show(asked) {
  const found = asked.trim() ? index.search(asked) : [];
  count.textContent = !asked.trim()
    ? 'Type a word: a member, a quantity, a unit, a message.'
    : `${found.length || 'Nothing'} found for “${asked}”.`;
  list.replaceChildren(
    ...found.slice(0, 50).map(({ id, title, kind, words }) => {
      const link = Object.assign(document.createElement('a'), {
        href: `./${id}`,
        textContent: title,
      });
      const place = Object.assign(document.createElement('small'), { textContent: kind });
      const text = Object.assign(document.createElement('p'), { textContent: words });
      const item = document.createElement('li');
      item.append(link, ' ', place, text);
      return item;
    }),
  );
}

field.value = new URLSearchParams(location.search).get('q') ?? '';
show(field.value);
field.addEventListener('input', () => {
  show(field.value);
  history.replaceState(null, '', `?${new URLSearchParams({ q: field.value })}`);
});
field.form.addEventListener('submit', event => {
  event.preventDefault();
  list.querySelector('a')?.focus();
});
