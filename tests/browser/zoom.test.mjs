import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(count, { values, hash, view, reducedMotion, size = [120, 160] } = {}) {
  const folder = await reader.book({ pages: plainPages(count, ...size), values });
  const book = await reader.openFromDisk(folder, { hash, view, reducedMotion });
  return Object.assign(book, { whole: await book.box('right') });
}

/** By how much the page at the right is enlarged, once it has come to rest. */
async function level(book) {
  let last = null;
  for (;;) {
    await book.page.evaluate(() => new Promise((done) => { requestAnimationFrame(() => requestAnimationFrame(done)); }));
    const box = JSON.stringify(await book.box('right'));
    if (box === last) return JSON.parse(box).width / book.whole.width;
    last = box;
  }
}

const near = (actual, wanted, by, what) =>
  assert.ok(Math.abs(actual - wanted) <= by, `${what}: ${actual} instead of ${wanted}`);

function ctrlWheel(book, x, y, deltaY, times = 1) {
  return book.page.locator('.stage').evaluate((stage, [clientX, clientY, way, count]) => {
    for (let index = 0; index < count; index += 1) {
      stage.dispatchEvent(new WheelEvent('wheel', { deltaY: way, clientX, clientY, ctrlKey: true, cancelable: true }));
    }
  }, [x, y, deltaY, times]);
}

/** Fingers on the screen: each call says where they all are, in the order in which they came. */
async function fingers(book) {
  const session = await book.page.context().newCDPSession(book.page);
  let down = [];
  return async (...places) => {
    const points = places.map(([x, y], id) => ({ x, y, id }));
    const lifted = down.slice(points.length);
    const type = lifted.length > 0 ? 'touchEnd' : points.length > down.length ? 'touchStart' : 'touchMove';
    await session.send('Input.dispatchTouchEvent', { type, touchPoints: lifted.length > 0 ? lifted : points });
    down = points;
  };
}

/** Spreads two fingers about a place, from one distance to another, by a little more than one percent a step. */
async function pinch(put, [x, y], from, to) {
  const steps = Math.ceil(Math.abs(Math.log(to / from)) / 0.012);
  for (let step = 0; step <= steps; step += 1) {
    const apart = from * (to / from) ** (step / steps);
    await put([x - apart / 2, y], [x + apart / 2, y]);
  }
}

test('a double click in the middle enlarges what lies there, another shows whole pages', async () => {
  const book = await open(8, { hash: '#page=4' });
  const share = (box) => (700 - box.x) / box.width;
  const before = share(book.whole);
  await book.page.mouse.dblclick(700, 400);
  near(await level(book), 2.5, 0.01, 'level');
  near(share(await book.box('right')), before, 0.01, 'place under the pointer');
  await book.page.mouse.dblclick(500, 300);
  near(await level(book), 1, 0.001, 'level');
  assert.deepEqual(await book.box('right'), book.whole);
  assert.deepEqual(await book.pages(), [4, 5]);
});

test('a fast double click at an edge turns twice and enlarges nothing', async () => {
  const book = await open(12, { hash: '#page=4' });
  await book.page.mouse.dblclick(1150, 300);
  await book.waitForPages(8, 9);
  near(await level(book), 1, 0.001, 'level');
});

test('two slow clicks in the middle enlarge nothing', async () => {
  const book = await open(8, { hash: '#page=4' });
  await book.page.mouse.click(700, 400);
  await book.page.waitForTimeout(500);
  await book.page.mouse.click(700, 400);
  near(await level(book), 1, 0.001, 'level');
});

test('ctrl and the wheel enlarge about the pointer, up to five times', async () => {
  const book = await open(8, { hash: '#page=4' });
  const place = (box) => [(800 - box.x) / box.width, (300 - box.y) / box.height];
  const before = place(book.whole);
  await ctrlWheel(book, 800, 300, -30, 3);
  near(await level(book), Math.exp(0.9), 0.02, 'level');
  place(await book.box('right')).forEach((share, axis) => near(share, before[axis], 0.01, `place on axis ${axis}`));
  await ctrlWheel(book, 800, 300, -100, 20);
  near(await level(book), 5, 0.001, 'highest level');
  await ctrlWheel(book, 800, 300, 100, 20);
  near(await level(book), 1, 0.001, 'lowest level');
  await ctrlWheel(book, 800, 300, -1, 90);
  near(await level(book), Math.exp(0.9), 0.02, 'level after small steps');
  await ctrlWheel(book, 800, 300, 1, 88);
  await book.page.waitForFunction(() => document.querySelector('.book').style.transform === 'translateX(0px)');
});

