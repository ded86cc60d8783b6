import assert from 'node:assert/strict';
import { test } from 'node:test';
import { caretIn, wordAround } from '../../web/carets.js';
import { PageText } from '../../web/pagetext.js';
import { PageTexts } from '../../web/pagetexts.js';

/** A page with one line of each kind: along, from right to left, turned by 90, 180 and 270 degrees. */
const page = new PageText({ size: [600, 800], lines: [
  [100, 100, 90, 20, 0, 0, ['abcd ', 0, 40, 'ef', 50, 40]],
  [100, 200, 90, 20, 0, 1, ['שלום ', 50, 40, 'ab ', 20, 20, '12', 0, 10]],
  [300, 100, 20, 90, 90, 0, ['abcd ', 0, 40, 'ef', 50, 40]], [400, 300, 90, 20, 180, 0, ['abcd ', 50, 40, 'ef', 0, 40]],
  [500, 100, 20, 90, 270, 0, ['abcd ', 50, 40, 'ef', 0, 40]],
], links: [[1, 2, 3, 4, 9], [1, 2, 3, 4, 'tel:1'], [1, 2, 0, NaN, -1], 7] });

test('a page is well formed whatever its file holds', () => {
  const wrong = { size: [0, Infinity], lines: [7, [], [1, 2, 3, 4, 5, 6, ['a']], [1, 2, 3, 4, 5, 6, [1, 2, 3]]] };
  for (const data of [undefined, 7, [], wrong]) {
    assert.deepEqual({ ...new PageText(data) }, { width: 6000, height: 8000, lines: [], parts: [], links: [] });
  }
  const { lines: [line] } = new PageText({ lines: [[NaN, 5, 0, -1, 45, true, ['a', 'x', -3, 'rest']]] });
  assert.deepEqual(line, { box: { x: 0, y: 5, width: 1, height: 1 }, turn: 0, rtl: false,
    words: [{ text: 'a', start: 0, length: 1 }] });
  assert.deepEqual(page.links.map(({ target }) => target), [9, 'tel:1', 0]);
  assert.deepEqual(page.links[2].box, { x: 1, y: 2, width: 1, height: 1 });
  assert.equal(page.string, 'abcd ef\nשלום ab 12\nabcd ef\nabcd ef\nabcd ef');
});

test('parts of the text lie where their letters are read, one box a line', () => {
  const boxes = (from, to) => page.boxesOf(from, to)
    .map(({ box: { x, y, width, height }, turn }) => [x, y, width, height, turn]);
  const places = [
    [0, 2, [100, 100, 20, 20, 0]], [2, 6, [120, 100, 50, 20, 0]], [4, 5], [8, 10, [170, 200, 20, 20, 0]],
    [13, 14, [120, 200, 10, 20, 0]], [16, 17, [100, 200, 5, 20, 0]], [19, 21, [300, 100, 20, 20, 90]],
    [27, 28, [480, 300, 10, 20, 180]], [35, 37, [500, 170, 20, 20, 270]],
    [5, 9, [150, 100, 40, 20, 0], [180, 200, 10, 20, 0]], [8, 14, [120, 200, 70, 20, 0]],
  ];
  for (const [from, to, ...wanted] of places) assert.deepEqual(boxes(from, to), wanted, `${from} to ${to}`);
});

test('a point leads to the nearest place between letters', () => {
  const carets = [
    [[100, 110], [0, 0, 0]], [[111, 110], [0, 0, 1]], [[144, 110], [0, 0, 4]], [[171, 110], [0, 1, 1]],
    [[260, 110], [0, 1, 2]], [[0, 0], [0, 0, 0]], [[189, 210], [1, 0, 0]], [[151, 210], [1, 0, 4]],
    [[121, 210], [1, 1, 0]], [[310, 121], [2, 0, 2]], [[310, 260], [2, 1, 2]], [[489, 310], [3, 0, 0]],
    [[401, 310], [3, 1, 2]], [[510, 189], [4, 0, 0]], [[510, 101], [4, 1, 2]],
    // Behind the end of a line, a line's width away, readers still mean that line.
    [[230, 130], [0, 1, 2]],
  ];
  for (const [[x, y], [line, word, offset]] of carets) {
    assert.deepEqual(caretIn(page, x, y), { line, word, offset }, `${x}, ${y}`);
  }
  assert.equal(caretIn(new PageText({}), 0, 0), null);
  const words = [['harbour. ', 7, [0, 7]], ['(see) ', 2, [1, 4]], ['... ', 1, [0, 3]], ['a-b', 3, [2, 3]]];
  for (const [text, offset, wanted] of words) assert.deepEqual(wordAround(text, offset), wanted, text);
});

test('parts of a page are its blocks, whatever its file says of their lines', () => {
  const parts = (blocks) => new PageText({ lines: [3, 1, 0, 2, 5].map((count) => [0, 0, 9, 9, 0, 0, Array(count).fill(['a', 0, 9]).flat()]),
    blocks }).parts.map(({ kind, lines }) => [kind, ...lines.map(({ words }) => words.length)]);
  const cases = [[undefined, ['', 3, 1, 2, 5]], [['', 1, 'h2', 3], ['', 3], ['h2', 1, 2], ['', 5]], [['p', 2, 'p', 1, 'p', 99], ['p', 3, 1], ['p', 2, 5]],
    [['p', -1, 'p', 'x'], ['p', 3, 1, 2, 5]], [[7, 1.5, 'code', Infinity], ['', 3], ['code', 1, 2, 5]]];
  for (const [blocks, ...wanted] of cases) assert.deepEqual(parts(blocks), wanted, String(blocks));
});

test('a link is named by the words that it is drawn around', () => {
  const named = [[[100, 90, 45, 40], 'abcd'], [[90, 90, 110, 140], 'abcd ef שלום ab 12'], [[130, 90, 30, 40], ''],
    [[0, 109, 200, 2], 'abcd ef'],
    [[500, 100, 20, 50], 'ef'], [[0, 0, 5, 5], '']];
  for (const [[x, y, width, height], words] of named) {
    assert.equal(page.wordsIn({ x, y, width, height }).map(({ text }) => text).join(' '), words);
  }
  const [line] = page.lines.slice(-1);
  assert.deepEqual(page.wordsIn({ x: 500, y: 100, width: 20, height: 50 }), [{ text: 'ef', line, at: 10 }]);
});

test('texts of pages are kept, and what did not come is asked for again', async () => {
  const asked = [];
  const load = async (name) => {
    asked.push(name);
    if (asked.length === 1) throw new Error('no connection');
    return {};
  };
  const texts = new PageTexts({ load },
    { isOpen: (position) => position !== 9, numberOf: (position) => position + 100 });
  assert.deepEqual([await texts.get(1), await texts.get(9)], [null, null]);
  assert.ok(await texts.get(1) instanceof PageText);
  for (const position of [1, 2, 1]) await texts.get(position);
  assert.deepEqual(asked, ['text/101', 'text/101', 'text/102']);
});
