import assert from 'node:assert/strict';
import { test } from 'node:test';
import { SingleFile } from '../../web/singlefile.js';

test('files of a book in one file have addresses as long as they are near', async () => {
  const file = (name, textContent, type) => ({ dataset: { file: name, type }, textContent });
  const names = ['extfiles/wall.png', ...Array.from({ length: 60 }, (_, index) => `page/${index}.jpg`)];
  globalThis.document = { readyState: 'complete',
    querySelectorAll: () => [...names.map((name) => file(name, '#C9^', 'image/png')), file('web/book', '{"a":1}')] };
  const gone = [];
  URL.revokeObjectURL = (address) => gone.push(address);
  const single = new SingleFile();
  assert.deepEqual(await single.data('web/book'), { a: 1 });
  await assert.rejects(single.data('text/1'), /text\/1 is missing/);
  const [wall, first, ...others] = names.map((name) => { single.address('page/0.jpg'); return single.address(name); });
  assert.deepEqual(gone, others.slice(0, 20), 'the longest unused of the pages');
  assert.deepEqual([single.address(names[0]), single.address(names[1]), single.address('page/60.jpg')],
    [wall, first, undefined]);
  const picture = await (await fetch(wall)).blob();
  assert.deepEqual([picture.type, picture.size], ['image/png', 3]);
});
