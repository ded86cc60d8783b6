#!/usr/bin/env node
// Frame times of turning pages in headless Chromium, without a GPU, at 1280 x 800.
// Usage: frames.mjs BOOK_DIR [--json FILE] [--turns 20] [--density 1] [--build BUILD_DIR]
//
// Turns the pages of a published book by key and by drag in each way of turning, and prints in milliseconds:
// the frame interval (requestAnimationFrame), and the CPU time of a frame in the page's main thread and in the
// compositor, which depends much less on the machine's load.

import { cp, mkdtemp, readFile, rm, writeFile } from 'node:fs/promises';
import { loadavg, tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { launchChromium } from '../tests/browser/support/chromium.mjs';
import { figures, traceSteps } from './support.mjs';

/** Ways of turning, and a template with each, whose page has no other. */
const KINDS = { curl: 'float', flip: 'gallery', slide: 'deck' };
const SCRIPT = /(?<=<script data-shared="page.js">)[^]*?(?=<\/script>)/;

function option(name, fallback) {
  const at = process.argv.indexOf(`--${name}`);
  return at < 0 ? fallback : process.argv[at + 1];
}

const book = process.argv[2];
if (!book || book.startsWith('--')) {
  console.error('usage: frames.mjs BOOK_DIR [--json FILE] [--turns 20] [--density 1] [--build BUILD_DIR]');
  process.exit(2);
}
const turns = Number(option('turns', '20'));
const density = Number(option('density', '1'));
const build = option('build', path.join(path.dirname(fileURLToPath(import.meta.url)), '../build/release'));

/** Copies the book, its pages turning as those of another template do. */
async function bookTurning(kind, folder) {
  await cp(book, folder, { recursive: true });
  const template = path.join(build, 'share/folvero/AppFiles/Templates', KINDS[kind], 'index.html');
  const [script] = SCRIPT.exec(await readFile(template, 'utf8'));
  const file = path.join(folder, 'index.html');
  const page = await readFile(file, 'utf8');
  if (SCRIPT.test(page)) await writeFile(file, page.replace(SCRIPT, () => script));
  else await writeFile(path.join(folder, 'files/page.js'), script);
}

/** In the page: records frame intervals while a page is turning. */
function watchFrames() {
  window.intervals = [];
  let last = 0;
  const note = (now) => {
    const turning = window.folvero?.turning;
    if (turning && last) window.intervals.push(now - last);
    last = turning ? now : 0;
    requestAnimationFrame(note);
  };
  requestAnimationFrame(note);
}

const settled = (page) => page.waitForFunction(() => !window.folvero.turning);

async function turnByKey(page) {
  for (let turn = 0; turn < turns; turn += 1) {
    await page.keyboard.press(turn % 8 < 4 ? 'ArrowRight' : 'ArrowLeft');
    await settled(page);
    await page.waitForTimeout(120);
  }
}

async function turnByDrag(page) {
  for (let turn = 0; turn < turns; turn += 1) {
    const way = turn % 8 < 4 ? -1 : 1;
    await page.mouse.move(640 - way * 460, 640);
    await page.mouse.down();
    for (let step = 1; step <= 24; step += 1) {
      await page.mouse.move(640 - way * 460 + way * step * 33, 640 - 120 * Math.sin((Math.PI * step) / 24));
    }
    await page.mouse.up();
    await settled(page);
    await page.waitForTimeout(120);
  }
}

async function measure(browser, kind, by) {
  const folder = await mkdtemp(path.join(tmpdir(), 'folvero-frames-'));
  await bookTurning(kind, folder);
  // A page's policy knows its own script only.
  const page = await browser.newPage({ viewport: { width: 1280, height: 800 }, deviceScaleFactor: density, bypassCSP: true });
  await page.addInitScript(watchFrames);
  await page.goto(pathToFileURL(path.join(folder, 'index.html')).href);
  await page.waitForSelector('#folvero[data-state="ready"]');
  await page.waitForTimeout(1500);
  const load = loadavg()[0];
  const stop = await traceSteps(await browser.newBrowserCDPSession());
  await (by === 'key' ? turnByKey(page) : turnByDrag(page));
  const steps = await stop();
  const intervals = await page.evaluate(() => window.intervals);
  await page.close();
  await rm(folder, { recursive: true });
  return {
    kind, by, load, interval: figures(intervals), main: figures(steps['ProxyMain::BeginMainFrame']),
    display: figures(steps['Display::DrawAndSwap']),
  };
}

const browser = await launchChromium();
const results = [];
console.log('| way | by | frames | interval: median | p95 | max | main thread: median | p95 | max '
  + '| layers: median | p95 | load before |');
console.log(`|${' --- |'.repeat(2)}${' ---: |'.repeat(10)}`);
for (const kind of Object.keys(KINDS)) {
  for (const by of ['key', 'drag']) {
    const result = await measure(browser, kind, by);
    results.push(result);
    const { interval, main, display, load } = result;
    console.log(`| ${kind} | ${by} | ${interval.frames} | ${interval.median} | ${interval.p95} | ${interval.max} `
      + `| ${main.median} | ${main.p95} | ${main.max} | ${display.median} | ${display.p95} | ${load.toFixed(1)} |`);
  }
}
await browser.close();
const file = option('json', '');
if (file) await writeFile(file, `${JSON.stringify({ density, turns, results }, null, 2)}\n`);
