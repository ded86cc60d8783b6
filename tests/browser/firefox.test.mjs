import assert from 'node:assert/strict';
import { execFile, execFileSync } from 'node:child_process';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { promisify } from 'node:util';
import { writeConfiguration } from './support/book.mjs';
import { DESK, PHONE, findFirefox, launchFirefox, openBook } from './support/firefox.mjs';
import { serve } from './support/server.mjs';

const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const firefox = findFirefox();
const missing = [[firefox, 'Firefox is not installed'], [FOLVERO_BIN, 'FOLVERO_BIN is not set'],
  [FOLVERO_SAMPLES_DIR, 'FOLVERO_SAMPLES_DIR is not set']].find(([there]) => !there);
const ready = { skip: missing ? missing[1] : false };

let browser;
let folder;
let server;

const templates = missing ? [] : JSON.parse(execFileSync(FOLVERO_BIN, ['templates', '--json'])).map(({ name }) => name);

async function publish(name, ...options) {
  const target = path.join(folder, name);
  await run(FOLVERO_BIN, ['publish', '--quiet', ...options, path.join(FOLVERO_SAMPLES_DIR, 'sample.pdf'), target]);
  return target;
}

before(async () => {
  if (missing) return;
  folder = await mkdtemp(path.join(tmpdir(), 'folvero-firefox-'));
  server = await serve(await publish('book'));
  browser = await launchFirefox(firefox);
});
after(async () => {
  await browser?.close();
  await server?.close();
  if (folder) await rm(folder, { recursive: true });
});

const places = ['from disk', 'over http'];
const addressOf = (target, own, place) => (place === 'over http' ? own.address : pathToFileURL(path.join(target, 'index.html')).href);
const screens = [['a desk', DESK, [[2, 3], [4, 5]]], ['a phone', PHONE, [[2], [3]]]];
for (const [index, place] of places.entries()) {
  const [name, viewport, [second, third]] = screens[index];
  test(`Firefox opens a published book ${place} on ${name}, and turns it`, ready, async () => {
    const book = await openBook(browser, addressOf(path.join(folder, 'book'), server, place), viewport);
    await book.waitForPages(1);
    assert.deepEqual(await book.picture(), { file: '1.jpg', seen: true });
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(...second);
    assert.deepEqual(await book.picture(), { file: '2.jpg', seen: true });
    const { x, y, width, height } = await book.box('right');
    await book.drag([x + width - 20, y + height / 2], [x - width * (second.length > 1 ? 0.9 : 0) + 10, y + height / 2 - 20]);
    await book.waitForPages(...third);
    assert.deepEqual(book.errors, []);
    await book.close();
  });
}

// Each template on both screens and from both places, which go together by turns.
for (const [templateIndex, template] of templates.entries()) {
  test(`Firefox shows all of a book in ${template}, on a desk and on a phone`, ready, async () => {
    const target = await publish(`in-${template}`, '--template', template, '--pages', '1-7', '--set', 'pageMoveTime=0.2');
    const own = await serve(target);
    for (const [index, [name, viewport]] of screens.entries()) {
      const book = await openBook(browser, addressOf(target, own, places[(index + templateIndex) % 2]), viewport);
      const spread = await book.page.evaluate(() => window.folvero.spread);
      assert.equal(spread, name === 'a desk' && template !== 'deck');
      for (const [key, pages] of [['ArrowRight', spread ? [2, 3] : [2]], ['ArrowLeft', [1]], ['End', spread ? [6, 7] : [7]]]) {
        await book.page.keyboard.press(key);
        await book.waitForPages(...pages);
        assert.deepEqual(await book.picture(), { file: `${pages[0]}.jpg`, seen: true });
      }
      await book.page.keyboard.press('t');
      assert.equal(await book.page.$eval('.drawer', (drawer) => drawer.getBoundingClientRect().height > 60), true);
      assert.deepEqual(book.errors, []);
      await book.close();
    }
    assert.deepEqual(own.requests.filter(({ status }) => status !== 200), []);
    await own.close();
  });
}

test('keys typed in a panel do not reach the book in Firefox', ready, async () => {
  const book = await openBook(browser, server.address, DESK);
  await book.page.keyboard.press('?');
  await book.page.click('.help-panel h2');
  await book.page.keyboard.press('ArrowRight');
  await book.page.keyboard.press('t');
  await book.waitForPages(1);
  assert.equal(await book.page.$eval('.drawer', (drawer) => drawer.hidden), true);
  await book.close();
});

test('Firefox tells that a book is damaged', ready, async () => {
  const damaged = await publish('damaged');
  await writeConfiguration(damaged, Buffer.from('no configuration'));
  const book = await openBook(browser, pathToFileURL(path.join(damaged, 'index.html')).href, DESK);
  const words = await book.page.$eval('.message', (message) => message.innerText);
  assert.match(words, /damaged/);
});
