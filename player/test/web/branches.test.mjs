import assert from 'node:assert/strict';
import { test } from 'node:test';
import { above, flat, itemOf, itemOfPage, seenFor } from '../../web/branches.js';

const entry = (title, position, ...children) => ({ title, position, children });
const items = [
  entry('Preface', 1), entry('First part', 3, entry('River', 4, entry('Deep water', 5)), entry('Harbour', 7)),
  entry('Second part', 0, entry('Return', 9)), entry('Sources', 0), entry('Appendix', 2), entry('Rest', 9),
].map((one) => itemOf(one));
const all = flat(items, () => true);
const named = (title) => all.find((item) => item.entry.title === title);
const titleOf = (item) => item?.entry.title;

test('a tree lists what is open, and folded branches stand for what is in them', () => {
  assert.deepEqual(all.map(({ level }) => level), [1, 1, 2, 3, 2, 1, 2, 1, 1, 1]);
  assert.deepEqual(above(named('Deep water')).map(titleOf), ['River', 'First part']);
  named('River').open = true;
  assert.equal(titleOf(seenFor(named('Deep water'))), 'First part');
  named('First part').open = true;
  assert.equal(titleOf(seenFor(named('Deep water'))), 'Deep water');
  named('River').open = false;
  assert.equal(titleOf(seenFor(named('Deep water'))), 'River');
  assert.deepEqual(flat(items, ({ open }) => open).map(titleOf).slice(0, 5),
    ['Preface', 'First part', 'River', 'Harbour', 'Second part']);
});

test('a page belongs to the last entry that begins before it', () => {
  const places = [[0, undefined], [1, 'Preface'], [2, 'Appendix'], [4, 'River'], [6, 'Deep water'], [8, 'Harbour'],
    [20, 'Rest']];
  for (const [page, title] of places) assert.equal(titleOf(itemOfPage(all, page)), title, String(page));
});
