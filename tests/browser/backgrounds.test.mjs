import assert from 'node:assert/strict';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { Reader } from './support/reader.mjs';
import { silence } from './support/wav.mjs';

const reader = Reader.forTests();

/** Opens a book with a ground, outer or inner, that takes up the whole window and is all that is seen. */
async function openGround(which, settings) {
  const values = { Top: '0', Left: '0', Right: '0', Bottom: '0' };
  for (const [name, value] of Object.entries(settings)) values[which + name] = value;
  const extras = { 'extfiles/a.png': picture };
  const book = await reader.openFromDisk(await reader.book({ pages: plainPages(2), values, extras }));
  const others = { Outer: '.inner', Inner: '.outer, .inner::after' }[which];
  await book.page.addStyleTag({ content: `${others}, .bar, .arrow, .stage, .leaf { display: none !important }
    .outer, .inner { border-radius: 0 !important; image-rendering: pixelated }` });
  await book.page.evaluate(async (selector) => {
    const address = /url\("([^"]+)"\)/.exec(getComputedStyle(document.querySelector(selector)).backgroundImage)?.[1];
    if (address) await Object.assign(new Image(), { src: address }).decode();
  }, `.${which.toLowerCase()}`);
  await book.drawn();
  return book;
}

const directions = [
  ['Outer', '0', 5, 400, 1275, 400], ['Inner', '90', 640, 5, 640, 795],
  ['Outer', '180', 1275, 400, 5, 400], ['Inner', '-90', 640, 795, 640, 5],
];
test('gradients run from colour A to B in the direction of their angle', async () => {
  const colours = { GradiantColorA: '0x200000', GradiantColorB: '0xf0ffff' };
  for (const [which, angle, ax, ay, bx, by] of directions) {
    const book = await openGround(which, { ...colours, GradiantAngle: angle });
    const [from, to] = [await book.colourAt(ax, ay), await book.colourAt(bx, by)];
    assert.ok(from[1] < 12 && to[1] > 240, `${which}, ${angle}: ${from} to ${to}`);
    await reader.closeBooks();
  }
});

/** A picture with a red field at its upper left, half as wide and a third as high; the rest is green. */
const picture = png(60, 60, (x, y) => (x < 30 && y < 18 ? [250, 10, 10] : [10, 250, 10]));
const [RED, GREEN, NONE] = [[250, 10, 10], [10, 250, 10], [0, 0, 255]];
const points = [[3, 3], [1276, 3], [3, 796], [1276, 796], [3, 200], [300, 5], [620, 375], [28, 38], [32, 42]];
const stretched = [RED, GREEN, GREEN, GREEN, RED, RED, GREEN, RED, RED];
/** Blue but at some of the points. */
const over = (others) => points.map((_, index) => others[index] ?? NONE);
/** Positions and sizes, and the colours at the points. */
const seen = [
  ['Scale to fit', 0, 0, stretched], ['something else', 0, 0, stretched],
  ['Fill', 0, 0, [RED, GREEN, GREEN, GREEN, GREEN, RED, GREEN, RED, RED]], ['Fit', 0, 0, over({ 5: RED, 6: GREEN })],
  ['Tile', 0, 0, [RED, RED, RED, RED, GREEN, RED, RED, GREEN, GREEN]], ['Center', 0, 0, over({ 6: RED })],
  ['Top left', 0, 0, over({ 0: RED, 7: GREEN, 8: GREEN })], ['Top right', 0, 0, over({ 1: GREEN })],
  ['Bottom left', 0, 0, over({ 2: GREEN })], ['Bottom right', 0, 0, over({ 3: GREEN })],
  ['Top left', 30, 40, over({ 0: RED, 7: GREEN })], ['Top left', 30, 0, over({ 0: RED, 7: GREEN, 8: GREEN })],
];
test('background pictures lie as their positions say, in the size that is asked for', async () => {
  for (const [index, [BackgroundPosition, width, height, colours]] of seen.entries()) {
    const book = await openGround(index % 2 ? 'Inner' : 'Outer', { BackgroundFile: 'extfiles/a.png', BackgroundPosition,
      GradiantColorA: '0x0000ff', GradiantColorB: '0x0000ff', ImgWidth: String(width), ImgHeight: String(height) });
    const found = [];
    for (const [x, y] of points) found.push(await book.colourAt(x, y));
    assert.deepEqual(found, colours, `${BackgroundPosition}, ${width} by ${height}`);
    await reader.closeBooks();
  }
});

test('sounds begin with the first gesture, music plays as often as it should, and S silences both', async () => {
  const extras = { 'extfiles/music.mp3': silence(0.05), 'extfiles/moveSound.mp3': silence(0.05) };
  for (const [SoundLoops, times] of [['-1', 1], ['2', 2]]) {
    const values = { SoundFile: 'extfiles/music.mp3', SoundLoops };
    const folder = await reader.book({ pages: plainPages(6), values, extras });
    const book = await reader.openOverHttp(folder, { before: (page) => page.addInitScript(() => {
      window.sounds = [];
      const { play } = HTMLMediaElement.prototype;
      HTMLMediaElement.prototype.play = function noted() {
        window.sounds.push(this);
        return play.call(this);
      };
    }) });
    const played = () => book.page.evaluate(() => window.sounds.map(({ src }) => src.split('/').at(-1)).sort());
    const until = (condition) => book.page.waitForFunction(condition, times);
    assert.deepEqual(await played(), []);
    assert.ok(!book.server.requests.some((request) => request.path.endsWith('.mp3')));
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(2, 3);
    await until((wanted) => window.sounds.length > wanted && window.sounds.filter(({ src }) => /music/.test(src))
      .every((one) => (wanted > 1 ? one.ended : one.loop && !one.paused)));
    assert.deepEqual(await played(), ['moveSound.mp3', ...Array(times).fill('music.mp3')]);
    await book.page.keyboard.press('s');
    await until(() => window.sounds.every((one) => one.paused || one.ended));
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(4, 5);
    assert.equal((await played()).length, times + 1, 'nor does the turning page sound');
  }
});
