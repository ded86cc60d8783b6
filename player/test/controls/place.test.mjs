import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { Table } from '../support/table.mjs';

const { Memory } = await import('../../src/controls/memory.js');
const { Place } = await import('../../src/controls/place.js');
const { Slideshow } = await import('../../src/controls/slideshow.js');

test('the address follows the reader, Back undoes a jump, and of two pages one may be asked for', () => {
  const table = new Table({ page: 1 });
  const { turner } = table;
  const entries = ['#page=1'];
  const write = (at) => (_, __, hash) => { globalThis.location.hash = entries[at()] = hash; };
  globalThis.history = { replaceState: write(() => entries.length - 1), pushState: write(() => entries.length) };
  const place = new Place(turner, 1);
  turner.onLanded = () => { table.moved = place.land(); };
  const after = (act) => {
    act();
    return [table.pages[0], place.page, table.moved, ...entries];
  };
  const ask = (hash) => () => {
    globalThis.location.hash = hash;
    table.window.dispatchEvent(new Event('hashchange'));
  };
  assert.deepEqual(after(() => table.key('ArrowRight')), [2, 2, true, '#page=2']);
  assert.deepEqual(after(() => table.key('End')), [8, 8, true, '#page=2', '#page=8']);
  assert.deepEqual(after(ask('#page=5')), [4, 5, true, '#page=2', '#page=8'], 'of pages 4 and 5');
  assert.deepEqual(after(() => turner.stand(2)), [4, 5, false, '#page=2', '#page=8'], 'only the window has changed');
  globalThis.history = { replaceState() { throw new Error('forbidden'); } };
  assert.equal(after(() => table.key('ArrowRight'))[0], 6);
});

test('the way back is offered until the reader is there or has turned three times', () => {
  const table = new Table({ count: 20, page: 4 });
  globalThis.history = { replaceState() {}, pushState() {} };
  const place = new Place(table.turner, 4);
  table.turner.onLanded = () => place.land();
  const keys = [['End', 4], ['ArrowLeft', 4], ['ArrowLeft', 4], ['ArrowLeft', 0], ['Home', 14], ['End', 1], ['Home', 20], ['x', 20]];
  for (const [key, wanted] of keys) {
    table.key(key);
    assert.deepEqual([key, table.pages && place.left], [key, wanted]);
  }
  table.turner.turnTo(10);
  assert.deepEqual([table.pages, place.left], [[20], 0], 'back again');
});

test('the page left is remembered where the browser lets it, of this edition of the book', () => {
  const kept = {};
  globalThis.localStorage = { getItem: (key) => kept[key] ?? null, setItem: (key, text) => { kept[key] = text; } };
  const page = (count) => new Memory(count).page;
  new Memory(9).page = 9;
  assert.deepEqual([page(9), page(12)], [9, 0]);
  for (const nonsense of ['<b>99', '10', '0', '1.5']) {
    new Memory(9).page = nonsense;
    assert.equal(page(9), 0, nonsense);
  }
  delete globalThis.localStorage;
  new Memory(9).page = 3;
  assert.equal(page(9), 0);
});

test('a book that plays by itself turns after each interval, begins again or ends, and waits for its reader', () => {
  for (const [loop, page] of [[true, 1], [false, 4]]) {
    const table = new Table({ count: 4, page: 1 });
    const show = new Slideshow(table.turner, 3, loop);
    table.turner.onLanded = () => show.wait();
    const after = (time) => {
      clock.run(time);
      return table.pagesNow[0];
    };
    show.run(true);
    assert.deepEqual([after(2900), after(900)], [1, 2]);
    show.isHeld = () => true;
    assert.equal(after(9000), 2, 'a panel is open');
    show.isHeld = () => false;
    globalThis.document.hidden = true;
    assert.equal(after(9000), 2, 'nobody looks');
    globalThis.document.hidden = false;
    assert.deepEqual([after(3800), after(3800), show.running], [4, page, loop]);
    show.run(false);
    assert.equal(after(9000), page);
  }
});
