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
  assert.deepEqual(outer, { from: '#c0c0c0', to: '#808080', angle: 90, file: '', size: { width: 0, height: 0 }, position: '' });
  assert.deepEqual(sound, { file: '', loops: -1 });
});

const image = 'BackgroundConfig BackgroundImage Inner';
const meanings = [
  ['Properties Left', '31', ({ margins }) => margins.left, 31], ['Properties Top', '-5', ({ margins }) => margins.top, 0],
  ['Properties Bottom', '401', ({ margins }) => margins.bottom, 400], ['Properties Right', '3', ({ margins }) => margins.right, 3],
  ['Properties PageMoveTime', '0', ({ moveTime }) => moveTime, 0.1], ['Properties PageMoveTime', '11', ({ moveTime }) => moveTime, 10],
  ['Properties PageRiseOrFallTime', '0.2', ({ riseTime }) => riseTime, 0.2],
  ['Properties SlideInterval', '0', ({ slideInterval }) => slideInterval, 0.2],
  ['Properties HidePageFrameBar', 'show', ({ hideBar }) => hideBar, true], ['Properties AutoPlay', 'Yes', ({ autoPlay }) => autoPlay, true],
  ['Properties LoopPlay', 'yes', ({ loopPlay }) => loopPlay, true], ['Properties RightToLeft', 'YES', ({ rightToLeft }) => rightToLeft, true],
  ['Properties ThumbnailsBgColor', '0x123456', ({ thumbsColour }) => thumbsColour, '#123456'],
  ['BackgroundConfig BackgroundColor InnerGradiantColorB', '0x1', ({ inner }) => inner.to, '#000001'],
  ['BackgroundConfig BackgroundColor OuterGradiantAngle', '-90', ({ outer }) => outer.angle, -90],
  [`${image}BackgroundFile`, 'extfiles/a.jpg', ({ inner }) => inner.file, 'extfiles/a.jpg'],
  [`${image}BackgroundFile`, '../a.jpg', ({ inner }) => inner.file, ''], [`${image}ImgWidth`, '30', ({ inner }) => inner.size.width, 30],
  [`${image}ImgHeight`, '-1', ({ inner }) => inner.size.height, 0],
  ['BackgroundConfig BackgroundSound SoundFile', '/etc/x.mp3', ({ sound }) => sound.file, ''],
  ['BackgroundConfig BackgroundSound SoundLoops', '2.9', ({ sound }) => sound.loops, 2],
];
test('each text of a configuration means what it says, within its limits', () => {
  for (const [path, text, of, wanted] of meanings) assert.deepEqual(of(meaning({ [path]: text })), wanted, `${path}: ${text}`);
});

test('the list of pages is read whatever stands in it', () => {
  const entry = (path, width, height) => `<ImgPath>${path}</ImgPath><Width>${width}</Width>\n<Height>${height}</Height>`;
  const [first, second, third] = readPages(`<Ppts>
    <Ppt><Normal>${entry(' page/a &amp; &quot;b&quot;.jpg\n', 300, 100)}</Normal><Thumb>${entry('thumb/1.jpg', 90, 60)}</Thumb></Ppt>
    <Ppt><Thumb>${entry('../x.jpg', 'x', 0)}</Thumb><Normal>${entry('page/2.jpg', '', -4)}</Normal></Ppt><Ppt/><Ppt></Ppt>`);
  const plain = ({ path, width, height }) => [path, width, height];
  assert.deepEqual([first.page, first.thumb].map(plain), [['page/a & "b".jpg', 300, 100], ['thumb/1.jpg', 90, 60]]);
  assert.deepEqual([second.page, second.thumb].map(plain), [['page/2.jpg', 600, 1], ['page/2.jpg', 85, 1]]);
  assert.deepEqual([third.page, third.thumb].map(plain), [['', 600, 800], ['', 85, 113]]);
});

test('few pictures are kept, the urgent ones come first, and what did not come is asked for again', async () => {
  const pages = Array.from({ length: 40 }, (_, index) => ({ path: index === 4 ? 'missing.jpg' : `${index + 1}.jpg` }));
  const changed = [];
  const images = new PageImages(pages, (page) => changed.push(page));
  images.want([4, 5, 4, ...pages.keys()].map((page) => page + 1), 2);
  const priorities = [...images.kept].map(([page, { image: { attributes } }]) => [page, attributes.fetchpriority]);
  assert.deepEqual(priorities.slice(0, 3), [[5, 'high'], [6, 'high'], [1, 'low']]);
  assert.equal(priorities.length, 11);
  const dropped = images.kept.get(1).image;
  await Promise.all([5, 6].map((page) => images.get(page).settled));
  const late = images.get(30).image;
  images.want([5, 6], 2);
  await images.get(5).settled;
  assert.deepEqual([late.removed, dropped.removed], [['src'], []], 'what is on its way is called off');
  assert.deepEqual([...images.kept.keys()], [5, 6]);
  assert.deepEqual([5, 6].map((page) => images.get(page).state), ['missing', 'ready']);
  images.retry();
  pages[4].path = '5.jpg';
  assert.equal(images.get(5).state, 'loading');
  assert.ok(changed.includes(5) && !changed.includes(30), String(changed));
});
