import { fold } from '../web/foldtext.js';

/** Letters of scripts that have no spaces between words. */
const UNSPACED = /[\p{Script=Han}\p{Script=Hiragana}\p{Script=Katakana}\p{Script=Bopomofo}\p{Script=Thai}\p{Script=Lao}\p{Script=Khmer}\p{Script=Myanmar}\u30fc]/u;
const LETTER = /[\p{L}\p{N}]/u;
const HYPHENS = /[-\u2010-\u2015]/g;

/** Characters of a word that the index keeps. */
const LONGEST_WORD = 32;

/**
 * Runs of letters and digits of a folded text; a run is of one kind of script.
 * @param {string} folded
 * @returns {{letters: string[], unspaced: boolean}[]}
 */
function runsOf(folded) {
  const runs = [];
  /** @type {{letters: string[], unspaced: boolean} | null} */
  let run = null;
  for (const letter of folded) {
    const unspaced = UNSPACED.test(letter);
    if (!LETTER.test(letter)) {
      run = null;
      continue;
    }
    if (!run || run.unspaced !== unspaced) {
      run = { letters: [], unspaced };
      runs.push(run);
    }
    run.letters.push(letter);
  }
  return runs;
}

/**
 * What the index has of a text, as the program makes it (src/util/FoldedText.h).
 * @param {string} text
 */
export function wordsOf(text) {
  const words = runsOf(bothFolded(text))
    .flatMap(({ letters, unspaced }) => (unspaced ? pairsOf(letters, true) : [wordOf(letters)]));
  return [...new Set(words)];
}

/**
 * Terms to look up for what was typed, each a word or its beginning; and the runs that a match must contain.
 * @param {string} typed
 */
export function termsOf(typed) {
  const runs = runsOf(fold(typed).text);
  const terms = runs.flatMap(({ letters, unspaced }) => (
    unspaced && letters.length > 1 ? pairsOf(letters, false) : [wordOf(letters)]));
  return { terms: [...new Set(terms)], runs: runs.map(({ letters }) => letters.join('')) };
}

/**
 * A text folded as it stands and with hyphens as spaces, so that words with hyphens are found whole and in parts.
 * @param {string} text
 */
export function bothFolded(text) {
  const parts = text.replace(HYPHENS, ' ');
  return fold(text).text + (parts === text ? '' : ' ' + fold(parts).text);
}

/** @param {string[]} letters */
function wordOf(letters) {
  return letters.slice(0, LONGEST_WORD).join('');
}

/**
 * @param {string[]} letters
 * @param {boolean} last whether the last letter counts by itself, too
 */
function pairsOf(letters, last) {
  return letters.slice(0, last ? letters.length : -1).map((letter, index) => letter + (letters[index + 1] ?? ''));
}
