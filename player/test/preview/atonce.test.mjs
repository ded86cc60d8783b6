import assert from 'node:assert/strict';
import { test } from 'node:test';
import '../support/browser.mjs';

const { shownAtOnce } = await import('../../preview/atonce.js');
const { readConfiguration } = await import('../../src/book/config.js');

const FILE = 'BackgroundConfig BackgroundImage OuterBackgroundFile';
const WIDTH = 'BackgroundConfig BackgroundImage OuterImgWidth';
const meaning = (texts, pages = []) => readConfiguration((path) => texts[path] ?? '', pages);

test('pages, direction, sound and logo wait until the book is published', () => {
  const changed = meaning({ 'Properties RightToLeft': 'Yes', 'Properties LogoFile': 'new.png' });
  const kept = shownAtOnce(changed, meaning({}, [{ page: {}, thumb: {} }]));
  for (const name of ['pages', 'thumbs', 'labels', 'rightToLeft', 'sound', 'logo', 'download']) {
    assert.ok(!(name in kept), name);
  }
});

test('a picture can be taken away at once, another one is not there yet', () => {
  const published = meaning({ [FILE]: 'old.png', [WIDTH]: '40' });
  const shown = (texts) => {
    const { file, size } = shownAtOnce(meaning(texts), published).outer;
    return [file, size.width];
  };
  assert.deepEqual(shown({}), ['', 0]);
  assert.deepEqual(shown({ [FILE]: 'new.png', [WIDTH]: '90' }), ['old.png', 40]);
  assert.deepEqual(shownAtOnce(meaning({ [FILE]: 'new.png' }), meaning({})).outer.file, '');
});
