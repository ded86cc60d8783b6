#!/usr/bin/env node
// How soon a reader sees the first page of a book of 1,000 pages over a slow connection.
// Usage: first-view.mjs [BUILD_DIR] [--rounds 5]
//
// Publishes the same document as a classic and as a web book, serves both with `folvero serve`, and opens them alternately
// in headless Chromium with an empty cache, over what its developer tools call "Fast 3G". Prints medians of the seconds
// from navigation until the first page is painted and the book can be turned, of the seconds until the next pages are
// shown after a key press at that moment, and of the bytes loaded until the first page.

import { execFile, spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdtemp, rm } from 'node:fs/promises';
import { loadavg, tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { promisify } from 'node:util';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const given = process.argv.slice(2);
const at = given.indexOf('--rounds');
const rounds = at < 0 ? 5 : Number(given[at + 1]);
const build = given[0] && !given[0].startsWith('--') ? given[0] : path.join(here, '../build/release');
const program = path.join(build, 'bin/folvero');
const FAST_3G = { offline: false, latency: 562.5, downloadThroughput: (1.6e6 / 8) * 0.9, uploadThroughput: (750e3 / 8) * 0.9 };

/** In the page: records when the first view is painted. */
function watchOpening() {
  new MutationObserver((_, observer) => {
    if (document.getElementById('folvero')?.dataset.state !== 'ready') return;
    observer.disconnect();
    requestAnimationFrame(() => requestAnimationFrame(() => { window.openedAt = performance.now(); }));
  }).observe(document, { subtree: true, childList: true, attributes: true, attributeFilter: ['data-state'] });
}

async function open(browser, address) {
  const context = await browser.newContext({ viewport: { width: 1280, height: 800 } });
  const page = await context.newPage();
  const session = await context.newCDPSession(page);
  await session.send('Network.enable');
  await session.send('Network.emulateNetworkConditions', FAST_3G);
  let bytes = 0;
  let requests = 0;
  session.on('Network.dataReceived', ({ dataLength }) => { bytes += dataLength; });
  session.on('Network.requestWillBeSent', ({ request }) => { requests += request.url.startsWith('http') ? 1 : 0; });
  await page.addInitScript(watchOpening);
  await page.goto(address, { waitUntil: 'commit' });
  await page.waitForFunction(() => window.openedAt);
  const loaded = { bytes, requests };
  await page.keyboard.press('ArrowRight');
  await page.waitForFunction(() => window.folvero?.page > 1 && !window.folvero.turning);
  const [opened, turned] = await page.evaluate(() => [window.openedAt, performance.now()]);
  await context.close();
  return { opened: opened / 1000, turned: turned / 1000, ...loaded };
}

async function serve(folder) {
  const server = spawn(program, ['serve', '--port', '0', folder], { stdio: ['ignore', 'pipe', 'ignore'] });
  const [line] = await once(server.stdout, 'data');
  return { address: String(line).trim(), stop: () => server.kill('SIGINT') };
}

const median = (values) => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

const folder = await mkdtemp(path.join(tmpdir(), 'folvero-first-view-'));
const servers = {};
for (const type of ['html', 'web']) {
  const book = path.join(folder, type);
  await promisify(execFile)(program, ['publish', '--quiet', '--type', type, path.join(build, 'samples/thousand.pdf'), book]);
  servers[type] = await serve(book);
}
const browser = await launchChromium();
const found = { html: [], web: [] };
console.log(`Load before: ${loadavg()[0].toFixed(1)}; medians of ${rounds}.\n`);
for (let round = 0; round < rounds; round += 1) {
  for (const type of Object.keys(found)) found[type].push(await open(browser, servers[type].address));
}
console.log('| book | first page | first turn | loaded by then | requests |');
console.log('| --- | ---: | ---: | ---: | ---: |');
for (const [type, views] of Object.entries(found)) {
  const middle = (key) => median(views.map((view) => view[key]));
  console.log(`| ${type === 'html' ? 'classic' : 'web'} | ${middle('opened').toFixed(2)} s | ${middle('turned').toFixed(2)} s | ${Math.round(middle('bytes') / 1000)} kB | ${middle('requests')} |`);
}
await browser.close();
for (const { stop } of Object.values(servers)) stop();
await rm(folder, { recursive: true });
