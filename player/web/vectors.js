import { bytesOf } from './base91.js';
import { fieldsOf, textOf } from './facts.js';

/**
 * The SVG file of a page.
 * @param {unknown} data of the page's file
 */
export async function svgOf(data) {
  const packed = new Blob([bytesOf(textOf(fieldsOf(data).vectors))]);
  return expanded(await new Response(packed.stream().pipeThrough(new DecompressionStream('deflate'))).text());
}

/**
 * Vectors are an SVG file with a line for each glyph, outline and advance, and with runs of glyphs for text. Takes time
 * in proportion to the length, whatever the text is.
 * @param {string} vectors
 */
export function expanded(vectors) {
  /** @type {number[]} */
  const advances = [];
  return vectors.replace(/\n(![^\n]*)([^\n])/g, (_, outline, advance) => '<path id="g'
    + (advances.push(codeOf(advance)) - 1) + '" d="' + pathOf(outline) + '"/>')
    .replace(/>([^<>\n]+)<\/g>/g, (_, run) => '>' + glyphsOf(run, advances) + '</g>');
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
 * @param {string} run letters of glyphs, before which stands how far the pen is moved, if it is
 * @param {number[]} advances
 */
function glyphsOf(run, advances) {
  let x = 0;
  let y = 0;
  return run.replace(/(-?\d{0,9})(?:,(-?\d{1,9}))?([^-,\d])/g, (_, /** @type {string} */ right, down = '', glyph) => {
    const index = codeOf(glyph) - 25;
    x += Number(right);
    y += Number(down);
    const use = '<use href="#g' + index + '" x="' + x + '" y="' + y + '"/>';
    x += advances[index];
    return use;
  });
}

/** @param {string} letter */
function codeOf(letter) {
  return letter.charCodeAt(0) - 39;
}
