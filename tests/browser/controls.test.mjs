import assert from 'node:assert/strict';
import { test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';

const reader = Reader.forTests();

async function open(count, { values, ...options } = {}) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(count), values }), options);
}

const does = (book, name) => book.page.locator(`.bar [data-does="${name}"]`);
const idle = (book) => book.page.locator('#folvero').getAttribute('data-idle');

test('the bar goes while the reader is idle, comes with pointer, finger and key, and stays while in use', async () => {
  const book = await open(4, { view: { ...DESK, hasTouch: true }, before: (page) => page.clock.install() });
  const { clock, keyboard, mouse, touchscreen } = book.page;
  for (const come of [() => mouse.move(640, 300), () => touchscreen.tap(640, 300), () => keyboard.press('Tab')]) {
    await clock.runFor(6000);
    assert.equal(await idle(book), 'yes');
    await come();
    assert.equal(await idle(book), 'no', String(come));
  }
  for (const [key, what] of [['t', 'thumbnails are open'], ['Escape', 'the focus that came back is in the bar']]) {
    await keyboard.press(key);
    await clock.runFor(20000);
    assert.equal(await idle(book), 'no', what);
  }
});

test('every control is reached with the tab key, in the order in which it stands', async () => {
  const book = await open(6, { hash: '#page=2', values: { TutorialTitle: 'https://example.org/' } });
  const names = [];
  for (let step = 0; step < 16; step += 1) {
    await book.page.keyboard.press('Tab');
    names.push(await book.page.evaluate(() => {
      const { activeElement: at } = document;
      const seen = getComputedStyle(at).outlineStyle !== 'none' || at.matches('.page-box');
      return seen ? at.getAttribute('aria-label') ?? at.textContent : `unseen ${at.tagName}`;
    }));
  }
  assert.deepEqual(names, ['Previous page', 'Next page', 'example.org', 'Place in the book', 'Previous page', 'Page number', 'Next page',
    'Thumbnails', 'Zoom in', 'View', 'Turn pages by itself', 'Sound', 'Share', 'Print', 'Full screen', 'Help']);
});

test('zoom, sound, playing and full screen are switched and show it', async () => {
  const book = await open(6);
  const pressed = (name) => does(book, name).getAttribute('aria-pressed');
  assert.deepEqual([await pressed('sound'), await pressed('play')], ['true', 'false']);
  await book.page.keyboard.press('s');
  assert.equal(await pressed('sound'), 'false');
  assert.equal(await does(book, 'sound').getAttribute('aria-keyshortcuts'), 'S');
  await book.page.keyboard.press('y');
  await book.waitForPages(2, 3);
  assert.equal(await pressed('play'), 'true');
  await book.use('play');
  assert.equal(await pressed('play'), 'false');
  for (const [button, off] of [['zoomIn', false], ['zoomOut', true]]) {
    await book.use(button);
    assert.equal(await book.page.locator('#folvero').getAttribute('data-zoomed'), off ? 'no' : 'yes');
    assert.equal(await does(book, 'zoomOut').isDisabled(), off);
  }
  for (const full of [true, false]) {
    await book.use('full');
    await does(book, 'full').and(book.page.locator(`[aria-pressed="${full}"]`)).waitFor();
    assert.equal(await book.page.evaluate(() => document.fullscreenElement !== null), full);
  }
});

/** Controls that are cut off by the window, or that lie over one another in the bar. */
function misplaced(book) {
  return book.page.evaluate(() => {
    const boxes = [...document.querySelectorAll('.bar button, .bar input, .page-count, .arrow:enabled')]
      .filter((one) => one.getClientRects().length > 0).map((one) => ({ one, box: one.getBoundingClientRect() }));
    const cut = boxes.filter(({ box: { left, top, right, bottom } }) =>
      left < 0 || top < 0 || right > innerWidth + 0.5 || bottom > innerHeight);
    const inRow = (one) => one.closest('.bar') && !one.closest('.seek');
    const over = boxes.filter(({ one, box }, index) => inRow(one) && boxes.slice(index + 1).some((next) =>
      inRow(next.one) && next.box.left < box.right - 0.5 && box.left < next.box.right - 0.5));
    const clipped = boxes.filter(({ one }) => one.matches('.page-box') && one.scrollWidth > one.clientWidth + 1);
    return [...cut, ...over, ...clipped].map(({ one }) => one.outerHTML.slice(0, 80));
  });
}

