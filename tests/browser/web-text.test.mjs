import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { copied, line, typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const TEXTS = [
  ['The cover of a book'], ['A river runs below the old town', 'and carries what it finds', 'down to the harbour.'],
  ['On the other page begins', 'another story'], ['More words', 'see example'], ['Last but one'], ['The end'],
];
const typed = (change) => TEXTS.map((texts) => typedPage(texts, change));

/** Opens a web book at its second page; change: what its description has besides. */
async function open({ pages = typed(), values, shape = [120, 160], change = {}, disk = false, hash = '#page=2',
  ...options } = {}) {
  const folder = await reader.webBook({ pages: plainPages(pages.length, ...shape), values,
    description: { pages, ...change } });
  const book = await reader[disk ? 'openFromDisk' : 'openOverHttp'](folder, { hash, ...options });
  await book.page.waitForFunction(() => [...document.querySelectorAll('.over[aria-label]:not([hidden]) .over-box')]
    .every((box) => box.children.length));
  return book;
}

const word = (book, text) => book.page.locator('.word', { hasText: new RegExp(`^${text} ?$`) });
/** Where the letters of a word lie, without the blank that reaches to the next one. */
const lettersOf = (one) => one.evaluate((element) => {
  const range = new Range();
  range.setStart(element.firstChild, 0);
  range.setEnd(element.firstChild, element.textContent.trimEnd().length);
  const [letters, all] = [range, element].map((part) => part.getBoundingClientRect());
  const isUpright = /\((?:90|270)deg/.test(element.parentElement.style.transform);
  const [along, across] = isUpright ? [all, letters] : [letters, all];
  return { x: along.x, y: across.y, width: along.width, height: across.height };
});
const boxOf = (book, text) => lettersOf(word(book, text).first());

/** Where a place of a page of 6000 by 8000 lies in the window. */
async function placeOf(book, side, [x, y, width, height]) {
  const page = await book.box(side);
  const scale = page.width / 6000;
  return { x: page.x + x * scale, y: page.y + y * scale, width: width * scale, height: height * scale };
}

function near(actual, wanted) {
  const same = ['x', 'y', 'width', 'height'].every((key) => Math.abs(actual[key] - wanted[key]) <= 1.2);
  assert.ok(same, `${JSON.stringify(actual)} instead of ${JSON.stringify(wanted)}`);
}

/** Drags with the mouse from a share of one word to a share of another, and gives what a copy then has. */
async function mark(book, from, to, [first, last] = [0.02, 0.98]) {
  const [a, b] = [await boxOf(book, from), await boxOf(book, to)];
  await book.drag([a.x + a.width * first, a.y + a.height / 2], [b.x + b.width * last, b.y + b.height / 2]);
  return copied(book.page);
}

test('words lie over their pictures, enlarged and in a changed window too, those in view only', async () => {
  const book = await open({ disk: true });
  near(await boxOf(book, 'harbour\\.'), await placeOf(book, 'left', [600 + 12 * 60, 1200, 8 * 60, 140]));
  near(await boxOf(book, 'story'), await placeOf(book, 'right', [600 + 8 * 60, 1000, 5 * 60, 140]));
  const [river, runs] = await Promise.all(['river', 'runs'].map((text) => word(book, text).boundingBox()));
  assert.ok(Math.abs(river.x + river.width - runs.x) < 0.5, 'no gap that would not be marked');
  assert.equal(await word(book, 'cover').count(), 0);
  await book.page.keyboard.press('End');
  await book.waitForPages(6);
  await word(book, 'end').waitFor();
  assert.equal(await word(book, 'river').count(), 0);
  assert.equal(book.requests.some((asked) => asked.endsWith('sw.js')), false);
  assert.deepEqual(book.errors, []);
  // A page of another shape has paper around its picture.
  const pages = [typedPage(['wide words'], { size: [8000, 4000] }), typedPage(['x']), typedPage(['x'])];
  const wide = await open({ pages, shape: [160, 80], hash: '', view: { viewport: { width: 500, height: 800 } } });
  for (const key of ['', '+', '0']) {
    if (key === '0') await wide.page.setViewportSize({ width: 420, height: 700 });
    if (key) await wide.page.keyboard.press(key);
    await wide.page.waitForFunction((scaled) => {
      const { style } = document.querySelector('.book');
      return style.willChange === '' && style.transform.includes('scale(1.5)') === scaled;
    }, key === '+');
    const { x, y, width } = await wide.picture('right');
    const unit = width / 8000;
    near(await boxOf(wide, 'words'), { x: x + 900 * unit, y: y + 800 * unit, width: 300 * unit, height: 140 * unit });
  }
});

test('the mouse marks text without turning the page, and a copy has its words with line ends', async () => {
  const book = await open();
  assert.equal(await mark(book, 'river', 'finds'), 'river runs below the old town\nand carries what it finds');
  assert.match(await book.page.evaluate(() => String(getSelection())), /town\s*\n\s*and/);
  assert.equal(await mark(book, 'harbour\\.', 'other', [0.5, 0.6]), 'our.\nOn the oth');
  // With the shift key a click marks on from where the marking began.
  await mark(book, 'river', 'river', [0.02, 0.4]);
  const { x, y, width, height } = await boxOf(book, 'below');
  await book.page.keyboard.down('Shift');
  await book.page.mouse.click(x + width - 1, y + height / 2);
  await book.page.keyboard.up('Shift');
  assert.equal(await copied(book.page), 'river runs below');
  // A click takes the marking back and does nothing else; then the edge turns pages.
  const edge = await book.box('right');
  const click = () => book.page.mouse.click(edge.x + edge.width - 30, edge.y + edge.height / 2);
  await click();
  assert.equal(await copied(book.page), '');
  assert.deepEqual(await book.pages(), [2, 3]);
  await click();
  await book.waitForPages(4, 5);
});

test('a double click marks a word and a third click its line, even where the edge turns pages', async () => {
  const book = await open();
  const end = await boxOf(book, 'harbour\\.');
  await book.page.mouse.dblclick(end.x + end.width - 3, end.y + end.height / 2);
  assert.equal(await copied(book.page), 'harbour');
  const { x, y, height } = await boxOf(book, 'A');
  const at = [x + 2, y + height / 2];
  await book.page.mouse.dblclick(...at);
  assert.equal(await copied(book.page), 'A');
  await book.page.mouse.click(...at, { clickCount: 3 });
  assert.equal(await copied(book.page), 'A river runs below the old town');
  assert.deepEqual(await book.pages(), [2, 3]);
  assert.equal((await book.box('left')).height, (await book.box('right')).height, 'not enlarged');
});

test('a finger that rests on a word marks it and goes on marking, one that swipes turns the page', async () => {
  const book = await open({ view: PHONE });
  const session = await book.page.context().newCDPSession(book.page);
  const touch = (type, ...touchPoints) => session.send('Input.dispatchTouchEvent', { type, touchPoints });
  const [from, to] = [await boxOf(book, 'river'), await boxOf(book, 'old')];
  await touch('touchStart', { x: from.x + 8, y: from.y + 4 });
  await book.page.waitForFunction(() => String(getSelection()).trim() === 'river');
  await touch('touchMove', { x: (from.x + to.x) / 2, y: to.y + 4 });
  await touch('touchMove', { x: to.x + to.width - 0.5, y: to.y + 4 });
  await touch('touchEnd');
  assert.equal(await copied(book.page), 'river runs below the old');
  await book.page.touchscreen.tap(370, 500);
  assert.deepEqual(await book.pages(), [2]);
  await book.swipe([from.x + from.width / 2, from.y + 4], [340, from.y]);
  await book.waitForPages(1);
});

test('words of lines that run from right to left or are turned lie over their pictures', async () => {
  const along = [[90, 0, 600, 1500, 1000, 200, 2000], [180, 1500, 800, 3000, 4000, 2000, 200],
    [270, 1500, 800, 5000, 1000, 200, 2000]];
  const lines = [line([3000, 5000, 1800, 200],
    [['שלום ', 1300, 500], ['abc ', 600, 280], ['def ', 900, 280], ['עולם', 0, 400]], { rtl: true }),
    ...along.map(([turn, first, second, ...box]) =>
      line(box, [['first ', first, 500], ['second', second, 600]], { turn }))];
  const page = { size: [6000, 8000], lines, links: [] };
  const book = await open({ pages: [page, page], change: { language: 'he' }, hash: '' });
  assert.equal(await book.page.locator('.over.right').getAttribute('lang'), 'he');
  const places = [[4300, 5000, 500, 200], [3600, 5000, 280, 200], [3900, 5000, 280, 200], [3000, 5000, 400, 200],
    [1500, 1000, 200, 500], [1500, 1600, 200, 600], [4500, 4000, 500, 200], [3800, 4000, 600, 200],
    [5000, 2500, 200, 500], [5000, 1800, 200, 600]];
  const words = await book.page.locator('.over.right .word').all();
  for (const [index, one] of words.entries()) {
    near(await lettersOf(one), await placeOf(book, 'right', places[index]));
  }
});

test('those who hear the book are told the page and its words in their order', async () => {
  const book = await open({ change: { labels: ['', 'iv', 'v'], language: 'en-GB' } });
  assert.match(await book.page.locator('.stage').ariaSnapshot(),
    /group "Page iv \(2\)"[\s\S]*river[\s\S]*carries[\s\S]*group "Page v \(3\)"[\s\S]*another/);
  const rtl = await open({ values: { RightToLeft: 'Yes' } });
  assert.match(await rtl.page.locator('.stage').ariaSnapshot(), /"Page 2"[\s\S]*"Page 3"/);
});

const LINKED = [
  typedPage(['cover']),
  typedPage(['to the end, please', 'to a page that was left out', 'to https://example.org/'],
    { links: [[0, 0, 10, 6], [1, 0, 9, 0], [2, 3, 20, 'https://example.org/?a=1&b=2']] }),
  typedPage(['mail us', 'a bad one'],
    { links: [[0, 0, 7, 'mailto:a@example.org'], [1, 0, 9, 'javascript:window.broken=1']] }),
  ...[4, 5, 6].map(() => typedPage(['x'])),
];
const link = (book, name) => book.page.getByRole('link', { name });
/** Opens the linked book; opened: the tabs that its links open. */
async function openLinked(options) {
  const book = await open({ pages: LINKED, ...options });
  const context = book.page.context();
  await context.route('https://example.org/**', (route) => route.fulfill({ body: 'far away' }));
  const opened = [];
  context.on('page', (page) => opened.push(page));
  const follow = (act) => Promise.all([context.waitForEvent('page'), act(link(book, 'https://example.org/'))]);
  return { ...book, book, opened, follow };
}

test('links are followed by click, tap and key, into the book and out of it; a tap opens one tab', async () => {
  const { book, page, follow } = await openLinked();
  near(await link(book, 'https://example.org/').boundingBox(),
    await placeOf(book, 'left', [600 + 180, 1200, 1200, 140]));
  const [popup] = await follow((out) => out.click());
  await popup.waitForURL('https://example.org/?a=1&b=2', { waitUntil: 'commit' });
  assert.equal(await popup.evaluate(() => window.opener), null);
  await popup.close();
  assert.deepEqual(await book.pages(), [2, 3]);
  assert.equal(await link(book, /mail us/).getAttribute('href'), 'mailto:a@example.org');
  await link(book, /^to the end/).click();
  await book.waitForPages(6);
  await page.goBack();
  await book.waitForPages(2, 3);
  await link(book, /^to the end/).focus();
  await page.keyboard.press('Enter');
  await book.waitForPages(6);
  const phone = await openLinked({ view: PHONE });
  await phone.follow((out) => out.tap());
  await phone.page.bringToFront();
  const box = await link(phone.book, /^to the end/).boundingBox();
  // A finger is less sure than a mouse.
  await phone.page.touchscreen.tap(box.x + 5, box.y - 7);
  await phone.book.waitForPages(6);
  assert.equal(phone.opened.length, 1);
});

test('a link that leads nowhere says so and does nothing', async () => {
  const book = await open({ pages: LINKED });
  for (const name of [/^to a page/, /bad one/]) {
    await link(book, name).click({ force: true });
    assert.match(await book.page.locator('.tip').innerText(), /not in this book/);
  }
  assert.deepEqual(await book.pages(), [2, 3]);
});

test('a drag that begins on a link turns the page and does not follow the link', async () => {
  const pages = Object.assign([...LINKED],
    { 1: typedPage(['to the end, please'], { left: 3600, top: 4000, links: [[0, 0, 10, 6]] }) });
  const book = await open({ pages });
  const { x, y, width, height } = await link(book, /^to the end/).boundingBox();
  const right = await book.box('right');
  await book.drag([x + width / 2, y + height / 2], [right.x + right.width - 40, y]);
  await book.waitForPages(1);
});

test('links are out of reach while a leaf is in the air, and at hand under a lifted corner', async () => {
  const pages = Object.assign([...LINKED],
    { 2: typedPage(['x', 'below'], { left: 4200, top: 7300, links: [[1, 0, 5, 1]] }) });
  const book = await open({ pages, values: { PageMoveTime: '1' } });
  const right = await book.box('right');
  await book.page.mouse.move(right.x + right.width - 8, right.y + right.height - 8);
  await book.page.waitForFunction(() => document.querySelector('.leaf:not([hidden])') !== null);
  await link(book, /below/).click();
  await book.waitForPages(1);
  await book.page.keyboard.press('ArrowRight');
  const seen = () => book.page.locator('.over.right .over-box').evaluate((one) => one.checkVisibility({ visibilityProperty: true }));
  assert.equal(await seen(), false);
  await book.waitForPages(2, 3);
  assert.equal(await seen(), true);
});
