import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(count, { values, look, ...options } = {}) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(count), values, look }), options);
}

test('mouse, wheel and keys reach the book', async () => {
  const book = await open(9, { hash: '#page=4' });
  const { keyboard, mouse } = book.page;
  const ways = [
    [() => mouse.click(1130, 200), [6, 7]], [() => mouse.click(30, 200), [4, 5]], [() => mouse.wheel(0, 60), [6, 7]],
    [() => keyboard.press('ArrowLeft'), [4, 5]], [() => keyboard.press('Space'), [6, 7]],
    [() => book.drag([200, 300], [900, 280]), [4, 5]], [() => keyboard.press('End'), [8, 9]],
  ];
  for (const [act, pages] of ways) {
    await act();
    await book.waitForPages(...pages);
    assert.deepEqual([await book.colourOf('left'), await book.colourOf('right')], pages.map(colourOf), String(act));
  }
  assert.deepEqual(book.errors, []);
});

test('a page dragged across shows its back on the way', async () => {
  const book = await open(8, { hash: '#page=2', values: { PageMoveTime: '1' } });
  const right = await book.box('right');
  const [x, y] = [right.x + right.width - 20, right.y + 300];
  const { mouse } = book.page;
  await mouse.move(x, y);
  await mouse.down();
  await mouse.move(x - 300, y, { steps: 5 });
  await mouse.move(x - 700, y, { steps: 5 });
  await book.page.waitForTimeout(100);
  assert.deepEqual(await book.colourAt(right.x + right.width * 0.9, y), colourOf(5), 'the page beneath');
  const back = await book.colourAt(x - 640, y);
  colourOf(4).forEach((part, index) => assert.ok(Math.abs(part - back[index]) < 24, `back of the leaf: ${back}`));
  await mouse.up();
  await book.waitForPages(4, 5);
});

test('a page that slides keeps under the finger and uncovers the next', async () => {
  const book = await open(5, { look: { turn: 'slide', pages: 'single' }, hash: '#page=2' });
  const { x, width } = await book.box('right');
  const { mouse } = book.page;
  await mouse.move(640, 300);
  await mouse.down();
  await mouse.move(500, 300, { steps: 4 });
  await mouse.move(340, 300, { steps: 4 });
  await book.page.waitForTimeout(150);
  assert.deepEqual(await book.colourAt(x + width - 308, 300), colourOf(2), 'what slides ends 300 pixels further left');
  assert.notDeepEqual(await book.colourAt(x + width - 292, 300), colourOf(2));
  await mouse.up();
  await book.waitForPages(3);
});

const swipes = [['No', [[320, 400], [90, 410]], 'right'], ['Yes', [[90, 400], [320, 410]], 'left']];
for (const [RightToLeft, onward, side] of swipes) {
  test(`on a phone swipes and taps turn, or show and hide the bar, right to left: ${RightToLeft}`, async () => {
    const book = await open(5, { view: PHONE, hash: '#page=2', values: { RightToLeft } });
    await book.swipe(...onward);
    await book.waitForPages(3);
    assert.deepEqual(await book.colourOf(side), colourOf(3));
    await book.page.touchscreen.tap(370, 400);
    await book.waitForPages(side === 'right' ? 4 : 2);
    const idle = () => book.page.locator('#folvero').getAttribute('data-idle');
    const first = await idle();
    await book.page.touchscreen.tap(195, 400);
    assert.notEqual(await idle(), first);
  });
}

test('the page box jumps to a page, the address follows, and Back leads to where the jump began', async () => {
  const book = await open(30);
  await book.page.locator('.page-box').fill('17');
  await book.page.keyboard.press('Enter');
  await book.waitForPages(16, 17);
  assert.match(book.page.url(), /#page=16$/);
  await book.page.goBack();
  await book.waitForPages(1);
  await book.page.evaluate(() => { window.location.hash = '#page=3'; });
  await book.waitForPages(2, 3);
});

test('readers who want little motion see pages change without a leaf', async () => {
  const book = await open(6, { reducedMotion: 'reduce', values: { PageMoveTime: '9' } });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  await book.rest();
  assert.deepEqual(await book.colourOf('left'), colourOf(2));
});

/** Does one thing that a reader might do, chosen by chance. */
async function act(book, chance) {
  const { page } = book;
  const { width, height } = page.viewportSize();
  const within = () => [Math.round(width * chance()), Math.round(height * (0.1 + 0.7 * chance()))];
  const one = (choices) => choices[Math.floor(chance() * choices.length)];
  const actions = [
    () => page.keyboard.press(one(['ArrowRight', 'ArrowLeft', 'PageDown', 'PageUp', 'Space', 'End', 'Home'])),
    () => page.mouse.click(one([4, width - 4]), height / 3),
    () => book.drag(within(), within(), { steps: 3 }),
    () => page.mouse.move(...within()),
    () => page.mouse.wheel(0, one([60, -60])),
    () => page.evaluate((number) => window.folvero.goTo(number), 1 + Math.floor(chance() * 15)),
    () => page.setViewportSize({ width: one([800, 330, 560]), height: one([500, 400]) }),
  ];
  await one(actions)();
  if (chance() < 0.3) await page.waitForTimeout(chance() * 120);
}

for (const [index, turn] of ['curl', 'flip', 'slide'].entries()) {
  for (const RightToLeft of ['No', 'Yes']) {
    test(`no order of actions jams pages that ${turn}, right to left: ${RightToLeft}`, async () => {
      const view = { viewport: { width: 800, height: 500 } };
      const book = await open(15, { look: { turn }, values: { RightToLeft, PageMoveTime: '0.2' }, view });
      let state = 7 * index + RightToLeft.length;
      const chance = () => {
        state = (state * 1664525 + 1013904223) % 2 ** 32;
        return state / 2 ** 32;
      };
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
