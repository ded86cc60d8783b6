import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { Table } from '../support/table.mjs';

const { FaceCache } = await import('../../src/book/facecache.js');
const { Leaf } = await import('../../src/turning/leaf.js');

test('a turn takes the time that the book says, and a page let go that to fall back', () => {
  const table = new Table({ moveTime: 1.2, riseTime: 2 });
  table.key('ArrowRight');
  clock.run(1100);
  assert.equal(table.turner.turning, true);
  clock.run(150);
  assert.deepEqual([table.turner.turning, ...table.pagesNow], [false, 6, 7]);
  table.drag([[1100, 300], [900, 300], [850, 300]], { pause: 200 });
  clock.run(500);
  assert.equal(table.turner.turning, true);
  clock.run(1100);
  assert.deepEqual([table.turner.turning, ...table.pagesNow], [false, 6, 7]);
});

test('turns asked for while one is under way hurry it and follow at once, and end where they lead', () => {
  const table = new Table({ count: 40, page: 1, moveTime: 9 });
  for (let press = 0; press < 9; press += 1) {
    table.key('ArrowRight');
    clock.run(20);
  }
  assert.equal(table.turner.destination, 9);
  clock.run(1000);
  assert.deepEqual([table.turner.turning, ...table.pagesNow], [false, 18, 19]);
  for (const key of ['ArrowLeft', 'ArrowRight', 'End', 'ArrowLeft']) table.key(key);
  assert.deepEqual(table.pages, [38, 39]);
});

test('jumps are told before they begin, and not those that lead nowhere or that a held page forbids', () => {
  const table = new Table();
  const jumps = [];
  table.turner.onJump = (view) => jumps.push(view);
  for (const view of [2, 99, 4]) {
    table.turner.go(view);
    clock.run(5000);
  }
  assert.deepEqual([jumps, ...table.pagesNow], [[4], 8, 9]);
  table.pointer('down', 200, 300);
  table.pointer('move', 300, 300);
  table.turner.go(0);
  table.pointer('up', 300, 300);
  assert.deepEqual([jumps, ...table.pages], [[4], 8, 9]);
});

/** What is in the air: settings, views, its side, the pages of it, those that lie still. */
const leaves = [
  [{}, 2, 3, 'right', { left: 6, right: 5 }, { left: 4, right: 7 }],
  [{}, 2, 1, 'left', { left: 4, right: 3 }, { left: 2, right: 5 }],
  [{ rightToLeft: true }, 2, 3, 'left', { left: 5, right: 6 }, { left: 7, right: 4 }],
  [{ width: 400 }, 2, 3, 'right', { left: 0, right: 3 }, { left: 0, right: 4 }],
  [{ width: 400 }, 2, 1, 'right', { left: 0, right: 2 }, { left: 0, right: 3 }],
  [{ width: 400, rightToLeft: true }, 2, 3, 'left', { left: 3, right: 0 }, { left: 4, right: 0 }],
  [{ look: { turn: 'slide' } }, 2, 3, 'right', { left: 4, right: 5 }, { left: 6, right: 7 }],
  [{ look: { turn: 'slide' } }, 2, 1, 'right', { left: 2, right: 3 }, { left: 4, right: 5 }],
];
test('a leaf has the pages of both views on it, and others beneath', () => {
  for (const [settings, from, to, side, pages, beneath] of leaves) {
    const { book, turner } = new Table(settings);
    const leaf = new Leaf(book, turner.painter, from, to, 1);
    assert.deepEqual([leaf.side, leaf.pages, leaf.beneath], [side, pages, beneath], JSON.stringify(settings));
    assert.equal(leaf.done, 0);
    leaf.held = { x: -leaf.held.x, y: 0 };
    assert.equal(leaf.done, 1);
  }
});

test('no order of what readers do jams the pages', () => {
  const keys = ['ArrowRight', 'ArrowLeft', 'PageDown', 'PageUp', ' ', 'End', 'Home', '+', '0'];
  let state = 7;
  const below = (end) => {
    state = (state * 1664525 + 1013904223) % 2 ** 32;
    return Math.floor((state / 2 ** 32) * end);
  };
  for (let round = 0; round < 60; round += 1) {
    const table = new Table({ count: 15, look: { turn: ['curl', 'flip', 'slide'][round % 3] }, rightToLeft: round % 2 > 0 });
    const { book, turner } = table;
    const place = () => [below(1280), below(800)];
    const resize = (width) => {
      book.root.clientWidth = width;
      turner.settle();
      const [page] = table.pagesNow;
      book.resize();
      turner.resized();
      turner.stand(book.views.viewOf(page));
    };
    const actions = [() => table.key(keys[below(keys.length)]), () => table.tap(...place()), () => table.wheel({ deltaY: 60 }),
      () => table.drag([place(), place(), place()]), () => table.pointer('move', ...place()),
      () => turner.go(below(15)), () => resize([1280, 330][below(2)])];
    for (let step = 0; step < 30; step += 1) {
      actions[below(actions.length)]();
      clock.run(below(400));
    }
    clock.run(20000);
    for (const key of ['0', 'Home', 'PageDown']) table.key(key);
    assert.deepEqual([...table.pages, turner.turning], [2, ...(book.layout.spread ? [3] : []), false], `round ${round}`);
  }
});

test('a page is drawn once, and again when its picture has changed', () => {
  const cache = new FaceCache();
  const drawn = [];
  const get = (...pages) => pages.forEach((page) => cache.get(page, 'left', () => drawn.push(page)));
  get(1, 2, 1);
  cache.drop(1);
  get(1, 2);
  assert.deepEqual(drawn, [1, 2, 1]);
});

test('a page is drawn anew for a window of another size', () => {
  const { book, turner } = new Table();
  const faceOf = () => book.faces(4, 3, 'left', 1).front;
  const before = { ...book.layout };
  assert.equal(faceOf().width, Math.round(before.pageWidth));
  book.root.clientHeight = 500;
  book.resize();
  turner.resized();
  assert.ok(book.layout.pageWidth < before.pageWidth);
  assert.equal(faceOf().width, Math.round(book.layout.pageWidth));
});

test('leaves are drawn at two pixels a point at most, and at fewer once frames came late', () => {
  /** Densities after turns with these milliseconds between frames. */
  const densities = (...intervals) => {
    const table = new Table({ count: 40 });
    table.window.devicePixelRatio = 3;
    table.turner.resized();
    return intervals.map((interval) => {
      globalThis.requestAnimationFrame = (act) => clock.after(act, interval);
      table.turner.step(1);
      clock.run(3000);
      return table.turner.density;
    });
  };
  assert.deepEqual(densities(16, 40, 40, 40, 16), [2, 1.5, 1, 1, 1]);
  assert.deepEqual(densities(16, 130), [2, 1]);
});
