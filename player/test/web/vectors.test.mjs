import assert from 'node:assert/strict';
import { test } from 'node:test';
import { expanded } from '../../web/vectors.js';

test('runs of glyphs become paths', () => {
  const [one, two] = ['m2', 'ml-4c-2 -2 -4 -4 -6 -6 -2 -2 -4 -4 -6 -6'];
  assert.equal(expanded('<svg>\n!)8\n!"*%((((((((((((9\n<g>@-12,-3A4@</g><g a="1">200000000,7@</g></svg>'),
    `<svg><path id="g0" d="${one}"/><path id="g1" d="${two}"/>\n<g><path d="M0 0${one}M5 -3${two}M27 -3${one}"/>`
    + `</g><g a="1"><path d="M200000000 7${one}"/></g></svg>`);
});

test('a run of long outlines takes no more letters than the glyphs that it repeats', () => {
  const svg = expanded(`<svg>\n!${'")'.repeat(1e5)}8\n<g>${'@'.repeat(1e5)}</g></svg>`);
  assert.ok(svg.length < 2e7 && svg.endsWith(' y="0"/></g></svg>'), String(svg.length));
});

test('forged vectors take no longer than others of their length', () => {
  for (const letter of '>1-,!\n@') assert.ok(expanded(`<g>${letter.repeat(1e5)}</g>`));
});
