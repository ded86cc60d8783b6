import assert from 'node:assert/strict';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { PHONE, findFirefox, launchFirefox, openBook } from './support/firefox.mjs';
import { folvero, ready as program, sample } from './support/program.mjs';
import { serve } from './support/server.mjs';
import { copied } from './support/webbook.mjs';

// What Firefox does otherwise: reading from disk, decoding, drawing leaves, dialogs, selections.
const firefox = findFirefox();
const ready = firefox ? program : { skip: 'Firefox is not installed' };

let browser;
let folder;
let server;

async function publish(name, ...options) {
  const target = path.join(folder, name);
  await folvero('publish', '--quiet', '--pages=1-8', '--set', 'pageMoveTime=0.2', ...options, sample('sample'), target);
  return pathToFileURL(path.join(target, 'index.html')).href;
}

before(async () => {
  if (ready.skip) return;
  folder = await mkdtemp(path.join(tmpdir(), 'folvero-firefox-'));
  server = await serve(folder);
  browser = await launchFirefox(firefox);
});
after(async () => {
  await browser?.close();
  await server?.close();
  if (folder) await rm(folder, { recursive: true });
});

const overHttp = (address) => address.replace(pathToFileURL(folder).href, server.address.slice(0, -1));

test('Firefox shows and turns a book in each template, from disk and over http', ready, async () => {
  const templates = JSON.parse(await folvero('templates', '--json'));
  for (const [index, { name: template }] of templates.entries()) {
    const address = await publish(template, '--type=html', '--template', template);
    const book = await openBook(browser, index % 2 ? overHttp(address) : address);
    const spread = await book.page.evaluate(() => window.folvero.spread);
    for (const [key, pages] of [['ArrowRight', [2, 3]], ['End', [8]], ['ArrowLeft', spread ? [6, 7] : [7]]]) {
      await book.page.keyboard.press(key);
      await book.waitForPages(...(spread ? pages : pages.slice(0, 1)));
      assert.equal(await book.picture(), `${pages[0]}.jpg`, template);
    }
    assert.deepEqual(book.errors, [], template);
    await book.close();
  }
});

const kinds = { 'over http': [[], overHttp], 'from disk': [[], (address) => address],
  'as a single file': [['--single-file'], (address) => address] };
for (const [name, [options, addressOf]] of Object.entries(kinds)) {
  test(`Firefox reads a web book ${name}: drags, panels, links, words and finer pictures`, ready, async () => {
    const book = await openBook(browser, addressOf(await publish(`web${options}`, ...options)));
    const { page } = book;
    const press = async (...keys) => { for (const key of keys) await page.keyboard.press(key); };
    const middle = async (selector) => {
      const { x, y, width, height } = await (await page.waitForSelector(selector)).boundingBox();
      return [x + width / 2, y + height / 2];
    };
    await press('ArrowRight');
    await book.waitForPages(2, 3);
    const { x, y, width, height } = await (await page.$('.page.right')).boundingBox();
    await book.drag([x + width - 20, y + height / 3], [x - width * 0.9, y + height / 3 - 20]);
    await book.waitForPages(4, 5);
    // The document opens its contents; here they get the focus.
    await press('c', 'c', 'Home', 'ArrowDown', 'Enter');
    await book.waitForPages(2, 3);
    await page.mouse.click(...await middle('.over.right .page-link'));
    await page.waitForFunction(() => !window.folvero.turning && window.folvero.page > 3);
    await press('/', ...'THE HAND LIFTS the corner');
    await page.waitForSelector('.result');
    await press('Enter');
    await book.waitForPages(4, 5);
    await page.waitForSelector('.hit.current');
    await press('Escape');
    const [from, to] = await page.$$eval('.over.left .line', (lines) => {
      const line = lines.find((one) => /The hand lifts the corner/.test(one.textContent)).getBoundingClientRect();
      return [[line.left + 1, line.top + line.height / 2], [line.right - 1, line.top + line.height / 2]];
    });
    await book.drag(from, to);
    assert.match(await copied(page), /The hand lifts the corner, /);
    await (await page.waitForSelector('.note-bar [data-colour="green"]', { visible: true })).click();
    await page.waitForSelector('.note-mark');
    await press('Escape', 'b');
    await page.waitForSelector('.note-ribbon');
    await book.waitForPages(4, 5);
    await page.mouse.click(640, 20);
    await press('+', '+', '+', '+');
    // A single file has the vectors only, which are as fine as any.
    if (options.length === 0) await page.waitForSelector('.page.left img.large');
    await page.setViewport(PHONE);
    await press('c');
    const size = await page.$eval('.contents-side', (one) => [one.offsetWidth, one.offsetHeight]);
    assert.deepEqual(size, [PHONE.width, PHONE.height]);
    assert.deepEqual(book.errors, []);
    await book.close();
  });
}
