import assert from 'node:assert/strict';
import { test } from 'node:test';
import { chunksOf, partsOf, textOfBlock } from '../../web/readingblocks.js';
import { looksOf } from '../../web/readinglooks.js';

const chunked = (raw, [first, last], isOpen = () => true) => chunksOf(raw, { first, last }, { pageCount: 99, isOpen });
const p = (page, ...text) => ({ kind: 'p', page, text: text.map((one) => (one === +one ? one : one.padEnd(300))) });
/** Kinds of blocks, with the page of each that begins one. */
const shape = (chunks) => chunks.map(({ blocks }) =>
  blocks.map(({ kind, page, begins }) => kind.slice(0, 2) + (begins ? page : '')).join(' '));

test('pages without text have a picture, and those that a preview leaves out one note', () => {
  const raw = [p(2, 'a'), p(2, 'b', 4, 'c'), p(7, 'd')];
  assert.deepEqual(shape(chunked(raw, [1, 9], (page) => page < 8)), ['pi1 pa2 pa pi3 pi5 pi6', 'pa7 cl8']);
});

test('pages with few words are shown where most of a book has such pages', () => {
  const few = (page) => ({ kind: 'p', page, text: [`Of ${page}`] });
  assert.deepEqual(shape(chunked([few(1), p(2, 'a'), few(3), few(3)], [1, 4])), ['pi1 pa pa2 pi3 pa pa pi4']);
  assert.deepEqual(shape(chunked([few(1), p(2, 'a'), p(3, 'b')], [1, 3])), ['pa1 pa2 pa3']);
});

test('a figure stands for a page without text, lies within its page, and is not shown twice', () => {
  const figure = (page, box, ...text) => ({ kind: 'figure', page, box, size: [6000, 8000], text });
  const few = { kind: 'p', page: 3, text: ['few'] };
  const raw = [p(1, 'a'), figure(2, [600, 800, 3000, 2000]), p(3, 'a'), figure(3, [-9, 7000, 9e9, 2000])];
  const [{ blocks }] = chunked(raw, [1, 3]);
  assert.deepEqual(shape([{ blocks }]), ['pa1 fi2 pa3 fi']);
  const { x, y, width, height, points, ratio } = blocks[1].figure;
  assert.deepEqual([x, y, width, height, points, ratio], [0.1, 0.1, 0.5, 0.25, 300, 1.5]);
  assert.deepEqual(Object.values(blocks[3].figure).slice(0, 4), [0, 0.875, 1, 0.125]);
  assert.deepEqual(shape(chunked([p(1, 'a'), figure(2, []), few, figure(3, [], 'caption')], [1, 3])), ['pa1 pi2 pi3 pa pa']);
});

test('a page is numbered where the text comes back to it behind the figures of the next', () => {
  const raw = [p(1, 'a', 3, 'a'), p(2, 'figure'), p(3, 'b', 4, 'c'), p(3, 'its note'), p(4, 'd')];
  const [{ pages, last, blocks }] = chunked(raw, [1, 4]);
  assert.deepEqual(shape([{ blocks }]), ['pa1 pa2 pa3 pa pa']);
  assert.deepEqual([[...pages], last], [[1, 3, 2, 4], 4]);
});

test('chunks begin with pages and leave nothing out', () => {
  const raw = Array.from({ length: 90 }, (_, index) => p(1 + Math.floor(index / 9), `${index} `.repeat(200)));
  const chunks = chunked(raw, [1, 10]);
  assert.ok(chunks.length > 4);
  assert.ok(chunks.every(({ blocks }) => blocks[0].begins));
  assert.equal(chunks.flatMap(({ blocks }) => blocks).map(textOfBlock).join(''), raw.map(({ text }) => text[0]).join(''));
});

test('parts of a text have all pages, also of one whose rest is in the next', () => {
  const parts = partsOf([3, 3, 9], 12);
  assert.deepEqual(parts, [{ first: 1, last: 2 }, { first: 3, last: 8 }, { first: 9, last: 12 }]);
  assert.deepEqual(shape(chunksOf([p(3, 'a')], parts[0], { pageCount: 12, isOpen: () => true })), ['pi1 pi2 pa3']);
});

test('what is stored or in a file may be anything', () => {
  assert.deepEqual([undefined, 'x', { size: 'a', face: 'Comic', width: [], colours: 3 }].map(looksOf),
    Array(3).fill({ size: 3, width: 'medium', face: 'serif', colours: '' }));
  assert.equal(looksOf({ size: 99 }).size, looksOf({ size: 9 }).size);
  const wrong = [null, 7, { kind: 'script', page: 199, text: 'x' }, { kind: 'h9', text: [[], 1e9, {}, ['a', 'b', {}]] }];
  const [{ blocks }] = chunked(wrong, [2, 3]);
  assert.deepEqual(blocks.map(({ kind, page }) => kind + page), 
    ['picture2', 'paragraph2', 'paragraph2', 'picture3', 'picture99', 'paragraph99', 'paragraph2']);
  assert.deepEqual(blocks[6].runs, [{ text: '', style: 0, target: 0 }, { text: '', style: 0, target: 0 }, { text: 'a', style: 0, target: 0 }]);
});
