// Light or dark: the reader's system decides until the button does. A slash goes to the search.
(() => {
  const key = 'calvex.theme',
    root = document.documentElement; // as the page of states has it
  const themes = ['auto', 'light', 'dark'];
  const remembered = () => {
    try {
      return localStorage.getItem(key);
    } catch {
      return null;
    }
  };
  let theme = themes.includes(remembered()) ? remembered() : 'auto';
  const show = () => {
    if (theme === 'auto') delete root.dataset.theme;
    else root.dataset.theme = theme;
  };
  show();

  addEventListener('DOMContentLoaded', () => {
    const button = document.querySelector('#theme');
    const name = () => {
      button.textContent = theme[0].toUpperCase() + theme.slice(1);
      button.setAttribute('aria-label', `Colours: ${theme}`);
    };
    button.hidden = false;
    name();
    button.addEventListener('click', () => {
      theme = themes[(themes.indexOf(theme) + 1) % themes.length];
      try {
        localStorage.setItem(key, theme);
      } catch {
        /* for this page only */
      }
      show();
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
