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

test('nothing keeps readers with other senses or hands out: the note of the page left', async () => {
  const book = await reader.openOverHttp(await reader.book({ pages: plainPages(8) }), { view: PHONE,
    before: (page) => page.addInitScript(() => localStorage.setItem(`folvero:${location.pathname}:8`, '4')) });
  assert.equal(await book.page.locator('.toast').isVisible(), true);
  assert.deepEqual(await faults(book), []);
});

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
