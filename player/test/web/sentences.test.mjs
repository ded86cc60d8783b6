import assert from 'node:assert/strict';
import { test } from 'node:test';
import { sentencesOf } from '../../web/sentences.js';

const spoken = (text, language = 'en') => sentencesOf(text, language).map(({ from, to }) => text.slice(from, to));
const CASES = [
  [' One.  Two? “Three!” Four ', ['One.', 'Two?', '“Three!”', 'Four']],
  ['See Fig. 3 and p. 12 of it. Next one.', ['See Fig. 3 and p. 12 of it.', 'Next one.']],
  ['It is z.B. so, bzw. anders. Gut.', ['It is z.B. so, bzw. anders.', 'Gut.']],
  ['これは文です。次の文です。', ['これは文です。', '次の文です。']],
  ['. . . – …', []],
];

test('texts are spoken by sentences, which abbreviations do not end', () => {
  for (const [text, sentences] of CASES) assert.deepEqual(spoken(text), sentences);
});

test('browsers without a segmenter find the same', () => {
  const { Segmenter } = Intl;
  Intl.Segmenter = undefined;
  for (const [text, sentences] of CASES) assert.deepEqual(spoken(text), sentences);
  Intl.Segmenter = Segmenter;
});

test('long sentences are spoken in parts that leave nothing out', () => {
  for (const word of ['word ', 'word, ', 'x', '語']) {
    const parts = spoken(word.repeat(400).trim());
    assert.ok(parts.length > 1 && parts.every(({ length }) => length <= 220), word);
    assert.equal(parts.join('').replaceAll(' ', ''), word.repeat(400).replaceAll(' ', ''));
  }
});
