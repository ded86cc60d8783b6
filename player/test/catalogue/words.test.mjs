import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { markAll } from '../../catalogue/postings.js';
import { Record } from '../../catalogue/record.js';
import { termsOf, wordsOf } from '../../catalogue/words.js';

const { words: WORDS } = JSON.parse(readFileSync(new URL('../support/folding.json', import.meta.url), 'utf8'));

test('texts have the words that the program puts into the index', () => {
  for (const [text, words] of WORDS) assert.deepEqual(wordsOf(text), words, text);
});

test('whatever a text holds is found by what a reader types of it', () => {
  for (const typed of ['well-known', 'wellk', 'kno', 'WELL KNOWN']) {
    const words = wordsOf('a Well-known one');
    for (const term of termsOf(typed).terms) assert.ok(words.some((word) => word.startsWith(term)), typed);
  }
  assert.deepEqual(termsOf('東京都').terms, ['東京', '京都'], 'the last letter narrows nothing');
  assert.deepEqual(termsOf('京').terms, ['京']);
});

test('lists of books are read in both forms', () => {
  const numbers = (list, count) => {
    const marks = new Uint8Array(count);
    markAll(list, marks);
    return [...marks].flatMap((mark, number) => (mark ? [number] : []));
  };
  assert.deepEqual(numbers('DAgB', 100), [3, 4, 37]);
  assert.deepEqual(numbers('!FC', 100), [0, 2, 7]);
  assert.deepEqual(numbers('DAgB', 10), [3, 4], 'numbers of another edition of the index');
});

const wanted = (change) => ({ text: termsOf(''), author: termsOf(''), subject: termsOf(''), language: '', from: 0, to: 0, ...change });
test('a record fits what was looked for, and a damaged one nothing', () => {
  const record = new Record(['3f/faust-1', 'Faust: eine Tragödie', 'Johann Wolfgang Goethe', 'um 1808', 'de', 'Drama', '']);
  assert.deepEqual([record.id, record.year], ['faust-1', 1808]);
  for (const [change, fits] of [[{}, true], [{ text: termsOf('tragodie goethe') }, true], [{ text: termsOf('faust ii') }, false],
    [{ author: termsOf('faust') }, false], [{ subject: termsOf('DRAMA') }, true], [{ language: 'en' }, false],
    [{ from: 1808, to: 1808 }, true], [{ from: 1809 }, false], [{ to: 1807 }, false]]) {
    assert.equal(record.fits(wanted(change)), fits, JSON.stringify(change));
  }
  for (const raw of [undefined, [], ['../../x', 'Faust'], [7], ['3f/"><', 'x']]) assert.equal(new Record(raw).fits(wanted({})), false);
});

test('books of some years are found by whichever lists take less', async () => {
  globalThis.window = { addEventListener() {} };
  const { Index } = await import('../../catalogue/index.js');
  const data = { start: { books: 5, decades: [[0, 10], [185, 20], [186, 500], [190, 20]] },
    'years/0': [[0, 'C']], 'years/185': [[1850, 'A'], [1859, 'B']], 'years/186': [[1861, 'D']], 'years/190': [[1901, 'E']] };
  for (const [from, to, wanted, files] of [[1850, 1850, [0], 'years/185'], [1855, 1899, [1, 3], 'years/0 years/185 years/190'],
    [1861, Infinity, [3, 4], 'years/186 years/190'], [1850, Infinity, [0, 1, 3, 4], 'years/0'], [1950, 1960, [], '']]) {
    const index = new Index();
    const loaded = [];
    index.files = { load: async (name) => { loaded.push(name); return data[name]; } };
    await index.open();
    const marks = await index.ofYears(from, to);
    assert.deepEqual([...marks].flatMap((mark, number) => (mark ? [number] : [])), wanted, `${from}-${to}`);
    assert.equal(loaded.slice(1).join(' '), files, `${from}-${to}`);
  }
});
