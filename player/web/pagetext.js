import { fieldsOf, listOf, numberOf, textOf } from './facts.js';

/**
 * @typedef {{x: number, y: number, width: number, height: number}} Box
 * @typedef {{text: string, start: number, length: number}} Word
 * @typedef {object} Line
 * @property {Box} box
 * @property {0 | 90 | 180 | 270} turn degrees clockwise in which its text runs
 * @property {boolean} rtl
 * @property {Word[]} words in reading order
 *
 * @typedef {{box: Box, target: string | number}} PageLink
 * @typedef {{kind: string, lines: Line[]}} Part a heading ("h1" to "h6"), "p", "item", "note", "code", "row", "figure", or none of
 *   these, such as a running head
 */

const STRONG_RTL = /[\u0590-\u08ff\ufb1d-\ufdff\ufe70-\ufefc]|[\ud802\ud803\ud83a][\udc00-\udfff]/;
const STRONG_LTR = /[\p{L}\p{N}]/u;

/** Words and links of one page, in tenths of a point from its upper left corner. */
export class PageText {
  /** @param {unknown} data of the page's file */
  constructor(data) {
    const raw = fieldsOf(data);
    const [width, height] = listOf(raw.size).map(numberOf);
    this.width = width > 0 && Number.isFinite(width) ? width : 6000;
    this.height = height > 0 && Number.isFinite(height) ? height : 8000;
    const lines = listOf(raw.lines).map((line) => lineOf(listOf(line)));
    this.lines = lines.filter(hasWords);
    this.parts = partsOf(listOf(raw.blocks), lines);
    this.links = listOf(raw.links).filter((link) => Array.isArray(link)).map(linkOf);
  }

  /** All words of the page, as in the text for searching. */
  get string() {
    return this.lines.map(({ words }) => words.map(({ text }) => text).join('')).join('\n');
  }

  /** Height of an ordinary line, 0 without text. */
  get lineHeight() {
    const heights = this.lines.filter(({ turn }) => !turn).map(({ box }) => box.height).sort((a, b) => a - b);
    return heights[heights.length >> 1] ?? 0;
  }

  /**
   * Boxes of a part of the page's string, one for each line.
   * @param {number} from
   * @param {number} to
   * @returns {{box: Box, turn: number}[]}
   */
  boxesOf(from, to) {
    const boxes = [];
    let at = 0;
    for (const line of this.lines) {
      /** @type {Box | null} */
      let box = null;
      for (const word of line.words) {
        const { length } = word.text.trimEnd();
        const [first, last] = [Math.max(0, from - at), Math.min(length, to - at)];
        if (first < last) box = around(box, boxIn(line, word, first / length, last / length));
        at += word.text.length;
      }
      if (box) boxes.push({ box, turn: line.turn });
      at += 1;
      if (at >= to) break;
    }
    return boxes;
  }

  /**
   * The words whose middles lie in a box, with their lines and their places among all words of the page.
   * @param {Box} box
   */
  wordsIn(box) {
    let before = 0;
    return this.lines.flatMap((line) => {
      const first = before;
      before += line.words.length;
      return meet(line.box, box) ? line.words.map(({ text }, index) => ({ text: text.trim(), line, at: first + index }))
        .filter((_, index) => distance(box, ...middleOf(boxIn(line, line.words[index], 0, 1))) === 0) : [];
    });
  }
}

/**
 * @param {Box} one
 * @param {Box} other
 */
function meet(one, other) {
  return one.x <= other.x + other.width && other.x <= one.x + one.width
    && one.y <= other.y + other.height && other.y <= one.y + one.height;
}

/** @param {Box} box */
function middleOf({ x, y, width, height }) {
  return /** @type {const} */ ([x + width / 2, y + height / 2]);
}

/** @param {any[]} raw */
function boxOf(raw) {
  const [x, y, width, height] = raw.slice(0, 4).map((value) => (Number.isFinite(value) ? value : 0));
  return { x, y, width: Math.max(1, width), height: Math.max(1, height) };
}

/**
 * @param {any[]} raw
 * @returns {Line}
 */
