import { AUTHOR, OTHER, TITLE } from './index.js';
import { markAll } from './postings.js';
import { termsOf } from './words.js';

/** @typedef {{q: string, author: string, subject: string, language: string, from: string, to: string}} Typed */
/** @typedef {ReturnType<typeof termsOf>} Terms */
/** @typedef {{text: Terms, author: Terms, subject: Terms, language: string, from: number, to: number}} Wanted */

/** A search: numbers of books, those whose titles match first and the newest of these before others. */
export class Finding {
  /**
   * @param {import('./index.js').Index} index
   * @param {Typed} typed
   */
  constructor(index, { q, author, subject, language, from, to }) {
    this.index = index;
    /** @type {Wanted} */
    this.wanted = { text: termsOf(q), author: termsOf(author), subject: termsOf(subject), language,
      from: Number.parseInt(from, 10) || 0, to: Number.parseInt(to, 10) || 0 };
    /** @type {number[]} */
    this.numbers = [];
    /** Numbers whose records were read, and how many of these did not fit. */
    this.read = 0;
    /** Whether a term is too short for words that only begin so. */
    this.short = false;
    this.dropped = 0;
  }

  /** Whether anything is looked for. */
  get empty() {
    const { text, author, subject, language, from, to } = this.wanted;
    return !text.terms.length && !author.terms.length && !subject.terms.length && !language && !from && !to;
  }

  /** Books that are known or likely to fit. */
  get count() {
    return this.numbers.length - this.dropped;
  }

  get done() {
    return this.read >= this.numbers.length;
  }

  async run() {
    const { text, author, subject, language, from, to } = this.wanted;
    const all = this.index.marks().fill(1);
    const first = this.index.marks().fill(1);
    const keep = (/** @type {Uint8Array} */ marks) => all.forEach((mark, number) => { all[number] = mark & marks[number]; });
    for (const term of text.terms) {
      const words = await this.#words(term);
      keep(this.#marksOf(words, [TITLE, AUTHOR, OTHER]));
      const titles = this.#marksOf(words, [TITLE]);
      first.forEach((mark, number) => { first[number] = mark & titles[number]; });
    }
    for (const [terms, field] of /** @type {[Terms, number][]} */ ([[author, AUTHOR], [subject, OTHER]])) {
      for (const term of terms.terms) keep(this.#marksOf(await this.#words(term), [field]));
    }
    if (language) keep(await this.index.ofLanguage(language));
    if (from || to) keep(await this.index.ofYears(from, to || Infinity));
    /** @type {number[]} */
    const rest = [];
    for (let number = all.length - 1; number >= 0; number--) {
      if (all[number]) (first[number] ? this.numbers : rest).push(number);
    }
    this.numbers = this.numbers.concat(rest);
  }

  /** @param {string} term */
  async #words(term) {
    const { words, whole } = await this.index.words(term);
    this.short ||= whole;
    return words;
  }

  /**
   * @param {import('./index.js').Word[]} words
   * @param {number[]} fields
   */
  #marksOf(words, fields) {
    const marks = this.index.marks();
    for (const { lists } of words) for (const field of fields) markAll(lists[field] ?? '', marks);
    return marks;
  }

  /**
   * The next books that fit.
   * @param {number} most
   */
  async next(most) {
    /** @type {import('./record.js').Record[]} */
    const found = [];
    while (found.length < most && !this.done) {
      const numbers = this.numbers.slice(this.read, this.read + most - found.length);
      const records = await Promise.all(numbers.map((number) => this.index.record(number)));
      const fitting = records.filter((record) => record.fits(this.wanted));
      this.read += numbers.length;
      this.dropped += numbers.length - fitting.length;
      found.push(...fitting);
    }
    return found;
  }
}
