import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const OUTLINE = [
  ['Preface', 1, []],
  ['First part', 3, [['River', 4, [['Deep water', 5, []]]], ['Harbour', 7, []]]],
  ['Second part', 0, [['Return', 9, []]]],
  ['Nothing', 0, []],
];
const LABELS = ['i', 'ii', 'A-3', '1', '2', '3', '4', '5', '6', '7', '8', ''];

async function open({ count = 12, change = {}, disk = false, values, ...options } = {}) {
  const description = { pages: Array.from({ length: count }, () => typedPage(['text'])), outline: OUTLINE, ...change };
  const folder = await reader.webBook({ pages: plainPages(count), values, description });
  return disk ? reader.openFromDisk(folder, options) : reader.openOverHttp(folder, options);
}

/** Enough entries to be folded at first. */
const long = (count) => [...OUTLINE, ...Array.from({ length: count }, (_, index) => [`Further ${index}`, 12, []])];
const panel = (book) => book.page.locator('.contents-side');
const entry = (book, title) => book.page.locator('.tree-row', { hasText: title });
const focused = (book) => book.page.evaluate(() => document.activeElement.querySelector('.tree-title')?.textContent ?? document.activeElement.dataset.does);
const press = async (book, ...keys) => { for (const key of keys) await book.page.keyboard.press(key); };
const shown = (book) => book.page.locator('.tree-row').evaluateAll((rows) => rows.filter((row) => row.getClientRects().length)
  .map((row) => row.querySelector('.tree-title').textContent));
const current = (book) => book.page.locator('.tree-row.current .tree-title').innerText();

test('the contents lie beside the book, lead to its pages and mark where the reader is', async () => {
  const book = await open({ hash: '#page=4', disk: true });
  const alone = await book.box('left');
  await book.use('contents');
  const side = await panel(book).boundingBox();
  assert.ok((await book.box('left')).x > side.x + side.width, 'the book makes room');
  assert.equal(await current(book), 'Deep water');
  assert.ok(await book.page.getByRole('treeitem', { name: /^Deep water ?, Page 5$/ }).and(book.page.locator('[aria-current="page"]')).isVisible());
  await entry(book, 'Return').click();
  await book.waitForPages(8, 9);
  assert.equal(await current(book), 'Return');
  await press(book, 'Escape');
  assert.equal(await panel(book).isVisible(), false);
  assert.equal(await focused(book), 'contents');
  await press(book, 'Home');
  await book.waitForPages(1);
  await press(book, 'ArrowRight', 'c');
  await book.waitForPages(2, 3);
  assert.equal(await current(book), 'First part');
  await press(book, 'Escape');
  assert.equal((await book.box('left')).x, alone.x);
  assert.deepEqual(book.errors, []);
});

test('long contents are folded but for the reader\'s place; a folded branch tells that it is there', async () => {
  const book = await open({ hash: '#page=7', change: { outline: long(60) } });
  await press(book, 'c');
  assert.deepEqual((await shown(book)).slice(0, 6), ['Preface', 'First part', 'River', 'Harbour', 'Second part', 'Nothing']);
  assert.equal(await focused(book), 'Harbour');
  await book.page.locator('.tree-row', { hasText: 'First part' }).locator('.tree-sign').click();
  assert.deepEqual((await shown(book)).slice(0, 3), ['Preface', 'First part', 'Second part']);
  assert.equal(await book.page.locator('.tree-row.within .tree-title').innerText(), 'First part');
  assert.deepEqual(await book.pages(), [6, 7]);
});

