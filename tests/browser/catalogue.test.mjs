import assert from 'node:assert/strict';
import { mkdir, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { faults } from './support/axe.mjs';
import { folvero, ready } from './support/program.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';
import { serve } from './support/server.mjs';

const reader = Reader.forTests();

const BOOKS = [
  { title: 'Faust: eine Tragödie', author: 'Johann Wolfgang Goethe', date: '1808', language: 'de', subject: 'Drama; Theatre' },
  { title: '東京都の文学史', author: '夏目', date: '1906', language: 'ja', subject: 'History' },
  { title: 'Letters of a well-known traveller', author: 'Mary Goethe', date: '1911', language: 'en', subject: 'Travel' },
  { title: 'ספר בעברית', author: 'דוד', date: '1902', language: 'he', subject: 'Poetry' },
  { title: 'A title without an end '.repeat(9), author: 'An author with many names '.repeat(4), language: 'en' },
  ...Array.from({ length: 60 }, (_, index) => (
    { title: `Annals, volume ${index + 1}`, author: 'The Society', date: String(1850 + index), language: 'en', subject: 'History' })),
];

/** A library whose first book is there, with its catalogue. */
async function library() {
  reader.books += 1;
  const folder = path.join(reader.folder, `library-${reader.books}`);
  const results = path.join(folder, '.folvero-library/results/00');
  await mkdir(results, { recursive: true });
  await mkdir(path.join(folder, 'books/book-0/files'), { recursive: true });
  await writeFile(path.join(folder, 'books/book-0/index.html'), '<!DOCTYPE html><title>The book itself</title>');
  await writeFile(path.join(folder, 'books/book-0/files/cover.svg'), '<svg xmlns="http://www.w3.org/2000/svg" width="180" height="250"/>');
  for (const [index, facts] of BOOKS.entries()) {
    const added = new Date(Date.UTC(2026, 0, 1, 0, index)).toISOString();
    const made = { pages: 9, cover: index ? '' : 'files/cover.svg', added, changed: added };
    await writeFile(path.join(results, `book-${index}.json`), JSON.stringify({ id: `book-${index}`, facts, state: 'made', made }));
  }
  await folvero('library', 'catalogue', folder, '--title', 'Reading room', '--quiet');
  return folder;
}

/** A browser page that keeps what goes wrong in it. */
async function visit(address, options) {
  const page = await reader.browser.newPage(options);
  page.faults = [];
  page.on('console', (message) => { if (message.type() === 'error') page.faults.push(message.text()); });
  page.on('pageerror', (error) => page.faults.push(error.message));
  await page.goto(address);
  return page;
}

async function startOf(folder, way) {
  if (way === 'from disk') return pathToFileURL(folder).href + '/';
  const server = await serve(folder);
  reader.servers.push(server);
  return server.address;
}

for (const way of ['from disk', 'over http']) {
  test(`books are found while the reader types, ${way}`, ready, async () => {
    const start = await startOf(await library(), way);
    const page = await visit(start + 'index.html', DESK);
    const names = page.locator('.found .name');
    const found = async (count) => {
      await page.waitForFunction((wanted) => document.querySelector('.status').textContent.startsWith(wanted), count);
      return names.allTextContents();
    };
    await page.fill('.search input', 'tragodie');
    await page.click('.search button');
    assert.deepEqual(await found('1 '), [BOOKS[0].title]);
    const cases = [['GOETHE', '2', [BOOKS[2].title, BOOKS[0].title]], ['文学', '1', [BOOKS[1].title]], ['known trav', '1', [BOOKS[2].title]],
      ['ספר', '1', [BOOKS[3].title]], ['nowhere', 'No ', []]];
    for (const [typed, count, titles] of cases) {
      await page.fill('.search input', typed);
      assert.deepEqual(await found(count), titles, typed);
    }
    await page.fill('.search input', '');
    await page.fill('[name=subject]', 'hist');
    await found('61');
    assert.equal(await names.count(), 24);
    await page.click('.next');
    await page.waitForFunction(() => document.querySelectorAll('.found li').length === 48);
    await page.fill('[name=from]', '1905');
    await page.fill('[name=to]', '1907');
    await found('4');
    await page.selectOption('[name=language]', 'ja');
    assert.deepEqual(await found('1 '), [BOOKS[1].title]);
    if (way === 'over http') assert.match(page.url(), /\?subject=hist&language=ja&from=1905&to=1907$/);
    await page.click('.filters button');
    await page.fill('[name=author]', 'goethe');
    await found('2');
    await names.first().click();
    await page.waitForSelector('.read');
    assert.deepEqual(page.faults, []);
  });
}

test('without JavaScript all books are a few links away', ready, async () => {
  const page = await visit(await startOf(await library(), 'from disk') + 'index.html', { ...DESK, javaScriptEnabled: false });
  await page.click('.menu >> text=All books');
  await page.click('.pager >> text=Next');
  await page.click('.menu >> text=Authors');
  await page.click('text=Johann Wolfgang Goethe');
  assert.equal(await page.locator('h1').textContent(), BOOKS[0].title);
  assert.ok(await page.locator('.book img').isVisible());
  await page.click('.read');
  assert.equal(await page.title(), 'The book itself');
  await page.goBack();
  await page.fill('.search input', 'faust');
  await page.click('.search button');
  assert.ok(await page.locator('.note').isVisible());
  assert.deepEqual(page.faults, []);
});

/** axe would fetch the style sheets, which the pages' policy forbids. */
const RULES = { preload: false, runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'] };
for (const [name, view, colorScheme] of [['a desk', DESK, 'light'], ['a phone in the dark', PHONE, 'dark']]) {
  test(`nothing keeps readers out of a catalogue, on ${name}`, ready, async () => {
    const start = await startOf(await library(), 'from disk');
    const page = await visit(start + 'index.html', { ...view, colorScheme });
    const ways = ['index.html', 'catalogue/title.html', 'catalogue/year.html', 'catalogue/authors.html', 'catalogue/years.html',
      'catalogue/search.html?q=annals', 'link'];
    for (const way of ways) {
      if (way === 'link') await page.click('.found a');
      else await page.goto(start + way);
      if (way.includes('?')) await page.waitForSelector('.found li');
      assert.deepEqual(await faults({ page, rest: () => page.waitForLoadState() }, RULES), [], way);
      const [inner, outer] = await page.evaluate(() => [document.documentElement.scrollWidth, innerWidth]);
      assert.ok(inner <= outer, `${way} is ${inner - outer} pixels too wide`);
    }
    assert.deepEqual(page.faults, []);
  });
}
