import { bytesOf } from './base91.js';

/** Object URLs kept at a time; loaded images no longer need theirs. */
const MOST_ADDRESSES = 40;

/** Images of pages; the few other files (backgrounds, sounds) keep their URLs. */
const PASSING = /^(?:page|thumb|large)\//;

/** Files of a single-file book, which are embedded in its page. */
export class SingleFile {
  /** Whether this is such a book: its page contains the configuration. */
  static get here() {
    return window.folveroConfiguration?.here === true;
  }

  constructor() {
    /** @type {Map<string, HTMLScriptElement> | null} */
    this.elements = null;
    /** @type {Map<string, string>} addresses by path, the longest unused first */
    this.addresses = new Map();
    /** @type {Promise<void>} resolves when all of the page has been parsed */
    this.complete = document.readyState !== 'loading' ? Promise.resolve()
      : new Promise((resolve) => document.addEventListener('DOMContentLoaded', () => resolve()));
  }

  /** @param {string} path below the book's files */
  #element(path) {
    this.elements ??= new Map([...document.querySelectorAll('script[data-file]')].map((element) =>
      [/** @type {HTMLElement} */ (element).dataset.file ?? '', /** @type {HTMLScriptElement} */ (element)]));
    return this.elements.get(path);
  }

  /**
   * @param {string} name
   * @returns {Promise<unknown>}
   */
  async data(name) {
    await this.complete;
    const element = this.#element(name);
    if (!element) throw new Error(name + ' is missing');
    return JSON.parse(element.textContent ?? '');
  }

  /**
   * URL of an image or a sound, created on demand.
   * @param {string} path below the book's files
   * @returns {string | undefined} none for what is not in the page
   */
  address(path) {
    let address = this.addresses.get(path);
    if (!address) {
      const element = this.#element(path);
      if (!element) return undefined;
      const bytes = bytesOf(element.textContent ?? '');
      const type = element.dataset.type ?? '';
      address = URL.createObjectURL(new Blob([/** @type {BlobPart} */ (bytes)], { type }));
    }
    this.addresses.delete(path);
    this.addresses.set(path, address);
    this.#forget();
    return address;
  }

  #forget() {
    const passing = [...this.addresses].filter(([path]) => PASSING.test(path));
    for (const [path, address] of passing.slice(0, -MOST_ADDRESSES)) {
      this.addresses.delete(path);
      URL.revokeObjectURL(address);
    }
  }
}
