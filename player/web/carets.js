import { boxIn, distance, isUpright, runsBack } from './pagetext.js';

/** What a way along a line counts beside one from line to line: readers stop behind a line's end. */
const BESIDE = 0.4;

/**
 * Place between the letters of a page that is nearest to a point, null on a page without text.
 * @param {import('./pagetext.js').PageText} text
 * @param {number} x in the page's own units, as y
 * @param {number} y
 * @returns {{line: number, word: number, offset: number} | null} indices from 0
 */
export function caretIn({ lines }, x, y) {
  if (lines.length === 0) return null;
  const line = nearest(lines.map((one) => distance(one.box, x, y, isUpright(one) ? [1, BESIDE] : [BESIDE, 1])));
  const found = lines[line];
  const word = nearest(found.words.map((one) => distance(boxIn(found, one, 0, 1), x, y)));
  const { text, start, length } = found.words[word];
  const along = isUpright(found) ? y - found.box.y : x - found.box.x;
  const share = Math.min(1, Math.max(0, (along - start) / length));
  const fromStart = runsBack(found, found.words[word]) ? 1 - share : share;
  return { line, word, offset: Math.round(fromStart * text.trimEnd().length) };
}

/** @param {number[]} distances */
function nearest(distances) {
  return distances.indexOf(Math.min(...distances));
}

/**
 * From where to where the word runs that a place in a text lies in.
 * @param {string} text
 * @param {number} offset
 * @returns {[number, number]}
 */
export function wordAround(text, offset) {
  // The word that a browser would mark: without signs beside it, and of scripts without spaces not the whole line.
  const parts = 'Segmenter' in Intl ? [...new Intl.Segmenter(undefined, { granularity: 'word' }).segment(text)] : [];
  const word = parts.find(({ isWordLike, index, segment }) =>
    isWordLike && index <= offset && offset <= index + segment.length);
  return word ? [word.index, word.index + word.segment.length] : [0, text.trimEnd().length];
}
