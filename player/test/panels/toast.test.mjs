import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Thing, clock } from '../support/browser.mjs';

const { Toast } = await import('../../src/panels/toast.js');

test('a note goes after a while, but not while the reader is at it', () => {
  const toast = new Toast(new Thing());
  const { element } = toast;
  toast.show('A note', 'Do it', () => {});
  for (const [come, leave] of [['pointerenter', 'pointerleave'], ['focusin', 'focusout']]) {
    clock.run(7000);
    element.dispatchEvent(new Event(come));
    clock.run(60000);
    assert.equal(element.hidden, false);
    element.dispatchEvent(new Event(leave));
  }
  clock.run(9000);
  assert.equal(element.hidden, true);
});
