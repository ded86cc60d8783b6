#!/usr/bin/env node
// Draws the pages of the demo book.
// Usage: make.mjs FOLDER [SPREADS_FOLDER]
//
// Writes page-01.jpg and so on, 1200 x 1600 pixels; their order as text is the order of the pages.
// The second folder gets the spreads as they lie open, to look at.
// Needs the fonts of the Debian packages fonts-ebgaramond and fonts-inter.

import { mkdir, readFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { demoBook } from './pages.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../../tests/browser/support/chromium.mjs'));

const PAGE = { width: 600, height: 800 };
const QUALITY = 84;

const [folder, spreads] = process.argv.slice(2);
if (!folder) {
  console.error('usage: make.mjs FOLDER [SPREADS_FOLDER]');
  process.exit(2);
}
await mkdir(folder, { recursive: true });
if (spreads) await mkdir(spreads, { recursive: true });

const style = await readFile(path.join(here, 'style.css'), 'utf8');
const browser = await launchChromium();
const view = await browser.newPage({ viewport: { width: 2 * PAGE.width, height: PAGE.height }, deviceScaleFactor: 2 });

await view.setContent(`<style>${style}</style><h2>x</h2><i>x</i>`);
const missing = await view.evaluate(async () => {
  const faces = ['500 20px "EB Garamond"', 'italic 500 20px "EB Garamond"', '16px Inter'];
  const width = (font) => Object.assign(document.createElement('canvas').getContext('2d'), { font }).measureText('Folvero 12').width;
  return faces.filter((face) => width(face) === width(face.replace(/("[^"]*"|Inter)$/, 'no-such-font')));
});
if (missing.length) {
  console.error(`fonts are missing: ${missing.join(', ')}`);
  process.exit(1);
}

let number = 0;
for (const { body, pages } of demoBook()) {
  await view.setContent(`<!DOCTYPE html><meta charset="utf-8"><style>${style}</style><body>${body}`);
  await view.evaluate(() => document.fonts.ready);
  const first = number + 1;
  for (let side = 0; side < pages; side += 1) {
    number += 1;
    const file = path.join(folder, `page-${String(number).padStart(2, '0')}.jpg`);
    await view.screenshot({ path: file, type: 'jpeg', quality: QUALITY, clip: { x: side * PAGE.width, y: 0, ...PAGE } });
  }
  if (spreads) {
    const clip = { x: 0, y: 0, width: pages * PAGE.width, height: PAGE.height };
    await view.screenshot({ path: path.join(spreads, `${String(first).padStart(2, '0')}.png`), clip });
  }
}
await browser.close();
