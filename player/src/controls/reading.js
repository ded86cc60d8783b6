import { ZOOM_AIR, ZOOM_STEP } from './zoom.js';

/** @typedef {import('./zoom.js').Zoom} Zoom */
/**
 * Part of a page in the window with whole pages, and the left edge of the page.
 * @typedef {{left: number, top: number, right: number, bottom: number, page: number}} Column
 */

/** Share of the window by which a step goes on: some lines stay in view, and the bar may cover some. */
const STEP = 0.8;

/** How long a mouse rests where the reader reads, in milliseconds. */
const REST_MS = 400;

/** Pause after which the wheel may go on to the next column or page, and the way that it must be pushed then. */
const WHEEL_PAUSE_MS = 300;
const WHEEL_WAY = 8;

/** Columns of which this share of the best seen one is seen are seen equally well. */
const ALIKE = 0.9;

/** Reads on in enlarged pages: down a column, to the next one, to the next page, to the next pages. */
export class Reading {
  /**
   * @param {Zoom} zoom
   * @param {HTMLElement} stage
   */
  constructor(zoom, stage) {
    this.zoom = zoom;
    this.book = zoom.book;
    this.turner = zoom.turner;
    /**
     * Columns of a page in reading order. The page is one where no others are known.
     * @type {(page: number, whole: Column) => Column[]}
     */
    this.columnsOf = (_, whole) => [whole];
    /** The last column to which the reader was led, of the view in which that was. */
    this.led = { view: -1, column: 0 };
    /** Which way the turn in progress leads. */
    this.way = 1;
    /** @type {Pointed | null} where the pointer is */
    this.point = null;
    /** @type {Pointed | null} where it rested last */
    this.rested = null;
    this.lastWheel = -Infinity;
    /** How far the current push of the wheel came at the end of what can be seen; null: it moves the pages. */
    this.pushed = /** @type {number | null} */ (null);
    this.turner.onJumped = () => this.begin(this.way);
    for (const kind of /** @type {const} */ (['pointerdown', 'pointermove', 'pointerleave'])) {
      stage.addEventListener(kind, (event) => this.#follow(event));
    }
  }

  /**
   * @typedef {{x: number, y: number, time: number, view: number}} Pointed
   */

  /** @param {PointerEvent} event */
  #follow({ type, pointerType, clientX: x, clientY: y, timeStamp: time }) {
    const { point } = this;
    if (point && (pointerType !== 'mouse' || time - point.time > REST_MS)) this.rested = point;
    this.point = type === 'pointerleave' ? null : { x, y, time, view: this.turner.current };
  }