test('the contents are used by key as trees are', async () => {
  const book = await open({ change: { outline: long(60) } });
  await press(book, 'c');
  const steps = [
    [['ArrowDown'], 'First part'], [['ArrowRight', 'ArrowRight'], 'River'], [['ArrowRight', 'ArrowDown'], 'Deep water'],
    [['ArrowLeft'], 'River'], [['ArrowLeft', 'ArrowLeft'], 'First part'], [['End'], 'Further 59'], [['Home'], 'Preface'],
    [['s'], 'Second part'], [['ArrowUp'], 'Harbour'], [['Home'], 'Preface'],
  ];
  for (const [keys, title] of steps) {
    await press(book, ...keys);
    assert.equal(await focused(book), title, keys.join());
  }
  await book.page.waitForTimeout(800);
  await press(book, 'f', 'u', 'r');
  assert.equal(await focused(book), 'Further 0');
  assert.ok(await panel(book).evaluate((one) => {
    const { top, bottom } = document.activeElement.getBoundingClientRect();
    const box = one.getBoundingClientRect();
    return top >= box.top && bottom <= box.bottom;
  }), 'it is scrolled into sight');
  assert.equal(await book.page.locator('.tree [tabindex="0"]').count(), 1);
  await press(book, 'Home', 'ArrowDown', 'Enter');
  await book.waitForPages(2, 3);
  assert.deepEqual(await book.page.locator('.tree-row', { hasText: 'Nothing' }).evaluateAll((all) => all.map((one) => one.getAttribute('aria-disabled'))), ['true']);
  // What is typed in the panel turns no page and opens nothing.
  await press(book, 't', 'PageDown', ' ');
  assert.deepEqual(await book.pages(), [2, 3]);
  assert.equal(await book.page.locator('.drawer').isVisible(), false);
});

test('on a phone the contents take the whole window and go when an entry is chosen', async () => {
  const book = await open({ view: PHONE, change: { textPage: 'text.html' } });
  await book.use('contents', 'tap');
  await book.rest();
  const { x, y, width, height } = await panel(book).boundingBox();
  assert.deepEqual([x, y, width, height], [0, 0, 390, 844]);
  assert.equal(await panel(book).locator('.side-link').getAttribute('href'), 'text.html');
  for (const size of await book.page.locator('.tree-row, .side-button, .side-link').evaluateAll((all) => all.filter((one) => one.offsetHeight).map((one) => one.offsetHeight))) {
    assert.ok(size >= 44, `${size}`);
  }
  await entry(book, 'Harbour').tap();
  await book.waitForPages(7);
  assert.equal(await panel(book).isVisible(), false);
  await book.use('contents', 'tap');
  await panel(book).locator('.side-close').tap();
  assert.equal(await focused(book), 'contents');
});

test('a panel follows the window from a desk to a phone and back', async () => {
  const book = await open();
  await press(book, 'c');
  const way = () => book.page.locator('#folvero').getAttribute('data-panel');
  for (const [width, expected] of [[700, 'over'], [400, 'sheet'], [1200, 'beside']]) {
    await book.page.setViewportSize({ width, height: 800 });
    await book.page.waitForFunction((wanted) => document.getElementById('folvero').dataset.panel === wanted, expected);
    assert.equal(await way(), expected);
    assert.equal(await focused(book), 'Preface');
  }
  assert.deepEqual(book.errors, []);
});

test('the new buttons are in the bar, its menu and the help, and only where there is something behind them', async () => {
  const book = await open();
  await book.use('contents', 'hover');
  assert.equal(await book.page.locator('.tip').innerText(), 'Contents\nC');
  await press(book, '?');
  assert.match(await book.page.locator('.letters').innerText(), /C\s+Contents\s+\/\s+Search/);
  const small = await open({ view: { ...PHONE, viewport: { width: 280, height: 600 } } });
  await small.use('more', 'tap');
  await small.page.locator('.entry', { hasText: 'Contents' }).tap();
  assert.ok(await panel(small).isVisible());
  const plain = await open({ change: { outline: [], pages: Array.from({ length: 4 }, () => ({ size: [6000, 8000], lines: [], links: [] })) }, count: 4 });
  assert.equal(await plain.page.locator('[data-does="contents"], [data-does="search"]').count(), 0);
  await press(plain, 'c', '/');
  assert.deepEqual(plain.errors, []);
});

test('readers are told in their own language', async () => {
  const folder = await reader.webBook({ pages: plainPages(6), description: { pages: Array.from({ length: 6 }, () => typedPage(['x'])), outline: OUTLINE, open: [[1, 2]] } });
  const words = [['de', 'Inhalt', 'Suchen', /Leseprobe/], ['fr', 'Sommaire', 'Rechercher', /extrait/], ['es', 'Índice', 'Buscar', /muestra/],
    ['it', 'Indice', 'Cerca', /anteprima/], ['nl', 'Inhoud', 'Zoeken', /fragment/], ['pt', 'Sumário', 'Pesquisar', /amostra/]];
  for (const [tag, contents, search, closed] of words) {
    const book = await reader.openFromDisk(folder, { hash: '#page=4', before: (page) => page.addInitScript((one) => {
      Object.defineProperty(navigator, 'languages', { get: () => [one] });
    }, tag) });
    const names = await book.page.locator('[data-does="contents"], [data-does="search"]').evaluateAll((all) => all.map((one) => one.ariaLabel));
    assert.deepEqual(names, [contents, search]);
    assert.match(await book.page.locator('.over.left').getAttribute('aria-label'), closed);
    await reader.closeBooks();
  }
});