const windows = [
  ['desk, text twice as large', DESK, 200], ['phone', PHONE, 100], ['phone, text twice as large', PHONE, 200],
  ['small phone', { ...PHONE, viewport: { width: 320, height: 568 } }, 100],
  ['phone on its side', { ...PHONE, viewport: { width: 844, height: 390 } }, 100],
];
for (const [name, view, size] of windows) {
  test(`no control is cut off or covered, and none is lost: ${name}`, async () => {
    const book = await open(120, { view, hash: '#page=114', values: { TutorialTitle: 'A caption' } });
    await book.page.addStyleTag({ content: `html { font-size: ${size}% }` });
    await book.drawn();
    assert.deepEqual(await misplaced(book), []);
    const inBar = await book.page.locator('.bar [data-does]').evaluateAll((all) => all
      .filter((one) => one.getClientRects().length > 0).map((one) => one.dataset.does));
    if (inBar.includes('more')) await book.use('more');
    const inMenu = await book.page.locator('.entry:visible').count();
    assert.equal(inBar.filter((one) => one !== 'more').length + inMenu, 10, inBar.join());
    assert.match(await book.page.locator('.bar').innerText(), /\b120\b/, 'how many pages there are');
    if (name !== 'phone') return;
    for (const one of ['thumbs', 'more']) assert.ok(inBar.includes(one), `${one} stays in the bar`);
    assert.match(await book.page.locator('.menu-panel').innerText(), /A caption/);
    const small = await book.page.locator('.bar button:visible, .menu-panel button:visible').evaluateAll((all) => all
      .filter((one) => one.offsetWidth < 44 || one.offsetHeight < 44).map((one) => one.outerHTML));
    assert.deepEqual(small, [], 'what is touched is large enough for a finger');
    await book.page.locator('.entry', { hasText: 'Help' }).tap();
    assert.ok(await book.page.locator('.help-panel').isVisible());
    assert.equal(await book.page.locator('.menu-panel').isVisible(), false);
  });
}

test('the slider shows the page to which it leads, by pointer with a way back, and by key without', async () => {
  const book = await open(101, { hash: '#page=2' });
  const slider = book.page.getByRole('slider', { name: 'Place in the book' });
  const { x, y, width, height } = await slider.boundingBox();
  await book.drag([x + width * 0.1, y + height / 2], [x + width - 7, y + height / 2], { pause: 100 });
  await book.waitForPages(100, 101);
  assert.equal(await slider.getAttribute('aria-valuetext'), 'Page 100 of 101');
  assert.equal(await book.page.locator('.seek-note').isVisible(), false);
  await book.page.mouse.move(x + width / 2, y + height / 2);
  assert.equal(await book.page.locator('.seek-note').innerText(), 'Page 51');
  const middle = await book.page.locator('.seek-note .thumb-picture').boundingBox();
  await book.page.locator('.seek-note canvas').waitFor();
  await book.rest();
  assert.deepEqual(await book.colourAt(middle.x + middle.width / 2, middle.y + middle.height / 2), colourOf(51));
  await book.page.goBack();
  await book.waitForPages(2, 3);
  await slider.focus();
  for (const pages of [[4, 5], [6, 7]]) {
    await book.page.keyboard.press('ArrowRight');
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(...pages);
  }
  await book.page.goForward();
  await book.waitForPages(100, 101);
});

