import { fileAddress, ownFile } from '../src/book/values.js';
import { fieldsOf, listOf, textOf } from './facts.js';

/** @typedef {import('../src/book/config.js').BookConfig} BookConfig */
/** @typedef {import('../src/book/config.js').PageEntry} PageEntry */

/** No book has more. */
const MOST_PAGES = 1e6;

/**
 * What a web book opens with, in its page: the settings, and all pages in few bytes. The book's files have the same at
 * length, so that it opens without this list, too.
 */
export class StartList {
  /** The list in the page, null where there is none or it is damaged. */
  static find() {
    try {
      const element = document.querySelector('script[data-file="web/start"]');
      return element && new StartList(JSON.parse(element.textContent ?? ''));
    } catch {
      return null;
    }
  }

  /** @param {unknown} data */
  constructor(data) {
    const raw = fieldsOf(data);
    /** Base64 of an enciphered configuration that has the settings, and the first page only. */
    this.settings = textOf(raw.settings);
    atob(this.settings);
    const numbers = unpacked(raw.numbers, 1);
    const kinds = unpacked(raw.runs, 0).map((kind) => listOf(listOf(raw.kinds)[kind]).map(textOf));
    const [width, height, thumbWidth, thumbHeight] = listOf(raw.sizes).map(Number);
    /** @param {number} which @param {number} w @param {number} h @returns {PageEntry[]} */
    const entries = (which, w, h) => kinds.map((kind, index) =>
      ({ path: ownFile(kind[which].replace('#', String(numbers[index]))), width: w, height: h }));
    this.pages = entries(0, width, height).map((entry, index) => ({ ...entry, photo: kinds[index][3] === 'photo' }));
    this.thumbs = entries(1, thumbWidth, thumbHeight);
    /** Pictures that a reader needs next who begins where the book does. */
    this.next = listOf(raw.next).map((position) => this.pages[position - 1]?.path).filter(Boolean);
    const fits = this.settings && kinds.length > 0 && kinds.length === numbers.length && width > 0 && height > 0;
    if (!fits) throw new Error('damaged');
    const facts = fieldsOf(raw.facts);
    /** In the form of web/book, but of the contents only whether there are any. */
    this.facts = { ...facts, numbers, large: kinds.map((kind) => kind[2]), labels: listOf(facts.labels).flatMap(labelsOf) };
  }

  /** Keeps the player from asking for the configuration. */
  announce() {
    window.FolveroUserConfig = this.settings;
    window.folveroConfiguration = { ...window.folveroConfiguration, here: true, whole: true };
  }

  /** Requests those pictures early: the book does so only once the first one has arrived, by which it is laid out. */
  askForNext() {
    for (const path of this.next) {
      const link = document.createElement('link');
      Object.assign(link, { rel: 'preload', as: 'image', fetchPriority: 'low', href: fileAddress(path) });
      document.head.append(link);
    }
  }

  /** @param {BookConfig} config of the first page */
  complete(config) {
    config.pages = this.pages;
    config.thumbs = this.thumbs;
  }
}

/**
 * @param {unknown} runs the first value and the length of each, in turn
 * @param {number} step between the values of a run
 */
function unpacked(runs, step) {
  /** @type {number[]} */
  const values = [];
  const list = listOf(runs);
  for (let at = 0; at < list.length; at += 2) {
    const [first, length] = [list[at], list[at + 1]];
    if (!Number.isSafeInteger(first) || !(length > 0 && values.length + length <= MOST_PAGES)) throw new Error('damaged');
    for (let index = 0; index < length; index++) values.push(first + index * step);
  }
  return values;
}

/**
 * @param {unknown} run a label, or a prefix, the first number after it, and how many labels count on from there
 * @returns {string[]}
 */
function labelsOf(run) {
  if (!Array.isArray(run)) return [textOf(run)];
  const [prefix, first, length] = run;
  return unpacked([first, length], 1).map((number) => prefix + number);
}
