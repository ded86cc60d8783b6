import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { line, typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const TEXTS = [
  ['The cover of a book'],
  ['A river runs below the old town', 'and carries what it finds', 'down to the harbour.'],
  ['On the other page begins', 'another story'],
  ['More words', 'see example'], ['Last but one'], ['The end'],
];

/** Opens a web book of typed pages; change: what its description has besides. */
async function open({ pages = TEXTS.map((texts) => typedPage(texts)), values, shape = [120, 160], change = {}, disk = false, ...options } = {}) {
  const folder = await reader.webBook({ pages: plainPages(pages.length, ...shape), values, description: { pages, ...change } });
  const book = disk ? await reader.openFromDisk(folder, options) : await reader.openOverHttp(folder, options);
  await book.page.waitForSelector('.over:not([hidden]) .over-box:not(:empty)', { state: 'attached' });
  return book;
}

const word = (book, text) => book.page.locator('.word', { hasText: new RegExp(`^${text} ?$`) });
const boxOf = async (book, text) => word(book, text).boundingBox();

/** Where a word of a page of 6000 by 8000 lies in the window, from its place on the page. */
async function placeOf(book, side, [x, y, width, height], [across, down] = [6000, 8000]) {
  const page = await book.box(side);
  return { x: page.x + (x / across) * page.width, y: page.y + (y / down) * page.height,
    width: (width / across) * page.width, height: (height / down) * page.height };
}

function near(actual, wanted, by = 1.2) {
  for (const key of ['x', 'y', 'width', 'height']) {
    assert.ok(Math.abs(actual[key] - wanted[key]) <= by, `${key}: ${JSON.stringify(actual)} instead of ${JSON.stringify(wanted)}`);
  }
}

/** Text that a copy puts on the clipboard. */
const copied = (book) => book.page.evaluate(() => {
  const data = new DataTransfer();
  document.dispatchEvent(new ClipboardEvent('copy', { clipboardData: data, cancelable: true, bubbles: true }));
  return data.getData('text/plain');
});
const selected = (book) => book.page.evaluate(() => String(getSelection()));

/** Drags with the mouse from a share of one word to a share of another. */
async function mark(book, from, to, shares = [0.02, 0.98]) {
  const [a, b] = [await boxOf(book, from), await boxOf(book, to)];
  const at = (box, share) => [box.x + box.width * share, box.y + box.height / 2];
  await book.drag(at(a, shares[0]), at(b, shares[1]));
}

test('words lie over their pictures, and only those of the pages in view are in the document', async () => {
  const book = await open({ hash: '#page=2', disk: true });
  await word(book, 'another').waitFor();
  near(await boxOf(book, 'harbour\\.'), await placeOf(book, 'left', [600 + 12 * 60, 1200, 8 * 60, 140]));
  near(await boxOf(book, 'story'), await placeOf(book, 'right', [600 + 8 * 60, 1000, 5 * 60, 140]));
  assert.equal(await word(book, 'cover').count(), 0);
  await book.page.keyboard.press('End');
  await book.waitForPages(6);
  await word(book, 'end').waitFor();
  assert.equal(await word(book, 'river').count(), 0);
  assert.equal(await book.page.locator('.over:not([hidden])').count(), 1);
  assert.deepEqual(book.errors, []);
});

test('words stay over their pictures on a page with paper around it, enlarged, and after the window has changed', async () => {
  const pages = [typedPage(['wide words'], { size: [8000, 4000] }), typedPage(['x']), typedPage(['x'])];
  const book = await open({ pages, shape: [160, 80], view: { viewport: { width: 500, height: 800 } } });
  const place = async () => {
    const picture = await book.picture('right');
    const one = (share) => share * picture.width;
    return { x: picture.x + one((600 + 300) / 8000), y: picture.y + one(800 / 8000), width: one(300 / 8000), height: one(140 / 8000) };
  };
  near(await boxOf(book, 'words'), await place());
  await book.page.keyboard.press('+');
  await book.page.waitForFunction(() => document.querySelector('.book').style.willChange === '' && document.querySelector('.book').style.transform.includes('scale(1.5)'));
  near(await boxOf(book, 'words'), await place());
  await book.page.keyboard.press('0');
  await book.page.setViewportSize({ width: 420, height: 700 });
  await book.page.waitForFunction(() => document.querySelector('.book').style.transform.startsWith('translateX'));
  near(await boxOf(book, 'words'), await place());
});

test('the mouse marks text without turning the page, and a copy gives its words with line ends', async () => {
  const book = await open({ hash: '#page=2' });
  await word(book, 'story').waitFor();
  await mark(book, 'river', 'finds');
  assert.equal(await copied(book), 'river runs below the old town\nand carries what it finds');
  assert.match(await selected(book), /town\s*\n\s*and/);
  assert.deepEqual(await book.pages(), [2, 3]);
  await mark(book, 'harbour\\.', 'other', [0.5, 0.6]);
  assert.equal(await copied(book), 'our.\nOn the oth');
  // A page further down than any text still belongs to its last line.
  const last = await boxOf(book, 'story');
  await book.page.mouse.move(last.x + last.width / 2, last.y + last.height / 2);
  await book.page.mouse.down();
  await book.page.mouse.move(last.x + 200, last.y + 200, { steps: 4 });
  await book.page.mouse.up();
  assert.equal(await copied(book), 'ory');
  // With the shift key a click marks on from where the marking began.
  await mark(book, 'river', 'river', [0.02, 0.4]);
  const { x, y, width, height } = await boxOf(book, 'below');
  await book.page.keyboard.down('Shift');
  await book.page.mouse.click(x + width - 1, y + height / 2);
  await book.page.keyboard.up('Shift');
  assert.equal(await copied(book), 'river runs below');
  assert.deepEqual(await book.pages(), [2, 3]);
});

test('a click takes the marking back and does nothing else; without a marking the edges turn where no words are', async () => {
  const book = await open({ hash: '#page=2' });
  await word(book, 'story').waitFor();
  await mark(book, 'river', 'town');
  const edge = await book.box('right');
  await book.page.mouse.click(edge.x + edge.width - 30, edge.y + edge.height / 2);
  assert.equal(await selected(book), '');
  await book.page.waitForTimeout(200);
  assert.deepEqual(await book.pages(), [2, 3]);
  await book.page.mouse.click(edge.x + edge.width - 30, edge.y + edge.height / 2);
  await book.waitForPages(4, 5);
  await book.page.mouse.click(40, edge.y + edge.height / 2);
  await book.waitForPages(2, 3);
  await book.drag([edge.x + edge.width - 20, edge.y + edge.height * 0.6], [edge.x - edge.width * 0.8, edge.y + edge.height * 0.6]);
  await book.waitForPages(4, 5);
});

/** What a click or tap does at once: whether the bar changes, and whether a page turns. */
const deeds = async (book, act) => {
  const state = () => book.page.evaluate(() => [document.querySelector('#folvero').dataset.idle, window.folvero.turning]);
  const [before] = await state();
  await act();
  const [after, turning] = await state();
  return { bar: after !== before, turning };
};

test('a double click marks a word and a third click its line, even where the edge turns pages', async () => {
  const book = await open({ hash: '#page=2' });
  await word(book, 'story').waitFor();
  const { x, y, width, height } = await boxOf(book, 'harbour\\.');
  await book.page.mouse.dblclick(x + width - 3, y + height / 2);
  assert.equal(await copied(book), 'harbour');
  await book.page.mouse.click(30, 300);
  const edge = await boxOf(book, 'A');
  const at = [edge.x + 2, edge.y + edge.height / 2];
  assert.deepEqual(await deeds(book, () => book.page.mouse.click(...at)), { bar: true, turning: false });
  await book.page.mouse.dblclick(...at);
  assert.equal(await copied(book), 'A');
  await book.page.mouse.click(...at, { clickCount: 3 });
  assert.equal(await copied(book), 'A river runs below the old town');
  assert.deepEqual(await book.pages(), [2, 3]);
  assert.equal((await book.box('left')).height, (await book.box('right')).height, 'not enlarged');
});

for (const [text, across] of [['A', 2], ['what', 5], ['town', 20]]) {
  test(`on a phone a double tap on "${text}" enlarges it, and one tap waits before it turns`, async () => {
    const book = await open({ view: PHONE, hash: '#page=2', pages: TEXTS.map((texts) => typedPage(texts, { left: 300 + (5000 - 31 * 60) * (text === 'town') })) });
    const { x, y, height } = await boxOf(book, text);
    const { width } = await book.box('right');
    const at = [x + across, y + height / 2];
    await book.doubleTap(...at);
    await book.page.waitForFunction(() => new DOMMatrix(document.querySelector('.book').style.transform).a === 2.5);
    assert.deepEqual(await book.pages(), [2]);
    await book.page.keyboard.press('0');
    await book.page.waitForFunction((whole) => document.querySelector('.page.right').getBoundingClientRect().width === whole, width);
    const edge = text !== 'what';
    assert.deepEqual(await deeds(book, () => book.page.touchscreen.tap(...at)), { bar: !edge, turning: false });
    if (edge) await book.waitForPages(text === 'A' ? 1 : 3);
  });
}

test('on a phone taps beside the words turn at once, each a page', async () => {
  const book = await open({ view: PHONE, hash: '#page=2' });
  const tap = () => book.page.touchscreen.tap(370, 600);
  assert.deepEqual(await deeds(book, tap), { bar: false, turning: true });
  await tap();
  await book.waitForPages(4);
  assert.deepEqual(await deeds(book, () => book.page.touchscreen.tap(310, 600)), { bar: true, turning: false });
});

test('on an enlarged page a drag on words marks them and a drag beside them moves the page', async () => {
  const book = await open({ hash: '#page=2', pages: TEXTS.map((texts) => typedPage(texts, { left: 3600, top: 4000 })) });
  await word(book, 'story').waitFor();
  await book.page.keyboard.press('+');
  await book.page.waitForTimeout(500);
  const before = await boxOf(book, 'river');
  await mark(book, 'river', 'below');
  assert.equal(await copied(book), 'river runs below');
  assert.deepEqual(await boxOf(book, 'river'), before);
  await book.drag([before.x, before.y + 150], [before.x - 80, before.y + 100]);
  const moved = await boxOf(book, 'river');
  assert.ok(before.x - moved.x > 60, `${before.x - moved.x}`);
});

test('a finger that rests on a word marks it and goes on marking, one that swipes over words turns the page', async () => {
  const book = await open({ view: PHONE, hash: '#page=2' });
  const session = await book.page.context().newCDPSession(book.page);
  const touch = (type, ...touchPoints) => session.send('Input.dispatchTouchEvent', { type, touchPoints });
  const [from, to] = [await boxOf(book, 'river'), await boxOf(book, 'old')];
  await touch('touchStart', { x: from.x + 8, y: from.y + 4 });
  await book.page.waitForFunction(() => String(getSelection()).trim() === 'river');
  await touch('touchMove', { x: (from.x + to.x) / 2, y: to.y + 4 });
  await touch('touchMove', { x: to.x + to.width - 0.5, y: to.y + 4 });
  await touch('touchEnd');
  assert.equal(await copied(book), 'river runs below the old');
  await book.page.touchscreen.tap(370, 500);
  await book.page.waitForTimeout(300);
  assert.deepEqual(await book.pages(), [2]);
  await book.swipe([from.x + from.width / 2 + 60, from.y + 4], [from.x - 100, from.y]);
  await book.waitForPages(3);
});

const HEBREW = 'שלום עולם גדול';
test('lines that run from right to left lie where they are read and are marked in their order', async () => {
  const words = HEBREW.split(' ').map((text, index) => [index < 2 ? `${text} ` : text, [1000, 500, 0][index], [500, 400, 400][index]]);
  const mixed = [['שלום ', 1300, 500], ['abc ', 600, 280], ['def ', 900, 280], ['עולם', 0, 400]];
  const page = { size: [6000, 8000], lines: [line([3000, 1000, 1500, 200], words, { rtl: true }), line([3000, 2000, 1800, 200], mixed, { rtl: true })], links: [] };
  const book = await open({ pages: [page, page], change: { language: 'he' } });
  assert.equal(await book.page.locator('.over.right').getAttribute('lang'), 'he');
  assert.equal(await book.page.locator('.line').first().getAttribute('dir'), 'rtl');
  near(await word(book, 'שלום').first().boundingBox(), await placeOf(book, 'right', [4000, 1000, 500, 200]));
  near(await boxOf(book, 'גדול'), await placeOf(book, 'right', [3000, 1000, 400, 200]));
  near(await boxOf(book, 'abc'), await placeOf(book, 'right', [3600, 2000, 280, 200]));
  near(await boxOf(book, 'def'), await placeOf(book, 'right', [3900, 2000, 280, 200]));
  await mark(book, 'גדול', 'גדול', [0.98, 0.02]);
  assert.equal(await copied(book), 'גדול');
  await mark(book, 'גדול', 'גדול', [0.98, 0.5]);
  assert.equal(await copied(book), 'גד');
  const [a, b] = [await word(book, 'שלום').first().boundingBox(), await boxOf(book, 'גדול')];
  await book.drag([a.x + a.width - 1, a.y + 5], [b.x + 1, b.y + 5]);
  assert.equal(await copied(book), HEBREW);
});

test('turned lines lie over their pictures and are marked along their way', async () => {
  const turned = (turn, box) => line(box, [['first ', turn < 180 ? 0 : 1500, 500], ['second', turn < 180 ? 600 : 800, 600]], { turn });
  const page = { size: [6000, 8000], links: [], lines: [turned(90, [500, 1000, 200, 2000]), turned(180, [1500, 4000, 2000, 200]),
    turned(270, [5000, 1000, 200, 2000])] };
  const book = await open({ pages: [page, page] });
  const boxes = await book.page.locator('.over.right .word').all();
  const wanted = [[500, 1000, 200, 500], [500, 1600, 200, 600], [3000, 4000, 500, 200], [2300, 4000, 600, 200], [5000, 2500, 200, 500], [5000, 1800, 200, 600]];
  for (const [index, one] of boxes.entries()) near(await one.boundingBox(), await placeOf(book, 'right', wanted[index]));
  // From the first letter's far side to half of the second word, in the way in which each line runs.
  const middles = [[[600, 1010], [600, 1900]], [[3490, 4100], [2600, 4100]], [[5100, 2990], [5100, 2100]]];
  for (const [from, to] of middles) {
    const [a, b] = await Promise.all([from, to].map(([x, y]) => placeOf(book, 'right', [x, y, 0, 0])));
    await book.drag([a.x, a.y], [b.x, b.y]);
    assert.equal(await copied(book), 'first sec');
  }
});

test('those who hear the book are told the page and its words in their order', async () => {
  const book = await open({ hash: '#page=2', change: { labels: ['', 'iv', 'v', '', '', ''], language: 'en-GB' } });
  await word(book, 'story').waitFor();
  const tree = await book.page.locator('.stage').ariaSnapshot();
  assert.match(tree, /group "Page iv \(2\)"[\s\S]*river[\s\S]*carries[\s\S]*group "Page v \(3\)"[\s\S]*another/);
  assert.equal(await book.page.locator('.over.left').getAttribute('lang'), 'en-GB');
  const rtl = await open({ values: { RightToLeft: 'Yes' }, hash: '#page=2' });
  await word(rtl, 'story').waitFor();
  assert.match(await rtl.page.locator('.stage').ariaSnapshot(), /"Page 2"[\s\S]*"Page 3"/);
});

const LINKED = [
  typedPage(['cover']),
  typedPage(['to the end, please', 'to a page that was left out', 'to https://example.org/'],
    { links: [[0, 0, 10, 6], [1, 0, 9, 0], [2, 3, 20, 'https://example.org/?a=1&b=2']] }),
  typedPage(['mail us', 'a bad one'], { links: [[0, 0, 7, 'mailto:a@example.org'], [1, 0, 9, 'javascript:window.broken=1']] }),
  typedPage(['x']), typedPage(['x']), typedPage(['x']),
];
const link = (book, name) => book.page.getByRole('link', { name });

test('links are followed by click, tap and key, and lead to pages and out of the book', async () => {
  const book = await open({ pages: LINKED, hash: '#page=2' });
  await book.page.context().route('https://example.org/**', (route) => route.fulfill({ body: 'far away' }));
  const out = link(book, 'https://example.org/');
  assert.deepEqual(await out.evaluate(({ target, rel }) => [target, rel]), ['_blank', 'noopener noreferrer']);
  near(await out.boundingBox(), await placeOf(book, 'left', [600 + 180, 1200, 1200, 140]));
  const [popup] = await Promise.all([book.page.context().waitForEvent('page'), out.click()]);
  await popup.waitForURL('https://example.org/?a=1&b=2', { waitUntil: 'commit' });
  assert.equal(await popup.evaluate(() => window.opener), null);
  await popup.close();
  assert.deepEqual(await book.pages(), [2, 3]);
  await link(book, /^to the end/).click();
  await book.waitForPages(6);
  await book.page.evaluate(() => window.folvero.goTo(2));
  await book.waitForPages(2, 3);
  await link(book, /^to the end/).focus();
  await book.page.keyboard.press('Enter');
  await book.waitForPages(6);
  const phone = await open({ pages: LINKED, hash: '#page=2', view: PHONE });
  const opened = [];
  phone.page.context().on('page', (page) => opened.push(page));
  await phone.page.context().route('https://example.org/**', (route) => route.fulfill({ body: 'far away' }));
  await Promise.all([phone.page.context().waitForEvent('page'), link(phone, 'https://example.org/').tap()]);
  await phone.page.bringToFront();
  const box = await link(phone, /^to the end/).boundingBox();
  // A finger is less sure than a mouse.
  await phone.page.touchscreen.tap(box.x + 5, box.y - 7);
  await phone.waitForPages(6);
  assert.equal(opened.length, 1, 'tabs that one tap opened');
});

test('a link that leads nowhere tells so and does nothing', async () => {
  const book = await open({ pages: LINKED, hash: '#page=2' });
  await link(book, /bad one/).waitFor();
  for (const name of [/^to a page/, /bad one/]) {
    const dead = link(book, name);
    assert.deepEqual(await dead.evaluate((one) => [one.getAttribute('aria-disabled'), one.getAttribute('href'), one.tabIndex]), ['true', null, 0]);
    await dead.click({ force: true });
    assert.match(await book.page.locator('.tip').innerText(), /not in this book/);
  }
  assert.deepEqual(await book.pages(), [2, 3]);
  const phone = await open({ pages: LINKED, hash: '#page=2', view: PHONE });
  await link(phone, /^to a page/).tap({ force: true });
  await phone.page.waitForFunction(() => /not in this book/.test(document.querySelector('.tip:not([hidden])')?.textContent));
  assert.deepEqual(await phone.pages(), [2]);
  assert.equal(await book.page.evaluate(() => window.broken), undefined);
  assert.equal(await link(book, /mail us/).getAttribute('href'), 'mailto:a@example.org');
});

test('a drag that begins on a link turns or moves the page and does not follow the link', async () => {
  const pages = [...LINKED];
  pages[1] = typedPage(['to the end, please'], { left: 3600, top: 4000, links: [[0, 0, 10, 6]] });
  const book = await open({ pages, hash: '#page=2' });
  const { x, y, width, height } = await link(book, /^to the end/).boundingBox();
  const right = await book.box('right');
  await book.drag([x + width / 2, y + height / 2], [right.x + right.width - 40, y]);
  await book.waitForPages(1);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  await book.page.keyboard.press('+');
  await book.page.waitForTimeout(500);
  const before = await link(book, /^to the end/).boundingBox();
  await book.drag([before.x + 20, before.y + 4], [before.x + 80, before.y + 44]);
  const after = await link(book, /^to the end/).boundingBox();
  assert.ok(after.x - before.x > 40, `${after.x - before.x}`);
  assert.deepEqual(await book.pages(), [2, 3]);
});

test('links and words are out of reach while a leaf is in the air, and at hand under a lifted corner', async () => {
  const pages = [typedPage(['x']), typedPage(['x']), typedPage(['x', 'below'], { left: 4200, top: 7300, links: [[1, 0, 5, 1]] }), typedPage(['x']), typedPage(['x']), typedPage(['x'])];
  const book = await open({ pages, hash: '#page=2', values: { PageMoveTime: '1' } });
  await link(book, /below/).waitFor();
  const right = await book.box('right');
  const seen = () => book.page.locator('.over.right').evaluate((one) => getComputedStyle(one).visibility);
  await book.page.mouse.move(right.x + right.width - 8, right.y + right.height - 8);
  await book.page.waitForTimeout(500);
  await link(book, /below/).click();
  await book.waitForPages(1);
  await book.page.keyboard.press('ArrowRight');
  assert.equal(await seen(), 'hidden');
  await book.waitForPages(2, 3);
  assert.equal(await seen(), 'visible');
});
