// The service worker, which makes a web book available offline: what was read, and the whole book where the reader
// asked for it or where it is small. The publisher prepends a line that identifies the book:
// const BOOK = {"page": ..., "version": ...}.
//
// Every file is verified by its digest, so that files of different editions never mix in the cache or in a response,
// whatever the server has by then.

const worker = /** @type {ServiceWorkerGlobalScope} */ (/** @type {unknown} */ (self));
const SCOPE = worker.registration.scope;
const LIST = 'files/web/offline.json';

/** Prefix of this book's cache names, whatever its edition; URLs contain no blanks. */
const FAMILY = 'folvero ' + SCOPE + ' ';
const STORE = FAMILY + BOOK.version;

/** Cache key of what the reader wants saved, 'whole' or 'read'; missing until they choose. */
const WISH = SCOPE + '?wish';

/** Cache key of the paths that were read in an earlier edition and must be fetched again. */
const READ = SCOPE + '?read';

/** Milliseconds to wait for the server's edition before the cached one is used. */
const EDITION_TIMEOUT = 2500;

/** Maximum size of a book that is saved whole without being asked for, in bytes. */
const SMALL_BYTES = 5e6;

/** Files fetched ahead at a time. */
const BATCH = 6;

const GONE = 'gone';
const OTHER = 'other';
const EARLIER = 'earlier';

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

/**
 * The book's page at a URL. Some servers omit the extension.
 * @param {string} address
 */
function pageAt(address) {
  const path = pathOf(address);
  return [BOOK.page, 'text.html'].find((name) => name === path || name === path + '.html');
}

/**
 * Cache key that marks an open page of another edition. Its files come from the server; those of an earlier edition are
 * no longer available.
 * @param {string} client
 */
function markOf(client) {
  return SCOPE + '?client=' + client;
}

/** @param {ArrayBuffer} bytes */
async function digestOf(bytes) {
  const digest = await crypto.subtle.digest('SHA-256', bytes);
  return [...new Uint8Array(digest, 0, 8)].map((byte) => byte.toString(16).padStart(2, '0')).join('');
}

/**
 * Looks a URL up in a cache. Unlike opening the cache this does not create it.
 * @param {string} address
 * @param {string} cacheName
 */
const kept = (address, cacheName = STORE) => caches.match(address, { cacheName });

/**
 * @typedef {object} List files of an edition and their digests, by path
 * @property {string} version
 * @property {number} bytes of the whole book
 * @property {Record<string, string>} shell what the book opens with
 * @property {Record<string, string>} rest
 * @property {Record<string, string>} files all of them
 */

/**
 * @param {string} name of a cache
 * @returns {Promise<List | undefined>}
 */
async function listOf(name) {
  const list = await (await kept(addressOf(LIST), name))?.json();
  return list && { ...list, files: { ...list.shell, ...list.rest } };
}

/** @type {List | undefined} */
let ownList;

/** Counts removals of the book: what was being fetched meanwhile must not come back. */
let removals = 0;

/** The list of this edition, undefined before it is there and once it is gone. */
async function listHere() {
  if (!await caches.has(STORE)) return undefined;
  ownList ??= await listOf(STORE);
  return ownList;
}

/** The list of this edition; throws where it is missing. */
async function listNeeded() {
  const list = await listHere();
  if (!list) throw new Error('the book is gone');
  return list;
}

/**
 * The response with its bytes if its digest matches, else null.
 * @param {Response} answer
 * @param {string} digest
 */
async function verified(answer, digest) {
  const bytes = await answer.arrayBuffer();
  if (!answer.ok || await digestOf(bytes) !== digest) return null;
  const type = answer.headers.get('Content-Type') ?? 'application/octet-stream';
  // Recreated, because browsers refuse a redirected response for a navigation.
  return new Response(bytes, { headers: { 'Content-Type': type } });
}

/**
 * Fetches a file into the cache unless it is there.
 * @param {Cache} store
 * @param {string} path
 * @param {string} digest
 * @param {'high' | 'low'} priority
 * @returns {Promise<boolean>} whether it is there
 */
async function fetchInto(store, path, digest, priority) {
  if (await store.match(addressOf(path))) return true;
  const before = removals;
  // The browser's HTTP cache is good enough, whatever its age: the digest decides.
  for (const cache of ['force-cache', 'no-cache']) {
    const options = /** @type {RequestInit} */ ({ cache, priority });
    const answer = await verified(await fetch(addressOf(path), options), digest);
    if (!answer) continue;
    if (before !== removals) return false;
    await store.put(addressOf(path), answer);
    return true;
  }
  return false;
}

/** @param {Cache} store */
async function wishIn(store) {
  return (await store.match(WISH))?.text();
}

/**
 * @param {Cache} store
 * @returns {Promise<string[]>}
 */
async function readIn(store) {
  return await (await store.match(READ))?.json() ?? [];
}

/**
 * Copies unchanged files, the reader's choice and the list of read files from the caches of earlier editions.
 * @param {Cache} store
 * @param {Record<string, string>} files
 */
