#!/usr/bin/env node
// How soon a reader sees the first page of a long book over a slow connection.
// Usage: first-view.mjs [BUILD_DIR]... [--rounds 5] [--pdf FILE]... [--types html,web,single] [--network 3g|4g]
//
// Publishes documents (thousand.pdf, of 1,000 pages) as classic and as web books, and as those in a single file, with the
// program of each build, serves them with `folvero serve`, and opens them alternately in headless Chromium with an empty
// cache, over what its developer tools call "Fast 3G" or "Fast 4G". Prints medians of the seconds from navigation until the
// first page is painted and the book can be turned, of the seconds until the next pages stand there with their pictures
// after a key press at that moment, and of the bytes and requests until the first page; then the bytes of the whole book.

import { execFile } from 'node:child_process';
import { mkdtemp, readdir, rm, stat } from 'node:fs/promises';
import { loadavg, tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs, promisify } from 'node:util';
import { launchChromium } from '../tests/browser/support/chromium.mjs';
import { median, NETWORKS, serve } from './support.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));

const { values: options, positionals: builds } = parseArgs({ allowPositionals: true, options: {
  rounds: { type: 'string', default: '5' }, pdf: { type: 'string', multiple: true, default: [] },
  types: { type: 'string', default: 'html,web' }, network: { type: 'string', default: '3g' },
} });
if (builds.length === 0) builds.push(path.join(here, '../build/release'));
if (options.pdf.length === 0) options.pdf.push(path.join(builds[0], 'samples/thousand.pdf'));
const rounds = Number(options.rounds);
const TYPES = { html: ['--type', 'html'], web: ['--type', 'web'], single: ['--type', 'web', '--single-file'] };

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
  await session.send('Network.emulateNetworkConditions', NETWORKS[options.network]);
  let bytes = 0;
  let requests = 0;
  session.on('Network.dataReceived', ({ dataLength }) => { bytes += dataLength; });
  session.on('Network.requestWillBeSent', ({ request }) => { requests += request.url.startsWith('http') ? 1 : 0; });
  await page.addInitScript(watchOpening);
  await page.goto(address, { waitUntil: 'commit' });
  await page.waitForFunction(() => window.openedAt);
  const loaded = { bytes, requests };
  await page.keyboard.press('ArrowRight');
  await page.waitForFunction(() => window.folvero?.page > 1 && !window.folvero.turning
    && document.querySelectorAll('.page:not([hidden])[data-image="ready"]').length === window.folvero.pages.length);
  const [opened, turned] = await page.evaluate(() => [window.openedAt, performance.now()]);
  await context.close();
  return { opened: opened / 1000, turned: turned / 1000, ...loaded };
}

async function bytesBelow(folder) {
  const names = await readdir(folder, { recursive: true });
  const files = await Promise.all(names.map((name) => stat(path.join(folder, name))));
  return files.reduce((sum, file) => sum + (file.isFile() ? file.size : 0), 0);
}

const folder = await mkdtemp(path.join(tmpdir(), 'folvero-first-view-'));
const books = [];
for (const pdf of options.pdf) {
  for (const type of options.types.split(',')) {
    for (const build of builds) {
      const program = path.join(build, 'bin/folvero');
      const book = path.join(folder, String(books.length));
      await promisify(execFile)(program, ['publish', '--quiet', ...TYPES[type], pdf, book]);
      const name = [path.basename(pdf), type === 'html' ? 'classic' : type, ...builds.length > 1 ? [build] : []];
      books.push({ name: name.join(', '), views: [], bytes: await bytesBelow(book), server: await serve(program, book) });
    }
  }
}
const browser = await launchChromium();
console.log(`Load before: ${loadavg()[0].toFixed(1)}; medians of ${rounds}.\n`);
for (let round = 0; round < rounds; round += 1) {
  for (const { views, server } of books) views.push(await open(browser, server.address));
}
console.log('| book | first page | first turn | loaded by then | requests | whole book |');
console.log('| --- | ---: | ---: | ---: | ---: | ---: |');
for (const { name, views, bytes } of books) {
  const middle = (key) => median(views.map((view) => view[key]));
  console.log(`| ${name} | ${middle('opened').toFixed(2)} s | ${middle('turned').toFixed(2)} s | ${Math.round(middle('bytes') / 1000)} kB | ${middle('requests')} | ${(bytes / 1e6).toFixed(1)} MB |`);
}
await browser.close();
for (const { server } of books) server.stop();
await rm(folder, { recursive: true });
