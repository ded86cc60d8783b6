import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { PHONE, Table } from '../support/table.mjs';

/** Two columns of a page. */
const halves = (_, whole) => [0, 0.5].map((share) => {
  const left = whole.left + share * (whole.right - whole.left);
  return { ...whole, left, right: left + (whole.right - whole.left) / 2 };
});

/** Enlarges by +, with the mouse at a place where one is given. */
function enlarged({ at, presses = 1, columns, ...settings } = {}) {
  const table = new Table({ count: 8, ...settings });
  if (columns) table.reading.columnsOf = columns;
  if (at) table.pointer('move', ...at);
  for (let press = 0; press < presses; press += 1) {
    table.key('+');
    clock.run(1000);
  }
  return table;
}

/** Areas of the pages in view that were seen, step by step, until others came into view or 30 steps were too few. */
function readThrough(table, step) {
  const pages = String(table.pagesNow);
  const areas = [];
  for (let count = 0; count < 30 && String(table.pagesNow) === pages; count += 1) {
    areas.push(table.zoom.seen);
    step();
    clock.run(1000);
  }
  return areas;
}

/** Asserts that everything between the edges was seen, in order: each line of a column before the next column. */
function allSeen(table, columns, areas, what) {
  let from = 0;
  for (const { left, right, top, bottom } of columns) {
    for (let share = 0.01; share < 1; share += 0.02) {
      const y = top + share * (bottom - top);
      const at = areas.findIndex((area, index) => index >= from && area.top <= y && area.bottom >= y
        && area.left <= left + 1 && area.right >= right - 1);
      assert.ok(at >= 0, `${what}: ${left} to ${right} at ${Math.round(y)}`);
      from = at;
    }
  }
}

/** What is seen, and whether it is read by columns of half a page. */
const ways = [[{}], [{ presses: 2, columns: halves }, true], [{ rightToLeft: true }], [PHONE, false],
  [{ ...PHONE, presses: 2, columns: halves }, true]];
test('enlarged pages are read on and back to their ends, column by column, before others come', () => {
  for (const [settings, byColumns] of ways) {
    const table = enlarged(settings);
    const { left, right, top, bottom } = table.book.boxOf(table.turner.current);
    const width = table.book.layout.pageWidth / (byColumns ? 2 : 1);
    const seenWidth = table.zoom.seen.right - table.zoom.seen.left;
    const columns = [];
    for (let at = left; at < right - 1; at += width) {
      columns.push({ left: at, right: at + Math.min(width, seenWidth - 30), top, bottom });
    }
    if (settings.rightToLeft) columns.reverse();
    const what = JSON.stringify(settings);
    const { pagesNow: before } = table;
    allSeen(table, columns, readThrough(table, () => table.key(' ')), what);
    assert.equal(table.pagesNow[0], before.at(-1) + 1, what);
    assert.ok(table.zoom.seen.top <= top + 1, `${what}: at the top`);
    table.key('PageUp');
    clock.run(1000);
    assert.deepEqual(table.pagesNow, before, what);
    const areas = readThrough(table, () => table.key(' ', { shiftKey: true }));
    allSeen(table, columns, areas.reverse(), `${what}, back`);
  }
});

test('what is enlarged is the page under the mouse, or else the first, and never the gutter', () => {
  for (const [at, page, y] of [[[900, 300], 'right', 300], [[300, 500], 'left', 500], [[5, 5], 'left'], [null, 'left']]) {
    const table = enlarged({ at });
    const { left, right, top } = table.book.boxOf(table.turner.current);
    const middle = (left + right) / 2;
    const [from, to] = page === 'left' ? [left, middle] : [middle, right];
    assert.ok(table.seen(from, 0)[0] >= 0 && table.seen(to, 0)[0] <= 1280, `${at}`);
    assert.ok(Math.abs(table.seen(0, y ?? top)[1] - (y ?? 14)) < 30, `${at}: ${table.seen(0, y ?? top)[1]}`);
  }
  const table = new Table();
  table.pointer('move', 900, 300);
  clock.run(500);
  table.pointer('move', 905, 300);
  table.pointer('leave', 640, 780);
  table.reading.enlarge();
  clock.run(1000);
  assert.ok(table.seen(table.book.boxOf(table.turner.current).right, 0)[0] < 1280, 'where the mouse rested before it went to the bar');
});

/** Whether the edge of the pages is in view. */
function ends(table, way) {
  const { top, bottom } = table.book.boxOf(table.turner.current);
  return way > 0 ? table.zoom.seen.bottom >= bottom : table.zoom.seen.top <= top;
}

