// Keeps a web book for readers without a connection. The book's publisher puts a line before this
// that says which book it is: const BOOK = {"page": ..., "version": ...}.
//
// Every file is known by its digest, so that nothing of another edition is ever kept among the files
// of this one, whenever it comes and whatever the server holds by then.

const SCOPE = self.registration.scope;
const LIST = 'files/web/offline.json';

/** Names of the stores of this book, whatever its edition; addresses hold no blanks. */
const FAMILY = 'folvero ' + SCOPE + ' ';
const STORE = FAMILY + BOOK.version;

/** In the store once the server has another edition: readers get that one, until they are offline. */
const CHANGED = SCOPE + '?changed';

/** Milliseconds for the server to tell its edition before the reader gets the one that is here. */
const PATIENCE = 2500;

/** Bytes of a book that is kept as a whole; of a longer one what has been read. */
const MOST_BYTES = 60e6;

/** Files fetched ahead at a time. */
const BATCH = 12;

const GONE = 'gone';
const OTHER = 'other';

/** @param {string} path as the list has it */
function addressOf(path) {
  return SCOPE + path.split('/').map(encodeURIComponent).join('/');
}

/**
 * Path of one of the book's files as the list has it, null for what is none.
 * @param {string} address
 */
function pathOf(address) {
  try {
    const { origin, pathname } = new URL(address);
    const place = origin + pathname;
    if (!place.startsWith(SCOPE)) return null;
    const path = decodeURIComponent(place.slice(SCOPE.length));
    return path === '' ? 'index.html' : path;
  } catch {
    return null;
  }
}

/** @param {ArrayBuffer} bytes */
async function digestOf(bytes) {
  const digest = await crypto.subtle.digest('SHA-256', bytes);
  return [...new Uint8Array(digest, 0, 8)].map((byte) => byte.toString(16).padStart(2, '0')).join('');
}

/** @param {Cache} store */
async function listOf(store) {
  const list = await (await store.match(addressOf(LIST)))?.json();
  return list && { ...list, files: { ...list.shell, ...list.rest } };
}

/**
 * Puts an answer into a store if it is the very file that the list means.
 * @param {Cache} store
 * @param {string} path
 * @param {string} digest
 * @param {Response} answer
 */
async function put(store, path, digest, answer) {
  const bytes = await answer.arrayBuffer();
  if (!answer.ok || await digestOf(bytes) !== digest) return false;
  const type = answer.headers.get('Content-Type') ?? 'application/octet-stream';
  // Made anew, since browsers take no answer that came by a redirection for a page.
  await store.put(addressOf(path), new Response(bytes, { headers: { 'Content-Type': type } }));
  return true;
}

/** Stores of earlier editions with their lists. */
async function earlierStores() {
  const names = (await caches.keys()).filter((name) => name.startsWith(FAMILY) && name !== STORE);
  const stores = await Promise.all(names.map((name) => caches.open(name)));
  return Promise.all(stores.map(async (store) => ({ store, list: await listOf(store) })));
}

/**
 * Takes over what an earlier edition has had already.
 * @param {Cache} store
 * @param {Record<string, string>} files
 */
async function takeOver(store, files) {
  for (const { store: earlier, list } of await earlierStores()) {
    for (const [path, digest] of Object.entries(files)) {
      const kept = list?.files[path] === digest && await earlier.match(addressOf(path));
      if (kept) await store.put(addressOf(path), kept);
    }
  }
}

/**
 * @param {Cache} store
 * @param {string} path
 * @param {string} digest
 * @param {'high' | 'low'} priority
 */
async function fetchInto(store, path, digest, priority) {
  if (await store.match(addressOf(path))) return true;
  const options = /** @type {RequestInit} */ ({ cache: 'no-cache', priority });
  return put(store, path, digest, await fetch(addressOf(path), options));
}

async function install() {
  const answer = await fetch(addressOf(LIST), { cache: 'no-cache' });
  const list = await answer.clone().json();
  const other = new Error('the book is just being published');
  if (list.version !== BOOK.version) throw other;
  const store = await caches.open(STORE);
  await store.put(addressOf(LIST), answer);
  await takeOver(store, { ...list.shell, ...list.rest });
  const kept = await Promise.all(Object.entries(list.shell).map(([path, digest]) => fetchInto(store, path, digest, 'high')));
  if (kept.includes(false)) throw other;
  await self.skipWaiting();
}

