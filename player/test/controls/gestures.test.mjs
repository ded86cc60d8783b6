import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { PHONE, Table } from '../support/table.mjs';

const finger = { pointerType: 'touch' };
const onPhone = { ...PHONE, page: 2 };

/**
 * Taps: where, by what, what is known of words there (undefined: of no page), where one tap leads at once and in the
 * end (0: it only shows the bar), and two.
 */
const taps = [
  ['edge of a spread', {}, 1130, {}, undefined, 6, 6, 8], ['margin beside it', {}, 1240, {}, undefined, 6, 6, 8],
  ['left edge', {}, 150, {}, undefined, 2, 2, 1], ['a little inside', {}, 1040, {}, undefined, 4, 6, 'enlarged'],
  ['middle', {}, 700, {}, undefined, 0, 0, 'enlarged'], ['edge, right to left', { rightToLeft: true }, 1130, {}, undefined, 2, 2, 1],
  ['edge of a page alone', onPhone, 374, finger, undefined, 3, 3, 'enlarged'], ['its left edge', onPhone, 20, finger, undefined, 1, 1, 'enlarged'],
  ['inside its edge', onPhone, 300, finger, undefined, 2, 3, 'enlarged'], ['its middle', onPhone, 160, finger, undefined, 0, 0, 'enlarged'],
  ['words at the edge', {}, 1130, {}, true, 0, 0, 4], ['words under a finger', {}, 1130, finger, true, 4, 6, 'enlarged'],
  ['no words at the edge', {}, 1130, finger, false, 6, 6, 8], ['nobody knows of words', {}, 1130, finger, null, 6, 6, 'enlarged'],
  ['far beside words', {}, 1240, finger, true, 6, 6, 8], ['inside, words known', {}, 1040, {}, false, 0, 0, 'enlarged'],
];
test('taps turn at the edges, at once where no second can mean enlarging, and show the bar in the middle', () => {
  for (const [what, settings, x, by, words, atOnce, inTheEnd, twice] of taps) {
    const open = () => {
      const table = new Table(settings);
      if (words !== undefined) table.gestures.textAt = () => words;
      return table;
    };
    const one = open();
    const [before] = one.pagesNow;
    one.tap(x, 300, by);
    const goal = () => one.book.views.pagesOf(one.turner.destination)[0];
    assert.equal(goal(), atOnce || before, `${what}: at once`);
    assert.equal(one.pages[0], inTheEnd || before, `${what}: in the end`);
    assert.equal(one.middleTaps, inTheEnd ? 0 : 1, `${what}: bar`);
    const two = open();
    two.tap(x, 300, by);
    clock.run(150);
    two.tap(x + 5, 305, by);
    assert.equal(two.level, twice === 'enlarged' ? 2.5 : 1, `${what}: level after two`);
    assert.equal(two.pages[0], twice === 'enlarged' ? before : twice, `${what}: pages after two`);
    assert.equal(two.middleTaps, inTheEnd ? 0 : 2, `${what}: bar after two`);
  }
});

test('two taps that are slow, far from each other, long, or answered by the page are no double tap', () => {
  const second = [[(t) => t.tap(700, 300), 320], [(t) => t.tap(740, 300), 50], [(t) => t.drag([[700, 300]], { pause: 500 }), 50]];
  for (const [act, pause] of second) {
    const table = new Table();
    table.tap(700, 300);
    clock.run(pause);
    act(table);
    assert.equal(table.level, 1);
  }
  const table = new Table();
  table.gestures.answersTap = () => true;
  for (let tap = 0; tap < 2; tap += 1) table.tap(1130, 300);
  assert.deepEqual([table.level, table.middleTaps, ...table.pages], [1, 0, 4, 5]);
});

test('a second tap elsewhere lets the first one turn', () => {
  const table = new Table();
  table.tap(1040, 300);
  table.tap(700, 300);
  assert.deepEqual([...table.pages, table.middleTaps], [6, 7, 1]);
});

