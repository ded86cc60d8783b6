import { part } from '../src/book/dom.js';
import { loadLarge } from './largepicture.js';

/** @typedef {import('./layers.js').Layers} Layers */
/** @typedef {'left' | 'right'} Side */

/** A larger image is loaded when the usual one has to be scaled up by more than this. */
const ENOUGH = 1.15;

/** Delay after zooming before larger images are loaded, in milliseconds. */
const REST_MS = 160;

/** Shows larger images of the pages in view while they are zoomed beyond the resolution of the usual ones. */
export class Sharper {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {Layers} layers
   * @param {import('./data.js').DataFiles} files
   */
  constructor({ book, turner, zoom }, layers, files) {
    this.files = files;
    this.book = book;
    this.turner = turner;
    this.zoom = zoom;
    this.facts = layers.facts;
    this.timer = 0;
    /** @type {Map<Side, {position: number, image: HTMLImageElement}>} */
    this.kept = new Map();
    const before = zoom.onChange;
    zoom.onChange = () => {
      before();
      this.#soon();
    };
    const { onImage } = book;
    book.onImage = (page) => {
      onImage(page);
      if (this.zoom.pans) this.#soon();
    };
    layers.followers.push(() => this.#soon());
    this.#soon();
  }

  #soon() {
    clearTimeout(this.timer);
    // Images no longer wanted are removed at once; new ones are loaded when zooming has ended.
    for (const side of this.kept.keys()) {
      if (this.#wanted(side) !== this.kept.get(side)?.position) this.#drop(side);
    }
    if (this.zoom.pans) this.timer = window.setTimeout(() => this.#fetch(), REST_MS);
  }

  #fetch() {
    for (const side of /** @type {Side[]} */ (['left', 'right'])) {
      const position = this.#wanted(side);
      if (position && this.kept.get(side)?.position !== position) this.#load(side, position);
    }
  }

  /**
   * The page at a side if its usual image is too coarse, else 0.
   * @param {Side} side
   * @returns {number}
   */
  #wanted(side) {
    const position = this.book.views.at(this.turner.current)[side];
    if (!position || !this.zoom.pans || !this.facts.largeFile(position)) return 0;
    const { image, state } = this.book.images.get(position);
    if (state !== 'ready') return 0;
    const { width } = this.book.placeOf(image.naturalWidth, image.naturalHeight);
    const shown = width * this.zoom.level * (window.devicePixelRatio || 1);
    return shown > image.naturalWidth * ENOUGH ? position : 0;
  }

  /**
   * @param {Side} side
   * @param {number} position
   */
  async #load(side, position) {
    this.#drop(side);
    const image = new Image();
    const entry = { position, image };
    this.kept.set(side, entry);
    image.alt = '';
    image.className = 'large';
    image.draggable = false;
    try {
      await loadLarge(image, this.facts.largeFile(position), this.files);
    } catch {
      // The usual image stays.
      return;
    }
    const slot = part(this.book.element, '.page.' + side);
    const usual = slot.querySelector('img');
    if (this.kept.get(side) !== entry || !usual || slot.dataset.page !== String(position)) return;
    image.decoding = 'sync';
    image.style.cssText = usual.style.cssText;
    usual.after(image);
  }

  /** @param {Side} side */
  #drop(side) {
    const image = this.kept.get(side)?.image;
    this.kept.delete(side);
    image?.remove();
    if (image && !image.complete) image.removeAttribute('src');
  }
}