test('the reader chooses how the pages lie, by key and in the panel, and finds it so again', async () => {
  const folder = await reader.book({ pages: plainPages(9) });
  const book = await reader.openFromDisk(folder, { hash: '#page=4' });
  await book.waitForPages(4, 5);
  await book.page.keyboard.press('1');
  await book.waitForPages(4);
  await book.page.keyboard.press('1');
  await book.waitForPages(4, 5);
  await book.use('view');
  assert.deepEqual(await book.page.evaluate(() => [document.activeElement.value, document.activeElement.checked]), ['auto', true]);
  await book.page.locator('.view-panel .first-alone').uncheck();
  await book.waitForPages(3, 4);
  await book.page.getByRole('radio', { name: 'Whole width' }).check();
  await book.page.waitForFunction(() => document.querySelector('.page.left').getBoundingClientRect().height > innerHeight);
  await book.page.keyboard.press('Escape');
  await book.page.keyboard.press('End');
  await book.waitForPages(9);
  await book.page.reload();
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  await book.waitForPages(9);
  const { height } = await book.box('left');
  assert.ok(height > 800, 'still all of the width, and the first page not alone');
});

test('by night paper is dark and print light, also as it turns, and pictures stay as they are', async () => {
  const [WHITE, BLACK, PICTURE] = [[255, 255, 255], [0, 0, 0], [180, 60, 40]];
  const bytes = png(240, 320, (x, y) => (y > 200 && x > 120 ? PICTURE : x > 56 && x < 64 ? BLACK : WHITE));
  const folder = await reader.book({ pages: Array.from({ length: 6 }, () => ({ bytes })) });
  const book = await reader.openFromDisk(folder, { hash: '#page=2' });
  const colours = async () => {
    await book.drawn();
    const { x, y, width, height } = await book.box('left');
    const places = [[0.1, 0.1], [0.25, 0.3], [0.75, 0.8]];
    return Promise.all(places.map(([across, down]) => book.colourAt(x + width * across, y + height * down)));
  };
  assert.deepEqual(await colours(), [WHITE, BLACK, PICTURE]);
  await book.page.keyboard.press('n');
  const [paper, print, picture] = await colours();
  assert.deepEqual(paper, [20, 20, 20]);
  assert.ok(Math.min(...print) > 200, `print: ${print}`);
  assert.ok(picture.every((part, index) => Math.abs(part - PICTURE[index] * 0.85) < 4), `picture: ${picture}`);
  await book.page.mouse.move(1150, 300);
  await book.page.mouse.down();
  await book.page.mouse.move(800, 280, { steps: 4 });
  await book.drawn();
  for (let x = 1140; x > 700; x -= 40) {
    const colour = await book.colourAt(x, 60);
    assert.ok(Math.max(...colour) < 120 || Math.min(...colour) > 200, `at ${x}: ${colour}`);
  }
  await book.page.mouse.up();
  await book.page.evaluate(() => localStorage.setItem('folvero:*:paper', 'auto'));
  await book.page.reload();
  await book.page.waitForSelector('#folvero[data-state="ready"]');
  assert.deepEqual((await colours())[0], WHITE);
  await book.page.emulateMedia({ colorScheme: 'dark' });
  assert.deepEqual((await colours())[0], [20, 20, 20]);
});

const words = [[['de-AT', 'en'], 'de', 'Drucken', 'Seiten 2 und 3 von 6'],
  [['xx', 'FR-ca'], 'fr', 'Imprimer', 'Pages 2 et 3 sur 6'], [['xx'], 'en', 'Print', 'Pages 2 and 3 of 6']];
test('the book speaks the language that its reader prefers, and announces its pages in it', async () => {
  for (const [languages, tag, print, announced] of words) {
    const book = await open(6, { hash: '#page=2', before: (page) => page.addInitScript((tags) => {
      Object.defineProperty(navigator, 'languages', { get: () => tags });
    }, languages) });
    assert.equal(await book.page.locator('html').getAttribute('lang'), tag);
    assert.equal(await does(book, 'print').getAttribute('aria-label'), print);
    assert.equal(await book.page.locator('.live').textContent(), announced);
  }
});

test('a book of one page has nothing to turn with', async () => {
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(1) }));
  assert.equal(await book.page.locator('.bar').isVisible(), true);
  assert.equal(await book.page.locator('[data-turn="left"]:visible, [data-turn="right"]:visible').count(), 0);
});
