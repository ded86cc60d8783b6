import assert from 'node:assert/strict';
import { readFile, writeFile } from 'node:fs/promises';
import { test } from 'node:test';
import { clock } from '../support/browser.mjs';
import { Key, Piece } from '../support/piece.mjs';

const { Facts } = await import('../../web/facts.js');
const { PageText } = await import('../../web/pagetext.js');
const { chunksOf } = await import('../../web/readingblocks.js');
const { Elements } = await import('../../web/readingelements.js');
const { Results } = await import('../../web/results.js');
const { SearchText } = await import('../../web/searchtext.js');
const { addTextLayer } = await import('../../web/textlayer.js');
const { Tree } = await import('../../web/tree.js');

const EXPECTED = new URL('made.txt', import.meta.url);
const WRITES = Boolean(process.env.FOLVERO_WRITE_EXPECTED);
if (WRITES) await writeFile(EXPECTED, '');
const expected = await readFile(EXPECTED, 'utf8');

/** Asserts that elements are as they are written down; with FOLVERO_WRITE_EXPECTED=1 in the environment, writes them anew. */
async function isAsWritten(name, elements) {
  const found = [`== ${name}`, ...elements.flatMap((element) => element.written()), ''].join('\n');
  if (WRITES) await writeFile(EXPECTED, found, { flag: 'a' });
  else assert.equal(found, expected.slice(expected.indexOf(`== ${name}\n`)).replace(/\n== [^]*$/, '\n'));
}

const say = (word, ...values) => [word, ...values].join(' ');
const pages = Array.from({ length: 9 }, (_, index) => ({ path: `page/${index + 1}.jpg`, width: 120, height: 160 }));
const config = { pages, labels: ['i', '', '1'] };

test('the reading view has an element for each kind of text, and leads where that leads', async () => {
  const long = (text) => text.padEnd(300, '.,');
  const raw = [
    { kind: 'h1', page: 1, text: [['A ', 1, 0], ['heading', 3, 0]] },
    { kind: 'p', page: 1, text: [long('Words '), ['bold', 1, 0], ['italic', 2, 0], ['code', 4, 0], ['all', 7, 3], 2, long('page 2')] },
    { kind: 'p', page: 2, text: [['a link', 0, 'https://example.org/?a&b'], ['no link', 0, 'javascript:1'], ['none', 0, 99]] },
    { kind: 'item', page: 2, text: ['\u2022 bullet'] }, { kind: 'item', page: 2, rtl: 1, text: ['(b) letter', ['more', 1, 0]] },
    { kind: 'item', page: 2, text: ['none'] }, { kind: 'note', page: 2, text: ['1 a note'] }, { kind: 'h9', page: 2, text: ['plain'] },
    { kind: 'row', page: 3, rtl: 1, text: [long('a\tb'), ['\tc', 1, 0]] }, { kind: 'row', page: 3, text: ['d\t', 4, 'e'] },
    { kind: 'h6', page: 4, rtl: 1, text: [long('small')] }, { kind: 'code', page: 4, text: [['let a', 4, 0], ['.....', 4, 0]] },
    { kind: 'p', page: 4, text: ['Chapter . . . . . . . 7'] }, { kind: 'p', page: 4, text: ['Figure 3: a hill'] },
    { kind: 'figure', page: 4, box: [600, 800, 3000, 2000], size: [6000, 8000], images: 1, alt: 'A hill', words: 'high', text: ['Its caption'] },
    { kind: 'figure', page: 4, rtl: 1, box: [0, 0, 6000, 500], size: [6000, 8000], words: 'x'.repeat(400), text: [] },
    { kind: 'p', page: 6, text: [long('after a picture')] },
  ];
  const led = [];
  const elements = new Elements({ config, say, sheets: {} }, (page) => led.push(`lead ${page}`), (page) => led.push(`open ${page}`));
  const facts = { pageCount: 9, isOpen: (page) => page < 7 };
  const made = chunksOf(raw, { first: 1, last: 9 }, facts).flatMap(({ blocks }) => elements.of(blocks));
  await new Promise(setImmediate);
  await isAsWritten('reading view', made);
  for (const element of made.flatMap(({ all }) => all)) element.dispatchEvent(new Event('click'));
  assert.deepEqual(led, ['lead 3', 'open 4', 'open 4', 'open 4', 'open 5']);
});

