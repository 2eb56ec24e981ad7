// Keeps the folder of the page in the browser: everything is answered from there, whether there is a
// network or not. VERSION and FILES are written by the build; another build has another version.
const version = VERSION;
const files = FILES;

self.addEventListener('install', event => {
  event.waitUntil(
    caches
      .open(version)
      .then(cache => cache.addAll(files))
      .then(() => self.skipWaiting()),
  );
});

self.addEventListener('activate', event => {
  event.waitUntil(
    caches
      .keys()
      .then(names =>
        Promise.all(
          names
            .filter(name => name !== version && name.startsWith('calvex-'))
            .map(name => caches.delete(name)),
        ),
      )
      .then(() => self.clients.claim()),
  );
});

self.addEventListener('fetch', event => {
  if (event.request.method !== 'GET') return;
  event.respondWith(
    caches
      .open(version)
      .then(cache => cache.match(event.request, { ignoreSearch: true }))
      .then(kept => kept ?? fetch(event.request)),
  );
});
