import { focusByKey, giveFocus, make, part } from '../book/dom.js';
import { fullLabel, labelOf } from '../book/labels.js';
import { Thumbnails } from './thumbnails.js';
import { keep, recall } from '../book/storage.js';
import { say } from '../book/words.js';

/** @typedef {import('../book/book.js').Book} Book */

/** Gap between thumbnails, and how far beyond the edges they are prepared, in CSS pixels. */
const GAP = 14;
const AHEAD = 320;
const LARGEST = { width: 150, height: 128 };
const LEAST = 36;

/** Thumbnails of all pages, in a strip or in a grid; only the visible ones are in the document. */
export class Drawer {
  /**
   * @param {HTMLElement} root
   * @param {Book} book
   * @param {(page: number) => void} goTo
   */
  constructor(root, book, goTo) {
    this.root = root;
    this.book = book;
    this.goTo = goTo;
    this.element = part(root, '.drawer');
    this.strip = part(root, '.strip');
    this.track = part(root, '.track');
    this.size = thumbSize(book.config.thumbs[0]);
    this.thumbnails = new Thumbnails(book.config.thumbs, book.config.pages, this.size,
      (page, picture) => this.#putPicture(page, picture));
    this.gridButton = part(root, '.grid-button');
    this.grid = recall('thumbs') === 'grid';
    /** Views side by side in the grid. */
    this.columns = 1;
    /** Height of a row with its page numbers, in CSS pixels. */
    this.row = 1;
    /** @type {{page: number, put: (picture: HTMLCanvasElement) => void} | null} a picture for somewhere else */
    this.asked = null;
    this.active = 1;
    /** @type {number[]} */
    this.inView = [];
    /** @type {Map<number, HTMLElement>} */
    this.shown = new Map();
    this.frame = 0;
    /** @type {HTMLElement | null} what had the focus before */
    this.from = null;
    this.onToggle = () => {};
    this.#wire();
  }

  get open() {
    return !this.element.hidden;
  }

  toggle() {
    if (this.open) this.hide();
    else this.show();
  }

  show() {
    this.from = focusByKey();
    this.element.hidden = false;
    this.active = this.inView[0];
    this.lay();
    this.strip.focus({ preventScroll: true });
    this.onToggle();
  }

  hide() {
    if (!this.open) return;
    const hadFocus = this.element.contains(document.activeElement);
    this.element.hidden = true;
    this.onToggle();
    if (hadFocus) giveFocus(this.from);
    else focusByKey();
  }

  /**
   * Marks the pages that the reader sees.
   * @param {number[]} pages
   */
  mark(pages) {
    this.inView = pages;
    if (!this.open) return;
    if (!pages.includes(this.active)) this.#activate(pages[0]);
    else this.#fill();
  }

  /**
   * Hands out the picture of a page once it is drawn, unless another one is asked for before.
   * @param {number} page
   * @param {(picture: HTMLCanvasElement) => void} put
   */
  give(page, put) {
    this.asked = { page, put };
    const { kept, wanted } = this.thumbnails;
    const picture = kept.get(page);
    if (picture) put(picture);
    else this.thumbnails.want([page, ...wanted]);
  }

  /** Lays the thumbnails out again, with the marked page in the middle. */
  lay() {
    if (!this.open) return;
    const { pageCount, count } = this.book.views;
    const { width, height } = this.size;
    this.element.dataset.grid = this.grid ? 'yes' : 'no';
    this.gridButton.setAttribute('aria-pressed', String(this.grid));
    const em = parseFloat(getComputedStyle(this.strip).fontSize);
    this.columns = Math.max(1, Math.floor((this.strip.clientWidth - 2 * em + GAP) / this.#unit));
    this.row = height + 2 * em + GAP;
    this.strip.dir = this.book.config.rightToLeft ? 'rtl' : 'ltr';
    this.element.style.setProperty('--thumb-width', this.size.width + 'px');
    this.element.style.setProperty('--thumb-height', this.size.height + 'px');
    this.track.style.width = (this.grid ? Math.min(count, this.columns) * this.#unit - GAP
      : this.#placeOf(pageCount).x + width) + 'px';
    this.track.style.height = this.grid ? Math.ceil(count / this.columns) * this.row + 'px' : '';
    for (const item of this.shown.values()) item.remove();
    this.shown.clear();
    const { start, size, seen } = this.#along(this.active);
    this.#scrollTo(start + size / 2 - seen / 2);
    this.#fill();
  }

  #wire() {
    const { strip } = this;
    strip.addEventListener('scroll', () => {
      if (!this.frame) this.frame = requestAnimationFrame(() => this.#fill());
    }, { passive: true });
    strip.addEventListener('wheel', (event) => {
      if (this.grid || Math.abs(event.deltaY) <= Math.abs(event.deltaX)) return;
      this.#scrollTo(Math.abs(strip.scrollLeft) + event.deltaY);
    }, { passive: true });
    strip.addEventListener('keydown', (event) => this.#key(event));
    this.gridButton.addEventListener('click', () => {
      this.grid = !this.grid;
      keep('thumbs', this.grid ? 'grid' : 'strip');
      this.lay();
    });
    strip.addEventListener('click', (event) => {
      const item = /** @type {HTMLElement} */ (event.target).closest('.thumb');
      if (item) this.#choose(Number(/** @type {HTMLElement} */ (item).dataset.page));
    });
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const { pageCount } = this.book.views;
    const onward = this.book.config.rightToLeft ? -1 : 1;
    const { clientWidth, clientHeight } = this.strip;
    const inRow = this.columns * (this.book.views.spread ? 2 : 1);
    const screenful = this.grid ? inRow * Math.max(1, Math.floor(clientHeight / this.row))
      : Math.max(1, Math.floor(clientWidth / (this.size.width + GAP)));
    /** @type {Record<string, number>} */
    const targets = {
      ArrowRight: this.active + onward, ArrowLeft: this.active - onward,
      PageDown: this.active + screenful, PageUp: this.active - screenful, Home: 1, End: pageCount,
      ...(this.grid && { ArrowDown: this.active + inRow, ArrowUp: this.active - inRow }),
    };
    if (event.key === 'Enter' || event.key === ' ') this.#choose(this.active);
    else if (event.key in targets) {
      this.#activate(Math.min(pageCount, Math.max(1, targets[event.key])));
    } else return;
    event.preventDefault();
    event.stopPropagation();
  }

  /** @param {number} page */
  #choose(page) {
    this.active = page;
    this.goTo(page);
    if (this.book.layout.spread && !this.grid) this.#fill();
    else this.hide();
  }

  /** @param {number} page */
  #activate(page) {
    this.active = page;
    const { start, size, seen, scrolled } = this.#along(page);
    const end = start + size + GAP;
    if (start - GAP < scrolled) this.#scrollTo(start - GAP);
    else if (end > scrolled + seen) this.#scrollTo(end - seen);
    this.#fill();
  }

  /** Width of what lies side by side as one, with the gap behind it. */
  get #unit() {
    return this.size.width * (this.book.views.spread ? 2 : 1) + GAP;
  }

  /**
   * A thumbnail in the way in which they scroll, in CSS pixels.
   * @param {number} page
   */
  #along(page) {
    const { x, y } = this.#placeOf(page);
    const { clientWidth, clientHeight, scrollLeft, scrollTop } = this.strip;
    return this.grid ? { start: y, size: this.row, seen: clientHeight, scrolled: scrollTop }
      : { start: x, size: this.size.width, seen: clientWidth, scrolled: Math.abs(scrollLeft) };
  }

  /**
   * Where a thumbnail begins; the two pages of a spread lie side by side.
   * @param {number} page
   */
  #placeOf(page) {
    const { width } = this.size;
    const { spread, lead } = this.book.views;
    const place = page - 1 + lead;
    const view = spread ? Math.floor(place / 2) : place;
    const within = spread ? (place % 2) * width : 0;
    if (!this.grid) return { x: view * this.#unit + within - lead * width, y: 0 };
    return { x: (view % this.columns) * this.#unit + within, y: Math.floor(view / this.columns) * this.row };
  }

  /** @param {number} distance from where the book begins */
  #scrollTo(distance) {
    if (this.grid) this.strip.scrollTop = distance;
    else this.strip.scrollLeft = this.book.config.rightToLeft ? -distance : distance;
  }

  /** Inserts visible thumbnails into the document and removes the others. */
  #fill() {
    this.frame = 0;
    if (!this.open) return;
    const { pageCount } = this.book.views;
    const { scrolled, seen } = this.#along(1);
    const from = scrolled - AHEAD;
    const to = scrolled + seen + AHEAD;
    const inView = this.book.views.spread ? 2 : 1;
    const first = this.grid ? Math.floor(from / this.row) * this.columns : Math.floor(from / this.#unit);
    const pages = new Set([this.active]);
    for (let page = Math.max(1, first * inView); page <= pageCount; page++) {
      if (this.#along(page).start > to) break;
      pages.add(page);
    }
    for (const [page, item] of this.shown) {
      if (!pages.has(page)) {
        item.remove();
        this.shown.delete(page);
      }
    }
    for (const page of pages) this.#showItem(page);
    this.strip.setAttribute('aria-activedescendant', 'thumb-' + this.active);
    const middle = (from + to) / 2;
    /** @param {number} page */
    const away = (page) => Math.abs(this.#along(page).start - middle);
    this.thumbnails.want([...pages].sort((a, b) => away(a) - away(b)));
  }

  /** @param {number} page */
  #showItem(page) {
    let item = this.shown.get(page);
    if (!item) {
      const { config } = this.book;
      item = make('div', 'thumb', make('span', 'thumb-picture'), make('span', '', labelOf(config, page)));
      item.id = 'thumb-' + page;
      item.dataset.page = String(page);
      const { x, y } = this.#placeOf(page);
      item.style.insetInlineStart = x + 'px';
      item.style.top = y + 'px';
      item.setAttribute('role', 'option');
      item.setAttribute('aria-label', say('page', fullLabel(config, page)));
      item.setAttribute('aria-setsize', String(this.book.views.pageCount));
      item.setAttribute('aria-posinset', String(page));
      this.shown.set(page, item);
      this.track.append(item);
      const picture = this.thumbnails.kept.get(page);
      if (picture !== undefined) this.#putPicture(page, picture);
    }
    item.setAttribute('aria-selected', String(page === this.active));
    if (this.inView.includes(page)) item.setAttribute('aria-current', 'page');
    else item.removeAttribute('aria-current');
  }

  /**
   * @param {number} page
   * @param {HTMLCanvasElement | null} picture
   */
  #putPicture(page, picture) {
    if (picture && this.asked?.page === page) this.asked.put(picture);
    const frame = this.shown.get(page)?.querySelector('.thumb-picture');
    if (!frame) return;
    frame.replaceChildren(picture ?? '');
    frame.classList.add(picture ? 'drawn' : 'missing');
  }
}

/** @param {{width: number, height: number}} declared */
function thumbSize({ width, height }) {
  const least = Math.max(1, LEAST / Math.min(width, height));
  const most = Math.min(LARGEST.width / width, LARGEST.height / height);
  const scale = Math.min(least, most);
  return { width: Math.round(width * scale), height: Math.round(height * scale) };
}
