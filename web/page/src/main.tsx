import { load } from 'calvex/load';
import { render } from 'preact';

import { followAddress } from './address.ts';
import { reasonOf } from './engine.ts';
import { App } from './shell/app.tsx';
import { afterPaint } from './shell/later.ts';
import { keepOffline } from './shell/offline.ts';
import './styles/page.css';

const page = document.getElementById('page')!;
load().then(
  () => {
    followAddress();
    page.replaceChildren();
    render(<App />, page);
    afterPaint(() => {
      performance.mark('first state');
      keepOffline();
    });
  },
  failure => {
    page.textContent = `The engine does not run in this browser: ${reasonOf(failure)}`;
  },
);
