import assert from 'node:assert/strict';
import { test } from 'node:test';
import { faults } from './support/axe.mjs';
import { plainPages } from './support/book.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const COUNT = 300;
/** Wider than a phone. */
const CODE = `x = 1${' + 1'.repeat(20)}\n`;
const words = (page) => `Of page ${page} `.repeat(60);
/** A chapter for each page, which ends on the next one; every tenth page has a picture only. */
const blocksOf = (page) => (page % 10 === 0 ? [] : [
  { kind: 'h1', page, text: [`Chapter ${page}`] }, { kind: 'item', page, text: ['1. ', ['first', 1]] },
  { kind: 'p', page, text: [words(page), ['to the harbour. ', 2, 250], ...(page % 10 === 9 ? [] : [page + 1, `Rest of ${page}.`])] },
  { kind: 'row', page, text: ['a\tb'] }, { kind: 'note', page, text: ['1 A note'] }, { kind: 'code', page, text: [[CODE, 4]] },
]);
const text = Array.from({ length: COUNT }, (_, index) => blocksOf(index + 1));
const description = {
  pages: text.map((_, index) => typedPage([`Chapter ${index + 1}`, `needle ${index + 1}`,
    ...Array(index === 0 ? 10 : 0).fill('line')])),
  reading: [text.slice(0, 150).flat(), text.slice(150).flat()],
  textPage: 'text.html', language: 'en', outline: [['Chapter 7', 7, []], ['Chapter 299', 299, []]],
};
let folder = null;

async function open({ disk = false, ...options } = {}) {
  folder ??= await reader.webBook({ pages: plainPages(COUNT), description });
  return disk ? reader.openFromDisk(folder, options) : reader.openOverHttp(folder, options);
}

const view = (book) => book.page.locator('.read');
const press = async (book, ...keys) => { for (const key of keys) await book.page.keyboard.press(key); };
/** The view is at that page, and the book behind as well. */
const reads = (book, page) => book.page.waitForFunction((wanted) =>
  document.querySelector('.read-where').textContent === `Page ${wanted} of 300` && window.folvero.pages.includes(wanted)
    && window.location.hash === `#page=${wanted}`, page);
/** Elements at the top of the view, below its bar. */
const atTop = (book) => book.page.evaluate(() => {
  const { left, width, top } = document.querySelector('.read-text').parentElement.getBoundingClientRect();
  const { height } = document.querySelector('.read-bar').getBoundingClientRect();
  return document.elementFromPoint(left + width / 2, top + height + 24).closest('h2, p, li, figure')?.textContent;
});
async function read(book) {
  await book.use('reading');
  await book.page.waitForSelector('.read-text h2');
}

for (const [name, options] of [['a desk', { view: DESK, disk: true }], ['a phone', { view: PHONE }]]) {
  test(`the reading view opens at the page in view and leads back to what was read, on ${name}`, async () => {
    const book = await open({ ...options, hash: '#page=205' });
    assert.ok(!book.requests.some((url) => /reading\/text-1/.test(url)));
    await read(book);
    await reads(book, 205);
    assert.match(await atTop(book), /Rest of 204/);
    const many = await book.page.locator('.read-text *').count();
    assert.ok(many < 600, `${many} elements of a long book`);
    await view(book).locator('p', { hasText: 'Of page 205' }).getByRole('link').click();
    await reads(book, 250);
    await book.page.goBack();
    await reads(book, 205);
    assert.match(await atTop(book), /Rest of 204/);
    await book.page.goForward();
    await reads(book, 250);
    await view(book).locator('.read-scroll').evaluate((one) => { one.scrollTop += 3 * one.clientHeight; });
    await book.page.waitForFunction(() => window.folvero.page > 250);
    const page = await book.page.evaluate(() => Number(window.location.hash.slice(6)));
    await press(book, 'a');
    await view(book).waitFor({ state: 'hidden' });
    await book.page.waitForFunction(() => window.history.state === null);
    assert.ok((await book.pages()).includes(page));
    await press(book, 'a');
    await reads(book, page);
    await book.page.goBack();
    await view(book).waitFor({ state: 'hidden' });
    assert.ok((await book.pages()).includes(page), 'Back leads to the pages');
    assert.deepEqual(book.errors, []);
  });
}

test('contents and search lead to their places in the view', async () => {
  const book = await open();
  await read(book);
  await press(book, 'c');
  await book.page.locator('.tree-row', { hasText: 'Chapter 299' }).click();
  await reads(book, 299);
  assert.match(await atTop(book), /^Chapter 299/);
  await press(book, '/', ...'Rest of 7', 'Enter');
  await press(book, 'Escape', 'ArrowRight', 'y');
  assert.deepEqual(await book.pages(), [298, 299], 'keys of the book do not reach it');
  await press(book, 'Home');
  await reads(book, 1);
  await press(book, 'End');
  await reads(book, 300);
  await press(book, 'Escape');
  await view(book).waitFor({ state: 'hidden' });
  await press(book, 'Home');
  await book.waitForPages(1);
  await read(book);
  await book.rest();
  await reads(book, 1);
});

