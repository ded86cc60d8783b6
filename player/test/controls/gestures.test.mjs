import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { PHONE, Table } from '../support/table.mjs';

const finger = { pointerType: 'touch' };
const ENLARGED = 'enlarged';

/**
 * Taps: where, by what, whether words are there (undefined: it is known of no page), where one leads at once and in
 * the end (0: it only shows the bar), and two.
 */
const taps = [
  [{}, 1130, {}, undefined, 6, 6, 8], [{}, 1240, {}, undefined, 6, 6, 8], [{}, 150, {}, undefined, 2, 2, 1],
  [{}, 1040, {}, undefined, 4, 6, ENLARGED], [{}, 700, {}, undefined, 0, 0, ENLARGED],
  [{ rightToLeft: true }, 1130, {}, undefined, 2, 2, 1],
  [PHONE, 374, finger, undefined, 3, 3, ENLARGED], [PHONE, 20, finger, undefined, 1, 1, ENLARGED],
  [PHONE, 300, finger, undefined, 2, 3, ENLARGED], [PHONE, 160, finger, undefined, 0, 0, ENLARGED],
  [{}, 1130, {}, true, 0, 0, 4], [{}, 1130, finger, true, 4, 6, ENLARGED], [{}, 1130, finger, false, 6, 6, 8],
  [{}, 1130, finger, null, 6, 6, ENLARGED], [{}, 1240, finger, true, 6, 6, 8], [{}, 1040, {}, false, 0, 0, ENLARGED],
];
test('taps turn at the edges, at once where no second can mean enlarging, and show the bar in the middle', () => {
  for (const [settings, x, by, words, atOnce, inTheEnd, twice] of taps) {
    const what = JSON.stringify([settings, x, by, words]);
    const tapped = (...ways) => {
      const table = new Table(settings);
      if (words !== undefined) table.gestures.textAt = () => words;
      for (const way of ways) {
        table.tap(x + way, 300, by);
        clock.run(100);
      }
      return table;
    };
    const page = settings.page ?? 4;
    const one = tapped(0);
    assert.equal(one.book.views.pagesOf(one.turner.destination)[0], atOnce || page, `${what}: at once`);
    assert.deepEqual([one.pages[0], one.middleTaps], [inTheEnd || page, inTheEnd ? 0 : 1], `${what}: in the end`);
    const two = tapped(0, 5);
    assert.equal(two.level, twice === ENLARGED ? 2.5 : 1, `${what}: level after two`);
    const reached = twice === ENLARGED ? page : twice;
    assert.deepEqual([two.pages[0], two.middleTaps], [reached, inTheEnd ? 0 : 2], `${what}: two`);
  }
});

test('two taps that are slow, far from each other, long, or answered by the page are no double tap', () => {
  for (const [second, pause, answered] of [[700, 320], [740, 50], [700, 50, true]]) {
    const table = new Table();
    table.gestures.answersTap = () => answered;
    table.tap(700, 300);
    clock.run(pause);
    table.tap(second, 300);
    assert.equal(table.level, 1);
  }
  const table = new Table();
  table.tap(1040, 300);
  table.tap(700, 300);
  assert.deepEqual([...table.pages, table.middleTaps], [6, 7, 1], 'one elsewhere lets the first turn');
  table.turner.onTurn = () => assert.fail('turned meanwhile');
  for (let tap = 0; tap < 2; tap += 1) table.tap(1040, 300);
  assert.equal(table.level, 2.5);
  table.tap(700, 300, { pause: 500 });
  assert.equal(table.middleTaps, 1, 'held for long');
});

