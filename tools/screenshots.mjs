#!/usr/bin/env node
// Takes pictures of a published book on a desk and on a phone.
// Usage: screenshots.mjs BOOK_DIR OUTPUT_DIR [NAME]
//
// Writes NAME-desktop-cover, -spread, -turning, -drag and NAME-phone, -phone-turning as PNG files.

import { mkdir } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const [book, output, name = 'book'] = process.argv.slice(2);
const address = pathToFileURL(path.resolve(book, 'index.html')).href;
await mkdir(output, { recursive: true });
const browser = await launchChromium();

async function open(options, hash = '') {
  const page = await browser.newPage(options);
  page.on('pageerror', (error) => console.error(error));
  await page.goto(address + hash);
  await page.waitForSelector('#folvero[data-state="ready"], #folvero[data-state="error"]');
  await page.waitForTimeout(1000);
  return page;
}

async function shoot(page, part) {
  await page.screenshot({ path: path.join(output, `${name}-${part}.png`) });
}

async function dragAcross(page, from, to) {
  await page.mouse.move(...from);
  await page.mouse.down();
  for (let step = 1; step <= 8; step++) {
    await page.mouse.move(from[0] + ((to[0] - from[0]) * step) / 8, from[1] + ((to[1] - from[1]) * step) / 8);
  }
  await page.waitForTimeout(100);
}

const desktop = { viewport: { width: 1280, height: 800 } };
const cover = await open(desktop);
await shoot(cover, 'desktop-cover');
await cover.close();

const desk = await open(desktop, '#page=4');
await shoot(desk, 'desktop-spread');
await dragAcross(desk, [1130, 690], [760, 560]);
await shoot(desk, 'desktop-drag');
await desk.mouse.move(430, 610, { steps: 4 });
await desk.waitForTimeout(100);
await shoot(desk, 'desktop-turning');
await desk.mouse.up();
await desk.close();

const phone = { viewport: { width: 390, height: 844 }, deviceScaleFactor: 2, hasTouch: true, isMobile: true };
const hand = await open(phone, '#page=3');
await shoot(hand, 'phone');
await dragAcross(hand, [350, 640], [210, 560]);
await shoot(hand, 'phone-turning');
await browser.close();
