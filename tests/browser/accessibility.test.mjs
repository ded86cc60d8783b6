import assert from 'node:assert/strict';
import { test } from 'node:test';
import { faults } from './support/axe.mjs';
import { plainPages } from './support/book.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

const press = (key) => (book) => book.page.keyboard.press(key);
const states = {
  'a desk': [DESK, [
    ['the note of the page left', () => {}], ['the cover', press('Home')], ['a spread', press('ArrowRight')], ['the thumbnails', press('t')],
    ['the share panel', press('l')], ['the print panel', press('p')], ['the help panel', press('?')],
  ]],
  'a phone': [PHONE, [['the note of the page left', () => {}], ['a page', press('ArrowRight')], ['the menu', (book) => book.use('more', 'tap')]]],
};
for (const [name, [view, shown]] of Object.entries(states)) {
  test(`nothing keeps readers with other senses or hands out, on ${name}`, async () => {
    const colour = '0x767676';
    const values = { TutorialTitle: 'https://example.org/', FlashWindowsColor: colour, ThumbnailsBgColor: colour };
    const book = await reader.openOverHttp(await reader.book({ pages: plainPages(8), values }), { view,
      before: (page) => page.addInitScript(() => localStorage.setItem(`folvero:${location.pathname}:8`, '4')) });
    assert.equal(await book.page.locator('.toast').isVisible(), true);
    for (const [what, act] of shown) {
      await act(book);
      await book.pages();
      assert.deepEqual(await faults(book), [], what);
      await press('Escape')(book);
    }
  });
}
