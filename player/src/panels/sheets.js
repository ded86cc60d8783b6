import { make, part } from '../book/dom.js';
import { loadFile } from '../book/values.js';
import { say } from '../book/words.js';

/** @typedef {import('../book/config.js').PageEntry} PageEntry */

/** Pages for the printer, one a sheet; their images are loaded for printing only. */
export class Sheets {
  /**
   * @param {PageEntry[]} pages
   * @param {() => number[]} pagesInView printed when the reader uses the browser's own command
   */
  constructor(pages, pagesInView) {
    this.pages = pages;
    this.element = part(document, '.sheets');
    this.run = 0;
    /**
     * The picture of a page once it has loaded, of so many in a print; web books may have another one for the printer.
     * @type {(page: number, count: number) => Promise<HTMLImageElement>}
     */
    this.load = (page) => loaded(this.#picture(page));
    window.addEventListener('beforeprint', () => {
      if (this.element.childElementCount === 0) this.#lay(pagesInView().map((page) => sheet(this.#picture(page))));
    });
    window.addEventListener('afterprint', () => this.clear());
  }

  get imagesKept() {
    return this.element.querySelectorAll('img').length;
  }

  /**
   * Loads pages one after the other and prints them.
   * @param {number[]} pages
   * @param {(done: number) => void} progress
   * @returns {Promise<boolean>} false when it was cancelled
   */
  async print(pages, progress) {
    this.clear();
    const run = this.run;
    const sheets = [];
    for (const page of pages) {
      progress(sheets.length + 1);
      const content = await this.load(page, pages.length).catch(() => say('pageMissing', page));
      if (run !== this.run) return false;
      sheets.push(sheet(content));
    }
    this.#lay(sheets);
    window.print();
    return true;
  }

  /** Cancels printing while pages load. */
  cancel() {
    this.run++;
  }

  /** Releases the images. */
  clear() {
    this.cancel();
    this.element.replaceChildren();
  }

  /** @param {HTMLElement[]} sheets */
  #lay(sheets) {
    const first = sheets[0].querySelector('img');
    const isWide = first && first.naturalWidth > first.naturalHeight;
    this.element.className = isWide ? 'sheets wide' : 'sheets';
    this.element.replaceChildren(...sheets);
  }

  /** @param {number} page */
  #picture(page) {
    const image = new Image();
    image.alt = say('page', page);
    loadFile(image, this.pages[page - 1].path);
    return image;
  }
}

/** @param {Node | string} content */
const sheet = (content) => make('div', 'sheet', content);

/**
 * @param {HTMLImageElement} image
 * @returns {Promise<HTMLImageElement>}
 */
function loaded(image) {
  return new Promise((resolve, reject) => {
    image.addEventListener('load', () => resolve(image));
    image.addEventListener('error', reject);
  });
}
