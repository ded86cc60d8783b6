import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { line, typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

async function open(pages, { change = {}, values, disk = false, ...options } = {}) {
  const folder = await reader.webBook({ pages: plainPages(pages.length), values, description: { pages, ...change } });
  return disk ? reader.openFromDisk(folder, options) : reader.openOverHttp(folder, options);
}

const box = (book) => book.page.locator('.search-box');
const status = (book) => book.page.locator('.search-status');
const results = (book) => book.page.locator('.result').allInnerTexts();

/** Searches and gives what is told about the result. */
async function search(book, text) {
  if (!await box(book).isVisible()) await book.page.keyboard.press('/');
  await box(book).fill(text);
  await book.page.waitForFunction(() => /\d|Nothing|could not/.test(document.querySelector('.search-status').textContent));
  return status(book).innerText();
}

/** Marks on a page: their places in its own measure, of 6000 by 8000, rounded to ten. */
const marks = (book, side) => book.page.locator(`.over.${side}`).evaluate((over) => {
  const page = over.getBoundingClientRect();
  const scale = 6000 / page.width;
  return [...over.querySelectorAll('.hit')].map((one) => {
    const { x, y, width, height } = one.getBoundingClientRect();
    return [x - page.x, y - page.y, width, height].map((value) => Math.round((value * scale) / 20) * 20);
  });
});
const typed = (row, letter, letters) => [600 + letter * 60, 800 + row * 200, letters * 60, 140];

const STORY = [
  ['A harbour'], ['No ships here', 'nor any else'], ['The Harbour town and the har-', 'bour master of the harbour'],
  ['Nothing'], ['Nothing'], ['harbours'],
].map((texts) => typedPage(texts));

test('what is searched is found, listed by page with its surroundings and marked on the pages', async () => {
  const book = await open(STORY, { hash: '#page=2', disk: true });
  assert.equal(book.requests.some((request) => request.includes('search/text')), false, 'the text is loaded when it is needed');
  assert.equal(await search(book, 'HARBOUR'), '5 results');
  assert.deepEqual(await book.page.locator('.result-page').allInnerTexts(), ['Page 1', 'Page 3', 'Page 6']);
  assert.equal((await results(book))[2], 'The Harbour town and the har- bour master of the harbour');
  assert.deepEqual(await book.page.locator('.result mark').allInnerTexts(), ['harbour', 'Harbour', 'har- bour', 'harbour', 'harbour']);
  await book.page.waitForSelector('.hit');
  assert.deepEqual(await marks(book, 'right'), [typed(0, 4, 7), typed(0, 25, 4), typed(1, 0, 4), typed(1, 19, 7)]
    .map((place) => place.map((value) => Math.round(value / 20) * 20)));
  assert.equal(await book.page.locator('.hit.current').count(), 0);
  await book.page.keyboard.press('Enter');
  assert.equal(await status(book).innerText(), '2 of 5');
  assert.equal(await book.page.locator('.hit.current').count(), 1);
  await book.page.keyboard.press('Enter');
  assert.equal(await book.page.locator('.hit.current').count(), 2, 'both parts of a word at a line\'s end');
  await book.page.keyboard.press('Enter');
  await book.page.keyboard.press('Enter');
  await book.waitForPages(6);
  assert.equal(await status(book).innerText(), '5 of 5');
  await book.page.keyboard.press('Enter');
  await book.waitForPages(1);
  await book.page.keyboard.press('Shift+Enter');
  await book.waitForPages(6);
  assert.deepEqual(await marks(book, 'left'), [typed(0, 0, 7).map((value) => Math.round(value / 20) * 20)]);
  await book.page.keyboard.press('Escape');
  assert.equal(await book.page.locator('.hit').count(), 0);
  assert.deepEqual(book.errors, []);
});

test('Ctrl+F searches the book, and asked again it is the browser\'s; the list is used by mouse and by key', async () => {
  const book = await open(STORY);
  await book.page.keyboard.press('Control+f');
  assert.ok(await box(book).evaluate((one) => one === document.activeElement));
  const left = await book.page.evaluate(() => {
    const event = new KeyboardEvent('keydown', { key: 'f', ctrlKey: true, cancelable: true, bubbles: true });
    return document.activeElement.dispatchEvent(event);
  });
  assert.equal(left, true);
  await book.page.keyboard.type('t/c');
  assert.equal(await box(book).inputValue(), 't/c');
  assert.deepEqual(await book.pages(), [1]);
  await search(book, 'harbour');
  await book.page.locator('.result').nth(4).click();
  await book.waitForPages(6);
  assert.equal(await book.page.locator('.result').nth(4).getAttribute('aria-selected'), 'true');
  assert.ok(await box(book).isVisible(), 'beside the book the panel stays');
  await box(book).focus();
  for (const key of ['ArrowDown', 'Home', 'ArrowDown', 'ArrowDown', 'ArrowUp', 'Enter']) await book.page.keyboard.press(key);
  await book.waitForPages(2, 3);
  assert.equal(await status(book).innerText(), '2 of 5');
  assert.equal(await book.page.locator('.results').getAttribute('aria-activedescendant'), 'result-1');
  await book.page.locator('.side .step-up').click();
  await book.waitForPages(1);
  assert.equal(await search(book, 'nowhere at all'), 'Nothing found');
  assert.equal(await book.page.locator('.results').isVisible(), false);
});

const FOLDED = [
  ['straße', 'STRASSE', 'Die Stra\u00dfe'], ['strasse', 'stra\u00dfe', 'STRASSE'], ['caf\u00e9', 'cafe', 'Cafe\u0301 de Paris'], ['oeuvre', '\u0153uvre', 'un \u0152uvre'],
  ['smørrebrød', 'smorrebrod', 'Sm\u00f8rrebr\u00f8d'], ['łódź', 'lodz', 'do \u0141odzi? \u0141\u00f3d\u017a'], ['office', 'of\ufb01ce', 'the o\ufb03ce'],
  ['it\'s', 'it\u2019s', 'so it\u2019s "true"'], ['"so"', '\u201eso\u201c', 'es ist so'], ['1990-1995', '1990\u20131995', 'von 1990\u20131995'],
  ['well-known', 'wellknown', 'a well-known one'], ['co\u00adoperate', 'cooperate', 'they co\u00adoperate'], ['σοφος', 'ΣΟΦΌΣ', 'ὁ σοφός'],
  ['istanbul', 'ıstanbul', '\u0130stanbul'], ['אבג', 'אבג', 'אָבְּג'], ['احمد', 'أحمد', 'أحْمَد'], ['مكتبه', 'مكتبة', 'مكــتبة'], ['على', 'علي', 'علی'],
  ['a b', 'a \u00a0 b', 'a  b'],
];
test('letters are found whatever their case, marks and forms', async () => {
  const book = await open([...FOLDED.map(([, , text]) => typedPage([text])), typedPage(['zz'])]);
  for (const [index, [one, other]] of FOLDED.entries()) {
    for (const text of [one, other]) {
      await search(book, text);
      const pages = await book.page.locator('.result-page').allInnerTexts();
      assert.ok(pages.includes(`Page ${index + 1}`), `${text}: ${pages}`);
    }
  }
  assert.equal(await search(book, 'zzz'), 'Nothing found');
});

test('words are found across lines, in quotation marks as they stand, else also apart', async () => {
  const pages = [['the old', 'town'], ['pre- and post-war', 'old'], ['town walls', 'of the old kind'], ['old only']].map((texts) => typedPage(texts));
  const book = await open(pages);
  assert.equal(await search(book, 'old town'), '1 result');
  assert.equal(await search(book, 'post-war old'), '1 result');
  assert.equal(await search(book, 'pre-and'), 'Nothing found', 'a hyphen before a blank stays');
  assert.equal(await search(book, 'walls old'), '2 results', 'no such phrase: the page with both words');
  assert.deepEqual(await book.page.locator('.result-page').allInnerTexts(), ['Page 3']);
  assert.equal(await search(book, '"walls old"'), 'Nothing found');
  assert.equal(await search(book, '\u201cold town'), '1 result');
});

test('a part of a word is marked as far as it goes, in every script and direction', async () => {
  const cjk = [...'東京都港区'].map((text, index) => [text, index * 200, 200]);
  const pages = [{ size: [6000, 8000], links: [], lines: [
    line([1000, 1000, 800, 200], [['abcdefgh', 0, 800]]),
    line([1000, 2000, 1600, 200], [['שלוםעולם ', 800, 800], ['סוף', 0, 300]], { rtl: true }),
    line([1000, 3000, 1000, 200], cjk), line([1000, 3400, 600, 200], [...'芝公園'].map((text, index) => [text, index * 200, 200])),
    line([4000, 1000, 200, 800], [['sideways', 0, 800]], { turn: 90 }), line([4400, 1000, 200, 800], [['sideways', 0, 800]], { turn: 270 }),
    line([3000, 5000, 800, 200], [['sideways', 0, 800]], { turn: 180 }),
  ] }];
  const book = await open(pages);
  const wanted = [
    ['cd', [[1200, 1000, 200, 200]]], ['לום', [[2200, 2000, 300, 200]]], ['京都', [[1200, 3000, 400, 200]]],
    ['港区芝', [[1600, 3000, 400, 200], [1000, 3400, 200, 200]]],
    ['ways', [[4000, 1400, 200, 400], [4400, 1000, 200, 400], [3000, 5000, 400, 200]]],
  ];
  for (const [text, places] of wanted) {
    await search(book, text);
    const found = await marks(book, 'right');
    assert.equal(found.length, places.length, text);
    found.forEach((place, index) => place.forEach((value, axis) =>
      assert.ok(Math.abs(value - places[index][axis]) <= 40, `${text}: ${place} instead of ${places[index]}`)));
  }
});

test('on a phone a result makes room for the book, and the strip that stays leads on', async () => {
  const book = await open(STORY, { view: PHONE });
  await book.use('search', 'tap');
  await search(book, 'harbour');
  await book.page.locator('.result').nth(1).tap();
  await book.waitForPages(3);
  assert.equal(await box(book).isVisible(), false);
  const strip = book.page.locator('.search-strip');
  assert.equal(await strip.locator('.strip-count').innerText(), '2 of 5');
  await strip.locator('.step-down').tap();
  assert.equal(await strip.locator('.strip-count').innerText(), '3 of 5');
  for (const size of await strip.locator('button').evaluateAll((all) => all.map((one) => one.offsetHeight))) assert.ok(size >= 44, `${size}`);
  await strip.locator('.strip-count').tap();
  assert.equal(await box(book).inputValue(), 'harbour');
  await book.page.locator('.result').nth(4).tap();
  await book.waitForPages(6);
  await strip.locator('.step-close').tap();
  assert.equal(await strip.isVisible(), false);
  assert.equal(await book.page.locator('.hit').count(), 0);
});

test('an enlarged page is moved to the hit', async () => {
  const pages = [typedPage(['x']), typedPage([...Array(30).fill('filler'), 'the needle at the end']), typedPage(['x'])];
  const book = await open(pages, { hash: '#page=2' });
  for (let step = 0; step < 3; step += 1) await book.page.keyboard.press('+');
  await book.page.waitForTimeout(500);
  await search(book, 'needle');
  await book.page.keyboard.press('Enter');
  const { x, y, width, height } = await book.page.locator('.hit.current').boundingBox();
  const side = await book.page.locator('.search-side').boundingBox();
  assert.ok(x >= side.x + side.width && x + width <= 1280 && y >= 0 && y + height <= 800, `${[x, y, width, height]}`);
});

test('text that cannot be loaded is told and may be asked for again', async () => {
  const book = await open(STORY, { before: (page) => page.route('**/search/text.js', (route) => route.fulfill({ status: 404 })) });
  assert.match(await search(book, 'harbour'), /could not be loaded/);
  await book.page.unroute('**/search/text.js');
  await book.page.locator('.search-side .plain-button').click();
  await book.page.waitForFunction(() => document.querySelector('.search-status').textContent === '5 results');
});

test('very many hits are listed bit by bit', async () => {
  const pages = Array.from({ length: 300 }, () => typedPage(Array(20).fill('e e e e e e')));
  const book = await open(pages);
  assert.equal(await search(book, 'e'), '5,000+ results');
  const count = () => book.page.locator('.result').count();
  const first = await count();
  assert.ok(first < 60, 'what is seen and little more');
  await book.page.locator('.results').evaluate((one) => { one.scrollTop = one.scrollHeight; });
  await book.page.waitForFunction((before) => document.querySelectorAll('.result').length > before, first);
  await box(book).focus();
  await book.page.keyboard.press('Shift+Enter');
  assert.equal(await status(book).innerText(), '5,000 of 5,000+');
});
