import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(values, options = {}) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(4), values }), options);
}

test('Top, Bottom, Left and Right frame the inner background with the outer one', async () => {
  const book = await open({ Top: '40', Bottom: '50', Left: '60', Right: '70',
    OuterGradiantColorA: '0x112233', OuterGradiantColorB: '0x112233' });
  const box = await book.page.locator('.inner').boundingBox();
  assert.deepEqual(box, { x: 60, y: 40, width: 1280 - 130, height: 800 - 90 });
  assert.deepEqual(await book.colourAt(20, 400), [0x11, 0x22, 0x33]);
});

test('FlashWindowsColor colours the bar, with signs that can be read', async () => {
  const look = (book) => book.page.locator('.bar').evaluate((bar) => [
    getComputedStyle(bar, '::before').backgroundColor, getComputedStyle(bar).color]);
  const colours = [['0x102030', '16, 32, 48', '255, 255, 255'], ['0xffeecc', '255, 238, 204', '20, 24, 29']];
  for (const [colour, bar, ink] of colours) {
    const book = await open({ FlashWindowsColor: colour });
    assert.deepEqual(await look(book), [`rgb(${bar})`, `rgb(${ink})`]);
  }
});

test('HidePageFrameBar leaves bar and arrows out, and keys still turn', async () => {
  for (const [text, hidden] of [['show', true], ['No', false]]) {
    const book = await open({ HidePageFrameBar: text });
    await book.page.keyboard.press('Shift');
    assert.equal(await book.page.locator('.bar').isVisible(), !hidden, text);
    assert.equal(await book.page.locator('.arrow.right').isVisible(), !hidden, text);
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(2, 3);
  }
});

const links = [
  ['HTTP://example.org/a', 'example.org/a'], ['https://example.org/"><script>', 'example.org/"><script>'],
  ['mailto:books@example.org', 'books@example.org'], ['tel:+49 30 1234', '+49 30 1234'],
];
const texts = ['Spring <2026> & more', 'Tel: ask at the desk', 'See https://example.org', 'javascript:alert(1)',
  'java\tscript:alert(1)', '//example.org/', 'https://'];
test('TutorialTitle is the caption: text, or a link when it is an address of the web, for mail or calls', async () => {
  for (const [text, words] of [...links, ...texts.map((plain) => [plain])]) {
    const caption = (await open({ TutorialTitle: text })).page.locator('.caption');
    assert.equal(await caption.innerText(), words ?? text.replace('\t', ' '));
    const addresses = await caption.locator('*').evaluateAll((all) => all.map((one) => one.getAttribute('href')));
    assert.deepEqual(addresses, words ? [text] : []);
  }
});

const entrances = [['None', 0], ['Fade in', 1], ['Rise', 1], ['Drop', 1], ['something else', 0]];
test('InitialShow says how the book comes in', async () => {
  const ways = new Set();
  for (const [way, moving] of entrances) {
    const book = await open({ InitialShow: way }, { before: (page) => page.addInitScript(() => {
      window.entrances = [];
      const { animate } = Element.prototype;
      Element.prototype.animate = function noted(frames, ...rest) {
        if (this.matches('.book')) window.entrances.push(JSON.stringify(frames));
        return animate.call(this, frames, ...rest);
      };
    }) });
    const seen = await book.page.evaluate(() => window.entrances);
    assert.equal(seen.length, moving, way);
    if (moving) ways.add(seen[0]);
  }
  assert.equal(ways.size, 3, 'three different ways');
});

// Time stands still but where the test lets it pass; the interval is longer than what passes before that.
test('AutoPlay turns from the start, and nothing turns without it', async () => {
  for (const [AutoPlay, pages] of [['Yes', [2, 3]], ['No', [1]]]) {
    const before = (page) => page.clock.install({ time: 1000 });
    const book = await open({ AutoPlay, SlideInterval: '100' }, { before });
    await book.page.clock.pauseAt(61000);
    assert.deepEqual(await book.page.evaluate(() => window.folvero.pages), [1]);
    await book.page.clock.runFor(101000);
    assert.deepEqual(await book.page.evaluate(() => window.folvero.pages), pages);
  }
});
