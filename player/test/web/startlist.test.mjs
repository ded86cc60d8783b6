import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Facts } from '../../web/facts.js';
import { StartList } from '../../web/startlist.js';

const LIST = { settings: 'AQID', sizes: [600, 800, 85, 113], numbers: [3, 2, 9, 1], runs: [0, 1, 1, 2],
  kinds: [['page/#.png', 'thumb/#.jpg', 'js'], ['../#.png', 'page/#.jpg', '', 'photo']],
  facts: { labels: [['A-', 9, 2], 'x'], outline: true, text: true } };

test('a start list has every page, and what is known of the book', () => {
  const list = new StartList(LIST);
  const config = {};
  list.complete(config);
  assert.deepEqual(config.pages.map(({ path, width, height, photo }) => [path, width, height, photo]),
    [['page/3.png', 600, 800, false], ['', 600, 800, true], ['', 600, 800, true]]);
  assert.deepEqual([config.thumbs[2], config.thumbs.length], [{ path: 'page/9.jpg', width: 85, height: 113 }, 3]);
  assert.deepEqual(new StartList({ ...LIST, next: [1, 2, 0, 9, 'x'] }).next, ['page/3.png'], 'a page without a picture, and none');
  const { numbers, labels, large, hasText, hasContents } = new Facts(list.facts, 3);
  assert.deepEqual({ numbers, labels, large, hasText, hasContents },
    { numbers: [3, 4, 9], labels: ['A-9', 'A-10', 'x'], large: ['js', '', ''], hasText: true, hasContents: true });
});

const DAMAGE = [{ settings: '*' }, { settings: '' }, { sizes: [600, 0] }, { numbers: [3, 2] }, { numbers: [0.5, 3] },
  { numbers: [1, -3] }, { runs: [0, 1e9], numbers: [1, 1e9] }, { runs: [7, 3] }, { kinds: {} }, { runs: [], numbers: [] }];
test('a damaged start list is none', () => {
  const find = (text) => {
    globalThis.document = { querySelector: () => ({ textContent: text }) };
    return StartList.find();
  };
  assert.ok(find(JSON.stringify(LIST)));
  for (const change of DAMAGE) assert.equal(find(JSON.stringify({ ...LIST, ...change })), null, JSON.stringify(change));
  for (const text of ['', '{"settings":', 'null', '7']) assert.equal(find(text), null, text);
});
