import assert from 'node:assert/strict';
import { test } from 'node:test';
import { faults } from './support/axe.mjs';
import { plainPages, writeConfiguration } from './support/book.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

const press = (key) => (book) => book.page.keyboard.press(key);
const states = {
  'a desk': [DESK, [
    ['the cover', () => {}], ['a spread', press('ArrowRight')], ['the thumbnails', press('t')],
    ['the share panel', press('l')], ['the print panel', press('p')], ['the help panel', press('?')],
  ]],
  'a phone': [PHONE, [['a page', press('ArrowRight')], ['the menu', (book) => book.use('more', 'tap')]]],
};
for (const [name, [view, shown]] of Object.entries(states)) {
  test(`nothing keeps readers with other senses or hands out, on ${name}`, async () => {
    const folder = await reader.book({ pages: plainPages(8), values: { TutorialTitle: 'Spring' } });
    const book = await reader.openFromDisk(folder, { view });
    for (const [what, act] of shown) {
      await press('Escape')(book);
      await act(book);
      await book.pages();
      assert.deepEqual(await faults(book), [], what);
    }
  });
}

const looks = [['dark', '0x20262e'], ['light', '0xf4ead2'], ['middling', '0x767676']];
for (const [name, colour] of looks) {
  test(`a ${name} bar and drawer can be read`, async () => {
    const values = { FlashWindowsColor: colour, ThumbnailsBgColor: colour, TutorialTitle: 'https://example.org/' };
    const book = await reader.openFromDisk(await reader.book({ pages: plainPages(8), values }));
    await press('t')(book);
    assert.deepEqual(await faults(book), []);
  });
}

test('nothing keeps readers with other senses or hands out: a message', async () => {
  const folder = await reader.book({ pages: plainPages(8) });
  await writeConfiguration(folder, Buffer.from('noise'));
  const book = await reader.openOverHttp(folder);
  assert.equal(await book.page.locator('.message').isVisible(), true);
  assert.deepEqual(await faults(book), []);
});

for (const [name, view] of [['a desk', DESK], ['a phone', PHONE]]) {
  test(`nothing keeps readers with other senses or hands out: the note of the page left, on ${name}`, async () => {
    const book = await reader.openOverHttp(await reader.book({ pages: plainPages(8) }), { view,
      before: (page) => page.addInitScript(() => localStorage.setItem(`folvero:${location.pathname}:8`, '4')) });
    assert.equal(await book.page.locator('.toast').isVisible(), true);
    assert.deepEqual(await faults(book), []);
  });
}

test('where the system takes colours and shadows away, lines show surfaces, controls and the focus', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(8) }),
    { hash: '#page=4', before: (page) => page.emulateMedia({ forcedColors: 'active' }) });
  const unlined = (...selectors) => book.page.evaluate((all) => all.filter((selector) => {
    const { borderTopWidth, borderTopStyle } = getComputedStyle(document.querySelector(selector));
    return borderTopStyle !== 'solid' || parseFloat(borderTopWidth) < 1;
  }), selectors);
  assert.deepEqual(await unlined('.bar', '.arrow.left', '.page-box'), []);
  await press('Tab')(book);
  assert.equal(await book.page.evaluate(() => getComputedStyle(document.activeElement).outlineStyle), 'solid');
  await press('t')(book);
  assert.deepEqual(await unlined('.drawer'), []);
  await press('l')(book);
  assert.deepEqual(await unlined('.share-panel', '.share-panel .copy', '.share-panel .link'), []);
});

/** The accent of least contrast between a surface and its writing, over black and over white. */
async function leastContrast(book) {
  return book.page.evaluate(() => {
    const style = getComputedStyle(document.getElementById('folvero'));
    const channels = (text) => [1, 3, 5].map((at) => parseInt(text.trim().slice(at, at + 2), 16));
    const light = (rgb) => rgb.map((part) => (part / 255 <= 0.04045 ? part / 255 / 12.92 : ((part / 255 + 0.055) / 1.055) ** 2.4))
      .reduce((sum, part, index) => sum + part * [0.2126, 0.7152, 0.0722][index], 0);
    const bar = channels(style.getPropertyValue('--bar'));
    const ink = light(channels(style.getPropertyValue('--bar-ink')));
    const opacity = Number(style.getPropertyValue('--bar-opacity'));
    const [shade, share] = /rgba\((\d+),\d+,\d+,([.\d]+)\)/.exec(style.getPropertyValue('--bar-wash')).slice(1).map(Number);
    const over = [0, 255].flatMap((ground) => {
      const seen = bar.map((part) => part * opacity + ground * (1 - opacity));
      return [seen, seen.map((part) => shade * share + part * (1 - share))];
    });
    return Math.min(...over.map((seen) => (Math.max(light(seen), ink) + 0.05) / (Math.min(light(seen), ink) + 0.05)));
  });
}

test('the bar can be read over any ground, whatever its colour', async () => {
  for (const colour of ['0x777777', '0x757575', '0xff0000', '0x00a0ff', '0x888800']) {
    const book = await reader.openFromDisk(await reader.book({ pages: plainPages(2), values: { FlashWindowsColor: colour } }));
    const least = await leastContrast(book);
    assert.ok(least >= 4.5, `${colour}: ${least}`);
    await reader.closeBooks();
  }
});
