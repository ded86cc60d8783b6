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
const [RED, GREEN, NONE] = [[250, 10, 10], [10, 250, 10], [0, 0, 255]];
const points = [[3, 3], [1276, 3], [3, 796], [1276, 796], [3, 200], [300, 5], [620, 375], [28, 38], [32, 42]];
const stretched = [RED, GREEN, GREEN, GREEN, RED, RED, GREEN, RED, RED];
/** Positions and sizes, and the colours at the points. */
const seen = [
  ['Scale to fit', 0, 0, stretched], ['something else', 0, 0, stretched], ['Fill', 0, 0, [RED, GREEN, GREEN, GREEN, GREEN, RED, GREEN, RED, RED]],
  ['Fit', 0, 0, [NONE, NONE, NONE, NONE, NONE, RED, GREEN, NONE, NONE]], ['Tile', 0, 0, [RED, RED, RED, RED, GREEN, RED, RED, GREEN, GREEN]],
  ['Center', 0, 0, [NONE, NONE, NONE, NONE, NONE, NONE, RED, NONE, NONE]], ['Top left', 0, 0, [RED, NONE, NONE, NONE, NONE, NONE, NONE, GREEN, GREEN]],
  ['Top right', 0, 0, [NONE, GREEN, NONE, NONE, NONE, NONE, NONE, NONE, NONE]], ['Bottom left', 0, 0, [NONE, NONE, GREEN, NONE, NONE, NONE, NONE, NONE, NONE]],
  ['Bottom right', 0, 0, [NONE, NONE, NONE, GREEN, NONE, NONE, NONE, NONE, NONE]],
  ['Top left', 30, 40, [RED, NONE, NONE, NONE, NONE, NONE, NONE, GREEN, NONE]], ['Top left', 30, 0, [RED, NONE, NONE, NONE, NONE, NONE, NONE, GREEN, GREEN]],
];
test('background pictures lie as their positions say, in the size that is asked for', async () => {
  for (const [position, width, height, colours] of seen) {
    const settings = { GradiantColorA: '0x0000ff', GradiantColorB: '0x0000ff', BackgroundFile: 'extfiles/a.png',
      BackgroundPosition: position, ImgWidth: String(width), ImgHeight: String(height) };
    const book = await open(both(settings), { 'extfiles/a.png': picture });
    await onEachGround(book, async (ground) => {
      for (const [index, [x, y]] of points.entries()) {
        assert.deepEqual(await book.colourAt(x, y), colours[index], `${ground}, ${position}, ${width} by ${height}, at ${x},${y}`);
      }
    });
    await reader.closeBooks();
  }
});

test('sounds begin with the first gesture and not before, and go when the reader switches them off', async () => {
  const files = { 'extfiles/music.mp3': silence(0.05), 'extfiles/moveSound.mp3': silence(0.05) };
  const folder = await reader.book({ pages: plainPages(6), values: { SoundFile: 'extfiles/music.mp3', SoundLoops: '-1' }, extras: files });
  const book = await reader.openOverHttp(folder, { before: (page) => page.addInitScript(() => {
    window.sounds = [];
    const { play } = HTMLMediaElement.prototype;
    HTMLMediaElement.prototype.play = function noted() {
      window.sounds.push(this);
      return play.call(this);
    };
  }) });
  const played = () => book.page.evaluate(() => window.sounds.map(({ src }) => src.split('/').at(-1)));
  const music = (test) => book.page.waitForFunction(test);
  assert.deepEqual(await played(), []);
  assert.ok(!book.server.requests.some((request) => request.path.endsWith('.mp3')));
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.deepEqual((await played()).sort(), ['moveSound.mp3', 'music.mp3']);
  await music(() => window.sounds.some((one) => one.loop && !one.paused && one.played.length > 0));
  await book.page.keyboard.press('s');
  await music(() => window.sounds.every((one) => one.paused || one.ended));
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(4, 5);
  assert.equal((await played()).length, 2, 'nor does the turning page sound');
});
