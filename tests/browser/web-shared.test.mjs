import assert from 'node:assert/strict';
import { readdir, rm } from 'node:fs/promises';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader } from './support/reader.mjs';
import { serve } from './support/server.mjs';

const reader = Reader.forTests();

/** Opens a book whose player lies in another folder, and enlarges its page: that needs a part of the player. */
async function read(page, address) {
  const errors = [];
  page.on('pageerror', ({ message }) => errors.push(message));
  page.on('console', (message) => { if (message.type() === 'error') errors.push(message.text()); });
  await page.goto(address);
  await page.waitForSelector('#folvero[data-state="ready"]');
  for (let step = 0; step < 5; step += 1) await page.keyboard.press('+');
  await page.waitForSelector('.page img.large');
  return errors;
}

test('a book with a shared player is read from disk, over http, and without a connection', ready, async () => {
  await folvero('publish', '--quiet', '--style', 'Garden', '--pages', '1-3', '--shared-player',
    path.join(reader.folder, 'a player'), sample('text'), path.join(reader.folder, 'books/one'));
  const [version] = await readdir(path.join(reader.folder, 'a player'));
  const shared = (address) => address.includes(`/a%20player/${version}/`);
  const page = await reader.browser.newPage();
  const disk = pathToFileURL(path.join(reader.folder, 'books/one/index.html')).href;
  assert.deepEqual(await read(page, disk), []);
  assert.ok(shared(await page.evaluate(() => document.querySelector('#folvero .inner').style.background)), 'picture');

  const server = await serve(reader.folder);
  const online = await reader.browser.newPage();
  const address = `${server.address}books/one/index.html`;
  const errors = await read(online, address);
  assert.deepEqual(server.requests.filter(({ path: name, status }) => status !== 200 || /files\/(?:web|page|vectors)\.\w+$/.test(name)), []);
  await online.keyboard.press('0');
  await online.waitForSelector('[data-does="keep"][aria-label="Kept for offline"]', { state: 'attached' });
  await server.close();
  await online.goto('about:blank');
  assert.deepEqual(errors, []);
  assert.deepEqual(await read(online, address), []);
  assert.ok(shared(await online.evaluate(() => document.querySelector('script[src$="page.js"]').src)));

  await rm(path.join(reader.folder, 'a player', version, 'page.js'));
  await page.reload();
  await page.getByText('a part of it is missing').waitFor();
  assert.equal(await page.locator('#folvero').isVisible(), false);
});

test('a server may forbid all scripts and styles but files of its own', ready, async (t) => {
  const publish = (...options) => folvero('publish', '--quiet', '--pages', '1-3', ...options);
  await publish('--shared-player', path.join(reader.folder, 'player'), sample('text'), path.join(reader.folder, 'shared'));
  await publish('--style', 'Garden', sample('text'), path.join(reader.folder, 'own'));
  const server = await serve(reader.folder);
  t.after(() => server.close());
  for (const folder of ['shared', 'own']) {
    const page = await reader.browser.newPage();
    const refused = [];
    await page.exposeFunction('refuse', (directive, what) => { if (directive !== 'img-src') refused.push([directive, what]); });
    await page.addInitScript(() => document.addEventListener('securitypolicyviolation',
      ({ effectiveDirective, blockedURI }) => window.refuse(effectiveDirective, blockedURI)));
    await page.route('**/index.html', async (route) => {
      const response = await route.fetch();
      await route.fulfill({ response, headers: { ...response.headers(), 'Content-Security-Policy': "default-src 'self'" } });
    });
    await page.goto(`${server.address}${folder}/index.html`);
    await page.waitForSelector('#folvero[data-state="ready"]');
    await page.keyboard.press('ArrowRight');
    await page.waitForFunction(() => window.folvero?.page === 2 && document.querySelector('.over.left .word'));
    await page.keyboard.press('p');
    await page.evaluate(() => { window.print = () => {}; });
    await page.locator('.print-panel .main-button').click();
    await page.waitForSelector('.sheet', { state: 'attached' });
    assert.deepEqual(refused, [], folder);
  }
});
