#!/usr/bin/env node
// Takes pictures of a published book on a desk and on a phone.
// Usage: screenshots.mjs BOOK_DIR                    the two pictures of the README, in docs/images
//        screenshots.mjs BOOK_DIR OUTPUT_DIR [NAME]  every view, to look at the player with
//
// The second form writes NAME-desktop-cover, -spread, -drag, -turning and NAME-phone, -phone-turning
// as PNG files. The README's pictures are of the sample book that `make book` publishes.

import { mkdir } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const DESKTOP = { viewport: { width: 1280, height: 800 } };
const PHONE = { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true };

const [book, output, name = 'book'] = process.argv.slice(2);
if (!book) {
  console.error('usage: screenshots.mjs BOOK_DIR [OUTPUT_DIR [NAME]]');
  process.exit(2);
}
const address = pathToFileURL(path.resolve(book, 'index.html')).href;
const browser = await launchChromium();

async function open(options, hash = '') {
  const page = await browser.newPage(options);
  page.on('pageerror', (error) => console.error(error));
  await page.goto(address + hash);
  await page.waitForSelector('#folvero[data-state="ready"], #folvero[data-state="error"]');
  await page.waitForTimeout(1000);
  return page;
}

/** Takes a corner and holds it until the sheet has come to rest under the pointer. */
async function dragAcross(page, from, to) {
  await page.mouse.move(...from);
  await page.mouse.down();
  await page.mouse.move(...to, { steps: 8 });
  await page.waitForTimeout(600);
}

async function takeReadmePictures() {
  const folder = path.join(here, '../docs/images');
  await mkdir(folder, { recursive: true });
  const shoot = (page, file) => page.screenshot({ path: path.join(folder, file), type: 'jpeg', quality: 82 });

  const desk = await open(DESKTOP, '#page=4');
  await dragAcross(desk, [1130, 690], [760, 560]);
  await shoot(desk, 'desktop.jpg');
  const hand = await open({ ...PHONE, deviceScaleFactor: 1.5 }, '#page=6');
  await dragAcross(hand, [350, 640], [230, 570]);
  await shoot(hand, 'phone.jpg');
}

async function takeEveryView() {
  await mkdir(output, { recursive: true });
  const shoot = (page, part) => page.screenshot({ path: path.join(output, `${name}-${part}.png`) });

  await shoot(await open(DESKTOP), 'desktop-cover');
  const desk = await open(DESKTOP, '#page=4');
  await shoot(desk, 'desktop-spread');
  await dragAcross(desk, [1130, 690], [760, 560]);
  await shoot(desk, 'desktop-drag');
  await desk.mouse.move(430, 610, { steps: 4 });
  await desk.waitForTimeout(600);
  await shoot(desk, 'desktop-turning');

  const hand = await open({ ...PHONE, deviceScaleFactor: 2 }, '#page=3');
  await shoot(hand, 'phone');
  await dragAcross(hand, [350, 640], [210, 560]);
  await shoot(hand, 'phone-turning');
}

await (output ? takeEveryView() : takeReadmePictures());
await browser.close();
