import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(count, { values, look, hash, view, reducedMotion } = {}) {
  const folder = await reader.book({ pages: plainPages(count), values, look });
  return reader.openFromDisk(folder, { hash, view, reducedMotion });
}

const KINDS = ['curl', 'flip', 'slide'];

async function edges(book) {
  const left = await book.box('left');
  const right = await book.box('right');
  return { left: [left.x + 20, left.y + 150], right: [right.x + right.width - 20, right.y + 150] };
}

test('a click on a page edge, or on the margin beside the book, turns that way', async () => {
  const book = await open(8, { hash: '#page=4' });
  const at = await edges(book);
  await book.page.mouse.click(...at.right);
  await book.waitForPages(6, 7);
  assert.deepEqual(await book.colourOf('left'), colourOf(6));
  assert.deepEqual(await book.colourOf('right'), colourOf(7));
  await book.page.mouse.click(...at.left);
  await book.waitForPages(4, 5);
  assert.deepEqual(await book.colourOf('left'), colourOf(4));
  await book.page.mouse.click(1240, 200);
  await book.waitForPages(6, 7);
  await book.page.mouse.click(30, 200);
  await book.waitForPages(4, 5);
});

const keys = [
  ['ArrowRight', [6, 7]], ['ArrowLeft', [4, 5]], ['PageDown', [6, 7]], ['PageUp', [4, 5]],
  ['Space', [6, 7]], ['Shift+Space', [4, 5]], ['Home', [1]], ['End', [8, 9]],
];
test('keys turn', async () => {
  const book = await open(9, { hash: '#page=4' });
  for (const [key, pages] of keys) {
    await book.page.keyboard.press(key);
    await book.waitForPages(...pages);
  }
});

test('a page dragged across is turned, and shows its back on the way', async () => {
  const book = await open(8, { hash: '#page=2', values: { PageMoveTime: '1' } });
  const { right: [x, y] } = await edges(book);
  const { page } = book;
  await page.mouse.move(x, y + 150);
  await page.mouse.down();
  await page.mouse.move(x - 300, y + 150, { steps: 5 });
  await page.mouse.move(x - 700, y + 150, { steps: 5 });
  await page.waitForTimeout(100);
  const right = await book.box('right');
  assert.deepEqual(await book.colourAt(right.x + right.width * 0.9, y + 150), colourOf(5), 'the page beneath');
  const back = await book.colourAt(x - 640, y + 150);
  colourOf(4).forEach((part, index) => assert.ok(Math.abs(part - back[index]) < 24, `back of the leaf: ${back}`));
  await page.mouse.up();
  await book.waitForPages(4, 5);
});

test('a page let go early, or dragged back before it is let go, falls back', async () => {
  const book = await open(8, { hash: '#page=2' });
  const { right: [x, y] } = await edges(book);
  await book.drag([x, y + 200], [x - 200, y + 180], { pause: 250 });
  assert.deepEqual(await book.pages(), [2, 3]);
  assert.deepEqual(await book.colourOf('right'), colourOf(3));
  const { mouse } = book.page;
  await mouse.move(x, y);
  await mouse.down();
  await mouse.move(x - 800, y, { steps: 6 });
  await mouse.move(x - 100, y, { steps: 6 });
  await book.page.waitForTimeout(200);
  await mouse.up();
  assert.deepEqual(await book.pages(), [2, 3]);
});

test('nothing can be dragged beyond the ends', async () => {
  const book = await open(4, { hash: '#page=4' });
  await book.drag([600, 300], [200, 300]);
  assert.deepEqual(await book.pages(), [4]);
  await book.page.keyboard.press('ArrowRight');
  assert.deepEqual(await book.pages(), [4]);
});

test('on a phone a swipe and a tap at the side turn, a tap in the middle shows and hides the bar', async () => {
  const book = await open(5, { view: PHONE, hash: '#page=2' });
  await book.swipe([320, 400], [90, 410]);
  await book.waitForPages(3);
  assert.deepEqual(await book.colourOf('right'), colourOf(3));
  await book.swipe([80, 400], [320, 390]);
  await book.waitForPages(2);
  assert.deepEqual(await book.colourOf('right'), colourOf(2));
  await book.page.touchscreen.tap(370, 400);
  await book.waitForPages(3);
  const idle = () => book.page.locator('#folvero').getAttribute('data-idle');
  const first = await idle();
  await book.page.touchscreen.tap(195, 400);
  assert.notEqual(await idle(), first);
});

