import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

const near = (actual, wanted, by, what) =>
  assert.ok(Math.abs(actual - wanted) <= by, `${what}: ${actual} instead of ${wanted}`);

test('the book lies within the window, whatever its size, and stays at its page', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(9) }), { hash: '#page=5' });
  for (const [width, height] of [[1280, 800], [390, 844], [844, 390], [320, 300]]) {
    await book.page.setViewportSize({ width, height });
    await book.waitForPages(...width > 844 ? [4, 5] : [5]);
    // Until the window's frame has been drawn, the pages are where they were before.
    await book.page.waitForFunction(() => [...document.querySelectorAll('.page:not([hidden])')].every((page) => {
      const { left, top, right, bottom } = page.getBoundingClientRect();
      // In windows as low as those of phones on their side a page has all of the width.
      const isWhole = bottom <= innerHeight && bottom - top > innerHeight * 0.3;
      return left >= 0 && top >= 0 && right <= innerWidth && (isWhole || right - left === innerWidth);
    }));
    const { x, y, width: across } = await book.box('right');
    assert.deepEqual(await book.colourAt(x + across / 2, y + 100), colourOf(5));
  }
});

test('pages take their shape from the pictures, and from the configuration where there are none', async () => {
  const shapeOf = async (options) => {
    const book = await reader.openFromDisk(await reader.book({ declaredSize: [300, 100], ...options }));
    const { width, height } = await book.box('right');
    return width / height;
  };
  near(await shapeOf({ pages: plainPages(3, 200, 100) }), 2, 0.02, 'shape of the picture');
  near(await shapeOf({ pages: [{ bytes: 'no picture' }] }), 3, 0.05, 'shape that is declared');
});
