import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { fold, sourceOf } from '../../web/foldtext.js';
import { Query } from '../../web/query.js';
import { SearchText } from '../../web/searchtext.js';

globalThis.window = globalThis;

const { folded: FOLDED } = JSON.parse(readFileSync(new URL('../support/folding.json', import.meta.url), 'utf8'));
test('texts are folded alike, whatever their case, marks, forms and line ends', () => {
  for (const [text, folded] of FOLDED) assert.equal(fold(text).text, folded, text);
  const long = 'wörd '.repeat(5000);
  assert.equal(fold(long).text, 'word '.repeat(5000).trim(), 'longer than the room at first');
  assert.ok(fold(long, false, 10).text.length < 20, 'the rest does not matter');
});

test('a place in a folded text leads to its source, with the marks behind it', () => {
  const sources = [['The Stra\u00dfe', 'ss', '\u00df'], ['Cafe\u0301!', 'e', 'e\u0301'],
    ['the har-\nbour!', 'harbour', 'har-\nbour'],
    ['\u{1d538}b', 'b', 'b'], ['a \n b', ' ', ' \n '], ['x-5', '-5', '-5']];
  for (const [source, part, wanted] of sources) {
    const folded = fold(source, true);
    const [from, to] = sourceOf(source, folded, folded.text.indexOf(part, part === 'e' ? 3 : 0), part.length);
    assert.equal(source.slice(from, to), wanted);
  }
});

test('a query is looked for as it stands, word by word when widened, and in quotation marks never so', () => {
  const places = (query, text) => query.hitsIn(text).map(({ at, length }) => [at, length]);
  const query = new Query('  Old Town Old  ');
  assert.deepEqual([query.parts, query.words], [['old town old'], ['town', 'old']]);
  assert.deepEqual(places(query, 'the old town'), []);
  query.widen();
  assert.deepEqual([query.parts, query.words], [['town', 'old'], []]);
  assert.deepEqual(places(query, 'old old town'), [[0, 3], [4, 3], [8, 4]], 'in the order of the text');
  assert.deepEqual(places(query, 'old only'), [], 'all of the words or none');
  const nested = new Query('ab abc');
  nested.widen();
  assert.deepEqual(places(nested, 'abc ab'), [[0, 3], [4, 2]], 'not over one another');
  assert.deepEqual(places(new Query('aa'), 'aaaa'), [[0, 2], [2, 2]]);
  for (const quoted of ['"old town"', '\u201cold town', '\u201eOld  town\u201c']) {
    assert.deepEqual([new Query(quoted).parts, new Query(quoted).words], [['old town'], []]);
  }
  assert.deepEqual(['', '  ', '""', 'word'].map((text) => new Query(text).empty), [true, true, true, false]);
});

async function textOf(...texts) {
  const text = new SearchText([2]);
  await text.add(texts.slice(0, 2));
  await text.add(texts.slice(2));
  text.complete = true;
  return text;
}

test('hits are found on all pages, up to a number that nobody reads', async () => {
  const text = await textOf('A harbour', 7, 'walls of the old', 'harbour, har-\nbour');
  const { hits, more } = text.find('Harbour');
  assert.deepEqual(hits.map(({ position, ordinal }) => [position, ordinal]), [[1, 0], [4, 0], [4, 1]]);
  assert.equal(more, false);
  assert.deepEqual(text.find('old walls').hits.map(({ position }) => position), [3, 3], 'no such phrase: both words');
  for (const typed of ['"old walls"', 'old harbour', ' ']) assert.deepEqual(text.find(typed).hits, [], typed);
  const many = (await textOf('e '.repeat(4999), 'e e')).find('e');
  assert.deepEqual([many.hits.length, many.more], [5000, true]);
});

test('hits in contents come after those in the text, once all of that is there', async () => {
  const text = await textOf('x', 'Harbours . . . 3', 'the harbour', 'harbours');
  const pages = () => text.find('harbour').hits.map(({ position }) => position);
  assert.deepEqual(pages(), [3, 4, 2]);
  text.complete = false;
  assert.deepEqual(pages(), [3, 4]);
});

test('a hit is shown with whole words around it', async () => {
  const excerpts = [
    ['one needle', ['one ', 'needle', '']], ['needle.', ['', 'needle', '.']],
    [`a ${'word '.repeat(9)}needle ${'after, '.repeat(9)}`,
    [`\u2026${'word '.repeat(5)}`, 'needle', ` ${'after, '.repeat(8).trim().slice(0, -1)}\u2026`]],
    ['hay-\nstack of well-\nKnown nee-\ndles, hay-\nstack', ['haystack of well- Known ', 'needle', 's, haystack']],
    [`1 Hay ${'. '.repeat(40)}3\nNeedle${'.'.repeat(90)}5\nEnd ... 9`, ['1 Hay … 3 ', 'Needle', ' … 5 End ... 9']],
    ['前\n後needle\nx', ['前後', 'needle', ' x']],
    [`x${'\u{1f600}'.repeat(40)}yneedle`, [`\u2026${'\u{1f600}'.repeat(14)}y`, 'needle', '']],
  ];
  for (const [source, wanted] of excerpts) {
    const text = await textOf('', source);
    assert.deepEqual(text.excerpt(text.find('needle').hits[0]), wanted);
  }
});
