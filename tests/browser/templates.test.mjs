import assert from 'node:assert/strict';
import { mkdtempSync, readdirSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { CONFIG_KEY, rc4 } from './support/rc4.mjs';
import { TEMPLATE } from './support/reader.mjs';
import { readProperties } from './support/template.mjs';

const library = path.join(TEMPLATE, '../..');
const templateFolder = (template) => path.join(library, 'Templates', template);
const styleFolder = (template, style) => path.join(library, 'Styles', template, style);
const templates = readdirSync(path.join(library, 'Templates'));

/** Noted at import, without an effect of their own; their descriptions say so. */
const INFORMATION = ['pageWidth', 'pageHeight'];

/** Values of a style's settings file by key. */
function settingsOf(template, style) {
  const text = readFileSync(path.join(styleFolder(template, style), 'tmplSetting.txt'), 'utf8');
  return new Map(text.split('\n\r').filter(Boolean).map((line) => {
    const at = line.indexOf('=');
    return [line.slice(0, at), line.slice(at + 1)];
  }));
}

/** Of the publisher, whatever the style. */
const BUTTONS = ['showContents', 'showSearch', 'showReadingView', 'showNotes', 'showThumbnails', 'showZoom', 'showView',
  'showAutoPlay', 'showSound', 'showShare', 'showKeep', 'showPrint', 'showFullScreen', 'showHelp'];
const ALL_BUTTONS = 'contents search reading bookmark notes mark thumbs zoomIn zoomOut view viewOne viewTwo viewWidth night'
  + ' play sound share keep print full help';
const OWN = ['logoFile', 'logoLink', 'accentColor', 'firstView', 'offerDocument', ...BUTTONS];

const LEGAL = {
  pt_text: () => true,
  pt_number: (value) => /^-?\d+(\.\d+)?$/.test(value),
  pt_color: (value) => /^0x[0-9a-f]{6}$/i.test(value),
  pt_list: (value, { valueSource }) => valueSource.split(',').includes(value),
  pt_bool: (value) => value === 'Yes' || value === 'No',
  pt_file: (value, { valueSource }) => value === ''
    || valueSource.split('|')[1].split(';').includes(`*${path.extname(value)}`),
};

for (const template of templates) {
  test(`the properties of ${template} have effects and legal values, in all of its styles too`, () => {
    const properties = readProperties(templateFolder(template)).filter(({ type }) => type !== 'pt_composite');
    for (const { key, type, ...rest } of properties) {
      assert.ok(EFFECTS[key] || INFORMATION.includes(key), `${key} has no effect`);
      assert.ok(LEGAL[type](rest.value, rest), `${key}: ${rest.value}`);
      assert.equal(rest.value, rest.defaultValue, key);
    }
    const set = properties.filter(({ key }) => !INFORMATION.includes(key) && !OWN.includes(key));
    const styles = readdirSync(path.join(library, 'Styles', template));
    assert.ok(styles.length >= 4 && styles.includes('Blank'), styles.join());
    for (const style of styles) {
      const settings = settingsOf(template, style);
      assert.deepEqual([...settings.keys()].sort(), set.map(({ key }) => key).sort(), `${style} sets every value`);
      const used = ['shot.jpg', 'tmplSetting.txt'];
      for (const property of set) {
        const value = settings.get(property.key);
        assert.ok(LEGAL[property.type](value, property), `${style}: ${property.key}=${value}`);
        if (style === 'Blank') assert.equal(value, property.value, 'Blank leaves the template as it is');
        if (property.type === 'pt_file' && value) used.push(/^STYLE_RESOURCE:([^/]+)$/.exec(value)[1]);
      }
      assert.deepEqual(readdirSync(styleFolder(template, style)).sort(), used.sort(), `${style}: what it names`);
    }
  });
}

const picture = path.join(styleFolder('float', 'Blank'), 'shot.jpg');

/** Element of the configuration that each property sets, and another value for it. */
const EFFECTS = {
  topMargin: ['Top', '31'], bottomMargin: ['Bottom', '32'], leftMargin: ['Left', '33'], rightMargin: ['Right', '34'],
  mainColor: ['FlashWindowsColor', '0x123456'], InitialShow: ['InitialShow', 'None'],
  pageBackgroundColor: ['PageBackgroundColor', '0xfedcba'], TutorialTitle: ['TutorialTitle', 'A caption'],
  hidePageFrameBar: ['HidePageFrameBar', 'YES'], PageRiseOrFallTime: ['PageRiseOrFallTime', '1.1'],
  pageMoveTime: ['PageMoveTime', '2.2'], SlideInterval: ['SlideInterval', '33'], RightToLeft: ['RightToLeft', 'YES'],
  AutoPlay: ['AutoPlay', 'YES'], LoopPlay: ['LoopPlay', 'NO'], bgBeginColor: ['OuterGradiantColorA', '0x010203'],
  bgEndColor: ['OuterGradiantColorB', '0x040506'], bgMRotation: ['OuterGradiantAngle', '11'],
  inBeginColor: ['InnerGradiantColorA', '0x070809'], inEndColor: ['InnerGradiantColorB', '0x0a0b0c'],
  inMRotation: ['InnerGradiantAngle', '22'], mainbgImgPosition: ['OuterBackgroundPosition', 'Bottom right'],
  innerMainbgImgPosition: ['InnerBackgroundPosition', 'Top left'], backgroundSoundLoop: ['SoundLoops', '7'],
  mainbgImgUrl: ['OuterBackgroundFile', picture, 'extfiles/mainbgImgUrl.jpg'],
  innerMainbgImgUrl: ['InnerBackgroundFile', picture, 'extfiles/innerMainbgImgUrl.jpg'],
  logoFile: ['LogoFile', picture, 'extfiles/logoFile.jpg'], logoLink: ['LogoLink', 'https://example.org'],
  accentColor: ['AccentColor', '0x0d0e0f'], firstView: ['FirstView', 'Two pages'],
  offerDocument: ['DownloadFile', 'YES', 'extfiles/document.pdf'],
  ...Object.fromEntries(BUTTONS.map((key) => [key, ['HiddenButtons', 'No', ALL_BUTTONS]])),
  backgroundSoundURL: ['SoundFile', path.join(TEMPLATE, 'moveSound.mp3'), 'extfiles/backgroundSoundURL.mp3'],
};
test('every property changes the published book', ready, async (t) => {
  const books = mkdtempSync(path.join(tmpdir(), 'folvero-templates-'));
  t.after(() => rmSync(books, { recursive: true }));
  const published = async (name, options) => {
    const folder = path.join(books, name);
    await folvero('publish', '--quiet', '--type=html', '--style', 'Blank', ...options, sample('mixed-sizes'), folder);
    const xml = rc4(readFileSync(path.join(folder, 'files/UserConfig.bin')), CONFIG_KEY).toString('utf8');
    return (element) => new RegExp(`<${element}>([^<]*)</${element}>`).exec(xml)?.[1] ?? '';
  };
  const before = await published('plain', []);
  const changes = Object.entries(EFFECTS).flatMap(([key, [, value]]) => ['--set', `${key}=${value}`]);
  const after = await published('changed', changes);
  for (const [key, [element, value, written = value]] of Object.entries(EFFECTS)) {
    assert.notEqual(before(element), written, `${key} is ${written} from the start`);
    assert.equal(after(element), written, key);
  }
});
