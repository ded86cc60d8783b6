import assert from 'node:assert/strict';
import { readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { colourOf, plainPages } from './support/book.mjs';
import { folvero, ready, sample } from './support/program.mjs';
import { Reader, TEMPLATE } from './support/reader.mjs';
import { Emulator, TURN_SOUND } from './support/ruffle.mjs';

// The movie is what readers get where they have no more than the Flash Player.
const reader = new Reader();
let emulator;
before(async () => {
  await reader.start();
  emulator = await Emulator.start(reader);
});
after(() => reader.stop());

async function open({ count = 8, values, extras, pages = plainPages(count), ...options } = {}) {
  return emulator.play(await reader.book({ pages, values, extras }), options);
}

/** Waits until the movie stands at a spread and shows its very pages; 0 for none. */
async function shows(book, left, right) {
  const pages = [left, right].filter(Boolean);
  await book.waitForPages(...pages.sort((a, b) => a - b));
  for (const [side, page] of [['left', left], ['right', right]]) {
    if (page) await book.waitForColour(await book.middle(side), colourOf(page));
  }
}

test('keys, clicks and drags turn to the pages that the movie says it shows', async () => {
  const book = await open({ count: 21 });
  const { keyboard, mouse } = book.page;
  await shows(book, 0, 1);
  await mouse.click(980, 200);
  await shows(book, 2, 3);
  const keys = [['ArrowRight', 4, 5], ['ArrowLeft', 2, 3], ['PageDown', 4, 5], ['PageUp', 2, 3], ['Space', 4, 5],
    ['End', 20, 21], ['Home', 0, 1]];
  for (const [key, ...pages] of keys) {
    await keyboard.press(key);
    await shows(book, ...pages);
  }
  for (let press = 0; press < 7; press += 1) await keyboard.press('ArrowRight');
  await shows(book, 14, 15);
  const { right: { x, y, width, height }, imagesKept } = await book.state();
  assert.ok(imagesKept <= 12, `${imagesKept} images`);
  await mouse.move(x + width - 30, y + height / 2);
  await mouse.down();
  await mouse.move(x - width * 0.4, y + height / 2, { steps: 6 });
  await book.waitForColour([x + width * 0.8, y + height * 0.4], colourOf(17));
  await mouse.move(x - width * 0.9, y + height / 2, { steps: 3 });
  await mouse.up();
  await shows(book, 16, 17);
  assert.deepEqual(book.complaints, []);
  assert.ok(book.asked.every(({ status }) => status === 200), JSON.stringify(book.asked));
});

test('a right-to-left book begins at the right, and a narrow window shows single pages', async () => {
  const book = await open({ values: { RightToLeft: 'YES' } });
  await book.page.keyboard.press('ArrowLeft');
  await shows(book, 3, 2);
  const narrow = await open({ viewport: { width: 390, height: 700 } });
  await narrow.page.keyboard.press('ArrowRight');
  await shows(narrow, 0, 2);
  const { right: { x, width } } = await narrow.state();
  assert.ok(x >= 0 && x + width <= 390);
});

/** Where the bar's buttons lie in a window of 1000 by 640 pixels. */
const BUTTONS = { y: 600, next: 486, play: 537, sound: 577, thumbnails: 617 };

test('the bar turns, plays, mutes and shows thumbnails, in its colours', async () => {
  const book = await open({ values: { FlashWindowsColor: '0xffeecc', ThumbnailsBgColor: '0x224466',
    SlideInterval: '60' } });
  const click = (name) => book.page.mouse.click(BUTTONS[name], BUTTONS.y);
  await book.waitForColour([455, BUTTONS.y - 10], [0xff, 0xee, 0xcc], 16);
  await click('next');
  await book.waitForPages(2, 3);
  await click('play');
  await book.waitFor('({ playing }) => playing');
  await click('sound');
  await book.waitFor('({ sound }) => !sound');
  await click('thumbnails');
  await book.waitForColour([500, 440], [0x22, 0x44, 0x66], 16);
  // Eight pages of 63 by 84 pixels, 14 apart, around the middle.
  const sixth = 500 + 1.5 * 77;
  await book.waitForColour([sixth, 490], colourOf(6));
  await book.page.mouse.click(sixth, 490);
  await book.waitForPages(6, 7);
});

test('a caption that is an address opens it', async () => {
  const address = `${emulator.server.address}flash.html`;
  const book = await open({ values: { TutorialTitle: address } });
  const [opened] = await Promise.all([book.page.context().waitForEvent('page'), book.page.mouse.click(45, 601)]);
  await opened.waitForURL(({ href }) => href.replace(/\?$/, '') === address, { waitUntil: 'commit' });
  await opened.close();
  assert.deepEqual((await book.state()).pages, [1], 'the click turned no page');
});

test('the movie follows no other address and reads nothing beyond the book', async () => {
  for (const address of ['javascript:window.broken=1', 'file:///etc/passwd', 'data:text/html,<b>x</b>']) {
    const opened = [];
    const note = (page) => opened.push(page.url());
    emulator.page.context().on('page', note);
    const book = await open({ values: { TutorialTitle: address, OuterBackgroundFile: '../../outer.png',
      InnerBackgroundFile: 'page/../../../inner.png', SoundFile: 'https://example.invalid/a.mp3' } });
    await book.page.mouse.click(45, 601);
    await book.page.waitForTimeout(300);
    emulator.page.context().off('page', note);
    assert.deepEqual(opened, []);
    assert.equal(await book.page.evaluate(() => window.broken), undefined);
    assert.deepEqual(book.asked.filter(({ path: name }) => /outer|inner|a\.mp3/.test(name)), []);
  }
});

test('a book that plays by itself turns with its sounds, and stops at its end', async () => {
  const book = await open({ count: 5,
    values: { AutoPlay: 'Yes', SlideInterval: '0.2', LoopPlay: 'No', SoundFile: 'extfiles/backgroundSoundURL.mp3' },
    extras: { 'extfiles/backgroundSoundURL.mp3': await readFile(TURN_SOUND) } });
  await book.waitForPages(4, 5);
  await book.waitFor('(state) => !state.playing');
  const asked = book.asked.map((request) => path.basename(request.path));
  assert.ok(asked.includes('backgroundSoundURL.mp3') && asked.includes('moveSound.mp3'), String(asked));
});

test('a damaged configuration is reported', async () => {
  const folder = await reader.book({ pages: plainPages(2) });
  await writeFile(path.join(folder, 'files/UserConfig.bin'), 'no configuration');
  const book = await emulator.play(folder);
  const { state, message } = await book.state();
  assert.equal(state, 'error');
  assert.match(message, /damaged/);
  await book.waitForColour([310, 300], [255, 255, 255]);
});

test('a published document opens in the movie', ready, async () => {
  const folder = path.join(reader.folder, 'published');
  await folvero('publish', '--quiet', '--type=html', sample('sample'), folder);
  const book = await emulator.play(folder);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.ok(book.asked.some((request) => request.path.endsWith('page/3.jpg') && request.status === 200));
  assert.deepEqual(book.complaints, []);
});

for (const [template, ...pages] of [['deck', 0, 2], ['gallery', 2, 3]]) {
  test(`the movie of ${template}, which does not curl, turns to the right pages`, async () => {
    const book = await open({ movie: path.join(TEMPLATE, '..', template, 'book.swf') });
    await book.page.keyboard.press('ArrowRight');
    await shows(book, ...pages);
  });
}
