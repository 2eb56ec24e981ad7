// Light or dark: as the system is, or as chosen. The choice is one's own, so it is not in the address.
import { effect, signal } from '@preact/signals';

export type Theme = 'auto' | 'light' | 'dark';
const themes: readonly Theme[] = ['auto', 'light', 'dark'];

/** Storage may be closed to a page, and is no reason to fail. */
export function remembered(key: string): string | null {
  try {
    return localStorage.getItem(`calvex.${key}`);
  } catch {
    return null;
  }
}
export function remember(key: string, value: string) {
  try {
    localStorage.setItem(`calvex.${key}`, value);
  } catch {
    // It holds as long as the page is open.
  }
}

export const theme = signal<Theme>(themes.find(name => name === remembered('theme')) ?? 'auto');

export function nextTheme() {
  theme.value = themes[(themes.indexOf(theme.value) + 1) % themes.length]!;
  remember('theme', theme.value);
}

effect(() => {
  if (theme.value === 'auto') delete document.documentElement.dataset.theme;
  else document.documentElement.dataset.theme = theme.value;
});
