import assert from 'node:assert/strict';
import { test } from 'node:test';
import { newWindow } from '../support/browser.mjs';

newWindow();
const { learn, say } = await import('../../src/book/words.js');

const TABLE = 'language|print|hits\nen|Print|{0} results\tone:{0} result\nde|Drucken|{0} Treffer\npl';

/** What a reader with these languages sees. */
function texts(languages, further) {
  Object.defineProperty(globalThis, 'navigator', { value: { languages }, configurable: true });
  window.folveroTexts = further && { page: further };
  learn(TABLE, 'page');
  return [say('language'), say('print'), say('hits', '7', 7)];
}

test('texts are in the first of the languages that there are, wherever their texts come from', () => {
  assert.deepEqual(texts(['pl-PL', 'de']), ['de', 'Drucken', '7 Treffer'], 'the file is missing');
  // The file may be of another version, from the browser's cache.
  const further = 'language|hits|other|print\npl|{0} wyniku|-|Drukuj';
  assert.deepEqual(texts(['pl-PL', 'de'], further), ['pl', 'Drukuj', '7 wyniku']);
  assert.deepEqual(texts(['DE-at', 'pl'], further), ['de', 'Drucken', '7 Treffer']);
  assert.deepEqual(texts(['xx'], further), ['en', 'Print', '7 results']);
});

test('a text with a number has the form that the language has for it', () => {
  texts(['pl'], 'language|print|hits\npl|Drukuj|{0} wyniku\tone:jeden wynik\tfew:{0} wyniki\tmany:{0} wyników');
  const found = [1, 3, 12, 22, 1.5].map((count) => say('hits', String(count), count));
  assert.deepEqual(found, ['jeden wynik', '3 wyniki', '12 wyników', '22 wyniki', '1.5 wyniku']);
  texts(['en']);
  assert.deepEqual([say('hits', '1+', 1), say('hits', '0', 0)], ['1+ result', '0 results']);
});
