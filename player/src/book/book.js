import { drawFace, drawShowThrough, drawSideBySide, fitted, isPhotograph, missingText } from './face.js';
import { FaceCache } from './facecache.js';
import { PageImages } from './images.js';
import { fittingMargins, layOut } from './layout.js';
import { Views } from './views.js';

/** @typedef {import('./config.js').BookConfig} BookConfig */
/** @typedef {import('./layout.js').Layout} Layout */
/** @typedef {'left' | 'right'} Side */
/**
 * Zoom transform: what was at p in the window is at level * p + (x, y).
 * @typedef {{level: number, x: number, y: number}} ZoomState
 */

/** @type {Side[]} */
const SIDES = ['left', 'right'];

/** Widest edge of the stack of pages that lies under each side, in CSS pixels. */
const WIDEST_STACK = 9;

/** The pages in view while no leaf is turning. */
export class Book {
  /**
   * @param {BookConfig} config
   * @param {HTMLElement} root
   */
  constructor(config, root) {
    this.config = config;
    this.root = root;
    this.bound = root.dataset.binding !== 'no';
    this.element = /** @type {HTMLElement} */ (root.querySelector('.book'));
    this.images = new PageImages(config.pages, (page) => this.#imageChanged(page));
    this.aspect = config.pages[0].width / config.pages[0].height;
    this.views = new Views(config.pages.length, false, config.rightToLeft);
    /** @type {import('./layout.js').Choice} the reader's, as is the next */
    this.choice = 'auto';
    this.firstAlone = true;
    /** @type {'' | 'sepia' | 'night'} what is done to the pages' pictures; the style sheet does the same */
    this.tint = '';
    /** Colour of the paper. */
    this.paper = config.pageColour;
    /** @type {Layout} */
    this.layout = { spread: false, scrolls: false, pageWidth: 1, pageHeight: 1, bookLeft: 0, bookTop: 0, spineX: 0 };
    this.shown = { left: 0, right: 0 };
    this.drawn = new FaceCache();
    this.shift = 0;
    /** Width of an open panel at the left edge of the window, in CSS pixels; below 0 at the right one. */
    this.beside = 0;
    /** @type {ZoomState} */
    this.zoom = { level: 1, x: 0, y: 0 };
    /** @type {(page: number) => void} */
    this.onImage = () => {};
  }

  /** The page aspect comes from the first real image; the configuration only guesses. */
  async measure() {
    const { image, settled } = this.images.get(1);
    await settled;
    if (image.naturalWidth > 0) this.aspect = image.naturalWidth / image.naturalHeight;
  }

  /** From where to where the window is free of a panel, in CSS pixels. */
  get sight() {
    return { left: Math.max(0, this.beside), right: this.root.clientWidth + Math.min(0, this.beside) };
  }

  /** Fits the book to the window. */
  resize() {
    const width = this.root.clientWidth;
    const height = this.root.clientHeight;
    const { rightToLeft, pages } = this.config;
    const margins = fittingMargins(this.config.margins, width, height);
    const { left, right } = this.sight;
    const free = { ...margins, left: Math.max(margins.left, left), right: Math.max(margins.right, width - right) };
    this.layout = layOut({
      width, height, margins: free, aspect: this.aspect, pageCount: pages.length, rightToLeft,
      maySpread: this.root.dataset.pages !== 'single', choice: this.choice,
    });
    this.views = new Views(pages.length, this.layout.spread, rightToLeft, this.firstAlone);
    this.drawn.clear();
    const style = this.root.style;
    for (const [side, margin] of Object.entries(margins)) {
      style.setProperty('--margin-' + side, margin + 'px');
    }
    style.setProperty('--page-width', this.layout.pageWidth + 'px');
    style.setProperty('--page-height', this.layout.pageHeight + 'px');
    style.setProperty('--spine-x', this.layout.spineX + 'px');
    style.setProperty('--book-top', this.layout.bookTop + 'px');
    this.root.dataset.layout = this.layout.spread ? 'spread' : 'single';
    // A single page of a right-to-left book is bound at its right edge, so it takes the left side.
    this.root.dataset.side = !this.layout.spread && rightToLeft ? 'left' : 'right';
  }

  /** Where the upper edge of pages that are not enlarged lies in the window now. */
  get top() {
    return this.layout.bookTop + this.zoom.y;
  }

  /**
   * How far the book is shifted to centre a single page.
   * @param {number} view
   */
  shiftFor(view) {
    if (!this.layout.spread) return 0;
    const { left, right } = this.views.at(view);
    const half = this.layout.pageWidth / 2;
    return left ? (right ? 0 : half) : -half;
  }

  /**
   * Bounds of a view's pages in the window at zoom level 1, before they are scrolled.
   * @param {number} view
   */
  boxOf(view) {
    const { spineX, bookTop, pageWidth, pageHeight } = this.layout;
    const { left, right } = this.views.at(view);
    const origin = spineX + this.shiftFor(view);
    return {
      left: origin - (left ? pageWidth : 0), right: origin + (right ? pageWidth : 0),
      top: bookTop, bottom: bookTop + pageHeight,
    };
  }

  /** @param {number} shift CSS pixels */
  moveTo(shift) {
    this.shift = shift;
    this.#place();
  }

  /** @param {ZoomState} state */
  zoomTo(state) {
    this.zoom = state;
    this.#place();
  }

  #place() {
    const { level, x, y } = this.zoom;
    const { spineX, bookTop } = this.layout;
    this.element.style.transform = level === 1 && !x && !y ? 'translateX(' + this.shift + 'px)'
      : 'translate(' + ((level - 1) * spineX + level * this.shift + x) + 'px, '
        + ((level - 1) * bookTop + y) + 'px) scale(' + level + ')';
  }

