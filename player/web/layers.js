import { make, part } from '../src/book/dom.js';
import { fullLabel } from '../src/book/labels.js';

/** @typedef {import('./pagetext.js').PageText} PageText */
/** @typedef {import('./pagetexts.js').PageTexts} PageTexts */
/** @typedef {'left' | 'right'} Side */
/**
 * @typedef {{query: import('./query.js').Query | null, current: import('./searchtext.js').Hit | null}} Marked
 * What lies over one of the standing pages.
 * @typedef {object} Face
 * @property {Side} side
 * @property {HTMLElement} over as large as the page
 * @property {HTMLElement} box as large as the page's picture; empty until its text is there
 * @property {number} position 0 for no page
 * @property {PageText | null} text
 */

/** Keeps layers over the standing pages: they come with a page's text and go with the page. */
export class Layers {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {PageTexts} texts
   */
  constructor({ root, config, book, turner, zoom, say }, texts) {
    this.root = root;
    this.config = config;
    this.book = book;
    this.turner = turner;
    this.say = say;
    this.texts = texts;
    this.facts = texts.facts;
    /** @type {((face: Face) => void)[]} what fills the box of a page with text */
    this.fillers = [];
    /** @type {(() => void)[]} called whenever pages stand */
    this.followers = [];
    /**
     * Leads the reader to a page, in whatever shows the book's text now.
     * @type {(position: number, title?: string) => void}
     */
    this.show = (position) => turner.go(book.views.viewOf(position));
    /** @type {Marked} what a search has found */
    this.marked = { query: null, current: null };
    this.onMarked = () => {};
    /** Called when the reading view has other parts of the text. */
    this.onRead = () => {};
    const sides = /** @type {Side[]} */ (config.rightToLeft ? ['right', 'left'] : ['left', 'right']);
    /** @type {Face[]} in reading order */
    this.faces = sides.map((side) => {
      const box = make('div', 'over-box');
      const over = make('div', 'over ' + side, box);
      if (this.facts.language) over.lang = this.facts.language;
      book.element.append(over);
      // What stands over a page says all that there is to say about it.
      part(book.element, '.page.' + side).setAttribute('aria-hidden', 'true');
      return { side, over, box, position: 0, text: null };
    });
    const { onChange } = zoom;
    zoom.onChange = () => {
      onChange();
      // Lines around what is marked stay as thin as they are.
      book.element.style.setProperty('--level', String(zoom.level));
    };
    turner.onAir = (inAir) => {
      root.dataset.air = inAir ? 'yes' : 'no';
      if (!inAir) this.update();
    };
  }

  /** Positions of the pages in view, in reading order. */
  get inView() {
    return this.book.views.pagesOf(this.turner.current);
  }

  /** Brings the layers to where the pages stand now. */
  update() {
    const pages = this.book.views.at(this.turner.current);
    for (const face of this.faces) {
      if (face.position !== pages[face.side]) this.#open(face, pages[face.side]);
      if (face.position) this.#place(face);
    }
    for (const follow of this.followers) follow();
  }

  /**
   * @param {Face} face
   * @param {number} position
   */
  #open(face, position) {
    face.position = position;
    face.text = null;
    face.box.replaceChildren();
    face.over.hidden = position === 0;
    if (!position) return;
    const label = this.say('page', fullLabel(this.config, position));
    const closed = this.facts.isOpen(position) ? '' : '. ' + this.say('notOpen');
    face.over.setAttribute('role', 'img');
    face.over.setAttribute('aria-label', label + closed);
    this.#fill(face, position);
  }

  /**
   * @param {Face} face
   * @param {number} position
   */
  async #fill(face, position) {
    const text = await this.texts.get(position);
    if (!text || face.position !== position) return;
    face.text = text;
    // Words and links inside a picture would be none for readers who hear the page.
    if (text.lines.length + text.links.length > 0) face.over.setAttribute('role', 'group');
    this.#place(face);
    for (const fill of this.fillers) fill(face);
  }

  /**
   * The box lies exactly over the picture, which may leave paper around it.
   * @param {Face} face
   */
  #place({ position, text, box }) {
    const { pageWidth, pageHeight } = this.book.layout;
    const { image, state } = this.book.images.get(position);
    const width = state === 'ready' ? image.naturalWidth : text?.width ?? pageWidth;
    const height = state === 'ready' ? image.naturalHeight : text?.height ?? pageHeight;
    const place = this.book.placeOf(width, height);
    box.style.cssText = 'left:' + place.x + 'px;top:' + place.y + 'px;width:' + place.width
      + 'px;height:' + place.height + 'px;--across:' + place.width / (text?.width ?? 1)
      + ';--down:' + place.height / (text?.height ?? 1);
  }
}

/**
 * Places something over the part of a page that a box names.
 * @param {HTMLElement} element
 * @param {PageText} text
 * @param {import('./pagetext.js').Box} box
 */
export function putOver(element, text, box) {
  element.style.left = (100 * box.x) / text.width + '%';
  element.style.top = (100 * box.y) / text.height + '%';
  element.style.width = (100 * box.width) / text.width + '%';
  element.style.height = (100 * box.height) / text.height + '%';
}
