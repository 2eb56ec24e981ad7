// Light or dark: the reader's system decides until the button does. A slash goes to the search.
(() => {
  const key = 'calvex-theme', root = document.documentElement;
  const kept = () => { try { return localStorage.getItem(key); } catch { return null; } };
  const isDark = () => (root.dataset.theme ??
    (matchMedia('(prefers-color-scheme: dark)').matches ? 'dark' : 'light')) === 'dark';
  if (kept()) root.dataset.theme = kept();

  addEventListener('DOMContentLoaded', () => {
    const button = document.querySelector('#theme');
    const name = () => { button.textContent = isDark() ? 'Light' : 'Dark'; };
    button.hidden = false;
    name();
    button.addEventListener('click', () => {
      root.dataset.theme = isDark() ? 'light' : 'dark';
      try { localStorage.setItem(key, root.dataset.theme); } catch { /* for this page only */ }
      name();
    });
    // On a phone the guides would push the page away.
    if (matchMedia('(max-width: 60rem)').matches) {
      document.querySelector('.guides details').open = false;
    }
  });

  addEventListener('keydown', event => {
    const isTyping = event.target.matches?.('input, select, textarea');
    if (event.key !== '/' || isTyping || event.ctrlKey || event.metaKey || event.altKey) return;
    event.preventDefault();
    document.querySelector('#sought').focus();
  });
})();
