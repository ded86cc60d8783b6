import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import path from 'node:path';
import { test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { promisify } from 'node:util';
import { PHONE, Reader } from './support/reader.mjs';
import { copied } from './support/webbook.mjs';

// Web books as the program writes them, against what another program reads from the same document.
const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const ready = { skip: FOLVERO_BIN && FOLVERO_SAMPLES_DIR ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set' };
const PAGES = 8;
const sample = path.join(FOLVERO_SAMPLES_DIR ?? '', 'sample.pdf');

const reader = Reader.forTests();

async function publish(name, ...options) {
  const folder = path.join(reader.folder, name);
  await run(FOLVERO_BIN, ['publish', '--quiet', '--type', 'web', ...options, sample, folder]);
  return folder;
}

const tidy = (text) => text.replace(/\s+/g, ' ').trim();

/** Text of a page as the other program has it. */
async function textOf(page) {
  return tidy((await run('pdftotext', ['-f', page, '-l', page, sample, '-'])).stdout);
}

test('a book in one file is read from disk without a network, on a desk and on a phone', ready, async () => {
  const folder = await publish('single', '--single-file', '--pages', `1-${PAGES}`);
  const options = { before: (page) => page.context().setOffline(true) };
  const asked = (book) => book.requests.filter((address) => !/^(?:blob|data):/.test(address));
  const book = await reader.openFromDisk(folder, options);
  const { page } = book;
  await page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  for (const side of ['left', 'right']) assert.ok((await book.picture(side)).loaded);

  await page.keyboard.press('/');
  const texts = await Promise.all(Array.from({ length: PAGES }, (_, index) => textOf(index + 1)));
  for (const word of ['paper', 'hairline', 'CURLS']) {
    await page.locator('.search-box').fill(word);
    const wanted = texts.join(' ').toLowerCase().split(word.toLowerCase()).length - 1;
    await page.locator('.search-status', { hasText: new RegExp(`^${wanted} result`) }).waitFor();
  }
  await page.locator('.result').first().click();
  await book.waitForPages(4, 5);
  await page.locator('.over .hit').first().waitFor();
  await page.keyboard.press('Escape');

  const words = page.locator('.over.left .line', { hasText: 'pause. The hand lifts the corner' }).locator('.word');
  const [from, to] = [await words.first().boundingBox(), await words.last().boundingBox()];
  await book.drag([from.x + 1, from.y + from.height / 2], [to.x + to.width - 1, to.y + to.height / 2]);
  const text = tidy(await copied(page));
  assert.match(text, /^pause\. The hand lifts the corner, .+ \w+$/);
  assert.ok(texts[3].includes(text), text);

  await page.mouse.click(640, 20);
  for (let step = 0; step < 4; step += 1) await page.keyboard.press('+');
  await page.waitForSelector('.page.left img.large', { state: 'attached' });

  const phone = await reader.openFromDisk(folder, { ...options, view: PHONE });
  await phone.swipe([330, 400], [60, 400]);
  await phone.waitForPages(2);
  assert.ok((await phone.picture('right')).loaded);
  await phone.page.waitForSelector('.word', { state: 'attached' });
  const own = pathToFileURL(path.join(folder, 'index.html')).href;
  for (const one of [book, phone]) assert.deepEqual([asked(one), one.errors], [[own], []]);
});

test('a reading sample shows its open pages and has nothing of the others', ready, async () => {
  const folder = await publish('sample', '--pages', '2-8', '--preview-pages', '4-5');
  const book = await reader.openOverHttp(folder, { hash: '#page=2' });
  const { page } = book;
  assert.match(decodeURIComponent((await book.picture('left')).source), /not part of/);
  const first = tidy(await page.locator('.over.right .line').first().textContent());
  assert.ok(first && (await textOf(4)).includes(first), first);
  await page.keyboard.press('/');
  const closed = (await textOf(7)).split(' ').find((word) => word.length > 9);
  for (const [text, status] of [['modest invention', '1 result'], [closed, 'Nothing found']]) {
    await page.locator('.search-box').fill(text);
    await page.locator('.search-status', { hasText: status }).waitFor();
  }
  assert.deepEqual(book.server.requests.filter(({ status }) => status !== 200), []);
  assert.deepEqual(book.errors, []);
});
