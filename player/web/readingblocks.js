import { fieldsOf, listOf, numberOf, textOf } from './facts.js';

/**
 * @typedef {'heading' | 'paragraph' | 'item' | 'note' | 'code' | 'row' | 'figure' | 'picture' | 'closed'} Kind
 * @typedef {{text: string, style: number, target: number | string}} Run style: 1 bold, 2 italic, 4 monospaced
 * @typedef {object} Block
 * @property {Kind} kind picture: of a page with little or no text; closed: pages that a preview leaves out
 * @property {number} level of a heading, 1 to 6
 * @property {number} page where it begins
 * @property {boolean} rtl
 * @property {boolean} begins whether its page begins with it
 * @property {(Run | number)[]} runs a number is a page that begins there; of a figure, its caption
 * @property {Figure} [figure]
 *
 * @typedef {object} Figure a part of a page, whose shares of the page's width and height these are
 * @property {number} x
 * @property {number} y
 * @property {number} width
 * @property {number} height
 * @property {number} points its width
 * @property {number} ratio width by height
 * @property {boolean} images whether it is more than lines and areas
 * @property {string} alternative from the document, empty for none
 * @property {string} words within it
 *
 * @typedef {object} Chunk blocks that are shown together
 * @property {Block[]} blocks
 * @property {Set<number>} pages
 * @property {number} last page
 * @property {number} letters
 *
 * @typedef {{first: number, last: number}} Part pages, of which a file has the text
 */

/** Letters after which a page begins another chunk. */
const CHUNK = 6000;

/** What a picture takes, in letters of text. */
const PICTURE = 1500;
const FIGURE = 500;

/** A page with fewer letters is a picture with words, or a slide, where this share of the pages has no more. */
const FEW = 250;
const SHARE = 0.4;

/** @type {Record<string, Kind>} */
const KINDS = { item: 'item', note: 'note', code: 'code', row: 'row', figure: 'figure' };

/**
 * The blocks of a file, whatever it holds, in chunks; with a block for each page that has no text.
 * @param {unknown} raw
 * @param {Part} part
 * @param {Pick<import('./facts.js').Facts, 'pageCount' | 'isOpen'>} facts
 * @returns {Chunk[]}
 */
export function chunksOf(raw, part, facts) {
  return split(withPages(listOf(raw).map((block) => blockOf(block, part.first, facts.pageCount)), part, facts));
}

/**
 * @param {unknown} raw
 * @param {number} first page that it may have
 * @param {number} last
 * @returns {Block}
 */
function blockOf(raw, first, last) {
  const { kind, page, rtl, text } = fieldsOf(raw);
  const level = Number(/^h([1-6])$/.exec(textOf(kind))?.[1] ?? 0);
  /** @param {unknown} value */
  const within = (value) => Math.min(last, Math.max(first, Math.round(numberOf(value)) || first));
  return {
    kind: level ? 'heading' : KINDS[textOf(kind)] ?? 'paragraph',
    level, page: within(page), rtl: rtl === 1, begins: false,
    runs: listOf(text).map((run) => (typeof run === 'number' ? within(run) : runOf(run))),
    ...(kind === 'figure' ? { figure: figureOf(fieldsOf(raw)) } : {}),
  };
}

/** @param {Record<string, unknown>} raw */
function figureOf({ box, size, images, alt, words }) {
  const [left, top, across, down] = listOf(box).map(numberOf);
  const [wide, high] = listOf(size).map(numberOf);
  /**
   * @param {number} part
   * @param {number} whole
   */
  const share = (part, whole) => Math.min(1, Math.max(0, part / whole)) || 0;
  const [x, y] = [share(left, wide), share(top, high)];
  const [width, height] = [Math.min(share(across, wide), 1 - x) || 1, Math.min(share(down, high), 1 - y) || 1];
  return {
    x, y, width, height, points: width * wide / 10 || 300, ratio: width * wide / (height * high) || 1,
    images: images === 1, alternative: textOf(alt), words: textOf(words),
  };
}

/**
 * @param {unknown} raw
 * @returns {Run}
 */
function runOf(raw) {
  const [text, style, target] = Array.isArray(raw) ? raw : [raw, 0, 0];
  return { text: textOf(text), style: numberOf(style) & 7, target: textOf(target) || numberOf(target) || 0 };
}

