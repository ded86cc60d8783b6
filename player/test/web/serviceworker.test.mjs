import assert from 'node:assert/strict';
import { createHash, webcrypto } from 'node:crypto';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { runInNewContext } from 'node:vm';
import { Chance } from '../support/chance.mjs';

const SCRIPT = ['swfiles', 'sw'].map((name) => readFileSync(new URL(`../../${name}.js`, import.meta.url), 'utf8'))
  .join('').replace(/^import [^;]*;|^export /gm, '');
const SCOPE = 'https://example.org/a%20book/';
const SIX = [1, 2, 3, 4, 5, 6, 7, 8].map((number) => `files/page/${number}.jpg`);

class Cache extends Map {
  match = async (address) => this.get(address)?.clone();
  put = async (address, answer) => this.set(address, answer);
  keys = async () => [...super.keys()].map((url) => ({ url }));
}

/** A browser and a server with one edition of a book. Answers by path; null where it has none. */
class World {
  stores = new Map();
  told = [];
  clients = [];
  asked = [];
  registration = { scope: SCOPE, update: async () => {}, unregister: async () => { this.registered = false; } };
  registered = true;

  publish(version, pages, { bytes = 1e6 } = {}) {
    const digest = (text) => createHash('sha256').update(text).digest('hex').slice(0, 16);
    const digests = (files) => Object.fromEntries(Object.entries(files).map(([path, text]) => [path, digest(text)]));
    const [shell, rest, lists] = [{ 'index.html': `page of ${version}` }, {}, {}];
    for (const [path, digest_] of Object.entries(digests(pages))) {
      const part = Math.floor((/\d+/.exec(path)[0] - 1) / 100);
      (part ? lists[`files/web/offline-${part}.json`] ??= {} : rest)[path] = digest_;
    }
    const parts = Object.fromEntries(Object.entries(lists).map(([path, list]) => [path, JSON.stringify(list)]));
    const list = JSON.stringify({ version, bytes, shell: digests(shell), rest, parts: digests(parts),
      count: Object.keys(pages).length });
    this.files = { ...shell, ...pages, ...parts, 'files/web/offline.json': list,
      'sw.js': `const BOOK={"page":"index.html","version":"${version}"};` };
  }

  fetch = async (request) => {
    const path = decodeURIComponent((request.url ?? request).slice(SCOPE.length)) || 'index.html';
    this.asked.push(path);
    if (!this.files) throw new TypeError('no connection');
    return path in this.files ? new Response(this.files[path]) : new Response('', { status: 404 });
  };

  /** Runs the worker of an edition; answers of its events are to be had from what it is given. */
  async start(version) {
    const on = {};
    const stores = this.stores;
    const caches = {
      has: async (name) => stores.has(name), keys: async () => [...stores.keys()],
      delete: async (name) => stores.delete(name),
      open: async (name) => stores.get(name) ?? stores.set(name, new Cache()).get(name),
      match: async (address, { cacheName }) => stores.get(cacheName)?.match(address),
    };
    const self = { registration: this.registration, skipWaiting: async () => {},
      addEventListener: (name, act) => { on[name] = act; },
      clients: { claim: async () => {}, matchAll: async () => this.clients.map((id) => ({ id, url: SCOPE })),
        get: async (id) => ({ postMessage: ({ news }) => this.told.push([id, news]) }) } };
    runInNewContext(`const BOOK = { page: 'index.html', version: '${version}' };${SCRIPT}`,
      { self, caches, fetch: this.fetch, crypto: webcrypto, Response, URL, AbortSignal, Uint8Array });
    const lasting = (name, event = {}) =>
      new Promise((resolve, reject) => { on[name]({ ...event, waitUntil: (work) => work.then(resolve, reject) }); });
    return {
      install: () => lasting('install').then(() => lasting('activate')),
      /** The body that a page gets, a status of none where the worker leaves it to the browser, 0 for a refusal. */
      get: async (path, client = 'reader', { mode = 'no-cors', method = 'GET', headers = {} } = {}) => {
        let answer;
        const work = [];
        const request = { url: SCOPE + path, mode, method, headers: new Headers(headers) };
        on.fetch({ request, clientId: mode === 'navigate' ? '' : client, resultingClientId: client,
          respondWith: (response) => { answer = response; }, waitUntil: (one) => work.push(one) });
        const response = await answer;
        await Promise.all(work);
        return response && (response.type === 'error' ? 0 : response.text());
      },
      ask: (data, id = 'reader') => new Promise((resolve) => {
        on.message({ data, source: { id }, ports: [{ postMessage: resolve }], waitUntil: () => {} });
      }),
    };
  }

