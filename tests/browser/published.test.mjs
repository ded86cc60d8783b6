import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { readFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { promisify } from 'node:util';
import { CONFIG_KEY, rc4 } from './support/rc4.mjs';
import { PHONE, Reader } from './support/reader.mjs';

const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const ready = { skip: FOLVERO_BIN && FOLVERO_SAMPLES_DIR ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set' };

const reader = Reader.forTests({ whole: true });

/** Publishes a sample document; exit code 3 says that pages are missing. */
async function publish(sample, options = [], exitCode = 0) {
  const folder = path.join(reader.folder, `${sample}-${options.length}`);
  const code = await run(FOLVERO_BIN, ['publish', '--quiet', ...options,
    path.join(FOLVERO_SAMPLES_DIR, `${sample}.pdf`), folder]).then(() => 0, (failure) => failure.code);
  assert.equal(code, exitCode, `exit code for ${sample}`);
  return folder;
}

const shapeOf = ({ width, height }) => width / height;

test('a published document opens from disk, over http and on a phone', ready, async () => {
  const folder = await publish('sample', ['--title', 'Tea & <cake>']);
  const book = await reader.openFromDisk(folder);
  assert.deepEqual(await book.pages(), [1]);
  assert.equal(await book.page.title(), 'Tea & <cake>');
  assert.match((await book.picture('right')).source, /files\/page\/1\.jpg$/);
  await book.page.keyboard.press('ArrowRight');
  await book.waitForPages(2, 3);
  assert.ok((await book.picture('left')).loaded && (await book.picture('right')).loaded);
  assert.deepEqual(book.errors, []);

  const served = await reader.openOverHttp(folder, { view: PHONE });
  assert.deepEqual(await served.pages(), [1]);
  assert.ok(served.server.requests.every(({ status }) => status === 200), JSON.stringify(served.server.requests));
});

test('the configuration of a published book deciphers to its document', ready, async () => {
  const folder = await publish('sample');
  const bytes = await readFile(path.join(folder, 'files/UserConfig.bin'));
  const xml = rc4(bytes, CONFIG_KEY).toString('utf8');
  assert.match(xml, /<SlidePowerPoint>[\s\S]*<ImgPath>page\/1\.jpg<\/ImgPath>[\s\S]*<\/SlidePowerPoint>\s*$/);
  const script = await readFile(path.join(folder, 'files/UserConfig.js'), 'utf8');
  const base64 = /^window\.FolveroUserConfig = "([A-Za-z0-9+/=]+)";\s*$/.exec(script)?.[1];
  assert.deepEqual(Buffer.from(base64, 'base64'), bytes);
});

test('pages of many sizes are shown whole and in their own shape', ready, async () => {
  const book = await reader.openFromDisk(await publish('mixed-sizes'), { hash: '#page=2' });
  const landscape = await book.picture('left');
  assert.ok(Math.abs(shapeOf(landscape) - 792 / 612) < 0.02, `shape ${shapeOf(landscape)}`);
  const half = await book.box('left');
  assert.ok(landscape.width <= half.width + 1 && landscape.height <= half.height + 1);
  await book.page.keyboard.press('End');
  await book.waitForPages(8);
});

test('rotated pages stand as they are read', ready, async () => {
  const book = await reader.openFromDisk(await publish('rotated'), { hash: '#page=2' });
  const turnedByQuarter = shapeOf(await book.picture('left'));
  const upsideDown = shapeOf(await book.picture('right'));
  assert.ok(Math.abs(turnedByQuarter - 3 / 2) < 0.02, `page 2: ${turnedByQuarter}`);
  assert.ok(Math.abs(upsideDown - 2 / 3) < 0.02, `page 3: ${upsideDown}`);
});

test('the style and the properties that were asked for are seen in the book', ready, async () => {
  const book = await reader.openFromDisk(await publish('text', ['--style', 'Writing desk', '--set', 'RightToLeft=YES']));
  assert.ok(await book.box('left'), 'begins at the right');
  const loaded = await book.page.evaluate(() => {
    const { backgroundImage } = getComputedStyle(document.querySelector('.inner'));
    const picture = new Image();
    picture.src = /url\("([^"]+)"\)/.exec(backgroundImage)[1];
    return picture.decode().then(() => picture.naturalWidth);
  });
  assert.equal(loaded, 1920);
});