/**
 * Notes where pages begin, and adds what stands for those without text. A paragraph may go on before the figures of a
 * page that it passes: that one begins late, and the next one again. What follows from a page that has begun, such as
 * its notes, is none of a page's beginning.
 * @param {Block[]} blocks
 * @param {Part} part
 * @param {Pick<import('./facts.js').Facts, 'isOpen'>} facts
 */
function withPages(blocks, { first, last }, facts) {
  const letters = lettersOf(blocks);
  let [open, sparse] = [0, 0];
  for (let page = first; page <= last; page++) {
    if (!facts.isOpen(page)) continue;
    open += 1;
    if ((letters.get(page) ?? 0) < FEW) sparse += 1;
  }
  const illustrated = sparse >= SHARE * open;
  /** @type {Block[]} */
  const all = [];
  let begun = first - 1;
  let current = 0;
  /** @type {Set<number>} */
  const seen = new Set();
  /** @param {number} page up to which all pages have begun before what comes next */
  const fill = (page) => {
    for (let missing = begun + 1; missing <= page; missing++) {
      if (letters.has(missing)) continue;
      const kind = facts.isOpen(missing) ? 'picture' : 'closed';
      if (kind === 'picture' || all.at(-1)?.kind !== kind) all.push(instead(kind, missing));
      begun = missing;
      current = missing;
      seen.add(missing);
    }
  };
  /** @param {number} page */
  const begins = (page) => {
    if (page === current || (page < current && seen.has(page))) return false;
    seen.add(page);
    current = page;
    return true;
  };
  for (const block of blocks) {
    fill(Math.min(last, block.page - 1));
    // A page that is shown whole shows its figures, too.
    const whole = illustrated && Number(letters.get(block.page)) < FEW;
    if (whole && !seen.has(block.page)) {
      all.push(instead('picture', block.page));
      begins(block.page);
    }
    if (whole && block.kind === 'figure') {
      if (block.runs.length === 0) continue;
      block.kind = 'paragraph';
    }
    block.begins = begins(block.page);
    block.runs = block.runs.filter((run) => typeof run !== 'number' || begins(run));
    begun = Math.max(begun, block.page);
    all.push(block);
  }
  fill(last);
  return all;
}

/**
 * @param {Kind} kind
 * @param {number} page
 * @returns {Block} that stands for a page
 */
function instead(kind, page) {
  return { kind, level: 0, page, rtl: false, begins: true, runs: [] };
}

/**
 * @param {Block[]} blocks
 * @returns {Map<number, number>} letters by page
 */
function lettersOf(blocks) {
  /** @type {Map<number, number>} */
  const letters = new Map();
  for (const block of blocks) {
    let { page } = block;
    letters.set(page, letters.get(page) ?? 0);
    for (const run of block.runs) {
      if (typeof run === 'number') page = run;
      letters.set(page, (letters.get(page) ?? 0) + (typeof run === 'number' ? 0 : run.text.length));
    }
  }
  return letters;
}

/** @param {Block[]} blocks */
function split(blocks) {
  /** @type {Chunk[]} */
  const chunks = [];
  for (const block of blocks) {
    let chunk = chunks.at(-1);
    if (!chunk || (chunk.letters > CHUNK && block.begins)) {
      chunk = { blocks: [], pages: new Set(), last: 0, letters: 0 };
      chunks.push(chunk);
    }
    chunk.blocks.push(block);
    chunk.letters += block.kind === 'picture' ? PICTURE : (block.kind === 'figure' ? FIGURE : 0) + textOfBlock(block).length;
    for (const page of [block.begins ? block.page : '', ...block.runs]) {
      if (typeof page === 'number') chunk.pages.add(page);
    }
    chunk.last = Math.max(...chunk.pages);
  }
  return chunks;
}

/** @param {Block} block */
export function textOfBlock({ runs }) {
  return runs.map((run) => (typeof run === 'number' ? '' : run.text)).join('');
}

/**
 * Pages of which each file of the structure has the text. The next file may begin with the rest of a page.
 * @param {number[]} starts pages at which they begin
 * @param {number} pageCount
 * @returns {Part[]}
 */
export function partsOf(starts, pageCount) {
  return starts.map((start, index) => {
    const first = index ? start : 1;
    return { first, last: Math.max(first, index + 1 < starts.length ? starts[index + 1] - 1 : pageCount) };
  });
}
