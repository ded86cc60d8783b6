import assert from 'node:assert/strict';
import { test } from 'node:test';
import { answerFrom, searchIn } from '../../catalogue/texthits.js';

const PAGE = 'https://a.example/catalogue/search.html';
const TOP = 'https://a.example/';

test('a search is one that the server of the page names', () => {
  const cases = [['</search>; rel="search"', TOP + 'search'], ['</x.css>; rel=preload, <find>; title=T; rel=search', TOP + 'catalogue/find'],
    ['</search>; rel="next"', undefined], ['</a>; rel=next, </b>; rel=prev', undefined], ['<https://b.example/search>; rel=search', undefined],
    ['', undefined], [null, undefined]];
  for (const [header, address] of cases) assert.equal(searchIn(header, PAGE)?.href, address, String(header));
});

test('answers lead into the library only and say whether there are more', () => {
  const hit = (address) => ({ book: 'b', title: 'B', position: 3, snippet: ['a ', 'word', 7], address });
  const answer = answerFrom({ hits: [hit('books/b/index.html#page=3'), hit('javascript:alert(1)'), hit('https://b.example/'), hit('../x'), null],
    total: 45, page: 2, pageSize: 20, more: false }, TOP + 'l/');
  assert.deepEqual(answer.hits, [{ book: 'b', title: 'B', author: '', label: '3', snippet: ['a ', 'word', ''],
    address: TOP + 'l/books/b/index.html#page=3' }]);
  assert.deepEqual([answer.count, answer.open, answer.last], [45, false, false]);
  const lastOf = (page, total) => answerFrom({ hits: [], page, total, pageSize: 20 }, TOP).last;
  assert.deepEqual([lastOf(1, 20), lastOf(2, 21), lastOf(1, 21), lastOf(50, 9999)], [true, true, false, true]);
  assert.deepEqual(answerFrom('no', TOP), { hits: [], count: 0, open: false, last: true });
});
