import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { PHONE, Reader, TEMPLATE } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(count, { values, template = TEMPLATE, ...options } = {}) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(count), values, template }), options);
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
  const book = await open(5, { template: path.join(TEMPLATE, '../deck'), hash: '#page=2' });
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

test('on a phone swipes and taps turn, or show and hide the bar', async () => {
  const book = await open(5, { view: PHONE, hash: '#page=2' });
  await book.swipe([320, 400], [90, 410]);
  await book.waitForPages(3);
  assert.deepEqual(await book.colourOf('right'), colourOf(3));
  await book.page.touchscreen.tap(370, 400);
  await book.waitForPages(4);
  // Changes, not the state before and after: on a slow machine the bar may have gone by itself in between.
  await book.page.evaluate(() => {
    window.changes = 0;
    new MutationObserver(() => { window.changes += 1; })
      .observe(document.getElementById('folvero'), { attributeFilter: ['data-idle'] });
  });
  await book.page.touchscreen.tap(195, 400);
  assert.ok(await book.page.evaluate(() => window.changes));
});

test('nothing of a larger shadow is left beside the next one', async () => {
  const { page } = await open(1);
  const shade = await readFile(new URL('../../player/src/turning/shade.js', import.meta.url), 'utf8');
  // Largest opacity in the outermost pixels of a shadow that is drawn after one of that size.
  const edge = (size) => page.evaluate(`(() => { ${shade.replaceAll('export ', '')}
    const context = document.createElement('canvas').getContext('2d');
    context.canvas.width = context.canvas.height = 500;
    const shadow = (from, to) => drawShade(context, [from, from, to, to].map((x, index) => ({ x, y: index % 3 ? to : from })),
      { opacity: 1, blur: 20, down: 0 });
    shadow(100, ${size});
    context.clearRect(0, 0, 500, 500);
    shadow(100, 200);
    return Math.max(...context.getImageData(100, 230, 100, 12).data);
  })()`);
  assert.equal(await edge(450), await edge(200));
});

test('readers who want little motion see pages change without a leaf', async () => {
  const book = await open(6, { reducedMotion: 'reduce', values: { PageMoveTime: '9' } });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  await book.rest();
  assert.deepEqual(await book.colourOf('left'), colourOf(2));
});
