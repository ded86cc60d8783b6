import { fold, sourceOf } from './foldtext.js';

/** @typedef {import('./query.js').Query} Query */

/** Marks in texts without changing them, where the browser can do that. */
export class Marks {
  /** @param {HTMLElement} article */
  constructor(article) {
    this.article = article;
  }

  /**
   * Marks all that a query finds, and one of it in another colour.
   * @param {Query | null} query
   * @param {Range | null} current
   */
  showHits(query, current) {
    const ranges = query && !query.empty ? this.#blocks().flatMap((block) => rangesOf(block, query)) : [];
    setMark('read-hit', ranges);
    setMark('read-current', current ? [current] : []);
  }

  /** Elements that have text of their own. */
  #blocks() {
    return /** @type {HTMLElement[]} */ ([...this.article.querySelectorAll('h2,h3,h4,h5,h6,p,li,pre,tr')]);
  }

  /**
   * The place of a hit on a page.
   * @param {Query} query
   * @param {number} page
   * @param {number} ordinal among the hits of the page
   * @returns {Range | undefined}
   */
  find(query, page, ordinal) {
    const marks = /** @type {HTMLElement[]} */ ([...this.article.querySelectorAll('[data-page]')]);
    const begin = marks.find(({ dataset }) => Number(dataset.page) === page);
    const end = marks.find(({ dataset }) => Number(dataset.page) > page);
    const found = this.#blocks().flatMap((block) => rangesOf(block, query)).filter((range) =>
      (!begin || follows(begin, range)) && (!end || !follows(end, range)));
    return found[Math.min(ordinal, found.length - 1)];
  }
}

/**
 * @param {Node} mark
 * @param {Range} range
 */
function follows(mark, range) {
  return range.comparePoint(mark, 0) <= 0;
}

/**
 * @param {HTMLElement} block
 * @param {Query} query
 * @returns {Range[]}
 */
function rangesOf(block, query) {
  const source = block.textContent ?? '';
  const folded = fold(source, true);
  return query.hitsIn(folded.text).map(({ at, length }) => rangeIn(block, ...sourceOf(source, folded, at, length)));
}

/**
 * A part of an element's text.
 * @param {HTMLElement} element
 * @param {number} from
 * @param {number} to
 */
export function rangeIn(element, from, to) {
  const range = document.createRange();
  range.selectNodeContents(element);
  const walker = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
  let at = 0;
  let begun = false;
  for (let node = walker.nextNode(); node; node = walker.nextNode()) {
    const { length } = /** @type {Text} */ (node);
    if (!begun && from < at + length) {
      range.setStart(node, from - at);
      begun = true;
    }
    if (to <= at + length) {
      range.setEnd(node, Math.max(0, to - at));
      break;
    }
    at += length;
  }
  return range;
}

/**
 * @param {string} name of the highlight in the style sheet
 * @param {Range[]} ranges
 */
export function setMark(name, ranges) {
  const { CSS: css, Highlight: Made } = /** @type {any} */ (window);
  // Browsers before 2025 may have no highlights; they scroll to what was found.
  if (!css?.highlights || !Made) return;
  css.highlights.set(name, new Made(...ranges));
}
