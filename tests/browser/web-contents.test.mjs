import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const OUTLINE = [
  ['Preface', 1, []], ['First part', 3, [['River', 4, [['Deep water', 5, []]]], ['Harbour', 7, []]]],
  ['Second part', 0, [['Return', 9, []]]], ['Nothing', 0, []],
];
const LABELS = ['i', 'ii', 'A-3', '1', '2', '3', '4', '5', '6', '7', '8', ''];

async function open({ change = {}, disk = false, values, ...options } = {}) {
  const description = { pages: Array(12).fill(typedPage(['text'])), outline: OUTLINE, ...change };
  const folder = await reader.webBook({ pages: plainPages(12), values, description });
  return disk ? reader.openFromDisk(folder, options) : reader.openOverHttp(folder, options);
}

/** Enough entries to be folded at first. */
const long = (count) => [...OUTLINE, ...Array.from({ length: count }, (_, index) => [`Further ${index}`, 12, []])];
const panel = (book) => book.page.locator('.contents-side');
const entry = (book, title) => book.page.locator('.tree-row', { hasText: title });
const focused = (book) => book.page.evaluate(() => {
  const { activeElement: one } = document;
  return one.querySelector('.tree-title')?.textContent ?? one.dataset.does;
});
const press = async (book, ...keys) => { for (const key of keys) await book.page.keyboard.press(key); };
const shown = (book) => book.page.locator('.tree-row')
  .evaluateAll((rows) => rows.filter((row) => row.getClientRects().length)
  .map((row) => row.querySelector('.tree-title').textContent));
const current = (book) => book.page.locator('.tree-row.current .tree-title').innerText();

test('the contents lie beside the book, lead to its pages and mark where the reader is', async () => {
  const book = await open({ hash: '#page=4', disk: true });
  const alone = await book.box('left');
  await book.use('contents');
  const side = await panel(book).boundingBox();
  assert.ok((await book.box('left')).x > side.x + side.width, 'the book makes room');
  assert.equal(await current(book), 'Deep water');
  const said = book.page.getByRole('treeitem', { name: /^Deep water ?, Page 5$/ });
  assert.ok(await said.and(book.page.locator('[aria-current="page"]')).isVisible());
  await entry(book, 'Return').click();
  await book.waitForPages(8, 9);
  assert.equal(await current(book), 'Return');
  await press(book, 'Escape');
  assert.equal(await panel(book).isVisible(), false);
  assert.equal(await book.page.locator('[data-does="contents"]').getAttribute('aria-expanded'), 'false');
  assert.equal((await book.box('left')).x, alone.x);
  // Who has clicked on its button reads on by Space; who has come to it by key finds the focus there again.
  await press(book, 'Space');
  await book.waitForPages(10, 11);
  assert.equal(await panel(book).isVisible(), false);
  await book.use('contents');
  await book.use('contents');
  await press(book, 'Space');
  await book.waitForPages(12);
  await book.use('contents', 'focus');
  await press(book, 'Enter', 'Escape');
  assert.equal(await focused(book), 'contents');
  assert.deepEqual(book.errors, []);
});

test('controls of a language from right to left are mirrored, what turns pages is not', async () => {
  const book = await open({ hash: '#page=4', before: (page) => page.addInitScript(() => {
    Object.defineProperty(navigator, 'languages', { get: () => ['ar', 'en'] });
  }) });
  const at = (selector) => book.page.locator(selector).evaluate((one) => one.getBoundingClientRect().x);
  assert.equal(await book.page.locator('html').getAttribute('dir'), 'rtl');
  await book.use('contents');
  const side = await panel(book).boundingBox();
  const pages = await book.box('right');
  assert.ok(side.x > 700 && pages.x + pages.width < side.x, 'the book makes room at the left of the panel');
  assert.ok(await at('[data-does="help"]') < await at('[data-does="contents"]'));
  for (const place of ['.bar >', '.arrow']) {
    assert.ok(await at(`${place}[data-turn="left"]`) < await at(`${place}[data-turn="right"]`), place);
  }
  await book.page.locator('.arrow.right').click();
  await book.waitForPages(6, 7);
  // As a keyboard with Arabic letters sends it.
  await book.page.evaluate(() => window.dispatchEvent(new KeyboardEvent('keydown', { key: '\u0624', code: 'KeyC', bubbles: true })));
  assert.equal(await panel(book).isVisible(), false);
  assert.deepEqual(book.errors, []);
});

