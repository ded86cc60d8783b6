import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { Reader } from './support/reader.mjs';
import { silence } from './support/wav.mjs';

const reader = Reader.forTests();

async function open(values, extras) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(4), values, extras }));
}

/** The same settings for both grounds, which take up the whole window. */
function both(settings) {
  const values = { Top: '0', Left: '0', Right: '0', Bottom: '0' };
  for (const [name, value] of Object.entries(settings)) Object.assign(values, { [`Outer${name}`]: value, [`Inner${name}`]: value });
  return values;
}

/** Looks at one ground after the other, with nothing else to be seen and its picture decoded. */
async function onEachGround(book, look) {
  for (const [ground, rest] of [['.outer', '.inner'], ['.inner', '.outer, .inner::after']]) {
    const style = await book.page.addStyleTag({ content: `${rest}, .bar, .arrow, .stage, .leaf { display: none !important }
      .outer, .inner { border-radius: 0 !important; image-rendering: pixelated }` });
    await book.page.evaluate(async (selector) => {
      const address = /url\("([^"]+)"\)/.exec(getComputedStyle(document.querySelector(selector)).backgroundImage)?.[1];
      if (address) await Object.assign(new Image(), { src: address }).decode();
      await new Promise((resolve) => { requestAnimationFrame(() => requestAnimationFrame(resolve)); });
    }, ground);
    await look(ground);
    await style.evaluate((one) => one.remove());
  }
}

const directions = [['0', 5, 400, 1275, 400], ['90', 640, 5, 640, 795], ['180', 1275, 400, 5, 400], ['-90', 640, 795, 640, 5]];
test('gradients run from colour A to B in the direction of their angle', async () => {
  for (const [angle, ax, ay, bx, by] of directions) {
    const book = await open(both({ GradiantColorA: '0x200000', GradiantColorB: '0xf0ffff', GradiantAngle: angle }));
    await onEachGround(book, async (ground) => {
      const [from, to] = [await book.colourAt(ax, ay), await book.colourAt(bx, by)];
      assert.ok(from[1] < 12 && to[1] > 240, `${ground}, ${angle}: ${from} to ${to}`);
    });
    await reader.closeBooks();
  }
});

/** A picture with a red field at its upper left, half as wide and a third as high; the rest is green. */
const picture = png(60, 60, (x, y) => (x < 30 && y < 18 ? [250, 10, 10] : [10, 250, 10]));
const RED = [250, 10, 10];
const GREEN = [10, 250, 10];
const NONE = [0, 0, 255];
const points = [[3, 3], [1276, 3], [3, 796], [1276, 796], [3, 200], [300, 5], [620, 375]];
const seen = {
  'Scale to fit': [RED, GREEN, GREEN, GREEN, RED, RED, GREEN], Fill: [RED, GREEN, GREEN, GREEN, GREEN, RED, GREEN],
  Fit: [NONE, NONE, NONE, NONE, NONE, RED, GREEN], Tile: [RED, RED, RED, RED, GREEN, RED, RED],
  Center: [NONE, NONE, NONE, NONE, NONE, NONE, RED], 'Top left': [RED, NONE, NONE, NONE, NONE, NONE, NONE],
  'Top right': [NONE, GREEN, NONE, NONE, NONE, NONE, NONE], 'Bottom left': [NONE, NONE, GREEN, NONE, NONE, NONE, NONE],
  'Bottom right': [NONE, NONE, NONE, GREEN, NONE, NONE, NONE],
  'something else': [RED, GREEN, GREEN, GREEN, RED, RED, GREEN],
};
/** Settings of a picture over blue. */
const pictureOver = (settings) => both({ GradiantColorA: '0x0000ff', GradiantColorB: '0x0000ff', BackgroundFile: 'extfiles/a.png', ...settings });

