import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { PHONE, Reader } from './support/reader.mjs';
import { line } from './support/webbook.mjs';

const reader = Reader.forTests();

async function open({ values, pages = plainPages(8), hash = '#page=4', ...options } = {}) {
  const book = await reader.openFromDisk(await reader.book({ pages, values }), { hash, ...options });
  return Object.assign(book, { whole: await book.box('right') });
}

/** Where the page at the right lies once it has come to rest. */
async function atRest(book) {
  for (let last = null; ;) {
    await book.drawn();
    const box = await book.box('right');
    if (JSON.stringify(box) === last) return box;
    last = JSON.stringify(box);
  }
}

const near = (actual, wanted, by, what) =>
  assert.ok(Math.abs(actual - wanted) <= by, `${what}: ${actual} instead of ${wanted}`);

/** Asserts that the pages are enlarged so much. */
async function enlarged(book, level) {
  near((await atRest(book)).width / book.whole.width, level, level * 0.04, 'level');
}

test('a double click, Ctrl with the wheel, and keys enlarge', async () => {
  const book = await open();
  const { keyboard, mouse } = book.page;
  await mouse.dblclick(700, 400);
  await enlarged(book, 2.5);
  await book.drag([640, 400], [580, 380], { pause: 200 });
  near((await atRest(book)).x, 700 - (700 - book.whole.x) * 2.5 - 60, 1, 'follows the mouse');
  await keyboard.press('0');
  assert.deepEqual(await atRest(book), book.whole);
  await mouse.move(800, 300);
  await keyboard.down('Control');
  for (let push = 0; push < 3; push += 1) await mouse.wheel(0, -30);
  await keyboard.up('Control');
  await enlarged(book, Math.exp(0.9));
  const own = await book.page.evaluate(() => visualViewport.scale * devicePixelRatio);
  assert.equal(own, 1, 'the browser itself enlarges nothing');
  await keyboard.press('Escape');
  assert.deepEqual(await atRest(book), book.whole);
  assert.deepEqual(await book.pages(), [4, 5]);
});

test('two fingers enlarge about the place between them, and let go without turning', async () => {
  const book = await open({ view: { ...PHONE, deviceScaleFactor: 3 }, hash: '#page=2' });
  const session = await book.page.context().newCDPSession(book.page);
  const fingers = (type, apart) => session.send('Input.dispatchTouchEvent', {
    type, touchPoints: apart ? [{ x: 150 - apart / 2, y: 560, id: 0 }, { x: 150 + apart / 2, y: 560, id: 1 }] : [] });
  await fingers('touchStart', 60);
  for (let apart = 60; apart <= 180; apart += 4) await fingers('touchMove', apart);
  await enlarged(book, 3);
  await fingers('touchEnd');
  await book.swipe([320, 400], [90, 410]);
  await atRest(book);
  assert.deepEqual(await book.pages(), [2], 'a finger moves the enlarged page');
  assert.deepEqual(book.errors, []);
});

test('pinches at the pace of hands enlarge at every density, by fingers and on a trackpad', async () => {
  for (const deviceScaleFactor of [1, 2, 3]) {
    const book = await open({ view: { ...PHONE, deviceScaleFactor }, hash: '#page=2' });
    const session = await book.page.context().newCDPSession(book.page);
    for (const gestureSourceType of ['touch', 'mouse', 'touch']) {
      // Steps of 1 to 2%. Chromium divides those of a trackpad by the density.
      await session.send('Input.synthesizePinchGesture', {
        x: 195, y: 400, scaleFactor: 1.3, relativeSpeed: 200, gestureSourceType });
      const { width } = await atRest(book);
      assert.ok(width > book.whole.width * 1.05, `${gestureSourceType} at ${deviceScaleFactor}: ${width}`);
      await book.page.keyboard.press('0');
      assert.deepEqual(await atRest(book), book.whole);
    }
  }
});

test('Space and the wheel lead through the columns of an enlarged page', async () => {
  const rows = Array.from({ length: 30 }, (_, row) => [600, 3200].map((x) => line([x, 800 + row * 200, 2200, 140], [['word', 0, 2200]])));
  const text = { size: [6000, 8000], lines: rows.flat(), links: [] };
  const folder = await reader.webBook({ pages: plainPages(2, 600, 800), description: { pages: [text, text] } });
  const book = await reader.openFromDisk(folder, { view: { viewport: { width: 420, height: 500 } } });
  const { keyboard, mouse } = book.page;
  for (let press = 0; press < 2; press += 1) {
    await keyboard.press('+');
    await atRest(book);
  }
  // Each column as far as it lies in the window, where a bar over the page counts as nothing.
  const seen = async () => {
    await atRest(book);
    return book.page.evaluate(() => [0, 1].map((column) => [...document.querySelectorAll('.line')]
      .filter((_, index) => index % 2 === column).map((one) => one.firstChild.getBoundingClientRect())
      .map(({ left, right, top, bottom }) => left >= 0 && right <= innerWidth && top >= 0 && bottom <= innerHeight)));
  };
  const read = [[], []];
  for (let step = 0; step < 20 && (await book.pages())[0] === 1; step += 1) {
    (await seen()).forEach((lines, column) => lines.forEach((isSeen, row) => { if (isSeen) read[column][row] = true; }));
    if (step % 2) await keyboard.press('Space');
    else {
      await mouse.move(200, 200);
      await mouse.wheel(0, 300);
    }
    await book.page.waitForTimeout(400);
  }
  assert.deepEqual([read.map((lines) => lines.filter(Boolean).length), await book.pages()], [[30, 30], [2]]);
});

test('an enlarged page shows all detail of its picture, when the window has changed too', async () => {
  const bytes = png(1200, 1600, (x) => (x % 2 ? [0, 0, 0] : [255, 255, 255]));
  const view = { viewport: { width: 500, height: 700 }, deviceScaleFactor: 2 };
  const book = await open({ pages: [{ bytes }], view });
  for (let press = 0; press < 4; press += 1) await book.page.keyboard.press('+');
  for (const width of [500, 480]) {
    await book.page.setViewportSize({ width, height: 700 });
    await book.page.waitForFunction((wanted) => document.querySelector('#folvero').clientWidth === wanted
      && document.querySelector('.book').style.willChange === '', width);
    near((await atRest(book)).width, book.whole.width * 5, 130, 'width');
    const colours = [];
    for (let x = 200; x < 216; x += 1) colours.push((await book.colourAt(x, 300))[0]);
    assert.ok(Math.max(...colours) > 200 && Math.min(...colours) < 60, `stripes: ${colours}`);
  }
});
