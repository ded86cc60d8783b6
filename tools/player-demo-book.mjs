#!/usr/bin/env node
// Writes the demo book with a style, for viewing the player.
// Usage: player-demo-book.mjs TEMPLATE_DIR STYLE_DIR BOOK_DIR
//
// TEMPLATE_DIR is a built template, STYLE_DIR the built style with its pictures and sounds.

import { cp, readdir, readFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { demoSlides, iconPages, SLIDE } from './player-demo-slides.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const support = path.join(here, '../tests/browser/support');
const { writeBook } = await import(path.join(support, 'book.mjs'));
const { launchChromium } = await import(path.join(support, 'chromium.mjs'));

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

/** Draws documents as JPEG files at twice their size. */
async function drawPages(documents, size) {
  const browser = await launchChromium();
  const view = await browser.newPage({ viewport: size, deviceScaleFactor: 2 });
  const pages = [];
  for (const html of documents) {
    await view.setContent(html);
    pages.push({ bytes: await view.screenshot({ type: 'jpeg', quality: 88 }) });
  }
  await browser.close();
  return pages;
}

async function demoPages() {
  const folder = path.join(here, '../resources/DemoImgs');
  const names = (await readdir(folder)).filter((name) => name.endsWith('.jpg')).sort();
  return Promise.all(names.map(async (name) => ({ bytes: await readFile(path.join(folder, name)) })));
}

const drawn = new Map();

/** Pages for showing a template: slides for single-page templates, otherwise a book; plain pages for an icon. */
async function pagesFor(template, asIcon) {
  const isDeck = (await readFile(path.join(template, 'index.html'), 'utf8')).includes('data-pages="single"');
  const size = isDeck ? SLIDE : { width: 600, height: 800 };
  const name = `${isDeck} ${asIcon}`;
  if (!drawn.has(name)) {
    if (asIcon) drawn.set(name, await drawPages(iconPages(size), size));
    else drawn.set(name, isDeck ? await drawPages(demoSlides(), size) : await demoPages());
  }
  return { pages: drawn.get(name), declaredSize: [size.width, size.height] };
}

/** Writes a demo book with a style; values override the style's, by element name. */
export async function writeDemoBook({ template, style, book, values = {}, asIcon = false }) {
  const own = await readStyle(style);
  await writeBook(book, {
    template, ...(await pagesFor(template, asIcon)), values: { ...own.values, ...values }, extras: own.extras, title: 'Folvero',
  });
  await cp(path.join(template, 'book.swf'), path.join(book, 'book.swf'));
  await cp(path.join(template, 'moveSound.mp3'), path.join(book, 'files/extfiles/moveSound.mp3'));
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [template, style, book] = process.argv.slice(2);
  await writeDemoBook({ template, style, book });
}
