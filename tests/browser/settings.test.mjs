import assert from 'node:assert/strict';
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
