import assert from 'node:assert/strict';
import { deflateSync } from 'node:zlib';
import { beforeEach, test } from 'node:test';
import { asciiOf } from '../../../tests/browser/support/webbook.mjs';
import { SingleFile } from '../../web/singlefile.js';

const packed = (text) => asciiOf(deflateSync(text));
const textOf = async (address) => (await fetch(await address)).text();

/** The page's end, where elements arrive one after the other. */
let elements;
let arrived;
let root;
function arrive(file, textContent, dataset = {}) {
  const element = { dataset: { file, ...dataset }, textContent, nextElementSibling: null, nextSibling: null };
  const last = elements.at(-1);
  if (last) Object.assign(last, { nextElementSibling: element, nextSibling: element });
  elements.push(element);
  for (const call of arrived.splice(0)) call();
}

beforeEach(() => {
  elements = [];
  arrived = [];
  globalThis.MutationObserver = class {
    constructor(call) { this.call = call; }
    observe() { arrived.push(this.call); }
    disconnect() {}
  };
  root = { dataset: {} };
  globalThis.document = { getElementById: () => root, readyState: 'loading', querySelector: () => elements[0] ?? null,
    addEventListener: (kind, call) => arrived.push(call), removeEventListener() {} };
});
const end = () => {
  document.readyState = 'interactive';
  for (const call of arrived.splice(0)) call();
};

test('files are read as soon as they have arrived as a whole', async () => {
  const single = new SingleFile();
  const [words, page, lost] = [single.data('text/1'), single.address('page/2.jpg'), single.address('page/3.jpg')];
  let settled = 0;
  for (const one of [words, page, lost]) one.then(() => { settled += 1; });
  arrive('text/1', 'only its begi');
  await new Promise(setImmediate);
  assert.equal(settled, 0, 'the last element may still be growing');
  elements[0].textContent = packed('{"a":"é"}');
  elements[0].dataset.packed = '';
  arrive('page/2.jpg', '#C9^', { type: 'image/jpeg' });
  assert.deepEqual(await words, { a: 'é' });
  arrive('web/book', '[1]');
  const picture = await (await fetch(await page)).blob();
  assert.deepEqual([picture.type, picture.size], ['image/jpeg', 3]);
  end();
  assert.deepEqual([await single.data('web/book'), await lost], [[1], 'data:,']);
  await assert.rejects(single.data('text/2'), /text\/2 is missing/);
});

test('vectors are pictures, and packed scripts are scripts', async () => {
  const single = new SingleFile();
  arrive('large/1', JSON.stringify({ vectors: packed('<svg></svg>') }));
  arrive('reading.js', packed('run()'), { packed: '' });
  end();
  const { dataset } = root;
  dataset.air = 'yes';
  const drawn = single.address('large/1.js').then((address) => [dataset.air, address]);
  setTimeout(() => { dataset.air = 'no'; }, 80);
  const [air, address] = await drawn;
  assert.equal(air, 'no', 'not while a leaf turns');
  assert.equal(await textOf(address), '<svg></svg>');
  assert.equal(await textOf(single.address('reading.js')), 'run()');
});

test('files have addresses as long as they are near', async () => {
  const names = ['extfiles/wall.png', ...Array.from({ length: 60 }, (_, index) => `page/${index}.jpg`)];
  for (const name of names) arrive(name, '#C9^', { type: 'image/png' });
  end();
  const gone = [];
  URL.revokeObjectURL = (address) => gone.push(address);
  const single = new SingleFile();
  const [wall, first, ...others] = names.map((name) => { single.address('page/0.jpg'); return single.address(name); });
  assert.deepEqual(gone, others.slice(0, 20), 'the longest unused of the pages');
  assert.deepEqual([single.address(names[0]), single.address(names[1])], [wall, first]);
});