async function takeOver(store, files) {
  const have = new Set((await store.keys()).map(({ url }) => url));
  const read = new Set(await readIn(store));
  const names = (await caches.keys()).filter((name) => name.startsWith(FAMILY) && name !== STORE);
  // The oldest is the one that the reader has had; what it says goes last.
  for (const name of names.reverse()) {
    const earlier = await caches.open(name);
    const list = await listOf(name);
    const wish = await earlier.match(WISH);
    if (wish) await store.put(WISH, wish);
    (await readIn(earlier)).forEach((path) => read.add(path));
    for (const { url } of await earlier.keys()) {
      const path = url.includes('?') ? null : pathOf(url);
      if (path === null || !files[path] || have.has(url)) continue;
      const found = list?.files[path] === files[path] && await earlier.match(url);
      if (found) await store.put(url, found);
      else read.add(path);
    }
  }
  await store.put(READ, new Response(JSON.stringify([...read])));
}

async function install() {
  const answer = await fetch(addressOf(LIST), { cache: 'no-cache' });
  const list = await answer.clone().json();
  const other = new Error('the book is just being published');
  if (list.version !== BOOK.version) throw other;
  const store = await caches.open(STORE);
  await store.put(addressOf(LIST), answer);
  await takeOver(store, { ...list.shell, ...list.rest });
  const there = await Promise.all(Object.entries(list.shell).map(([path, digest]) => fetchInto(store, path, digest, 'high')));
  if (there.includes(false)) throw other;
  await worker.skipWaiting();
}

/**
 * Open pages of this book that are not known to be of an edition.
 * @param {string} edition
 */
async function pagesOfOtherEditions(edition) {
  const names = (await caches.keys()).filter((name) => name.startsWith(FAMILY));
  const open = (await worker.clients.matchAll({ includeUncontrolled: true, type: 'window' })).filter(({ url }) => pageAt(url));
  const strangers = [];
  for (const { id } of open) {
    const marks = await Promise.all(names.map(async (name) => (await kept(markOf(id), name))?.text()));
    if (!marks.includes(edition)) strangers.push(id);
  }
  return strangers;
}

async function activate() {
  const list = await listHere();
  const earlier = (await caches.keys()).filter((name) => name.startsWith(FAMILY) && name !== STORE);
  if (list && earlier.length > 0) {
    const store = await caches.open(STORE);
    // The reader may have read on since this service worker was installed.
    await takeOver(store, list.files);
    for (const id of await pagesOfOtherEditions(BOOK.version)) await store.put(markOf(id), new Response(EARLIER));
  }
  for (const name of earlier) await caches.delete(name);
  await worker.clients.claim();
}

/** The server's edition, null when it does not answer. */
async function editionOnServer() {
  try {
    const signal = /** @type {AbortSignals} */ (AbortSignal).timeout(EDITION_TIMEOUT);
    const answer = await fetch(addressOf('sw.js'), { cache: 'no-cache', signal });
    if (answer.status === 404 || answer.status === 410) return GONE;
    // Any other content means that another page has replaced the book.
    return answer.ok ? /"version":"([0-9a-f]+)"/.exec(await answer.text())?.[1] ?? OTHER : null;
  } catch {
    return null;
  }
}

/**
 * Responds with the book's page. The server's edition takes precedence over the cached one.
 * @param {FetchEvent} event
 * @param {string} page
 */
async function open(event, page) {
  const edition = await editionOnServer();
  const client = event.resultingClientId ?? '';
  const mark = markOf(client);
  if (edition && edition !== BOOK.version) {
    if (edition === GONE && (await pagesOfOtherEditions(GONE)).length === 0) await forget();
    else {
      await (await caches.open(STORE)).put(mark, new Response(edition));
      worker.registration.update().catch(() => {});
    }
    return fetch(event.request);
  }
  await (await caches.open(STORE)).delete(mark);
  return serve(event, page, client);
}

/** Unregisters: the book was removed, or replaced by one without a service worker. */
async function forget() {
  await worker.registration.unregister();
  for (const name of await caches.keys()) {
    if (name.startsWith(FAMILY)) await caches.delete(name);
  }
}

/**
 * The mark of an open page of another edition, undefined for one of this edition. Where the browser does not report the
 * page's id, the page opened last counts for all.
 * @param {string} client
 */
async function otherEditionOf(client) {
  return (await kept(markOf(client)) ?? await kept(markOf('')))?.text();
}

/**
 * Responds with a file of the book.
 * @param {FetchEvent} event
 * @param {string} path
 * @param {string} client page that it is for
 */
async function serve(event, path, client) {
  const { request } = event;
  const other = await otherEditionOf(client);
  if (other === EARLIER) return refuse(client);
  if (other) return fetch(request);
  const found = await kept(addressOf(path));
  if (found) return found;
  const digest = (await listHere())?.files[path];
  if (!digest) return fetch(request);
  const answer = await fetch(request).catch((error) => {
    tell(client, 'notKept');
    throw error;
  });
  const good = await verified(answer.clone(), digest);
  if (!good) return answerOther(client, path, digest, answer);
  const copy = good.clone();
  event.waitUntil(caches.open(STORE).then((store) => store.put(addressOf(path), copy)).catch(() => {}));
  return good;
}