test('turning quickly ends where the presses lead, with the right pages', async () => {
  const book = await open(40, { values: { PageMoveTime: '0.3' } });
  for (let press = 0; press < 9; press += 1) await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(18, 19);
  assert.deepEqual(await book.colourOf('left'), colourOf(18));
  for (const key of ['ArrowLeft', 'ArrowRight', 'ArrowLeft', 'ArrowLeft', 'End', 'ArrowLeft']) {
    await book.page.keyboard.press(key);
    await book.page.waitForTimeout(25);
  }
  await book.waitForPages(38, 39);
  assert.deepEqual(await book.colourOf('right'), colourOf(39));
  assert.deepEqual(book.errors, []);
});

test('clicking and dragging while a page turns does not jam', async () => {
  const book = await open(30, { values: { PageMoveTime: '0.3' } });
  const box = await book.box('right');
  for (let round = 0; round < 6; round += 1) {
    await book.page.mouse.click(1200, 300);
    await book.drag([box.x + box.width, 400], [box.x - 200, 380], { steps: 3 });
  }
  const before = (await book.pages())[0];
  await book.page.keyboard.press('PageUp');
  assert.ok((await book.pages())[0] < before);
});

test('a right-to-left book begins at the right', async () => {
  const book = await open(6, { values: { RightToLeft: 'YES' } });
  assert.deepEqual(await book.colourOf('left'), colourOf(1));
  await book.page.keyboard.press('ArrowLeft');
  await book.waitForPages(2, 3);
  assert.deepEqual(await book.colourOf('right'), colourOf(2));
  assert.deepEqual(await book.colourOf('left'), colourOf(3));
  await book.drag([200, 300], [1000, 300]);
  await book.waitForPages(4, 5);
  await book.page.mouse.click(1250, 300);
  await book.waitForPages(2, 3);
});

test('a right-to-left book turns on a phone', async () => {
  const book = await open(4, { values: { RightToLeft: 'yes' }, view: PHONE });
  await book.swipe([90, 400], [320, 410]);
  await book.waitForPages(2);
  assert.deepEqual(await book.colourOf('left'), colourOf(2));
});

