import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { writeFile } from 'node:fs/promises';
import path from 'node:path';
import { createInterface } from 'node:readline';
import { after, test } from 'node:test';
import validating from '@hyperion-framework/validator';
import { folvero, ready, sample } from './support/program.mjs';
import { DESK, Reader } from './support/reader.mjs';
import { serve } from './support/server.mjs';

const reader = Reader.forTests();
const servers = [];
after(() => servers.forEach((server) => server.kill()));

/** A library with two books and an index. */
async function library() {
  const folder = path.join(reader.folder, 'library');
  const list = path.join(reader.folder, 'list.csv');
  await writeFile(list, `pdf,id,title\n${sample('outline')},first,Harbour\n${sample('text')},second,Other\n`);
  await folvero('library', 'make', list, folder, '--quiet', '--url', 'http://example.org/');
  await folvero('library', 'index', folder, '--quiet');
  return folder;
}

/** The address of the program's own server. */
async function served(folder) {
  const server = spawn(process.env.FOLVERO_BIN, ['library', 'serve', folder, '--port', '0'], { stdio: ['ignore', 'pipe', 'inherit'] });
  servers.push(server);
  for await (const line of createInterface({ input: server.stdout })) {
    const [address] = /http:\/\/127\.0\.0\.1:\d+\//.exec(line) ?? [];
    if (address) return address;
  }
  throw new Error('the server does not start');
}

async function visit(address) {
  const page = await reader.browser.newPage(DESK);
  page.missing = [];
  page.on('response', (response) => { if (response.status() >= 400) page.missing.push(response.url()); });
  page.on('pageerror', (error) => page.missing.push(error.message));
  await page.goto(address);
  return page;
}

test('words of the texts lead to the pages that have them, where the server searches', ready, async () => {
  const folder = await library();
  const start = await served(folder);
  const page = await visit(start + 'catalogue/search.html?q=chapter');
  // No title has it.
  await page.waitForSelector('.hits a');
  assert.equal(await page.locator('.hits mark').first().textContent(), 'Chapter');
  assert.ok(!await page.locator('.books').isVisible());
  await page.click('.views button >> nth=0');
  assert.equal(await page.locator('.status').textContent(), 'No book was found.');
  await page.fill('.search input', 'harbour');
  await page.waitForSelector('.books a');
  await page.click('.views button >> nth=1');
  await page.reload();
  await page.waitForSelector('.hits a');
  await page.fill('.search input', '"chapter 2"');
  await page.waitForFunction(() => document.querySelectorAll('.hits a').length === 1);
  await page.click('.hits a');
  await page.waitForSelector('mark, .hit');
  assert.deepEqual(page.missing, []);

  const validator = new validating.Validator();
  const manifest = await (await fetch(start + 'books/second/manifest.json')).json();
  assert.ok(validator.validateManifest(manifest), JSON.stringify(validator.validators.manifest?.errors));
  const [{ id }] = manifest.service;
  const { items } = await (await fetch(id + '?q=chapter')).json();
  assert.ok(manifest.items.some((canvas) => items[0].target.startsWith(canvas.id)));
});

test('where the server has no search, none is asked for and none is shown', ready, async () => {
  const server = await serve(await library());
  reader.servers.push(server);
  const page = await visit(server.address + 'catalogue/search.html?q=harbour');
  await page.waitForSelector('.books a');
  assert.ok(!await page.locator('.views').isVisible());
  assert.deepEqual(page.missing, []);
});
