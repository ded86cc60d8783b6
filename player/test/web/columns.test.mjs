import assert from 'node:assert/strict';
import { test } from 'node:test';
import { columnsIn } from '../../web/columns.js';
import { PageText } from '../../web/pagetext.js';

/** Lines of 100 by 1000, x and width given by column, from y on. */
const lines = (columns, { count = 30, y = 1000, turn = 0, rtl = 0 } = {}) => Array.from({ length: count }, (_, row) =>
  columns.map(([x, width]) => [x, y + row * 200, width - (row % 4) * 60, 140, turn, rtl, ['word', 0, 60]])).flat();
const TITLE = [900, 300, 4200, 200, 0, 0, ['title', 0, 60]];
const NUMBER = [2900, 7600, 200, 140, 0, 0, ['12', 0, 60]];
const TWO = [[600, 2200], [3200, 2200]];
const THREE = [[600, 1400], [2200, 1400], [3800, 1400]];

/** What a page has, and left and right edges of its columns, in the page's units. */
const pages = [
  ['one column', lines([[600, 4800]]), [[600, 5400]]],
  ['two below a title', [TITLE, ...lines(TWO), NUMBER], [[600, 2800], [3200, 5400]]],
  ['three', lines(THREE), [[600, 2000], [2200, 3600], [3800, 5200]]],
  ['two from right to left', lines(TWO, { rtl: 1 }), [[3200, 5400], [600, 2800]]],
  ['a table', lines([[600, 400], [1500, 400], [2400, 400], [3300, 400], [4200, 900]]), [[600, 5100]]],
  ['a list of options in a text', [...lines([[600, 4800]], { count: 8 }),
    ...lines([[800, 1300], [2800, 2000]], { count: 6, y: 3000 })], [[600, 5400]]],
  ['a stamp at the margin', [...lines([[600, 4800]]), ...lines([[100, 140]], { turn: 90, count: 1 })], [[600, 5400]]],
];
test('columns are told from titles, tables and what stands at the margin', () => {
  for (const [what, raw, wanted] of pages) {
    const columns = columnsIn(new PageText({ size: [6000, 8000], lines: raw }));
    assert.equal(columns.length, wanted.length, what);
    columns.forEach(({ left, right }, index) => {
      const [from, to] = wanted[index];
      assert.ok(Math.abs(left * 6000 - from) < 140 && Math.abs(right * 6000 - to) < 140, `${what}: ${left} to ${right}`);
    });
    assert.deepEqual([columns[0].top, columns.at(-1).bottom], [0, 1], what);
  }
  assert.deepEqual(columnsIn(new PageText({})), []);
});
