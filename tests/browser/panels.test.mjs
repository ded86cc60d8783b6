import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(options = {}) {
  const folder = await reader.book({ pages: plainPages(6) });
  return options.http ? reader.openOverHttp(folder, options) : reader.openFromDisk(folder, options);
}

const visible = (book, panel) => book.page.locator(panel).isVisible();

for (const [key, name] of [['l', 'share'], ['p', 'print'], ['?', 'help']]) {
  test(`the ${name} panel keeps the focus, and gives it back when it closes`, async () => {
    const book = await open();
    await book.use(name, 'focus');
    await book.page.keyboard.press(key);
    const dialog = book.page.locator(`.${name}-panel`);
    assert.equal(await dialog.getAttribute('aria-modal'), 'true');
    for (const step of [...Array(7).fill('Tab'), 'Shift+Tab', 'Shift+Tab', 'Shift+Tab']) {
      await book.page.keyboard.press(step);
      const [within, moved] = await dialog.evaluate((element) => {
        const { activeElement } = document;
        const { before } = window;
        window.before = activeElement;
        return [element.contains(activeElement), activeElement !== before];
      });
      assert.ok(within && (moved || name === 'help'), step);
    }
    await book.page.keyboard.press('ArrowRight');
    assert.deepEqual(await book.pages(), [1], 'keys do not reach the book');
    await book.page.keyboard.press('Escape');
    assert.equal(await visible(book, `.${name}-panel`), false);
    assert.equal(await book.page.evaluate(() => document.activeElement.dataset.does), name);
  });
}

test('a key pressed as soon as a panel has closed reaches the book', async () => {
  const book = await open();
  await book.page.keyboard.press('?');
  await book.page.locator('.help-panel').evaluate((panel) => {
    panel.close();
    document.activeElement.dispatchEvent(new KeyboardEvent('keydown', { key: 'ArrowRight', bubbles: true }));
  });
  await book.page.waitForFunction(() => window.folvero.page === 2);
});

test('a panel closes with its button and with a click beside it', async () => {
  const book = await open();
  for (const close of [() => book.page.locator('.help-panel .close').click(), () => book.page.mouse.click(20, 20)]) {
    await book.use('help');
    await book.page.locator('.help-panel').waitFor();
    await close();
    await book.page.locator('.help-panel').waitFor({ state: 'hidden' });
  }
});

test('the link that is shared leads to the page in view, or to the beginning', async () => {
  const book = await open({ http: true, hash: '#page=4', before: (page) => page.addInitScript(() => {
    navigator.share = async (what) => { window.sent = what; };
  }) });
  await book.page.keyboard.press('l');
  const link = () => book.page.locator('.link').inputValue();
  assert.equal(await link(), `${book.server.address}#page=4`);
  await book.page.locator('.at-page').uncheck();
  assert.equal(await link(), book.server.address);
  assert.equal(await visible(book, '.on-disk'), false);
  await book.page.locator('.send').click();
  assert.deepEqual(await book.page.evaluate(() => window.sent), { title: 'Test book', url: book.server.address });
});

test('a book from disk says that its link works on this computer only', async () => {
  const book = await open();
  await book.page.keyboard.press('l');
  assert.match(await book.page.locator('.on-disk').innerText(), /this computer/);
  assert.equal(await visible(book, '.send'), false);
});

/** Ways to copy: what the clipboard does, what the older command does, whether the link is copied. */
const copying = [
  ['the clipboard', 'navigator.clipboard.writeText = async (text) => { window.copied = text; }', true],
  ['the older way', 'document.execCommand = () => (window.copied = document.activeElement.value) !== ""', true],
  ['no way', 'document.execCommand = () => false', false],
];
for (const [name, arrange, copied] of copying) {
  test(`the link is copied, or marked for the reader to do it: ${name}`, async () => {
    const book = await open({ http: true, hash: '#page=4', before: (page) => page.addInitScript(
      `navigator.clipboard.writeText = () => Promise.reject(new Error('forbidden')); ${arrange};`) });
    await book.page.keyboard.press('l');
    await book.page.locator('.copy').click();
    await book.page.locator(copied ? '.copy:text("Copied")' : '.by-hand:text("Ctrl+C")').waitFor();
    const given = await book.page.evaluate(() => window.copied ?? window.getSelection().toString());
    assert.equal(given, `${book.server.address}#page=4`);
  });
}

test('a reader who comes back is taken to the page left, and may start over', async () => {
  const book = await open({ http: true });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(4, 5);
  const back = async (hash = '') => {
    await book.page.goto('about:blank');
    await book.page.goto(book.server.address + hash);
    await book.page.waitForSelector('#folvero[data-state="ready"]');
  };
  await back('#page=2');
  assert.deepEqual(await book.pages(), [2, 3], 'the address wins');
  assert.equal(await visible(book, '.toast'), false);
  await back();
  assert.deepEqual(await book.pages(), [4, 5]);
  assert.match(await book.page.locator('.toast').innerText(), /You were on page 4/);
  await book.page.locator('.toast button').click();
  await book.waitForPages(1);
  assert.equal(await visible(book, '.toast'), false);
});

test('the note of the page left goes by itself', async () => {
  const book = await open({ http: true, before: async (page) => {
    await page.clock.install();
    await page.addInitScript(() => localStorage.setItem(`folvero:${location.pathname}:6`, '4'));
  } });
  assert.ok(await visible(book, '.toast'));
  await book.page.clock.runFor(10000);
  assert.equal(await visible(book, '.toast'), false);
});
