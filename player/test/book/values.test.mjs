import assert from 'node:assert/strict';
import { test } from 'node:test';
import '../support/browser.mjs';
import { mayFollow } from '../../src/book/addresses.js';
import { bytesOf } from '../../src/book/base64.js';
import { blend, contrast, writingOn } from '../../src/book/contrast.js';
import { rc4 } from '../../src/book/rc4.js';
import { cssColour, fileAddress, isYes, numberIn, ownFile } from '../../src/book/values.js';

/** Whether a function gives true for the first texts and false for the others. */
function divides(decide, yes, no) {
  for (const text of yes) assert.equal(decide(text), true, text);
  for (const text of no) assert.equal(decide(text), false, text);
}

test('yes is read in the spellings of templates, and nothing else is yes', () => {
  divides(isYes, ['Yes', ' show ', 'enable', 'True'], ['No', '', 'yesterday', '1']);
});

test('numbers keep within their limits, and what is none is replaced', () => {
  const numbers = [['3', 3], ['2.5 s', 2.5], ['-1', 1], ['1e9', 10], ['', 7], ['a', 7], ['Infinity', 7]];
  for (const [text, wanted] of numbers) assert.equal(numberIn(text, 7, 1, 10), wanted, text);
});

test('colours are read with and without alpha, and what is none is replaced', () => {
  const colours = [['0x00ff10', '#00ff10'], ['#A0b0C0', '#a0b0c0'], [' 0xff112233 ', '#112233'], ['5', '#000005'],
    ['red', '-'], ['', '-'], ['0x123456789', '-'], ['#123;}', '-']];
  for (const [text, wanted] of colours) assert.equal(cssColour(text, '-'), wanted, text);
});

test('only paths within the book are files of it', () => {
  const own = ['page/1.jpg', ' a b.jpg ', 'a..b/c.jpg', '.hidden/x.jpg', 'a%2e%2e/x.jpg'];
  const foreign = ['../x.jpg', 'page/../../x.jpg', './x.jpg', '..', '/etc/x.jpg', '//example.org/x.jpg',
    'https://example.org/x.jpg', 'javascript:alert(1)', ' DATA:,x', 'page\\..\\x.jpg'];
  divides((path) => ownFile(path) === path.trim(), own, foreign);
  divides((path) => ownFile(path) === '', foreign, own);
});

test('what an address or a style takes for a sign of its own is written as a part of a name', () => {
  assert.equal(fileAddress('page/a b?#%"\\1.jpg'), 'files/page/a%20b%3F%23%25%22%5C1.jpg');
  assert.equal(fileAddress(''), '');
  window.folveroFile = (path) => (path === 'in.jpg' ? 'data:x' : undefined);
  assert.deepEqual([fileAddress('in.jpg'), fileAddress('out.jpg')], ['data:x', 'files/out.jpg']);
});

test('readers are led to the web, to mail and to telephones only', () => {
  divides(mayFollow, ['http://example.org/', 'HTTPS://example.org/a', 'mailto:a@example.org', 'Tel:+49301234'],
    ['javascript:x=1', 'java\tscript:x=1', ' JavaScript:x=1', 'javascript://https://example.org/%0ax=1', 'vbscript:x=1',
      'data:text/html,x', 'file:///etc/passwd', 'blob:https://example.org/1', '//example.org/', 'https://', '']);
});

test('the cipher agrees with a published example, and with itself over many bytes', () => {
  const text = (one) => new TextEncoder().encode(one);
  assert.equal(Buffer.from(rc4(text('Plaintext'), 'Key')).toString('hex'), 'bbf316e8d940af0ad3');
  const long = text('0123456789'.repeat(500));
  assert.deepEqual(rc4(rc4(long, 'Key'), 'Key'), long);
  assert.deepEqual(bytesOf('AH+A/w=='), Uint8Array.of(0, 127, 128, 255));
});

test('a bar of any colour can be read over any ground, washed or not', () => {
  const known = [['#777777', '#ffffff', '4.48'], ['#ffffff', '#ff0000', '4.00']];
  for (const [one, other, wanted] of known) assert.equal(contrast(one, other).toFixed(2), wanted);
  const steps = ['00', '33', '66', '77', '99', 'cc', 'ff'];
  for (const colour of steps.flatMap((r) => steps.flatMap((g) => steps.map((b) => `#${r}${g}${b}`)))) {
    const { ink, opacity, wash } = writingOn(colour, 0.94);
    const seen = ['#000000', '#ffffff'].map((ground) => blend(colour, ground, opacity));
    const washed = seen.map((ground) => blend(wash.includes('255') ? '#ffffff' : '#000000', ground, 0.14));
    for (const under of [...seen, ...washed]) assert.ok(contrast(ink, under) >= 4.5, `${ink} on ${colour}: ${under}`);
  }
});
