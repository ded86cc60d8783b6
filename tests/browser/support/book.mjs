import { createHash } from 'node:crypto';
import { cp, mkdir, readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { png } from './png.mjs';
import { CONFIG_KEY, rc4 } from './rc4.mjs';

/** Without these, a book would come in and turn as slowly as readers like it. */
const QUICK = { InitialShow: 'None', PageRiseOrFallTime: '0.1', PageMoveTime: '0.1', LoopPlay: 'Yes' };

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

/**
 * The configuration document of a book.
 * values: texts by element name, which stand in every group, since the player takes each from one; declaredSize:
 * [width, height] that the document claims for every page, whatever the images measure; thumb: { path, width, height }
 * that it names as the thumbnail of every page.
 */
export function configurationXml(pageCount, values = {}, declaredSize = [120, 160], thumb = undefined) {
  const texts = Object.entries({ ...QUICK, ...values })
    .map(([name, value]) => `<${name}>${escaped(value)}</${name}>`).join('\n');
  const picture = (file, width, height) =>
    `<ImgPath>${escaped(file)}</ImgPath><Width>${width}</Width><Height>${height}</Height>`;
  const pages = Array.from({ length: pageCount }, (_, index) => {
    const normal = picture(`page/${index + 1}.jpg`, ...declaredSize);
    const small = thumb ? picture(thumb.path, thumb.width, thumb.height) : normal;
    return `<Ppt><Normal>${normal}</Normal><Thumb>${small}</Thumb></Ppt>`;
  });
  return `<?xml version="1.0" encoding="UTF-8"?>
<SlidePowerPoint>
<Properties>${texts}</Properties>
<BackgroundConfig>
<BackgroundColor>${texts}</BackgroundColor>
<BackgroundImage>${texts}</BackgroundImage>
<BackgroundSound>${texts}</BackgroundSound>
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
 * extras: further files by their path in the files folder.
 */
export async function writeBook(folder, options) {
  const { template, pages, values, declaredSize, thumb, extras = {}, title = 'Test book' } = options;
  await mkdir(path.join(folder, 'files/page'), { recursive: true });
  await mkdir(path.join(folder, 'files/extfiles'), { recursive: true });
  await cp(path.join(template, '../../Web/languages'), path.join(folder, 'files/languages'), { recursive: true });
  const shell = await readFile(path.join(template, 'index.html'), 'utf8');
  const scripts = [...shell.matchAll(/<script(?: data-shared="[^"]*")?>([^]*?)<\/script>/g)]
    .map(([, text]) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`).join(' ');
  const texts = { 'index.title': title, 'book.language': 'en', 'book.scripts': scripts };
  const html = shell.replaceAll(/\$\{([^}]*)\}\s*/g, (_, name) => texts[name] ?? '');
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
