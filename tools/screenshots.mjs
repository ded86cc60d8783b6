#!/usr/bin/env node
// Takes screenshots of books at desktop and phone size.
// Usage: screenshots.mjs --readme BUILT_RESOURCES    the README's pictures, into docs/images
//        screenshots.mjs BOOK_DIR OUTPUT_DIR [NAME]  every view of a book, for viewing the player
//
// The first form shows the demo book in three templates. The second one writes NAME-desktop-cover,
// -spread, -drag, -turning and NAME-phone, -phone-turning as PNG files.

import { mkdir, mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { writeDemoBook } from './player-demo-book.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const DESKTOP = { viewport: { width: 1280, height: 800 } };
const PHONE = { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true };

const [source, target, name = 'book'] = process.argv.slice(2);
if (!target) {
  console.error('usage: screenshots.mjs --readme BUILT_RESOURCES | BOOK_DIR OUTPUT_DIR [NAME]');
  process.exit(2);
}
const browser = await launchChromium();

async function open(book, options, hash = '') {
  const page = await browser.newPage(options);
  page.on('pageerror', (error) => console.error(error));
  await page.goto(pathToFileURL(path.resolve(book, 'index.html')).href + hash);
  await page.waitForSelector('#folvero[data-state="ready"], #folvero[data-state="error"]');
  await page.waitForTimeout(1500);
  return page;
}

/** Drags a corner and holds it until the page has settled under the pointer. */
async function dragAcross(page, from, to) {
  await page.mouse.move(...from);
  await page.mouse.down();
  await page.mouse.move(...to, { steps: 8 });
  await page.waitForTimeout(600);
}

/** The README's pictures: template, style and view of each. */
const README = [
  { file: 'desktop.jpg', template: 'float', style: 'Writing desk', view: DESKTOP, hash: '#page=2',
    drag: [[1130, 690], [780, 560]] },
  { file: 'phone.jpg', template: 'gallery', style: 'Sand', view: { ...PHONE, deviceScaleFactor: 1.5 }, hash: '#page=9',
    drag: [[350, 640], [230, 570]] },
  { file: 'slides.jpg', template: 'deck', style: 'Boardroom', view: DESKTOP, hash: '#page=1' },
];

async function takeReadmePictures() {
  const folder = path.join(here, '../docs/images');
  await mkdir(folder, { recursive: true });
  const books = await mkdtemp(path.join(tmpdir(), 'folvero-readme-'));
  for (const { file, template, style, view, hash, drag } of README) {
    const book = path.join(books, template);
    const library = path.join(target, 'AppFiles');
    await writeDemoBook({
      template: path.join(library, 'Templates', template), style: path.join(library, 'Styles', template, style), book,
    });
    const page = await open(book, view, hash);
    if (drag) await dragAcross(page, ...drag);
    await page.screenshot({ path: path.join(folder, file), type: 'jpeg', quality: 82 });
    await page.context().close();
  }
  await rm(books, { recursive: true });
}

async function takeEveryView() {
  await mkdir(target, { recursive: true });
  const shoot = (page, part) => page.screenshot({ path: path.join(target, `${name}-${part}.png`) });

  await shoot(await open(source, DESKTOP), 'desktop-cover');
  const desk = await open(source, DESKTOP, '#page=4');
  await shoot(desk, 'desktop-spread');
  await dragAcross(desk, [1130, 690], [760, 560]);
  await shoot(desk, 'desktop-drag');
  await desk.mouse.move(430, 610, { steps: 4 });
  await desk.waitForTimeout(600);
  await shoot(desk, 'desktop-turning');

  const hand = await open(source, { ...PHONE, deviceScaleFactor: 2 }, '#page=3');
  await shoot(hand, 'phone');
  await dragAcross(hand, [350, 640], [210, 560]);
  await shoot(hand, 'phone-turning');
}

await (source === '--readme' ? takeReadmePictures() : takeEveryView());
await browser.close();
