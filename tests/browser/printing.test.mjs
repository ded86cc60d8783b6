import assert from 'node:assert/strict';
import { rm } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

/** Opens a book whose print command only counts; pages are put on paper with pdf(). */
async function open(folder, options = {}) {
  return reader.openFromDisk(folder, { ...options, before: (page) => page.addInitScript(() => {
    window.prints = 0;
    window.print = () => { window.prints += 1; };
  }) });
}

const printed = (book) => book.page.waitForFunction(() => window.prints === 1);
const sheets = (book) => book.page.locator('.sheet img').evaluateAll((all) =>
  all.map((one) => Number(/(\d+)\.jpg$/.exec(one.src)[1])));

/** A print as the browser makes it. */
const fileOf = async (book) => (await book.page.pdf({ preferCSSPageSize: true, printBackground: true })).toString('latin1');

/** Its sheets: for each its width and height in points. */
async function onPaper(book) {
  return [...(await fileOf(book)).matchAll(/\/Type \/Page\b[^]*?\/MediaBox \[0 0 ([\d.]+) ([\d.]+)\]/g)]
    .map(([, width, height]) => [Number(width), Number(height)]);
}

const choices = [
  ['these pages', () => {}, [2, 3]],
  ['all pages', (panel) => panel.locator('[value="all"]').check(), [1, 2, 3, 4, 5, 6]],
  ['some pages', async (panel) => {
    await panel.locator('.from').fill('3');
    await panel.locator('.to').fill('5');
  }, [3, 4, 5]],
];
for (const [name, choose, wanted] of choices) {
  test(`${name} are printed one a sheet, and let go afterwards`, async () => {
    const book = await open(await reader.book({ pages: plainPages(6) }), { hash: '#page=2' });
    await book.page.keyboard.press('p');
    const panel = book.page.locator('.print-panel');
    await choose(panel);
    await panel.locator('.main-button').click();
    await printed(book);
    assert.deepEqual(await sheets(book), wanted);
    assert.equal(await panel.isVisible(), false);
    assert.equal((await onPaper(book)).length, wanted.length);
    assert.equal(await book.page.evaluate(() => window.folvero.printImages), 0);
  });
}

test('a page fills its sheet, or leaves a note on it, and nothing else of the player is printed', async () => {
  const folder = await reader.book({ pages: plainPages(3, 160, 120) });
  await rm(path.join(folder, 'files/page/3.jpg'));
  const book = await open(folder, { hash: '#page=2' });
  await book.page.keyboard.press('2');
  await book.waitForPages(2, 3);
  await book.page.keyboard.press('p');
  await book.page.locator('.print-panel .main-button').click();
  await printed(book);
  await book.page.emulateMedia({ media: 'print' });
  const page = book.page.viewportSize();
  const { width, height } = await book.page.locator('.sheet img').first().boundingBox();
  assert.deepEqual([width, height], [page.width, page.height]);
  assert.equal(await book.page.locator('#folvero').isVisible(), false);
  assert.equal(await book.page.locator('.sheet').nth(1).textContent(), 'Page 3 could not be shown');
  const [[wide, high]] = await onPaper(book);
  assert.ok(wide > high, `the sheet lies as the page does: ${wide} by ${high}`);
});

test('page numbers that name no pages are explained', async () => {
  const book = await open(await reader.book({ pages: plainPages(6) }));
  await book.page.keyboard.press('p');
  const panel = book.page.locator('.print-panel');
  for (const [from, to] of [['0', '3'], ['2', '7'], ['4', '2'], ['a', '2'], ['', '']]) {
    await panel.locator('.from').fill(from);
    await panel.locator('.to').fill(to);
    await panel.locator('.main-button').click();
    assert.equal(await panel.locator('.note').innerText(), 'Enter page numbers from 1 to 6.', `${from} to ${to}`);
  }
  assert.equal(await book.page.evaluate(() => window.prints), 0);
});

test("the browser's own command prints the pages in view", async () => {
  const book = await open(await reader.book({ pages: plainPages(6) }), { hash: '#page=4' });
  assert.equal((await onPaper(book)).length, 2);
});

test('a web book prints vectors, or the larger picture of a page, and what is usual where one is damaged', async () => {
  const svg = '<svg xmlns="http://www.w3.org/2000/svg" width="120" height="160"><path d="M9 9h99v99z"/></svg>';
  const large = [{ kind: 'js', svg }, { kind: 'js', bytes: 'damaged' }, { kind: 'png', bytes: plainPages(1, 480, 640)[0].bytes }];
  const folder = await reader.webBook({ pages: plainPages(4), description: { pages: [{}, {}, {}, {}], large } });
  const book = await open(folder);
  await book.page.keyboard.press('p');
  await book.page.locator('.print-panel [value="all"]').check();
  await book.page.locator('.print-panel .main-button').click();
  await printed(book);
  const widths = await book.page.locator('.sheet img').evaluateAll((all) => all.map((one) => one.naturalWidth));
  const usual = widths[3];
  assert.deepEqual(widths, [120, usual, 480, usual]);
  assert.equal([...(await fileOf(book)).matchAll(/\/Subtype \/Image/g)].length, 3);
});
