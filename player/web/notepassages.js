import { anchorAt, findAnchor, searched } from './noteanchors.js';
import { wordsIn } from './selecting.js';

/** @typedef {import('./noteanchors.js').Anchor} Anchor */
/** @typedef {{page: number, anchor: Anchor}} Passage part of a page's text */

/** Elements of the reading view that have text of their own. */
export const BLOCKS = 'h2,h3,h4,h5,h6,p:not(.read-title),li,pre,tr';

/** Letters before and behind a passage by which it is found on its page. */
const AROUND = 60;

/**
 * What is selected on the pages, one passage for each page.
 * @param {Selection} selection
 * @param {import('./layers.js').Layers} layers
 * @returns {Passage[]}
 */
export function passagesOnPages(selection, layers) {
  const words = selection.isCollapsed ? [] : wordsIn(selection, layers);
  return layers.faces.flatMap((face) => {
    const own = words.filter((one) => one.face === face);
    if (own.length === 0 || !face.text) return [];
    const source = face.text.string;
    const last = own[own.length - 1];
    const from = offsetOf(face.text, own[0].word) + own[0].from;
    const to = offsetOf(face.text, last.word) + last.to;
    return passageIn(face.position, source, from, to);
  });
}

/**
 * @param {number} page
 * @param {string} source
 * @param {number} from
 * @param {number} to
 * @returns {Passage[]} none of blanks only
 */
function passageIn(page, source, from, to) {
  const text = source.slice(from, to);
  const start = from + text.length - text.trimStart().length;
  const end = start + text.trim().length;
  return end > start ? [{ page, anchor: anchorAt(source, start, end) }] : [];
}

/**
 * Where a word begins in its page's text.
 * @param {import('./pagetext.js').PageText} text
 * @param {Element} word
 */
function offsetOf(text, word) {
  // Lines lie in headings, paragraphs and lists, and what stands for a link lies between words.
  const line = /** @type {Element} */ (word.closest('.line'));
  const lineIndex = [.../** @type {Element} */ (line.closest('.text-layer')).querySelectorAll('.line')].indexOf(line);
  const wordIndex = [...line.querySelectorAll('.word')].indexOf(word);
  /** @param {import('./pagetext.js').Word[]} words */
  const lengthOf = (words) => words.reduce((sum, one) => sum + one.text.length, 0);
  const before = text.lines.slice(0, lineIndex).reduce((sum, { words }) => sum + lengthOf(words) + 1, 0);
  return before + lengthOf(text.lines[lineIndex].words.slice(0, wordIndex));
}

/**
 * Whether there is text of the book in what is selected in the reading view, which also has titles.
 * @param {Range} range
 * @param {Element} article
 */
export function hasPassages(range, article) {
  return piecesOf(range, article).length > 0;
}

/**
 * The beginning and the end of a range, by the texts in which they are.
 * @param {Range} range
 * @returns {Range[]}
 */
export function endsOf(range) {
  const { startContainer: first, endContainer: last } = range;
  if (first === last) return [range];
  const [start, end] = [range.cloneRange(), range.cloneRange()];
  start.setEnd(first, first instanceof Text ? first.length : first.childNodes.length);
  end.setStart(last, 0);
  return [start, end];
}

/**
 * What is selected in the reading view, by pages. A part that is not found on its page as a whole, since something else
 * stands between, is taken paragraph by paragraph.
 * @param {Range} range
 * @param {Element} article
 * @param {import('./pagetexts.js').PageTexts} texts
 * @returns {Promise<Passage[]>}
 */
export async function passagesInText(range, article, texts) {
  const passages = [];
  for (const { page, part } of byPages(range, article)) {
    const source = (await texts.get(page))?.string ?? '';
    const pieces = piecesOf(part, article);
    const whole = placed(page, source, pieces);
    const found = whole ?? pieces.flatMap((piece) => placed(page, source, [piece]) ?? []);
    if (pieces.length > 0) passages.push(...(found.length > 0 ? found : [{ page, anchor: loose(pieces) }]));
  }
  return passages;
}

/**
 * @param {Range} range
 * @param {Element} article
 */
function byPages(range, article) {
  const marks = /** @type {HTMLElement[]} */ ([...article.querySelectorAll('[data-page]')]);
  const before = marks.filter((mark) => range.comparePoint(mark, 0) < 0).pop();
  const within = marks.filter((mark) => range.comparePoint(mark, 0) === 0);
  const parts = [];
  let page = Number((before ?? within[0])?.dataset.page) || 1;
  let rest = range.cloneRange();
  for (const mark of within) {
    const part = rest.cloneRange();
    part.setEndBefore(mark);
    parts.push({ page, part });
    rest = rest.cloneRange();
    rest.setStartAfter(mark);
    page = Number(mark.dataset.page) || page;
  }
  parts.push({ page, part: rest });
  return parts.filter(({ part }) => part.toString().trim());
}

/** @typedef {{text: string, before: string, after: string}} Piece of a block */

/**
 * @param {Range} range
 * @param {Element} article
 * @returns {Piece[]}
 */
function piecesOf(range, article) {
  return [...article.querySelectorAll(BLOCKS)].filter((block) => range.intersectsNode(block)).map((block) => {
    const whole = document.createRange();
    whole.selectNodeContents(block);
    const [before, inside, after] = [whole, whole, whole].map((one) => one.cloneRange());
    if (whole.comparePoint(range.startContainer, range.startOffset) === 0) inside.setStart(range.startContainer, range.startOffset);
    if (whole.comparePoint(range.endContainer, range.endOffset) === 0) inside.setEnd(range.endContainer, range.endOffset);
    before.setEnd(inside.startContainer, inside.startOffset);
    after.setStart(inside.endContainer, inside.endOffset);
    return { text: inside.toString(), before: before.toString().slice(-AROUND), after: after.toString().slice(0, AROUND) };
  }).filter(({ text }) => text.trim());
}

/**
 * @param {Piece[]} pieces
 * @returns {Anchor}
 */
function loose(pieces) {
  const quote = pieces.map(({ text }) => text.trim()).join('\n');
  return { quote, before: pieces[0].before, after: pieces[pieces.length - 1].after, at: 0 };
}

/**
 * @param {number} page
 * @param {string} source
 * @param {Piece[]} pieces
 * @returns {Passage[] | null}
 */
function placed(page, source, pieces) {
  const found = pieces.length > 0 && findAnchor(searched(source), loose(pieces));
  return found ? passageIn(page, source, found.from, found.to) : null;
}
