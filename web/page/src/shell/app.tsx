// The frame of the page: its views, its theme, its keys.
import { version } from 'calvex/load';
import { useEffect, useErrorBoundary, useLayoutEffect, useRef, useState } from 'preact/hooks';

import { address, firstPage, go, linkTo, read, replace, write } from '../address.ts';
import { DiagramView } from '../diagram/view.tsx';
import { reasonOf } from '../engine.ts';
import { EquipmentView } from '../equipment/view.tsx';
import { copy } from '../files.ts';
import { StateView } from '../state/view.tsx';
import { TablesView } from '../tables/view.tsx';
import { UnitsView } from '../units/view.tsx';
import { useKeys, KeysDialog } from './keys.tsx';
import { isRead, unknowns } from './notices.ts';
import { nextTheme, theme } from './theme.ts';

export const views: readonly { page: string; title: string; View: preact.ComponentType }[] = [
  { page: 'state', title: 'State', View: StateView },
  { page: 'diagram', title: 'Diagrams', View: DiagramView },
  { page: 'equipment', title: 'Equipment', View: EquipmentView },
  { page: 'tables', title: 'Tables', View: TablesView },
  { page: 'units', title: 'Units', View: UnitsView },
];

/** A link of this page is followed without loading it again. */
function follow(event: MouseEvent) {
  const link = (event.target as Element).closest?.('a[href^="#"]');
  if (!link || event.ctrlKey || event.metaKey || event.shiftKey || event.button !== 0) return;
  const href = link.getAttribute('href')!;
  event.preventDefault();
  if (href === '#main') document.getElementById('main')!.focus();
  else go(read(href));
}

/** A view; where it fails the first one comes back, from its beginning. */
function Kept({ View }: { View: preact.ComponentType }) {
  const [failed, fail] = useState({ reason: '', put: address.value });
  const [failure, again] = useErrorBoundary();
  const told = failed.reason !== '' && failed.put === address.value;
  useLayoutEffect(() => {
    if (failure === undefined || told) return; // one that fails from its beginning stays away
    replace({ page: firstPage, item: '', values: {} });
    fail({ reason: reasonOf(failure), put: address.value });
    again();
  }, [failure]);
  return (
    <>
      {told && (
        <p class="trouble notice" role="alert">
          This could not be shown, and the page begins anew: {failed.reason}
        </p>
      )}
      {failure === undefined && <View />}
    </>
  );
}

export function App() {
  const { page } = address.value;
  const { View, title } = views.find(view => view.page === page) ?? views[0]!;
  const main = useRef<HTMLElement>(null);
  const [keysShown, showKeys] = useState(false);
  const [copied, setCopied] = useState(false);
  useKeys(
    views.map(view => view.page),
    () => showKeys(true),
  );
  useLayoutEffect(() => {
    document.title = `${title} – Calvex, water and steam`;
  }, [title]);
  useEffect(() => {
    document.addEventListener('click', follow);
    return () => document.removeEventListener('click', follow);
  }, []);
  const share = async () => {
    const used = Object.entries(address.value.values).filter(([key]) => isRead(key));
    const link = write({ ...address.value, values: Object.fromEntries(used) });
    const here = `${location.href.replace(/#.*/, '')}${link}`;
    setCopied(await copy(here));
    setTimeout(() => setCopied(false), 2500);
  };
  return (
    <>
      <a class="skip" href="#main">
        To the content
      </a>
      <header class="top">
        <p class="brand">
          <strong>Calvex</strong> <span>water and steam</span>
        </p>
        <nav aria-label="Views">
          {views.map((view, i) => (
            <a
              key={view.page}
              href={linkTo(view.page)}
              title={`Key ${i + 1}`}
              aria-current={view.title === title ? 'page' : undefined}
            >
              {view.title}
            </a>
          ))}
          <a href="docs/index.html">Documentation</a>
        </nav>
        <div class="buttons">
          <button type="button" onClick={share}>
            {copied ? 'Copied' : 'Copy link'}
          </button>
          <button type="button" onClick={nextTheme}>
            Colours: {theme.value}
          </button>
          <button type="button" class="help" onClick={() => showKeys(true)} aria-label="Keys">
            ?
          </button>
        </div>
        <output class="unseen">{copied ? 'The link is in the clipboard.' : ''}</output>
      </header>
      <main id="main" ref={main} tabIndex={-1}>
        <h1 class="unseen">{title}</h1>
        {unknowns.value.map(text => (
          <p key={text} class="trouble notice" role="alert">
            {text}
          </p>
        ))}
        <Kept View={View} />
      </main>
      <footer>
        <p>
          Calvex {version}, IAPS Formulation 1984. Computed in this page: nothing you type leaves
          it. <a href="licences.txt">Licences</a>
        </p>
      </footer>
      <KeysDialog shown={keysShown} close={() => showKeys(false)} />
    </>
  );
}