test('background pictures lie as their positions say', async () => {
  for (const [position, colours] of Object.entries(seen)) {
    const book = await open(pictureOver({ BackgroundPosition: position }), { 'extfiles/a.png': picture });
    await onEachGround(book, async (ground) => {
      for (const [index, [x, y]] of points.entries()) {
        assert.deepEqual(await book.colourAt(x, y), colours[index], `${ground}, ${position} at ${x},${y}`);
      }
    });
    await reader.closeBooks();
  }
});

const sizes = [['0', '0', 60, 60], ['30', '40', 30, 40], ['30', '0', 60, 60]];
test('ImgWidth and ImgHeight are the size in which a background picture is shown', async () => {
  for (const [width, height, wide, high] of sizes) {
    const settings = { BackgroundPosition: 'Top left', ImgWidth: width, ImgHeight: height };
    const book = await open(pictureOver(settings), { 'extfiles/a.png': picture });
    await onEachGround(book, async (ground) => {
      assert.deepEqual(await book.colourAt(wide - 2, high - 2), GREEN, `${ground}, ${width} by ${height}: within`);
      assert.deepEqual(await book.colourAt(wide + 2, 2), NONE, `${ground}, ${width} by ${height}: beside`);
      assert.deepEqual(await book.colourAt(2, high + 2), NONE, `${ground}, ${width} by ${height}: below`);
    });
    await reader.closeBooks();
  }
});

/** Notes each beginning and end of a sound file. */
const noteSounds = (page) => page.addInitScript(() => {
  window.sounds = [];
  window.players = [];
  const { play } = HTMLMediaElement.prototype;
  HTMLMediaElement.prototype.play = function noted() {
    window.sounds.push(this.src.split('/').at(-1));
    window.players.push(this);
    return play.call(this);
  };
});
const music = 'backgroundSoundURL.mp3';
const sound = { SoundFile: `extfiles/${music}` };
const soundFiles = { [`extfiles/${music}`]: silence(0.05), 'extfiles/moveSound.mp3': silence(0.05) };
const plays = (book, file) => book.page.evaluate((name) => window.sounds.filter((one) => one === name).length, file);

async function openWithSound(loops, options = {}) {
  const folder = await reader.book({ pages: plainPages(6), values: { ...sound, SoundLoops: loops }, extras: soundFiles });
  return reader.openOverHttp(folder, { ...options, before: noteSounds });
}

test('sounds begin with the first gesture and not before', async () => {
  const book = await openWithSound('-1');
  assert.deepEqual(await book.page.evaluate(() => window.sounds), []);
  assert.ok(!book.server.requests.some((request) => request.path.endsWith('.mp3')));
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.ok(await plays(book, music) > 0 && await plays(book, 'moveSound.mp3') > 0);
});

for (const [loops, times] of [['0', 0], ['1', 1], ['3', 3]]) {
  test(`SoundLoops ${loops} plays the sound so many times`, async () => {
    const book = await openWithSound(loops);
    await book.page.keyboard.press('Shift');
    await book.page.waitForFunction(([name, wanted]) => window.sounds.filter((one) => one === name).length >= wanted, [music, times]);
    await book.page.waitForTimeout(400);
    assert.equal(await plays(book, music), times);
  });
}

test('SoundLoops below 0 plays the sound on and on, until the reader switches it off', async () => {
  const book = await openWithSound('-1');
  await book.page.keyboard.press('Shift');
  const isPlaying = () => book.page.evaluate((name) =>
    window.players.some((player) => player.src.endsWith(name) && !player.paused && !player.ended), music);
  await book.page.waitForFunction((name) => window.players.some((player) => player.src.endsWith(name)
    && player.played.length > 0 && player.played.end(0) > player.duration * 0.9), music);
  await book.page.waitForTimeout(400);
  assert.ok(await isPlaying(), 'long after its own length');
  await book.page.keyboard.press('s');
  assert.ok(!await isPlaying());
  const before = await book.page.evaluate(() => window.sounds.length);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.equal(await book.page.evaluate(() => window.sounds.length), before, 'nor does the turning page sound');
  await book.page.keyboard.press('s');
  assert.ok(await plays(book, music) > before - 1);
});
