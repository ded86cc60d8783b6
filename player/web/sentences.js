/** @typedef {{from: number, to: number}} Sentence place in a text, without blanks around it */

/** Longer ones are spoken in parts: some browsers break off after a quarter of a minute. */
const LONGEST = 220;

/** What ends with a dot and no sentence: initials, "Fig.", "z.B.", numbers. */
const ABBREVIATED = /(?:^|[\s(])(?:\p{Lu}|\p{L}\.\s?\p{L}|\p{N}+|\p{L}{1,4}|vgl|bzw|usw)\.\s*$/u;

/** How no sentence begins. */
const GOES_ON = /^[\s"'(\u201c\u2018]*[\p{Ll}\p{N}]/u;

/**
 * The sentences of a paragraph.
 * @param {string} text
 * @param {string} language empty where it is not known
 * @returns {Sentence[]}
 */
export function sentencesOf(text, language) {
  /** @type {Sentence[]} */
  const joined = [];
  for (const [from, to] of piecesOf(text, language)) {
    const last = joined.at(-1);
    if (last && ABBREVIATED.test(text.slice(last.from, last.to)) && GOES_ON.test(text.slice(from, to))) last.to = to;
    else joined.push({ from, to });
  }
  return joined.flatMap((sentence) => parts(text, sentence)).flatMap(({ from, to }) => {
    const own = text.slice(from, to);
    const begin = from + own.length - own.trimStart().length;
    const end = to - (own.length - own.trimEnd().length);
    // Dots and dashes alone are not spoken.
    return /[\p{L}\p{N}]/u.test(own) ? [{ from: begin, to: end }] : [];
  });
}

/**
 * @param {string} text
 * @param {string} language
 * @returns {[from: number, to: number][]}
 */
function piecesOf(text, language) {
  const { Segmenter } = /** @type {any} */ (Intl);
  // Firefox has it from 125 on.
  const found = Segmenter ? [...new Segmenter(language || undefined, { granularity: 'sentence' }).segment(text)]
    : [...text.matchAll(/[^]*?(?:[.!?\u061f]+["'\u201d\u2019)]*(?=\s|$)|[\u3002\uff01\uff1f]|$)\s*/gu)];
  return found.map((one) => [one.index, one.index + (one.segment ?? one[0]).length]);
}

/**
 * @param {string} text
 * @param {Sentence} sentence
 * @returns {Sentence[]} the sentence, in parts at commas or blanks where it is long
 */
function parts(text, { from, to }) {
  /** @type {Sentence[]} */
  const all = [];
  let begin = from;
  while (to - begin > LONGEST) {
    const piece = text.slice(begin, begin + LONGEST);
    const cut = /.*(?:[,;:\u2013\u2014](?=\s)|[\u3001\uff0c\uff1b])/su.exec(piece)?.[0].length ?? 0;
    const blank = piece.lastIndexOf(' ') + 1;
    const length = cut > LONGEST / 3 ? cut : blank || LONGEST;
    all.push({ from: begin, to: begin + length });
    begin += length;
  }
  return [...all, { from: begin, to }];
}