function lineOf(raw) {
  const words = [];
  const list = listOf(raw[6]);
  for (let at = 0; at + 2 < list.length; at += 3) {
    const [start, length] = [numberOf(list[at + 1]) || 0, numberOf(list[at + 2]) || 0];
    if (textOf(list[at])) words.push({ text: list[at], start, length: Math.max(1, length) });
  }
  const turn = /** @type {0 | 90 | 180 | 270} */ ([90, 180, 270].find((one) => one === raw[4]) ?? 0);
  return { box: boxOf(raw), turn, rtl: raw[5] === 1, words };
}

/** @param {Line} line */
function hasWords({ words }) {
  return words.length > 0;
}

/**
 * @param {any[]} blocks kind and number of lines, in turn; the lines behind the last one are a part, too
 * @param {Line[]} lines
 */
function partsOf(blocks, lines) {
  /** @type {Part[]} */
  const parts = [];
  for (let at = 0, index = 0; at < lines.length; index += 2) {
    const end = at + (blocks[index + 1] >= 1 ? Number(blocks[index + 1]) : lines.length);
    const own = lines.slice(at, end).filter(hasWords);
    if (own.length > 0) parts.push({ kind: textOf(blocks[index]), lines: own });
    at = end;
  }
  return parts;
}

/**
 * @param {any[]} raw
 * @returns {PageLink}
 */
function linkOf(raw) {
  const target = raw[4];
  return { box: boxOf(raw), target: Number.isInteger(target) && target > 0 ? target : textOf(target) || 0 };
}

/**
 * Whether a line's text runs along the page's y axis.
 * @param {Line} line
 */
export function isUpright({ turn }) {
  return turn === 90 || turn === 270;
}

/**
 * Whether a word's first letter is at the far end of it, counted as start and length are.
 * @param {Line} line
 * @param {Word} word
 */
export function runsBack({ turn, rtl }, { text }) {
  const fromRight = STRONG_RTL.test(text) || (rtl && !STRONG_LTR.test(text));
  return (turn >= 180) !== fromRight;
}

/**
 * Place of a part of a word.
 * @param {Line} line
 * @param {Word} word
 * @param {number} from share of its letters, 0 to 1
 * @param {number} to
 * @returns {Box}
 */
export function boxIn(line, word, from, to) {
  const [first, last] = runsBack(line, word) ? [1 - to, 1 - from] : [from, to];
  const start = word.start + word.length * first;
  const length = word.length * (last - first);
  const { x, y, width, height } = line.box;
  return isUpright(line) ? { x, y: y + start, width, height: length } : { x: x + start, y, width: length, height };
}

/**
 * A box of the page as its line sees it: from the line's left edge and top where it would lie, were it not turned.
 * @param {Line} line
 * @param {Box} box
 * @returns {Box}
 */
export function boxAlong({ box: line, turn }, { x, y, width, height }) {
  const [left, top] = [x - line.x, y - line.y];
  const [right, bottom] = [line.width - left - width, line.height - top - height];
  if (turn === 90) return { x: top, y: right, width: height, height: width };
  if (turn === 180) return { x: right, y: bottom, width, height };
  if (turn === 270) return { x: bottom, y: left, width: height, height: width };
  return { x: left, y: top, width, height };
}

/**
 * Distance of a point from a box; 0 inside.
 * @param {Box} box
 * @param {number} x
 * @param {number} y
 * @param {[across: number, down: number]} weights
 */
export function distance(box, x, y, weights = [1, 1]) {
  const across = Math.max(box.x - x, 0, x - box.x - box.width);
  const down = Math.max(box.y - y, 0, y - box.y - box.height);
  return Math.hypot(across * weights[0], down * weights[1]);
}

/**
 * @param {Box | null} one
 * @param {Box} other
 * @returns {Box}
 */
function around(one, other) {
  if (!one) return other;
  const [x, y] = [Math.min(one.x, other.x), Math.min(one.y, other.y)];
  return {
    x, y, width: Math.max(one.x + one.width, other.x + other.width) - x,
    height: Math.max(one.y + one.height, other.y + other.height) - y,
  };
}
