import assert from 'node:assert/strict';
import path from 'node:path';
import { test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests({ whole: true });
test('a published document has its title, style and properties in a browser as people have it', ready, async () => {
  const folder = path.join(reader.folder, 'book');
  const asked = ['--title', 'Tea & <cake>', '--style', 'Writing desk', '--set', 'RightToLeft=YES'];
  await folvero('publish', '--quiet', ...asked, sample('sample'), folder);
  const book = await reader.openFromDisk(folder);
  assert.equal(await book.page.title(), 'Tea & <cake>');
  assert.ok(await book.box('left'), 'begins at the right');
  await book.page.keyboard.press('ArrowLeft');
  await book.waitForPages(2, 3);
  assert.ok((await book.picture('left')).loaded && (await book.picture('right')).loaded);
  const width = await book.page.evaluate(() => {
    const { backgroundImage } = getComputedStyle(document.querySelector('.inner'));
    const picture = new Image();
    picture.src = /url\("([^"]+)"\)/.exec(backgroundImage)[1];
    return picture.decode().then(() => picture.naturalWidth);
  });
  assert.equal(width, 1920);
  assert.deepEqual(book.errors, []);
});
