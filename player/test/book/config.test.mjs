import assert from 'node:assert/strict';
import { test } from 'node:test';
import '../support/browser.mjs';

const { readConfiguration, readPages } = await import('../../src/book/config.js');
const { PageImages } = await import('../../src/book/images.js');

/** What texts of a configuration mean; the others are not there. */
const meaning = (texts) => readConfiguration((path) => texts[path] ?? '', []);

test('what a configuration leaves out is as readers expect it', () => {
  const { margins, moveTime, riseTime, slideInterval, rightToLeft, pageColour, outer, sound } = meaning({});
  assert.deepEqual(margins, { top: 10, right: 10, bottom: 10, left: 10 });
  assert.deepEqual([moveTime, riseTime, slideInterval, rightToLeft, pageColour], [1, 0.5, 1, false, '#ffffff']);
  assert.deepEqual([outer.angle, outer.file, outer.size], [90, '', { width: 0, height: 0 }]);
  assert.deepEqual(sound, { file: '', loops: -1 });
});

/** Texts of a configuration, what is asked for, and what it is. */
const meanings = [
  ['Properties Left', '31', 'margins left', 31], ['Properties Top', '-5', 'margins top', 0],
  ['Properties Bottom', '401', 'margins bottom', 400], ['Properties PageMoveTime', '0', 'moveTime', 0.1],
  ['Properties PageMoveTime', '11', 'moveTime', 10], ['Properties PageRiseOrFallTime', '0.2', 'riseTime', 0.2],
  ['Properties SlideInterval', '0', 'slideInterval', 0.2], ['Properties HidePageFrameBar', 'show', 'hideBar', true],
  ['Properties AutoPlay', 'Yes', 'autoPlay', true], ['Properties LoopPlay', 'yes', 'loopPlay', true],
  ['Properties RightToLeft', 'YES', 'rightToLeft', true],
  ['Properties FlashWindowsColor', '1', 'windowColour', '#000001'],
  ['BackgroundConfig BackgroundColor InnerGradiantColorB', '0x1', 'inner to', '#000001'],
  ['BackgroundConfig BackgroundColor OuterGradiantAngle', '-90', 'outer angle', -90],
  ['BackgroundConfig BackgroundImage InnerBackgroundFile', 'a.jpg', 'inner file', 'a.jpg'],
  ['BackgroundConfig BackgroundImage OuterBackgroundFile', '../a.jpg', 'outer file', ''],
  ['BackgroundConfig BackgroundImage InnerImgWidth', '30', 'inner size width', 30],
  ['BackgroundConfig BackgroundImage InnerImgHeight', '-1', 'inner size height', 0],
  ['BackgroundConfig BackgroundSound SoundFile', '/etc/x.mp3', 'sound file', ''],
  ['Properties LogoFile', '../logo.png', 'logo file', ''], ['Properties AccentColor', 'red', 'accent', ''],
  ['Properties AccentColor', '0xABCDEF', 'accent', '#abcdef'], ['Properties FirstView', 'Two pages', 'firstView', 'two'],
  ['Properties HiddenButtons', 'zoomIn print', 'hidden 1', 'print'], ['Properties DownloadFile', '/etc/x', 'download', ''],
  ['BackgroundConfig BackgroundSound SoundLoops', '2.9', 'sound loops', 2],
];
test('each text of a configuration means what it says, within its limits', () => {
  for (const [path, text, asked, wanted] of meanings) {
    const value = asked.split(' ').reduce((part, name) => part[name], meaning({ [path]: text }));
    assert.equal(value, wanted, `${path}: ${text}`);
  }
});

test('the list of pages is read whatever stands in it', () => {
  const entry = (path, width, height) =>
    `<ImgPath>${path}</ImgPath><Width>${width}</Width>\n<Height>${height}</Height>`;
  const entries = readPages(`<Ppts><Ppt><Normal>${entry(' page/a &amp; &quot;b&quot;.jpg\n', 300, 100)}</Normal>
    <Thumb>${entry('thumb/1.jpg', 90, 60)}</Thumb></Ppt>
    <Ppt><Thumb>${entry('../x.jpg', 'x', 0)}</Thumb><Normal>${entry('page/2.jpg', '', -4)}</Normal></Ppt><Ppt></Ppt>`);
  const plain = entries.map(({ page, thumb }) => [page, thumb].map(({ path, width, height }) => [path, width, height]));
  assert.deepEqual(plain, [[['page/a & "b".jpg', 300, 100], ['thumb/1.jpg', 90, 60]],
    [['page/2.jpg', 600, 1], ['page/2.jpg', 85, 1]], [['', 600, 800], ['', 85, 113]]]);
});

test('few pictures are kept, the urgent ones come first, and what did not come is asked for again', async () => {
  const pages = Array.from({ length: 40 }, (_, index) => ({ path: index === 4 ? 'missing.jpg' : `${index + 1}.jpg` }));
  const changed = [];
  const images = new PageImages(pages, (page) => changed.push(page));
  images.want([5, 6, 5, ...pages.keys()].map((page) => page || 40), 2);
  const asked = [...images.kept].map(([page, { image }]) => [page, image.fetchpriority]);
  assert.deepEqual([asked.length, ...asked.slice(0, 3)], [11, [5, 'high'], [6, 'high'], [40, 'low']]);
  const late = images.get(30).image;
  images.want([5, 6], 2);
  await images.get(5).settled;
  assert.equal(late.src, undefined, 'is called off');
  assert.deepEqual([...images.kept].map(([page, { state }]) => [page, state]), [[5, 'missing'], [6, 'ready']]);
  images.retry();
  assert.deepEqual([images.get(5).state, images.get(6).state, changed.includes(30)], ['loading', 'ready', false]);
});
