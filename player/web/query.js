import { fold } from './foldtext.js';

/**
 * What the reader searches. Words are looked for as they stand, one after the other; where the book
 * has them nowhere so, the pages that have all of them are found. In quotation marks they are looked
 * for as they stand only.
 */
export class Query {
  /** @param {string} text as it was typed */
  constructor(text) {
    const typed = fold(text).text;
    const quoted = /^"(.*?)"?$/.exec(typed);
    const whole = (quoted ? quoted[1] : typed).trim();
    const words = [...new Set(whole.split(' ').filter(Boolean))];
    this.empty = whole === '';
    /** Parts that are looked for, the longest first. */
    this.parts = this.empty ? [] : [whole];
    /** @type {string[]} parts to look for when the first one is nowhere */
    this.words = quoted || words.length < 2 ? [] : words.sort((a, b) => b.length - a.length);
  }

  /** Looks for the single words from now on. */
  widen() {
    this.parts = this.words;
    this.words = [];
  }

  /**
   * Places of the parts in a folded text, in its order and not over one another; none unless it has
   * all of them.
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
