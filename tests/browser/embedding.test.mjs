import assert from 'node:assert/strict';
import { writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';
import { serve } from './support/server.mjs';

const reader = Reader.forTests();
const inFolder = (...names) => path.join(reader.folder, ...names);

/** Opens a page that has a book in a frame, and gives both. */
async function openAround(address) {
  const page = await reader.browser.newPage();
  await page.goto(address);
  const frame = await (await page.waitForSelector('iframe')).contentFrame();
  await frame.waitForSelector('#folvero[data-state="ready"]');
  return { page, frame };
}

/** Turns to a page and waits until it is shown. */
async function show(frame, number) {
  await frame.evaluate((wanted) => window.folvero.goTo(wanted), number);
  await frame.waitForFunction((wanted) => !window.folvero.turning && window.folvero.pages.includes(wanted), number);
}

test('a page around a book hears what its reader does, once it has asked, and so do scripts in the book', ready, async () => {
  await folvero('publish', '--quiet', sample('spreads'), inFolder('spreads'));
  await writeFile(inFolder('around.html'), `<!doctype html><iframe src="spreads/index.html" width="1200" height="700"></iframe>
    <script>heard = []; addEventListener('message', ({ data }) => heard.push(data));</script>`);
  const server = await serve(reader.folder);
  const { page, frame } = await openAround(`${server.address}around.html`);
  await frame.evaluate(() => {
    window.own = [];
    for (const name of ['page', 'link', 'search', 'end']) {
      window.addEventListener(`folvero:${name}`, ({ type, detail }) => window.own.push([type, detail]));
    }
  });
  await show(frame, 2);
  assert.deepEqual(await page.evaluate(() => window.heard), [], 'unasked');
  await page.evaluate(() => document.querySelector('iframe').contentWindow.postMessage({ folvero: 'listen' }, '*'));
  await page.waitForFunction(() => window.heard.length === 1);
  await frame.locator('.page-link[href="#page=6"]').dispatchEvent('click');
  for (const number of [6, 1, 6]) await show(frame, number);
  await frame.locator('body').press('/');
  await frame.locator('.search-box').fill('nowhere to be found');
  await page.waitForFunction(() => window.heard.some(({ folvero: name }) => name === 'search'));
  const heard = await page.evaluate(() => window.heard);
  assert.deepEqual(heard[0], { folvero: 'page', page: 2, pages: [2, 3], label: '2', pageCount: 6 });
  assert.deepEqual(heard.filter(({ folvero: name }) => name === 'link'), [{ folvero: 'link', target: 6 }]);
  assert.deepEqual(heard.filter(({ folvero: name }) => name === 'end'), [{ folvero: 'end', pageCount: 6 }]);
  assert.deepEqual(heard.at(-1), { folvero: 'search', text: 'nowhere to be found', hits: 0 });
  const own = await frame.evaluate(() => window.own);
  assert.deepEqual(own.map(([type, detail]) => ({ folvero: type.slice('folvero:'.length), ...detail })), heard);
  await server.close();
});
