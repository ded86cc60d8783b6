import assert from 'node:assert/strict';
import path from 'node:path';
import { test } from 'node:test';
import { faults } from './support/axe.mjs';
import { plainPages } from './support/book.mjs';
import { folvero, ready, sample } from './support/program.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';
import { typedPage } from './support/webbook.mjs';

const reader = Reader.forTests();

const OUTLINE = [['Preface', 1, []], ['First part', 3, [['River', 4, []], ['Nowhere', 0, []]]]];
const pages = Array.from({ length: 8 },
  (_, index) => ({ ...typedPage([`text of page ${index + 1}`, 'and a dead link', 'and a page', 'head'],
    { links: [[0, 0, 4, 'https://example.org/'], [1, 6, 9, 0], [2, 6, 4, 1]] }),
  blocks: index % 2 ? ['h6', 1, 'item', 1, 'item', 1] : ['code', 1, 'row', 2, 'note', 1] }));

async function open({ values, change, ...options }) {
  const folder = await reader.webBook({ pages: plainPages(8), values: { TutorialTitle: 'Spring', ...values },
    description: { pages, outline: OUTLINE, labels: ['i', 'ii'], language: 'en', textPage: 'text.html', open: [[1, 6]],
      ...change } });
  const book = await reader.openFromDisk(folder, options);
  await book.page.waitForSelector('.word', { state: 'attached' });
  return book;
}

const contents = (book) => book.page.keyboard.press('c');
async function search(book) {
  await book.page.keyboard.press('/');
  await book.page.locator('.search-box').fill('text');
  await book.page.waitForSelector('.result');
}
async function step(book) {
  await search(book);
  await book.page.keyboard.press('Enter');
}
async function strip(book) {
  await step(book);
  await book.page.waitForSelector('.search-strip:not([hidden])');
}
async function highlight(book) {
  await book.page.keyboard.press('h');
  await book.page.waitForFunction(() => !getSelection().isCollapsed);
  await book.page.keyboard.press('Enter');
  await book.page.waitForSelector('.note-bar [aria-pressed="true"]');
}
async function notes(book) {
  await book.page.keyboard.press('b');
  await book.page.keyboard.press('m');
  await book.page.waitForSelector('.note-entry [aria-label="Note"]');
}
async function note(book) {
  await notes(book);
  await book.page.locator('.note-entry [aria-label="Note"]').last().click();
  await book.page.waitForSelector('.note-panel[open]');
}
async function enlarged(book) {
  await book.page.keyboard.press('+');
  await book.page.waitForSelector('.zoom-strip:not([hidden])');
}
const key = (name) => (book) => book.page.keyboard.press(name);
const states = {
  'a desk': [DESK, '#page=4',
    { 'a spread': () => {}, 'the contents': contents, 'the search': step,
      'a highlight': highlight, 'the notes': notes, 'a note': note, 'pages left out': key('End'), 'a larger page': enlarged }],
  'a phone': [PHONE, '',
    { 'the strip of the search': strip, 'a page': key('ArrowRight'), 'the contents': contents, 'the search': search,
      'a larger page': enlarged, 'a highlight': highlight, 'the notes': notes, 'a note': note }],
};
for (const [name, [view, hash, shown]] of Object.entries(states)) {
  test(`nothing keeps readers with other senses or hands out of a web book, on ${name}`, async () => {
    const book = await open({ view, hash,
      values: { FlashWindowsColor: '0x767676', ThumbnailsBgColor: '0x767676' } });
    for (const [what, act] of Object.entries(shown)) {
      await key('Escape')(book);
      await act(book);
      await book.pages();
      assert.deepEqual(await faults(book), [], what);
    }
  });
}

