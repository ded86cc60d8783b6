import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { afterEach, test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();
let server;
let address;
afterEach(() => stopServing());

const bookFolder = () => path.join(reader.folder, 'book');
const publish = (name, ...options) =>
  folvero('publish', '--quiet', ...options, sample(name), bookFolder());

/** Publishes a book that is said to be long: it is not its size that an edition is known by. */
async function publishLong(name, title) {
  await publish(name, '--title', title, '--pages', '1-18');
  const list = path.join(bookFolder(), 'files/web/offline.json');
  await writeFile(list, (await readFile(list, 'utf8')).replace(/"bytes":\d+/, '"bytes":29000000'));
}

/** Serves the book, always at the same address. */
async function startServing() {
  server = spawn(process.env.FOLVERO_BIN, ['serve', '--port', address ? new URL(address).port : '0', bookFolder()],
    { stdio: ['ignore', 'pipe', 'ignore'] });
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

/** Waits until the button says that all of the edition that is read is kept, or that it is not. */
const saysKept = (page, kept = true) =>
  page.waitForSelector(`[data-does="keep"][aria-label="${kept ? 'Kept' : 'Keep'} for offline"]`, { state: 'attached' });

test('a web book is read on without a connection, and anew when it was published again', ready, async () => {
  await publish('text', '--title', 'First edition', '--pages', '1-8');
  await startServing();
  const page = await reader.browser.newPage();
  const errors = [];
  page.on('pageerror', ({ message }) => errors.push(message));
  await page.goto(address);
  await saysKept(page);
  const manifest = await page.evaluate(() => fetch(document.querySelector('link[rel="manifest"]').href)
    .then((answer) => answer.json()));
  assert.deepEqual([manifest.name, manifest.display], ['First edition', 'standalone']);

  await stopServing();
  await reload(page);
  await page.keyboard.press('End');
  await page.waitForSelector('.page.left[data-page="8"][data-image="ready"]');
  await page.keyboard.press('/');
  await page.locator('.search-box').fill('the');
  await page.waitForSelector('.result');

  // Other pages, and fewer of them, beneath the same player.
  await publish('sample', '--title', 'Second edition', '--pages', '1-5');
  await startServing();
  await reload(page);
  assert.equal(await page.title(), 'Second edition');
  await saysKept(page);
  await stopServing();
  await reload(page);
  assert.equal(await page.title(), 'Second edition');
  await page.keyboard.press('End');
  await page.waitForSelector('.page.right[data-page="5"][data-image="ready"]');
  assert.deepEqual(errors, []);
});

test('of a long book what was read is kept, all of it for whom asks, and no reader gets two', ready, async () => {
  await publishLong('text', 'First edition');
  await startServing();
  const page = await reader.browser.newPage();
  const panel = page.locator('.keep-panel');
  const missing = (side) => page.waitForSelector(`.page.${side}[data-image="missing"]`);
  const toast = page.locator('.toast');
  await page.route('**/web/offline.js', (route) => route.abort());
  await page.goto(address);
  await page.waitForSelector('#folvero[data-state="ready"]');
  await page.keyboard.press('k');
  const again = toast.getByRole('button', { name: 'Try again' });
  await again.waitFor();
  await page.unroute('**/web/offline.js');
  await again.click();
  await panel.getByText(/^Keep the whole book .*29 MB/).waitFor();
  await page.keyboard.press('Escape');
  await page.waitForFunction(() => navigator.serviceWorker.controller);
  await page.keyboard.press('ArrowRight');
  await page.waitForSelector('.page.right[data-page="3"][data-image="ready"]');
  await page.waitForFunction(() => location.hash !== '');
  // An answer that is there before it is kept.
  await page.evaluate(async () => {
    while (!await caches.match('files/page/3.png')) await new Promise((resolve) => { setTimeout(resolve, 100); });
  });

  await stopServing();
  await reload(page);
  await page.waitForSelector('.page.right[data-page="3"][data-image="ready"]');
  await page.keyboard.press('End');
  await missing('left');
  await toast.getByText('only pages that were kept').waitFor();

  // The server has another edition while this one is read on.
  await startServing();
  await reload(page);
  const [first] = await page.evaluate(() => caches.keys());
  await stopServing();
  await publishLong('novel', 'Second edition');
  await startServing();
  for (const key of ['g', '8', 'Enter']) await page.keyboard.press(key);
  await missing('right');
  // Playwright loses a page that is opened while one service worker takes over from another.
  await page.waitForFunction(async (before) => {
    const names = await caches.keys();
    return names.length === 1 && names[0] !== before;
  }, first);
  await toast.getByText('Open the new edition').click();
  await page.waitForFunction(() => document.title === 'Second edition' && window.folvero?.page);
  await page.keyboard.press('k');
  await panel.locator('.main-button').click();
  await saysKept(page);
  await panel.getByRole('button', { name: 'Remove' }).click();
  await saysKept(page, false);
  assert.equal(await page.evaluate(() => caches.match('files/page/17.png')), undefined);
});