test('a book opens where and as its document asks, with its panel at a desk only', async () => {
  for (const [asked, selector, view, hash, pages] of [
    ['contents', '.contents-side', undefined, '', [4, 5]], ['thumbs', '.drawer', undefined, '', [4, 5]],
    ['contents', '.contents-side', PHONE, '', [5]], ['thumbs', '.drawer', PHONE, '#page=7', [7]]]) {
    const book = await open({ change: { start: 5, panel: asked }, view, hash });
    assert.deepEqual(await book.pages(), pages);
    assert.equal(await book.page.locator(selector).isVisible(), !view, asked);
    await press(book, 'ArrowRight');
    await book.waitForPages(...pages.map((page) => page + pages.length));
    await book.page.evaluate(() => window.history.replaceState(null, '', window.location.pathname));
    await book.page.reload();
    await book.page.waitForSelector('#folvero[data-state="ready"]');
    assert.equal(await book.page.evaluate(() => window.folvero.page), pages[0] + pages.length, 'where the reader was');
    assert.deepEqual(book.errors, []);
  }
  const playing = await open({ change: { panel: 'contents' }, values: { AutoPlay: 'Yes' } });
  assert.equal(await panel(playing).isVisible(), false, 'a book that plays by itself');
});

test('long contents are folded but for the reader\'s place and used by key as trees are', async () => {
  const book = await open({ hash: '#page=7', change: { outline: long(60) } });
  await press(book, 'c');
  await book.page.waitForSelector('.tree-row');
  assert.deepEqual((await shown(book)).slice(0, 5), ['Preface', 'First part', 'River', 'Harbour', 'Second part']);
  assert.equal(await focused(book), 'Harbour');
  await entry(book, 'First part').locator('.tree-sign').click();
  assert.deepEqual((await shown(book)).slice(0, 3), ['Preface', 'First part', 'Second part']);
  assert.equal(await book.page.locator('.tree-row.within .tree-title').innerText(), 'First part');
  assert.deepEqual(await book.pages(), [6, 7], 'a sign leads nowhere');
  const steps = [
    [['ArrowRight', 'ArrowRight'], 'River'], [['ArrowRight', 'ArrowDown'], 'Deep water'], [['ArrowLeft'], 'River'],
    [['ArrowLeft', 'ArrowLeft'], 'First part'], [['End'], 'Further 59'], [['ArrowDown'], 'Further 59'],
    [['Home'], 'Preface'], [['s', 'e'], 'Second part'], [['ArrowUp'], 'Harbour'],
    [['Home', 'f', 'u', 'r'], 'Further 0'],
  ];
  for (const [keys, title] of steps) {
    await press(book, ...keys);
    assert.equal(await focused(book), title, keys.join());
  }
  assert.ok(await panel(book).evaluate((one) => {
    const { top, bottom } = document.activeElement.getBoundingClientRect();
    const box = one.getBoundingClientRect();
    return top >= box.top && bottom <= box.bottom;
  }), 'it is scrolled into sight');
  assert.equal(await book.page.locator('.tree [tabindex="0"]').count(), 1);
  assert.equal(await entry(book, 'Nothing').getAttribute('aria-disabled'), 'true');
  await press(book, 'Home', 'ArrowDown', 'Enter');
  await book.waitForPages(2, 3);
  await press(book, 't', 'PageDown', ' ');
  assert.deepEqual(await book.pages(), [2, 3]);
  assert.equal(await book.page.locator('.drawer').isVisible(), false);
});

test('on a phone the contents take the whole window and go when an entry is chosen', async () => {
  const book = await open({ view: PHONE, change: { textPage: 'text.html' } });
  await book.use('contents', 'tap');
  await book.rest();
  assert.deepEqual(await panel(book).boundingBox(), { x: 0, y: 0, ...PHONE.viewport });
  assert.equal(await panel(book).locator('.side-link').getAttribute('href'), 'text.html#page-1');
  await entry(book, 'Harbour').tap();
  await book.waitForPages(7);
  assert.equal(await panel(book).isVisible(), false);
  await book.use('contents', 'tap');
  await panel(book).locator('.side-close').tap();
  assert.equal(await panel(book).isVisible(), false);
});

test('a panel follows the window from a desk to a phone and back', async () => {
  const book = await open();
  await press(book, 'c');
  for (const [width, expected] of [[899, 'over'], [599, 'sheet'], [900, 'beside']]) {
    await book.page.setViewportSize({ width, height: 800 });
    await book.page.waitForSelector(`#folvero[data-panel="${expected}"]`);
    assert.equal(await focused(book), 'Preface');
  }
  assert.deepEqual(book.errors, []);
});

test('buttons are in the bar and the help, only where they lead somewhere', async () => {
  const book = await open();
  await book.use('contents', 'hover');
  assert.equal(await book.page.locator('.tip').innerText(), 'Contents\nC');
  await press(book, '?');
  assert.match(await book.page.locator('.letters').innerText(), /C\s+Contents\s+\/\s+Search/);
  const plain = await open({ change: { outline: [],
    pages: Array(12).fill({ size: [6000, 8000], lines: [], links: [] }) } });
  assert.equal(await plain.page.locator('[data-does="contents"], [data-does="search"]').count(), 0);
  await press(plain, 'c', '/');
  assert.deepEqual(plain.errors, []);
});