test('the keys + - 0 and Escape change the level', async () => {
  const book = await open(8, { hash: '#page=4' });
  for (const [key, wanted] of [['+', 1.5], ['+', 2.25], ['-', 1.5], ['0', 1], ['+', 1.5], ['Escape', 1]]) {
    await book.page.keyboard.press(key);
    near(await level(book), wanted, 0.01, `level after ${key}`);
  }
});

test('an enlarged page is dragged and thrown, but never out of the window', async () => {
  const book = await open(8, { hash: '#page=4' });
  await book.page.mouse.dblclick(640, 400);
  await level(book);
  const before = await book.box('right');
  await book.drag([640, 400], [580, 380], { pause: 200 });
  await level(book);
  const moved = await book.box('right');
  near(moved.x - before.x, -60, 1, 'way to the left');
  near(moved.y - before.y, -20, 1, 'way up');
  for (const [x, y] of [[1270, 790], [10, 10]]) {
    for (let round = 0; round < 4; round += 1) await book.drag([640, 400], [x, y], { steps: 3 });
    await level(book);
    const left = await book.box('left');
    const right = await book.box('right');
    assert.ok(left.x <= 20 && right.x + right.width >= 1260, `${left.x} to ${right.x + right.width}`);
    assert.ok(left.y <= 20 && left.y + left.height >= 780, `${left.y} to ${left.y + left.height}`);
  }
  assert.deepEqual(await book.pages(), [4, 5], 'no page was turned');
});

test('the wheel and the arrow keys upwards and downwards move an enlarged page', async () => {
  const book = await open(8, { hash: '#page=4' });
  await book.page.mouse.dblclick(640, 400);
  await level(book);
  const before = await book.box('right');
  await book.page.mouse.wheel(0, 50);
  await level(book);
  near((await book.box('right')).y - before.y, -50, 1, 'way of the wheel');
  await book.page.keyboard.press('ArrowUp');
  await level(book);
  near((await book.box('right')).y - before.y, 40, 1, 'way of the key');
  assert.deepEqual(await book.pages(), [4, 5]);
});

for (const [RightToLeft, side] of [['No', 'left'], ['Yes', 'right']]) {
  test(`turning keeps the level and begins at the top, right to left: ${RightToLeft}`, async () => {
    const book = await open(8, { hash: '#page=4', values: { RightToLeft, PageMoveTime: '9' } });
    await book.page.mouse.dblclick(640, 500);
    await level(book);
    await book.page.keyboard.press('PageDown');
    assert.deepEqual(await book.page.evaluate(() => window.folvero.pages), [6, 7], 'at once');
    near(await level(book), 2.5, 0.01, 'level');
    const box = await book.box(side);
    near(box.y, 14, 2, 'top of the page');
    near(side === 'left' ? box.x : box.x + box.width, side === 'left' ? 14 : 1266, 2, 'side where reading begins');
    assert.deepEqual(await book.colourAt(640 + (side === 'left' ? -300 : 300), 400), colourOf(6));
    await book.page.locator('.bar [data-turn="left"]').click();
    assert.deepEqual(await book.page.evaluate(() => window.folvero.pages), side === 'left' ? [4, 5] : [8]);
    near((side === 'left' ? await book.box('left') : await book.box('right')).y, 14, 2, 'top of the page');
  });
}

for (const deviceScaleFactor of [1, 2, 3]) {
  test(`two slow fingers enlarge about the place between them, and let go without turning, at density ${deviceScaleFactor}`, async () => {
    const book = await open(5, { view: { ...PHONE, deviceScaleFactor }, hash: '#page=2' });
    const put = await fingers(book);
    const share = (box) => [(150 - box.x) / box.width, (560 - box.y) / box.height];
    const wanted = share(book.whole);
    await pinch(put, [150, 560], 60, 180);
    near(await level(book), 3, 0.1, 'level');
    const held = await book.box('right');
    share(held).forEach((at, axis) => near(at, wanted[axis], 0.01, `place on axis ${axis}`));
    await put([60, 560]);
    await put([50, 550]);
    await level(book);
    const moved = await book.box('right');
    near(moved.x - held.x, -10, 0.5, 'way of the finger that is left');
    near(moved.y - held.y, -10, 0.5, 'way of the finger that is left');
    await put();
    assert.deepEqual(await book.pages(), [2]);
    await book.swipe([320, 400], [90, 410]);
    await level(book);
    assert.deepEqual(await book.pages(), [2], 'a finger moves the enlarged page');
    assert.deepEqual(book.errors, []);
  });
}

