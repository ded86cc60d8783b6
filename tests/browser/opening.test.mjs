import assert from 'node:assert/strict';
import { readFile, rm, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { faults } from './support/axe.mjs';
import { colourOf, configurationXml, plainPages, writeConfiguration } from './support/book.mjs';
import { CONFIG_KEY, rc4 } from './support/rc4.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

const messageOf = (book) => book.page.locator('.message').innerText();
const enciphered = (text) => rc4(Buffer.from(text), CONFIG_KEY);

/** A book without some of its files. */
async function bookWithout(...files) {
  const folder = await reader.book({ pages: plainPages(5) });
  for (const file of files) await rm(path.join(folder, 'files', file));
  return folder;
}

test('a server that withholds the binary file is answered with the script copy', async () => {
  assert.deepEqual(await (await reader.openOverHttp(await bookWithout('UserConfig.bin'))).pages(), [1]);
});

test('a page without a file, or with one that is no picture, leaves a note in its place', async () => {
  const folder = await bookWithout('page/3.jpg');
  await writeFile(path.join(folder, 'files/page/1.jpg'), 'not a picture');
  const book = await reader.openFromDisk(folder);
  const right = book.page.locator('.page.right');
  assert.equal(await right.innerText(), 'Page 1 could not be shown');
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.equal(await right.innerText(), 'Page 3 could not be shown');
  assert.deepEqual(await book.colourOf('left'), colourOf(2));
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(4, 5);
  assert.deepEqual(await book.colourOf('right'), colourOf(5));
});

test('keys pressed while a book opens are not lost', async () => {
  const folder = await reader.book({ pages: plainPages(5) });
  const book = await reader.openOverHttp(folder, { before: (page) => page.route('**/page/1.jpg', async (route) => {
    for (const key of ['ArrowRight', 't']) await page.keyboard.press(key);
    await route.continue();
  }) });
  await book.waitForPages(2, 3);
  assert.equal(await book.page.locator('.drawer').isVisible(), true);
});

const written = (bytes) => (folder) => writeConfiguration(folder, bytes);
const damages = [
  ['a configuration of noise', written(Buffer.from('this is no configuration')), /damaged/i],
  ['an empty configuration', written(Buffer.alloc(0)), /damaged/i],
  ['half a configuration', written(enciphered('<SlidePowerPoint><Properties><Search>No</Sea')), /damaged/i],
  ['no pages', written(enciphered('<SlidePowerPoint><Properties/><Ppts/></SlidePowerPoint>')), /no pages/i],
  ['no files', (folder) => rm(path.join(folder, 'files'), { recursive: true }), /incomplete/i],
];
for (const [name, damage, words] of damages) {
  test(`a book with ${name} says so`, async () => {
    const folder = await bookWithout();
    await damage(folder);
    assert.match(await messageOf(await reader.openFromDisk(folder)), words);
    assert.match(await messageOf(await reader.openOverHttp(folder, { view: PHONE })), words);
  });
}

test('bytes after the document, and blanks in it, do no harm', async () => {
  const folder = await bookWithout();
  await writeConfiguration(folder, enciphered(configurationXml(2).replaceAll('><', '>\n <') + '\t'.repeat(9)));
  const book = await reader.openFromDisk(folder);
  assert.equal(await book.page.evaluate(() => window.folvero.pageCount), 2);
});

test('a book may be asked for again where that can help', async () => {
  const folder = await bookWithout('UserConfig.bin', 'UserConfig.js');
  const fromDisk = await reader.openFromDisk(folder);
  assert.equal(await fromDisk.page.locator('.message button').isVisible(), false);
  const book = await reader.openOverHttp(folder);
  const again = book.page.locator('.message button');
  assert.equal(await again.innerText(), 'Try again');
  assert.deepEqual(await faults(book), []);
  await writeConfiguration(folder, enciphered(configurationXml(3)));
  await again.click();
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  assert.deepEqual(await book.pages(), [1]);
});

test('a server that gives no answer is named as the cause', async () => {
  const book = await reader.openOverHttp(await bookWithout(),
    { before: (page) => page.route(/UserConfig/, (route) => route.abort('connectionrefused')) });
  assert.match(await messageOf(book), /could not be loaded[^]*connection[^]*Try again/);
});

test('a browser without script says what is missing', async () => {
  const context = await reader.browser.newContext({ javaScriptEnabled: false });
  const page = await context.newPage();
  await page.goto(`file://${await bookWithout()}/index.html`);
  assert.match(await page.locator('body').innerText(), /needs JavaScript/);
  assert.equal(await page.locator('.wait').isVisible(), false);
});

test('a browser that does not understand the script says so', async () => {
  const file = path.join(await bookWithout(), 'index.html');
  const html = (await readFile(file, 'utf8')).replace(/<meta http-equiv="Content-Security-Policy"[^>]*>/, '');
  await writeFile(file, html.replaceAll('"use strict";', 'a script of tomorrow;'));
  const page = await reader.browser.newPage();
  await page.goto(`file://${file}`);
  assert.match(await page.locator('body').innerText(), /needs a newer browser/);
});
