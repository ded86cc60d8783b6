#!/usr/bin/env node
// The player beside three other viewers, on the same pages: page-flip and BookReader from npm, pdf.js's viewer from
// Debian's package libjs-pdf.
// Usage: beside.mjs [--build DIR] [--rounds 3] [--turns 12] [--only turns,opening,pinches,rules,tree,heap] [--json FILE]
//                   [--documents text,pictures] [--text PDF] [--pictures PDF] [--pages 1-40]
//
// Publishes the pages of a text document (R-exts.pdf) and of one of photographs as web books, gives the books' own page
// pictures to page-flip and BookReader and a PDF of those pages to pdf.js, serves all with `folvero serve`, and measures
// the viewers by turns in headless Chromium. Prints a table for each subject, with the goal for the player.

import { execFileSync } from 'node:child_process';
import { existsSync } from 'node:fs';
import { mkdtemp, rm, writeFile } from 'node:fs/promises';
import { loadavg, tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';
import { launchChromium } from '../tests/browser/support/chromium.mjs';
import { startFaults, treeOf } from './beside/access.mjs';
import { measureOpening } from './beside/opening.mjs';
import { measurePinches } from './beside/pinching.mjs';
import { addDocument, addViewers } from './beside/site.mjs';
import { faultsByState } from './beside/states.mjs';
import { measureHeap, measureTurns } from './beside/turning.mjs';
import { addressOf, VIEWERS } from './beside/viewers.mjs';
import { median, printTable, serve } from './support.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const text = (fallback) => ({ type: 'string', default: fallback });
const { values: options } = parseArgs({ options: {
  build: text(path.join(here, '../build/release')), rounds: text('3'), turns: text('12'), pages: text('1-40'),
  only: text('turns,opening,pinches,rules,tree,heap'), json: text(''), text: text(''), pictures: text(''),
  documents: text('text,pictures'),
} });
const rounds = Number(options.rounds);
const turns = Number(options.turns);
const [folvero] = VIEWERS;
const HEAP_TURNS = 200;

/** The documents by name; those that are not named are a package's, and our own, made on first use. */
function documents() {
  const made = path.join(options.build, 'bench-samples/picture-heavy.pdf');
  const ways = {
    text: () => execFileSync('dpkg', ['-L', 'r-doc-pdf'], { encoding: 'utf8' }).split('\n')
      .find((name) => name.endsWith('/R-exts.pdf')),
    pictures: () => {
      const maker = path.join(options.build, 'bin/folvero-make-samples');
      if (!existsSync(made)) execFileSync(maker, ['--bench', path.dirname(made)]);
      return made;
    },
  };
  return Object.fromEntries(options.documents.split(',').map((name) => [name, options[name] || ways[name]()]));
}

const load = () => loadavg()[0].toFixed(1);
const whole = (value) => value.toFixed(0);
const names = VIEWERS.map(({ name }) => name);

/** Runs a measurement of each viewer in each round, one after the other; the results by viewer. */
async function byTurns(count, viewers, measure) {
  const results = new Map(viewers.map((viewer) => [viewer, []]));
  for (let round = 0; round < count; round += 1) {
    for (const viewer of viewers) results.get(viewer).push(await measure(viewer));
  }
  return results;
}

const TURNS = [
  { by: 'key', density: 1, slower: 1, goal: 'p95 16.8, worst < 50' },
  { by: 'drag', density: 1, slower: 1, goal: 'p95 16.8, worst < 50' },
  { by: 'key', density: 3, slower: 4, goal: 'p95 33' },
  { by: 'drag', density: 3, slower: 4, goal: 'p95 33' },
];

/** Medians of the rounds; the worst frame is the median of the rounds' worst. */
function turnCells(rows) {
  const middle = (take) => median(rows.map(take)).toFixed(1);
  const failed = rows.reduce((sum, row) => sum + row.failed, 0);
  return [middle((row) => row.intervals.median), middle((row) => row.intervals.p95), middle((row) => row.intervals.max),
    middle((row) => row.main.p95), middle((row) => row.cpu), failed];
}

async function tableOfTurns(browser, site, document) {
  console.log(`Turning pages of "${document}", milliseconds; load ${load()}.\n`);
  const rows = [];
  for (const { goal, ...how } of TURNS) {
    const viewers = VIEWERS.filter(({ drag }) => how.by === 'key' || drag);
    const results = await byTurns(rounds, viewers,
      (viewer) => measureTurns(browser, addressOf(site, document, viewer), viewer, { ...how, turns }));
    const what = `${how.by}, density ${how.density}${how.slower > 1 ? `, CPU ${how.slower}x slower` : ''}`;
    const found = viewers.map((viewer) =>
      [viewer.name, ...turnCells(results.get(viewer)), viewer === folvero ? goal : '']);
    printTable([what, 'interval: median', 'p95', 'worst', 'main thread of a frame: p95', 'CPU time of a turn',
      'turns that failed', 'goal'], found);
    rows.push([what, found]);
  }
  return rows;
}

async function tableOfOpening(browser, site, document) {
  console.log(`From the start of the navigation to the first page of "${document}", milliseconds; load ${load()}.\n`);
  const rows = [];
  for (const network of ['', '4g']) {
    const results = await byTurns(rounds, VIEWERS,
      (viewer) => measureOpening(browser, addressOf(site, document, viewer), viewer, network));
    const row = (key) => VIEWERS.map((viewer) => whole(median(results.get(viewer).map((result) => result[key]))));
    const what = network ? '9 Mbit/s' : 'this machine';
    rows.push([what, ...row('time'), network ? '1000' : ''], [`${what}, CPU time`, ...row('cpu'), '']);
  }
  printTable(['network', ...names, 'goal'], rows);
  return rows;
}

async function tableOfPinches(browser, site) {
  console.log(`Pinches of ten that enlarge or shrink the page as asked, density 3; load ${load()}.\n`);
  const results = await byTurns(1, VIEWERS,
    (viewer) => measurePinches(browser, addressOf(site, 'text', viewer), viewer));
  const rows = [['pinches', ...VIEWERS.map((viewer) => results.get(viewer)[0]), '10']];
  printTable(['', ...names, 'goal'], rows);
  return rows;
}

async function tableOfRules(browser, site) {
  const states = await faultsByState(browser, addressOf(site, 'text', folvero), folvero);
  const reached = states.filter(({ found }) => found);
  const faulty = reached.filter(({ found }) => found.length > 0);
  const faults = faulty.reduce((sum, { found }) => sum + found.length, 0);
  for (const { name, found } of faulty) console.log(`- ${name}: ${found.join('; ')}`);
  for (const { name, missed } of states) if (missed) console.log(`- ${name}: not reached, ${missed}`);
  console.log('\nFaults by axe with the rules of WCAG 2.2 AA.\n');
  const rows = [['states', reached.length, 1, 1, 1, '65'], ['faults', faults]];
  for (const viewer of VIEWERS.slice(1)) {
    rows[1].push((await startFaults(browser, addressOf(site, 'text', viewer), viewer)).length);
  }
  rows[1].push('0');
  printTable(['', ...names, 'goal'], rows);
  return rows;
}

async function tableOfTree(browser, site) {
  console.log('What the accessibility tree has of one page of text.\n');
  const results = await byTurns(1, VIEWERS, (viewer) => treeOf(browser, addressOf(site, 'text', viewer), viewer));
  const rows = Object.keys(results.get(folvero)[0]).map((role) => [role,
    ...VIEWERS.map((viewer) => results.get(viewer)[0][role]), /heading|paragraph|link/.test(role) ? 'those of the page' : '']);
  printTable(['', ...names, 'goal'], rows);
  return rows;
}

async function tableOfHeap(browser, site) {
  console.log(`JavaScript heap in MB after a garbage collection; load ${load()}.\n`);
  const results = await byTurns(1, VIEWERS,
    (viewer) => measureHeap(browser, addressOf(site, 'text', viewer), viewer, HEAP_TURNS));
  const row = (what, key, goal) => [what, ...VIEWERS.map((viewer) => results.get(viewer)[0][key].toFixed(1)), goal];
  const rows = [row('first view', 'before', ''), row(`after ${HEAP_TURNS} turns by key`, 'after', '< 10')];
  printTable(['', ...names, 'goal'], rows);
  return rows;
}

const folder = await mkdtemp(path.join(tmpdir(), 'folvero-beside-'));
let server = null;
let browser = null;
try {
  const program = path.join(options.build, 'bin/folvero');
  const given = documents();
  await addViewers(folder);
  for (const [name, pdf] of Object.entries(given)) {
    await addDocument(folder, program, { name, pdf, pages: options.pages });
  }
  server = await serve(program, folder);
  browser = await launchChromium();
  const site = server.address;
  const ofEach = { turns: tableOfTurns, opening: tableOfOpening };
  const ofText = { pinches: tableOfPinches, rules: tableOfRules, tree: tableOfTree, heap: tableOfHeap };
  const results = {};
  for (const subject of options.only.split(',')) {
    if (ofText[subject]) results[subject] = await ofText[subject](browser, site);
    else for (const name of Object.keys(given)) results[`${subject}, ${name}`] = await ofEach[subject](browser, site, name);
  }
  if (options.json) await writeFile(options.json, `${JSON.stringify({ rounds, turns, results }, null, 2)}\n`);
} finally {
  await browser?.close();
  server?.stop();
  await rm(folder, { recursive: true });
}
