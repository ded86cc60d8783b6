#!/usr/bin/env node
// Takes screenshots of every template in every style, at desktop and phone size, and combines them on a sheet.
// Usage: contact-sheet.mjs BUILT_RESOURCES_DIR OUTPUT_DIR [PART_OF_A_NAME]
//
// OUTPUT_DIR gets TEMPLATE/STYLE-cover.png, -spread, -turning, -phone and -phone-turning in full
// size, a sheet for each template and contact.png with all of them, each as a page and as a picture.

import { mkdir, mkdtemp, readdir, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { writeDemoBook } from './player-demo-book.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const DESK = { viewport: { width: 1280, height: 800 } };
const PHONE = { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true, deviceScaleFactor: 2 };
const VIEWS = ['cover', 'spread', 'turning', 'phone', 'phone-turning'];
const ROW = 300;

const [built, output, wanted = ''] = process.argv.slice(2);
if (!output) {
  console.error('usage: contact-sheet.mjs BUILT_RESOURCES_DIR OUTPUT_DIR [PART_OF_A_NAME]');
  process.exit(2);
}
const browser = await launchChromium();
const folder = await mkdtemp(path.join(tmpdir(), 'folvero-contact-'));

async function open(book, options, hash = '') {
  const page = await browser.newPage(options);
  page.on('pageerror', (error) => console.error(book, error));
  await page.goto(pathToFileURL(path.join(book, 'index.html')).href + hash);
  await page.waitForSelector('#folvero[data-state="ready"], #folvero[data-state="error"]');
  await page.waitForTimeout(1000);
  return page;
}

/** Keeps a page half turned. */
async function hold(page, [x, y], [toX, toY]) {
  await page.mouse.move(x, y);
  await page.mouse.down();
  await page.mouse.move((x + toX) / 2, (y + toY) / 2, { steps: 4 });
  await page.mouse.move(toX, toY, { steps: 4 });
  await page.waitForTimeout(500);
}

async function shootStyle(book, name) {
  const target = path.join(output, name);
  await mkdir(path.dirname(target), { recursive: true });
  const shoot = (page, view) => page.screenshot({ path: `${target}-${view}.png` });
  const desk = await open(book, DESK);
  await shoot(desk, 'cover');
  await desk.evaluate(() => { location.hash = '#page=4'; });
  await desk.waitForFunction(() => window.folvero.pages.includes(4) && !window.folvero.turning);
  await desk.mouse.move(640, 300);
  await desk.waitForTimeout(500);
  await shoot(desk, 'spread');
  await hold(desk, [1060, 600], [560, 520]);
  await shoot(desk, 'turning');
  await desk.close();
  const phone = await open(book, PHONE, '#page=3');
  await shoot(phone, 'phone');
  await hold(phone, [350, 560], [190, 520]);
  await shoot(phone, 'phone-turning');
  await phone.close();
}

async function sheet(names, file) {
  const pictures = (name) => VIEWS.map((view) => `<img src="${encodeURI(`${name}-${view}.png`)}">`).join('');
  const rows = names.map((name) => `<h2>${name.replace('/', ' &middot; ')}</h2><div>${pictures(name)}</div>`);
  const source = path.join(output, file.replace('.png', '.html'));
  await writeFile(source, `<!DOCTYPE html><meta charset="utf-8"><style>body { margin: 20px; background: #fff; font: 18px system-ui, sans-serif; }
    h2 { font-size: 18px; margin: 14px 0 6px; } div { display: flex; gap: 12px; }
    img { height: ${ROW}px; outline: 1px solid #ddd; }</style>${rows.join('')}`);
  const page = await browser.newPage({ viewport: { width: 1800, height: 400 } });
  await page.goto(pathToFileURL(path.resolve(source)).href, { timeout: 120000 });
  await page.screenshot({ path: path.join(output, file), fullPage: true, timeout: 120000 });
  await page.close();
}

const library = path.join(built, 'AppFiles/Styles');
const all = [];
for (const template of (await readdir(library)).sort()) {
  const names = (await readdir(path.join(library, template))).sort().map((style) => `${template}/${style}`)
    .filter((name) => name.includes(wanted));
  if (names.length === 0) continue;
  for (const name of names) {
    const book = path.join(folder, name);
    await writeDemoBook({ template: path.join(built, 'AppFiles/Templates', template), style: path.join(library, name), book,
      values: { TutorialTitle: 'A caption in the corner' } });
    await shootStyle(book, name);
  }
  await sheet(names, `${template}.png`);
  all.push(...names);
}
if (!wanted) await sheet(all, 'contact.png');
await browser.close();
await rm(folder, { recursive: true });
