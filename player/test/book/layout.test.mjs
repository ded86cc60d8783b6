import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Table } from '../support/table.mjs';
import { fittingMargins, layOut } from '../../src/book/layout.js';
import { fullLabel, labelOf, pageNamed } from '../../src/book/labels.js';
import { Views } from '../../src/book/views.js';

const { fitted } = await import('../../src/book/face.js');

const dealt = [[1, [[1]]], [2, [[1], [2]]], [3, [[1], [2, 3]]], [4, [[1], [2, 3], [4]]], [5, [[1], [2, 3], [4, 5]]]];
test('pages are dealt out to views, two by two after the cover', () => {
  for (const [count, wanted] of dealt) {
    for (const rightToLeft of [false, true]) {
      const views = new Views(count, true, rightToLeft);
      assert.deepEqual(Array.from({ length: views.count }, (_, view) => views.pagesOf(view)), wanted);
      for (const [view, pages] of wanted.entries()) for (const page of pages) assert.equal(views.viewOf(page), view);
    }
    const single = new Views(count, false, false);
    assert.deepEqual(Array.from({ length: single.count }, (_, view) => single.at(view).right), wanted.flat());
  }
  const views = new Views(9, true, true);
  assert.deepEqual([views.at(0), views.at(1)], [{ left: 1, right: 0 }, { left: 3, right: 2 }]);
  assert.deepEqual([views.viewOf(0), views.viewOf(99), views.clamp(-1), views.clamp(9)], [0, 4, 0, 4]);
});

/** Windows: width, height, shape of a page, two pages side by side. */
const windows = [
  [1280, 800, 3 / 4, true], [1280, 800, 16 / 9, true], [390, 844, 3 / 4, false], [844, 390, 3 / 4, true], [320, 300, 3 / 4, false],
  [800, 800, 3 / 4, false], [1800, 500, 16 / 9, true], [2560, 1440, 1 / 8, true],
];
test('the book is whole and large within the window, in its shape, in the middle, and clear of the bar', () => {
  for (const [width, height, aspect, spread] of windows) {
    for (const rightToLeft of [false, true]) {
      const what = `${width} by ${height}, ${aspect}`;
      const margins = fittingMargins({ top: 40, right: 10, bottom: 20, left: 60 }, width, height);
      const table = { width, height, margins, aspect, pageCount: 9, rightToLeft, hasBar: true, maySpread: true };
      const laid = layOut(table);
      assert.equal(laid.spread, spread, what);
      assert.equal(layOut({ ...table, maySpread: false }).spread, false);
      assert.deepEqual([1, 2].map((pageCount) => layOut({ ...table, pageCount }).spread), [false, spread]);
      const { pageWidth, pageHeight, bookLeft, bookTop, spineX } = laid;
      const bookWidth = pageWidth * (spread ? 2 : 1);
      const area = { width: width - margins.left - margins.right, height: height - margins.top - margins.bottom };
      assert.ok(Math.abs(pageWidth - pageHeight * aspect) <= 1, `${what}: shape`);
      assert.ok(Math.abs(bookLeft + bookWidth / 2 - margins.left - area.width / 2) <= 1, `${what}: middle`);
      assert.ok(bookWidth > area.width * 0.85 || pageHeight > area.height * 0.8, `${what}: large`);
      assert.equal(spineX, bookLeft + (spread ? pageWidth : rightToLeft ? pageWidth : 0), `${what}: spine`);
      const room = [bookLeft - margins.left, bookTop - margins.top, height - margins.bottom - bookTop - pageHeight];
      const arrows = spread && area.height >= 480 ? 68 : 10;
      const least = [arrows, 10, area.height >= 480 ? 64 : 10];
      assert.ok(room.every((free, index) => free >= least[index]), `${what}: ${room} free at the left, top and bottom`);
      const bare = layOut({ ...table, hasBar: false });
      assert.ok(bare.pageHeight >= pageHeight && bare.bookTop >= margins.top + 10, `${what}: no bar`);
      assert.ok(height - margins.bottom - bare.bookTop - bare.pageHeight >= 9, `${what}: no bar, bottom`);
    }
  }
});

test('margins made for a desk do not eat the page of a phone', () => {
  const margins = { top: 100, right: 30, bottom: 400, left: 0 };
  assert.deepEqual(fittingMargins(margins, 1280, 800), { top: 100, right: 30, bottom: 160, left: 0 });
  assert.deepEqual(fittingMargins(margins, 390, 844), { top: 17, right: 8, bottom: 17, left: 0 });
});

test('a page that stands alone is in the middle, in the book and beside a panel', () => {
  for (const rightToLeft of [false, true]) {
    const { book } = new Table({ count: 4, rightToLeft });
    for (const view of [0, 1, 2]) {
      const { left, right, top, bottom } = book.boxOf(view);
      assert.ok(Math.abs(left + right - 1280) <= 2, `view ${view}: ${left} to ${right}`);
      assert.deepEqual([right - left, bottom - top], [book.layout.pageWidth * (view === 1 ? 2 : 1), book.layout.pageHeight]);
    }
    book.beside = 300;
    book.resize();
    assert.ok(Math.abs(book.boxOf(1).left + book.boxOf(1).right - 300 - 1270) <= 2);
  }
});

test('the edges of the pages beneath are as thick as what has been read and what has not', () => {
  const stacks = (page, further) => {
    const { style } = new Table({ count: 60, page, ...further }).book.root;
    return ['left', 'right'].map((side) => parseFloat(style[`--stack-${side}`]));
  };
  const [[left, right], mirrored] = [stacks(10), stacks(10, { rightToLeft: true })];
  assert.ok(left > 0 && right > 2 * left, `${left} and ${right}`);
  assert.deepEqual(mirrored, [right, left]);
  assert.deepEqual(stacks(1), [0, 6]);
  assert.deepEqual(stacks(10, { look: { binding: 'no' } }), [0, 0]);
  assert.deepEqual(stacks(10, { width: 400 }), [0, 0]);
});

test('a picture of another shape lies whole in the middle of its page, and one nearly of its shape fills it', () => {
  assert.deepEqual(fitted(160, 80, 120, 160), { x: 0, y: 50, width: 120, height: 60 });
  assert.deepEqual(fitted(50, 100, 120, 160), { x: 20, y: 0, width: 80, height: 160 });
  assert.deepEqual(fitted(1000, 1004, 500, 500), { x: 0, y: 0, width: 500, height: 500 });
});

const labels = ['i', 'ii', 'A', 'a', '', '3', '12'];
const named = [
  ['ii', 2], [' II ', 2], ['a', 4], ['A', 3], ['3', 6], ['12', 7], ['4', 4], ['ii\u20133', 2], ['7', 7], ['8', 0], ['0', 0],
  ['', 0], ['x', 0], ['-4', 0], ['1e1', 0],
];
const numbered = [['4-5', 4], [' 4\u20135 ', 4], ['4,5', 4], ['7', 7], ['8', 0], ['4-', 0], ['4 5', 0]];
test('pages are found by what they are called, else by their numbers', () => {
  const pages = labels.map(() => ({}));
  for (const [text, page] of named) assert.equal(pageNamed({ labels, pages }, text), page, text);
  for (const [text, page] of numbered) assert.equal(pageNamed({ labels: null, pages }, text), page, text);
  assert.deepEqual([1, 5, 7].map((page) => labelOf({ labels }, page)), ['i', '5', '12']);
  assert.deepEqual([1, 5, 6].map((page) => fullLabel({ labels }, page)), ['i (1)', '5', '3 (6)']);
  assert.equal(fullLabel({ labels: null }, 4), '4');
});
