// The book's files, for its service worker: their digests by edition, and fetching them into its cache.
//
// Every file is verified by its digest, so that files of different editions never mix in the cache or in a response,
// whatever the server has by then.

export const worker = /** @type {ServiceWorkerGlobalScope} */ (/** @type {unknown} */ (self));
export const SCOPE = worker.registration.scope;
export const LIST = 'files/web/offline.json';

/** Prefix of this book's cache names, whatever its edition; URLs contain no blanks. */
export const FAMILY = 'folvero ' + SCOPE + ' ';
export const STORE = FAMILY + BOOK.version;

/** Address of the folder of the shared player, relative to the book, and the same as browsers have it. */
const PLAYER = BOOK.player ?? '';
const PLAYER_ADDRESS = PLAYER && new URL(PLAYER, SCOPE).href;

/** Pages whose files have their digests in one part of the list; those of the first part are in the list itself. */
const PART_PAGES = 100;

/** @param {string} path as the list has it */
export function addressOf(path) {
  return new URL(path.split('/').map(encodeURIComponent).join('/'), SCOPE).href;
}

/**
 * Whether the service worker answers for a file.
 * @param {string} path
 */
export const isServed = (path) => path.startsWith('files/') || (PLAYER !== '' && path.startsWith(decodeURIComponent(PLAYER)));

/**
 * Path of one of the book's files, or of its shared player, as the list has it, null for what is none.
 * @param {string} address
 */
export function pathOf(address) {
  try {
    const { origin, pathname } = new URL(address);
    const place = origin + pathname;
    if (PLAYER && place.startsWith(PLAYER_ADDRESS)) return decodeURIComponent(PLAYER + place.slice(PLAYER_ADDRESS.length));
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

/**
 * Looks a URL up in a cache. Unlike opening the cache this does not create it.
 * @param {string} address
 * @param {string} cacheName
 */
export const kept = (address, cacheName = STORE) => caches.match(address, { cacheName });

/**
 * @typedef {Record<string, string>} Digests by path
 * @typedef {object} List files of an edition
 * @property {string} version
 * @property {number} bytes of the whole book
 * @property {number} count of files without the shell
 * @property {Digests} shell what the book opens with
 * @property {Digests} rest the others, of pages only those of the first part
 * @property {Digests} [parts] of the list, which have the files of further pages
 */

/**
 * @param {string} name of a cache
 * @returns {Promise<List | undefined>}
 */
export async function listOf(name) {
  return (await kept(addressOf(LIST), name))?.json();
}

/**
 * The part of a list that has a file.
 * @param {string} path
 */
export function partOf(path) {
  const [, number = '1'] = /^files\/(?:page|thumb|text|large)\/(\d+)\./.exec(path) ?? [];
  const part = Math.floor((Number(number) - 1) / PART_PAGES);
  return part > 0 ? 'files/web/offline-' + part + '.json' : LIST;
}

/** @type {List | undefined} */
let ownList;

/** @type {Map<string, Digests>} parts of this edition's list that were needed */
const ownParts = new Map();

/** Counts removals of the book: what was being fetched meanwhile must not come back. */
let removals = 0;

export function countRemoval() {
  removals += 1;
}

/** The list of this edition, undefined before it is there and once it is gone. */
export async function listHere() {
  if (!await caches.has(STORE)) return undefined;
  ownList ??= await listOf(STORE);
  return ownList;
}

/** The list of this edition; throws where it is missing. */
export async function listNeeded() {
  const list = await listHere();
  if (!list) throw new Error('the book is gone');
  return list;
}

/**
 * The files in a part of this edition's list. Throws where it is neither cached nor on the server.
 * @param {string} part
 * @returns {Promise<Digests | null>} null where the server has another edition's
 */
export async function partHere(part) {
  const list = await listNeeded();
  if (part === LIST) return { ...list.shell, ...list.rest };
  const digest = list.parts?.[part];
  if (!digest) return {};
  let files = ownParts.get(part) ?? await (await kept(addressOf(part)))?.json();
  for (const cache of files ? [] : ['force-cache', 'no-cache']) {
    const answer = await verified(await fetch(addressOf(part), /** @type {RequestInit} */ ({ cache })), digest);
    if (!answer) continue;
    files = await answer.clone().json();
    await (await caches.open(STORE)).put(addressOf(part), answer);
    break;
  }
  if (files) ownParts.set(part, files);
  return files ?? null;
}

/**
 * The digest of a file in this edition, empty where it has no such file, null where that can't be known any more.
 * @param {string} path
 */
export async function digestHere(path) {
  const files = await partHere(partOf(path));
  return files && (files[path] ?? '');
}

/**
 * The same in an earlier edition.
 * @param {string} path
 * @param {string} name of its cache
 * @param {List | undefined} list
 */
export async function digestIn(path, name, list) {
  return list?.rest[path] ?? list?.shell[path] ?? (await (await kept(addressOf(partOf(path)), name))?.json())?.[path];
}

/**
 * The response with its bytes if its digest matches, else null.
 * @param {Response} answer
 * @param {string} digest
 */
export async function verified(answer, digest) {
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
export async function fetchInto(store, path, digest, priority) {
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
