#!/usr/bin/env node
// How long a book takes to show its first spread, with 10 pages and with 2,000.
// Usage: opening.mjs [TEMPLATE_DIR] [--rounds 7]
//
// Writes both books from small pages, opens them alternately in a new page of headless Chromium, from disk and
// over http, and prints the medians of the time from navigation to the first view, in milliseconds.

import { mkdtemp, rm } from 'node:fs/promises';
import { loadavg, tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { plainPages, writeBook } from '../tests/browser/support/book.mjs';
import { launchChromium } from '../tests/browser/support/chromium.mjs';
import { serve } from '../tests/browser/support/server.mjs';
import { median } from './support.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));

const LENGTHS = [10, 2000];
const given = process.argv.slice(2);
const at = given.indexOf('--rounds');
const rounds = at < 0 ? 7 : Number(given[at + 1]);
const template = given[0] && !given[0].startsWith('--') ? given[0]
  : path.join(here, '../build/release/share/folvero/AppFiles/Templates/float');

/** In the page: records when the book is ready, since the start of the navigation. */
function watchOpening() {
  new MutationObserver((_, observer) => {
    if (document.getElementById('folvero')?.dataset.state !== 'ready') return;
    window.openedAt = performance.now();
    observer.disconnect();
  }).observe(document, { subtree: true, childList: true, attributes: true, attributeFilter: ['data-state'] });
}

async function timeToOpen(browser, address) {
  const page = await browser.newPage({ viewport: { width: 1280, height: 800 } });
  await page.addInitScript(watchOpening);
  await page.goto(address);
  await page.waitForFunction(() => window.openedAt);
  const time = await page.evaluate(() => window.openedAt);
  await page.close();
  return time;
}

const folder = await mkdtemp(path.join(tmpdir(), 'folvero-opening-'));
const books = {};
for (const length of LENGTHS) {
  books[length] = await writeBook(path.join(folder, String(length)), { template, pages: plainPages(length, 60, 80) });
}
const servers = await Promise.all(LENGTHS.map((length) => serve(books[length])));
const ways = {
  'from disk': LENGTHS.map((length) => pathToFileURL(path.join(books[length], 'index.html')).href),
  'over http': servers.map((server) => server.address),
};
const browser = await launchChromium();
console.log(`Load before: ${loadavg()[0].toFixed(1)}; medians of ${rounds}, milliseconds.\n`);
console.log('| | 10 pages | 2,000 pages | ratio |');
console.log('| --- | ---: | ---: | ---: |');
for (const [way, addresses] of Object.entries(ways)) {
  for (const address of addresses) await timeToOpen(browser, address);
  const times = addresses.map(() => []);
  for (let round = 0; round < rounds; round += 1) {
    for (const [index, address] of addresses.entries()) times[index].push(await timeToOpen(browser, address));
  }
  const [short, long] = times.map(median);
  console.log(`| ${way} | ${short.toFixed(0)} | ${long.toFixed(0)} | ${(long / short).toFixed(2)} |`);
}
await browser.close();
for (const server of servers) await server.close();
await rm(folder, { recursive: true });
