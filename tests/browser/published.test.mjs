import assert from 'node:assert/strict';
import path from 'node:path';
import { test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests({ whole: true });

async function publish(document, ...options) {
  const folder = path.join(reader.folder, document);
  await folvero('publish', '--quiet', ...options, sample(document), folder);
  return folder;
}

test('a published document has its title, and its pages in a browser as people have it', ready, async () => {
  const book = await reader.openFromDisk(await publish('sample', '--title', 'Tea & <cake>'));
  assert.equal(await book.page.title(), 'Tea & <cake>');
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.ok((await book.picture('left')).loaded && (await book.picture('right')).loaded);
  assert.deepEqual(book.errors, []);
});

test('the style and the properties that were asked for are seen in the book', ready, async () => {
  const folder = await publish('text', '--style', 'Writing desk', '--set', 'RightToLeft=YES');
  const book = await reader.openFromDisk(folder);
  assert.ok(await book.box('left'), 'begins at the right');
  const loaded = await book.page.evaluate(() => {
    const { backgroundImage } = getComputedStyle(document.querySelector('.inner'));
    const picture = new Image();
    picture.src = /url\("([^"]+)"\)/.exec(backgroundImage)[1];
    return picture.decode().then(() => picture.naturalWidth);
  });
  assert.equal(loaded, 1920);
});
