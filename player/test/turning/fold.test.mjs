import assert from 'node:assert/strict';
import { test } from 'node:test';
import { foldOf, leafCorners, reachable, seenOutline, within } from '../../src/turning/fold.js';
import { clearedCanvas } from '../../src/turning/shade.js';

const WIDTH = 300;
const HEIGHT = 400;
const corners = leafCorners({ width: WIDTH, height: HEIGHT });
const edges = [0, 150, HEIGHT].map((y) => ({ x: WIDTH, y }));
const places = [-500, -299, -40, 0, 120, 299, 500].flatMap((x) => [-300, 0, 210, 400, 700].map((y) => ({ x, y })));

const area = (outline) => Math.abs(outline.reduce((sum, { x, y }, index) => {
  const next = outline[(index + 1) % outline.length];
  return sum + x * next.y - next.x * y;
}, 0)) / 2;

test('paper is neither torn from its binding nor held back', () => {
  for (const edge of edges) {
    for (const wanted of places) {
      const { x, y } = reachable(wanted, edge, HEIGHT);
      const tension = [0, HEIGHT].map((at) => Math.hypot(x, y - at) / Math.hypot(edge.x, edge.y - at));
      assert.ok(Math.max(...tension) < 1.02, `${JSON.stringify(wanted)} from ${edge.y}: ${tension}`);
      if (x !== wanted.x || y !== wanted.y) assert.ok(Math.max(...tension) > 0.9, 'goes as far as it can');
    }
  }
});

test('a leaf folds in the middle between where its edge lay and where it is, about a roll of paper', () => {
  assert.equal(foldOf({ x: 299.7, y: 0 }, edges[0], WIDTH, HEIGHT), null);
  for (const edge of edges) {
    for (const wanted of places) {
      const held = reachable(wanted, edge, HEIGHT);
      const fold = foldOf(held, edge, WIDTH, HEIGHT);
      if (!fold) continue;
      const { middle, angle, radius } = fold;
      assert.ok(radius > 0 && radius <= WIDTH * 0.2, `radius ${radius}`);
      const beyond = ({ x, y }) => (x - middle.x) * Math.cos(angle) + (y - middle.y) * Math.sin(angle);
      assert.ok(Math.abs(beyond(edge) + beyond(held)) < 1e-6, 'as far from the fold on both sides');
      const parts = [within(corners, fold, -Infinity, 0), within(corners, fold, 0, Infinity)];
      assert.ok(Math.abs(area(parts[0]) + area(parts[1]) - WIDTH * HEIGHT) < 1e-3, 'the parts are the whole');
      assert.ok(parts[1].every((point) => beyond(point) > -1e-6));
      const seen = seenOutline(corners, fold, -Infinity, Infinity);
      assert.ok(seen.every((point) => beyond(point) <= radius), 'no paper beyond the roll');
    }
  }
});

test('a canvas that is drawn on again is cleared as a whole, however it was scaled, and only grows', () => {
  const calls = [];
  const log = (name) => (...values) => calls.push([name, ...values]);
  const context = { canvas: { width: 10, height: 10 }, setTransform: log('scale'), clearRect: log('clear') };
  clearedCanvas(context, 8, 10);
  assert.deepEqual(calls.splice(0), [['scale', 1, 0, 0, 1, 0, 0], ['clear', 0, 0, 10, 12]]);
  clearedCanvas(context, 12, 5);
  assert.deepEqual([context.canvas, calls], [{ width: 12, height: 10 }, []], 'a new size clears it');
  clearedCanvas(context, 5, 14);
  assert.deepEqual(context.canvas, { width: 12, height: 14 });
});