  async install(version, ...book) {
    this.publish(version, ...book);
    const worker = await this.start(version);
    await worker.install();
    return worker;
  }

  /** Paths that are kept of an edition, without what the book opens with. */
  kept(version) {
    return [...this.stores.get(`folvero ${SCOPE} ${version}`).entries()]
      .map(([url]) => decodeURI(url).slice(decodeURI(SCOPE).length))
      .filter((path) => path.startsWith('files/page/'));
  }
}

const pages = (edition, paths = SIX) => Object.fromEntries(paths.map((path) => [path, `${path} of ${edition}`]));
const [ONE, TWO] = SIX;
const page = { mode: 'navigate' };

test('a book is installed only whole and of one edition', async () => {
  const world = new World();
  for (const [spoil, message] of [[() => { world.files['index.html'] = 'page of bb'; }, /just being published/],
    [() => world.publish('bb', pages('bb')), /just being published/],
    [() => { world.files = null; }, /no connection/]]) {
    world.publish('aa', pages('aa'));
    spoil();
    await assert.rejects((await world.start('aa')).install(), message);
  }
  const worker = await world.install('aa', pages('aa'));
  world.files = null;
  assert.equal(await worker.get('', 'reader', page), 'page of aa');
  assert.equal(await worker.get('index', 'reader', page), 'page of aa', 'servers leave endings off');
});

test('what was read is kept and read again without a connection; the rest is said to be missing', async () => {
  const world = new World();
  const worker = await world.install('aa', pages('aa'));
  assert.equal(await worker.get(ONE), `${ONE} of aa`);
  world.files = null;
  assert.equal(await worker.get(ONE), `${ONE} of aa`);
  await assert.rejects(worker.get(TWO), TypeError);
  assert.deepEqual(world.told, [['reader', 'notKept']]);
  for (const [path, request] of [['other.html', page], ['sw.js', {}], [ONE, { method: 'POST' }],
    [ONE, { headers: { Range: 'bytes=0-' } }]]) {
    assert.equal(await worker.get(path, 'reader', request), undefined, path);
  }
});

test('no file of another edition is kept or given, and none of an earlier one once it is gone', async () => {
  const world = new World();
  const worker = await world.install('aa', pages('aa'));
  await worker.get(ONE);
  world.publish('bb', pages('bb'));
  assert.equal(await worker.get(TWO), 0);
  assert.deepEqual([world.told, world.kept('aa')], [[['reader', 'newEdition']], [ONE]]);
  // Who opens the book now gets the server's, and all of it from there.
  assert.equal(await worker.get('', 'newcomer', page), 'page of bb');
  assert.equal(await worker.get(ONE, 'newcomer'), `${ONE} of bb`);
  assert.deepEqual([world.kept('aa'), await worker.ask({ does: 'state' }, 'newcomer')], [[ONE], null]);
  assert.equal(await worker.get(ONE), `${ONE} of aa`, 'who has the earlier one reads on');
  world.clients = ['reader', 'newcomer'];
  const next = await world.install('bb', pages('bb'));
  assert.equal(await next.get(ONE, 'reader'), 0);
  assert.equal(await next.get(ONE, 'newcomer'), `${ONE} of bb`);
  assert.equal(world.stores.size, 1, 'the earlier edition is gone');
});

test('a new edition takes over what is the same, what was wanted, and fetches what was read', async () => {
  const world = new World();
  const worker = await world.install('aa', pages('aa'), { bytes: 9e6 });
  for (const path of [ONE, TWO]) await worker.get(path);
  const next = await world.install('bb', { ...pages('bb'), [ONE]: `${ONE} of aa` }, { bytes: 9e6 });
  assert.deepEqual(world.kept('bb'), [ONE]);
  assert.equal((await next.ask({ does: 'ahead' })).more, false);
  assert.deepEqual(world.kept('bb'), [ONE, TWO]);
  await next.ask({ does: 'wish', wish: 'whole' });
  const { asked, left, share } = await (await world.install('cc', pages('bb'), { bytes: 9e6 })).ask({ does: 'state' });
  assert.deepEqual([asked, left, share], [true, 7, 1 / 8]);
});

