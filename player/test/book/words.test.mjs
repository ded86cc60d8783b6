import assert from 'node:assert/strict';
import { test } from 'node:test';
import { newWindow } from '../support/browser.mjs';

newWindow();
const { learn, loadTexts, say } = await import('../../src/book/words.js');

const TABLE = 'language|print|hits\nen|Print|{0} results\tone:{0} result';
const POLISH = 'language|hits|other|print\npl|{0} wyniku\tone:jeden wynik\tfew:{0} wyniki\tmany:{0} wyników|-|Drukuj';

/** What a reader sees whose language has these texts. */
function texts(own) {
  window.folveroTexts = own && { page: own };
  learn(TABLE, 'page');
  return [say('language'), say('print'), say('hits', '7', 7)];
}

/** Files that a reader with these languages loads, where only some are there. */
async function loaded(languages, there = ['de', 'pl']) {
  Object.defineProperty(globalThis, 'navigator', { value: { languages }, configurable: true });
  window.folveroTexts = undefined;
  const asked = [];
  window.folveroFile = (path) => {
    const [, code] = /^languages\/(.*)\.js$/.exec(path);
    asked.push(code);
    if (!there.includes(code)) return Promise.reject(new Error('missing'));
    window.folveroTexts = {};
    return Promise.reject(new Error('no document runs it here'));
  };
  await loadTexts('de it pl');
  return asked.join(' ');
}

test('the first of the languages that has texts is loaded, and none where English comes before', async () => {
  assert.equal(await loaded(['pl-PL', 'de']), 'pl');
  assert.equal(await loaded(['it', 'xx', 'DE-at', 'pl']), 'it de', 'a file may be missing');
  assert.equal(await loaded(['xx', 'en-GB', 'de']), '');
  assert.equal(await loaded(undefined), '');
});

test('texts that the language lacks are in English', () => {
  assert.deepEqual(texts(), ['en', 'Print', '7 results']);
  // The file may be of another version, from the browser's cache.
  assert.deepEqual(texts('language|other|print\nde|-|Drucken'), ['de', 'Drucken', '7 results']);
});

test('a text with a number has the form that the language has for it', () => {
  texts(POLISH);
  const found = [1, 3, 12, 22, 1.5].map((count) => say('hits', String(count), count));
  assert.deepEqual(found, ['jeden wynik', '3 wyniki', '12 wyników', '22 wyniki', '1.5 wyniku']);
  texts();
  assert.deepEqual([say('hits', '1+', 1), say('hits', '0', 0)], ['1+ result', '0 results']);
});
