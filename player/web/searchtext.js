import { fold, sourceOf } from './foldtext.js';
import { listOf, textOf } from './facts.js';
import { pause } from './idle.js';
import { Query } from './query.js';

/** @typedef {{position: number, ordinal: number, at: number, length: number}} Hit at: in the page's folded text */
/** @typedef {{query: Query, hits: Hit[], more: boolean}} Answer */

/** Maximum number of hits listed. */
const MOST_HITS = 5000;

/** Time slice for folding texts, in milliseconds. */
const SLICE_MS = 8;

/** Characters of context before and after a hit, and of the text that they are taken from: dots of contents are not shown. */
const BEFORE = 30;
const BEHIND = 60;
const REACH = 400;

/** Stands at both ends of a hit while its context is made readable. */
const EDGE = '\uffff';

/** The text of the book, folded for searching in slices while the reader types. */
export class SearchText {
  /** @param {number[]} listings positions of pages of contents and indexes */
  constructor(listings) {
    this.listings = new Set(listings);
    /** @type {string[]} by position */
    this.texts = [];
    /** @type {string[]} */
    this.folded = [];
    /** Whether these are all texts of the book: hits on listings come last, so only then. */
    this.complete = false;
    /** Words that need not be a phrase, even where they are one. */
    this.apart = '';
  }

  /**
   * Adds the texts of the next pages; resolves when they can be searched.
   * @param {unknown} raw as their file has them
   */
  add(raw) {
    this.texts = this.texts.concat(listOf(raw).map(textOf));
    return this.#foldAll();
  }

  async #foldAll() {
    while (this.folded.length < this.texts.length) {
      await pause();
      const until = performance.now() + SLICE_MS;
      while (this.folded.length < this.texts.length && performance.now() < until) {
        this.folded.push(fold(this.texts[this.folded.length]).text);
      }
    }
  }

  /**
   * Searches the texts folded so far.
   * @param {string} typed
   * @returns {Answer}
   */
  find(typed) {
    const query = new Query(typed);
    const answer = this.#collect(query);
    if (query.words.length === 0 || (answer.hits.length > 0 && typed !== this.apart)) return answer;
    query.widen();
    return this.#collect(query);
  }

  /**
   * @param {Query} query
   * @returns {Answer}
   */
  #collect(query) {
    /** @type {Hit[]} */
    const hits = [];
    /** @type {Hit[]} */
    const last = [];
    /** @param {boolean} more */
    const answer = (more) => ({ query, hits: this.complete ? hits.concat(last) : hits, more });
    for (let index = 0; index < this.folded.length && !query.empty; index++) {
      const found = query.hitsIn(this.folded[index]);
      for (let ordinal = 0; ordinal < found.length; ordinal++) {
        if (hits.length + last.length === MOST_HITS) return answer(true);
        (this.listings.has(index + 1) ? last : hits)
          .push({ position: index + 1, ordinal, at: found[ordinal].at, length: found[ordinal].length });
      }
    }
    return answer(false);
  }

  /**
   * A hit and its context.
   * @param {Hit} hit
   * @returns {[before: string, hit: string, behind: string]}
   */
  excerpt({ position, at, length }) {
    const source = this.texts[position - 1];
    const [from, to] = sourceOf(source, fold(source, true, at + length), at, length);
    const first = Math.max(0, from - REACH);
    const text = plain(source.slice(first, from) + EDGE + source.slice(from, to) + EDGE + source.slice(to, to + REACH));
    const [head, hit, tail] = text.split(EDGE);
    const start = wordStart(head, head.length - BEFORE, head.length);
    const end = wordEnd(tail, BEHIND, 0);
    const behind = tail.slice(0, end);
    return [(start > 0 || first > 0 ? '\u2026' : '') + head.slice(start).replace(/^\u2026 /, ''), hit,
      end < tail.length || to + REACH < source.length ? behind.replace(/[.,;:\u2013\u2014-]+$/, '') + '\u2026' : behind];
  }
}

/**
 * @param {string} source
 * @param {number} wanted
 * @param {number} most
 */
function wordStart(source, wanted, most) {
  if (wanted <= 0) return 0;
  const gap = source.slice(wanted, most).search(/\s/);
  return gap < 0 ? unsplit(source, wanted) : wanted + gap + 1;
}

/**
 * @param {string} source
 * @param {number} wanted
 * @param {number} least
 */
function wordEnd(source, wanted, least) {
  if (wanted >= source.length) return source.length;
  const gap = /\s\S*$/.exec(source.slice(least, wanted));
  return gap ? least + gap.index : unsplit(source, wanted);
}

/**
 * Avoids splitting a surrogate pair.
 * @param {string} source
 * @param {number} at
 */
function unsplit(source, at) {
  return /[\udc00-\udfff]/.test(source[at]) ? at + 1 : at;
}

const RUNS_ON = /([\u3001-\u30ff\u3400-\u9fff\uac00-\ud7a3\uf900-\ufaff]\uffff?)\n(?=\uffff?[\u3001-\u30ff\u3400-\u9fff\uac00-\ud7a3\uf900-\ufaff])/g;
const SPLIT_WORD = /(\p{L}\uffff?)[-\u00ad\u2010](\uffff?)\n(?=\uffff?\p{Ll})/gu;
const DOTS = /\s*(?:[.\u00b7\u2024-\u2026_]\s*){4,}/g;

/**
 * A text as it is read: without line ends and the hyphens there, and without the dots of contents.
 * @param {string} text
 */
function plain(text) {
  return text.replace(SPLIT_WORD, '$1$2').replace(RUNS_ON, '$1').replace(DOTS, ' \u2026 ').replace(/\s+/g, ' ');
}
