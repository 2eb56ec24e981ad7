// After the first load the folder is kept by the browser, where it comes from a server. A file needs
// no keeping.

/** A page from a file may not even ask for a worker. */
export const keepsOffline = (): boolean =>
  location.protocol.startsWith('http') && 'serviceWorker' in navigator;

export function keepOffline() {
  if (!keepsOffline()) return;
  navigator.serviceWorker.register('worker.js').catch(() => {
    // A browser that keeps nothing, as in a private window: the page works as long as it is open.
  });
}
