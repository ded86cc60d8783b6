import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(values, options = {}) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(4), values }), options);
}

test('margins frame the inner background with the outer one, and the bar has its colour', async () => {
  const book = await open({ Top: '40', Bottom: '50', Left: '60', Right: '70', FlashWindowsColor: '0xffeecc',
    OuterGradiantColorA: '0x112233', OuterGradiantColorB: '0x112233' });
  const box = await book.page.locator('.inner').boundingBox();
  assert.deepEqual(box, { x: 60, y: 40, width: 1280 - 130, height: 800 - 90 });
  assert.deepEqual(await book.colourAt(20, 400), [0x11, 0x22, 0x33]);
  const bar = await book.page.locator('.bar').evaluate((one) =>
    [getComputedStyle(one, '::before').backgroundColor, getComputedStyle(one).color]);
  assert.deepEqual(bar, ['rgb(255, 238, 204)', 'rgb(20, 24, 29)']);
});

test('HidePageFrameBar leaves bar and arrows out, and keys still turn', async () => {
  const book = await open({ HidePageFrameBar: 'show' });
  await book.page.keyboard.press('Shift');
  for (const part of ['.bar', '.arrow.right']) assert.equal(await book.page.locator(part).isVisible(), false, part);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
});

/** Captions; for those that are links what is shown of them. */
const captions = [
  ['HTTP://example.org/a', 'example.org/a'], ['https://example.org/"><script>', 'example.org/"><script>'],
  ['mailto:books@example.org', 'books@example.org'], ['tel:+49 30 1234', '+49 30 1234'],
  ['Spring <2026> & more'], ['See https://example.org'], ['javascript:alert(1)'], ['java\tscript:alert(1)'],
];
test('TutorialTitle is the caption: text, or a link when it is an address of the web, for mail or calls', async () => {
  for (const [text, words] of captions) {
    const caption = (await open({ TutorialTitle: text })).page.locator('.caption');
    assert.equal(await caption.innerText(), words ?? text.replace('\t', ' '));
    const addresses = await caption.locator('*').evaluateAll((all) => all.map((one) => one.getAttribute('href')));
    assert.deepEqual(addresses, words ? [text] : []);
  }
});

test('InitialShow says how the book comes in', async () => {
  const ways = new Set();
  for (const way of ['Fade in', 'Rise', 'Drop', 'None']) {
    const { page } = await open({ InitialShow: way }, { before: (page) => page.addInitScript(() => {
      const animate = Element.prototype.animate;
      window.entrances = [];
      Element.prototype.animate = function (frames, options) {
        if (this.matches('.book')) window.entrances.push(JSON.stringify(frames));
        return animate.call(this, frames, options);
      };
    }) });
    ways.add(await page.evaluate(() => window.entrances.join()));
  }
  assert.equal(ways.size, 4);
  assert.ok(ways.has(''), 'None moves nothing');
});

test('AutoPlay turns from the start', async () => {
  const book = await open({ AutoPlay: 'Yes', SlideInterval: '0.2' });
  await book.waitForPages(2, 3);
});

test('the publisher takes buttons away with their keys, colours the others and leads to the own site', async () => {
  const logo = { 'extfiles/logo.png': plainPages(1, 80, 20)[0].bytes };
  const values = { HiddenButtons: 'print share play sound "] zoomIn', AccentColor: '0xf0c000', LogoFile: 'extfiles/logo.png' };
  const folder = async (more) => reader.book({ pages: plainPages(4), extras: logo, values: { ...values, ...more } });
  const book = await reader.openFromDisk(await folder({ LogoLink: 'https://example.org/' }));
  await book.page.keyboard.press('?');
  assert.match(await book.page.locator('.letters').innerText(), /T\s+Thumbnails/);
  assert.doesNotMatch(await book.page.locator('.letters').innerText(), /Print|Share|Sound/);
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('p');
  assert.equal(await book.page.locator('dialog[open], .bar [data-does="print"]:visible').count(), 0);
  assert.equal(await book.page.locator('.bar > .rule:visible').count(), 2, 'no line where a group is empty');
  const button = await book.page.locator('.copy').evaluate((one) => [getComputedStyle(one).backgroundColor, getComputedStyle(one).color]);
  assert.deepEqual(button, ['rgb(240, 192, 0)', 'rgb(20, 24, 29)']);
  assert.equal(await book.page.getByRole('link', { name: 'example.org' }).getAttribute('href'), 'https://example.org/');
  const hostile = await reader.openFromDisk(await folder({ LogoLink: 'javascript:alert(1)', AccentColor: 'url(x)' }));
  assert.equal(await hostile.page.locator('.logo img').count(), 1);
  assert.equal(await hostile.page.locator('a.logo').count(), 0);
  assert.deepEqual([...book.errors, ...hostile.errors], []);
});

test('a book opens with the view of its publisher until its reader chooses', async () => {
  const book = await open({ FirstView: 'One page' }, { hash: '#page=2' });
  assert.deepEqual(await book.pages(), [2]);
  await book.page.keyboard.press('2');
  await book.waitForPages(2, 3);
  await book.page.reload();
  await book.waitForPages(2, 3);
  assert.deepEqual(await (await open({ FirstView: 'Sideways' }, { hash: '#page=2' })).pages(), [2, 3]);
});

test('readers download the document where the publisher offers it', async () => {
  const extras = { 'extfiles/document.pdf': Buffer.from('%PDF-1.7 whole') };
  const values = { DownloadFile: 'extfiles/document.pdf' };
  const book = await reader.openOverHttp(await reader.book({ pages: plainPages(4), extras, values, title: 'Tea' }));
  const asked = book.page.waitForEvent('download');
  await book.use('download');
  const file = await asked;
  assert.equal(file.suggestedFilename(), 'Tea.pdf');
  assert.equal(await readFile(await file.path(), 'utf8'), '%PDF-1.7 whole');
  assert.equal(await (await open({ DownloadFile: '../x.pdf' })).page.locator('[data-does="download"]:visible').count(), 0);
});