test('where the system takes colours away, panels, marks and focus stay and words stay unseen', async () => {
  const book = await open({ hash: '#page=2', before: (page) => page.emulateMedia({ forcedColors: 'active' }) });
  const style = (selector, name) => book.page.locator(selector).first()
    .evaluate((one, property) => getComputedStyle(one)[property], name);
  const lined = async (...selectors) => {
    for (const selector of selectors) assert.equal(await style(selector, 'borderTopStyle'), 'solid', selector);
  };
  await lined('.bar', '.arrow.left', '.page-box');
  await step(book);
  await lined('.search-side', '.search-field');
  assert.match(await style('.hit:not(.current)', 'backgroundColor'), /^rgba\(255, 212, 0/);
  assert.equal(await style('.word', 'color'), 'rgba(0, 0, 0, 0)');
  await contents(book);
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('c');
  assert.equal(await style('.tree-row:focus', 'outlineStyle'), 'solid');
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('t');
  await lined('.drawer');
  await book.page.keyboard.press('l');
  await lined('.share-panel', '.share-panel .copy', '.share-panel .link');
});

test('readers who want little motion see none in the panels', async () => {
  const book = await open({ hash: '#page=4', reducedMotion: 'reduce' });
  for (const [act, selector] of [[contents, '.contents-side'], [step, '.hit.current']]) {
    await act(book);
    const name = await book.page.locator(selector).first().evaluate((one) => getComputedStyle(one).animationName);
    assert.equal(name, 'none', selector);
  }
});

test('all of a page is reached by key, in the order in which it is read', async () => {
  const book = await open({ hash: '#page=2' });
  await book.page.waitForSelector('.over.right .page-link');
  const order = await book.page.locator('.page-link')
    .evaluateAll((all) => all.map((one) => `${one.closest('.over').ariaLabel}: ${one.ariaLabel}`));
  const links = (name) => [`${name}: text`,
    `${name}: dead link, This link leads to a page that is not in this book`, `${name}: page, Page i (1)`];
  assert.deepEqual(order, [...links('Page ii (2)'), ...links('Page 3')]);
  await book.page.keyboard.press('Tab');
  assert.deepEqual(await book.page.evaluate(() =>
    [document.activeElement.textContent, document.activeElement.getAttribute('href'),
    document.activeElement.offsetWidth > 100]), ['Read as plain text', 'text.html#page-2', true]);
  await book.page.locator('.page-link').nth(1).focus();
  await book.page.keyboard.press('Tab');
  await book.page.keyboard.press('Enter');
  await book.waitForPages(1);
});

test('links lie over their words in lines of all directions, and may be as close as these', async () => {
  const words = ['first ', 0, 400, 'linked ', 500, 600, 'last', 1200, 300];
  const [backward, upward] = [words, words].map((all) => all.map((one, at) => (at % 3 === 1 ? 1500 - one - all[at + 1] : one)));
  const lines = [[600, 600, 1500, 90, 0, 0, words], [600, 700, 1500, 90, 0, 0, words], [600, 800, 1500, 90, 0, 1, backward],
    [600, 2000, 1500, 90, 180, 0, backward], [600, 3000, 90, 1500, 90, 0, words], [800, 3000, 90, 1500, 270, 0, upward]];
  const boxOf = ([x, y, width, height, , , { 4: start, 5: length }]) =>
    (width > height ? [x + start, y - 10, length, height + 20] : [x - 10, y + start, width + 20, length]);
  const links = lines.map((line) => [...boxOf(line), 3]);
  const page = { size: [6000, 8000], lines, links: [...links, [3000, 5000, 900, 900, 4]] };
  const book = await open({ hash: '#page=2', change: { pages: [pages[0], page, ...pages.slice(2)] } });
  await book.page.waitForSelector('.over.left .page-link');
  const placed = await book.page.locator('.over.left').evaluate((over) => {
    const { x, y, width } = over.getBoundingClientRect();
    return [...over.querySelectorAll('.page-link')].map((link) => {
      const box = link.getBoundingClientRect();
      return [box.x - x, box.y - y, box.width, box.height].map((size) => size * 6000 / width);
    });
  });
  assert.equal(placed.length, page.links.length);
  page.links.forEach((link, index) => placed[index].forEach((size, side) =>
    assert.ok(Math.abs(size - link[side]) < 6, `link ${index + 1} lies at ${placed[index]} and not at ${link}`)));
  assert.deepEqual(await faults(book), []);
});

/** What those who hear a page are told of it: its elements and their texts, by the browser's accessibility tree. */
async function heard(page) {
  const session = await page.context().newCDPSession(page);
  const { nodes } = await session.send('Accessibility.getFullAXTree');
  const byId = new Map(nodes.map((node) => [node.nodeId, node]));
  const childrenOf = ({ childIds = [] }) => childIds.map((id) => byId.get(id)).filter(Boolean);
  const isText = ({ role }) => role?.value === 'StaticText';
  const textOf = (node) => (isText(node) ? node.name.value : childrenOf(node).map(textOf).join(''));
  const told = [];
  const walk = (node, isInPage) => {
    const [role, name] = [node.role?.value, node.name?.value ?? ''];
    const inside = isInPage || (role === 'group' && /^Page /.test(name));
    const level = node.properties?.find((one) => one.name === 'level')?.value.value;
    const own = { group: name, link: name, heading: `${level} ${textOf(node)}`, paragraph: textOf(node).slice(0, 30) }[role]
      ?? (/^(table|row|list|listitem)$/.test(role) ? textOf(node) : undefined);
    if (inside && !node.ignored && own !== undefined) told.push(`${role} ${own}`.trim());
    for (const child of childrenOf(node)) walk(child, inside);
  };
  walk(nodes[0], false);
  return told;
}

test('a page is heard as headings, paragraphs, lists, tables and links', ready, async () => {
  const folder = path.join(reader.folder, 'heard');
  await folvero('publish', '--quiet', '--type=web', '--pages=1-8', sample('sample'), folder);
  const published = await reader.openFromDisk(folder, { hash: '#page=8' });
  await published.page.waitForSelector('.over.left .word', { state: 'attached' });
  assert.deepEqual(await heard(published.page), ['group Page 8', 'paragraph reader may do. Change one and',
    'paragraph once. A set of values worth ke', 'heading 2 Publishing', 'paragraph The finished book is a folder.',
    'link www.example.org.']);
  const book = await open({ hash: '#page=2' });
  const away = 'This link leads to a page that is not in this book';
  assert.deepEqual(await heard(book.page), ['group Page ii (2)', 'heading 2 of page 2', 'link text', 'list and a and a',
    'listitem and a', `link dead link, ${away}`, 'listitem and a', 'link page, Page i (1)', 'paragraph head',
    'group Page 3', 'link text', 'table and a and a', 'row and a and a', `link dead link, ${away}`, 'link page, Page i (1)']);
});
