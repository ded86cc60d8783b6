import assert from 'node:assert/strict';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { plainPages, writeBook } from './support/book.mjs';
import { DESK, PHONE, findFirefox, launchFirefox, openBook } from './support/firefox.mjs';
import { TEMPLATE, WEB } from './support/reader.mjs';
import { serve } from './support/server.mjs';
import { makeWebBook, typedPage } from './support/webbook.mjs';

const firefox = findFirefox();
const ready = { skip: firefox ? false : 'Firefox is not installed' };

let browser;
let folder;
let server;

async function write(name, change = {}) {
  const pages = Array.from({ length: 8 }, (_, index) => typedPage([`a river on page ${index + 1}`, 'and more'], { links: [[0, 11, 6, 7], [1, 0, 3, 'https://example.org/']] }));
  const target = path.join(folder, name);
  const values = { PageMoveTime: '0.2' };
  await writeBook(target, { template: TEMPLATE, pages: plainPages(8), values });
  return makeWebBook(target, { web: WEB, pages, outline: [['One', 1, []], ['Five', 5, []]], labels: ['i'], open: [[1, 7]],
    large: [{ kind: 'svg', bytes: Buffer.from('<svg xmlns="http://www.w3.org/2000/svg" width="12" height="16"/>') }], ...change });
}

before(async () => {
  if (!firefox) return;
  folder = await mkdtemp(path.join(tmpdir(), 'folvero-web-firefox-'));
  await write('folder');
  await write('single', { single: true });
  server = await serve(path.join(folder, 'folder'));
  browser = await launchFirefox(firefox);
});
after(async () => {
  await browser?.close();
  await server?.close();
  if (folder) await rm(folder, { recursive: true });
});

const places = {
  'over http': () => server.address, 'from disk': () => pathToFileURL(path.join(folder, 'folder/index.html')).href,
  'as a single file': () => pathToFileURL(path.join(folder, 'single/index.html')).href,
};
for (const [name, address] of Object.entries(places)) {
  test(`Firefox reads a web book ${name}: contents, search, links, words and finer pictures`, ready, async () => {
    const book = await openBook(browser, address(), DESK);
    const { page } = book;
    await page.waitForSelector('.word');
    await page.keyboard.press('+');
    await page.waitForSelector('.page.right img.large');
    await page.keyboard.press('0');
    await page.waitForFunction(() => !document.querySelector('img.large'));
    await page.keyboard.press('c');
    await page.keyboard.press('End');
    await page.keyboard.press('Enter');
    await book.waitForPages(4, 5);
    assert.equal(await page.$eval('.tree-row.current .tree-title', (one) => one.textContent), 'Five');
    await page.keyboard.press('/');
    await page.keyboard.type('RIVER on page 3');
    await page.waitForSelector('.result');
    await page.keyboard.press('Enter');
    await book.waitForPages(2, 3);
    await page.waitForSelector('.hit.current');
    assert.equal(await page.$eval('.search-status', (one) => one.textContent), '1 of 1');
    await page.keyboard.press('Escape');
    const [from, to] = await Promise.all([0, 4].map(async (index) => (await (await page.$$('.over.left .word'))[index].boundingBox())));
    await book.drag([from.x + 1, from.y + 4], [to.x + to.width - 1, to.y + 4]);
    const copied = await page.evaluate(() => {
      const data = new DataTransfer();
      document.dispatchEvent(new ClipboardEvent('copy', { clipboardData: data, cancelable: true, bubbles: true }));
      return data.getData('text/plain') || String(getSelection());
    });
    assert.match(copied, /^a river on page 2/);
    await book.waitForPages(2, 3);
    await page.mouse.click(640, 700);
    const link = await (await page.$('.over.left .page-link')).boundingBox();
    await page.mouse.click(link.x + link.width / 2, link.y + link.height / 2);
    await book.waitForPages(6, 7);
    await page.keyboard.press('End');
    await book.waitForPages(8);
    assert.equal(await page.$eval('.page.left img', (image) => image.naturalWidth > 0), true);
    assert.deepEqual(book.errors.filter((error) => !error.includes('moveSound')), []);
    await book.close();
  });
}

test('Firefox gives the panels of a web book the whole window of a phone', ready, async () => {
  const book = await openBook(browser, server.address, PHONE);
  await book.page.keyboard.press('c');
  const box = await book.page.$eval('.contents-side', (one) => {
    const { width, height } = one.getBoundingClientRect();
    return [width, height];
  });
  assert.deepEqual(box, [PHONE.width, PHONE.height]);
  await book.page.click('.contents-side .tree-row:last-child');
  await book.page.waitForFunction(() => !document.querySelector('.contents-side').open);
  await book.close();
});