  /**
   * @param {{left: number, right: number}} pages
   * @param {number} turned share of the book that lies on the side where it begins
   */
  show(pages, turned) {
    this.shown = pages;
    for (const side of SIDES) this.#fill(side);
    const thickness = Math.min(WIDEST_STACK, 1 + this.config.pages.length / 12);
    const begun = this.config.rightToLeft ? 1 - turned : turned;
    const stacks = this.layout.spread && this.bound ? { left: begun, right: 1 - begun } : { left: 0, right: 0 };
    for (const side of SIDES) {
      this.root.style.setProperty('--stack-' + side,
        (pages[side] ? Math.round(stacks[side] * thickness) : 0) + 'px');
    }
  }

  /**
   * Loads a view and the views around it and drops the rest.
   * @param {number[]} views the most urgent first
   */
  keep(views) {
    const around = views.slice(0, 1).flatMap((view) => [view + 1, view - 1, view + 2, view - 2]);
    /** @param {number[]} of */
    const pages = (of) => of.filter((view) => view >= 0 && view < this.views.count)
      .flatMap((view) => this.views.pagesOf(view));
    const seen = pages(views);
    this.images.want([...seen, ...pages(around)], seen.length);
  }

  /**
   * Whether all images of a view have loaded or failed.
   * @param {number} view
   */
  ready(view) {
    return this.views.pagesOf(view).every((page) => this.images.kept.get(page)?.state === 'ready');
  }

  /**
   * One page as a picture.
   * @param {number} page 0 for the back of a leaf that has none
   * @param {Side} gutter side of the binding
   * @param {number} density device pixels per CSS pixel
   */
  #face(page, gutter, density) {
    const { pageWidth: width, pageHeight: height, spread } = this.layout;
    return this.drawn.get(page, gutter, (canvas) => drawFace(canvas, {
      page, width, height, density, paper: this.paper, tint: this.tint,
      entry: page ? this.images.get(page) : null, gutter: spread && this.bound ? gutter : 'none',
    }));
  }

  /**
   * Both sides of a leaf as the turning leaf shows them.
   * @param {number} front
   * @param {number} back 0 for a single page
   * @param {Side} side on which the leaf lies before it is turned
   * @param {number} density
   */
  faces(front, back, side, density) {
    const face = this.frontFace(front, side, density);
    if (this.layout.spread) return { front: face, back: this.#face(back, side, density) };
    return {
      front: face,
      back: this.drawn.get(front, 'through',
        (canvas) => drawShowThrough(canvas, face, this.paper)),
    };
  }

  /**
   * @param {number} page
   * @param {Side} side on which the leaf lies
   * @param {number} density
   */
  frontFace(page, side, density) {
    return this.#face(page, side === 'left' ? 'right' : 'left', density);
  }

  /**
   * All pages of a view as one picture.
   * @param {{left: number, right: number}} pages
   * @param {number} density
   */
  viewFace({ left, right }, density) {
    if (!left) return this.#face(right, 'left', density);
    const leftFace = this.#face(left, 'right', density);
    if (!right) return leftFace;
    const rightFace = this.#face(right, 'left', density);
    return this.drawn.get(left, 'both', (canvas) => drawSideBySide(canvas, leftFace, rightFace));
  }

  /**
   * Position of an image of that size within a page, in CSS pixels.
   * @param {number} width
   * @param {number} height
   */
  placeOf(width, height) {
    return fitted(width, height, this.layout.pageWidth, this.layout.pageHeight);
  }

  /** @param {number} page */
  #imageChanged(page) {
    this.drawn.drop(page);
    if (this.layout.spread) this.drawn.drop(page - 1);
    for (const side of SIDES) {
      if (this.shown[side] === page) this.#fill(side);
    }
    this.onImage(page);
  }

  /** @param {Side} side */
  #fill(side) {
    const slot = /** @type {HTMLElement} */ (this.element.querySelector('.page.' + side));
    const page = this.shown[side];
    slot.hidden = page === 0;
    // For styles of surrounding elements: not all browsers support :has().
    this.element.classList.toggle('no-' + side, page === 0);
    slot.dataset.page = String(page);
    if (page === 0) {
      slot.replaceChildren();
      return;
    }
    const entry = this.images.get(page);
    const { image, state } = entry;
    slot.dataset.image = state;
    if (state !== 'ready') {
      slot.replaceChildren();
      if (state === 'missing') slot.textContent = missingText(page);
      return;
    }
    slot.classList.toggle('photo', this.tint === 'night' && isPhotograph(entry));
    const place = this.placeOf(image.naturalWidth, image.naturalHeight);
    image.style.inset = place.y + 'px auto auto ' + place.x + 'px';
    image.style.width = place.width + 'px';
    image.style.height = place.height + 'px';
    if (image.parentNode !== slot) slot.replaceChildren(image);
  }
}
