import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { mkdtemp, readFile, rm, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { promisify } from 'node:util';
import { colourOf, plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { Reader } from './support/reader.mjs';
import { Emulator, TURN_SOUND } from './support/ruffle.mjs';

const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const published = { skip: FOLVERO_BIN && FOLVERO_SAMPLES_DIR ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set' };

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

const middle = ({ x, y, width, height }) => [x + width / 2, y + height / 2];

/** A page whose picture no other page resembles: a chequered number of stripes, its own way round. */
function stripedPages(count) {
  return Array.from({ length: count }, (_, index) => {
    const [r, g, b] = colourOf(index + 1);
    const bytes = png(300, 400, (x, y) => {
      const along = index % 2 === 0 ? x / 300 : y / 400;
      return Math.floor(along * (index + 3)) % 2 === 0 ? [r, g, b] : [255 - r, 255 - g, 240];
    });
    return { width: 300, height: 400, bytes };
  });
}

test('the movie shows each page that it says it shows', async () => {
  const pages = stripedPages(7);
  const book = await open({ pages });
  assert.deepEqual((await book.state()).pages, [1]);
  for (const [left, right] of [[0, 1], [2, 3], [4, 5], [6, 7]]) {
    await book.goTo(right);
    for (const [side, number] of [['left', left], ['right', right]]) {
      if (number === 0) continue;
      const differences = await book.differencesFrom(side, pages.map(({ bytes }) => bytes));
      const own = differences[number - 1];
      const others = differences.filter((_, index) => index !== number - 1);
      assert.ok(own < 12, `page ${number} differs by ${own} from its picture`);
      assert.ok(Math.min(...others) > 3 * own + 15, `page ${number}: ${differences}`);
    }
  }
  assert.deepEqual(book.complaints, []);
  assert.ok(book.asked.every(({ status }) => status === 200), JSON.stringify(book.asked));
});

test('keys and clicks turn pages, and quick presses do not jam', async () => {
  const book = await open({ count: 21 });
  const { page } = book;
  await page.mouse.click(980, 200);
  await book.waitForPages(2, 3);
  const keys = [['ArrowRight', [4, 5]], ['ArrowLeft', [2, 3]], ['PageDown', [4, 5]], ['PageUp', [2, 3]],
    ['Space', [4, 5]], ['End', [20, 21]], ['Home', [1]]];
  for (const [key, pages] of keys) {
    await page.keyboard.press(key);
    await book.waitForPages(...pages);
  }
  for (let press = 0; press < 7; press += 1) await page.keyboard.press('ArrowRight');
  await book.waitForPages(14, 15);
  await page.mouse.click(20, 200);
  await book.waitForPages(12, 13);
  const { left, right, imagesKept } = await book.state();
  await book.waitForColour(...middle(left), colourOf(12));
  await book.waitForColour(...middle(right), colourOf(13));
  assert.ok(imagesKept <= 12, `${imagesKept} images`);
  assert.deepEqual(book.complaints, []);
});

test('a page follows the pointer, shows the one beneath, and goes over or falls back', async () => {
  const book = await open();
  await book.goTo(2);
  const { right: { x, y, width, height } } = await book.state();
  const { mouse } = book.page;
  await mouse.move(x + width - 30, y + height / 2);
  await mouse.down();
  await mouse.move(x - width * 0.4, y + height / 2, { steps: 6 });
  await book.waitForColour(x + width * 0.8, y + height * 0.4, colourOf(5));
  await mouse.move(x + width - 60, y + height / 2, { steps: 4 });
  await book.page.waitForTimeout(300);
  await mouse.up();
  await book.waitForPages(2, 3);
  await mouse.move(x + width - 30, y + height / 2);
  await mouse.down();
  await mouse.move(x - width * 0.9, y + height / 2, { steps: 6 });
  await mouse.up();
  await book.waitForPages(4, 5);
});

test('a corner lifts under the pointer and falls when it goes', async () => {
  const book = await open();
  const { right: { x, y, width, height } } = await book.state();
  await book.page.mouse.move(x + width - 10, y + height - 10);
  await book.waitFor('(state) => state.lifted && !state.turning');
  await book.page.mouse.move(x + width / 2, y + height / 2);
  await book.waitFor('(state) => !state.lifted');
});

test('a right-to-left book begins at the right', async () => {
  const book = await open({ values: { RightToLeft: 'YES' } });
  await book.page.keyboard.press('ArrowLeft');
  await book.waitForPages(2, 3);
  const { left, right } = await book.state();
  await book.waitForColour(...middle(right), colourOf(2));
  await book.waitForColour(...middle(left), colourOf(3));
});

test('a narrow window shows single pages', async () => {
  const book = await open({ viewport: { width: 390, height: 700 } });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2);
  const { right, left } = await book.state();
  assert.equal(left, null);
  assert.ok(right.x >= 0 && right.x + right.width <= 390);
  await book.waitForColour(...middle(right), colourOf(2));
  await book.page.keyboard.press('ArrowLeft');
  await book.waitForPages(1);
});

test('pages of another shape are shown whole, on paper of the chosen colour', async () => {
  const pages = plainPages(3);
  [, pages[1]] = plainPages(2, 160, 80);
  const book = await open({ pages, values: { PageBackgroundColor: '0x336699' } });
  await book.goTo(2);
  const { left } = await book.state();
  await book.waitForColour(...middle(left), colourOf(2));
  await book.waitForColour(left.x + 30, left.y + 30, [0x33, 0x66, 0x99]);
});

test('a page without a picture leaves a note, and the book goes on', async () => {
  const folder = await reader.book({ pages: plainPages(4) });
  await rm(path.join(folder, 'files/page/3.jpg'));
  const book = await emulator.play(folder);
  await book.goTo(2);
  const { right } = await book.state();
  await book.waitForColour(right.x + right.width * 0.7, right.y + 30, [255, 255, 255]);
  await book.goTo(4);
});

const red = [250, 10, 10];
const blue = [0, 0, 255];
const picture = png(200, 200, () => red);
// The outer ground is seen in the margins: 10 pixels at the top and 100 at the left.
const positions = [
  ['Scale to fit', [[30, 5, red], [990, 5, red]]], ['Fill', [[30, 5, red], [990, 5, red]]],
  ['Fit', [[500, 5, red], [50, 300, blue]]], ['Tile', [[30, 5, red], [990, 5, red]]],
  ['Top left', [[3, 3, red], [990, 5, blue]]], ['Top right', [[997, 3, red], [3, 3, blue]]], ['Center', [[500, 3, blue], [50, 320, blue]]],
  ['Bottom left', [[3, 637, red], [3, 3, blue]]],
];
for (const [position, places] of positions) {
  test(`a background picture lies as "${position}" says`, async () => {
    const book = await open({
      count: 1,
      extras: { 'extfiles/mainbgImgUrl.png': picture },
      values: { Top: '20', Left: '100', Right: '0', Bottom: '0', OuterBackgroundFile: 'extfiles/mainbgImgUrl.png',
        OuterBackgroundPosition: position, OuterGradiantColorA: '0x0000ff', OuterGradiantColorB: '0x0000ff' },
    });
    for (const [x, y, colour] of places) await book.waitForColour(x, y, colour);
  });
}

test('margins frame the table, and gradients run in the direction of their angle', async () => {
  const values = { Top: '60', Left: '60', Right: '60', Bottom: '60', OuterGradiantColorA: '0x000000',
    OuterGradiantColorB: '0xffffff', InnerGradiantColorA: '0x408080', InnerGradiantColorB: '0x408080' };
  const down = await open({ count: 1, values: { ...values, OuterGradiantAngle: '90' } });
  await down.waitForColour(5, 3, [0, 0, 0], 10);
  await down.waitForColour(5, 636, [255, 255, 255], 10);
  const across = await open({ count: 1, values: { ...values, OuterGradiantAngle: '0' } });
  await across.waitForColour(3, 5, [0, 0, 0], 10);
  await across.waitForColour(996, 5, [255, 255, 255], 10);
  const [, green] = await across.colourAt(100, 320);
  assert.ok(green > 90, 'the inner ground begins at the margin');
});

/** Where the bar's buttons lie in a window of 1000 by 640 pixels. */
const BUTTONS = { y: 600, next: 486, play: 537, sound: 577, thumbnails: 617 };

test('the bar turns, plays and mutes, in its colour', async () => {
  const book = await open({ values: { FlashWindowsColor: '0xffeecc', SlideInterval: '60' } });
  const { mouse } = book.page;
  await book.waitForColour(455, BUTTONS.y - 10, [0xff, 0xee, 0xcc], 16);
  await mouse.click(BUTTONS.next, BUTTONS.y);
  await book.waitForPages(2, 3);
  await mouse.click(BUTTONS.play, BUTTONS.y);
  await book.waitFor('({ playing }) => playing');
  await mouse.click(BUTTONS.sound, BUTTONS.y);
  await book.waitFor('({ sound }) => !sound');
});

test('the strip of thumbnails opens in its colour and leads to a page', async () => {
  const book = await open({ values: { ThumbnailsBgColor: '0x224466' } });
  await book.page.mouse.click(BUTTONS.thumbnails, BUTTONS.y);
  await book.waitForColour(500, 440, [0x22, 0x44, 0x66], 16);
  // Eight pages of 63 by 84 pixels, 14 apart, around the middle.
  const sixth = 500 + 1.5 * 77;
  await book.waitForColour(sixth, 490, colourOf(6));
  await book.page.mouse.click(sixth, 490);
  await book.waitForPages(6, 7);
});

test('the bar can be left out', async () => {
  const book = await open({ values: { FlashWindowsColor: '0xff0000', HidePageFrameBar: 'Yes',
    InnerGradiantColorA: '0x00ff00', InnerGradiantColorB: '0x00ff00' } });
  const [red, green] = await book.colourAt(500, 625);
  assert.ok(green > red, 'the table is seen where the bar was');
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

/** Colours in the middle of the window from a book's beginning until its cover is there. */
async function coloursOfOpening(InitialShow) {
  const folder = await reader.book({ pages: [{ bytes: png(120, 160, () => red) }],
    values: { InitialShow, InnerGradiantColorA: '0x000000', InnerGradiantColorB: '0x000000' } });
  await emulator.page.evaluate(() => {
    window.movie?.remove();
    window.movie = null;
    window.colours = [];
    const pixel = Object.assign(document.createElement('canvas'), { width: 1, height: 1 }).getContext('2d');
    const look = () => {
      const canvas = window.movie?.shadowRoot?.querySelector('canvas');
      if (canvas?.width > 0) {
        pixel.drawImage(canvas, canvas.width / 2, canvas.height * 0.4, 1, 1, 0, 0, 1, 1);
        window.colours.push([...pixel.getImageData(0, 0, 1, 1).data].slice(0, 3));
      }
      if (!(window.colours.at(-1)?.[0] > 245 && window.colours.at(-1)[1] < 20)) requestAnimationFrame(look);
    };
    look();
  });
  const book = await emulator.play(folder);
  const { right } = await book.state();
  await book.waitForColour(...middle(right), red);
  return book.page.evaluate(() => window.colours);
}

for (const [way, comesSlowly] of [['Fade in', true], ['Rise', true], ['Drop', true], ['None', false]]) {
  test(`InitialShow "${way}" ${comesSlowly ? 'lets the cover appear by and by' : 'shows the cover at once'}`, async () => {
    const between = (await coloursOfOpening(way)).filter(([r, g]) => r > 30 && r < 230 && g < 30);
    assert.equal(between.length > 0, comesSlowly, `${between.length} colours on the way`);
  });
}

test('a book that plays by itself turns, and stops at its end', async () => {
  const book = await open({ count: 5, values: { AutoPlay: 'Yes', SlideInterval: '0.2', LoopPlay: 'No' } });
  await book.waitForPages(4, 5);
  await book.waitFor('(state) => !state.playing');
  assert.deepEqual((await book.state()).pages, [4, 5]);
});

test('the sounds of turning and of the background are fetched', async () => {
  const book = await open({ values: { SoundFile: 'extfiles/backgroundSoundURL.mp3' },
    extras: { 'extfiles/backgroundSoundURL.mp3': await readFile(TURN_SOUND) } });
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  const asked = book.asked.map((request) => path.basename(request.path));
  assert.ok(asked.includes('backgroundSoundURL.mp3') && asked.includes('moveSound.mp3'), String(asked));
});

const faults = [
  ['damaged', /damaged/, (file) => writeFile(file, Buffer.from('no configuration'))],
  ['missing', /incomplete/, (file) => rm(file)],
];
for (const [name, words, spoil] of faults) {
  test(`a ${name} configuration is told in words`, async () => {
    const folder = await reader.book({ pages: plainPages(2) });
    await spoil(path.join(folder, 'files/UserConfig.bin'));
    const book = await emulator.play(folder);
    const { state, message } = await book.state();
    assert.equal(state, 'error');
    assert.match(message, words);
    await book.waitForColour(310, 300, [255, 255, 255]);
  });
}

test('a published document opens in the movie', published, async () => {
  const folder = path.join(reader.folder, 'published');
  await run(FOLVERO_BIN, ['publish', '--quiet', path.join(FOLVERO_SAMPLES_DIR, 'sample.pdf'), folder]);
  const book = await emulator.play(folder);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  const pages = await Promise.all([3, 1].map((number) => readFile(path.join(folder, `files/page/${number}.jpg`))));
  const [own, other] = await book.differencesFrom('right', pages);
  assert.ok(own < 12 && other > own + 20, `${own}, ${other}`);
  assert.deepEqual(book.complaints, []);
});

/** Template options: the movie is compiled with them and must still turn. */
const options = [
  ['slide', ['turn=slide', 'pages=single', 'binding=no'], [2]],
  ['flip', ['turn=flip', 'pages=spread', 'binding=yes'], [2, 3]],
];
for (const [name, defines, pages] of options) {
  test(`a movie compiled to ${name} turns to the right pages`, async () => {
    const folder = await mkdtemp(path.join(reader.folder, 'movie-'));
    const movie = path.join(folder, 'book.swf');
    const source = new URL('../../player/swf', import.meta.url).pathname;
    await run('haxe', ['--class-path', source, '--main', 'Main', '--swf', movie, '--swf-version', '11.5',
      '--swf-header', '960:600:60:E4EAF0', ...defines.flatMap((define) => ['-D', define])]);
    const book = await open({ movie });
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(...pages);
    const state = await book.state();
    const side = state.left ? 'left' : 'right';
    await book.waitForColour(...middle(state[side]), colourOf(pages[0]));
  });
}