  /** Enlarges what is being read: the place under the pointer, or else where reading begins, which stays at the top. */
  enlarge() {
    const { zoom, turner } = this;
    const { active, seen } = zoom;
    if (!active) turner.settle();
    const columns = this.columns();
    const level = zoom.level * ZOOM_STEP;
    const at = this.point ?? this.rested;
    const pointed = at && !active && at.view === turner.current
      ? columns.find(({ left, right }) => at.x >= left && at.x <= right) : undefined;
    const column = pointed ?? columns[this.#current(columns)];
    if (seen.top > column.top && !pointed) zoom.in();
    else {
      const top = at && pointed ? at.y - zoom.now.y - at.y / level : column.top - ZOOM_AIR / level;
      zoom.lookAt(this.#middleOf(column, level), top, level);
    }
  }

  /**
   * Reads on, or back: in enlarged pages to what is not seen yet, else to other pages.
   * @param {1 | -1} way
   */
  step(way) {
    const { zoom, turner } = this;
    if (zoom.pans && this.#goOn(way)) return;
    const { destination } = turner;
    this.way = zoom.way = way;
    turner.step(way);
    this.way = 1;
    if (turner.destination === destination) zoom.way = 1;
  }

  /**
   * Moves enlarged pages by the wheel. At the end of what can be seen, another push after a pause reads on; what
   * comes of that push later, from a trackpad or a wheel that runs on, is ignored.
   * @param {number} dx CSS pixels
   * @param {number} dy
   * @param {number} time
   */
  wheel(dx, dy, time) {
    if (time - this.lastWheel >= WHEEL_PAUSE_MS) {
      const { seen } = this.zoom;
      const { top, bottom } = this.book.boxOf(this.turner.current);
      const isAtEnd = dy > 0 ? seen.bottom >= bottom : seen.top <= top;
      this.pushed = isAtEnd && Math.abs(dy) > Math.abs(dx) ? 0 : null;
    }
    this.lastWheel = time;
    if (this.pushed === null) {
      this.zoom.panBy(-dx, -dy);
      return;
    }
    const before = Math.abs(this.pushed);
    this.pushed += dy;
    if (before < WHEEL_WAY && Math.abs(this.pushed) >= WHEEL_WAY) this.step(dy > 0 ? 1 : -1);
  }

  /**
   * @param {1 | -1} way
   * @returns {boolean} whether there was something to go on to in these pages
   */
  #goOn(way) {
    const { zoom } = this;
    const { seen } = zoom;
    const columns = this.columns();
    let at = this.#current(columns);
    const column = columns[at];
    const left = way > 0 ? column.bottom - seen.bottom : seen.top - column.top;
    if (left > 0) {
      this.led = { view: this.turner.current, column: at };
      const by = Math.min(left + ZOOM_AIR / zoom.level, (seen.bottom - seen.top) * STEP);
      const across = this.#middleOf(column, zoom.level, (seen.left + seen.right) / 2);
      if (zoom.lookAt(across, seen.top + way * by)) return true;
    }
    for (at += way; columns[at]; at += way) {
      if (this.#lead(columns, at, way)) return true;
    }
    return false;
  }

  /**
   * Begins pages that came into view while enlarged: at the top, or at the end where the reader goes back.
   * @param {number} way
   */
  begin(way = 1) {
    const columns = this.columns();
    this.#lead(columns, way > 0 ? 0 : columns.length - 1, way, true);
  }

  /**
   * Shows the beginning of a column, or its end to readers who go back.
   * @param {Column[]} columns
   * @param {number} at
   * @param {number} way
   * @param {boolean} [atOnce]
   */
  #lead(columns, at, way, atOnce) {
    const { level, seen } = this.zoom;
    const { top, bottom } = columns[at];
    const air = ZOOM_AIR / level;
    this.led = { view: this.turner.current, column: at };
    return this.zoom.lookAt(this.#middleOf(columns[at], level),
      way > 0 ? top - air : bottom + air - seen.bottom + seen.top, level, atOnce);
  }

  /**
   * The column that is read: the best seen one, and of several alike the one to which the reader was led, or the first.
   * @param {Column[]} columns
   */
  #current(columns) {
    const { led, turner, zoom: { seen } } = this;
    const shares = columns.map(({ left, top, right, bottom }) =>
      Math.max(0, Math.min(right, seen.right) - Math.max(left, seen.left))
      * Math.max(0, Math.min(bottom, seen.bottom) - Math.max(top, seen.top)));
    const enough = Math.max(...shares) * ALIKE;
    return led.view === turner.current && shares[led.column] >= enough ? led.column
      : shares.findIndex((share) => share >= enough);
  }

  /**
   * What is in the middle of the window across, so that the page, or else the column, is seen whole; where neither
   * fits, the side where lines begin.
   * @param {Column} column
   * @param {number} level
   * @param {number} [otherwise] where neither fits
   */
  #middleOf({ left, right, page }, level, otherwise) {
    const { sight, config, layout: { pageWidth } } = this.book;
    const width = (sight.right - sight.left) / level;
    if (pageWidth <= width) return page + pageWidth / 2;
    if (right - left <= width) return (left + right) / 2;
    const inward = width / 2 - ZOOM_AIR / level;
    return otherwise ?? (config.rightToLeft ? right - inward : left + inward);
  }

  /** @returns {Column[]} of the pages in view, in reading order */
  columns() {
    const { book, turner: { current } } = this;
    const { left, right, top, bottom } = book.boxOf(current);
    const { pageWidth } = book.layout;
    return book.views.pagesOf(current).flatMap((number) => {
      const page = number === book.views.at(current).left ? left : right - pageWidth;
      return this.columnsOf(number, { page, left: page, right: page + pageWidth, top, bottom });
    });
  }
}
