import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Table } from '../support/table.mjs';
import { fittingMargins, layOut } from '../../src/book/layout.js';
import { fullLabel, labelOf, pageNamed } from '../../src/book/labels.js';
import { Views } from '../../src/book/views.js';

const { fitted } = await import('../../src/book/face.js');

test('pages are dealt out two by two from the first where it does not stand alone', () => {
  for (const count of [1, 2, 3, 4]) {
    const views = new Views(count, true, false, false);
    const pages = Array.from({ length: views.count }, (_, view) => views.pagesOf(view));
    assert.deepEqual(pages, [[1, 2], [3, 4]].map((pair) => pair.filter((page) => page <= count)).filter(({ length }) => length));
    pages.forEach((shown, view) => shown.forEach((page) => assert.equal(views.viewOf(page), view)));
  }
  assert.deepEqual(new Views(4, true, true, false).at(1), { left: 4, right: 3 });
});

const dealt = [[[1]], [[1], [2]], [[1], [2, 3]], [[1], [2, 3], [4]], [[1], [2, 3], [4, 5]]];
test('pages are dealt out to views, two by two after the cover', () => {
  for (const wanted of dealt) {
    for (const [spread, pages] of [[true, wanted], [false, wanted.flat().map((page) => [page])]]) {
      const views = new Views(wanted.flat().length, spread, false);
      assert.deepEqual(Array.from({ length: views.count }, (_, view) => views.pagesOf(view)), pages);
      pages.forEach((shown, view) => shown.forEach((page) => assert.equal(views.viewOf(page), view)));
    }
  }
  const views = new Views(9, true, true);
  assert.deepEqual([views.at(0), views.at(1)], [{ left: 1, right: 0 }, { left: 3, right: 2 }]);
  assert.deepEqual([views.viewOf(0), views.viewOf(99), views.clamp(-1), views.clamp(9)], [0, 4, 0, 4]);
});

/** Windows: width, height, shape of a page, two pages side by side, whether they are higher than the window. */
const windows = [
  [1280, 800, 3 / 4, true], [1280, 800, 16 / 9, false], [390, 844, 3 / 4, false], [844, 390, 3 / 4, false, true],
  [320, 300, 3 / 4, false, true], [800, 800, 3 / 4, false], [1800, 500, 16 / 9, true], [2560, 1440, 1 / 8, false, true],
  [844, 390, 1, true], [844, 390, 16 / 9, false], [390, 844, 0.4, false, true],
];
test('readers choose one page, two, or all of the width, which no window contradicts', () => {
  const of = { margins: { top: 0, right: 0, bottom: 0, left: 0 }, pageCount: 9, rightToLeft: false };
  for (const [choice, width, height, aspect, spread, pageWidth] of [
    ['one', 1280, 800, 0.75, false, 573], ['two', 390, 844, 0.75, true, 195], ['width', 390, 844, 0.75, false, 390],
    ['width', 1280, 720, 0.75, true, 634], ['width', 1280, 800, 1.6, false, 1268], ['width', 1600, 900, 0.3, false, 1588],
  ]) {
    for (const maySpread of [true, choice === 'two' ? false : true]) {
      const laid = layOut({ ...of, width, height, aspect, choice, maySpread });
      assert.deepEqual([laid.spread, laid.pageWidth], [spread, pageWidth], `${choice}, ${width} by ${height}, ${aspect}`);
    }
  }
});

test('the book is whole and as large as the window lets it be, in its shape and in the middle', () => {
  for (const [width, height, aspect, spread, scrolls = false] of windows) {
    for (const rightToLeft of [false, true]) {
      const what = `${width} by ${height}, ${aspect}`;
      const margins = fittingMargins({ top: 10, right: 40, bottom: 12, left: 60 }, width, height);
      const table = { width, height, margins, aspect, pageCount: 9, rightToLeft, maySpread: true, choice: 'auto' };
      const laid = layOut(table);
      assert.deepEqual([laid.spread, laid.scrolls], [spread, scrolls], what);
      assert.equal(layOut({ ...table, maySpread: false }).spread, false);
      assert.deepEqual([1, 2].map((pageCount) => layOut({ ...table, pageCount }).spread), [false, spread]);
      const { pageWidth, pageHeight, bookLeft, bookTop, spineX } = laid;
      const bookWidth = pageWidth * (spread ? 2 : 1);
      const across = width - margins.left - margins.right;
      assert.ok(Math.abs(pageWidth - pageHeight * aspect) <= 1, `${what}: shape`);
      assert.ok(Math.abs(bookLeft + bookWidth / 2 - margins.left - across / 2) <= 1, `${what}: middle`);
      assert.ok(bookWidth >= Math.min(1000, across - 12) || pageHeight >= height * 0.95, `${what}: large`);
      assert.equal(spineX - bookLeft, spread || rightToLeft ? pageWidth : 0, `${what}: spine`);
      const room = [bookLeft - margins.left, bookTop - margins.top, height - margins.bottom - bookTop - pageHeight];
      assert.ok(room.every((free, index) => free >= [0, 5, scrolls ? -Infinity : 5][index]), `${what}: ${room} free at left, top and bottom`);
    }
  }
});

