#!/usr/bin/env node
// Writes a picture book with pages of our own, to look at the player with.
// Usage: player-demo-book.mjs TEMPLATE_DIR STYLE_DIR BOOK_DIR
//
// TEMPLATE_DIR is a built template; values of STYLE_DIR/tmplSetting.txt are put into the book.

import { cp, readFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const support = path.join(here, '../tests/browser/support');
const { writeBook } = await import(path.join(support, 'book.mjs'));
const { launchChromium } = await import(path.join(support, 'chromium.mjs'));
const { demoPages } = await import(path.join(here, 'player-demo-pages.mjs'));

/** Element of the configuration for each key of a template. */
const ELEMENTS = {
  topMargin: 'Top', bottomMargin: 'Bottom', leftMargin: 'Left', rightMargin: 'Right',
  mainColor: 'FlashWindowsColor', InitialShow: 'InitialShow', pageBackgroundColor: 'PageBackgroundColor',
  TutorialTitle: 'TutorialTitle', hidePageFrameBar: 'HidePageFrameBar',
  PageRiseOrFallTime: 'PageRiseOrFallTime', pageMoveTime: 'PageMoveTime', SlideInterval: 'SlideInterval',
  RightToLeft: 'RightToLeft', AutoPlay: 'AutoPlay', LoopPlay: 'LoopPlay',
  bgBeginColor: 'OuterGradiantColorA', bgEndColor: 'OuterGradiantColorB', bgMRotation: 'OuterGradiantAngle',
  inBeginColor: 'InnerGradiantColorA', inEndColor: 'InnerGradiantColorB', inMRotation: 'InnerGradiantAngle',
  mainbgImgPosition: 'OuterBackgroundPosition', innerMainbgImgPosition: 'InnerBackgroundPosition',
  backgroundSoundLoop: 'SoundLoops',
};
const FILES = {
  mainbgImgUrl: 'OuterBackgroundFile', innerMainbgImgUrl: 'InnerBackgroundFile', backgroundSoundURL: 'SoundFile',
};

async function readStyle(folder) {
  const values = {};
  const extras = {};
  const text = await readFile(path.join(folder, 'tmplSetting.txt'), 'utf8');
  for (const line of text.replaceAll('\r', '').split('\n')) {
    const at = line.indexOf('=');
    if (at < 0) continue;
    const [key, value] = [line.slice(0, at), line.slice(at + 1)];
    if (ELEMENTS[key]) values[ELEMENTS[key]] = value;
    if (FILES[key] && value) {
      const name = `extfiles/${key}${path.extname(value)}`;
      values[FILES[key]] = name;
      extras[name] = await readFile(path.join(folder, value.replace('STYLE_RESOURCE:', '')));
    }
  }
  return { values, extras };
}

/** Draws the pages as JPEG files at twice their size. */
async function drawPages() {
  const browser = await launchChromium();
  const view = await browser.newPage({ viewport: { width: 560, height: 740 }, deviceScaleFactor: 2 });
  const pages = [];
  for (const html of demoPages()) {
    await view.setContent(html);
    pages.push({ bytes: await view.screenshot({ type: 'jpeg', quality: 88 }) });
  }
  await browser.close();
  return pages;
}

/** Writes the picture book in the look of a style. */
export async function writeDemoBook({ template, style, book }) {
  const { values, extras } = await readStyle(style);
  await writeBook(book, {
    template, pages: await drawPages(), values, extras, declaredSize: [560, 740], title: 'Tides',
  });
  await cp(path.join(template, 'book.swf'), path.join(book, 'book.swf'));
  await cp(path.join(template, 'moveSound.mp3'), path.join(book, 'files/extfiles/moveSound.mp3'));
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [template, style, book] = process.argv.slice(2);
  await writeDemoBook({ template, style, book });
}
