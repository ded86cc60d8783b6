import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import path from 'node:path';
import { test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { promisify } from 'node:util';
import { DESK as FIREFOX_DESK, findFirefox, launchFirefox, openBook } from './support/firefox.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';

// Web books as the program writes them, against what another program reads from the same document.
const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const skip = FOLVERO_BIN && FOLVERO_SAMPLES_DIR ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set';
const firefox = findFirefox();
const PAGES = 8;
const sample = path.join(FOLVERO_SAMPLES_DIR ?? '', 'sample.pdf');

const reader = Reader.forTests();

async function publish(name, ...options) {
  const folder = path.join(reader.folder, name);
  await run(FOLVERO_BIN, ['publish', '--quiet', '--type', 'web', ...options, sample, folder]);
  return folder;
}

/** The sample in one file, which all tests read. */
let published;
async function singleFile() {
  published ??= publish('single', '--single-file', '--pages', `1-${PAGES}`);
  return path.join(await published, 'index.html');
}

const tidy = (text) => text.replace(/\s+/g, ' ').trim();

/** Text of a page as the other program has it. */
async function textOf(page) {
  return tidy((await run('pdftotext', ['-f', page, '-l', page, sample, '-'])).stdout);
}

/** The network is off from the start; whatever is asked for all the same is told. */
async function openAlone(view) {
  const single = await singleFile();
  const book = await reader.openFromDisk(path.dirname(single), { view, before: (page) => page.context().setOffline(true) });
  const asked = () => book.requests.filter((address) => !/^(?:blob|data):/.test(address));
  assert.deepEqual(asked(), [pathToFileURL(single).href]);
  return { ...book, book, asked };
}

/** What a marking by mouse from one word to another gives to the clipboard. */
async function copyFrom(page, first, last) {
  const [from, to] = await Promise.all([first, last].map((word) => word.boundingBox()));
  await page.mouse.move(from.x + 1, from.y + from.height / 2);
  await page.mouse.down();
  await page.mouse.move(to.x + to.width - 1, to.y + to.height / 2, { steps: 8 });
  await page.mouse.up();
  return page.evaluate(() => {
    const data = new DataTransfer();
    document.dispatchEvent(new ClipboardEvent('copy', { clipboardData: data, cancelable: true, bubbles: true }));
    return data.getData('text/plain') || String(getSelection());
  });
}

test('a book in one file is read from disk without a network: turning, search, copying, zoom', { skip }, async () => {
  const { book, page, asked } = await openAlone(DESK);
  await page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  for (const side of ['left', 'right']) assert.ok((await book.picture(side)).loaded);

  await page.keyboard.press('/');
  const texts = await Promise.all(Array.from({ length: PAGES }, (_, index) => textOf(index + 1)));
  for (const word of ['paper', 'hairline', 'CURLS']) {
    await page.locator('.search-box').fill(word);
    const wanted = texts.map((text) => text.toLowerCase().split(word.toLowerCase()).length - 1).reduce((sum, count) => sum + count);
    await page.waitForFunction((count) => document.querySelector('.search-status').textContent.startsWith(count), `${wanted} result`);
  }
  await page.locator('.result').first().click();
  await book.waitForPages(4, 5);
  await page.waitForSelector('.over.left .hit, .over.right .hit');
  await page.keyboard.press('Escape');

  const line = page.locator('.over.left .line', { hasText: 'pause. The hand lifts the corner' });
  const words = line.locator('.word');
  const copied = tidy(await copyFrom(page, words.first(), words.last()));
  assert.match(copied, /^pause\. The hand lifts the corner, .+ \w+$/);
  assert.ok(texts[3].includes(copied), copied);

  await page.mouse.click(640, 20);
  for (let step = 0; step < 4; step += 1) await page.keyboard.press('+');
  await page.waitForSelector('.page.left img.large', { state: 'attached' });
  assert.deepEqual([asked().length, book.errors], [1, []]);
});

test('a book in one file is read on a phone', { skip }, async () => {
  const { book, page, asked } = await openAlone(PHONE);
  await book.swipe([330, 400], [60, 400]);
  await book.waitForPages(2);
  assert.ok(await page.locator('.page:not([hidden]) img').evaluate((image) => image.complete && image.naturalWidth > 0));
  await page.waitForSelector('.word', { state: 'attached' });
  assert.deepEqual([asked().length, book.errors], [1, []]);
});

test('a reading sample shows its open pages and tells of the others', { skip }, async () => {
  const folder = await publish('sample', '--pages', '2-8', '--preview-pages', '4-5');
  const book = await reader.openOverHttp(folder, { hash: '#page=2' });
  const { page } = book;
  assert.match(decodeURIComponent((await book.picture('left')).source), /not part of/);
  await page.waitForSelector('.over.right .word');
  const first = await page.locator('.over.right .line').first().evaluate((line) => line.textContent);
  assert.ok(first.trim() && (await textOf(4)).includes(tidy(first)), first);
  await page.keyboard.press('/');
  const found = async (text) => {
    await page.locator('.search-box').fill(text);
    await page.waitForFunction(() => /\d|Nothing/.test(document.querySelector('.search-status').textContent));
    return page.locator('.result').count();
  };
  assert.equal(await found('modest invention'), 1);
  const closed = (await textOf(7)).split(' ').find((word) => word.length > 9);
  assert.equal(await found(closed), 0, closed);
  assert.deepEqual(book.server.requests.filter(({ status }) => status !== 200), []);
  assert.deepEqual(book.errors, []);
});

test('Firefox reads the same file', { skip: skip || (firefox ? false : 'Firefox is not installed') }, async () => {
  const browser = await launchFirefox(firefox);
  try {
    const book = await openBook(browser, pathToFileURL(await singleFile()).href, FIREFOX_DESK);
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(2, 3);
    await book.page.waitForSelector('.over.right .word');
    assert.ok((await book.picture()).seen);
    await book.page.keyboard.press('/');
    await book.page.keyboard.type('hairline');
    await book.page.waitForSelector('.result');
    assert.deepEqual(book.errors, []);
  } finally {
    await browser.close();
  }
});
