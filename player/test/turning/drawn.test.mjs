import assert from 'node:assert/strict';
import { readFile, writeFile } from 'node:fs/promises';
import { test } from 'node:test';
import { Thing, drawings } from '../support/browser.mjs';
import { Table } from '../support/table.mjs';

const { Leaf } = await import('../../src/turning/leaf.js');

const EXPECTED = new URL('drawn.txt', import.meta.url);
const NUMBER = /-?(?:\d+\.?\d*|\.\d+)(?:e-\d+)?/g;
const NARROW = { width: 400 };
const REVERSED = { rightToLeft: true };

/** Kind of turn, settings, views, where the edge is taken and held, as shares of the page. */
const moments = [
  ['curl', {}, 2, 3, 1, [0.3, 0.8]], ['curl', {}, 2, 1, 0.2, [-0.6, 0.1]], ['curl', {}, 4, 5, 0, [0.9, 0]],
  ['curl', NARROW, 2, 3, 1, [-0.5, 0.9]], ['curl', REVERSED, 2, 3, 0.5, [0.1, 0.4]], ['curl', {}, 2, 3, 1, [1, 1]],
  ['flip', {}, 2, 3, 0.5, [0.4, 0]], ['flip', {}, 2, 1, 0.5, [-0.7, 0]], ['flip', {}, 0, 1, 0.5, [-0.2, 0]],
  ['flip', NARROW, 2, 3, 0.5, [0.2, 0]], ['flip', {}, 4, 5, 0.5, [-0.9, 0]],
  ['slide', {}, 2, 3, 0.5, [0.4, 0]], ['slide', NARROW, 2, 1, 0.5, [0.7, 0]], ['slide', REVERSED, 0, 1, 0.5, [-0.4, 0]],
];

/** Values of a call as numbers, those within texts among them. */
const numbersOf = (value) => (typeof value === 'number' ? [value] : Array.isArray(value) ? value.flatMap(numbersOf)
  : typeof value === 'string' ? (value.match(NUMBER) ?? []).map(Number) : []);

/** Calls of the same kind in one line: how many there are, and the sum of each of their values, later ones times more. */
function summary() {
  const lines = new Map();
  for (const [name, values] of drawings.calls.splice(0)) {
    const key = [name, ...values.filter((value) => typeof value === 'string')].join(' ').replace(NUMBER, '#');
    const line = lines.get(key) ?? { count: 0, sums: [] };
    line.count += 1;
    numbersOf(values).forEach((number, at) => { line.sums[at] = (line.sums[at] ?? 0) + number * line.count; });
    lines.set(key, line);
  }
  return [...lines].map(([key, { count, sums }]) => `  ${key}, ${count}: ${sums.map((sum) => +sum.toFixed(2) || 0).join(' ')}`.trimEnd());
}

async function drawn(turn, settings, from, to, share, [x, y]) {
  const { book, turner } = new Table({ count: 10, look: { turn }, ...settings });
  const leaf = new Leaf(book, turner.painter, from, to, share);
  for (const page of Object.values(leaf.pages).filter(Boolean)) await book.images.get(page).settled;
  leaf.held = turner.painter.reach({ x: x * leaf.width, y: y * leaf.height }, leaf);
  drawings.calls.length = 0;
  leaf.drawFaces(1.5);
  const faces = [' faces', ...summary()];
  turner.painter.draw(new Thing().context, leaf, 1.5);
  return { title: `${turn} ${JSON.stringify(settings)} ${from} to ${to}, edge ${share} at ${x} ${y}`, faces,
    leaf: [' leaf', ...summary()] };
}

// With FOLVERO_WRITE_EXPECTED=1 in the environment it is written anew.
test('leaves look as they did at the same moments of their turns', async () => {
  const found = [];
  const known = new Set();
  for (const moment of moments) {
    const { title, faces, leaf } = await drawn(...moment);
    // Most have the same faces.
    found.push(title, ...(known.has(faces.join()) ? [] : faces), ...leaf);
    known.add(faces.join());
  }
  if (process.env.FOLVERO_WRITE_EXPECTED) await writeFile(EXPECTED, `${found.join('\n')}\n`);
  assert.deepEqual(found, (await readFile(EXPECTED, 'utf8')).trimEnd().split('\n'));
});
