import assert from 'node:assert/strict';
import { copyFile, writeFile } from 'node:fs/promises';
import { execFile } from 'node:child_process';
import path from 'node:path';
import { test } from 'node:test';
import { promisify } from 'node:util';
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

test('a learning platform learns where the reader is, and that the end was reached', ready, async () => {
  await folvero('publish', '--quiet', '--type', 'scorm', sample('outline'), reader.folder);
  await promisify(execFile)('python3', ['-m', 'zipfile', '-e', inFolder('outline.zip'), inFolder('course')]);
  await copyFile('node_modules/scorm-again/dist/scorm12.min.js', inFolder('runtime.js'));
  // What a platform keeps of a course from one visit to the next.
  await writeFile(inFolder('platform.html'), `<!doctype html><script src="runtime.js"></script><script>
    const platform = window.API = new Scorm12API({ autocommit: false, logLevel: 4 });
    const kept = sessionStorage.getItem('kept');
    if (kept) platform.loadFromJSON(JSON.parse(kept));
    errors = [];
    for (const name of ['LMSInitialize', 'LMSSetValue', 'LMSCommit', 'LMSFinish']) {
      const call = platform[name].bind(platform);
      platform[name] = (...values) => {
        const answer = call(...values);
        if (platform.LMSGetLastError() !== '0') errors.push([name, ...values, platform.LMSGetLastError()]);
        if (name === 'LMSFinish') sessionStorage.setItem('kept', JSON.stringify(platform.renderCMIToJSONObject().cmi));
        return answer;
      };
    }
  </script><iframe src="course/index.html" width="1200" height="700"></iframe>`);
  const server = await serve(reader.folder);
  const { page, frame } = await openAround(`${server.address}platform.html`);
  const core = () => page.evaluate(() => {
    const value = (name) => window.API.cmi.core[name];
    return [value('lesson_status'), value('lesson_location')];
  });
  assert.deepEqual(await core(), ['incomplete', '1']);
  await show(frame, 5);
  assert.deepEqual(await core(), ['incomplete', '4']);
  const errors = await page.evaluate(() => window.errors);
  await page.evaluate(() => new Promise((resolve) => {
    document.querySelector('iframe').onload = resolve;
    document.querySelector('iframe').src = 'about:blank';
  }));
  assert.deepEqual([...errors, ...await page.evaluate(() => window.errors)], []);
  const left = JSON.parse(await page.evaluate(() => sessionStorage.getItem('kept')));
  assert.match(left.core.session_time, /^\d+:\d\d:\d\d/);
  assert.equal(left.core.exit, 'suspend');
  await page.reload();
  const again = await (await page.waitForSelector('iframe')).contentFrame();
  await again.waitForSelector('#folvero[data-state="ready"]');
  assert.deepEqual(await again.evaluate(() => window.folvero.pages), [4, 5]);
  await show(again, 9);
  assert.deepEqual(await core(), ['completed', '8']);
  await show(again, 1);
  assert.deepEqual(await core(), ['completed', '1']);
  assert.deepEqual(await page.evaluate(() => window.errors), []);
  await server.close();
});
