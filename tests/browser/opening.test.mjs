import assert from 'node:assert/strict';
import { readFile, rm, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { gzipSync } from 'node:zlib';
import { colourOf, configurationXml, plainPages, writeConfiguration } from './support/book.mjs';
import { CONFIG_KEY, rc4 } from './support/rc4.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

const messageOf = (book) => book.page.locator('.message').innerText();

test('the cipher of these tests agrees with a published example', () => {
  assert.equal(rc4(Buffer.from('Plaintext'), 'Key').toString('hex'), 'bbf316e8d940af0ad3');
});

test('a book opened from disk shows its cover', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(5), title: 'My title' }));
  assert.deepEqual(await book.pages(), [1]);
  assert.deepEqual(await book.colourOf('right'), colourOf(1));
  assert.equal(await book.box('left'), null);
  assert.equal(await book.page.title(), 'My title');
  assert.deepEqual(book.errors, []);
});

test('a book opened over http shows its cover', async () => {
  const book = await reader.openOverHttp(await reader.book({ pages: plainPages(5) }));
  assert.deepEqual(await book.pages(), [1]);
  assert.deepEqual(await book.colourOf('right'), colourOf(1));
});

test('the address says which page is opened', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(7) }), { hash: '#page=5' });
  assert.deepEqual(await book.pages(), [4, 5]);
  assert.deepEqual(await book.colourOf('left'), colourOf(4));
  assert.deepEqual(await book.colourOf('right'), colourOf(5));
});

test('a book asks for nothing but its own files', async () => {
  const book = await reader.openOverHttp(await reader.book({ pages: plainPages(6) }));
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  const own = /^\/(index\.html|files\/UserConfig\.bin|files\/page\/\d\.jpg|files\/extfiles\/moveSound\.mp3)?$/;
  for (const url of book.requests) {
    if (url.startsWith('data:')) continue;
    assert.ok(url.startsWith(book.server.address), url);
    assert.match(new URL(url).pathname, own);
  }
  assert.ok(book.server.requests.some((request) => request.path === '/files/UserConfig.bin'));
});

test('a server that withholds the binary file is answered with the script copy', async () => {
  const folder = await reader.book({ pages: plainPages(3) });
  await rm(path.join(folder, 'files/UserConfig.bin'));
  const book = await reader.openOverHttp(folder);
  assert.deepEqual(await book.pages(), [1]);
});

test('a page without a file leaves a note in its place', async () => {
  const folder = await reader.book({ pages: plainPages(5) });
  await rm(path.join(folder, 'files/page/3.jpg'));
  const book = await reader.openFromDisk(folder, { hash: '#page=2' });
  assert.equal(await book.page.locator('.page.right').innerText(), 'Page 3 could not be shown');
  assert.deepEqual(await book.colourOf('left'), colourOf(2));
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(4, 5);
  assert.deepEqual(await book.colourOf('right'), colourOf(5));
});

test('a page file that is no picture leaves a note in its place', async () => {
  const folder = await reader.book({ pages: plainPages(3) });
  await writeFile(path.join(folder, 'files/page/1.jpg'), 'not a picture');
  const book = await reader.openFromDisk(folder);
  assert.equal(await book.page.locator('.page.right').innerText(), 'Page 1 could not be shown');
});

const empty = '<SlidePowerPoint><Properties/><BackgroundConfig/><Ppts/></SlidePowerPoint>';
const damages = [
  ['noise', Buffer.from('this is no configuration'), /damaged/i],
  ['nothing', Buffer.alloc(0), /damaged/i],
  ['half of the document', rc4(Buffer.from('<SlidePowerPoint><Properties><Search>No</Sea'), CONFIG_KEY), /damaged/i],
  ['no pages', rc4(Buffer.from(empty), CONFIG_KEY), /no pages/i],
];
for (const [name, bytes, words] of damages) {
  test(`a configuration of ${name} is explained to the reader`, async () => {
    const folder = await reader.book({ pages: plainPages(2) });
    await writeConfiguration(folder, bytes);
    assert.match(await messageOf(await reader.openFromDisk(folder)), words);
    assert.match(await messageOf(await reader.openOverHttp(folder)), words);
  });
}

test('a book without its files folder says what is missing', async () => {
  const folder = await reader.book({ pages: plainPages(2) });
  await rm(path.join(folder, 'files'), { recursive: true });
  assert.match(await messageOf(await reader.openFromDisk(folder)), /incomplete/i);
  assert.match(await messageOf(await reader.openOverHttp(folder, { view: PHONE })), /incomplete/i);
});