test('pages are called by their labels in the page box, the panels and what is announced', async () => {
  const book = await open({ change: { labels: LABELS }, hash: '#page=2' });
  const box = book.page.locator('.page-box');
  assert.equal(await box.inputValue(), 'ii\u2013A-3');
  assert.match(await book.page.locator('.of').innerText(), /\(2\u20133\s*\/\s*12\)/);
  assert.equal(await book.page.locator('.live').textContent(), 'Pages ii (2) and A-3 (3) of 12');
  await press(book, 't');
  await book.page.getByLabel('Page A-3 (3)').getByText('A-3').waitFor();
  await press(book, 'Escape', 'c');
  assert.equal(await entry(book, 'River').locator('.tree-page').innerText(), '1');
  await press(book, 'Escape', 'p');
  const printing = book.page.locator('.print-panel');
  assert.equal(await printing.locator('.these-count').innerText(), 'ii \u2013 A-3');
  await printing.locator('.to').fill('1');
  await book.page.evaluate(() => { window.print = () => {}; });
  await printing.locator('.main-button').click();
  await book.page.waitForSelector('.sheet img', { state: 'attached' });
  assert.equal(await book.page.locator('.sheet img').count(), 3, 'ii, A-3 and 1');
  await press(book, 'g', ...'8', 'Enter');
  await book.waitForPages(10, 11);
  const name = await box.inputValue();
  await press(book, 'g', ...'abc', 'Enter');
  assert.equal(await box.inputValue(), name, 'what is no page is put back');
});

test('Back leads to where readers jumped from, and turns make no entries', async () => {
  const pages = Array(12).fill(typedPage(['text'], { links: [[0, 0, 4, 6]] }));
  const book = await open({ disk: true, change: { pages }, before: (page) => page.goto('data:text/html,before') });
  const at = (page) => book.page.waitForFunction((wanted) => !window.folvero.turning && window.folvero.page === wanted
    && (window.location.hash || '#page=1') === `#page=${wanted}`, page);
  const jumps = [
    [2, () => press(book, 'ArrowRight')], [6, () => book.page.locator('.page-link').first().click()],
    [4, () => press(book, 'c').then(() => entry(book, 'River').click())],
    [8, () => press(book, 'Escape', 'g', '8', 'Enter', 'g', '8', 'Enter')],
    [1, () => press(book, 'Escape', 'Home')],
  ];
  for (const [page, jump] of jumps) {
    await jump();
    await at(page);
  }
  for (const page of [8, 4, 6, 2]) {
    await book.page.goBack();
    await at(page);
  }
  await book.page.goForward();
  await at(6);
  for (let step = 0; step < 2; step += 1) await book.page.goBack();
  assert.equal(book.page.url(), 'data:text/html,before');
  assert.deepEqual(book.errors, []);
});

test('on a phone Back closes what lies over the book, and a chip leads back after a jump', async () => {
  const book = await open({ change: { labels: LABELS }, view: PHONE, hash: '#page=2', before: (page) => page.goto('data:text/html,before') });
  const { page } = book;
  const back = page.locator('.back');
  const closed = () => page.waitForFunction(() => !document.querySelector('dialog[open], .drawer:not([hidden])'));
  const over = [['contents'], ['thumbs'], ['more'], ['more', '.entry:has-text("Help")']];
  for (const [name, entryIn] of over) {
    await book.use(name, 'tap');
    if (entryIn) await page.locator(entryIn).tap();
    await page.waitForFunction(() => window.history.state);
    await page.goBack();
    await closed();
  }
  await book.use('contents', 'tap');
  await page.locator('.contents-side .side-close').tap();
  await page.waitForFunction(() => !window.history.state);
  await book.use('contents', 'tap');
  await entry(book, 'River').tap();
  await book.waitForPages(4);
  await closed();
  assert.equal(await back.innerText(), 'Back to ii');
  await back.tap();
  await book.waitForPages(2);
  assert.equal(await back.isVisible(), false);
  await page.goBack();
  assert.equal(page.url(), 'data:text/html,before', 'no panel has left an entry');
  assert.deepEqual(book.errors, []);
});

test('Back in the middle of a jump turns back, and a book in a frame leaves the page around it alone', async () => {
  const book = await open({ values: { PageMoveTime: '1' }, hash: '#page=4' });
  await press(book, 'End');
  await book.page.goBack();
  await book.waitForPages(4, 5);
  assert.match(book.page.url(), /#page=4$/);
  const around = `${book.server.address}around`;
  await book.page.route(around,
    (route) => route.fulfill({ contentType: 'text/html', body: '<iframe src="/#page=2" width="900" height="600">' }));
  await book.page.goto(around);
  const frame = book.page.frames()[1];
  await frame.waitForSelector('#folvero[data-state="ready"]');
  await frame.locator('.page-box').fill('5');
  await frame.locator('.page-box').press('Enter');
  await frame.waitForFunction(() => !window.folvero.turning && window.folvero.page === 4);
  await book.page.evaluate(() => window.history.back());
  await frame.waitForFunction(() => !window.folvero.turning && window.folvero.page === 2);
  assert.equal(book.page.url(), around);
});
