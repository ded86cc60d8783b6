import { fitted } from '../book/face.js';
import { loadFile } from '../book/values.js';

/** @typedef {import('../book/config.js').PageEntry} PageEntry */

/** Cached thumbnails, about 150 kilobytes each. */
const MOST_DRAWN = 96;

/** Draws thumbnails one after the other, so that at most one page image is in memory. */
export class Thumbnails {
  /**
   * @param {PageEntry[]} thumbs
   * @param {PageEntry[]} pages what is shown instead of a thumbnail that cannot be loaded
   * @param {{width: number, height: number}} size CSS pixels
   * @param {(page: number, picture: HTMLCanvasElement | null) => void} drawn
   */
  constructor(thumbs, pages, size, drawn) {
    this.thumbs = thumbs;
    this.pages = pages;
    this.size = size;
    this.drawn = drawn;
    this.imagesKept = 0;
    this.busy = false;
    /** @type {number[]} */
    this.wanted = [];
    /** @type {Map<number, HTMLCanvasElement | null>} none for a page that cannot be shown */
    this.kept = new Map();
  }

  /** @param {number[]} pages the most urgent first; replaces earlier requests */
  want(pages) {
    this.wanted = pages.filter((page) => !this.kept.has(page));
    if (!this.busy) this.#drawAll();
  }

  async #drawAll() {
    this.busy = true;
    for (let page = this.wanted.shift(); page; page = this.wanted.shift()) {
      const picture = await this.#draw(this.thumbs[page - 1].path)
        ?? await this.#draw(this.pages[page - 1].path);
      this.kept.set(page, picture);
      const [oldest] = this.kept.keys();
      if (this.kept.size > MOST_DRAWN) this.kept.delete(oldest);
      this.drawn(page, picture);
    }
    this.busy = false;
  }

  /**
   * @param {string} path
   * @returns {Promise<HTMLCanvasElement | null>}
   */
  async #draw(path) {
    const image = new Image();
    this.imagesKept = 1;
    try {
      await loadFile(image, path);
      await image.decode();
      return this.#shrink(image);
    } catch {
      return null;
    } finally {
      image.removeAttribute('src');
      this.imagesKept = 0;
    }
  }

  /** @param {HTMLImageElement} image */
  #shrink(image) {
    const density = Math.min(2, Math.max(1, window.devicePixelRatio));
    const canvas = document.createElement('canvas');
    canvas.width = Math.round(this.size.width * density);
    canvas.height = Math.round(this.size.height * density);
    const context = /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
    const place = fitted(image.naturalWidth, image.naturalHeight, canvas.width, canvas.height);
    context.imageSmoothingQuality = 'high';
    context.drawImage(image, place.x, place.y, place.width, place.height);
    return canvas;
  }
}
