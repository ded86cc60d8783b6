import assert from 'node:assert/strict';
import { rm } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(values, options = {}) {
  const folder = await reader.book({ pages: plainPages(options.count ?? 6), values, declaredSize: options.declaredSize });
  return reader.openFromDisk(folder, options);
}

/** Opens a book whose time stands still, so that what takes time can be watched at any moment. */
async function openStill(values, options = {}) {
  const book = await open(values, { ...options, before: (page) => page.clock.install({ time: 1000 }) });
  await book.page.clock.pauseAt(61000);
  return book;
}

const turning = (book) => book.page.evaluate(() => window.folvero.turning);
const shown = (book) => book.page.evaluate(() => window.folvero.pages);

test('Top, Bottom, Left and Right frame the inner background with the outer one', async () => {
  const book = await open({ Top: '40', Bottom: '50', Left: '60', Right: '70',
    OuterGradiantColorA: '0x112233', OuterGradiantColorB: '0x112233' });
  const box = await book.page.locator('.inner').boundingBox();
  assert.deepEqual(box, { x: 60, y: 40, width: 1280 - 130, height: 800 - 90 });
  assert.deepEqual(await book.colourAt(20, 400), [0x11, 0x22, 0x33]);
});

test('FlashWindowsColor colours the bar, with signs that can be read', async () => {
  const look = (book) => book.page.locator('.bar').evaluate((bar) => [
    getComputedStyle(bar, '::before').backgroundColor, getComputedStyle(bar).color]);
  assert.deepEqual(await look(await open({ FlashWindowsColor: '0x102030' })), ['rgb(16, 32, 48)', 'rgb(255, 255, 255)']);
  assert.deepEqual(await look(await open({ FlashWindowsColor: '0xffeecc' })), ['rgb(255, 238, 204)', 'rgb(20, 24, 29)']);
});

test('HidePageFrameBar leaves bar and arrows out, and keys still turn', async () => {
  for (const [text, hidden] of [['show', true], ['No', false]]) {
    const book = await open({ HidePageFrameBar: text });
    await book.page.keyboard.press('Shift');
    assert.equal(await book.page.locator('.bar').isVisible(), !hidden, text);
    assert.equal(await book.page.locator('.arrow.right').isVisible(), !hidden, text);
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(2, 3);
  }
});

const captions = [
  ['Spring <2026> & more', 'Spring <2026> & more', null],
  ['HTTP://example.org/a', 'example.org/a', 'HTTP://example.org/a'],
  ['mailto:books@example.org', 'books@example.org', 'mailto:books@example.org'],
  ['tel:+49 30 1234', '+49 30 1234', 'tel:+49 30 1234'],
  ['Tel: ask at the desk', 'Tel: ask at the desk', null],
  ['See https://example.org', 'See https://example.org', null],
];
test('TutorialTitle is the caption: text, and a link when it is an address of the web, for mail or of a telephone', async () => {
  for (const [text, words, address] of captions) {
    const book = await open({ TutorialTitle: text });
    const caption = book.page.locator('.caption');
    assert.equal(await caption.innerText(), words);
    assert.deepEqual(await caption.locator('*').evaluateAll((all) => all.map((one) => one.getAttribute('href'))),
      address ? [address] : []);
    await reader.closeBooks();
  }
});

test('PageBackgroundColor is the paper around a picture of another shape', async () => {
  const pages = [...plainPages(1), ...plainPages(2, 160, 80)];
  const book = await reader.openFromDisk(await reader.book({ pages, values: { PageBackgroundColor: '0x336699' } }),
    { hash: '#page=3' });
  const half = await book.box('right');
  assert.deepEqual(await book.colourAt(half.x + half.width - 9, half.y + 9), [0x33, 0x66, 0x99]);
});

