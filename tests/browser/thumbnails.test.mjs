import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(count, { values, thumb, extras, ...options } = {}) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(count), values, thumb, extras }), options);
}

async function openDrawer(book) {
  await book.use('thumbs');
  await drawn(book);
}

/** Waits until all thumbnails in the document are drawn, and have faded in. */
async function drawn(book) {
  await book.page.waitForFunction(() => window.folvero.drawerImages === 0
    && [...document.querySelectorAll('.thumb-picture')].every((one) => one.matches('.drawn, .missing')));
  await book.rest();
}

const marked = (book) => book.page.locator('.thumb[aria-current]').evaluateAll((all) => all
  .map((one) => Number(one.dataset.page)).sort((a, b) => a - b));
const active = (book) => book.page.locator('.strip').evaluate((strip) => Number(document.getElementById(
  strip.getAttribute('aria-activedescendant')).dataset.page));

/** Colour in the middle of the thumbnail of a page. */
async function thumbColour(book, page) {
  const { x, y, width, height } = await book.page.locator(`#thumb-${page} .thumb-picture`).boundingBox();
  return book.colourAt(x + width / 2, y + height / 2);
}

test('thumbnails show the pages and lead to them', async () => {
  const book = await open(9, { values: { ThumbnailsBgColor: '0x4a1530' } });
  await openDrawer(book);
  const ground = await book.page.locator('.drawer').evaluate((one) => getComputedStyle(one, '::before').backgroundColor);
  assert.equal(ground, 'rgb(74, 21, 48)');
  assert.equal(await book.page.locator('[data-does="thumbs"]').getAttribute('aria-expanded'), 'true');
  for (const page of [1, 2, 7]) assert.deepEqual(await thumbColour(book, page), colourOf(page), `page ${page}`);
  assert.deepEqual(await marked(book), [1]);
  await book.page.locator('#thumb-6').click();
  await book.waitForPages(6, 7);
  assert.deepEqual(await marked(book), [6, 7]);
  const phone = await open(9, { view: PHONE });
  await openDrawer(phone);
  await phone.page.locator('#thumb-3').tap();
  await phone.waitForPages(3);
  assert.equal(await phone.page.locator('.drawer').isVisible(), false, 'there it makes room for the page');
});

test('keys walk along the thumbnails, choose one and close them', async () => {
  const book = await open(40);
  await book.page.keyboard.press('t');
  const keys = [['ArrowRight', 2], ['ArrowRight', 3], ['ArrowLeft', 2], ['End', 40], ['ArrowRight', 40], ['Home', 1]];
  for (const [key, page] of keys) {
    await book.page.keyboard.press(key);
    assert.equal(await active(book), page, key);
  }
  assert.deepEqual(await book.pages(), [1], 'the book stays where it is');
  await book.page.keyboard.press('PageDown');
  const further = await active(book);
  const { x, width } = await book.page.locator(`#thumb-${further}`).boundingBox();
  assert.ok(further > 4 && x >= 0 && x + width <= 1280, `a screenful on, page ${further} is scrolled into sight`);
  await book.page.keyboard.press('Enter');
  await book.page.waitForFunction((page) => window.folvero.pages.includes(page), further);
  await book.page.keyboard.press('Escape');
  assert.equal(await book.page.locator('.drawer').isVisible(), false);
  await book.page.keyboard.press('Space');
  await book.page.waitForFunction((page) => window.folvero.page > page, further);
});

test('in the grid keys lead from row to row, and the reader finds it so again', async () => {
  const book = await open(400, { hash: '#page=2' });
  await openDrawer(book);
  await book.page.getByRole('button', { name: 'All pages' }).click();
  await drawn(book);
  const place = async (page) => book.page.locator(`#thumb-${page}`).boundingBox();
  const first = await place(2);
  await book.page.locator('.strip').focus();
  await book.page.keyboard.press('ArrowDown');
  const below = await active(book);
  const second = await place(below);
  assert.ok(below > 8 && second.x === first.x && second.y > first.y, `page ${below} is below page 2`);
  await book.page.keyboard.press('End');
  await drawn(book);
  const { y, height } = await place(400);
  assert.ok(y > 0 && y + height < 800 && await book.page.locator('.thumb').count() < 200);
  assert.deepEqual(await thumbColour(book, 400), colourOf(400));
  await book.page.keyboard.press('Enter');
  await book.waitForPages(400);
  assert.equal(await book.page.locator('.drawer').isVisible(), false, 'it makes room for the page');
  await book.page.keyboard.press('t');
  assert.ok(second.y !== (await place(400)).y && await book.page.locator('.drawer[data-grid="yes"]').isVisible());
});

test('the thumbnails of a book that is read from the right lie from right to left', async () => {
  const book = await open(40, { values: { RightToLeft: 'Yes' } });
  await openDrawer(book);
  const left = async (page) => (await book.page.locator(`#thumb-${page}`).boundingBox()).x;
  assert.ok(await left(1) > await left(2));
  for (const [key, page] of [['ArrowLeft', 2], ['ArrowLeft', 3], ['ArrowRight', 2]]) {
    await book.page.keyboard.press(key);
    assert.equal(await active(book), page, key);
  }
  await book.page.keyboard.press('End');
  assert.ok(await left(40) >= 0 && await left(40) < await left(39));
});

test('the thumbnails of a very long book open at once and never hold many pages', async () => {
  const book = await open(2000, { hash: '#page=1500' });
  await openDrawer(book);
  assert.deepEqual(await marked(book), [1500, 1501]);
  assert.deepEqual(await thumbColour(book, 1500), colourOf(1500));
  for (const key of ['Home', 'End', 'PageUp', 'PageUp']) {
    await book.page.keyboard.press(key);
    const shown = await book.page.locator('.thumb').count();
    assert.ok(shown > 4 && shown < 60, `${shown} thumbnails in the document`);
  }
  await drawn(book);
  const page = await active(book);
  assert.deepEqual(await thumbColour(book, page), colourOf(page));
  await book.page.keyboard.press('Enter');
  await book.page.waitForFunction((wanted) => !window.folvero.turning && window.folvero.pages.includes(wanted), page);
  const kept = await book.page.evaluate(() => window.folvero.imagesKept + window.folvero.drawerImages);
  assert.ok(kept > 1 && kept <= 12, `${kept} page images`);
});

const small = png(30, 20, () => [1, 200, 99]);
test('Thumb names the picture of a thumbnail and its size; one that cannot be had is made from the page', async () => {
  const thumbs = [['extfiles/small.png', [1, 200, 99]], ['extfiles/missing.png', colourOf(2)], ['', colourOf(2)]];
  for (const [path, colour] of thumbs) {
    const book = await open(3, { thumb: { path, width: 90, height: 60 }, extras: { 'extfiles/small.png': small } });
    await openDrawer(book);
    assert.deepEqual(await thumbColour(book, 2), colour, path);
    const { width, height } = await book.page.locator('#thumb-2 .thumb-picture').boundingBox();
    assert.deepEqual([width, height], [90, 60]);
  }
});