/** Drags of a finger from page 4 of a spread: places, milliseconds between them and before it lets go, page reached. */
const drags = [
  ['across', [[1100, 300], [800, 300], [300, 300]], 100, 6], ['back across', [[200, 300], [500, 300], [1000, 300]], 100, 2],
  ['hardly, slowly', [[1100, 300], [1050, 300], [1000, 300]], 200, 4], ['a flick', [[1100, 300], [1060, 300], [1040, 300]], 16, 6],
  ['across and flicked back', [[1100, 300], [300, 300], [340, 300], [400, 300]], 16, 4],
  ['across, with a rest', [[1100, 300], [300, 300], [340, 300], [400, 300]], 16, 6, 200], ['up', [[700, 300], [704, 100]], 16, 4],
  ['less than a drag', [[700, 300], [706, 300]], 16, 4],
];
test('pages dragged far enough or flicked turn, others fall back', () => {
  for (const rightToLeft of [false, true]) {
    for (const turn of ['curl', 'flip', 'slide']) {
      for (const [what, places, pause, page, rest = pause] of drags) {
        const table = new Table({ look: { turn }, rightToLeft });
        const mirrored = places.map(([x, y]) => [rightToLeft ? 1280 - x : x, y]);
        table.drag(mirrored, { pause, rest, ...finger });
        assert.equal(table.pages[0], page, `${turn}, ${what}, right to left: ${rightToLeft}`);
        assert.equal(table.turner.turning, false);
      }
    }
  }
});

test('nothing is dragged beyond the ends, by a second finger, or after the pointer was lost', () => {
  const table = new Table({ page: 1 });
  table.drag([[700, 300], [900, 300], [1100, 300]]);
  assert.deepEqual(table.pages, [1]);
  table.pointer('down', 900, 300);
  table.pointer('move', 500, 300, { id: 2 });
  table.pointer('up', 500, 300, { id: 2 });
  assert.deepEqual(table.pages, [1]);
  table.pointer('move', 300, 300);
  assert.equal(table.turner.turning, true);
  table.pointer('cancel', 300, 300);
  assert.deepEqual(table.pages, [1]);
  table.drag([[900, 300], [500, 300], [200, 300]], { button: 2 });
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

test('a corner under the mouse lifts, and falls when the mouse leaves it', () => {
  const single = { width: 500, height: 900 };
  const peeks = [[{}, 1140, 60, 6], [{}, 1140, 715, 6], [{}, 140, 60, 2], [{}, 1140, 300, 0], [{}, 1060, 60, 0], [{}, 1170, 60, 0],
    [single, 450, 170, 5], [single, 40, 170, 0]];
  for (const [settings, x, y, page] of peeks) {
    const table = new Table(settings);
    table.pointer('move', x, y);
    const { leaf } = table.turner;
    assert.equal(leaf && table.book.views.pagesOf(leaf.to)[0], page || null, `${x}, ${y}`);
    clock.run(3000);
    assert.deepEqual([table.turner.leaf, table.turner.turning], [leaf, false]);
    table.gestures.isOver = () => page === 6;
    table.pointer('move', page === 6 ? x : 240, page === 6 ? y : 300);
    assert.deepEqual([table.pages[0], table.turner.leaf], [4, null]);
  }
});

test('a lifted corner is no hindrance to turning the other way', () => {
  const table = new Table();
  table.pointer('move', 1140, 60);
  table.key('ArrowLeft');
  assert.deepEqual(table.pages, [2, 3]);
});

test('one push of the wheel turns one page, and small ones, sideways or with Ctrl as they are meant', () => {
  const pushes = [[{ deltaY: 40 }, 6], [{ deltaY: -40 }, 2], [{ deltaX: 40, deltaY: 5 }, 6], [{ deltaY: 7 }, 4], [{ deltaY: 40, ctrlKey: true }, 4]];
  for (const [details, page] of pushes) {
    const table = new Table();
    for (let part = 0; part < 5; part += 1) {
      table.wheel(details);
      clock.run(150);
    }
    assert.equal(table.pages[0], page, JSON.stringify(details));
  }
});

const keys = [['ArrowRight', 6], ['ArrowLeft', 2], ['PageDown', 6], ['PageUp', 2], [' ', 6], [' ', 2, { shiftKey: true }], ['Home', 1],
  ['End', 8], ['x', 4], ['ArrowRight', 4, { ctrlKey: true }], ['ArrowRight', 4, { altKey: true }], ['ArrowRight', 4, { metaKey: true }]];
test('keys turn, the arrows as pages lie', () => {
  for (const rightToLeft of [false, true]) {
    for (const [key, page, held] of keys) {
      const table = new Table({ rightToLeft });
      assert.equal(table.key(key, held), page !== 4, key);
      const turned = rightToLeft && key.startsWith('Arrow') ? 8 - page : page;
      assert.equal(table.pages[0], turned, `${key}, right to left: ${rightToLeft}`);
    }
  }
});
