// SPDX-License-Identifier: GPL-3.0-or-later
// The page's service worker: keeps every file of this version for offline
// play, serves from that copy first, and adds the cross-origin isolation
// headers that shared memory needs, so the page also runs on static hosts
// that cannot send them. A new version installs beside the old one and is
// taken when the page next starts (it asks for it then).
const VERSION = '@VERSION@';
const FILES = [@FILES@];
const CACHE = `cardhaven-${VERSION}`;

self.addEventListener('install', (event) => {
  event.waitUntil(caches.open(CACHE).then((cache) => cache.addAll(FILES)));
});

// The page asks a waiting version to take over when it starts.
self.addEventListener('message', (event) => {
  if (event.data === 'take') self.skipWaiting();
});

self.addEventListener('activate', (event) => {
  event.waitUntil((async () => {
    for (const name of await caches.keys()) if (name !== CACHE) await caches.delete(name);
    await self.clients.claim();
  })());
});

function isolated(response) {
  if (!response || response.status === 0 || response.type === 'opaque') return response;
  const headers = new Headers(response.headers);
  headers.set('Cross-Origin-Opener-Policy', 'same-origin');
  headers.set('Cross-Origin-Embedder-Policy', 'require-corp');
  headers.set('Cross-Origin-Resource-Policy', 'same-origin');
  return new Response(response.body, {status: response.status, statusText: response.statusText, headers});
}

self.addEventListener('fetch', (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== 'GET' || url.origin !== self.location.origin) return;
  event.respondWith((async () => {
    const cache = await caches.open(CACHE);
    const key = url.pathname.endsWith('/') ? new URL('index.html', url) : url;
    const cached = await cache.match(key.href, {ignoreSearch: true});
    if (cached) return isolated(cached);
    try {
      // What was not kept at install (the tune) is kept once fetched.
      const response = await fetch(event.request);
      if (response.ok) cache.put(key.href, response.clone());
      return isolated(response);
    } catch (err) {
      return new Response('Card Haven is offline and this file was not kept.', {status: 503});
    }
  })());
});
