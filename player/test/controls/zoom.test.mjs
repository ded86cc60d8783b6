import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { PHONE, Table } from '../support/table.mjs';

const near = (actual, wanted, by, what) =>
  assert.ok(Math.abs(actual - wanted) <= by, `${what}: ${actual} instead of ${wanted}`);

/** Asserts that a place of the book lies at one of the window. */
function lies(table, [x, y], at, what) {
  table.seen(x, y).forEach((place, axis) => near(place, at[axis], 1, `${what}, axis ${axis}`));
}

const open = (further) => new Table({ count: 8, ...further });
const zoomed = (further) => {
  const table = open(further);
  table.zoom.toggleAt(640, 400);
  clock.run(1000);
  return table;
};

test('keys change the level step by step, within its limits, and only while they mean that', () => {
  const table = open();
  const keys = [['+', 1.5], ['=', 2.25], ['-', 1.5], ['-', 1], ['+', 1.5], ['0', 1], ['=', 1.5], ['Escape', 1]];
  for (const [key, wanted] of keys) {
    assert.equal(table.key(key), true, key);
    near(table.level, wanted, 0.001, `level after ${key}`);
  }
  for (const key of ['Escape', 'ArrowUp', 'ArrowDown']) assert.equal(table.key(key), false, `${key}, whole pages`);
  assert.equal(table.key('+', { ctrlKey: true }), false);
  for (let press = 0; press < 9; press += 1) table.key('+');
  assert.equal(table.level, 5);
});

test('a double click keeps what lies there under it, another shows whole pages', () => {
  const table = open();
  let changes = 0;
  table.zoom.onChange = () => { changes += 1; };
  table.zoom.toggleAt(700, 300);
  assert.equal(table.level, 2.5);
  lies(table, [700, 300], [700, 300], 'place');
  table.zoom.toggleAt(100, 100);
  assert.deepEqual([table.level, table.zoom.now.x, table.zoom.now.y, changes], [1, 0, 0, 2]);
  table.turner.calm = { matches: true };
  table.zoom.in();
  assert.equal(table.zoom.now.level, 1.5, 'at once');
});

test('pages grow and shrink by and by, never beyond where that leads', () => {
  const table = open();
  for (const goal of [2.5, 1]) {
    const levels = [table.zoom.now.level];
    table.zoom.toggleAt(700, 300);
    while (levels.at(-1) !== goal && levels.length < 60) {
      clock.run(16);
      levels.push(table.zoom.now.level);
    }
    const ordered = [...levels].sort((a, b) => (goal > 1 ? a - b : b - a));
    assert.deepEqual(levels, ordered);
    assert.equal(levels.at(-1), goal);
    assert.ok(new Set(levels).size > 5, `${levels}`);
  }
});

test('the wheel with Ctrl enlarges about the pointer, and small steps add up', () => {
  const table = open();
  const pushes = [[-30, 3, Math.exp(0.9)], [-100, 20, 5], [100, 20, 1], [-1, 90, Math.exp(0.9)], [1, 88, 1],
    [-2, 1, Math.exp(0.4), 1]];
  for (const [deltaY, times, wanted, deltaMode = 0] of pushes) {
    for (let time = 0; time < times; time += 1) {
      assert.equal(table.wheel({ deltaY, deltaMode, clientX: 800, clientY: 300, ctrlKey: true }), true);
    }
    if (wanted > 1) lies(table, [800, 300], [800, 300], 'place');
    near(table.level, wanted, 0.01, `${times} of ${deltaY}`);
  }
});

test('an enlarged page follows wheel, keys and pointer, and never leaves the window', () => {
  const table = zoomed();
  const at = () => table.seen(0, 0);
  const [x, y] = at();
  assert.equal(table.wheel({ deltaX: 10, deltaY: 50 }), true);
  assert.deepEqual(at(), [x - 10, y - 50]);
  table.key('ArrowUp');
  assert.deepEqual(at(), [x - 10, y + 40]);
  table.drag([[640, 400], [600, 390], [580, 380]], { pause: 200 });
  clock.run(1000);
  assert.deepEqual(at(), [x - 70, y + 20]);
  table.drag([[640, 400], [600, 400], [560, 400]]);
  clock.run(1000);
  assert.ok(at()[0] < x - 250 && at()[1] === y + 20, `thrown, it glides on: ${at()}`);
  for (const [dx, dy] of [[5000, 5000], [-5000, -5000]]) {
    table.zoom.panBy(dx, dy);
    const { left, right, top, bottom } = table.book.boxOf(table.turner.current);
    const [begin, end] = [table.seen(left, top), table.seen(right, bottom)];
    assert.ok(begin[0] <= 20 && begin[1] <= 20 && end[0] >= 1260 && end[1] >= 780, `${begin} to ${end}`);
  }
  assert.deepEqual(table.pages, [4, 5]);
});

test('turning keeps the level, takes no time and begins at the top, where reading does', () => {
  for (const [rightToLeft, corner] of [[false, 'left'], [true, 'right']]) {
    const table = zoomed({ rightToLeft });
    table.turner.step(1);
    assert.deepEqual(table.pagesNow, [6, 7]);
    near(table.level, 2.5, 0, 'level');
    const box = table.book.boxOf(table.turner.current);
    lies(table, [box[corner], box.top], [corner === 'left' ? 14 : 1266, 14], corner);
    table.drag([[900, 300], [500, 300], [300, 300]]);
    table.wheel({ deltaY: 40 });
    assert.deepEqual(table.pages, [6, 7]);
  }
});

test('two fingers enlarge; whole pages give way to them, and come back like those that are hardly enlarged', () => {
  for (const [from, to, least, most] of [[200, 100, 0.75, 0.9], [150, 154, 1.01, 1.04], [60, 180, 2.95, 3.05]]) {
    const table = open(PHONE);
    const fingers = (type, apart) => [-1, 1].forEach((side, id) =>
      table.pointer(type, 150 + (side * apart) / 2, 500, { id }));
    fingers('down', from);
    for (let step = 1; step <= 100; step += 1) fingers('move', from * (to / from) ** (step / 100));
    const { level } = table.zoom.now;
    assert.ok(level > least && level < most, `${level}`);
    if (most > 1) lies(table, [150, 500], [150, 500], 'place');
    fingers('up', to);
    if (most > 2) near(table.level, 3, 0.05, 'level afterwards');
    else assert.deepEqual([table.level, table.zoom.active, ...table.seen(0, 0)], [1, false, 0, 0]);
    assert.deepEqual(table.pages, [2]);
  }
});
