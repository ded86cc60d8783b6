import assert from 'node:assert/strict';
import { test } from 'node:test';
import { newWindow } from '../support/browser.mjs';

const { Sounds } = await import('../../src/controls/sound.js');

const MUSIC = 'files/music.mp3';
const TURN = 'files/extfiles/moveSound.mp3';

/** Sounds of a book that has just been opened, and what is heard of them. */
class Heard {
  constructor(loops, file = 'music.mp3') {
    newWindow();
    const players = new Map();
    globalThis.Audio = class extends EventTarget {
      constructor(address) {
        super();
        players.set(address, this);
      }
      started = 0;
      play() {
        this.started += 1;
        this.sounds = true;
        return Promise.reject(new Error('forbidden'));
      }
      pause() { this.sounds = false; }
    };
    this.players = players;
    this.sounds = new Sounds({ file, loops });
  }

  /** How often a sound has begun so far and whether it is heard now, after this was done. */
  async after(act, address = MUSIC) {
    act();
    await new Promise(setImmediate);
    const { started = 0, sounds = false } = this.players.get(address) ?? {};
    return [started, sounds];
  }

  touch = (kind = 'pointerdown') => window.dispatchEvent(new Event(kind));
  look = (seen) => () => {
    document.hidden = !seen;
    document.dispatchEvent(new Event('visibilitychange'));
  };
}

test('music begins with the first touch, rests while nobody looks, and plays as often as the book says', async () => {
  const heard = new Heard(2);
  const { sounds, touch, look } = heard;
  const end = () => heard.players.get(MUSIC).dispatchEvent(new Event('ended'));
  const steps = [[look(true), 0, false], [touch, 1, true], [touch, 1, true], [look(false), 1, false], [look(true), 2, true],
    [() => sounds.switchTo(false), 2, false], [look(true), 2, false], [() => sounds.switchTo(true), 3, true], [end, 4, true],
    [look(false), 4, false], [end, 4, false], [look(true), 4, false]];
  for (const [index, [act, ...wanted]] of steps.entries()) assert.deepEqual(await heard.after(act), wanted, `step ${index}`);
  for (const [loops, file, started, loop] of [[-1, 'music.mp3', 1, true], [1, 'music.mp3', 1, false], [0, 'music.mp3', 0], [-1, '', 0]]) {
    const other = new Heard(loops, file);
    assert.equal((await other.after(other.touch))[0], started, `${loops} times ${file}`);
    assert.equal(other.players.get(MUSIC)?.loop, loop);
  }
});

test('a turn is heard from its beginning, unless sounds are off or nobody has touched the book', async () => {
  const heard = new Heard(-1, '');
  const turn = (on) => () => {
    heard.sounds.switchTo(on);
    heard.sounds.playTurn();
  };
  assert.deepEqual(await heard.after(turn(true), TURN), [0, false]);
  heard.touch('keydown');
  assert.deepEqual(await heard.after(turn(false), TURN), [0, false]);
  assert.deepEqual(await heard.after(turn(true), TURN), [1, true]);
  heard.players.get(TURN).currentTime = 3;
  await heard.after(turn(true), TURN);
  assert.deepEqual([heard.players.size, heard.players.get(TURN).started, heard.players.get(TURN).currentTime], [1, 2, 0]);
});
