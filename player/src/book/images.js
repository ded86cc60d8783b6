import { fileAddress } from './values.js';
import { say } from './words.js';

/** @typedef {import('./config.js').PageEntry} PageEntry */
/**
 * @typedef {object} PageImage
 * @property {HTMLImageElement} image
 * @property {boolean} [photo] whether it is known to be a photograph to its edges
 * @property {'loading' | 'ready' | 'missing'} state
 * @property {Promise<void>} settled kept when the image has arrived or failed
 */

/** Page images kept at a time, whatever the length of the book; one more is left for thumbnails. */
const MOST_IMAGES = 11;

/** Loads page images and caches the ones in use. */
export class PageImages {
  /**
   * @param {PageEntry[]} pages
   * @param {(page: number) => void} changed called when an image has arrived or failed
   */
  constructor(pages, changed) {
    this.pages = pages;
    this.changed = changed;
    /** @type {Map<number, PageImage>} */
    this.kept = new Map();
  }

  /**
   * Starts loading pages and drops all others.
   * @param {number[]} wanted page numbers, the most urgent first
   * @param {number} urgent how many of them are to be seen now
   */
  want(wanted, urgent) {
    const pages = [...new Set(wanted)].slice(0, MOST_IMAGES);
    for (const [page, entry] of this.kept) {
      if (!pages.includes(page)) this.#drop(page, entry);
    }
    pages.forEach((page, index) => this.get(page, index < urgent));
  }

  /**
   * @param {number} page
   * @param {boolean} urgent seen now, not only likely to be seen next
   * @returns {PageImage}
   */
  get(page, urgent = true) {
    let entry = this.kept.get(page);
    if (!entry) {
      entry = { image: new Image(), photo: this.pages[page - 1].photo, state: 'loading', settled: Promise.resolve() };
      entry.image.setAttribute('fetchpriority', urgent ? 'high' : 'low');
      this.kept.set(page, entry);
      entry.settled = this.#load(page, entry);
    }
    return entry;
  }

  /** Requests pages that failed to load once more. */
  retry() {
    for (const [page, { state }] of this.kept) {
      if (state !== 'missing') continue;
      this.kept.delete(page);
      this.get(page);
    }
  }

  /**
   * @param {number} page
   * @param {PageImage} entry
   */
  async #load(page, entry) {
    entry.image.alt = say('page', page);
    entry.image.draggable = false;
    entry.image.decoding = 'async';
    try {
      const address = await fileAddress(this.pages[page - 1].path);
      if (this.kept.get(page) !== entry) return;
      entry.image.src = address;
      await entry.image.decode();
      entry.state = 'ready';
      // It is decoded already, so it may be painted in the very frame in which it is inserted.
      entry.image.decoding = 'sync';
    } catch {
      entry.state = 'missing';
    }
    if (this.kept.get(page) === entry) this.changed(page);
  }

  /**
   * @param {number} page
   * @param {PageImage} entry
   */
  #drop(page, entry) {
    this.kept.delete(page);
    entry.image.remove();
    if (entry.state === 'loading') entry.image.removeAttribute('src');
  }
}