test('margins made for a desk take nothing from the page of a phone', () => {
  const margins = { top: 100, right: 30, bottom: 400, left: 0 };
  assert.deepEqual(fittingMargins(margins, 1280, 800), { top: 100, right: 30, bottom: 160, left: 0 });
  assert.deepEqual(fittingMargins(margins, 390, 844), { top: 0, right: 0, bottom: 0, left: 0 });
  const { pageWidth } = layOut({ width: 390, height: 844, margins: fittingMargins(margins, 390, 844), aspect: 0.7,
    pageCount: 9, rightToLeft: false, maySpread: true, choice: 'auto' });
  assert.equal(pageWidth, 390);
});

test('a page that stands alone is in the middle, of the window and of what a panel leaves of it', () => {
  for (const [rightToLeft, beside] of [[false, 0], [true, 0], [false, 300]]) {
    const { book } = new Table({ count: 4, rightToLeft });
    book.beside = beside;
    book.resize();
    for (const [view, pages] of [[0, 1], [1, 2], [2, 1]]) {
      const { left, right, top, bottom } = book.boxOf(view);
      assert.ok(Math.abs(left + right - 1280 - (beside && beside - 10)) <= 2, `view ${view}: ${left} to ${right}`);
      assert.deepEqual([right - left, bottom - top], [book.layout.pageWidth * pages, book.layout.pageHeight]);
    }
  }
});

test('the edges of the pages beneath are as thick as what has been read and what has not', () => {
  const edges = [[{}, 1, 5], [{ rightToLeft: true }, 5, 1], [{ page: 1 }, 0, 6], [{ look: { binding: 'no' } }, 0, 0],
    [{ width: 400 }, 0, 0]];
  for (const [settings, ...thick] of edges) {
    const { style } = new Table({ count: 60, page: 10, ...settings }).book.root;
    assert.deepEqual([style['--stack-left'], style['--stack-right']].map(parseFloat), thick, JSON.stringify(settings));
  }
});

test('a picture of another shape lies whole in the middle of its page, and one nearly of its shape fills it', () => {
  assert.deepEqual(fitted(160, 80, 120, 160), { x: 0, y: 50, width: 120, height: 60 });
  assert.deepEqual(fitted(50, 100, 120, 160), { x: 20, y: 0, width: 80, height: 160 });
  assert.deepEqual(fitted(1000, 1004, 500, 500), { x: 0, y: 0, width: 500, height: 500 });
});

test('pages are found by what they are called, else by their numbers', () => {
  const labels = ['i', 'II', 'A', 'a', '', '3', '12'];
  const named = [['II', 2], [' ii ', 2], ['a', 4], ['A', 3], ['3', 6], ['12', 7], ['4', 4], ['ii\u20133', 2]];
  const numbered = [['4-5', 4], [' 4\u20135 ', 4], ['7', 7], ['8', 0], ['0', 0], ['-4', 0], ['1e1', 0], ['', 0]];
  for (const [text, page] of named) assert.equal(pageNamed({ labels, pages: labels }, text), page, text);
  for (const [text, page] of numbered) assert.equal(pageNamed({ labels: null, pages: labels }, text), page, text);
  assert.deepEqual([1, 5, 7].map((page) => labelOf({ labels }, page)), ['i', '5', '12']);
  assert.deepEqual([1, 5, 6].map((page) => fullLabel({ labels }, page)), ['i (1)', '5', '3 (6)']);
});
