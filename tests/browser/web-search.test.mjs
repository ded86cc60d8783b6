import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const STORY = [
  ['A harbour'], ['No ships here', 'nor any else'], ['The Harbour town and the har-', 'bour master of the harbour'],
  ['Nothing'], ['Nothing'], ['harbours'],
].map((texts) => typedPage(texts));

async function open(pages = STORY, { disk = false, inPart, ...options } = {}) {
  const folder = await reader.webBook({ pages: plainPages(pages.length), description: { pages, inPart } });
  return reader[disk ? 'openFromDisk' : 'openOverHttp'](folder, options);
}

const box = (book) => book.page.locator('.search-box');
const status = (book) => book.page.locator('.search-status').innerText();
const result = (book, index) => book.page.locator('.result').nth(index);
const press = async (book, ...keys) => { for (const key of keys) await book.page.keyboard.press(key); };

/** Searches and gives what is said about the result. */
async function search(book, text) {
  if (!await box(book).isVisible()) await press(book, '/');
  await box(book).fill(text);
  await book.page.waitForFunction(() =>
    /\d|Nothing|could not/.test(document.querySelector('.search-status').textContent));
  return status(book);
}

test('what is searched is found, listed by page with its surroundings and marked on the pages', async () => {
  const book = await open(STORY, { hash: '#page=2', disk: true });
  assert.equal(book.requests.some((request) => request.includes('search/text')), false,
    'the text is loaded when it is needed');
  assert.equal(await search(book, 'HARBOUR'), '5 results');
  assert.deepEqual(await book.page.locator('.result-page').allInnerTexts(), ['Page 1', 'Page 3', 'Page 6']);
  assert.equal(await result(book, 2).innerText(), 'The Harbour town and the harbour master of the harbour');
  assert.equal(await result(book, 2).locator('mark').innerText(), 'harbour');
  assert.equal(await book.page.locator('.over.right .hit').count(), 4, 'a word at a line\'s end has two marks');
  const [mark, word] = await Promise.all([book.page.locator('.over.right .hit').first().boundingBox(),
    book.page.locator('.over.right .word').nth(1).boundingBox()]);
  // The word's blank reaches to the next one.
  const by = { x: 2, y: 2, width: 5 };
  assert.ok(Object.keys(by).every((key) => Math.abs(mark[key] - word[key]) < by[key]), JSON.stringify([mark, word]));
  const current = book.page.locator('.hit.current');
  const steps = [['Enter', '2 of 5', 1, 2, 3], ['Enter', '3 of 5', 2, 2, 3], ['Enter', '4 of 5', 1, 2, 3],
    ['Enter', '5 of 5', 1, 6], ['Enter', '1 of 5', 1, 1], ['Shift+Enter', '5 of 5', 1, 6]];
  for (const [key, said, marks, ...pages] of steps) {
    await press(book, key);
    await book.waitForPages(...pages);
    await book.page.waitForFunction((count) => document.querySelectorAll('.hit.current').length === count, marks);
    assert.equal(await status(book), said);
  }
  await press(book, 'Escape');
  assert.equal(await current.count(), 0);
  assert.deepEqual(book.errors, []);
});

test('an address may name words to mark on its page, each by itself', async () => {
  const book = await open(STORY, { hash: '#page=3&search=harbour%20master' });
  await book.page.locator('.search-strip').waitFor();
  await book.waitForPages(2, 3);
  assert.equal(await book.page.locator('.over.right .hit').count(), 5, 'thrice a harbour, once in two lines, and a master');
  assert.equal(await box(book).isVisible(), false);
  await press(book, '/');
  assert.equal(await search(book, 'harbour master'), '4 results', 'of this page, with all words');
  assert.equal(await search(book, 'harbour town'), '1 result', 'a phrase first, as ever');
  assert.deepEqual(book.errors, []);
});

test('of a long book the text comes in parts, and what is found so far is shown', async () => {
  const give = [];
  const parts = [0, 1, 2].map((index) => new Promise((resolve) => { give[index] = resolve; }));
  const book = await open(STORY,
    { inPart: 2, before: (page) => page.route('**/search/text-*.js', (route) => give.shift()(route)) });
  assert.equal(await search(book, 'harbour'), '1+ results');
  await press(book, 'Enter');
  assert.equal(await status(book), '1 of 1+');
  await (await parts[0]).continue();
  const second = await parts[1];
  assert.equal(await status(book), '1 of 4+', 'the reader stays with the result');
  await second.abort();
  await book.page.getByRole('button', { name: 'Try again' }).click();
  await (await parts[2]).continue();
  await book.page.waitForFunction(() => document.querySelector('.search-status').textContent === '5 results');
  assert.equal(await book.page.locator('.result').count(), 5);
  assert.equal(await search(book, 'nowhere'), 'Nothing found');
  assert.deepEqual(book.errors, []);
});

