import { PageText } from './pagetext.js';

/** @typedef {import('./data.js').DataFiles} DataFiles */
/** @typedef {import('./facts.js').Facts} Facts */

/** Cached pages. */
const MOST_TEXTS = 12;

/** Loads the text of pages and caches that of the last ones. */
export class PageTexts {
  /**
   * @param {DataFiles} files
   * @param {Facts} facts
   */
  constructor(files, facts) {
    this.files = files;
    this.facts = facts;
    /** @type {Map<number, Promise<PageText | null>>} the longest unused first */
    this.kept = new Map();
  }

  /**
   * @param {number} position
   * @returns {Promise<PageText | null>} none for a page without text
   */
  get(position) {
    if (!this.facts.isOpen(position)) return Promise.resolve(null);
    const kept = this.kept.get(position) ?? this.#load(position);
    this.kept.delete(position);
    this.kept.set(position, kept);
    const [oldest] = this.kept.keys();
    if (this.kept.size > MOST_TEXTS) this.kept.delete(oldest);
    return kept;
  }

  /** @param {number} position */
  async #load(position) {
    try {
      return new PageText(await this.files.load('text/' + this.facts.numberOf(position)));
    } catch {
      // The page is shown without its words; the next time they are requested again.
      this.kept.delete(position);
      return null;
    }
  }
}
