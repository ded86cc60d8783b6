#!/usr/bin/env node
// Takes the picture of every style (shot.jpg) and of every template (icon.png) from a running book.
// Usage: player-shots.mjs BUILT_RESOURCES_DIR RESOURCES_DIR [PART_OF_A_NAME]
//
// Templates and styles come from the built resources; the pictures go beside the styles' sources.

import { mkdir, mkdtemp, readdir, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { writeDemoBook } from './player-demo-book.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const VIEW = { width: 800, height: 600 };
// The chooser's size at device pixel ratio 2, and a little more.
const SHOT = { width: 480, height: 360 };
const ICON = 64;

/** The style for each template's icon. */
const ICONS = { float: 'Blank', desk: 'Oak', gallery: 'Blank', cinema: 'Velvet', deck: 'Bright' };
const ICON_VIEW = { width: 660, height: 580 };

async function open(browser, book, options) {
  const page = await browser.newPage(options);
  await page.goto(`${pathToFileURL(path.join(book, 'index.html')).href}#page=4`);
  await page.waitForSelector('#folvero[data-state="ready"]');
  await page.waitForTimeout(1200);
  return page;
}

/** Bytes of a picture at another size, smoothly scaled; with rounded corners for an icon. */
async function scaled(browser, bytes, { width, height }, { round = 0, type, quality }) {
  const page = await browser.newPage();
  const address = await page.evaluate(async ([source, size, radius, format, share]) => {
    const image = new Image();
    image.src = source;
    await image.decode();
    const draw = (from, to, cut) => {
      const canvas = Object.assign(document.createElement('canvas'), to);
      const context = canvas.getContext('2d');
      context.imageSmoothingQuality = 'high';
      if (cut) {
        context.roundRect(0, 0, to.width, to.height, cut);
        context.clip();
      }
      context.drawImage(from, 0, 0, to.width, to.height);
      if (cut) {
        context.strokeStyle = 'rgba(0, 0, 0, .22)';
        context.lineWidth = 2;
        context.stroke();
      }
      return canvas;
    };
    let current = image;
    while (current.width >= 2 * size.width) {
      current = draw(current, { width: Math.round(current.width / 2), height: Math.round(current.height / 2) }, 0);
    }
    return draw(current, size, radius).toDataURL(format, share);
  }, [`data:image/png;base64,${bytes.toString('base64')}`, { width, height }, round, type, quality]);
  await page.close();
  return Buffer.from(address.split(',')[1], 'base64');
}

/** Drags a page by its corner to where the turn is best visible. */
async function holdPage(page, { width, height }) {
  await page.addStyleTag({ content: '.bar, .arrow, .caption { visibility: hidden !important }' });
  const curls = await page.evaluate(() => document.querySelector('#folvero').dataset.turn === 'curl');
  const at = (x, y, steps) => page.mouse.move(width * x, height * y, { steps });
  await at(0.86, 0.78);
  await page.mouse.down();
  await at(0.82, 0.76, 4);
  await at(curls ? 0.7 : 0.62, 0.72, 4);
  await page.waitForTimeout(500);
}

async function shoot(browser, book, file) {
  const page = await open(browser, book, { viewport: VIEW, deviceScaleFactor: 1.6 });
  await holdPage(page, VIEW);
  const bytes = await page.screenshot();
  await page.close();
  await writeFile(file, await scaled(browser, bytes, SHOT, { type: 'image/jpeg', quality: 0.86 }));
}

async function shootIcon(browser, book, file) {
  const { width, height } = ICON_VIEW;
  const page = await open(browser, book, { viewport: ICON_VIEW, deviceScaleFactor: 2 });
  await holdPage(page, ICON_VIEW);
  const middle = await page.evaluate(() => {
    const { top, bottom } = document.querySelector('.page:not([hidden])').getBoundingClientRect();
    return (top + bottom) / 2;
  });
  const side = Math.min(width, height, 2 * middle);
  const bytes = await page.screenshot({ clip: { x: (width - side) / 2, y: middle - side / 2, width: side, height: side } });
  await page.close();
  await writeFile(file, await scaled(browser, bytes, { width: ICON, height: ICON }, { type: 'image/png', round: 13 }));
}

const [built, resources, wanted = ''] = process.argv.slice(2);
if (!resources) {
  console.error('usage: player-shots.mjs BUILT_RESOURCES_DIR RESOURCES_DIR [PART_OF_A_NAME]');
  process.exit(2);
}
const browser = await launchChromium();
const folder = await mkdtemp(path.join(tmpdir(), 'folvero-shots-'));
const library = path.join(built, 'AppFiles');
for (const template of await readdir(path.join(library, 'Styles'))) {
  for (const style of await readdir(path.join(library, 'Styles', template))) {
    if (!`${template}/${style}`.includes(wanted)) continue;
    const what = { template: path.join(library, 'Templates', template), style: path.join(library, 'Styles', template, style) };
    const book = path.join(folder, template, style);
    await writeDemoBook({ ...what, book });
    await shoot(browser, book, path.join(resources, 'AppFiles/Styles', template, style, 'shot.jpg'));
    if (ICONS[template] !== style) continue;
    const target = path.join(resources, 'AppFiles/Templates', template);
    await mkdir(target, { recursive: true });
    await writeDemoBook({ ...what, book: `${book}-icon`, asIcon: true });
    await shootIcon(browser, `${book}-icon`, path.join(target, 'icon.png'));
  }
}
await browser.close();
await rm(folder, { recursive: true });