test('the wheel stops at the end of a page, goes on after a pause, and once a push', () => {
  const table = enlarged();
  const push = (deltaY, times = 12, pause = 500) => {
    clock.run(pause);
    for (let time = 0; time < times; time += 1) {
      table.wheel({ deltaY });
      clock.run(20);
    }
    clock.run(1000);
  };
  const { left, top } = table.book.boxOf(table.turner.current);
  const firstSeen = () => table.seen(left, top);
  push(100);
  assert.ok(ends(table, 1) && firstSeen()[0] > 0, 'at the end of the first page');
  push(3, 2);
  assert.ok(ends(table, 1), 'hardly touched');
  push(60);
  assert.ok(firstSeen()[0] < 0 && firstSeen()[1] >= 0, 'at the top of the second');
  push(100);
  push(100, 12, 0);
  assert.deepEqual(table.pagesNow, [6, 7]);
  assert.ok(ends(table, -1), 'the rest of the push moves nothing');
  push(-100);
  assert.deepEqual([...table.pagesNow, ends(table, 1)], [4, 5, true], 'back to their end');
});

/** A page as wide as a phone on its side, which scrolls. */
const SIDEWAYS = { width: 844, height: 390, page: 2, count: 8 };
const FINGER = { pointerType: 'touch' };

test('pages higher than the window are read on, by key and wheel, and back from their ends', () => {
  for (const settings of [SIDEWAYS, { ...SIDEWAYS, rightToLeft: true }]) {
    const table = new Table(settings);
    const whole = [{ ...table.book.boxOf(1), left: 10, right: 800 }];
    for (const [back, step] of [[false, () => table.key(' ')], [true, () => table.key('PageUp')]]) {
      const areas = readThrough(table, step);
      allSeen(table, whole, back ? areas.reverse() : areas, `back: ${back}`);
      assert.deepEqual([table.pagesNow[0], table.level], [back ? 1 : 3, 1]);
      if (!back) {
        assert.ok(table.zoom.seen.top <= 0, 'at the top');
        table.key('PageUp');
        assert.deepEqual(table.pages, [2]);
        assert.ok(table.zoom.seen.bottom >= whole[0].bottom, 'at the end');
      }
    }
  }
  const table = new Table(SIDEWAYS);
  const { bottom } = table.book.boxOf(1);
  for (let push = 0; push < 60 && table.pages[0] === 2; push += 1) {
    if (push > 20) clock.run(400);
    assert.equal(table.wheel({ deltaY: 40 }), true);
  }
  assert.ok(table.pagesNow[0] === 3 && bottom > 1000);
});

test('a finger scrolls such pages down and turns them across, and what comes begins at the top', () => {
  const table = new Table(SIDEWAYS);
  table.drag([[400, 300], [402, 200], [404, 100]], FINGER);
  assert.deepEqual(table.pages, [2]);
  const { top } = table.zoom.seen;
  assert.ok(top >= 190, `scrolled by ${top}`);
  table.drag([[700, 200], [698, 196]], { ...FINGER, pause: 20 });
  table.drag([[600, 200], [400, 210], [100, 215]], FINGER);
  assert.deepEqual(table.pages, [3]);
  assert.equal(table.zoom.seen.top + 0, 0);
  table.drag([[100, 100], [101, 300], [102, 330]], FINGER);
  assert.deepEqual([table.pages[0], table.zoom.seen.top + 0], [3, 0]);
  table.zoom.toggleAt(400, 200);
  assert.equal(table.level, 2.5);
  table.drag([[400, 300], [400, 100]], { ...FINGER, rest: 500 });
  const seen = table.zoom.seen;
  table.key('0');
  assert.equal(table.level, 1);
  const middle = (area) => (area.top + area.bottom) / 2;
  assert.ok(Math.abs(middle(table.zoom.seen) - middle(seen)) < 40, 'where the reader was');
});

test('another view begins at the top, and the same one stays where it was when the window changes', () => {
  const table = new Table(SIDEWAYS);
  table.key(' ');
  clock.run(1000);
  const { top } = table.zoom.seen;
  table.book.root.clientWidth = 800;
  table.book.resize();
  table.turner.stand(table.turner.current);
  assert.ok(top > 100 && Math.abs(table.zoom.seen.top - top) < 60, 'the same place');
  table.turner.stand(4);
  assert.equal(table.zoom.seen.top + 0, 0);
  table.book.choice = 'one';
  table.book.resize();
  table.turner.stand(4);
  assert.deepEqual([table.zoom.now.y + 0, table.book.layout.scrolls], [0, false]);
});
