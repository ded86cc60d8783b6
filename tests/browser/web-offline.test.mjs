import assert from 'node:assert/strict';
import { execFile, spawn } from 'node:child_process';
import { once } from 'node:events';
import { createServer } from 'node:http';
import path from 'node:path';
import { after, test } from 'node:test';
import { promisify } from 'node:util';
import { Reader } from './support/reader.mjs';

const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const ready = { skip: FOLVERO_BIN && FOLVERO_SAMPLES_DIR ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set' };

const reader = Reader.forTests();
let server;
let address;
after(() => stopServing());

const bookFolder = () => path.join(reader.folder, 'book');
const publish = (sample, ...options) => run(FOLVERO_BIN, ['publish', '--quiet', ...options, path.join(FOLVERO_SAMPLES_DIR, `${sample}.pdf`), bookFolder()]);

/** Serves the book, always at the same address. */
async function startServing() {
  server = spawn(FOLVERO_BIN, ['serve', '--port', address ? new URL(address).port : '0', bookFolder()], { stdio: ['ignore', 'pipe', 'ignore'] });
  const [line] = await once(server.stdout, 'data');
  address ??= String(line).trim();
}

async function stopServing() {
  if (!server) return;
  const ended = once(server, 'exit');
  server.kill('SIGINT');
  await ended;
  server = null;
}

async function reload(page) {
  await page.goto('about:blank');
  await page.goto(address);
  await page.waitForSelector('#folvero[data-state="ready"]');
}

/** Waits until this edition is the only one kept, and all of it. */
async function waitUntilKept(page) {
  await page.evaluate(async () => {
    const isKept = async () => {
      const { version, shell, rest } = await (await fetch('files/web/offline.json', { cache: 'no-store' })).json();
      const [name, ...others] = await caches.keys();
      if (!name?.endsWith(version) || others.length > 0 || !navigator.serviceWorker.controller) return false;
      const kept = (await (await caches.open(name)).keys()).map(({ url }) => url);
      return Object.keys({ ...shell, ...rest }).every((file) => kept.includes(new URL(file, location.href).href));
    };
    while (!await isKept()) await new Promise((resolve) => { setTimeout(resolve, 100); });
  });
}

const states = (page) => page.evaluate(() => ({ count: window.folvero.pageCount, title: document.title }));

test('a web book is read on without a connection, and anew when it was published again', ready, async () => {
  await publish('text', '--type', 'web', '--title', 'First edition', '--pages', '1-8');
  await startServing();
  const page = await reader.browser.newPage();
  const errors = [];
  page.on('pageerror', ({ message }) => errors.push(message));
  await page.goto(address);
  await waitUntilKept(page);
  const manifest = await page.evaluate(async () => (await fetch(document.querySelector('link[rel="manifest"]').href)).json());
  assert.deepEqual([manifest.name, manifest.start_url, manifest.display], ['First edition', 'index.html', 'standalone']);
  const icon = await page.evaluate(async (source) => {
    const picture = new Image();
    picture.src = source;
    await picture.decode();
    return [picture.naturalWidth, picture.naturalHeight];
  }, manifest.icons[0].src);
  assert.deepEqual(icon, [512, 512]);

  await stopServing();
  await reload(page);
  const { count } = await states(page);
  for (let number = 2; number <= Math.min(count, 7); number += 2) {
    await page.keyboard.press('ArrowRight');
    await page.waitForFunction((wanted) => !window.folvero.turning && window.folvero.page === wanted, number);
    const pictures = page.locator('.page:not([hidden]) img:not(.large)');
    for (const picture of await pictures.all()) assert.ok(await picture.evaluate((image) => image.decode().then(() => image.naturalWidth > 0)));
  }
  await page.keyboard.press('/');
  await page.locator('.search-box').fill('the');
  await page.waitForSelector('.result');

  // Other pages, and fewer of them, beneath the same player.
  await publish('sample', '--type', 'web', '--title', 'Second edition', '--pages', '1-5');
  await startServing();
  await reload(page);
  assert.deepEqual(await states(page), { count: 5, title: 'Second edition' });
  await waitUntilKept(page);
  await stopServing();
  await reload(page);
  assert.deepEqual(await states(page), { count: 5, title: 'Second edition' });
  await page.keyboard.press('End');
  await page.waitForFunction(() => !window.folvero.turning && window.folvero.page > 3);

  // Another page in the book's place is shown.
  const elsewhere = createServer((_, answer) => answer.setHeader('Content-Type', 'text/html').end('<title>Elsewhere</title>'));
  await new Promise((resolve) => { elsewhere.listen(new URL(address).port, '127.0.0.1', resolve); });
  await page.goto('about:blank');
  await page.goto(address);
  assert.equal(await page.title(), 'Elsewhere');
  elsewhere.closeAllConnections();
  await new Promise((resolve) => { elsewhere.close(resolve); });

  // A book that does without gets rid of it.
  await publish('sample', '--title', 'Plain');
  await startServing();
  await reload(page);
  assert.equal((await states(page)).title, 'Plain');
  assert.deepEqual(await page.evaluate(async () => [await caches.keys(), (await navigator.serviceWorker.getRegistrations()).length]), [[], 0]);
  assert.deepEqual(errors, []);
});

test('a web book on disk keeps nothing', ready, async () => {
  await publish('sample', '--type', 'web', '--pages', '1-3');
  const book = await reader.openFromDisk(bookFolder());
  await book.page.waitForFunction(() => document.querySelector('[data-does="search"]'));
  assert.equal(await book.page.locator('link[rel="manifest"]').count(), 0);
  assert.ok(book.requests.every((asked) => !asked.endsWith('/sw.js')));
  assert.deepEqual(book.errors, []);
});
