import assert from 'node:assert/strict';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { Table } from '../support/table.mjs';

const { Memory } = await import('../../src/controls/memory.js');
const { Place, pageInAddress } = await import('../../src/controls/place.js');
const { Slideshow } = await import('../../src/controls/slideshow.js');

test('the address names a page', () => {
  const asked = [['#page=17', 17], ['#a=1&page=3', 3], ['', 0], ['#homepage=3', 0], ['#page=x', 0], ['#page=', 0]];
  new Table();
  for (const [hash, page] of asked) {
    globalThis.location.hash = hash;
    assert.equal(pageInAddress(), page, hash);
  }
});

test('the address follows the reader, a jump can be taken back, and a page of two in view may be the one asked for', () => {
  const table = new Table({ page: 1 });
  const { turner, book } = table;
  const entries = ['#page=1'];
  const goTo = (hash) => { globalThis.location.hash = hash; };
  globalThis.history = {
    replaceState: (_, __, hash) => { goTo(hash); entries[entries.length - 1] = hash; },
    pushState: (_, __, hash) => { goTo(hash); entries.push(hash); },
  };
  goTo('#page=1');
  const place = new Place(turner, 1);
  const landed = [];
  turner.onLanded = () => landed.push(place.land());
  table.key('ArrowRight');
  assert.deepEqual(table.pages, [2, 3]);
  assert.deepEqual([place.page, ...entries], [2, '#page=2']);
  table.key('End');
  assert.deepEqual(table.pages, [8, 9]);
  assert.deepEqual([place.page, ...entries], [8, '#page=2', '#page=8']);
  goTo('#page=5');
  table.window.dispatchEvent(new Event('hashchange'));
  assert.deepEqual(table.pages, [4, 5]);
  assert.deepEqual([place.page, ...entries], [5, '#page=2', '#page=8'], 'page 5 of 4 and 5 was asked for');
  assert.deepEqual(landed, [true, true, true]);
  turner.stand(book.views.viewOf(4));
  assert.deepEqual([landed.at(-1), place.page], [false, 5], 'a window that changes does not move the reader');
  globalThis.history = { replaceState() { throw new Error('forbidden'); } };
  table.key('ArrowRight');
  assert.deepEqual(table.pages, [6, 7]);
});

test('the page left is remembered where the browser lets it, of this edition of the book', () => {
  new Table();
  const kept = {};
  globalThis.localStorage = { getItem: (key) => kept[key] ?? null, setItem: (key, text) => { kept[key] = text; } };
  const page = (count) => new Memory(count).page;
  assert.equal(page(9), 0);
  new Memory(9).page = 9;
  assert.deepEqual([page(9), page(8)], [9, 0]);
  globalThis.location.pathname = '/other/';
  assert.equal(page(9), 0);
  for (const nonsense of ['<b>99', '10', '0', '1.5']) {
    new Memory(9).page = nonsense;
    assert.equal(page(9), 0, nonsense);
  }
  delete globalThis.localStorage;
  new Memory(9).page = 3;
  assert.equal(page(9), 0);
});

test('a book that plays by itself turns after each interval, begins again or ends, and waits for its reader', () => {
  for (const [loop, wanted] of [[true, [1]], [false, [4]]]) {
    const table = new Table({ count: 4, page: 1 });
    const { turner } = table;
    const show = new Slideshow(turner, 3, loop);
    turner.onLanded = () => show.wait();
    show.run(true);
    clock.run(2900);
    assert.equal(turner.turning, false);
    clock.run(2900);
    assert.deepEqual(table.pagesNow, [2, 3]);
    show.isHeld = () => true;
    clock.run(9000);
    assert.deepEqual(table.pagesNow, [2, 3], 'a panel is open');
    show.isHeld = () => false;
    globalThis.document.hidden = true;
    clock.run(9000);
    assert.deepEqual(table.pagesNow, [2, 3], 'nobody looks');
    globalThis.document.hidden = false;
    clock.run(4000);
    assert.deepEqual(table.pagesNow, [4]);
    clock.run(4000);
    assert.deepEqual([table.pagesNow, show.running], [wanted, loop]);
    show.run(false);
    assert.deepEqual(table.pages, wanted);
  }
});
