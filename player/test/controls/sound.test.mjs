import assert from 'node:assert/strict';
import { test } from 'node:test';
import { newWindow } from '../support/browser.mjs';

const { Sounds } = await import('../../src/controls/sound.js');

/** The sounds of a book with music, and what is done with them, in order. */
function sounds(loops) {
  newWindow();
  const heard = [];
  globalThis.document = Object.assign(new EventTarget(), { hidden: false });
  globalThis.Audio = class extends EventTarget {
    constructor(address) {
      super();
      this.name = address.replace('files/', '');
      heard[this.name] = this;
    }

    async play() {
      heard.push(this.name);
      throw new Error('not allowed');
    }

    pause() {
      heard.push('pause');
    }
  };
  return { heard, book: new Sounds({ file: 'music.mp3', loops }) };
}

test('music plays as often as the book says, and for ever below 0', () => {
  for (const [loops, times, forever] of [[0, 0, false], [1, 1, false], [3, 3, false], [-1, 5, true]]) {
    const { heard } = sounds(loops);
    window.dispatchEvent(new Event('keydown'));
    for (let end = 0; end < 4; end += 1) heard['music.mp3']?.dispatchEvent(new Event('ended'));
    assert.equal(heard.length, times, `${loops} loops`);
    assert.equal(heard['music.mp3']?.loop ?? false, forever);
  }
});

test('nothing sounds before a gesture, while switched off, or while nobody looks', () => {
  const { heard, book } = sounds(-1);
  book.playTurn();
  assert.deepEqual([...heard], []);
  window.dispatchEvent(new Event('pointerdown'));
  window.dispatchEvent(new Event('keydown'));
  book.playTurn();
  book.switchTo(false);
  book.playTurn();
  book.switchTo(true);
  for (const hidden of [true, false]) {
    document.hidden = hidden;
    document.dispatchEvent(new Event('visibilitychange'));
  }
  assert.deepEqual([...heard], ['music.mp3', 'extfiles/moveSound.mp3', 'pause', 'music.mp3', 'pause', 'music.mp3']);
});