/** Drags from page 4 of a spread: places, milliseconds between them and before letting go, the page that is reached. */
const drags = [
  [[1100, 800, 300], 100, 6], [[200, 500, 1000], 100, 2], [[1100, 1050, 1000], 200, 4], [[1100, 1060, 1040], 16, 6],
  [[1100, 300, 340, 400], 16, 4], [[1100, 300, 340, 400], 16, 6, 200], [[700, 706], 16, 4],
];
test('pages dragged far enough or flicked turn, others fall back', () => {
  for (const turn of ['curl', 'flip', 'slide']) {
    for (const [places, pause, page, rest = pause] of drags) {
      for (const rightToLeft of [false, true]) {
        const table = new Table({ look: { turn }, rightToLeft });
        table.drag(places.map((x) => [rightToLeft ? 1280 - x : x, 300]), { pause, rest, ...finger });
        assert.equal(table.pages[0], page, `${turn}, ${places}, right to left: ${rightToLeft}`);
        assert.equal(table.turner.turning, false);
      }
    }
  }
});

test('nothing is dragged beyond the ends, by a second finger or another button, or after the pointer was lost', () => {
  const table = new Table({ page: 1 });
  table.drag([[700, 300], [900, 300], [1100, 300]]);
  table.drag([[900, 300], [500, 300], [200, 300]], { button: 2 });
  table.pointer('down', 900, 300);
  table.pointer('move', 500, 300, { id: 2 });
  table.pointer('up', 500, 300, { id: 2 });
  assert.deepEqual(table.pages, [1]);
  table.pointer('move', 300, 300);
  assert.equal(table.turner.turning, true);
  table.pointer('cancel', 300, 300);
  assert.deepEqual(table.pages, [1]);
});

test('where readers want little motion a swipe turns at its end', () => {
  for (const [to, rightToLeft, page] of [[800, false, 6], [800, true, 2], [965, false, 4], [1200, false, 2]]) {
    const table = new Table({ rightToLeft });
    table.turner.calm = { matches: true };
    table.drag([[1000, 300], [to, 300]]);
    assert.equal(table.pagesNow[0], page);
  }
});

/** Settings, a place of the mouse, and the page whose corner it lifts. */
const corners = [[{}, 1140, 60, 6], [{}, 1140, 715, 6], [{}, 140, 60, 2], [{}, 1140, 300, 0], [{}, 1230, 60, 0],
  [{ width: 500, height: 900 }, 450, 170, 5], [{ width: 500, height: 900 }, 40, 170, 0]];
test('a corner under the mouse lifts, falls when the mouse leaves it, and does not hinder a turn the other way', () => {
  for (const [settings, x, y, page] of corners) {
    const table = new Table(settings);
    table.pointer('move', x, y);
    const { leaf } = table.turner;
    assert.equal(leaf && table.book.views.pagesOf(leaf.to)[0], page || null, `${x}, ${y}`);
    table.pointer('move', 240, 300);
    assert.deepEqual([table.pages[0], table.turner.leaf], [4, null]);
    table.pointer('move', x, y);
    table.key('PageUp');
    assert.equal(table.pages[0], settings.width ? 3 : 2);
  }
});

test('one push of the wheel turns one page, and small ones or with Ctrl as they are meant', () => {
  const pushes = [[{ deltaY: 40 }, 6], [{ deltaY: -40 }, 2], [{ deltaX: 40, deltaY: 5 }, 6], [{ deltaY: 7 }, 4],
    [{ deltaY: 40, ctrlKey: true }, 4]];
  for (const [details, page] of pushes) {
    const table = new Table();
    for (let part = 0; part < 5; part += 1) {
      table.wheel(details);
      clock.run(150);
    }
    assert.equal(table.pages[0], page, JSON.stringify(details));
  }
});

const keys = [['ArrowRight', 6, 2], ['ArrowLeft', 2, 6], ['PageDown', 6, 6], ['PageUp', 2, 2], [' ', 6, 6],
  [' ', 2, 2, { shiftKey: true }], ['Home', 1, 1], ['End', 8, 8], ['x', 4, 4], ['ArrowRight', 4, 4, { ctrlKey: true }]];
test('keys turn, the arrows as pages lie', () => {
  for (const [key, page, mirrored, held] of keys) {
    const [table, other] = [new Table(), new Table({ rightToLeft: true })];
    other.key(key, held);
    assert.equal(other.pages[0], mirrored, `${key}, right to left`);
    assert.equal(table.key(key, held), page !== 4, key);
    assert.equal(table.pages[0], page, key);
  }
});
