import assert from 'node:assert/strict';
import { test } from 'node:test';
import { expanded } from '../../web/vectors.js';

test('runs of glyphs become elements', () => {
  const glyph = (index, x, y) => `<use href="#g${index}" x="${x}" y="${y}"/>`;
  assert.equal(expanded('<svg>\n!)8\n!"*%((((((((((((9\n<g>@-12,-3A4@</g><g a="1">200000000,7@</g></svg>'),
    '<svg><path id="g0" d="m2"/><path id="g1" d="ml-4c-2 -2 -4 -4 -6 -6 -2 -2 -4 -4 -6 -6"/>\n<g>' + glyph(0, 0, 0) + glyph(1, 5, -3) + glyph(0, 27, -3)
    + '</g><g a="1">' + glyph(0, 200000000, 7) + '</g></svg>');
});

test('forged vectors take no longer than others of their length', () => {
  for (const letter of '>1-,!\n@') assert.ok(expanded(`<g>${letter.repeat(1e5)}</g>`));
});
