import assert from 'node:assert/strict';
import { test } from 'node:test';
import '../support/browser.mjs';
import { mayFollow } from '../../src/book/addresses.js';
import { bytesOf } from '../../src/book/base64.js';
import { blend, contrast, writingOn } from '../../src/book/contrast.js';
import { rc4 } from '../../src/book/rc4.js';
import { cssColour, fileAddress, isYes, numberIn, ownFile } from '../../src/book/values.js';

test('yes is told in the spellings of templates, and nothing else is yes', () => {
  for (const text of ['Yes', 'YES', ' show ', 'enable', 'True']) assert.equal(isYes(text), true, text);
  for (const text of ['No', '', 'yesterday', 'hide', '1']) assert.equal(isYes(text), false, text);
});

const numbers = [['3', 3], ['2.5 s', 2.5], ['-1', 1], ['99', 10], ['1e9', 10], ['', 7], ['a', 7], ['Infinity', 7]];
test('numbers keep within their limits, and what is none is replaced', () => {
  for (const [text, wanted] of numbers) assert.equal(numberIn(text, 7, 1, 10), wanted, text);
});

const colours = [['0x00ff10', '#00ff10'], ['#A0b0C0', '#a0b0c0'], [' 0xff112233 ', '#112233'], ['5', '#000005'],
  ['red', '-'], ['', '-'], ['0x123456789', '-'], ['#123;}', '-']];
test('colours are read with and without alpha, and what is none is replaced', () => {
  for (const [text, wanted] of colours) assert.equal(cssColour(text, '-'), wanted, text);
});

const own = ['page/1.jpg', ' a b.jpg ', 'a..b/c.jpg', '.hidden/x.jpg', 'a%2e%2e/x.jpg'];
const foreign = ['../x.jpg', 'page/../../x.jpg', './x.jpg', '..', '/etc/x.jpg', '//example.org/x.jpg', 'https://example.org/x.jpg',
  'javascript:alert(1)', 'data:image/png;base64,AAAA', ' DATA:,x', 'page\\..\\x.jpg'];
test('only paths within the book are files of it', () => {
  for (const path of own) assert.equal(ownFile(path), path.trim());
  for (const path of foreign) assert.equal(ownFile(path), '', path);
});

test('what an address or a style takes for a sign of its own is written as a part of a name', () => {
  assert.equal(fileAddress('page/a b?#%"\\1.jpg'), 'files/page/a%20b%3F%23%25%22%5C1.jpg');
  assert.equal(fileAddress(''), '');
  window.folveroFile = (path) => (path === 'in.jpg' ? 'data:x' : undefined);
  assert.deepEqual([fileAddress('in.jpg'), fileAddress('out.jpg')], ['data:x', 'files/out.jpg']);
});

const followed = ['http://example.org/', 'HTTPS://example.org/a', 'mailto:a@example.org', 'Tel:+49301234'];
const refused = ['javascript:x=1', 'JaVaScRiPt:x=1', 'java\tscript:x=1', 'java\nscript:x=1', ' javascript:x=1', 'vbscript:x=1',
  'javascript://https://example.org/%0ax=1', 'data:text/html,x', 'file:///etc/passwd', 'blob:https://example.org/1', 'program://run',
  '//example.org/', '\\\\example.org\\share', 'https://', 'example.org', ''];
test('readers are led to the web, to mail and to telephones only', () => {
  for (const address of followed) assert.equal(mayFollow(address), true, address);
  for (const address of refused) assert.equal(mayFollow(address), false, address);
});

test('the cipher agrees with published examples, and with itself over many bytes', () => {
  const text = (one) => new TextEncoder().encode(one);
  const hex = (plain, key) => Buffer.from(rc4(text(plain), key)).toString('hex');
  assert.equal(hex('Plaintext', 'Key'), 'bbf316e8d940af0ad3');
  assert.equal(hex('Attack at dawn', 'Secret'), '45a01f645fc35b383552544b9bf5');
  const long = text('0123456789'.repeat(500));
  assert.deepEqual(rc4(rc4(long, 'Key'), 'Key'), long);
});

test('base64 is read with and without the browser’s own way', () => {
  const bytes = Uint8Array.of(0, 127, 128, 255);
  assert.deepEqual(bytesOf('AH+A/w=='), bytes);
  Uint8Array.fromBase64 = (base64) => base64.length;
  assert.equal(bytesOf('AH+A/w=='), 8);
  delete Uint8Array.fromBase64;
});

test('contrast is that of the accessibility guidelines', () => {
  const known = [['#000000', '#ffffff', 21], ['#777777', '#ffffff', 4.48], ['#ffffff', '#ff0000', 4], ['#0a0a0a', '#0a0a0a', 1]];
  for (const [one, other, wanted] of known) assert.ok(Math.abs(contrast(one, other) - wanted) < 0.01, `${one} ${other}`);
  assert.equal(blend('#ffffff', '#000040', 0.25), '#404070');
});

test('a bar of any colour can be read over any ground, washed or not', () => {
  const steps = ['00', '33', '66', '77', '99', 'cc', 'ff'];
  for (const colour of steps.flatMap((r) => steps.flatMap((g) => steps.map((b) => `#${r}${g}${b}`)))) {
    const { ink, opacity, wash } = writingOn(colour, 0.94);
    const [shade, share] = /rgba\((\d+),\d+,\d+,([.\d]+)\)/.exec(wash).slice(1).map(Number);
    for (const ground of ['#000000', '#ffffff']) {
      const seen = blend(colour, ground, opacity);
      for (const under of [seen, blend(shade ? '#ffffff' : '#000000', seen, share)]) {
        assert.ok(contrast(ink, under) >= 4.5, `${ink} on ${colour}, seen as ${under}`);
      }
    }
  }
  assert.deepEqual(writingOn('#20262e', 0.94), { ink: '#ffffff', opacity: 0.94, wash: 'rgba(255,255,255,.14)' });
  assert.equal(writingOn('#f4ead2', 0.94).ink, '#14181d');
});
