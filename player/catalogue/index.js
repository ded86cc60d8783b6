import { DataFiles } from '../web/data.js';
import { Record } from './record.js';
import { markAll } from './postings.js';

/** @typedef {{first: string, name: string, size: number}} WordFile words from the first one on */
/** @typedef {{tag: string, slug: string, name: string, count: number}} Language */
/** @typedef {{word: string, lists: string[]}} Word lists: of books that have it in title, author and others */

/** Where a word is. */
export const TITLE = 0;
export const AUTHOR = 1;
export const OTHER = 2;

/** Bytes of words that may be loaded for the beginning of one; beyond that it has to be a whole word. */
const MOST_BYTES = 90000;

/** @param {unknown} value @returns {any[]} */
const listOf = (value) => (Array.isArray(value) ? value : []);

/** The data of the search, loaded as they are needed. Whatever they hold, what this gives is well formed. */
export class Index {
  constructor() {
    window.folveroFile = (path) => 'index/' + path;
    this.files = new DataFiles(null);
    /** @type {Map<string, Promise<any>>} */
    this.loaded = new Map();
    this.count = 0;
    this.recordsAFile = 1;
    this.filesAFolder = 1;
    /** @type {WordFile[]} in order */
    this.wordFiles = [];
    /** @type {Language[]} those with most books first */
    this.languages = [];
    /** @type {{decade: number, size: number}[]} 0 for books without a year */
    this.decades = [];
    /** @type {string[]} */
    this.authors = [];
    /** @type {string[]} */
    this.subjects = [];
  }

  /**
   * @param {string} name
   * @returns {Promise<any>}
   */
  #load(name) {
    const known = this.loaded.get(name);
    if (known) return known;
    const loading = this.files.load(name);
    this.loaded.set(name, loading);
    loading.catch(() => this.loaded.delete(name));
    return loading;
  }

  async open() {
    const start = await this.#load('start');
    this.count = Number(start.books) || 0;
    this.recordsAFile = Number(start.recordsAFile) || 1;
    this.filesAFolder = Number(start.filesAFolder) || 1;
    this.wordFiles = listOf(start.words).map(([first, name, size]) => ({ first, name, size }));
    this.languages = listOf(start.languages).map(([tag, slug, name, count]) => ({ tag, slug, name, count }));
    this.decades = listOf(start.decades).map(([decade, size]) => ({ decade, size }));
    this.authors = listOf(start.authors).map(String);
    this.subjects = listOf(start.subjects).map(String);
  }

  /** Marks for all books, none set. */
  marks() {
    return new Uint8Array(this.count);
  }

  /**
   * Words that begin with a term; the term only (whole) where too many would.
   * @param {string} term
   * @returns {Promise<{words: Word[], whole: boolean}>}
   */
  async words(term) {
    const after = this.wordFiles.findIndex(({ first }) => first > term);
    const own = Math.max(0, (after < 0 ? this.wordFiles.length : after) - 1);
    let end = own + 1;
    while (end < this.wordFiles.length && this.wordFiles[end].first.startsWith(term)) end++;
    const files = this.wordFiles.slice(own, end);
    const whole = files.reduce((bytes, { size }) => bytes + size, 0) > MOST_BYTES;
    const texts = await Promise.all((whole ? files.slice(0, 1) : files).map(({ name }) => this.#load('words/' + name)));
    const words = texts.flatMap((text) => String(listOf(text)[0] ?? '').split('\n'))
      .filter((line) => (whole ? line.startsWith(term + ' ') : line.startsWith(term)))
      .map((line) => {
        const [word, ...lists] = line.split(' ');
        return { word, lists };
      });
    return { words, whole };
  }

  /**
   * Marks of the books in a language.
   * @param {string} tag
   */
  async ofLanguage(tag) {
    const marks = this.marks();
    const language = this.languages.find((one) => one.tag === tag);
    if (language) markAll(String(listOf(await this.#load('languages/' + language.slug))[0] ?? ''), marks);
    return marks;
  }

  /**
   * Marks of the books of some years: those of the years' lists or, where these take less, all but those of the other
   * lists.
   * @param {number} from
   * @param {number} to
   */
  async ofYears(from, to) {
    const within = (/** @type {number} */ year) => year > 0 && year >= from && year <= to;
    const some = this.decades.filter(({ decade }) => decade > 0 && decade * 10 + 9 >= from && decade * 10 <= to);
    const others = this.decades.filter(({ decade }) => !within(decade * 10) || !within(decade * 10 + 9));
    const bytes = (/** @type {typeof some} */ decades) => decades.reduce((sum, { size }) => sum + size, 0);
    const inverse = bytes(others) < bytes(some);
    const marks = this.marks();
    const lists = (inverse ? others : some).map(({ decade }) => this.#load('years/' + decade));
    for (const years of await Promise.all(lists)) {
      for (const [year, list] of listOf(years)) if (within(year) !== inverse) markAll(String(list), marks);
    }
    return inverse ? marks.map((mark) => 1 - mark) : marks;
  }

  /**
   * @param {number} number
   * @returns {Promise<Record>}
   */
  async record(number) {
    const file = Math.floor(number / this.recordsAFile);
    const records = await this.#load(`books/${Math.floor(file / this.filesAFolder)}/${file}`);
    return new Record(listOf(records)[number % this.recordsAFile]);
  }
}