test('whole pages give way to fingers that make them smaller, and come back like those that are hardly enlarged', async () => {
  const book = await open(5, { view: PHONE, hash: '#page=2' });
  const put = await fingers(book);
  for (const [from, to, least, most] of [[200, 100, 0.7, 0.9], [150, 154, 1.01, 1.04]]) {
    await pinch(put, [150, 560], from, to);
    const held = await level(book);
    assert.ok(held > least && held < most, `${held} while fingers hold the page`);
    await put();
    await book.page.waitForFunction(() => document.querySelector('.book').style.transform === 'translateX(0px)');
    assert.deepEqual(await book.box('right'), book.whole);
  }
  await book.swipe([320, 400], [90, 410]);
  await book.waitForPages(3);
});

test('a double tap on a phone enlarges, and the bar is as it was', async () => {
  const book = await open(5, { view: PHONE, hash: '#page=2' });
  const idle = () => book.page.locator('#folvero').getAttribute('data-idle');
  await book.page.touchscreen.tap(195, 400);
  await book.page.waitForTimeout(450);
  const before = await idle();
  await book.page.touchscreen.tap(195, 400);
  await book.page.touchscreen.tap(197, 402);
  near(await level(book), 2.5, 0.01, 'level');
  assert.equal(await idle(), before);
});

for (const x of [16, 40, 90, 300, 350, 374]) {
  test(`a double tap ${x} pixels from the left enlarges and turns nothing, a single one turns`, async () => {
    const book = await open(5, { view: PHONE, hash: '#page=2' });
    await book.doubleTap(x, 300);
    near(await level(book), 2.5, 0.01, 'level');
    assert.deepEqual(await book.pages(), [2]);
    await book.page.keyboard.press('0');
    near(await level(book), 1, 0.001, 'level');
    await book.page.touchscreen.tap(x, 300);
    const atOnce = await book.page.evaluate(() => window.folvero.turning);
    assert.equal(atOnce, x < 60 || x > 330);
    await book.waitForPages(x < 195 ? 1 : 3);
  });
}

test('a double click on a page enlarges, and one click a little inside its edge turns when no second follows', async () => {
  const book = await open(8, { hash: '#page=4' });
  await book.page.mouse.dblclick(1040, 300);
  near(await level(book), 2.5, 0.01, 'level');
  assert.deepEqual(await book.pages(), [4, 5]);
  await book.page.keyboard.press('0');
  near(await level(book), 1, 0.001, 'level');
  await book.page.mouse.click(1040, 300);
  await book.waitForPages(6, 7);
});

test('a page that is turning lands when the reader enlarges it', async () => {
  const book = await open(8, { hash: '#page=2', values: { PageMoveTime: '9' } });
  await book.page.keyboard.press('PageDown');
  await book.page.waitForFunction(() => window.folvero.turning);
  await book.page.keyboard.press('+');
  assert.deepEqual(await book.page.evaluate(() => [window.folvero.turning, ...window.folvero.pages]), [false, 4, 5]);
  near(await level(book), 1.5, 0.01, 'level');
  assert.deepEqual(await book.colourOf('left'), colourOf(4));
});

test('an enlarged page keeps its place when the window changes', async () => {
  const book = await open(5, { hash: '#page=2', view: { viewport: { width: 500, height: 900 } } });
  await book.page.mouse.dblclick(220, 300);
  await level(book);
  const middle = (box, width, height) => [(width / 2 - box.x) / box.width, (height / 2 - box.y) / box.height];
  const before = middle(await book.box('right'), 500, 900);
  await book.page.setViewportSize({ width: 480, height: 800 });
  await book.page.waitForFunction(() => document.querySelector('#folvero').clientWidth === 480);
  await level(book);
  middle(await book.box('right'), 480, 800).forEach((share, axis) => near(share, before[axis], 0.04, `axis ${axis}`));
});

test('an enlarged page shows all detail of its picture at two pixels a point', async () => {
  const bytes = png(1200, 1600, (x) => (x % 2 ? [0, 0, 0] : [255, 255, 255]));
  const folder = await reader.book({ pages: [{ bytes }] });
  const view = { viewport: { width: 500, height: 700 }, deviceScaleFactor: 2 };
  const book = await reader.openFromDisk(folder, { view });
  book.whole = await book.box('right');
  await ctrlWheel(book, 250, 300, -50, 20);
  near(await level(book), 5, 0.001, 'level');
  await book.page.waitForFunction(() => document.querySelector('.book').style.willChange === '');
  const colours = [];
  for (let x = 200; x < 216; x += 1) colours.push((await book.colourAt(x, 300))[0]);
  assert.ok(Math.max(...colours) > 200 && Math.min(...colours) < 60, `stripes: ${colours}`);
});
