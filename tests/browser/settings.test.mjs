import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { png } from './support/png.mjs';
import { Reader } from './support/reader.mjs';

let reader;
before(async () => { reader = await Reader.start(); });
afterEach(() => reader.closeBooks());
after(() => reader.stop());

async function open(values, extras) {
  return reader.openFromDisk(await reader.book({ pages: plainPages(4), values, extras }));
}

const background = (book, part) => book.page.locator(part).evaluate((element) => getComputedStyle(element).background);

test('margins frame the inner background with the outer one', async () => {
  const book = await open({ Top: '40', Bottom: '50', Left: '60', Right: '70',
    OuterGradiantColorA: '0x112233', OuterGradiantColorB: '0x112233' });
  const box = await book.page.locator('.inner').boundingBox();
  assert.deepEqual(box, { x: 60, y: 40, width: 1280 - 130, height: 800 - 90 });
  assert.deepEqual(await book.colourAt(20, 400), [0x11, 0x22, 0x33]);
});

test('a gradient runs in the direction of its angle', async () => {
  const colours = { Top: '100', Left: '100', OuterGradiantColorA: '0x000000', OuterGradiantColorB: '0xffffff' };
  const down = await open({ ...colours, OuterGradiantAngle: '90' });
  assert.ok((await down.colourAt(50, 5))[0] < 10 && (await down.colourAt(50, 790))[0] > 245);
  const across = await open({ ...colours, OuterGradiantAngle: '0' });
  assert.ok((await across.colourAt(5, 50))[0] < 10 && (await across.colourAt(1270, 50))[0] > 245);
});

const picture = png(8, 8, () => [250, 10, 10]);
const positions = [
  ['Scale to fit', [[30, 30], [1250, 770]], []], ['Fill', [[30, 30], [1250, 770]], []],
  ['Fit', [[640, 5]], [[5, 400]]], ['Tile', [[30, 30], [1250, 770]], []],
  ['Top left', [[3, 3]], [[1270, 790]]], ['Bottom right', [[1277, 797]], [[3, 3]]],
];
for (const [position, inside, outside] of positions) {
  test(`a background picture lies as "${position}" says`, async () => {
    const book = await open({ Top: '20', Bottom: '20', Left: '50', Right: '50',
      OuterBackgroundFile: 'extfiles/mainbgImgUrl.png', OuterBackgroundPosition: position,
      OuterGradiantColorA: '0x0000ff', OuterGradiantColorB: '0x0000ff' }, { 'extfiles/mainbgImgUrl.png': picture });
    await book.page.addStyleTag({ content: '.inner { display: none }' });
    await book.page.waitForTimeout(150);
    for (const [x, y] of inside) assert.deepEqual(await book.colourAt(x, y), [250, 10, 10], `${x},${y}`);
    for (const [x, y] of outside) assert.deepEqual(await book.colourAt(x, y), [0, 0, 255], `${x},${y}`);
  });
}

test('an inner background picture lies on the inner ground', async () => {
  const book = await open({ InnerBackgroundFile: 'extfiles/innerMainbgImgUrl.png' },
    { 'extfiles/innerMainbgImgUrl.png': picture });
  assert.match(await background(book, '.inner'), /innerMainbgImgUrl\.png/);
});

test('the bar takes the window colour, with signs that can be read', async () => {
  const look = (book) => book.page.locator('.bar').evaluate((bar) => [
    getComputedStyle(bar, '::before').backgroundColor, getComputedStyle(bar).color]);
  assert.deepEqual(await look(await open({ FlashWindowsColor: '0x102030' })), ['rgb(16, 32, 48)', 'rgb(255, 255, 255)']);
  assert.deepEqual(await look(await open({ FlashWindowsColor: '0xffeecc' })), ['rgb(255, 238, 204)', 'rgb(20, 24, 29)']);
});

test('the bar can be left out', async () => {
  assert.equal(await (await open({ HidePageFrameBar: 'YES' })).page.locator('.bar').isVisible(), false);
  assert.equal(await (await open({ HidePageFrameBar: 'NO' })).page.locator('.bar').isVisible(), true);
});

test('the caption is shown as text, and as a link when it is an address', async () => {
  const plain = await open({ TutorialTitle: 'Spring <2026> & more' });
  assert.equal(await plain.page.locator('.caption').innerText(), 'Spring <2026> & more');
  const link = await open({ TutorialTitle: 'https://example.org/' });
  assert.equal(await link.page.locator('.caption a').getAttribute('href'), 'https://example.org/');
});

test('the turning time is kept', async () => {
  const turnTime = async (seconds) => {
    const book = await open({ PageMoveTime: seconds });
    const started = Date.now();
    await book.page.keyboard.press('ArrowRight');
    await book.waitForPages(2, 3);
    return Date.now() - started;
  };
  assert.ok(await turnTime('0.2') < 1200);
  const slow = await turnTime('1.5');
  assert.ok(slow >= 1400 && slow < 3500, `${slow} ms`);
});

test('sounds begin with the first gesture and not before', async () => {
  const folder = await reader.book({ pages: plainPages(4), values: { SoundFile: 'extfiles/backgroundSoundURL.mp3' },
    extras: { 'extfiles/backgroundSoundURL.mp3': Buffer.alloc(8), 'extfiles/moveSound.mp3': Buffer.alloc(8) } });
  const book = await reader.openOverHttp(folder);
  const asked = () => book.server.requests.map(({ path }) => path).filter((path) => path.endsWith('.mp3')).sort();
  assert.deepEqual(asked(), []);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  await book.page.waitForTimeout(200);
  assert.deepEqual([...new Set(asked())], ['/files/extfiles/backgroundSoundURL.mp3', '/files/extfiles/moveSound.mp3']);
  assert.deepEqual(book.errors, []);
});
