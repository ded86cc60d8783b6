import { mkdir, readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { png } from './png.mjs';
import { CONFIG_KEY, rc4 } from './rc4.mjs';

const DEFAULTS = {
  Properties: {
    Search: 'No', IsExe: 'No', Style: '0', Top: '10', Bottom: '10', Left: '10', Right: '10',
    ThumbnailsBgColor: '0x20262e', InitialShow: 'None', FlashWindowsColor: '0x20262e',
    PageBackgroundColor: '0xffffff', TutorialTitle: '', HidePageFrameBar: 'No',
    PageRiseOrFallTime: '0.1', PageMoveTime: '0.1', SlideInterval: '1', RightToLeft: 'No',
    AutoPlay: 'No', LoopPlay: 'Yes',
  },
  BackgroundColor: {
    OuterGradiantColorA: '0xC0C0C0', OuterGradiantColorB: '0x808080', OuterGradiantAngle: '90',
    InnerGradiantColorA: '0xA3CFD1', InnerGradiantColorB: '0x408080', InnerGradiantAngle: '90',
  },
  BackgroundImage: {
    OuterBackgroundFile: '', OuterImgWidth: '0', OuterImgHeight: '0',
    OuterBackgroundPosition: 'Scale to fit', InnerBackgroundFile: '', InnerImgWidth: '0',
    InnerImgHeight: '0', InnerBackgroundPosition: 'Scale to fit',
  },
  BackgroundSound: { SoundFile: '', SoundLoops: '-1' },
};

const HUES = [[186, 72, 60], [212, 150, 54], [104, 148, 78], [60, 138, 150], [74, 92, 160], [140, 84, 148]];

/** Colour that fills page N of a test book. */
export function colourOf(page) {
  const [r, g, b] = HUES[(page - 1) % HUES.length];
  return [r, g, (b + page) % 256];
}

/** Plain pages of one size: enough to tell which page is shown. */
export function plainPages(count, width = 120, height = 160) {
  return Array.from({ length: count }, (_, index) => {
    const colour = colourOf(index + 1);
    return { width, height, bytes: png(width, height, () => colour) };
  });
}

function escaped(text) {
  return text.replace(/&/g, '&amp;').replace(/</g, '&lt;').replace(/>/g, '&gt;');
}

function elements(values) {
  return Object.entries(values).map(([name, value]) => `<${name}>${escaped(value)}</${name}>`).join('\n');
}

/**
 * The configuration document of a book.
 * values: texts by element name that replace the defaults; declaredSize: [width, height] that the
 * document claims for every page, whatever the images measure; thumb: { path, width, height } that it
 * names as the thumbnail of every page.
 */
export function configurationXml(pageCount, values = {}, declaredSize = [120, 160], thumb = undefined) {
  const group = (name) => {
    const merged = Object.entries(DEFAULTS[name]).map(([key, value]) => [key, values[key] ?? value]);
    return elements(Object.fromEntries(merged));
  };
  const picture = (file, width, height) =>
    `<ImgPath>${escaped(file)}</ImgPath><Width>${width}</Width><Height>${height}</Height>`;
  const pages = Array.from({ length: pageCount }, (_, index) => {
    const normal = picture(`page/${index + 1}.jpg`, ...declaredSize);
    const small = thumb ? picture(thumb.path, thumb.width, thumb.height) : normal;
    return `<Ppt><Normal>${normal}</Normal><Thumb>${small}</Thumb></Ppt>`;
  });
  return `<?xml version="1.0" encoding="UTF-8"?>
<SlidePowerPoint>
<Properties>${group('Properties')}</Properties>
<BackgroundConfig>
<BackgroundColor>${group('BackgroundColor')}</BackgroundColor>
<BackgroundImage>${group('BackgroundImage')}</BackgroundImage>
<BackgroundSound>${group('BackgroundSound')}</BackgroundSound>
</BackgroundConfig>
<Ppts>${pages.join('\n')}</Ppts>
</SlidePowerPoint>
`;
}

/** Writes the two forms in which a book holds its configuration. */
export async function writeConfiguration(folder, bytes) {
  const base64 = Buffer.from(bytes).toString('base64');
  await writeFile(path.join(folder, 'files/UserConfig.bin'), bytes);
  await writeFile(path.join(folder, 'files/UserConfig.js'), `window.FolveroUserConfig = "${base64}";\n`);
}

/**
 * Writes a book as the publisher would, from the built template.
 * extras: further files by their path in the files folder; look: how the template turns and lays out
 * pages, in place of what it says itself, as { turn, pages, binding }.
 */
export async function writeBook(folder, options) {
  const { template, pages, values, declaredSize, thumb, extras = {}, look = {}, title = 'Test book' } = options;
  await mkdir(path.join(folder, 'files/page'), { recursive: true });
  await mkdir(path.join(folder, 'files/extfiles'), { recursive: true });
  const shell = await readFile(path.join(template, 'index.html'), 'utf8');
  const html = Object.entries(look).reduce((page, [name, value]) => page.replace(
    new RegExp(`(<main id="folvero"[^>]* data-${name}=")[^"]*`), (_, before) => before + value),
  shell.replaceAll(/\$\{([^}]*)\}\s*/g, (_, name) => (name === 'index.title' ? title : '')));
  await writeFile(path.join(folder, 'index.html'), html);
  for (const [index, page] of pages.entries()) {
    await writeFile(path.join(folder, 'files/page', `${index + 1}.jpg`), page.bytes);
  }
  for (const [name, bytes] of Object.entries(extras)) {
    await writeFile(path.join(folder, 'files', name), bytes);
  }
  const xml = configurationXml(pages.length, values, declaredSize, thumb);
  await writeConfiguration(folder, rc4(Buffer.from(xml, 'utf8'), CONFIG_KEY));
  return folder;
}
