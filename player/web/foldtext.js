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

/** Units of a text are put together at a time; engines take only so many arguments. */
const STRETCH = 4096;

/** Room for the text that is being folded: put together letter by letter it would keep the engine tidying up. */
let units = new Uint16Array(8192);

/** @type {FoldedCharacter[]} by code point; a book has millions of letters and few different ones */
const known = [];

/**
 * @param {number} code
 * @returns {FoldedCharacter}
 */
function foldCharacter(code) {
  const character = String.fromCodePoint(code);
  // Compatibility forms of capitals have no lower case of their own.
  const plain = character.normalize('NFKD').toLowerCase().replace(/[\p{M}\p{Cf}\s]/gu, '');
  const piece = [...plain].map((one) => SAME.get(one) ?? one).join('');
  const folded = { piece, kind: kindOf(character, piece) };
  known[code] = folded;
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
 * @param {number} most length after which the rest does not matter
 * @returns {Folded}
 */
export function fold(source, placed = false, most = Infinity) {
  let length = 0;
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
    if (length + piece.length > units.length) grow();
    for (let index = 0; index < piece.length; index++) {
      units[length++] = piece.charCodeAt(index);
      if (!placed) continue;
      starts.push(from);
      ends.push(to);
    }
  };
  for (let at = 0; at < source.length && length < most;) {
    const code = /** @type {number} */ (source.codePointAt(at));
    const { piece, kind } = known[code] ?? foldCharacter(code);
    const next = at + (code > 0xffff ? 2 : 1);
    if (kind === SPACE || kind === LINE_END) {
      if (!gap) gapAt = at;
      gap = Math.max(gap, kind);
    } else if (kind === SOFT_HYPHEN || (kind === HYPHEN && !gap && !hyphen && isLetter(last))) {
      if (gap || hyphen) {
        at = next;
        continue;
      }
      hyphen = kind;
      hyphenAt = at;
    } else if (piece) {
      const joins = hyphen > 0 && gap !== SPACE && isLetter(kind) && isLetter(last);
      if (hyphen === HYPHEN && !joins) add('-', hyphenAt, hyphenAt + 1);
      const runsOn = gap === LINE_END && last === CJK_LETTER && kind === CJK_LETTER;
      if (gap && !joins && !runsOn && length) add(' ', gapAt, at);
      add(piece, at, next);
      last = kind;
      gap = 0;
      hyphen = 0;
    }
    at = next;
  }
  return { text: textIn(length), starts, ends };
}

/**
 * The text that stands in the units.
 * @param {number} length
 */
function textIn(length) {
  let text = '';
  for (let at = 0; at < length; at += STRETCH) {
    text += String.fromCharCode(...units.subarray(at, Math.min(length, at + STRETCH)));
  }
  return text;
}

function grow() {
  const larger = new Uint16Array(2 * units.length);
  larger.set(units);
  units = larger;
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
