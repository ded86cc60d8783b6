import { make, part } from '../src/book/dom.js';
import { fullLabel } from '../src/book/labels.js';
import { pause } from './idle.js';

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
 * @property {number} opened how many pages it has had
 * @property {number} height of the page's picture, in CSS pixels
 * @property {PageText | null} text
 */

/** For words over a page where the browser is never idle, milliseconds: the leaves of the next turns come first. */
const LONGEST_WAIT = 1000;

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
    /**
     * What fills the box of a page with text, one after the other; "rest" resolves when there is time for more.
     * @type {((face: Face, rest: () => Promise<void>) => void | Promise<void>)[]}
     */
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
      return { side, over, box, position: 0, opened: 0, height: 0, text: null };
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
    face.opened += 1;
    face.text = null;
    face.box.replaceChildren();
    face.over.hidden = position === 0;
    face.over.ariaBusy = position ? 'true' : null;
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
    const { opened } = face;
    const text = await this.texts.get(position);
    await this.#rest();
    if (face.opened !== opened) return;
    if (!text) {
      face.over.ariaBusy = null;
      return;
    }
    face.text = text;
    // Words and links inside a picture would be none for readers who hear the page.
    if (text.lines.length + text.links.length > 0) face.over.setAttribute('role', 'group');
    this.#place(face);
    for (const fill of this.fillers) {
      await fill(face, () => this.#rest());
      if (face.opened !== opened) return;
    }
    face.over.ariaBusy = null;
  }

  /** Resolves when no leaf is in the air and the browser is idle: a page's words take longer than a frame. */
  async #rest() {
    do await pause(LONGEST_WAIT);
    while (this.root.dataset.air === 'yes');
  }

  /**
   * The box lies exactly over the picture, which may leave paper around it.
   * @param {Face} face
   */
  #place(face) {
    const { position, text, box } = face;
    const { pageWidth, pageHeight } = this.book.layout;
    const { image, state } = this.book.images.get(position);
    const width = state === 'ready' ? image.naturalWidth : text?.width ?? pageWidth;
    const height = state === 'ready' ? image.naturalHeight : text?.height ?? pageHeight;
    const place = this.book.placeOf(width, height);
    face.height = place.height;
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
