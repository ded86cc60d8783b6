import { bytesOf } from './base91.js';
import { fieldsOf, textOf } from './facts.js';

/** Letters that outlines may take in the runs of a page, far more than any real text needs. */
const MOST_OUTLINES = 8e6;

/** @typedef {{outline: string, advance: number}} Glyph */

/**
 * The SVG file of a page.
 * @param {unknown} data of the page's file
 */
export async function svgOf(data) {
  return expanded(await unpacked(textOf(fieldsOf(data).vectors)));
}

/**
 * A text that zlib has packed.
 * @param {string} letters of the packed bytes
 */
export function unpacked(letters) {
  const packed = new Blob([bytesOf(letters)]);
  return new Response(packed.stream().pipeThrough(new DecompressionStream('deflate'))).text();
}

/**
 * Vectors are an SVG file with a line for each glyph, outline and advance, and with runs of glyphs for text. Takes time
 * in proportion to the length, whatever the text is.
 * @param {string} vectors
 */
export function expanded(vectors) {
  /** @type {Glyph[]} */
  const glyphs = [];
  const room = { left: MOST_OUTLINES };
  return vectors.replace(/\n(![^\n]*)([^\n])/g, (_, letters, advance) => {
    const outline = pathOf(letters);
    return '<path id="g' + (glyphs.push({ outline, advance: codeOf(advance) }) - 1) + '" d="' + outline + '"/>';
  }).replace(/>([^<>\n]+)<\/g>/g, (_, run) => '>' + runOf(run, glyphs, room) + '</g>');
}

/** @param {string} outline commands and numbers, in which each point of a curve is relative to the one before it, too */
function pathOf(outline) {
  return outline.replace(/([!-&])([^!-&]*)/g, (_, command, letters) => {
    /** @type {number[]} */
    const numbers = [];
    for (const letter of letters) {
      const code = codeOf(letter);
      const before = command === '%' && numbers.length % 6 > 1 ? numbers[numbers.length - 2] : 0;
      numbers.push(before + (code % 2 ? -1 - code : code));
    }
    return 'mlhvcz'[codeOf(command) + 6] + numbers.join(' ');
  });
}

/**
 * One path with the outlines of all glyphs: browsers take twice as long for an element each.
 * @param {string} run letters of glyphs, before which stands how far the pen is moved, if it is
 * @param {Glyph[]} glyphs
 * @param {{left: number}} room letters that further outlines may take; beyond them glyphs are referred to
 */
function runOf(run, glyphs, room) {
  let x = 0;
  let y = 0;
  let path = '';
  const others = run.replace(/(-?\d{0,9})(?:,(-?\d{1,9}))?([^-,\d])/g, (_, /** @type {string} */ right, down = '', letter) => {
    const index = codeOf(letter) - 25;
    const { outline = '', advance = NaN } = glyphs[index] ?? {};
    x += Number(right);
    y += Number(down);
    const [left, top] = [x, y];
    x += advance;
    room.left -= outline.length;
    if (room.left < 0) return '<use href="#g' + index + '" x="' + left + '" y="' + top + '"/>';
    path += 'M' + left + ' ' + top + outline;
    return '';
  });
  return '<path d="' + path + '"/>' + others;
}

/** @param {string} letter */
function codeOf(letter) {
  return letter.charCodeAt(0) - 39;
}
