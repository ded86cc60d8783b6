import assert from 'node:assert/strict';
import { test } from 'node:test';
import { closePages } from '../../web/closed.js';
import { Facts } from '../../web/facts.js';
import { shownOf } from '../../web/keeping.js';

test('facts are well formed whatever a file holds', () => {
  const none = { pageCount: 3, numbers: [], labels: null, outline: [], hasContents: false, large: [], listings: [],
    hasText: false, reading: [],
    searchParts: 1, offline: false, open: null, language: '', textPage: '', start: 0, panel: '' };
  const wrong = { labels: 7, outline: 'x', numbers: {}, open: 'x', large: 3, reading: 'x', text: 'yes', offline: 1, language: '<b>',
    textPage: 'javascript:x.html', searchParts: '2', start: 4, panel: 'search' };
  for (const data of [undefined, null, 7, 'x', [], wrong]) {
    assert.deepEqual({ ...new Facts(data, 3) }, none);
  }
  const outline = [[7], 'x', [' A ', 1, [['b', '1', [[]]]]], ['c', 4], ['d', 3, 'x']];
  const entry = (title, position, ...children) => ({ title, position, children });
  assert.deepEqual(new Facts({ outline }, 3).outline,
    [entry('\u2026', 0), entry('A', 1, entry('b', 0, entry('\u2026', 0))), entry('c', 0), entry('d', 3)]);
  let deep = [];
  for (let level = 0; level < 1000; level += 1) deep = [['x', 1, deep]];
  assert.ok(JSON.stringify(new Facts({ outline: deep }, 3)).length < 2000, 'as deep as can be read');
});

test('labels count where they say more than the number, languages and text pages where they are such', () => {
  const labels = (...given) => new Facts({ labels: given }, 3).labels;
  assert.deepEqual([labels('1', '2', ''), labels('1', 'ii', 3, 'iv')], [null, ['1', 'ii', '']]);
  const facts = (name, ...values) => values.map((value) => new Facts({ [name]: value }, 3)[name]);
  assert.deepEqual(facts('language', 'de', 'en-GB', 'zh-Hant-TW', 'x', 'de-', 'de"'),
    ['de', 'en-GB', 'zh-Hant-TW', '', '', '']);
  assert.deepEqual(facts('offline', true, 1), [true, false]);
  assert.deepEqual([...facts('start', 3, '3', 0), ...facts('panel', 'contents', 'thumbs')], [3, 0, 0, 'contents', 'thumbs']);
  assert.deepEqual(facts('textPage', 'text.html', '../a.html', '/a.html', '.a.html', 'a.svg'),
    ['text.html', '', '', '', '']);
});

test('files of a page have its number, and there are none of pages that are left out', () => {
  const facts = new Facts({ numbers: [5, 'x', -1, 2.5], large: ['js', 'png', 'exe', 'jpg', 'js'],
    open: [[1, 2], 'x', [4, 4]] }, 5);
  const all = [1, 2, 3, 4, 5];
  assert.deepEqual(all.map((page) => facts.numberOf(page)), [5, 2, 3, 4, 5]);
  assert.deepEqual(all.map((page) => facts.isOpen(page)), [true, true, false, true, false]);
  assert.deepEqual(all.map((page) => facts.largeFile(page)), ['large/5.js', 'large/2.png', '', 'large/4.jpg', '']);
  assert.ok(new Facts({}, 5).isOpen(5));
});

test('pages that are left out get a picture of their shape, which says so', () => {
  const pages = () => [1, 2].map((page) => ({ path: `page/${page}.jpg`, width: 300, height: 400 }));
  const config = { pages: pages(), thumbs: pages() };
  const fileOf = closePages(config, new Facts({ open: [[1, 1]] }, 2), 'Not part of <the> preview, sorry');
  assert.deepEqual([config.pages[0], config.thumbs[0]], [pages()[0], pages()[0]]);
  assert.deepEqual([config.pages[1].width, config.pages[1].height, fileOf('page/1.jpg')], [300, 400, undefined]);
  const picture = decodeURIComponent(fileOf(config.pages[1].path));
  assert.match(picture, /^data:image\/svg\+xml,<svg [^>]*width="750" height="1000">/);
  assert.match(picture, />Not part of &lt;the&gt;<\/text>.*>preview, sorry<\/text>/);
});

test('readers hear how much of the book is kept', () => {
  const some = { left: 3, whole: true, failed: false };
  const cases = [
    [null, false, false, 'keep', 'keepWait'], [null, false, true, 'keep', 'keepNever'],
    [{ ...some, left: 0 }, true, false, 'kept', 'keptText'], [some, true, false, 'keeping', 'keeping'],
    [some, false, false, 'keep', 'keepText'], [{ ...some, whole: false }, true, false, 'keep', 'keepText'],
    [{ ...some, failed: true }, false, false, 'keep', 'keepFailed'],
  ];
  for (const [state, busy, unable, does, text] of cases) {
    assert.deepEqual(shownOf({ state, busy, unable }), { does, text });
  }
});
