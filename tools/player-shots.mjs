#!/usr/bin/env node
// Takes the picture of every style (shot.jpg) from a running book.
// Usage: player-shots.mjs BUILT_RESOURCES_DIR RESOURCES_DIR
//
// The template comes from the built resources; the pictures go beside the styles' sources.

import { mkdtemp, readdir, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { writeDemoBook } from './player-demo-book.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const VIEW = { width: 800, height: 600 };

async function shoot(browser, book, file) {
  const page = await browser.newPage({ viewport: VIEW, deviceScaleFactor: 0.4 });
  await page.goto(`${pathToFileURL(path.join(book, 'index.html')).href}#page=4`);
  await page.waitForSelector('#folvero[data-state="ready"]');
  await page.waitForTimeout(1200);
  await page.addStyleTag({ content: '.bar, .arrow { display: none !important }' });
  await page.mouse.move(700, 470);
  await page.mouse.down();
  await page.mouse.move(660, 455, { steps: 4 });
  await page.mouse.move(560, 430, { steps: 4 });
  await page.waitForTimeout(200);
  await page.screenshot({ path: file, type: 'jpeg', quality: 88 });
  await page.close();
}

const [built, resources] = process.argv.slice(2);
const browser = await launchChromium();
const folder = await mkdtemp(path.join(tmpdir(), 'folvero-shots-'));
const library = path.join(resources, 'AppFiles/Styles');
for (const template of await readdir(library)) {
  for (const style of await readdir(path.join(library, template))) {
    const book = path.join(folder, template, style);
    const styleFolder = path.join(library, template, style);
    await writeDemoBook({ template: path.join(built, 'AppFiles/Templates', template), style: styleFolder, book });
    await shoot(browser, book, path.join(styleFolder, 'shot.jpg'));
  }
}
await browser.close();
await rm(folder, { recursive: true });