test('files of later pages are known by parts of the list, which are fetched when they are needed', async () => {
  const world = new World();
  const [LATE, LAST] = ['files/page/101.jpg', 'files/page/250.jpg'];
  const all = (edition) => pages(edition, [ONE, LATE, LAST]);
  const parts = () => [...new Set(world.asked)].filter((path) => /offline-/.test(path)).map((path) => path.slice(18, 19));
  const worker = await world.install('aa', all('aa'), { bytes: 9e6 });
  assert.deepEqual([parts(), await worker.get(LATE), parts()], [[], `${LATE} of aa`, ['1']]);
  assert.deepEqual({ ...await worker.ask({ does: 'state' }) },
    { bytes: 9e6, asked: false, whole: false, share: 1 - 2 / 3, left: 2, more: false, failed: false });
  world.publish('bb', all('bb'));
  assert.deepEqual([await worker.get(LAST), world.told], [0, [['reader', 'newEdition']]]);
  const next = await world.install('bb', { ...all('bb'), [LATE]: `${LATE} of aa` }, { bytes: 9e6 });
  assert.deepEqual(world.kept('bb'), [LATE]);
  await next.ask({ does: 'wish', wish: 'whole' });
  while ((await next.ask({ does: 'ahead' })).more);
  assert.deepEqual([world.kept('bb').sort(), parts()], [[ONE, LATE, LAST].sort(), ['1', '2']]);
  world.files = null;
  assert.equal(await (await world.start('bb')).get(LAST), `${LAST} of bb`);
  const { left } = await next.ask({ does: 'wish', wish: 'read' });
  assert.deepEqual([left, world.kept('bb')], [3, []]);
});

test('a small book is kept as a whole, a long one as it is read or where that is asked for', async () => {
  for (const [bytes, whole] of [[5e6, true], [5e6 + 1, false]]) {
    const world = new World();
    const worker = await world.install('aa', pages('aa'), { bytes });
    assert.deepEqual({ ...await worker.ask({ does: 'state' }) },
      { bytes, asked: false, whole, share: 0, left: 8, more: whole, failed: false });
    await worker.ask({ does: 'seen', seen: [SCOPE + ONE, `${SCOPE}files/none.js`, 'https://example.org/x'] });
    assert.deepEqual(world.kept('aa'), [ONE]);
    await worker.ask({ does: 'wish', wish: 'whole' });
    assert.equal((await worker.ask({ does: 'ahead' })).left, 1, 'six at a time');
    delete world.files[SIX[7]];
    const { failed, more } = await worker.ask({ does: 'ahead' });
    assert.deepEqual([failed, more], [true, true]);
    const { left, share } = await worker.ask({ does: 'wish', wish: 'read' });
    assert.deepEqual([left, share, world.kept('aa')], [8, 0, []]);
  }
});

test('a book that went away is forgotten, once nobody reads it; one whose server fails is not', async () => {
  const world = new World();
  const worker = await world.install('aa', pages('aa'));
  world.clients = ['reader'];
  world.files = {};
  await worker.get('', 'newcomer', page);
  assert.ok(world.registered && world.stores.size === 1);
  world.clients = ['newcomer'];
  await worker.get('', 'newcomer', page);
  assert.deepEqual([world.registered, world.stores.size], [false, 0]);
  const kept = await world.install('aa', pages('aa'));
  world.fetch = async () => new Response('', { status: 503 });
  assert.equal(await (await world.start('aa')).get('', 'reader', page), 'page of aa');
  world.fetch = async () => new Response('<title>Another page</title>');
  assert.match(await (await world.start('aa')).get('', 'reader', page), /Another page/);
  assert.ok(kept && world.stores.size === 1);
});

test('whatever a list of files holds, readers get no other file than theirs', async () => {
  const chance = new Chance(3);
  for (let round = 0; round < 200; round++) {
    const world = new World();
    world.publish('aa', pages('aa'));
    const list = 'files/web/offline.json';
    const { version, shell, ...others } = JSON.parse(world.files[list]);
    world.files[list] = JSON.stringify({ version, shell, ...chance.changed(others) });
    const worker = await world.start('aa');
    await worker.install();
    assert.ok([`${ONE} of aa`, undefined, 0].includes(await worker.get(ONE)), world.files[list]);
    await worker.ask({ does: 'wish', wish: 'whole' });
    await worker.ask({ does: 'ahead' });
  }
});
