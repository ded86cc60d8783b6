/**
 * Texts as they are compared when the reader searches: without case, marks above and below letters,
 * hyphens and line ends. A text and what is searched in it are folded alike.
 */

/** What compatibility forms and lower case leave different but readers take for the same. */
const SAME = new Map(Object.entries({
  'ß': 'ss', 'ø': 'o', 'æ': 'ae', 'œ': 'oe', 'ł': 'l', 'đ': 'd', 'ı': 'i', 'ς': 'σ',
  'ٱ': 'ا', 'ى': 'ي', 'ی': 'ي', 'ک': 'ك', 'ة': 'ه', 'ـ': '',
  '\u2018': "'", '\u2019': "'", '\u201a': "'", '\u201b': "'", '\u2039': "'", '\u203a': "'", '\u2032': "'",
  '\u201c': '"', '\u201d': '"', '\u201e': '"', '\u201f': '"', '\u00ab': '"', '\u00bb': '"', '\u2033': '"',
  '\u2010': '-', '\u2011': '-', '\u2012': '-', '\u2013': '-', '\u2014': '-', '\u2015': '-', '\u2212': '-',
}));

const SPACE = 1;
const LINE_END = 2;
const HYPHEN = 3;
const SOFT_HYPHEN = 4;
const LETTER = 5;
const CJK_LETTER = 6;
const OTHER = 7;

const CJK = /[\p{Script=Han}\p{Script=Hiragana}\p{Script=Katakana}\p{Script=Hangul}\p{Script=Bopomofo}\u3001-\u303f\u30fc\uff00-\uffef]/u;

/** @typedef {{piece: string, kind: number}} FoldedCharacter */
/** @typedef {{text: string, starts: number[], ends: number[]}} Folded text, and where its characters come from */

/** @type {Map<string, FoldedCharacter>} */
const known = new Map();

/**
 * @param {string} character
 * @returns {FoldedCharacter}
 */
function foldCharacter(character) {
  let folded = known.get(character);
  if (!folded) {
    const plain = character.toLowerCase().normalize('NFKD').replace(/[\p{M}\p{Cf}\s]/gu, '');
    const piece = [...plain].map((one) => SAME.get(one) ?? one).join('');
    folded = { piece, kind: kindOf(character, piece) };
    known.set(character, folded);
  }
  return folded;
}

/**
 * @param {string} character
 * @param {string} piece
 */
function kindOf(character, piece) {
  if (character === '\n') return LINE_END;
  if (/\s/.test(character)) return SPACE;
  if (character === '\u00ad') return SOFT_HYPHEN;
  if (piece === '-') return HYPHEN;
  if (CJK.test(character)) return CJK_LETTER;
  return /\p{L}/u.test(character) ? LETTER : OTHER;
}

/**
 * @param {string} source
 * @param {boolean} placed whether it is to be known where each character comes from
 * @returns {Folded}
 */
export function fold(source, placed = false) {
  let text = '';
  /** @type {number[]} */
  const starts = [];
  /** @type {number[]} */
  const ends = [];
  let last = OTHER;
  // What has been passed since the last character and counts only by what follows.
  let gap = 0;
  let gapAt = 0;
  let hyphen = 0;
  let hyphenAt = 0;
  /** @param {string} piece @param {number} from @param {number} to */
  const add = (piece, from, to) => {
    text += piece;
    if (!placed) return;
    for (let index = 0; index < piece.length; index++) {
      starts.push(from);
      ends.push(to);
    }
  };
  for (let at = 0; at < source.length;) {
    const unit = source.charCodeAt(at);
    const character = unit >= 0xd800 && unit < 0xdc00 ? source.slice(at, at + 2) : source[at];
    const { piece, kind } = foldCharacter(character);
    const next = at + character.length;
    if (kind === SPACE || kind === LINE_END) {
      if (!gap) gapAt = at;
      gap = Math.max(gap, kind);
    } else if (kind === SOFT_HYPHEN || (kind === HYPHEN && !gap && !hyphen && isLetter(last))) {
      if (!gap && !hyphen) [hyphen, hyphenAt] = [kind, at];
    } else if (piece) {
      const joins = hyphen > 0 && gap !== SPACE && isLetter(kind) && isLetter(last);
      if (hyphen === HYPHEN && !joins) add('-', hyphenAt, hyphenAt + 1);
      const runsOn = gap === LINE_END && last === CJK_LETTER && kind === CJK_LETTER;
      if (gap && !joins && !runsOn && text) add(' ', gapAt, at);
      add(piece, at, next);
      [last, gap, hyphen] = [kind, 0, 0];
    }
    at = next;
  }
  return { text, starts, ends };
}

/** @param {number} kind */
function isLetter(kind) {
  return kind === LETTER || kind === CJK_LETTER;
}

/**
 * Part of the source from which a part of a folded text comes, with the marks that follow it.
 * @param {string} source
 * @param {Folded} folded placed
 * @param {number} at
 * @param {number} length
 * @returns {[from: number, to: number]}
 */
export function sourceOf(source, { starts, ends }, at, length) {
  let to = ends[at + length - 1];
  while (to < source.length && /\p{M}/u.test(source[to])) to++;
  return [starts[at], to];
}
