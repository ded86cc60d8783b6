import { bytesOf } from '../src/book/base64.js';

/** Addresses of pictures that are kept at a time; what has been loaded needs its address no more. */
const MOST_ADDRESSES = 40;

/** Pictures that come and go with the pages; the few others (grounds, sounds) keep their addresses. */
const PASSING = /^(?:page|thumb|large)\//;

/** The files of a book that is one file: they stand in its page. */
export class SingleFile {
  /** Whether this book is one: only then the configuration was there before anything was loaded. */
  static get here() {
    return window.folveroConfiguration.here;
  }

  constructor() {
    /** @type {Map<string, HTMLScriptElement> | null} */
    this.elements = null;
    /** @type {Map<string, string>} addresses by path, the longest unused first */
    this.addresses = new Map();
    /** @type {Promise<void>} kept when all of the page has been read */
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
   * Address of a picture or a sound, made when it is asked for.
   * @param {string} path below the book's files
   * @returns {string | undefined} none for what is not in the page
   */
  address(path) {
    let address = this.addresses.get(path);
    if (!address) {
      const element = this.#element(path);
      if (!element) return undefined;
      const bytes = bytesOf((element.textContent ?? '').trim());
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
