import assert from 'node:assert/strict';
import { readFile, rm, writeFile } from 'node:fs/promises';
import { createServer } from 'node:http';
import path from 'node:path';
import { test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { colourOf, plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const typedPages = (count) => Array(count).fill(typedPage(['text'], { links: [[0, 0, 4, 'https://example.org/']] }));

async function write(count, change = {}, options = {}) {
  return reader.webBook({ pages: plainPages(count), ...options,
    description: { pages: typedPages(count), outline: [['One', 1, []], ['Three', 3, []]], ...change } });
}

const close = (colour, wanted) => colour.every((part, index) => Math.abs(part - wanted[index]) < 12);
const large = (side) => `.page.${side} img.large`;

/** Pictures for enlarged pages, as a sharp SVG and as a PNG of one colour. */
const SHARP = { kind: 'js', svg: '<svg xmlns="http://www.w3.org/2000/svg" width="120" height="160">'
  + '<rect width="120" height="160" fill="#00ff00"/></svg>' };
const FINE = { kind: 'png', bytes: png(600, 800, () => [0, 0, 255]) };

test('an enlarged page gets its finer picture, which goes when it is no longer wanted', async () => {
  const book = await reader.openOverHttp(await write(8, { large: [SHARP, SHARP, FINE, SHARP] }), { hash: '#page=2' });
  const asked = () => book.server.requests.filter(({ path: file }) => file.includes('/large/'))
    .map(({ path: file }) => file);
  assert.deepEqual(asked(), [], 'not before pages are enlarged');
  await book.page.mouse.dblclick(600, 300);
  for (const side of ['left', 'right']) await book.page.waitForSelector(large(side));
  assert.deepEqual(asked().sort(), ['/files/large/2.js', '/files/large/3.png']);
  await book.rest();
  assert.ok(close(await book.colourAt(500, 300), [0, 255, 0]));
  assert.ok(close(await book.colourAt(1000, 300), [0, 0, 255]));
  const over = (selector) => book.page.locator(selector)
    .evaluate((image) => JSON.stringify(image.getBoundingClientRect()));
  assert.equal(await over(large('left')), await over('.page.left img:not(.large)'));
  await book.page.keyboard.press('0');
  await book.page.waitForSelector(large('left'), { state: 'detached' });
  assert.deepEqual(book.errors, []);
});

test('pages that a preview leaves out say so, have no text and no picture, and are turned to', async () => {
  const folder = await write(8, { open: [[1, 3], [6, 6]], large: Array(8).fill(SHARP) });
  for (const page of [4, 5, 7, 8]) await rm(path.join(folder, `files/page/${page}.jpg`));
  const book = await reader.openOverHttp(folder, { hash: '#page=2' });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(4, 5);
  for (const side of ['left', 'right']) {
    const picture = await book.picture(side);
    assert.ok(picture.loaded && decodeURIComponent(picture.source).includes('not part of'),
      picture.source.slice(0, 60));
  }
  const label = await book.page.locator('.over.left').getAttribute('aria-label');
  assert.equal(label, 'Page 4. This page is not part of the preview');
  assert.equal(await book.page.locator('.word, .page-link').count(), 0);
  for (const key of ['+', '0', 't']) await book.page.keyboard.press(key);
  await book.page.waitForSelector('.thumb[data-page="5"] canvas');
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(6, 7);
  await book.page.waitForSelector('.over.left .word');
  assert.ok(close(await book.colourOf('left'), colourOf(6)));
  const lost = book.server.requests.filter(({ status }) => status !== 200).map(({ path: file }) => path.basename(file));
  assert.deepEqual(lost.filter((name) => name !== 'moveSound.mp3'), []);
  assert.deepEqual(book.errors, []);
});

test('a published book in one file is read from disk without a network', ready, async () => {
  const folder = path.join(reader.folder, 'single');
  await folvero('publish', '--quiet', '--single-file', '--pages=1-8', sample('sample'), folder);
  const book = await reader.openFromDisk(folder, { before: (page) => page.context().setOffline(true) });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.ok((await book.picture('right')).loaded);
  await book.page.keyboard.press('/');
  await book.page.locator('.search-box').fill('HAND lifts the corner');
  await book.page.locator('.result').first().click();
  await book.waitForPages(4, 5);
  await book.page.locator('.hit.current').first().waitFor();
  const asked = book.requests.filter((address) => !/^(?:blob|data):/.test(address));
  assert.deepEqual([asked, book.errors], [[pathToFileURL(path.join(folder, 'index.html')).href], []]);
});

test('a book in one file is read while the rest of it is on its way', ready, async () => {
  const folder = path.join(reader.folder, 'arriving');
  await folvero('publish', '--quiet', '--single-file', '--pages=1-8', sample('sample'), folder);
  const html = await readFile(path.join(folder, 'index.html'));
  const cut = html.indexOf('data-file="large/4"') + 200;
  let arrive;
  const server = createServer((_, response) => {
    response.writeHead(200, { 'Content-Type': 'text/html' });
    response.write(html.subarray(0, cut));
    arrive = () => response.end(html.subarray(cut));
  });
  await new Promise((resolve) => { server.listen(0, '127.0.0.1', resolve); });
  const page = await reader.browser.newPage({ reducedMotion: 'reduce' });
  await page.goto(`http://127.0.0.1:${server.address().port}/`, { waitUntil: 'commit' });
  await page.waitForSelector('#folvero[data-state="ready"]');
  await page.keyboard.press('ArrowRight');
  await page.waitForSelector('.page.right[data-page="3"][data-image="ready"]');
  await page.keyboard.press('ArrowRight');
  await page.waitForSelector('.page.left[data-page="4"][data-image="loading"]');
  assert.equal(await page.evaluate(() => document.readyState), 'loading');
  arrive();
  await page.waitForSelector('.page.left[data-page="4"][data-image="ready"]');
  await page.waitForSelector('.over.left .word', { state: 'attached' });
  await page.close();
  server.close();
});

test('a published book opens with the list in its page, and with its files where the list is damaged', ready, async () => {
  const folder = path.join(reader.folder, 'start');
  await folvero('publish', '--quiet', '--type=web', '--pages=2-9', sample('sample'), folder);
  const page = path.join(folder, 'index.html');
  const whole = await readFile(page, 'utf8');
  const damaged = [whole.replace('"numbers":[', '"numbers":[0.5,'), whole.replace(' data-file="web/start"', ''),
    whole.replace('src="files/web.js"', ''), whole.replace('"settings":"', '"settings":"AAAA')];
  for (const [index, html] of [whole, whole, ...damaged, whole, ...damaged].entries()) {
    await writeFile(page, html);
    const book = await reader[index % 2 ? 'openFromDisk' : 'openOverHttp'](folder, { hash: '#page=8' });
    assert.equal(await book.page.evaluate(() => window.folvero.pageCount), 8, book.errors.join());
    assert.ok((await book.picture('left')).source.endsWith('/page/9.png'));
    const files = () => book.requests.filter((address) => /UserConfig|web\/book/.test(address)).map((one) => path.basename(one));
    assert.equal(files().some((name) => name !== 'book.js'), html !== whole, 'with its files');
    if (html !== damaged[2]) {
      const first = book.page.locator('.tree-row:not([aria-disabled])').first();
      await first.waitFor();
      await book.page.keyboard.press('ArrowLeft');
      await book.waitForPages(6, 7);
      await first.click();
      await book.page.waitForFunction(() => window.folvero.page < 6);
    }
    if (html === whole) assert.deepEqual(files(), ['book.js']);
    assert.deepEqual(book.errors, []);
  }
});

test('the next pictures are asked for before the first has come, but not by readers who begin elsewhere', ready, async () => {
  const folder = path.join(reader.folder, 'next');
  await folvero('publish', '--quiet', '--type=web', '--pages=1-12', sample('fifty'), folder);
  const asked = ({ requests }) => requests.map((address) => path.basename(address)).filter((name) => /^[23]\.png$/.test(name));
  const book = await reader.openOverHttp(folder, { before: async (page) => {
    const next = Promise.all([2, 3].map((number) => page.waitForRequest(`**/page/${number}.png`)));
    await page.route('**/page/1.png', (route) => next.then(() => route.continue()));
  } });
  await book.page.evaluate(() => window.folvero.goTo(9));
  await book.waitForPages(8, 9);
  await book.page.goto('about:blank');
  book.requests.length = 0;
  await book.page.goto(book.server.address);
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  await book.waitForPages(8, 9);
  assert.deepEqual(asked(book), [], 'the page of the last visit');
  assert.deepEqual(asked(await reader.openFromDisk(folder, { hash: '#page=9' })), [], 'the page in the address');
});

const DAMAGE = [
  ['no facts', 'web/book', null], ['facts that are no script', 'web/book', '<html>not found</html>'],
  ['facts of another file', 'web/book', 'folveroData("web/other", {});'], ['no words', 'text/1', null],
  ['words that are no script', 'text/1', '{{{'],
  ['a part of another version', 'web', 'folveroExtensions = [() => { throw Error("Not of this page"); }];'],
];
test('a book whose data is missing or damaged is still one to read', async () => {
  for (const [index, [name, file, text]] of DAMAGE.entries()) {
    // What is not there at all fails in its own way in each place; what is there is read the same.
    const ways = ['openFromDisk', 'openOverHttp'];
    for (const open of text === null ? ways : [ways[index % 2]]) {
      const folder = await write(4);
      const place = path.join(folder, `files/${file}.js`);
      await (text === null ? rm(place) : writeFile(place, text));
      const book = await reader[open](folder);
      assert.equal(await book.page.locator('#folvero').getAttribute('data-state'), 'ready', name);
      assert.equal(await book.page.locator('.plain').first().isVisible(), false, name);
      await book.page.keyboard.press('ArrowRight');
      await book.waitForPages(2, 3);
      assert.ok((await book.picture('left')).loaded, name);
      await reader.closeBooks();
    }
  }
});

const MARKUP = '<img src=x onerror="window.broken=1"></script><script>window.broken=1</script>"\'><svg onload=window.broken=1>&lt;b&gt;${index.title}';
test('texts that look like markup stay texts wherever they are shown', async () => {
  const pages = [typedPage([MARKUP, 'word']), typedPage(['x']), typedPage(['x'])];
  const change = { pages, labels: [MARKUP, 'ii', 'iii'], outline: [[MARKUP, 1, [[MARKUP, 0, []]]]],
    textPage: 'javascript:window.broken=1', language: '"><b>' };
  const book = await reader.openFromDisk(await write(3, change));
  await book.page.waitForSelector('.word');
  assert.equal(await book.page.locator('.line').first().evaluate((one) => one.textContent), MARKUP);
  await book.page.keyboard.press('c');
  assert.equal(await book.page.locator('.tree-title').first().innerText(), MARKUP);
  await book.page.locator('.tree-row').first().click();
  assert.equal(await book.page.locator('.side-link').count(), 0);
  await book.page.keyboard.press('/');
  await book.page.locator('.search-box').fill(MARKUP.slice(0, 40));
  await book.page.waitForSelector('.result mark');
  await book.page.keyboard.press('Enter');
  await book.page.locator('.search-box').fill('<b>');
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('t');
  assert.equal(await book.page.evaluate(() => window.broken), undefined);
  assert.equal(await book.page.locator('#folvero :is(script, iframe, img[src="x"])').count(), 0);
  assert.equal(book.page.context().pages().length, 1);
});