test('Ctrl+F searches the book, asked again the browser; the list is used by mouse and by key', async () => {
  const book = await open();
  await press(book, 'Control+f');
  assert.ok(await box(book).evaluate((one) => one === document.activeElement));
  const again = { key: 'f', ctrlKey: true, cancelable: true, bubbles: true };
  assert.ok(await box(book).evaluate((one, init) => one.dispatchEvent(new KeyboardEvent('keydown', init)), again));
  await press(book, ...'t/c');
  assert.equal(await box(book).inputValue(), 't/c');
  assert.deepEqual(await book.pages(), [1]);
  await search(book, 'harbour');
  await result(book, 4).click();
  await book.waitForPages(6);
  assert.equal(await result(book, 4).getAttribute('aria-selected'), 'true');
  assert.ok(await box(book).isVisible(), 'beside the book the panel stays');
  await box(book).focus();
  await press(book, 'ArrowDown', 'Home', 'ArrowDown', 'ArrowDown', 'ArrowUp', 'Enter');
  await book.waitForPages(2, 3);
  assert.equal(await status(book), '2 of 5');
  assert.equal(await book.page.locator('.results').getAttribute('aria-activedescendant'), 'result-1');
  await book.page.locator('.side .step-up').click();
  await book.waitForPages(1);
  assert.equal(await search(book, 'nowhere at all'), 'Nothing found');
  assert.equal(await book.page.locator('.results').isVisible(), false);
});

test('on a phone a result makes room for the book, and the strip that stays leads on', async () => {
  const book = await open(STORY, { view: PHONE });
  await book.use('search', 'tap');
  await search(book, 'harbour');
  await result(book, 1).tap();
  await book.waitForPages(3);
  assert.equal(await box(book).isVisible(), false);
  const strip = book.page.locator('.search-strip');
  const count = strip.locator('.strip-count');
  assert.equal(await count.innerText(), '2 of 5');
  await strip.locator('.step-down').tap();
  assert.equal(await count.innerText(), '3 of 5');
  await count.tap();
  assert.equal(await box(book).inputValue(), 'harbour');
  await result(book, 4).tap();
  await book.waitForPages(6);
  await strip.locator('.step-close').tap();
  assert.equal(await strip.isVisible(), false);
  assert.equal(await book.page.locator('.hit').count(), 0);
  await book.use('search', 'tap');
  for (const wanted of ['1 of 5', '2 of 5']) {
    await press(book, 'Enter');
    assert.deepEqual([await count.innerText(), await box(book).isVisible()], [wanted, false], 'the hit is seen');
  }
});

test('an enlarged page is moved to the hit', async () => {
  const book = await open([typedPage(['x']), typedPage([...Array(30).fill('filler'), 'the needle at the end']),
    typedPage(['x'])], { hash: '#page=2' });
  await press(book, '+', '+', '+');
  await book.rest();
  await search(book, 'needle');
  await press(book, 'Enter');
  const { x, y, width, height } = await book.page.locator('.hit.current').boundingBox();
  const side = await book.page.locator('.search-side').boundingBox();
  assert.ok(x >= side.x + side.width && x + width <= 1280 && y >= 0 && y + height <= 728, `${[x, y, width, height]}`);
});

for (const file of ['text.js', 'search.js']) {
  test(`what cannot be loaded for searching is said so and may be asked for again: ${file}`, async () => {
    const book = await open(STORY,
      { before: (page) => page.route(`**/${file}`, (route) => route.fulfill({ status: 404 })) });
    assert.match(await search(book, 'harbour'), /could not be loaded/);
    await book.page.unroute(`**/${file}`);
    await book.page.locator('.search-side .plain-button').click();
    await book.page.getByText('5 results').first().waitFor();
    assert.equal(await book.page.locator('.search-side .plain-button').isVisible(), false);
  });
}

test('what is typed while the script of the search is on its way is found, and both are asked for at once', async () => {
  let give;
  const asked = new Promise((resolve) => { give = resolve; });
  const book = await open(STORY, { before: (page) => page.route('**/search.js', (route) => give(route)) });
  const isAsked = () => ['files/search.js', 'search/text.js'].map((name) => book.requests.some((one) => one.includes(name)));
  assert.deepEqual(isAsked(), [false, false]);
  await press(book, '/', ...'town');
  const route = await asked;
  assert.equal(await status(book), 'Searching…');
  assert.deepEqual(isAsked(), [true, true]);
  await route.continue();
  await book.page.getByText('1 result').first().waitFor();
  assert.equal(await box(book).inputValue(), 'town');
  assert.deepEqual(book.errors, []);
});
