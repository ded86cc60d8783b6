import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

const near = (actual, wanted, by, what) =>
  assert.ok(Math.abs(actual - wanted) <= by, `${what}: ${actual} instead of ${wanted}`);

test('a window that becomes narrow changes to single pages and back, at the same page', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(9) }), { hash: '#page=5' });
  assert.deepEqual(await book.pages(), [4, 5]);
  await book.page.setViewportSize({ width: 420, height: 800 });
  await book.waitForPages(5);
  assert.deepEqual(await book.colourOf('right'), colourOf(5));
  await book.page.setViewportSize({ width: 1100, height: 700 });
  await book.waitForPages(4, 5);
  assert.deepEqual(await book.colourOf('left'), colourOf(4));
});

const ends = [[1, [[1]]], [2, [[1], [2]]], [3, [[1], [2, 3]]], [4, [[1], [2, 3], [4]]], [5, [[1], [2, 3], [4, 5]]]];
for (const [count, views] of ends) {
  test(`${count} pages lie as ${JSON.stringify(views)}`, async () => {
    const book = await reader.openFromDisk(await reader.book({ pages: plainPages(count) }));
    for (const view of views) {
      assert.deepEqual(await book.pages(), view);
      await book.page.keyboard.press('ArrowRight');
    }
    assert.deepEqual(await book.pages(), views.at(-1));
  });
}

test('a page that stands alone is in the middle of the window', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(4) }));
  const cover = await book.box('right');
  near(cover.x + cover.width / 2, 640, 1, 'middle of the cover');
  await book.page.keyboard.press('End');
  await book.waitForPages(4);
  const last = await book.box('left');
  near(last.x + last.width / 2, 640, 1, 'middle of the last page');
});

test('the book lies within the window, whatever its size', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(5) }), { hash: '#page=2' });
  for (const [width, height] of [[1280, 800], [390, 844], [844, 390], [320, 300]]) {
    await book.page.setViewportSize({ width, height });
    await book.waitForPages(...width >= 844 ? [2, 3] : [2]);
    // Until the window's frame has been drawn, the pages are where they were before.
    await book.page.waitForFunction(([across, down]) => [...document.querySelectorAll('.page:not([hidden])')].every((page) => {
      const box = page.getBoundingClientRect();
      return box.x >= 0 && box.y >= 0 && box.right <= across && box.bottom <= down && box.height > down * 0.3;
    }), [width, height]);
  }
});

test('pages take their shape from the pictures, whatever the configuration claims', async () => {
  const folder = await reader.book({ pages: plainPages(3, 200, 100), declaredSize: [100, 200] });
  const { width, height } = await (await reader.openFromDisk(folder)).box('right');
  near(width / height, 2, 0.02, 'shape of the page');
});

test('a page of another shape is shown whole in its half', async () => {
  const pages = plainPages(3);
  [, pages[1]] = plainPages(2, 160, 80);
  const book = await reader.openFromDisk(await reader.book({ pages, values: { PageBackgroundColor: '0x336699' } }),
    { hash: '#page=2' });
  const half = await book.box('left');
  const picture = await book.picture('left');
  near(picture.width / picture.height, 2, 0.02, 'shape of the picture');
  near(picture.width, half.width, 1, 'width of the picture');
  near(picture.y + picture.height / 2, half.y + half.height / 2, 1, 'middle of the picture');
  assert.deepEqual(await book.colourAt(half.x + 30, half.y + 30), [0x33, 0x66, 0x99], 'paper around it');
});

test('a long book keeps few pages and shows the right ones', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(300, 12, 16) }));
  for (const page of [150, 299, 20]) {
    await book.page.evaluate((number) => window.folvero.goTo(number), page);
    await book.page.waitForFunction((number) => window.folvero.pages.includes(number), page);
    const kept = await book.page.evaluate(() => window.folvero.imagesKept);
    assert.ok(kept <= 12, `${kept} images`);
    const side = page % 2 === 0 ? 'left' : 'right';
    await book.pages();
    assert.match((await book.picture(side)).source, new RegExp(`/page/${page}\\.jpg$`));
  }
});

test('a template of single pages never shows two, however wide the window', async () => {
  const folder = await reader.book({ pages: plainPages(5, 160, 90), look: { pages: 'single' } });
  const book = await reader.openFromDisk(folder, { view: { viewport: { width: 1800, height: 500 } } });
  assert.deepEqual(await book.pages(), [1]);
  await book.page.keyboard.press('ArrowRight');
  assert.deepEqual(await book.pages(), [2]);
  const { x, width } = await book.box('right');
  near(x + width / 2, 900, 1, 'middle of the page');
});

for (const [binding, shaded] of [['yes', true], ['no', false]]) {
  test(`pages darken towards the middle and lie on others, binding: ${binding}`, async () => {
    const folder = await reader.book({ pages: plainPages(60), look: { binding } });
    const book = await reader.openFromDisk(folder, { hash: '#page=30' });
    await book.rest();
    const { x, y, width } = await book.box('left');
    const inner = await book.colourAt(x + width - 2, y + 200);
    assert.equal(String(inner) !== String(colourOf(30)), shaded, `colour at the spine: ${inner}`);
    const stack = await book.page.locator('.stack.left').evaluate((element) => element.offsetWidth);
    assert.equal(stack > 0, shaded, `width of the stack: ${stack}`);
  });
}

test('a window that changes while a page turns ends at the page that was turned to', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(9), values: { PageMoveTime: '8' } }));
  await book.page.keyboard.press('ArrowRight');
  await book.page.waitForFunction(() => window.folvero.turning);
  await book.page.setViewportSize({ width: 1100, height: 700 });
  await book.waitForPages(2, 3);
});
