import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { readdirSync, readFileSync, statSync } from 'node:fs';
import path from 'node:path';
import { test } from 'node:test';
import { promisify } from 'node:util';
import { CONFIG_KEY, rc4 } from './support/rc4.mjs';
import { Reader, TEMPLATE } from './support/reader.mjs';
import { readProperties } from './support/template.mjs';

const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const ready = { skip: FOLVERO_BIN && FOLVERO_SAMPLES_DIR ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set' };

const library = path.join(TEMPLATE, '../..');
const templateFolder = (template) => path.join(library, 'Templates', template);
const styleFolder = (template, style) => path.join(library, 'Styles', template, style);
const templates = readdirSync(path.join(library, 'Templates'));
const stylesOf = (template) => readdirSync(path.join(library, 'Styles', template));
const everyStyle = templates.flatMap((template) => stylesOf(template).map((style) => [template, style]));

/** Noted at import, without an effect of their own; their descriptions say so. */
const INFORMATION = ['pageWidth', 'pageHeight'];

const reader = Reader.forTests();

/** Values of a style's settings file by key. */
function settingsOf(template, style) {
  const text = readFileSync(path.join(styleFolder(template, style), 'tmplSetting.txt'), 'utf8');
  return new Map(text.split('\n\r').filter(Boolean).map((line) => {
    const at = line.indexOf('=');
    return [line.slice(0, at), line.slice(at + 1)];
  }));
}

/** Width and height of a PNG or JPEG file. */
function sizeOf(file) {
  const bytes = readFileSync(file);
  if (bytes[0] === 0x89) return [bytes.readUInt32BE(16), bytes.readUInt32BE(20)];
  for (let at = 2; at < bytes.length; at += 2 + bytes.readUInt16BE(at + 2)) {
    if (bytes[at + 1] >= 0xc0 && bytes[at + 1] <= 0xc2) return [bytes.readUInt16BE(at + 7), bytes.readUInt16BE(at + 5)];
  }
  throw new Error(`${file} is no picture`);
}

const LEGAL = {
  pt_text: () => true,
  pt_number: (value) => /^-?\d+(\.\d+)?$/.test(value),
  pt_color: (value) => /^0x[0-9a-f]{6}$/i.test(value),
  pt_list: (value, { valueSource }) => valueSource.split(',').includes(value),
  pt_bool: (value) => value === 'Yes' || value === 'No',
  pt_file: (value, { valueSource }) => value === '' || valueSource.split('|')[1].split(';').includes(`*${path.extname(value)}`),
};

test('the library holds at least five templates, each with four styles or more', () => {
  assert.ok(templates.length >= 5 && templates.includes('float'), templates.join());
  for (const template of templates) {
    assert.ok(stylesOf(template).length >= 4 && stylesOf(template).includes('Blank'), `${template}: ${stylesOf(template)}`);
  }
});

for (const template of templates) {
  test(`${template} has everything that a book needs`, () => {
    const files = readdirSync(templateFolder(template), { withFileTypes: true });
    assert.deepEqual(files.filter((entry) => entry.isDirectory()), [], 'a folder would count as a template');
    assert.deepEqual(files.map(({ name }) => name).sort(),
      ['book.swf', 'flashTemplate.xml', 'icon.png', 'index.html', 'moveSound.mp3', 'swfobject.js']);
    for (const { name } of files) assert.ok(statSync(path.join(templateFolder(template), name)).size > 0, name);
    assert.deepEqual(sizeOf(path.join(templateFolder(template), 'icon.png')), [64, 64]);
  });

  test(`the properties of ${template} are explained and have legal values`, () => {
    const properties = readProperties(templateFolder(template));
    const keys = properties.map(({ key }) => key);
    assert.equal(new Set(keys).size, keys.length, 'every key once');
    assert.ok(properties.length > 25);
    for (const { key, type, title, desc, ...rest } of properties) {
      assert.ok(EFFECTS[key] || INFORMATION.includes(key) || type === 'pt_composite', `${key} has no effect`);
      assert.ok(title.length > 2 && title !== key, `${key}: title`);
      assert.match(desc, /^[A-Z][^.]{15,}[^. ]\.$/, `${key}: one sentence`);
      if (type === 'pt_composite') continue;
      assert.ok(LEGAL[type](rest.value, rest), `${key}: ${rest.value}`);
      assert.equal(rest.value, rest.defaultValue, key);
      if (type === 'pt_bool') assert.ok(rest.aTitle, `${key}: caption of the box`);
      if (INFORMATION.includes(key)) assert.match(desc, /no effect/);
    }
  });
}

for (const [template, style] of everyStyle) {
  test(`the style ${style} of ${template} sets every value, to legal ones`, () => {
    const folder = styleFolder(template, style);
    const settings = settingsOf(template, style);
    const properties = readProperties(templateFolder(template)).filter(({ key, type }) => type !== 'pt_composite' && !INFORMATION.includes(key));
    assert.deepEqual([...settings.keys()].sort(), properties.map(({ key }) => key).sort(), 'what is left out stays from the style before');
    const used = ['shot.jpg', 'tmplSetting.txt'];
    for (const property of properties) {
      const value = settings.get(property.key);
      assert.ok(LEGAL[property.type](value, property), `${property.key}=${value}`);
      if (property.type !== 'pt_file' || !value) continue;
      assert.match(value, /^STYLE_RESOURCE:[^/]+$/);
      used.push(value.replace('STYLE_RESOURCE:', ''));
    }
    assert.deepEqual(readdirSync(folder).sort(), used.sort(), 'the files that the values name and no others');
    assert.deepEqual(sizeOf(path.join(folder, 'shot.jpg')), [480, 360]);
    if (style === 'Blank') assert.equal(used.length, 2, 'neither pictures nor sounds');
  });
}

test('Blank is what a template looks like before a style is chosen', () => {
  for (const template of templates) {
    const settings = settingsOf(template, 'Blank');
    for (const { key, value } of readProperties(templateFolder(template))) {
      if (settings.has(key)) assert.equal(settings.get(key), value, `${template}: ${key}`);
    }
  }
});

const picture = path.join(styleFolder('float', 'Blank'), 'shot.jpg');

/** Element of the configuration that each property sets, and another value for it. */
const EFFECTS = {
  topMargin: ['Top', '31'], bottomMargin: ['Bottom', '32'], leftMargin: ['Left', '33'], rightMargin: ['Right', '34'],
  mainColor: ['FlashWindowsColor', '0x123456'], InitialShow: ['InitialShow', 'None'], pageBackgroundColor: ['PageBackgroundColor', '0xfedcba'],
  TutorialTitle: ['TutorialTitle', 'A caption'], hidePageFrameBar: ['HidePageFrameBar', 'YES'],
  PageRiseOrFallTime: ['PageRiseOrFallTime', '1.1'], pageMoveTime: ['PageMoveTime', '2.2'], SlideInterval: ['SlideInterval', '33'],
  RightToLeft: ['RightToLeft', 'YES'], AutoPlay: ['AutoPlay', 'YES'], LoopPlay: ['LoopPlay', 'NO'],
  bgBeginColor: ['OuterGradiantColorA', '0x010203'], bgEndColor: ['OuterGradiantColorB', '0x040506'], bgMRotation: ['OuterGradiantAngle', '11'],
  inBeginColor: ['InnerGradiantColorA', '0x070809'], inEndColor: ['InnerGradiantColorB', '0x0a0b0c'], inMRotation: ['InnerGradiantAngle', '22'],
  mainbgImgPosition: ['OuterBackgroundPosition', 'Bottom right'], innerMainbgImgPosition: ['InnerBackgroundPosition', 'Top left'],
  backgroundSoundLoop: ['SoundLoops', '7'],
  mainbgImgUrl: ['OuterBackgroundFile', picture, 'extfiles/mainbgImgUrl.jpg'],
  innerMainbgImgUrl: ['InnerBackgroundFile', picture, 'extfiles/innerMainbgImgUrl.jpg'],
  backgroundSoundURL: ['SoundFile', path.join(TEMPLATE, 'moveSound.mp3'), 'extfiles/backgroundSoundURL.mp3'],
};
test('every property changes the published book', ready, async () => {
  const published = async (name, options) => {
    const folder = path.join(reader.folder, name);
    await run(FOLVERO_BIN, ['publish', '--quiet', '--style', 'Blank', ...options, path.join(FOLVERO_SAMPLES_DIR, 'mixed-sizes.pdf'), folder]);
    const xml = rc4(readFileSync(path.join(folder, 'files/UserConfig.bin')), CONFIG_KEY).toString('utf8');
    return (element) => new RegExp(`<${element}>([^<]*)</${element}>`).exec(xml)?.[1] ?? '';
  };
  const before = await published('plain', []);
  const after = await published('changed', Object.entries(EFFECTS).flatMap(([key, [, value]]) => ['--set', `${key}=${value}`]));
  for (const [key, [element, value, written = value]] of Object.entries(EFFECTS)) {
    assert.notEqual(before(element), written, `${key} is ${written} from the start`);
    assert.equal(after(element), written, key);
  }
});
