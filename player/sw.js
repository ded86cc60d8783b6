// The service worker, which makes a web book available offline: what was read, and the whole book where the reader
// asked for it or where it is small. The publisher prepends a line that identifies the book:
// const BOOK = {"page": ..., "version": ...}.

import { FAMILY, LIST, SCOPE, STORE, addressOf, countRemoval, digestHere, digestIn, fetchInto, isServed, kept, listHere,
  listNeeded, listOf, partHere, partOf, pathOf, verified, worker } from './swfiles.js';

/** @typedef {import('./swfiles.js').List} List */

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
 */
async function takeOver(store) {
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
      const digest = path === null || have.has(url) ? '' : await digestHere(path);
      if (path === null || !digest) continue;
      const found = await digestIn(path, name, list) === digest && await earlier.match(url);
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
  await takeOver(store);
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
    await takeOver(store);
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
  if (!await listHere()) return fetch(request);
  /** @param {unknown} error */
  const fail = (error) => {
    tell(client, 'notKept');
    throw error;
  };
  const digest = await digestHere(path).catch(fail);
  if (digest === null) return refuseOther(client);
  const answer = await fetch(request).catch(fail);
  if (!digest) return answer;
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
  return refuseOther(client);
}

/**
 * Refuses, because the server has another edition, and looks for that.
 * @param {string} client
 */
function refuseOther(client) {
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
  for (const path of new Set(addresses.map(pathOf))) {
    const digest = path && await digestHere(path);
    if (digest) await fetchInto(store, path, digest, 'low');
  }
}

/**
 * Paths of cached files without those of the shell.
 * @param {Cache} store
 */
async function keptRest(store) {
  const { rest } = await listNeeded();
  const paths = (await store.keys()).map(({ url }) => (url.includes('?') ? null : pathOf(url)));
  return new Set(paths.filter((path) => path !== null && (rest[path] || partOf(path) !== LIST)));
}

/**
 * How many of the other files are cached, and whether more are wanted.
 * @param {Cache} store
 */
async function stateOf(store) {
  const { bytes, count } = await listNeeded();
  const wish = await wishIn(store);
  const whole = wish === 'whole' || (wish !== 'read' && bytes <= SMALL_BYTES);
  const have = await keptRest(store);
  const left = count - have.size;
  const more = whole ? left > 0 : (await missingOfRead(store, have)).length > 0;
  return { bytes, asked: wish === 'whole', whole, share: count ? 1 - left / count : 1, left, more };
}

/**
 * Files that were read in an earlier edition, and that are not cached of this one.
 * @param {Cache} store
 * @param {Set<string | null>} have
 */
async function missingOfRead(store, have) {
  const { rest, parts } = await listNeeded();
  return (await readIn(store)).filter((path) => !have.has(path) && (rest[path] || parts?.[partOf(path)]));
}

/**
 * The first files of the book that are not cached.
 * @param {Set<string | null>} have
 */
async function missingOfBook(have) {
  for (const part of [LIST, ...Object.keys((await listNeeded()).parts ?? {})]) {
    const { shell } = await listNeeded();
    const missing = Object.keys(await partHere(part) ?? {}).filter((path) => !have.has(path) && !shell[path]);
    if (missing.length > 0) return missing;
  }
  return [];
}

/**
 * Fetches some more of the wanted files.
 * @param {Cache} store
 * @returns {Promise<boolean>} whether all of them succeeded
 */
async function fetchAhead(store) {
  const { whole } = await stateOf(store);
  const have = await keptRest(store);
  const wanted = whole ? await missingOfBook(have) : await missingOfRead(store, have);
  const there = await Promise.all(wanted.slice(0, BATCH).map(async (path) =>
    fetchInto(store, path, await digestHere(path) ?? '', 'low').catch(() => false)));
  // There is none where the server has another edition's list.
  return wanted.length > 0 && !there.includes(false);
}

/**
 * Stores the reader's choice. When the book is no longer wanted, only the files needed to open it stay cached.
 * @param {Cache} store
 * @param {'whole' | 'read'} wish
 */
async function note(store, wish) {
  await store.put(WISH, new Response(wish));
  if (wish === 'whole') return;
  countRemoval();
  await store.delete(READ);
  for (const path of await keptRest(store)) await store.delete(addressOf(path ?? ''));
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
  // Without a connection a part of the list may be missing.
  if (does === 'ahead') failed = !await fetchAhead(store).catch(() => false);
  return { ...await stateOf(store), failed };
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
  else if (isServed(path)) event.respondWith(serve(event, path, event.clientId));
});
worker.addEventListener('message', (event) => {
  const { data, source, ports: [port] } = event;
  // Asked again while this one waits, browsers look again whether the earlier one has nothing to do.
  if (data.does === 'replace') worker.skipWaiting();
  else event.waitUntil(answerPage(data, /** @type {Client} */ (source).id).catch(() => null).then((state) => port.postMessage(state)));
});