const entrances = [['None', 0], ['Fade in', 1], ['Rise', 1], ['Drop', 1], ['something else', 0]];
test('InitialShow says how the book comes in', async () => {
  const ways = new Set();
  for (const [way, moving] of entrances) {
    const book = await open({ InitialShow: way }, { before: (page) => page.addInitScript(() => {
      window.entrances = [];
      const { animate } = Element.prototype;
      Element.prototype.animate = function noted(frames, ...rest) {
        if (this.matches('.book')) window.entrances.push(JSON.stringify(frames));
        return animate.call(this, frames, ...rest);
      };
    }) });
    const seen = await book.page.evaluate(() => window.entrances);
    assert.equal(seen.length, moving, way);
    if (moving) ways.add(seen[0]);
    await reader.closeBooks();
  }
  assert.equal(ways.size, 3, 'three different ways');
});

test('PageMoveTime is how long a turn takes', async () => {
  for (const seconds of [0.3, 1.2]) {
    const book = await openStill({ PageMoveTime: String(seconds) });
    await book.page.keyboard.press('ArrowRight');
    await book.page.clock.runFor(seconds * 800);
    assert.equal(await turning(book), true, `before ${seconds} s`);
    await book.page.clock.runFor(seconds * 400);
    assert.equal(await turning(book), false, `after ${seconds} s`);
    assert.deepEqual(await shown(book), [2, 3]);
    await reader.closeBooks();
  }
});

test('PageRiseOrFallTime is how long a page takes that is let go to fall back', async () => {
  for (const [seconds, falling] of [[0.1, false], [4, true]]) {
    const book = await openStill({ PageRiseOrFallTime: String(seconds) }, { hash: '#page=2' });
    const { x, y, width, height } = await book.box('right');
    const edge = [x + width - 4, y + height * 0.5];
    await book.page.mouse.move(...edge);
    await book.page.mouse.down();
    for (const way of [20, 60, 100]) await book.page.mouse.move(edge[0] - way, edge[1]);
    await book.page.clock.runFor(500);
    await book.page.mouse.move(edge[0] - 101, edge[1]);
    await book.page.mouse.up();
    await book.page.clock.runFor(500);
    assert.equal(await turning(book), falling, `${seconds} s`);
    await book.page.clock.runFor(1500);
    assert.equal(await turning(book), false);
    assert.deepEqual(await shown(book), [2, 3], 'back where it was');
    await reader.closeBooks();
  }
});

// The interval is longer than what passes before time stands still.
test('AutoPlay turns from the start, every SlideInterval, and LoopPlay begins again', async () => {
  const book = await openStill({ AutoPlay: 'Yes', SlideInterval: '100', LoopPlay: 'Yes' }, { count: 4 });
  const views = [];
  for (let turn = 0; turn < 4; turn += 1) {
    views.push(await shown(book));
    await book.page.clock.runFor(100500);
  }
  assert.deepEqual(views, [[1], [2, 3], [4], [1]]);
});

test('without LoopPlay the last page is the end', async () => {
  const book = await openStill({ AutoPlay: 'Yes', SlideInterval: '1', LoopPlay: 'No' }, { count: 4 });
  await book.page.clock.runFor(9000);
  assert.deepEqual(await shown(book), [4]);
  assert.equal(await book.page.locator('.bar [data-does="play"]').getAttribute('aria-pressed'), 'false');
});

test('without AutoPlay nothing turns', async () => {
  const book = await openStill({ AutoPlay: 'No', SlideInterval: '1' });
  await book.page.clock.runFor(9000);
  assert.deepEqual(await shown(book), [1]);
});

test('RightToLeft begins the book at the right', async () => {
  const book = await open({ RightToLeft: 'Yes' });
  assert.ok(await book.box('left'), 'the cover lies at the left of the spine');
  await book.page.keyboard.press('ArrowLeft');
  await book.waitForPages(2, 3);
  assert.match((await book.picture('right')).source, /2\.jpg$/);
});

test('Width and Height under Normal are the shape of a page until a picture is there', async () => {
  const folder = await reader.book({ pages: plainPages(2), declaredSize: [300, 100] });
  await rm(path.join(folder, 'files/page/1.jpg'));
  const { width, height } = await (await reader.openFromDisk(folder)).box('right');
  assert.ok(Math.abs(width / height - 3) < 0.05, `${width} by ${height}`);
});
