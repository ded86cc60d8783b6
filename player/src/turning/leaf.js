/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('../book/book.js').Side} Side */
/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./turnings.js').Painter} Painter */
/** @typedef {{left: number, right: number}} PagePair page numbers, 0 for none */

/**
 * Animation of the held point.
 * @typedef {object} Motion
 * @property {number} start time stamp of the first frame, 0 before it
 * @property {number} time milliseconds
 * @property {Point} from
 * @property {Point} to
 * @property {number} lift how far the way bends towards the middle of the leaf
 * @property {number} slideFrom
 * @property {number} slideTo
 * @property {'over' | 'back' | 'peek'} end
 */

/**
 * What moves between two views: a leaf of the book, or the whole view where the book slides. The origin of its
 * coordinates is at the top of its binding, and the flat leaf has positive x.
 */
export class Leaf {
  /**
   * @param {Book} book
   * @param {Painter} painter
   * @param {number} from view that is left
   * @param {number} to
   * @param {number} edgeShare where the edge is taken, 0 (top) to 1
   */
  constructor(book, painter, from, to, edgeShare) {
    const { spread, pageWidth, pageHeight } = book.layout;
    const { rightToLeft } = book.config;
    const forward = to > from;
    this.book = book;
    this.whole = painter.whole;
    this.from = from;
    this.to = to;
    /** Whether it turns backwards. */
    this.reversed = !forward && (this.whole || !spread);
    /** @type {Side} on which the leaf lies while it is flat */
    this.side = (spread && !this.whole ? forward !== rightToLeft : !rightToLeft) ? 'right' : 'left';
    this.mirrored = this.side === 'left';
    this.alone = !spread;
    this.width = pageWidth;
    this.height = pageHeight;
    /** @type {Point} */
    this.edge = { x: pageWidth, y: edgeShare * pageHeight };
    /** @type {Point} */
    this.held = this.reversed ? { x: -this.edge.x, y: this.edge.y } : { ...this.edge };
    /** Progress of the book's shift towards the offset of the new view, 0 to 1. */
    this.slide = 0;
    /** @type {Motion | null} none while a pointer holds the leaf */
    this.motion = null;
    const upper = book.views.at(this.reversed ? to : from);
    const lower = book.views.at(this.reversed ? from : to);
    const other = this.mirrored ? 'right' : 'left';
    /** @type {PagePair} pages that lie still meanwhile */
    this.beneath = this.whole || this.alone ? lower : { ...lower, [other]: book.views.at(from)[other] };
    /** @type {PagePair} pages on both sides of the leaf, or of the view that slides */
    this.pages = this.whole || this.alone ? upper : { ...upper, [other]: book.views.at(to)[other] };
    this.overPage = this.beneath[this.side] > 0;
  }

  /**
   * Draws what moves: both sides of the leaf, or the whole view as its front.
   * @param {number} density device pixels per CSS pixel
   */
  drawFaces(density) {
    if (this.whole) {
      this.front = this.book.viewFace(this.pages, density);
      this.back = this.front;
      return;
    }
    const other = this.mirrored ? 'right' : 'left';
    Object.assign(this, this.book.faces(this.pages[this.side], this.pages[other], this.side, density));
  }

  /**
   * Draws a part of that ahead, which takes half the time.
   * @param {number} density
   */
  drawFront(density) {
    if (!this.whole) this.book.frontFace(this.pages[this.side], this.side, density);
  }

  /** Offset of the book from the middle at this moment, in CSS pixels. */
  get shift() {
    const { book } = this;
    if (this.whole) return book.shiftFor(this.reversed ? this.from : this.to);
    const before = book.shiftFor(this.from);
    return before + (book.shiftFor(this.to) - before) * this.slide;
  }

  /** @param {number} page */
  shows(page) {
    return this.pages.left === page || this.pages.right === page;
  }

  /** How far it has been turned: 0 (flat) to 1 (turned over). */
  get turned() {
    return Math.min(1, Math.max(0, (this.width - this.held.x) / (2 * this.width)));
  }

  /** How much of the way to the other view is done, 0 to 1. */
  get done() {
    return this.reversed ? 1 - this.turned : this.turned;
  }
}