test('letters and colours are chosen, kept for the next book, and keep the place', async () => {
  const book = await open({ hash: '#page=122', disk: true });
  await read(book);
  await reads(book, 122);
  await press(book, 'Tab');
  assert.match(await book.page.evaluate(() => document.activeElement.closest('p').textContent), /page 121/, 'not a link further above');
  await book.page.locator('.read-opener').click();
  for (const value of ['sepia', 'spaced', 'narrow']) await book.page.locator(`.read-option[data-value="${value}"]`).click();
  await press(book, '+', '+');
  await reads(book, 122);
  const look = () => book.page.locator('.read-text').evaluate((one) => {
    const { fontSize, letterSpacing } = getComputedStyle(one);
    return [fontSize, letterSpacing !== 'normal', getComputedStyle(one.closest('.read')).backgroundColor];
  });
  const chosen = await look();
  assert.deepEqual(chosen.slice(1), [true, 'rgb(246, 237, 219)']);
  await press(book, 'Escape', 'Escape');
  await book.page.reload();
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  await read(book);
  assert.deepEqual(await look(), chosen);
});

test('the view offers itself where letters are small, until it is not wanted', async () => {
  const book = await open({ view: PHONE });
  await book.page.locator('.read-refuse').tap();
  await book.page.reload();
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  await book.page.waitForFunction(() => document.querySelector('.word'));
  await book.rest();
  assert.equal(await book.page.locator('.read-offer').count(), 0);
  const desk = await open();
  assert.ok(!desk.requests.some((url) => /files\/reading\.js/.test(url)));
});

for (const [name, options] of [['a desk', { view: DESK }], ['a phone', { view: PHONE }]]) {
  test(`the view keeps no readers out, on ${name}`, async () => {
    const book = await open(options);
    await read(book);
    await book.page.locator('.read-opener').click();
    for (const value of ['night', 'sepia', 'paper']) {
      await book.page.locator(`.read-option[data-value="${value}"]`).click();
      await book.rest();
      assert.deepEqual(await faults(book), [], value);
    }
    assert.equal(await book.page.getByRole('article').getByRole('heading', { name: 'Chapter 1', exact: true }).count(), 1);
    assert.equal(await book.page.locator('.read-text pre').first().innerText(), CODE);
  });
}

/** Voices that speak when the test says so. */
const voices = (page) => page.addInitScript(() => {
  const speech = Object.assign(new EventTarget(), {
    spoken: [], said: null, getVoices: () => [{ lang: 'de-DE', default: true }, { lang: 'en-GB' }],
    speak(words) { this.said = words; this.spoken.push(`${words.voice?.lang ?? words.lang}: ${words.text}`); },
    cancel() { this.said = null; },
    end() { this.said?.onend(); },
  });
  Object.defineProperty(window, 'speechSynthesis', { value: speech });
  window.SpeechSynthesisUtterance = class { constructor(text) { this.text = text; } };
});

test('the text is read aloud sentence by sentence from what is seen, on to the next pages', async () => {
  const silent = await open({ hash: '#page=12', before: (page) => page.addInitScript(() =>
    Object.defineProperty(window, 'speechSynthesis', { value: Object.assign(new EventTarget(), { getVoices: () => [], cancel() {} }) })) });
  await read(silent);
  assert.equal(await silent.page.locator('.read-speaker').isVisible(), false, 'without voices');
  const book = await open({ hash: '#page=149', before: voices });
  await read(book);
  await reads(book, 149);
  const heard = () => book.page.evaluate(() => window.speechSynthesis.spoken);
  await book.page.locator('.read-speaker').click();
  assert.deepEqual(await heard(), ['en-GB: Rest of 148.']);
  assert.equal(await book.page.evaluate(() => String([...CSS.highlights.get('read-spoken')][0])), 'Rest of 148.');
  await press(book, 'r');
  await book.page.evaluate(() => window.speechSynthesis.end());
  await press(book, 'r');
  assert.equal((await heard()).length, 2);
  assert.equal((await heard())[1], 'en-GB: Rest of 148.', 'goes on with the sentence that was interrupted');
  // Page 151 is in another file.
  await book.page.waitForFunction(() => {
    window.speechSynthesis.end();
    return window.speechSynthesis.spoken.at(-1).endsWith('Chapter 152');
  }, null, { polling: 60 });
  await book.page.waitForFunction(() => window.folvero.pages.includes(151));
  const all = await heard();
  for (const text of ['1 A note', 'Chapter 149', '1. first', 'a', 'b', 'Chapter 151']) assert.ok(all.includes(`en-GB: ${text}`), text);
  assert.ok(all.indexOf('en-GB: Chapter 149') < all.indexOf('en-GB: Chapter 151'));
  await press(book, 'Escape');
  assert.equal(await book.page.evaluate(() => window.speechSynthesis.said), null, 'the closed view is silent');
  assert.deepEqual(book.errors, []);
});