test('the page box jumps to a page and the address follows', async () => {
  const book = await open(30);
  await book.page.locator('.page-box').fill('17');
  await book.page.keyboard.press('Enter');
  await book.waitForPages(16, 17);
  assert.match(book.page.url(), /#page=16$/);
  await book.page.evaluate(() => { window.location.hash = '#page=3'; });
  await book.waitForPages(2, 3);
});

test('one push of the wheel turns one page', async () => {
  const book = await open(9, { hash: '#page=4' });
  const push = (deltaY) => book.page.locator('.stage').evaluate((stage, way) => {
    for (let part = 0; part < 5; part += 1) stage.dispatchEvent(new WheelEvent('wheel', { deltaY: way }));
  }, deltaY);
  await push(40);
  await book.waitForPages(6, 7);
  await book.page.waitForTimeout(300);
  await push(-40);
  await book.waitForPages(4, 5);
});

test('a book that plays by itself turns, starts over, and stops when told', async () => {
  const book = await open(3, { values: { AutoPlay: 'Yes', SlideInterval: '0.4', LoopPlay: 'Yes' } });
  await book.waitForPages(2, 3);
  await book.waitForPages(1);
  await book.use('play');
  const stopped = await book.pages();
  await book.page.waitForTimeout(900);
  assert.deepEqual(await book.pages(), stopped);
});

test('readers who want little motion see pages change without a leaf', async () => {
  const calm = { reducedMotion: 'reduce', values: { PageMoveTime: '9' } };
  const book = await open(6, calm);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  await book.rest();
  assert.deepEqual(await book.colourOf('left'), colourOf(2));
  const phone = await open(5, { ...calm, view: PHONE, hash: '#page=2' });
  await phone.swipe([320, 400], [90, 410]);
  await phone.waitForPages(3);
});

for (const turn of KINDS) {
  for (const RightToLeft of ['No', 'Yes']) {
    test(`pages that ${turn} follow keys, drags and flicks, right to left: ${RightToLeft}`, async () => {
      const book = await open(9, { look: { turn }, values: { RightToLeft }, hash: '#page=2' });
      const onward = RightToLeft === 'Yes' ? 1 : -1;
      const [reading, other] = onward < 0 ? ['right', 'left'] : ['left', 'right'];
      await book.page.keyboard.press('PageDown');
      await book.waitForPages(4, 5);
      const from = [640 - onward * 400, 350];
      await book.drag(from, [640 + onward * 300, 330], { pause: 200 });
      await book.waitForPages(6, 7);
      assert.deepEqual(await book.colourOf(other), colourOf(6));
      assert.deepEqual(await book.colourOf(reading), colourOf(7));
      await book.drag(from, [from[0] + onward * 60, 350], { pause: 200 });
      assert.deepEqual(await book.pages(), [6, 7], 'let go early');
      await book.drag([640 + onward * 400, 350], [640 - onward * 300, 340], { pause: 200 });
      await book.waitForPages(4, 5);
      assert.deepEqual(await book.colourOf(reading), colourOf(5));
      assert.deepEqual(book.errors, []);
    });
  }
}

test('a page that slides keeps under the finger and uncovers the next', async () => {
  const book = await open(5, { look: { turn: 'slide', pages: 'single' }, hash: '#page=2' });
  const box = await book.box('right');
  const { mouse } = book.page;
  await mouse.move(640, 300);
  await mouse.down();
  await mouse.move(500, 300, { steps: 4 });
  await mouse.move(340, 300, { steps: 4 });
  await book.page.waitForFunction(() => window.folvero.turning);
  await book.page.waitForTimeout(150);
  const trail = [box.x + box.width - 308, box.x + box.width - 292];
  assert.deepEqual(await book.colourAt(trail[0], 300), colourOf(2), 'what slides ends 300 pixels further left');
  assert.notDeepEqual(await book.colourAt(trail[1], 300), colourOf(2));
  await mouse.up();
  await book.waitForPages(3);
  await book.drag([500, 300], [800, 300], { pause: 200 });
  await book.waitForPages(2);
});

test('a window that changes while a page turns shows the page that was turned to', async () => {
  const book = await open(9, { hash: '#page=2', values: { PageMoveTime: '9' } });
  await book.page.keyboard.press('PageDown');
  await book.page.waitForFunction(() => window.folvero.turning);
  await book.page.setViewportSize({ width: 390, height: 844 });
  await book.waitForPages(4);
  assert.deepEqual(await book.colourOf('right'), colourOf(4));
  await book.page.keyboard.press('PageDown');
  await book.page.waitForFunction(() => window.folvero.turning);
  await book.page.setViewportSize({ width: 844, height: 390 });
  await book.waitForPages(4, 5);
  assert.deepEqual(await book.colourOf('right'), colourOf(5));
});

/** The same sequence of numbers from 0 to 1 for the same seed. */
function sequence(seed) {
  let state = seed;
  return () => {
    state = (state * 1664525 + 1013904223) % 2 ** 32;
    return state / 2 ** 32;
  };
}

const WINDOWS = [[800, 500], [330, 500], [560, 400]];

/** Does one thing that a reader might do, chosen by chance. */
async function act(book, chance) {
  const { page } = book;
  const { width, height } = page.viewportSize();
  const within = () => [Math.round(width * chance()), Math.round(height * (0.1 + 0.7 * chance()))];
  const actions = [
    () => page.keyboard.press(['ArrowRight', 'ArrowLeft', 'PageDown', 'PageUp', 'Space', 'End', 'Home'][Math.floor(chance() * 7)]),
    () => page.mouse.click(chance() < 0.5 ? 4 : width - 4, height / 3),
    () => book.drag(within(), within(), { steps: 3 }),
    () => page.mouse.move(...within()),
    () => page.mouse.wheel(0, chance() < 0.5 ? 60 : -60),
    () => page.evaluate((number) => window.folvero.goTo(number), 1 + Math.floor(chance() * 15)),
    async () => {
      const [w, h] = WINDOWS[Math.floor(chance() * WINDOWS.length)];
      await page.setViewportSize({ width: w, height: h });
    },
  ];
  await actions[Math.floor(chance() * actions.length)]();
  if (chance() < 0.3) await page.waitForTimeout(chance() * 120);
}

for (const [index, turn] of KINDS.entries()) {
  for (const RightToLeft of ['No', 'Yes']) {
    test(`no order of actions jams pages that ${turn}, right to left: ${RightToLeft}`, async () => {
      const book = await open(15, { look: { turn }, values: { RightToLeft, PageMoveTime: '0.2' }, view: { viewport: { width: 800, height: 500 } } });
      const chance = sequence(7 * index + RightToLeft.length);
      for (let round = 0; round < 2; round += 1) {
        for (let step = 0; step < 12; step += 1) await act(book, chance);
        await book.page.mouse.move(2, 2);
        const shown = await book.pages();
        for (const side of ['left', 'right']) {
          const page = Number(await book.page.locator(`.page.${side}`).getAttribute('data-page'));
          if (page === 0) continue;
          assert.ok(shown.includes(page), `${page} lies at the ${side}, ${shown} are in view`);
          assert.deepEqual(await book.colourOf(side), colourOf(page), `page ${page} at the ${side}`);
        }
      }
      await book.page.keyboard.press('Home');
      await book.waitForPages(1);
      await book.page.keyboard.press('PageDown');
      await book.page.waitForFunction(() => !window.folvero.turning && window.folvero.page === 2);
      assert.deepEqual(book.errors, []);
    });
  }
}
