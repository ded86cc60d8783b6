import { copyFile, mkdir, readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { deflateSync } from 'node:zlib';

/**
 * One line of a page, in tenths of a point. words: [text, start, length] each; turn in degrees.
 */
export function line([x, y, width, height], words, { turn = 0, rtl = false } = {}) {
  return [x, y, width, height, turn, rtl ? 1 : 0, words.flat()];
}

/**
 * A page of plain text as a typewriter writes it: every letter takes 60, every line 200, tenths of a point.
 * links: [first line, first letter, letters, target] each.
 */
export function typedPage(texts, { size = [6000, 8000], links = [], left = 600, top = 800 } = {}) {
  const lines = texts.map((text, index) => {
    const words = [...text.matchAll(/\S+ ?/g)]
      .map(({ 0: word, index: at }) => [word, at * 60, word.trimEnd().length * 60]);
    return line([left, top + index * 200, text.trimEnd().length * 60, 140], words);
  });
  const areas = links.map(([row, letter, letters, target]) =>
    [left + letter * 60, top + row * 200, letters * 60, 140, target]);
  return { size, lines, links: areas };
}

/** Bytes as a web book has them in texts: 13 bits in two letters, and a letter more if that is a byte too many. */
export function asciiOf(bytes) {
  const letters = Array.from({ length: 92 }, (_, at) => String.fromCharCode(35 + at)).join('').replace('\\', '').replace('<', '!');
  const bits = [...bytes].map((byte) => byte.toString(2).padStart(8, '0')).join('');
  const text = (bits.match(/.{1,13}/g) ?? []).map((pair) => parseInt(pair.padEnd(13, '0'), 2))
    .map((pair) => letters[Math.floor(pair / 91)] + letters[pair % 91]).join('');
  return text + (Math.floor(text.length * 13 / 16) > bytes.length ? '#' : '');
}

/** Text of a page as the text for searching has it. */
function stringOf({ lines = [] } = {}) {
  return lines.map(({ 6: words }) => words.filter((_, index) => index % 3 === 0).join('')).join('\n');
}

/** The data files of a web book by their names; JSON of each. */
function dataOf({
  pages, reading = [], labels = null, outline = [], large = [], open = null, language = '', textPage = '', start, panel,
  inPart = pages.length,
}) {
  const isOpen = (position) => !open || open.some(([from, to]) => position >= from && position <= to);
  const shown = pages.map((page, index) => (isOpen(index + 1) ? page : undefined));
  const files = {
    'web/book': {
      version: 1, numbers: null, labels, outline, open, language, textPage, start, panel,
      large: pages.map((_, index) => large[index]?.kind ?? ''), text: shown.some((page) => page?.lines?.length > 0),
      searchParts: Math.ceil(pages.length / inPart), reading: reading.map(([{ page }]) => page),
    },
  };
  reading.forEach((blocks, index) => { files[`reading/text-${index + 1}`] = blocks; });
  for (let part = 0; part * inPart < pages.length; part += 1) {
    files[`search/text${part ? `-${part}` : ''}`] = shown.slice(part * inPart, (part + 1) * inPart).map(stringOf);
  }
  shown.forEach((page, index) => { if (page) files[`text/${index + 1}`] = page; });
  return files;
}

/**
 * Makes a published classic book one of the web kind.
 * description: pages: { size, lines, links } by position; labels, outline, open, language and
 * textPage as in the book's facts; reading: blocks of the text's structure, by file; inPart: pages whose text is in one file for searching;
 * large: { kind, bytes } by position, or svg for bytes; web: folder with the built parts of the player.
 */
export async function makeWebBook(folder, description) {
  const { web, large = [] } = description;
  const files = path.join(folder, 'files');
  await Promise.all(['web', 'text', 'search', 'large', 'reading']
    .map((name) => mkdir(path.join(files, name), { recursive: true })));
  for (const [index, picture] of large.entries()) {
    if (!picture) continue;
    const { kind, svg = '', bytes = `folveroData("large/${index + 1}", {"vectors":"${asciiOf(deflateSync(svg))}"});` } = picture;
    await writeFile(path.join(files, 'large', `${index + 1}.${kind}`), bytes);
  }
  const page = path.join(folder, 'index.html');
  const html = await readFile(page, 'utf8');
  for (const [name, value] of Object.entries(dataOf(description))) {
    await writeFile(path.join(files, `${name}.js`), `folveroData(${JSON.stringify(name)}, ${JSON.stringify(value)});`);
  }
  for (const name of ['web.js', 'web.css', 'vectors.js', 'reading.js', 'notes.js', 'contents.js', 'search.js']) {
    await copyFile(path.join(web, name), path.join(files, name));
  }
  const tags = '<link rel="stylesheet" href="files/web.css">\n<script src="files/web.js"></script>\n';
  await writeFile(page, html.replace('</head>', () => `${tags}</head>`));
  return folder;
}

/** Text that a copy in a page of either browser puts on the clipboard. */
export const copied = (page) => page.evaluate(() => {
  const data = new DataTransfer();
  document.dispatchEvent(new ClipboardEvent('copy', { clipboardData: data, cancelable: true, bubbles: true }));
  return data.getData('text/plain') || String(getSelection());
});