async function activate() {
  for (const name of await caches.keys()) {
    if (name.startsWith(FAMILY) && name !== STORE) await caches.delete(name);
  }
  await self.clients.claim();
}

/** Edition that the server has, null when it does not say. */
async function editionOnServer() {
  try {
    const answer = await fetch(addressOf('sw.js'), { cache: 'no-cache', signal: AbortSignal.timeout(PATIENCE) });
    if (answer.status === 404 || answer.status === 410) return GONE;
    // Whoever answers with something else has another page there now.
    return answer.ok ? /"version":"([0-9a-f]+)"/.exec(await answer.text())?.[1] ?? OTHER : null;
  } catch {
    return null;
  }
}

/**
 * A page of the book. The server's edition goes before the one that is here.
 * @param {Request} request
 * @param {string} path
 */
async function open(request, path) {
  const store = await caches.open(STORE);
  const edition = await editionOnServer();
  if (edition && edition !== BOOK.version) {
    await store.put(CHANGED, new Response());
    if (edition === GONE) await forget();
    else self.registration.update().catch(() => {});
    return fetch(request);
  }
  await store.delete(CHANGED);
  return await store.match(addressOf(path)) ?? fetch(request);
}

/** The book went away, or one without this script took its place. */
async function forget() {
  await self.registration.unregister();
  for (const name of await caches.keys()) {
    if (name.startsWith(FAMILY)) await caches.delete(name);
  }
}

/**
 * A file of the book.
 * @param {FetchEvent} event
 * @param {string} path
 */
async function serve(event, path) {
  // Unlike opening a store this makes none.
  const kept = (/** @type {string} */ address) => caches.match(address, { cacheName: STORE });
  if (await kept(CHANGED)) return fetch(event.request);
  const found = await kept(addressOf(path));
  if (found) return found;
  const answer = await fetch(event.request);
  event.waitUntil(keep(path, answer.clone()).catch(() => {}));
  return answer;
}

/**
 * @param {string} path
 * @param {Response} answer
 */
async function keep(path, answer) {
  if (!await caches.has(STORE)) return;
  const store = await caches.open(STORE);
  const digest = (await listOf(store))?.files[path];
  if (digest && answer.ok && !await put(store, path, digest, answer)) await self.registration.update();
}

/**
 * Files that a reader has seen before this script was there to keep them.
 * @param {string[]} addresses
 */
async function keepSeen(addresses) {
  const store = await caches.open(STORE);
  const files = (await listOf(store))?.files ?? {};
  for (const path of new Set(addresses.map(pathOf))) {
    if (path && files[path]) await fetchInto(store, path, files[path], 'low');
  }
}

/** Fetches some more of the book; false when there is no more to fetch. */
async function fetchAhead() {
  const store = await caches.open(STORE);
  const list = await listOf(store);
  if (!list || list.bytes > MOST_BYTES || await store.match(CHANGED)) return false;
  const kept = new Set((await store.keys()).map(({ url }) => url));
  const missing = Object.entries(list.rest).filter(([path]) => !kept.has(addressOf(path))).slice(0, BATCH);
  for (const [path, digest] of missing) {
    if (!await fetchInto(store, path, digest, 'low')) return false;
  }
  return missing.length === BATCH;
}

self.addEventListener('install', (event) => event.waitUntil(install()));
self.addEventListener('activate', (event) => event.waitUntil(activate()));
self.addEventListener('fetch', (event) => {
  const { request } = event;
  // Sounds are asked for in parts; the browser does that better alone.
  const path = request.method === 'GET' && !request.headers.has('range') ? pathOf(request.url) : null;
  if (path === null) return;
  if (path.startsWith('files/')) event.respondWith(serve(event, path));
  else if (request.mode === 'navigate') {
    // Some servers leave the ending off the address.
    const page = [BOOK.page, 'text.html'].find((name) => name === path || name === path + '.html');
    if (page) event.respondWith(open(request, page));
  }
});
self.addEventListener('message', (event) => {
  const { seen } = event.data;
  const [port] = event.ports;
  const work = seen ? keepSeen(seen).then(() => true) : fetchAhead();
  event.waitUntil(work.catch(() => false).then((more) => port.postMessage(more)));
});
