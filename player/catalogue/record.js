import { bothFolded } from './words.js';

/** @param {unknown} value */
const textOf = (value) => (typeof value === 'string' ? value : '');

/** What the search knows of a book. */
export class Record {
  /** @param {unknown} raw as the file has it */
  constructor(raw) {
    const [key, title, authors, date, language, subjects, cover] = (Array.isArray(raw) ? raw : []).map(textOf);
    const known = /^[0-9a-f]{2}\/[A-Za-z0-9][A-Za-z0-9._-]*$/.test(key ?? '');
    /** Path of its page, without extension; empty for no book. */
    this.key = known ? key : '';
    this.title = title ?? '';
    this.authors = authors ?? '';
    this.date = date ?? '';
    this.language = language ?? '';
    this.subjects = subjects ?? '';
    this.cover = cover ?? '';
  }

  get id() {
    return this.key.slice(3);
  }

  /** The first number of four digits in the date; 0 for none. */
  get year() {
    return Number(/(?:^|\D)(\d{4})(?!\d)/.exec(this.date)?.[1] ?? 0);
  }

  /**
   * Whether the book is one that was looked for: the index knows neighbours of letters only, and may be another day's
   * than the records while a library is changed.
   * @param {import('./finding.js').Wanted} wanted
   */
  fits({ text, author, subject, language, from, to }) {
    /** @param {string[]} runs @param {string} own */
    const has = (runs, own) => {
      const folded = runs.length > 0 ? bothFolded(own) : '';
      return runs.every((run) => folded.includes(run));
    };
    return this.key !== ''
      && has(text.runs, [this.title, this.authors, this.subjects, this.date].join('\n'))
      && has(author.runs, this.authors) && has(subject.runs, this.subjects)
      && (!language || this.language === language)
      && (!from || this.year >= from) && (!to || (this.year > 0 && this.year <= to));
  }
}
