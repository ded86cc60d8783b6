import assert from 'node:assert/strict';
import { readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const TEXTS = [
  ['The cover of a book'], ['A river runs below the old town', 'and carries what it finds', 'down to the harbour.'],
  ['On the other page begins', 'another story'], ['More words', 'and a river'], ['Last but one'], ['The end'],
];
const BLOCKS = [{ kind: 'p', page: 2, box: [0, 0, 9, 9], text: ['A river runs below the old town and carries what it finds down to the harbour.'] }];

async function open({ disk = false, hash = '#page=2', texts = TEXTS, rtl = false, ...options } = {}) {
  // Every line is a paragraph, and "and" at the beginning of one is a link.
  const pages = texts.map((lines) => ({
    ...typedPage(lines, { links: lines.flatMap((line, row) => (line.startsWith('and ') ? [[row, 0, 3, 1]] : [])) }),
    blocks: lines.flatMap(() => ['p', 1]),
  }));
  if (rtl) pages.forEach(({ lines }) => lines.forEach((line) => { line[5] = 1; }));
  const folder = await reader.webBook({ pages: plainPages(pages.length, 120, 160), description: { pages, reading: [BLOCKS] } });
  const book = await reader[disk ? 'openFromDisk' : 'openOverHttp'](folder, { hash, ...options });
  book.folder = folder;
  await book.page.waitForSelector('.word', { state: 'attached' });
  return book;
}

const bar = (book) => book.page.locator('.note-bar');
const stored = (book) => book.page.evaluate(() =>
  JSON.parse(localStorage.getItem(`folvero:${location.pathname}:notes`) ?? '{}').notes ?? []);
const quotes = async (book) => (await stored(book)).map(({ quote, colour, note }) => [quote, colour, note]);
const boxOf = (book, text) => book.page.locator('.word', { hasText: new RegExp(`^${text} ?$`) }).first().boundingBox();

/** Drags with the mouse from one word to another. */
async function mark(book, from, to) {
  const [a, b] = [await boxOf(book, from), await boxOf(book, to)];
  await book.drag([a.x + 1, a.y + a.height / 2], [b.x + b.width * 0.98, b.y + b.height / 2]);
  await bar(book).waitFor();
}

/** Whether the marks of a page lie over the letters of these words. */
async function liesOver(book, from, to) {
  const marks = await book.page.locator('.note-mark').evaluateAll((all) => all.map((one) => one.getBoundingClientRect().toJSON()));
  const [first, last] = [await boxOf(book, from), await boxOf(book, to)];
  return marks.length > 0 && Math.abs(marks[0].left - first.x) < 2 && marks[0].top < first.y + first.height
    && Math.abs(marks.at(-1).bottom - last.y - last.height) < 4;
}

test('text that the mouse marks is highlighted, noted and linked to, and all of that is there the next time', async () => {
  const book = await open({ before: (page) => page.context().grantPermissions(['clipboard-read', 'clipboard-write']) });
  await mark(book, 'carries', 'harbour\\.');
  await bar(book).locator('[data-colour="green"]').click();
  await bar(book).locator('[data-act="note"]').click();
  await book.page.locator('.note-text').fill('Where to?');
  const text = await book.page.locator('.note-text').boundingBox();
  await book.drag([text.x + 80, text.y + 12], [20, text.y + 12]);
  assert.ok(await book.page.locator('.note-panel').isVisible(), 'marking text does not close its panel');
  await book.page.keyboard.press('Control+Enter');
  await mark(book, 'another', 'story');
  await bar(book).locator('[data-act="link"]').click();
  await book.page.waitForFunction(() => document.querySelector('.live').textContent === 'Copied');
  const link = await book.page.evaluate(() => navigator.clipboard.readText());
  assert.match(link, /#page=3&search=%22another%20story%22$/);
  assert.deepEqual(await quotes(book), [['carries what it finds\ndown to the harbour.', 'green', 'Where to?']]);
  await book.page.reload();
  await book.page.waitForSelector('.note-mark.noted', { state: 'attached' });
  assert.ok(await liesOver(book, 'carries', 'harbour\\.'));
  await book.page.keyboard.press('a');
  const marked = () => [...CSS.highlights.get('note-green') ?? []].map(String);
  await book.page.waitForFunction(() => CSS.highlights.get('note-green')?.size > 0);
  assert.deepEqual(await book.page.evaluate(marked), ['carries what it finds down to the harbour.']);
  await book.page.evaluate(() => getSelection().selectAllChildren(document.querySelector('.read-text')));
  await bar(book).waitFor();
  await book.page.keyboard.press('a');
  await book.page.goto(link);
  await book.page.waitForSelector('.hit.current');
  assert.deepEqual(book.errors, []);
});

test('by keys alone words are marked, highlighted, listed, deleted and brought back, and pages bookmarked', async () => {
  const book = await open({ disk: true });
  const press = async (...keys) => { for (const key of keys) await book.page.keyboard.press(key); };
  const count = (wanted) => book.page.waitForFunction((number) => document.querySelectorAll('.note-entry').length === number, wanted);
  await press('h');
  await book.page.waitForFunction(() => String(getSelection()) === 'A');
  await press('ArrowDown', 'Shift+ArrowRight', 'Shift+ArrowRight', 'Enter');
  await book.page.waitForSelector('.note-mark', { state: 'attached' });
  await press('ArrowRight', 'ArrowRight', 'Enter', 'Escape', 'b');
  await book.page.waitForSelector('.note-ribbon', { state: 'attached' });
  assert.deepEqual(await quotes(book), [['A river runs below the old town\nand carries what it finds\ndown to the harbour.', 'yellow', ''],
    ['and carries what', 'blue', '']]);
  await press('m');
  await count(2);
  await press('Tab', 'Enter');
  await book.page.keyboard.type('Kept');
  await press('Escape');
  await book.page.locator('.note-own', { hasText: 'Kept' }).waitFor();
  await press('Tab', 'Tab', 'Enter');
  await count(1);
  await press('Shift+Tab', 'Enter');
  await count(2);
  await press('Escape', 'b');
  await count(1);
  assert.equal((await book.pages()).join(), '2,3');
  assert.deepEqual(book.errors, []);
});

test('arrows select the way that text is read, and turn pages again once it is highlighted', async () => {
  const book = await open({ rtl: true });
  await book.page.keyboard.press('h');
  await book.page.waitForFunction(() => String(getSelection()) === 'A');
  for (const key of ['ArrowLeft', 'h']) await book.page.keyboard.press(key);
  await book.page.waitForSelector('.note-mark', { state: 'attached' });
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(4, 5);
  assert.deepEqual(await quotes(book), [['river', 'yellow', '']]);
});

test('a finger that rests marks a word, and a tap on a highlight opens its bar instead of turning', async () => {
  const book = await open({ view: PHONE });
  const { x, y, width, height } = await boxOf(book, 'town');
  const session = await book.page.context().newCDPSession(book.page);
  const touch = (type, touchPoints) => session.send('Input.dispatchTouchEvent', { type, touchPoints });
  const place = { x: x + width / 2, y: y + height / 2 };
  await touch('touchStart', [place]);
  await book.page.waitForFunction(() => !getSelection().isCollapsed);
  await touch('touchEnd', []);
  await bar(book).waitFor();
  assert.ok((await bar(book).boundingBox()).y > y + height, 'below the fingers that hold the handles');
  await bar(book).locator('[data-colour="pink"]').tap();
  await book.page.waitForSelector('.note-mark', { state: 'attached' });
  await book.page.touchscreen.tap(195, 760);
  await bar(book).waitFor({ state: 'hidden' });
  await book.page.touchscreen.tap(place.x, place.y);
  await bar(book).locator('[data-act="drop"]').tap();
  await book.page.locator('.toast .plain-button').tap();
  await book.page.waitForFunction(() => document.querySelector('.note-mark'));
  assert.deepEqual([await quotes(book), await book.pages()], [[['town', 'pink', '']], [2]]);
});

test('a script for notes that cannot be loaded is asked for once while text is being marked', async () => {
  const book = await open({ before: (page) => page.route('**/files/notes.js*', (route) => route.abort()) });
  const [a, b] = [await boxOf(book, 'carries'), await boxOf(book, 'harbour\\.')];
  await book.drag([a.x + 1, a.y + a.height / 2], [b.x + b.width, b.y + b.height / 2], { steps: 30 });
  assert.match(await book.page.evaluate(() => String(getSelection())), /^carries.*harbour/s);
  assert.equal(book.requests.filter((address) => address.includes('/notes.js')).length, 1);
});

test('a browser that stores nothing says so at once, and keeps what is marked as long as the page', async () => {
  const book = await open({ before: (page) => page.addInitScript(() => {
    Storage.prototype.setItem = () => { throw new DOMException('full', 'QuotaExceededError'); };
  }) });
  await book.page.keyboard.press('h');
  await book.page.waitForFunction(() => !getSelection().isCollapsed);
  await book.page.keyboard.press('Enter');
  await book.page.locator('.toast', { hasText: 'does not keep notes' }).waitFor();
  await book.page.keyboard.press('m');
  await book.page.waitForSelector('.note-entry');
});

test('notes go into a file and into another browser, and follow words that a new edition has moved', async () => {
  const book = await open();
  await mark(book, 'another', 'story');
  await bar(book).locator('[data-colour="yellow"]').click();
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('m');
  const download = book.page.waitForEvent('download');
  await book.page.locator('.note-files button').first().click();
  const file = path.join(book.folder, 'notes.json');
  await (await download).saveAs(file);
  const other = await open({ texts: [...TEXTS.slice(0, 2), ['A new page'], ...TEXTS.slice(2)], hash: '#page=1' });
  await other.page.keyboard.press('m');
  const status = other.page.locator('.note-status');
  const take = async (name) => other.page.locator('input[type="file"]').setInputFiles(name);
  const cut = path.join(book.folder, 'cut.json');
  await writeFile(cut, (await readFile(file, 'utf8')).slice(0, -20));
  await take(cut);
  await status.getByText('damaged').waitFor();
  assert.deepEqual(await stored(other), []);
  await take(file);
  await status.getByText('1 added').waitFor();
  await other.page.waitForFunction(() => JSON.parse(localStorage.getItem(`folvero:${location.pathname}:notes`)).notes[0].page === 4);
  await other.page.locator('.note-go').click();
  await other.page.waitForSelector('.note-mark', { state: 'attached' });
  assert.ok(await liesOver(other, 'another', 'story'));
  await other.page.goto(`${other.server.address}#page=3&quote=another%20story`);
  await other.page.waitForSelector('.note-mark[data-colour="guest"]', { state: 'attached' });
  assert.deepEqual(await other.pages(), [4, 5]);
});
