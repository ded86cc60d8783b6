import { bytesOf } from './base91.js';
import { svgOf, unpacked } from './vectors.js';

/** Object URLs kept at a time; loaded images no longer need theirs. */
const MOST_ADDRESSES = 40;

/** Images of pages; the few other files (backgrounds, sounds) keep their URLs. */
const PASSING = /^(?:page|thumb|large)\//;

/** Pages that the book has as vectors only. */
const DRAWN = /^(large\/\d+)\.js$/;

/** Time for which pages wait for a turn to end, and between looks at it, in milliseconds. */
const LONGEST_TURN = 1200;
const STEP = 50;

/** Loads nothing, so that what asks for a missing file reports it. */
const NOWHERE = 'data:,';

/** Files of a single-file book, which are embedded at the end of its page and read while that is still arriving. */
export class SingleFile {
  constructor() {
    /** @type {Map<string, HTMLElement>} what has arrived */
    this.elements = new Map();
    /** @type {Element | null} the last of these */
    this.last = null;
    /** @type {Promise<void> | null} resolves when more has arrived */
    this.arriving = null;
    /** @type {Map<string, string | Promise<string>>} addresses by path, the longest unused first */
    this.addresses = new Map();
  }

  /**
   * @param {string} name
   * @returns {Promise<unknown>}
   */
  async data(name) {
    const element = await this.#element(name);
    if (!element) throw new Error(name + ' is missing');
    return JSON.parse(await textOf(element));
  }

  /**
   * URL of an image, a sound or a script, created on demand; where it is still on its way or packed, a promise.
   * @param {string} path below the book's files
   * @returns {string | Promise<string>}
   */
  address(path) {
    let address = this.addresses.get(path);
    if (!address) {
      const element = this.#arrived(path);
      address = element && !isPacked(element) ? addressOf(element) : this.#later(path);
    }
    this.addresses.delete(path);
    this.addresses.set(path, address);
    this.#forget();
    return address;
  }

  /** @param {string} path */
  async #later(path) {
    const address = await this.#make(path).catch(() => NOWHERE);
    this.addresses.set(path, address);
    return address;
  }

  /** @param {string} path */
  async #make(path) {
    const [, vectors] = DRAWN.exec(path) ?? [];
    if (vectors) {
      const data = await this.data(vectors);
      await landing();
      return addressOfText(await svgOf(data), 'image/svg+xml');
    }
    const element = await this.#element(path);
    if (!element) return NOWHERE;
    return isPacked(element) ? addressOfText(await textOf(element), 'text/javascript') : addressOf(element);
  }

  /**
   * The element of a file once it has arrived, none where the page has none.
   * @param {string} path
   */
  async #element(path) {
    for (;;) {
      const isComplete = document.readyState !== 'loading';
      const element = this.#arrived(path);
      if (element || isComplete) return element;
      this.arriving ??= this.#more();
      await this.arriving;
    }
  }

  /** @param {string} path */
  #arrived(path) {
    const isComplete = document.readyState !== 'loading';
    let next = this.last ? this.last.nextElementSibling : document.querySelector('body > script[data-file]');
    // The text of the very last element may still be growing.
    for (; next && (next.nextSibling || isComplete); next = next.nextElementSibling) {
      const { file } = /** @type {HTMLElement} */ (next).dataset;
      if (!file) continue;
      this.elements.set(file, /** @type {HTMLElement} */ (next));
      this.last = next;
    }
    return this.elements.get(path);
  }

  /** @returns {Promise<void>} */
  #more() {
    return new Promise((resolve) => {
      const arrived = () => {
        observer.disconnect();
        document.removeEventListener('DOMContentLoaded', arrived);
        this.arriving = null;
        resolve();
      };
      const observer = new MutationObserver(arrived);
      observer.observe(document.body ?? document.documentElement, { childList: true });
      document.addEventListener('DOMContentLoaded', arrived);
    });
  }

  #forget() {
    const passing = [...this.addresses].filter(([path, address]) => PASSING.test(path) && typeof address === 'string');
    for (const [path, address] of passing.slice(0, -MOST_ADDRESSES)) {
      this.addresses.delete(path);
      URL.revokeObjectURL(/** @type {string} */ (address));
    }
  }
}

/**
 * Waits until no leaf is in the air: vectors of a page take browsers longer than a frame. The pages of a turn are there
 * already. A reader who turns on and on gets the next ones in the middle of a turn.
 */
async function landing() {
  const root = document.getElementById('folvero');
  for (let waited = 0; root?.dataset.air === 'yes' && waited < LONGEST_TURN; waited += STEP) {
    await new Promise((resolve) => { setTimeout(resolve, STEP); });
  }
}

/** @param {HTMLElement} element */
function isPacked({ dataset }) {
  return dataset.packed !== undefined;
}

/**
 * @param {HTMLElement} element of data or a script
 * @returns {string | Promise<string>}
 */
function textOf(element) {
  const text = element.textContent ?? '';
  return isPacked(element) ? unpacked(text) : text;
}

/** @param {HTMLElement} element */
function addressOf({ textContent, dataset }) {
  const bytes = bytesOf(textContent ?? '');
  return URL.createObjectURL(new Blob([/** @type {BlobPart} */ (bytes)], { type: dataset.type ?? '' }));
}

/**
 * @param {string} text
 * @param {string} type
 */
function addressOfText(text, type) {
  return URL.createObjectURL(new Blob([text], { type }));
}
