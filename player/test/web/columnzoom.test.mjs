import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { PHONE, Table } from '../support/table.mjs';

const { showColumn } = await import('../../web/columnzoom.js');
const { columnsOf } = await import('../../web/columns.js');
const { PageText } = await import('../../web/pagetext.js');

/** Two columns of 20 lines of a page of 600 by 800 points. */
const text = new PageText({ size: [6000, 8000], lines: Array.from({ length: 20 }, (_, row) =>
  [600, 3200].map((x) => [x, 1000 + row * 300, 2200, 140, 0, 0, ['word', 0, 60]])).flat() });

/** A book whose pages have that text, with a picture that leaves a tenth of each free on all sides. */
function laid(settings) {
  const table = new Table(settings);
  const { left, right, top, bottom } = table.book.boxOf(table.turner.current);
  const [width, height] = [right - left, bottom - top];
  const over = { offsetWidth: width, offsetHeight: height, getBoundingClientRect: () => ({ left, right }) };
  const box = { offsetLeft: width / 10, offsetTop: height / 10, offsetWidth: width * 0.8, offsetHeight: height * 0.8,
    clientHeight: height * 0.8 };
  const face = { position: 2, text, over, box };
  table.reading.columnsOf = (_, whole) => columnsOf(face, whole);
  table.gestures.textAt = () => ({});
  const share = (part) => left + width * (0.1 + 0.8 * part);
  return { table, share, show: (x, y) => showColumn(table, { faces: [{ ...face, position: 0 }, face] }, x, y) };
}

test('a column is as wide as the window and stays at its height', () => {
  for (const [from, to, next] of [[0.1, 0.467, 0], [0.533, 0.9, 1]]) {
    const { table, share, show } = laid(PHONE);
    const y = 400;
    assert.equal(show(share((from + to) / 2), y), true);
    clock.run(2000);
    const [begin, end] = [from, to].map((part) => table.seen(share(part), y));
    assert.ok(begin[0] > 4 && begin[0] < 26 && end[0] < 386 && end[0] > 364, `${begin} to ${end}`);
    assert.ok(Math.abs(begin[1] - y) < 1, `at ${begin[1]}`);
    assert.equal(table.reading.led.column, next);
  }
});

test('no column is shown where there is no text, or where it gains nothing', () => {
  const { table, share, show } = laid(PHONE);
  table.gestures.textAt = () => null;
  assert.equal(show(share(0.3), 400), false);
  table.gestures.textAt = () => ({});
  table.reading.columnsOf = (_, whole) => [whole];
  assert.equal(show(share(0.3), 400), false);
  assert.equal(table.level, 1);
});

test('in a wide window lines are not enlarged beyond what one reads', () => {
  const { table, share, show } = laid({ width: 2400, height: 1000, look: { pages: 'single' }, page: 2 });
  assert.equal(show(share(0.3), 400), true);
  const { top, bottom } = table.book.boxOf(table.turner.current);
  const line = (0.8 * (bottom - top) * text.lineHeight) / text.height;
  assert.ok(Math.abs(table.level * line - 40) < 0.01, `${table.level * line}`);
});