/**
 * Handles a file that does not match this edition's digest.
 * @param {string} client
 * @param {string} path
 * @param {string} digest
 * @param {Response} answer
 */
async function answerOther(client, path, digest, answer) {
  const store = await caches.open(STORE);
  // Some servers send images to browsers in another format than to scripts.
  if (await fetchInto(store, path, digest, 'high')) return await kept(addressOf(path)) ?? answer;
  const pictures = SCOPE + 'files/page/';
  const altered = !(await store.keys()).some(({ url }) => url.startsWith(pictures));
  // A server that alters every image still has this edition.
  if (altered && await editionOnServer() === BOOK.version) return answer;
  worker.registration.update().catch(() => {});
  return refuse(client);
}

/**
 * Fails: no file is better than one of another edition.
 * @param {string} client
 */
function refuse(client) {
  tell(client, 'newEdition');
  return Response.error();
}

/**
 * @param {string} client
 * @param {'notKept' | 'newEdition'} news
 */
async function tell(client, news) {
  (await worker.clients.get(client))?.postMessage({ news });
}

/**
 * Caches files that were loaded before the service worker was active.
 * @param {Cache} store
 * @param {string[]} addresses
 */
async function keepSeen(store, addresses) {
  const files = (await listHere())?.files ?? {};
  for (const path of new Set(addresses.map(pathOf))) {
    if (path && files[path]) await fetchInto(store, path, files[path], 'low');
  }
}

/**
 * Which of the other files are wanted, and how many of them are cached.
 * @param {Cache} store
 */
async function stateOf(store) {
  const list = await listNeeded();
  const wish = await wishIn(store);
  const whole = wish === 'whole' || (wish !== 'read' && list.bytes <= SMALL_BYTES);
  const have = new Set((await store.keys()).map(({ url }) => url));
  /** @param {string[]} paths */
  const missing = (paths) => paths.filter((path) => list.rest[path] && !have.has(addressOf(path)));
  const all = Object.keys(list.rest);
  const left = missing(all).length;
  const wanted = whole ? missing(all) : missing(await readIn(store));
  return { bytes: list.bytes, asked: wish === 'whole', whole, share: all.length ? 1 - left / all.length : 1, left, wanted };
}

/**
 * Fetches some more of the wanted files.
 * @param {Cache} store
 * @returns {Promise<boolean>} whether all of them succeeded
 */
async function fetchAhead(store) {
  const { rest } = await listNeeded();
  const { wanted } = await stateOf(store);
  const there = await Promise.all(wanted.slice(0, BATCH).map((path) => fetchInto(store, path, rest[path], 'low').catch(() => false)));
  return !there.includes(false);
}

/**
 * Stores the reader's choice. When the book is no longer wanted, only the files needed to open it stay cached.
 * @param {Cache} store
 * @param {'whole' | 'read'} wish
 */
async function note(store, wish) {
  await store.put(WISH, new Response(wish));
  if (wish === 'whole') return;
  removals += 1;
  await store.delete(READ);
  for (const path of Object.keys((await listNeeded()).rest)) await store.delete(addressOf(path));
}

/**
 * Handles a message of the book's page; responds with the state afterwards, null for a page of another edition.
 * @param {{does: string, seen?: string[], wish?: 'whole' | 'read'}} message
 * @param {string} client
 */
async function answerPage({ does, seen = [], wish = 'read' }, client) {
  if (await otherEditionOf(client) || !await listHere()) return null;
  const store = await caches.open(STORE);
  let failed = false;
  if (does === 'seen') await keepSeen(store, seen);
  if (does === 'wish') await note(store, wish);
  if (does === 'ahead') failed = !await fetchAhead(store);
  const { wanted, ...state } = await stateOf(store);
  return { ...state, more: wanted.length > 0, failed };
}

worker.addEventListener('install', (event) => event.waitUntil(install()));
worker.addEventListener('activate', (event) => event.waitUntil(activate()));
worker.addEventListener('fetch', (event) => {
  const { request } = event;
  // Sounds are requested in ranges, which are left to the browser.
  const path = request.method === 'GET' && !request.headers.has('range') ? pathOf(request.url) : null;
  if (path === null) return;
  const page = request.mode === 'navigate' ? pageAt(request.url) : undefined;
  if (page) event.respondWith(open(event, page));
  else if (path.startsWith('files/')) event.respondWith(serve(event, path, event.clientId));
});
worker.addEventListener('message', (event) => {
  const { data, source, ports: [port] } = event;
  // Asked again while this one waits, browsers look again whether the earlier one has nothing to do.
  if (data.does === 'replace') worker.skipWaiting();
  else event.waitUntil(answerPage(data, /** @type {Client} */ (source).id).catch(() => null).then((state) => port.postMessage(state)));
});