test('bytes after the document do no harm', async () => {
  const folder = await reader.book({ pages: plainPages(2) });
  const padded = Buffer.concat([Buffer.from(configurationXml(2)), Buffer.alloc(9, 9)]);
  await writeConfiguration(folder, rc4(padded, CONFIG_KEY));
  assert.deepEqual(await (await reader.openFromDisk(folder)).pages(), [1]);
});

const emptyHanded = async () => {
  const folder = await reader.book({ pages: plainPages(3) });
  await rm(path.join(folder, 'files/UserConfig.bin'));
  await rm(path.join(folder, 'files/UserConfig.js'));
  return folder;
};

test('a book that the server could not give may be asked for again', async () => {
  const folder = await emptyHanded();
  const book = await reader.openOverHttp(folder);
  const again = book.page.locator('.message button');
  assert.equal(await again.innerText(), 'Try again');
  await writeConfiguration(folder, rc4(Buffer.from(configurationXml(3)), CONFIG_KEY));
  await again.click();
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  assert.deepEqual(await book.pages(), [1]);
});

test('trying again is not offered where it cannot help', async () => {
  const book = await reader.openFromDisk(await emptyHanded());
  assert.equal(await book.page.locator('.message button').isVisible(), false);
});

test('a server that gives no answer is named as the cause', async () => {
  const book = await reader.openOverHttp(await reader.book({ pages: plainPages(3) }),
    { before: (page) => page.route(/UserConfig/, (route) => route.abort('connectionrefused')) });
  assert.match(await messageOf(book), /could not be loaded[^]*connection[^]*Try again/);
});

test('a browser without script says what is missing', async () => {
  const folder = await reader.book({ pages: plainPages(3) });
  const context = await reader.browser.newContext({ javaScriptEnabled: false });
  const page = await context.newPage();
  await page.goto(`file://${folder}/index.html`);
  assert.match(await page.locator('body').innerText(), /needs JavaScript/);
  assert.equal(await page.locator('.wait').isVisible(), false);
});

test('a browser that does not understand the script says so', async () => {
  const folder = await reader.book({ pages: plainPages(3) });
  const file = path.join(folder, 'index.html');
  await writeFile(file, (await readFile(file, 'utf8')).replace('"use strict";', 'a script of tomorrow;'));
  const page = await reader.browser.newPage();
  await page.goto(`file://${file}`);
  assert.match(await page.locator('body').innerText(), /needs a newer browser/);
});

const leadingOut = ['../secret.jpg', 'page/../../secret.jpg', 'http://127.0.0.1:9/a.jpg', '//127.0.0.1:9/a.jpg', '/etc/a.jpg',
  'javascript:alert(1)', 'data:image/png;base64,AAAA', '..\\secret.jpg', './../secret.jpg'];
test('files outside the book are never asked for', async () => {
  const count = leadingOut.length;
  const folder = await reader.book({ pages: plainPages(count) });
  const [first, second, third] = leadingOut;
  const xml = configurationXml(count, { OuterBackgroundFile: first, InnerBackgroundFile: second, SoundFile: third })
    .replaceAll(/page\/(\d)\.jpg/g, (_, page) => leadingOut[page - 1]);
  await writeConfiguration(folder, rc4(Buffer.from(xml), CONFIG_KEY));
  const book = await reader.openOverHttp(folder);
  assert.equal(await book.page.locator('.page.right').innerText(), 'Page 1 could not be shown');
  await book.page.keyboard.press('t');
  await book.page.waitForFunction((all) => document.querySelectorAll('.thumb-picture.missing').length === all, count);
  const own = /^(\/|\/index\.html|\/files\/UserConfig\.bin|\/files\/extfiles\/moveSound\.mp3)$/;
  for (const url of book.requests.filter((one) => !one.startsWith('data:image/svg'))) {
    assert.ok(url.startsWith(book.server.address) && own.test(new URL(url).pathname), url);
  }
});

test('the list of pages is read whatever stands in it', async () => {
  const folder = await reader.book({ pages: plainPages(3), extras: { 'page/a & b.jpg': plainPages(3)[2].bytes } });
  const xml = configurationXml(3).replaceAll('>page/3.jpg<', '>\n  page/a &amp; b.jpg\n<').replaceAll('><', '>\n <');
  await writeConfiguration(folder, rc4(Buffer.from(xml), CONFIG_KEY));
  const book = await reader.openFromDisk(folder, { hash: '#page=3' });
  assert.equal(await book.page.evaluate(() => window.folvero.pageCount), 3);
  assert.deepEqual(await book.colourOf('right'), colourOf(3));
});

test('the player in a book is light', async () => {
  const page = await readFile(path.join(await reader.book({ pages: plainPages(1) }), 'index.html'));
  const size = gzipSync(page).length;
  assert.ok(size <= 60 * 1024, `${size} bytes`);
});
