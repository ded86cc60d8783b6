import assert from 'node:assert/strict';
import { test } from 'node:test';
import '../support/browser.mjs';
import { readPages } from '../../src/book/config.js';
import { fileAddress } from '../../src/book/values.js';
import { Views } from '../../src/book/views.js';
import { pageInAddress } from '../../src/controls/place.js';
import { Facts } from '../../web/facts.js';
import { fileOf, notesOfFile } from '../../web/noteexchange.js';
import { chunksOf, partsOf } from '../../web/readingblocks.js';
import { PageText } from '../../web/pagetext.js';
import { SearchText } from '../../web/searchtext.js';
import { StartList } from '../../web/startlist.js';
import { expanded, svgOf } from '../../web/vectors.js';
import { Chance } from '../support/chance.mjs';

window.requestIdleCallback = (act) => act();

/** More are tried by hand. */
const ROUNDS = Number(process.env.FUZZ_ROUNDS ?? 800);

const FACTS = { numbers: [3, 4], reading: [1, 2], labels: ['iv', ['A-', 9, 2]], outline: [['A', 1, [['B', 2, []]]]], large: ['js', ''],
  open: [[1, 2]], text: true, searchParts: 2, start: 1, panel: 'thumbs', language: 'de', textPage: 'text.html' };
const LIST = { settings: 'AQID', sizes: [600, 800, 85, 113], numbers: [3, 2], runs: [0, 2],
  kinds: [['page/#.png', 'thumb/#.jpg', 'js']], facts: FACTS };
const TEXT = { size: [600, 800], lines: [[1, 2, 90, 20, 0, 1, ['ab ', 0, 40, 'c', 50, 9]]], links: [[1, 2, 3, 4, 'tel:1']] };
const BLOCKS = [{ kind: 'h1', page: 1, text: [['a', 1], 2, ['b', 4, 'tel:1']] }, { kind: 'row', page: 2, rtl: 1, text: ['c\td'] }];
const NOTE = { id: 'a', kind: 'highlight', page: 2, quote: 'ab', before: '', after: 'c', at: 0, colour: 'blue', note: 'n', made: 1,
  changed: 2 };

test('the player reads whatever a book of strangers holds', async () => {
  const chance = new Chance(1);
  const list = chance.changed.bind(chance, LIST);
  globalThis.document = { querySelector: () => ({ textContent: JSON.stringify(list()) }) };
  for (let round = 0; round < ROUNDS; round++) {
    try {
      const { book, notes } = notesOfFile(JSON.stringify(chance.changed(JSON.parse(fileOf([NOTE], { title: 'T' }, new Date(0))))));
      notes.forEach((note) => Object.entries(NOTE).forEach(([name, own]) => assert.equal(typeof note[name], typeof own)));
      assert.equal(typeof book.title, 'string');
    } catch (error) {
      assert.match(error.message, /^import/);
    }
    for (const data of [StartList.find()?.facts, chance.changed(FACTS)]) {
      const facts = new Facts(data, 2);
      partsOf(facts.reading, 2).forEach((part) => {
        for (const { blocks, pages } of chunksOf(chance.changed(BLOCKS), part, facts)) {
          assert.ok(blocks.length > 0 && [...pages].every((page) => page >= 1));
        }
      });
      for (const page of [1, 2, 3]) assert.match(facts.largeFile(page), /^(large\/\d+\.(js|png|jpg))?$/);
    }
    const page = new PageText(chance.changed(TEXT));
    for (const { box } of page.boxesOf(0, page.string.length)) assert.ok(Object.values(box).every(Number.isFinite));
    const search = new SearchText([]);
    await search.add([chance.text(), chance.value(), page.string]);
    for (const hit of search.find(chance.text()).hits) search.excerpt(hit);
    globalThis.location = { hash: '#' + chance.one(['page=', 'a&page=']) + chance.one(['9'.repeat(400), chance.text()]) };
    assert.ok(new Views(2, true, false).viewOf(pageInAddress()) <= 1);
    const [entry] = readPages(`<Ppt><Normal><ImgPath>${chance.text()}</ImgPath><Width>${chance.text()}</Width></Normal>`);
    assert.match(new URL(fileAddress(entry.page.path), 'a:/b/').href, /^a:\/b\/(files\/|$)/);
    assert.ok(entry.thumb.width >= 1);
  }
});

test('vectors that may be in books become drawings only, whatever their glyphs are', async () => {
  const chance = new Chance(2);
  for (let round = 0; round < ROUNDS; round++) {
    const line = () => '\n!' + chance.text().replaceAll('\n', '');
    const run = () => '<g fill="#123">' + chance.text().replace(/[<&\n]/g, '') + '</g>\n';
    const vectors = `<svg width="1"><defs>${line()}${line()}\n</defs>${run()}${run()}</svg>`;
    const rest = expanded(vectors).replace(/<(\/?(svg|defs|g)|path (id="g\d" )?d="[^"<]*"\/|use href="#g-?\d+" x="[^"<]*" y="[^"<]*"\/)( (width|fill)="[^"]*")?>/g, '');
    assert.doesNotMatch(rest, /</, vectors);
    await svgOf({ vectors: chance.text() }).catch((fault) => assert.ok(fault instanceof RangeError || /^Z_/.test(fault.code), fault));
  }
});
