// Skarmada's service worker: keeps the page's files so that the game loads
// and plays with the network gone. Each file comes from the server while it
// answers (so a new version of the page replaces the old on the first visit
// with the network back) and from the kept copy when it does not. Nothing
// outside the page's folder is fetched or kept.
"use strict";

const CACHE = "skarmada";
const FILES = [
  "./", "index.html", "page.css", "page.js", "skarmada.js", "skarmada.wasm",
  "favicon.svg", "manifest.webmanifest",
];

self.addEventListener("install", (event) => {
  event.waitUntil(caches.open(CACHE)
    .then((cache) => cache.addAll(FILES.map((file) => new Request(file, { cache: "no-cache" }))))
    .then(() => self.skipWaiting()));
});

self.addEventListener("activate", (event) => event.waitUntil(self.clients.claim()));

function fromNetwork(request) {
  return fetch(request.url, { cache: "no-cache", credentials: "same-origin" }).then((response) => {
    if (response.ok) {
      const copy = response.clone();
      caches.open(CACHE).then((cache) => cache.put(request.url, copy));
    }
    return response;
  });
}

function fromCache(request, failure) {
  return caches.open(CACHE).then((cache) => cache.match(request.url, { ignoreSearch: true })
    .then((kept) => kept || (request.mode === "navigate" ? cache.match("index.html") : undefined)))
    .then((kept) => {
      if (kept) return kept;
      throw failure;
    });
}

self.addEventListener("fetch", (event) => {
  const request = event.request;
  if (request.method !== "GET" || !request.url.startsWith(self.registration.scope)) return;
  event.respondWith(fromNetwork(request).catch((failure) => fromCache(request, failure)));
});