test('pages are called and found by their labels, in the page box, the contents, the thumbnails and what is announced', async () => {
  const book = await open({ change: { labels: LABELS }, hash: '#page=2' });
  const box = book.page.locator('.page-box');
  assert.equal(await box.inputValue(), 'ii\u2013A-3');
  assert.equal(await book.page.locator('.of').innerText().then((text) => text.replace(/\s+/g, ' ')), '(2\u20133 / 12)');
  assert.equal(await book.page.locator('.live').textContent(), 'Pages ii (2) and A-3 (3) of 12');
  await press(book, 't');
  await book.page.waitForSelector('.thumb[data-page="3"]');
  assert.equal(await book.page.locator('.thumb[data-page="3"]').innerText(), 'A-3');
  assert.equal(await book.page.locator('.thumb[data-page="3"]').getAttribute('aria-label'), 'Page A-3 (3)');
  await press(book, 'Escape', 'c');
  assert.equal(await entry(book, 'River').locator('.tree-page').innerText(), '1');
  await press(book, 'Escape', 'End');
  await book.waitForPages(12);
  assert.equal(await box.inputValue(), '12');
  // A label that is typed goes before a position, and positions work where no label fits.
  const typed = [['a-3', [2, 3]], ['1', [4, 5]], ['8', [10, 11]], ['II', [2, 3]], ['10', [10, 11]], ['ii\u2013A-3', [2, 3]], ['12', [12]], ['4', [6, 7]],
    ['0', [6, 7]], ['13', [6, 7]], ['iv', [6, 7]], ['constructor', [6, 7]]];
  for (const [text, pages] of typed) {
    await press(book, 'g');
    await book.page.keyboard.type(text);
    await press(book, 'Enter', 'Escape');
    await book.waitForPages(...pages);
  }
});

for (const [name, options] of Object.entries({ 'over http': {}, 'from disk': { disk: true }, 'on a phone': { view: PHONE } })) {
  test(`Back leads to where readers jumped from, and turns make no entries, ${name}`, async () => {
    const pages = Array.from({ length: 12 }, () => typedPage(['text'], { links: [[0, 0, 4, 6]] }));
    const book = await open({ ...options, change: { pages }, before: (page) => page.goto('data:text/html,before') });
    const at = (page) => book.page.waitForFunction((wanted) => !window.folvero.turning && window.folvero.page === wanted
      && (window.location.hash || '#page=1') === `#page=${wanted}`, page);
    await press(book, 'ArrowRight');
    await at(2);
    await book.page.locator('.page-link').first().click();
    await at(6);
    await press(book, 'c');
    await entry(book, 'River').click();
    await at(4);
    for (const key of ['Escape', 'g', '8', 'Enter', 'g', '8', 'Enter', 't']) await press(book, key);
    await at(8);
    await book.page.locator('.thumb[data-page="10"]').click();
    await at(10);
    await press(book, 'Escape', '/', 't', 'e', 'x', 't');
    await book.page.waitForSelector('.result');
    await press(book, 'ArrowDown', 'End', 'Enter');
    await at(12);
    await press(book, 'Escape', 'Home');
    await at(1);
    for (const page of [12, 10, 8, 4, 6, 2]) {
      await book.page.goBack();
      await at(page);
    }
    await book.page.goForward();
    await at(6);
    await book.page.goBack();
    await at(2);
    await book.page.goBack();
    assert.equal(book.page.url(), 'data:text/html,before');
    assert.deepEqual(book.errors, []);
  });
}

test('Back in the middle of a jump turns back, and a book in a frame leaves the page around it alone', async () => {
  const book = await open({ values: { PageMoveTime: '1' }, hash: '#page=4' });
  await press(book, 'End');
  await book.page.goBack();
  await book.waitForPages(4, 5);
  assert.match(book.page.url(), /#page=4$/);
  const around = `${book.server.address}around`;
  await book.page.route(around, (route) => route.fulfill({ contentType: 'text/html', body: '<iframe src="/#page=2" width="900" height="600">' }));
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
