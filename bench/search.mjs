#!/usr/bin/env node
// How fast a web book of 1,000 pages answers its readers' searches.
// Usage: search.mjs [TEMPLATE_DIR] [--pages 1000]
//
// Writes a book with about 3,000 characters per page, opens the search in headless Chromium over http and prints
// how long the text takes to be ready for searching, the longest time for which that blocked the page, and for each
// search the time per key press: finding, listing and highlighting, in milliseconds.

import { mkdtemp, rm } from 'node:fs/promises';
import { loadavg, tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { plainPages, writeBook } from '../tests/browser/support/book.mjs';
import { launchChromium } from '../tests/browser/support/chromium.mjs';
import { serve } from '../tests/browser/support/server.mjs';
import { makeWebBook, typedPage } from '../tests/browser/support/webbook.mjs';
import { median } from './support.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));

const given = process.argv.slice(2);
const at = given.indexOf('--pages');
const count = at < 0 ? 1000 : Number(given[at + 1]);
const template = given[0] && !given[0].startsWith('--') ? given[0]
  : path.join(here, '../build/release/share/folvero/AppFiles/Templates/float');
const ROUNDS = 9;
const WORDS = ('a river runs below the old town and carries what it finds down to harbour master Straße café où naïve '
  + 'über księga смотри книга harbours binding winter morning letter quiet garden').split(' ');
const QUERIES = ['e', 'the', 'harbour', 'strasse', 'harbour master', 'nowhere at all', 'книга winter', '"old town"'];

/** Text of a page, the same in every run. */
function textOf(page) {
  let state = page * 7919 + 1;
  const word = () => {
    state = (state * 48271) % 2147483647;
    return WORDS[state % WORDS.length];
  };
  return Array.from({ length: 36 }, () => Array.from({ length: 14 }, word).join(' '));
}

/** In the page: milliseconds of every answer to a query, until it is laid out. */
function answerTimes([query, rounds]) {
  const box = document.querySelector('.search-box');
  return Array.from({ length: rounds }, () => {
    box.value = '';
    box.dispatchEvent(new Event('input'));
    box.value = query;
    const start = performance.now();
    box.dispatchEvent(new Event('input'));
    document.querySelector('.results').getBoundingClientRect();
    return performance.now() - start;
  });
}

const folder = await mkdtemp(path.join(tmpdir(), 'folvero-search-'));
await writeBook(folder, { template, pages: plainPages(count, 60, 80) });
const pages = Array.from({ length: count }, (_, index) => typedPage(textOf(index)));
await makeWebBook(folder, { web: path.join(template, '../../Web'), pages });
const server = await serve(folder);
const browser = await launchChromium();
const page = await browser.newPage({ viewport: { width: 1280, height: 800 } });
await page.goto(server.address);
await page.waitForSelector('#folvero[data-state="ready"]');
const letters = pages.reduce((sum, { lines }) => sum + lines.reduce((all, { 6: words }) => all + words.filter((word) => typeof word === 'string').join('').length, 0), 0);
console.log(`Load before: ${loadavg()[0].toFixed(1)}; ${count} pages, about ${Math.round(letters / 1e5) / 10} million letters.\n`);
const ready = await page.evaluate(() => new Promise((resolve) => {
  let longest = 0;
  new PerformanceObserver((list) => list.getEntries().forEach(({ duration }) => { longest = Math.max(longest, duration); })).observe({ type: 'longtask' });
  const start = performance.now();
  document.querySelector('[data-does="search"]').click();
  const box = document.querySelector('.search-box');
  box.value = 'harbour';
  box.dispatchEvent(new Event('input'));
  const wait = () => (document.querySelector('.result') ? resolve([performance.now() - start, longest]) : setTimeout(wait, 5));
  wait();
}));
console.log(`Ready after ${Math.round(ready[0])} ms; longest task ${Math.round(ready[1])} ms (0: none over 50).\n`);
console.log('| search | median | slowest | |');
console.log('| --- | ---: | ---: | --- |');
for (const query of QUERIES) {
  const times = await page.evaluate(answerTimes, [query, ROUNDS]);
  const told = await page.locator('.search-status').textContent();
  console.log(`| ${query} | ${median(times).toFixed(1)} | ${Math.max(...times).toFixed(1)} | ${told} |`);
}
await browser.close();
await server.close();
await rm(folder, { recursive: true });
