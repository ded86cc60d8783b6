import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { line } from './support/webbook.mjs';

const reader = Reader.forTests();

/** A page of two columns, words of which name their column and line. */
const page = { size: [6000, 8000], lines: [600, 3200].flatMap((left, column) => Array.from({ length: 30 }, (_, row) =>
  line([left, 600 + row * 200, 2200, 140], [[`word${'AB'[column]}${row}`, 0, 2200]]))), links: [] };

async function open(options) {
  const folder = await reader.webBook({ pages: plainPages(4, 120, 160), description: { pages: [page, page, page, page] } });
  const book = await reader.openOverHttp(folder, { hash: '#page=2', ...options });
  await book.page.waitForSelector('.word', { state: 'attached' });
  return book;
}

const figure = (book) => book.page.locator('.zoom-strip').evaluate((strip) => !strip.hidden && strip.innerText.trim());
const width = async (book) => Math.round((await book.box('left') ?? await book.box('right')).width);

test('a double tap shows the column under the finger at the width of the screen, another one the page', async () => {
  const book = await open({ view: PHONE });
  const whole = await width(book);
  const word = book.page.locator('.word', { hasText: 'wordB12' });
  const { x, y, height } = await word.boundingBox();
  await book.tapTwice(x + 20, y + height / 2);
  await book.page.waitForSelector('.zoom-strip:not([hidden])');
  await book.rest();
  await book.page.waitForFunction(() => !document.querySelector('.book').style.willChange);
  const seen = await word.boundingBox();
  assert.ok(seen.width > 330 && seen.x > 0 && Math.abs(seen.x + seen.width / 2 - 195) < 3, `${seen.x}, ${seen.width}`);
  assert.ok(Math.abs(seen.y + seen.height / 2 - y - height / 2) < 3, 'the line stays where it was');
  assert.match(await figure(book), /^\d{3}%$/);
  await book.tapTwice(x + 20, y + height / 2);
  await book.page.waitForFunction(() => document.querySelector('.zoom-strip').hidden);
  await book.page.waitForFunction(() => !document.querySelector('.book').style.willChange);
  assert.equal(await width(book), whole);
});

test('the zoom tells its figure, and leads to the whole width and to whole pages by buttons and keys', async () => {
  const book = await open();
  const whole = await width(book);
  const choice = () => book.page.evaluate(() => localStorage.getItem(`folvero:${location.pathname}:view`));
  const still = () => book.page.waitForFunction(() => document.querySelector('.zoom-strip').hidden
    && !document.querySelector('.book').style.willChange);
  await book.page.keyboard.press('+');
  await book.page.waitForSelector('.zoom-strip:not([hidden])');
  assert.equal(await figure(book), '150%');
  await book.page.locator('.zoom-viewWidth').click();
  await still();
  const wide = await width(book);
  assert.deepEqual([await choice(), wide > whole], ['width', true]);
  await book.page.keyboard.press('+');
  await book.page.waitForSelector('.zoom-strip:not([hidden])');
  await book.page.keyboard.press('w');
  await still();
  assert.deepEqual([await choice(), await width(book)], ['width', wide]);
  await book.page.keyboard.press('0');
  await book.page.waitForFunction((wanted) => document.querySelector('.page.left').offsetWidth === wanted, whole);
  await book.page.keyboard.press('+');
  await book.page.locator('.zoom-fitPage').click();
  await still();
  assert.deepEqual([await width(book), await choice()], [whole, 'auto']);
  assert.deepEqual(book.errors, []);
});