test('the words of a page lie in parts that say what they are, each word where its picture is', async () => {
  const text = new PageText({ size: [600, 800], blocks: ['h2', 1, 'h4', 1, 'h3', 1, 'item', 1, 'item', 1, 'row', 1, 'p', 2, 'note', 1], lines: [
    [100, 100, 90, 20, 0, 0, ['abcd ', 0, 40, 'ef', 50, 40]],
    [100, 200, 90, 20, 0, 1, ['\u05e9\u05dc\u05d5\u05dd ', 50, 40, 'ab ', 20, 20, '12', 0, 10]],
    [300, 100, 20, 90, 90, 0, ['abcd ', 0, 40, 'ef', 50, 40]], [400, 300, 90, 20, 180, 0, ['abcd ', 50, 40, 'ef', 0, 40]],
    [500, 100, 20, 90, 270, 0, ['abcd ', 50, 40, 'ef', 0, 40]], [100, 400, 90, 20, 0, 0, ['one ', 0, 30, 'far', 60, 30]],
    [100, 500, 90, 20, 0, 0, ['two', 0, 30]], [100, 600, 90, 20, 0, 0, ['', 0, 30]], [100, 700, 90, 20, 0, 0, ['note', 0, 30]],
  ] });
  const box = new Piece('div');
  await addTextLayer({ box, text }, async () => {});
  await addTextLayer({ box, text: new PageText({}) }, async () => {});
  await isAsWritten('words of a page', [box]);
});

test('what is found is listed by page, and keys lead along it', async () => {
  const text = new SearchText([]);
  const added = text.add(['The fox and a fox', '', 'A fox']).then(() => true);
  while (!await Promise.race([added, null])) clock.run(50);
  const element = new Piece('div');
  const chosen = [];
  const results = new Results(element, (position) => `Page ${position}`, 'en', (index) => chosen.push(index));
  const { hits } = text.find('fox');
  assert.equal(hits.length, 3);
  results.show(text, hits);
  results.mark(1);
  results.focus();
  const active = () => results.active;
  const walk = ['ArrowDown', 'ArrowDown', 'ArrowUp', 'Home', 'End', 'PageUp', 'PageDown', 'Enter', 'x'].map((key) => {
    const event = new Key(key);
    element.dispatchEvent(event);
    return `${active()}${event.defaultPrevented ? '' : ' free'}`;
  });
  assert.deepEqual([walk, chosen], [['2', '2', '1', '0', '2', '0', '2', '2', '2 free'], [2]]);
  await isAsWritten('results', [element]);
  results.show(null, []);
  assert.deepEqual([element.hidden, element.nodes.length, element.getAttribute('aria-activedescendant')], [true, 0, null]);
});

test('contents are a tree that opens where it is asked to, and its keys are those of trees', async () => {
  const { outline } = new Facts({ outline: [['Preface', 1], ['Part', 2, [['River', 3, [['Deep', 4]]], ['Harbour', 0]]], ['Nothing', 0]] }, 9);
  const element = new Piece('ul');
  const chosen = [];
  const tree = new Tree(element, outline, ({ position }) => (position ? `p. ${position}` : ''), (position) => `page ${position}`,
    ({ entry }) => chosen.push(entry.title));
  const now = () => tree.active.entry.title;
  const press = (...keys) => keys.map((key) => {
    element.dispatchEvent(new Key(key));
    clock.run(100);
    return now();
  });
  assert.deepEqual(press('ArrowDown', 'ArrowRight', 'ArrowRight', 'ArrowRight', 'ArrowDown', 'ArrowLeft', 'ArrowLeft', 'ArrowLeft'),
    ['Part', 'Part', 'River', 'River', 'Deep', 'River', 'River', 'Part']);
  assert.deepEqual(press('End', 'ArrowDown', ' ', 'h', 'ArrowUp', 'Enter', 'Home', 'ArrowUp', 'p', 'a'),
    ['Nothing', 'Nothing', 'Nothing', 'Harbour', 'River', 'River', 'Preface', 'Preface', 'Part', 'Part']);
  assert.deepEqual(chosen, ['River']);
  tree.mark(tree.ofPage(4));
  await isAsWritten('contents', [element]);
  tree.reveal(tree.ofPage(4));
  assert.deepEqual([now(), tree.visible.length, element.querySelector('[aria-current]').querySelector('.tree-title').nodes],
    ['Deep', 6, ['Deep']]);
  press('Home', 'ArrowDown', 'ArrowLeft');
  tree.openAll();
  assert.equal(tree.visible.length, 6);
});
