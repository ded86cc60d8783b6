import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Pace } from '../../src/turning/pace.js';

/** Frames until the machine is found too slow, at most a hundred. */
function framesOf(times) {
  const pace = new Pace();
  let now = 5000;
  for (let i = 1; i <= 100; ++i) {
    pace.ask(now);
    now += times[i % times.length];
    pace.frame(now);
    if (pace.lost()) return i;
    now += 400; // until the next is asked for: a finger rests, or nothing moves
  }
  return Infinity;
}

test('a slow machine is found, the slower the sooner, and a busy moment is not taken for one', () => {
  assert.equal(framesOf([16, 17]), Infinity);
  assert.equal(framesOf([16, 16, 16, 16, 900]), Infinity);
  assert.equal(framesOf([40]), 12);
  assert.ok(framesOf([70]) < 8);
  assert.ok(framesOf([450]) <= 3);
});
