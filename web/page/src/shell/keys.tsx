// The keys of the page. Single letters disturb those who speak to their machine, so they can be
// turned off.
import { signal } from '@preact/signals';
import { useEffect, useRef } from 'preact/hooks';

import { address, go } from '../address.ts';
import { remember, remembered } from './theme.ts';

const single = signal(remembered('keys') !== 'off');

const typing = (target: EventTarget | null): boolean =>
  target instanceof HTMLElement && target.matches('input, select, textarea, [contenteditable]');

export function useKeys(pages: readonly string[], showKeys: () => void) {
  useEffect(() => {
    const key = (event: KeyboardEvent) => {
      if (
        !single.value ||
        event.ctrlKey ||
        event.metaKey ||
        event.altKey ||
        typing(event.target) ||
        document.querySelector('dialog[open]')
      )
        return;
      const page = pages[Number(event.key) - 1];
      if (page) go({ ...address.value, page, item: '' });
      else if (event.key === '?') showKeys();
      else if (event.key === '/')
        document.querySelector<HTMLElement>('main input, main select')?.focus();
      else return;
      event.preventDefault();
    };
    addEventListener('keydown', key);
    return () => removeEventListener('keydown', key);
  }, []);
}

const keys: readonly (readonly [string, string])[] = [
  ['1 … 5', 'State, Diagrams, Equipment, Tables, Units'],
  ['/', 'the first field of the view'],
  ['+  −  0', 'on a diagram: closer, farther, reset the view'],
  ['← ↑ → ↓', 'on a diagram: move it'],
  ['Shift ← ↑ → ↓', 'on a diagram: move the cross and hear the state'],
  ['Enter', 'on a diagram: take the state at the cross'],
  ['?', 'these keys'],
];

export function KeysDialog({ shown, close }: { shown: boolean; close: () => void }) {
  const dialog = useRef<HTMLDialogElement>(null);
  useEffect(() => {
    if (shown && !dialog.current!.open) dialog.current!.showModal();
  }, [shown]);
  return (
    <dialog ref={dialog} aria-labelledby="keys-title" onClose={close}>
      <h2 id="keys-title">Keys</h2>
      <dl class="keys">
        {keys.map(([key, words]) => (
          <div key={key}>
            <dt>
              <kbd>{key}</kbd>
            </dt>
            <dd>{words}</dd>
          </div>
        ))}
      </dl>
      <label class="check">
        <input
          type="checkbox"
          checked={single.value}
          onChange={event => {
            single.value = event.currentTarget.checked;
            remember('keys', single.value ? 'on' : 'off');
          }}
        />
        single keys work outside of fields
      </label>
      <button type="button" onClick={() => dialog.current?.close()}>
        Close
      </button>
    </dialog>
  );
}
