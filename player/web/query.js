import { fold } from './foldtext.js';

/**
 * A search query. It is searched for as a phrase first; if the book does not contain that, as words that must all be on
 * the page. In quotation marks it is searched for as a phrase only.
 */
export class Query {
  /** @param {string} text as it was typed */
  constructor(text) {
    const typed = fold(text).text;
    const quoted = /^"(.*?)"?$/.exec(typed);
    const whole = (quoted ? quoted[1] : typed).trim();
    const words = [...new Set(whole.split(' ').filter(Boolean))];
    this.empty = whole === '';
    /** Terms to find, the longest first. */
    this.parts = this.empty ? [] : [whole];
    /** @type {string[]} terms to find instead when the phrase has no hits */
    this.words = quoted || words.length < 2 ? [] : words.sort((a, b) => b.length - a.length);
  }

  /** Searches for the single words from now on. */
  widen() {
    this.parts = this.words;
    this.words = [];
  }

  /**
   * Matches in a folded text, in its order and without overlaps; none unless all terms match.
   * @param {string} folded
   * @returns {{at: number, length: number}[]}
   */
  hitsIn(folded) {
    const hits = [];
    for (const part of this.parts) {
      let at = folded.indexOf(part);
      if (at < 0) return [];
      for (; at >= 0; at = folded.indexOf(part, at + part.length)) hits.push({ at, length: part.length });
    }
    return this.parts.length > 1 ? inOrder(hits) : hits;
  }
}

/** @param {{at: number, length: number}[]} hits */
function inOrder(hits) {
  hits.sort((a, b) => a.at - b.at || b.length - a.length);
  let end = 0;
  return hits.filter(({ at, length }) => {
    if (at < end) return false;
    end = at + length;
    return true;
  });
}
