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
    await book.waitForPages(...width >= 844 ? [4, 5] : [5]);
    // Until the window's frame has been drawn, the pages are where they were before.
    await book.page.waitForFunction(() => [...document.querySelectorAll('.page:not([hidden])')].every((page) => {
      const { left, top, right, bottom } = page.getBoundingClientRect();
      return left >= 0 && top >= 0 && right <= innerWidth && bottom <= innerHeight && bottom - top > innerHeight * 0.3;
    }));
    assert.deepEqual(await book.colourOf('right'), colourOf(5));
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

test('a page of another shape is shown whole in its half, on paper of the book’s colour', async () => {
  const pages = [...plainPages(1), ...plainPages(2, 160, 80)];
  const folder = await reader.book({ pages, values: { PageBackgroundColor: '0x336699' } });
  const book = await reader.openFromDisk(folder, { hash: '#page=2' });
  const half = await book.box('left');
  const picture = await book.picture('left');
  near(picture.width / picture.height, 2, 0.02, 'shape of the picture');
  near(picture.width, half.width, 1, 'width of the picture');
  near(picture.y + picture.height / 2, half.y + half.height / 2, 1, 'middle of the picture');
  assert.deepEqual(await book.colourAt(half.x + 30, half.y + 30), [0x33, 0x66, 0x99], 'paper around it');
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
