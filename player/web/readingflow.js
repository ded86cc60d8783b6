import { make } from '../src/book/dom.js';
import { chunksOf, partsOf } from './readingblocks.js';

/** @typedef {import('./readingblocks.js').Chunk} Chunk */
/**
 * @typedef {object} Section of the text; its elements are there only near what is seen
 * @property {HTMLElement} element
 * @property {number} part file that has its text, from 0
 * @property {number} page that it begins with
 * @property {number} letters as far as known
 * @property {Chunk | null} chunk none until the file is loaded
 * @property {boolean} filled
 */
/**
 * @typedef {object} Spot
 * @property {number} page
 * @property {Section} section
 * @property {number} index of an anchor in the section, -1 for the section itself
 * @property {number} off pixels by which the anchor lies above
 * @property {number} height of the block with the anchor, when that was so
 */

/** Letters of a page whose file is not loaded. */
const PAGE_LETTERS = 2000;

/** What is less than a line, in pixels. */
const LINE = 24;

/** How much of the text has elements, beyond what is seen: heights of the window above and below. */
const AROUND = '150% 0px';

/** The text of the book, of which only what is near is in the document. */
export class Flow {
  /**
   * @param {HTMLElement} scroller
   * @param {HTMLElement} article
   * @param {import('./facts.js').Facts} facts
   * @param {(part: number) => Promise<unknown>} load
   * @param {(chunk: Chunk) => HTMLElement[]} make elements of a chunk
   */
  constructor(scroller, article, facts, load, make) {
    this.scroller = scroller;
    this.article = article;
    this.facts = facts;
    this.load = load;
    this.make = make;
    this.parts = partsOf(facts.reading, facts.pageCount);
    /** @type {Map<number, Promise<void>>} files that were asked for */
    this.loading = new Map();
    /** Pixels of height that a letter takes, on average; 0 until some were seen. */
    this.perLetter = 0;
    /** How far the text was scrolled other than by the reader, in all. */
    this.moved = 0;
    /** Height of the bar over the text. */
    this.top = 0;
    /** @type {HTMLElement | null} a block that is to stay in the document */
    this.pinned = null;
    /** Whether the reader has scrolled since what is to be kept in view was there. */
    this.strayed = false;
    for (const way of ['wheel', 'touchmove', 'keydown']) {
      scroller.addEventListener(way, () => { this.strayed = true; }, { passive: true });
    }
    /** Called when elements have come or gone. */
    this.onFilled = () => {};
    /** Called when a file could not be loaded. */
    this.onFailed = () => {};
    const observed = { root: scroller, rootMargin: AROUND };
    this.observer = new IntersectionObserver((entries) => this.#follow(entries), observed);
    /** @type {Section[]} */
    this.sections = this.parts.map(({ first, last }, part) =>
      this.#section({ part, page: first, letters: (last - first + 1) * PAGE_LETTERS, chunk: null }));
    /** @type {Spot | null} where the reader is, which stays when letters, the window or pictures change in size */
    this.held = null;
    new ResizeObserver(() => this.held && this.#restore(this.held)).observe(article);
    article.append(...this.sections.map(({ element }) => element));
  }

  /**
   * @param {Omit<Section, 'element' | 'filled'>} facts
   * @returns {Section}
   */
  #section(facts) {
    const section = { ...facts, element: make('section', ''), filled: false };
    this.#reserve(section);
    this.observer.observe(section.element);
    return section;
  }

  /** @param {Section} section without elements */
  #reserve({ element, letters }) {
    element.style.height = Math.round(letters * (this.perLetter || 0.5)) + 'px';
  }

  /** @param {IntersectionObserverEntry[]} entries */
  #follow(entries) {
    if (this.#away) return;
    const selected = document.getSelection()?.isCollapsed === false;
    this.keep(() => {
      for (const { target, isIntersecting } of entries) {
        const section = this.sections.find(({ element }) => element === target);
        if (!section) continue;
        if (isIntersecting) this.#near(section);
        else if (section.filled && !selected && !section.element.contains(this.pinned)) this.#empty(section);
      }
    });
    this.onFilled();
  }

  /** @param {Section} section */
  #near(section) {
    if (section.chunk) this.#fill(section);
    else this.#ask(section.part).catch(() => this.onFailed());
  }

  /** @param {Section} section */
  #fill(section) {
    if (section.filled || !section.chunk) return;
    section.filled = true;
    section.element.replaceChildren(...this.make(section.chunk));
    section.element.style.height = '';
  }

  /** @param {Section} section */
  #empty(section) {
    const height = section.element.offsetHeight;
    section.filled = false;
    section.element.replaceChildren();
    section.element.style.height = height + 'px';
  }

  /**
   * Loads a file of the text, once.
   * @param {number} part
   */
  #ask(part) {
    const asked = this.loading.get(part) ?? this.#read(part);
    this.loading.set(part, asked);
    asked.catch(() => this.loading.delete(part));
    return asked;
  }

  /** @param {number} part */
  async #read(part) {
    const chunks = chunksOf(await this.load(part), this.parts[part], this.facts);
    const index = this.sections.findIndex((section) => section.part === part);
    const place = this.sections[index];
    const sections = chunks.map((chunk) =>
      this.#section({ part, page: chunk.blocks[0].page, letters: chunk.letters, chunk }));
    this.keep(() => {
      this.sections.splice(index, 1, ...sections);
      place.element.replaceWith(...sections.map(({ element }) => element));
    });
    this.observer.unobserve(place.element);
  }

  /**
   * Changes something without moving what the reader sees.
   * @param {() => void} act
   */
  keep(act) {
    const spot = this.spot;
    act();
    if (spot) this.#restore(spot);
  }

  /** Notes where the reader is: nowhere while the text there is not loaded. */
  note() {
    if (!this.#away) this.held = this.spot;
  }

  /** Whether the view is closed: nothing has a height or a place then. */
  get #away() {
    return this.scroller.clientHeight === 0;
  }

  /** Where the reader is: the last element that begins at the top of what is seen or above, else the first. */
  get spot() {
    if (this.#away) return null;
    const line = this.line + 1;
    const topOf = (/** @type {Element} */ element) => element.getBoundingClientRect().top;
    const section = this.sections.filter(({ element }) => topOf(element) <= line).at(-1) ?? this.sections[0];
    if (!section.chunk) return null;
    const anchors = section.filled ? anchorsOf(section) : [];
    const below = anchors.findIndex((anchor) => topOf(anchor) > line);
    const index = (below < 0 ? anchors.length : below) - 1;
    const anchor = anchors[index] ?? section.element;
    /** @type {Spot} */
    return { page: this.#pageAt(section, line), section, index, off: line - topOf(anchor), height: heightAround(anchor) };
  }

  /** Window's height at which the text begins below the bar. */
  get line() {
    return this.scroller.getBoundingClientRect().top + this.top;
  }

  /**
   * @param {Section} section
   * @param {number} line
   */
  #pageAt(section, line) {
    let { page } = section;
    const marks = /** @type {NodeListOf<HTMLElement>} */ (section.element.querySelectorAll('[data-page]'));
    for (const mark of marks) {
      if (mark.getBoundingClientRect().top > line + 2) break;
      page = Number(mark.dataset.page);
    }
    return page;
  }

  /** @param {Spot} spot */
  #restore({ section, index, off, height }) {
    if (this.#away) return;
    const anchor = anchorsOf(section)[index] ?? section.element;
    // The same part of a paragraph stays when it has become longer.
    const above = off * (off > LINE && height > LINE ? heightAround(anchor) / height : 1);
    const moved = anchor.getBoundingClientRect().top - (this.line + 1 - above);
    if (Math.abs(moved) >= 1) this.#scrollBy(moved);
  }

  /** Shows where the reader was when the view was closed. */
  resume() {
    if (this.held) this.#restore(this.held);
  }

  /**
   * Shows where a page begins, or the first heading of that title on it.
   * @param {number} page
   * @param {string} title
   */
  async showPage(page, title = '') {
    await this.ready(page);
    const section = this.sectionOf(page);
    if (!section) return;
    this.#fill(section);
    if (!this.perLetter) this.relay();
    if (page === 1) {
      this.showStart();
      return;
    }
    const marks = /** @type {HTMLElement[]} */ ([...section.element.querySelectorAll('[data-page]')]);
    const mark = marks.find(({ dataset }) => Number(dataset.page) === page)
      ?? marks.find(({ dataset }) => Number(dataset.page) > page) ?? marks.at(-1);
    // Pictures of pages stand above their headings.
    const heading = mark?.parentElement?.matches('figure') ? undefined : this.#heading(title, mark, section);
    this.bring(heading ?? mark ?? section.element);
  }

  /**
   * Loads the text of a page.
   * @param {number} page
   */
  async ready(page) {
    await this.#ask(Math.max(0, this.parts.filter(({ first }) => first <= page).length - 1));
  }

  /**
   * @param {number} page
   * @returns {Section | undefined} in which the page begins, or the next one
   */
  sectionOf(page) {
    const known = this.sections.filter(({ chunk }) => chunk);
    return known.find(({ chunk }) => chunk?.pages.has(page)) ?? known.find(({ chunk }) => (chunk?.last ?? 0) > page)
      ?? known.at(-1);
  }

  /**
   * @param {string} title
   * @param {HTMLElement | undefined} mark of the page
   * @param {Section} section
   */
  #heading(title, mark, section) {
    const wanted = letters(title);
    if (!wanted || !mark) return undefined;
    return [...section.element.querySelectorAll('h2, h3, h4, h5, h6')].find((heading) => {
      const before = mark.compareDocumentPosition(heading) & Node.DOCUMENT_POSITION_PRECEDING;
      const own = letters(heading.textContent ?? '');
      return (!before || heading.contains(mark)) && (own.endsWith(wanted) || (own !== '' && wanted.endsWith(own)));
    });
  }

  /**
   * Scrolls something to the top.
   * @param {Element | Range} what
   * @param {number} below pixels between the bar and it
   */
  bring(what, below = 0) {
    this.#scrollBy(what.getBoundingClientRect().top - this.line - below);
  }

  /**
   * Focuses the next link, button or scrolled part: the browser would go to the first, which may be far above.
   * @returns {boolean} whether there is one
   */
  focusNext() {
    const controls = /** @type {HTMLElement[]} */ ([...this.article.querySelectorAll('a, button, [tabindex]')]);
    const next = controls.find((control) => control.getBoundingClientRect().top >= this.line);
    next?.focus();
    return next !== undefined;
  }

  /** @param {number} way */
  #scrollBy(way) {
    const { scrollTop } = this.scroller;
    this.scroller.scrollTop += way;
    this.moved += this.scroller.scrollTop - scrollTop;
    this.note();
  }

  /**
   * Blocks that have elements now.
   * @param {string} selector
   */
  blocks(selector) {
    const sections = this.sections.filter(({ filled }) => filled);
    return sections.flatMap(({ element }) => /** @type {HTMLElement[]} */ ([...element.querySelectorAll(selector)]));
  }

  /**
   * The block after another, which has elements then.
   * @param {HTMLElement} block
   * @param {string} selector
   * @returns {Promise<HTMLElement | null>} none at the end, and where the text is not to be had
   */
  async blockAfter(block, selector) {
    let index = this.sections.findIndex(({ element }) => element.contains(block));
    if (index < 0) return null;
    const own = [...this.sections[index].element.querySelectorAll(selector)];
    /** @type {Element | null} */
    let next = own[own.indexOf(block) + 1] ?? null;
    while (!next && ++index < this.sections.length) {
      const { part, chunk } = this.sections[index];
      if (!chunk) await this.#ask(part).catch(() => this.onFailed());
      const section = this.sections[index];
      this.keep(() => this.#fill(section));
      next = section.element.querySelector(selector);
    }
    return /** @type {HTMLElement | null} */ (next);
  }

  /** Shows the beginning of the text. Browsers scroll there smoothly, until text on the way has come and moved it. */
  showStart() {
    this.#fill(this.sections[0]);
    this.#scrollBy(-this.scroller.scrollTop);
  }

  /** Shows the end of the text, of which enough has elements then for a window. */
  async showEnd() {
    await this.ready(this.facts.pageCount);
    for (const section of this.sections.slice(-2)) this.#fill(section);
    this.#scrollBy(this.scroller.scrollHeight);
  }

  /** @param {Range} range */
  sees(range) {
    const { top, bottom } = range.getBoundingClientRect();
    return bottom > this.line && top < this.line + this.scroller.clientHeight;
  }

  /**
   * Keeps a part of the text in view, unless the reader has scrolled away from such a part.
   * @param {Range} range
   * @param {number} low share of the height below which it is brought up
   */
  follow(range, low) {
    const { clientHeight } = this.scroller;
    const { top, bottom } = range.getBoundingClientRect();
    const below = top - this.line;
    this.strayed &&= below < 0 || bottom - this.line > clientHeight;
    if (this.strayed || (below >= 0 && bottom - this.line < low * clientHeight)) return;
    const atOnce = Math.abs(below) > clientHeight || matchMedia('(prefers-reduced-motion: reduce)').matches;
    this.scroller.scrollBy({ top: below - clientHeight / 8, behavior: atOnce ? 'auto' : 'smooth' });
  }

  /** Follows letters of another size. */
  relay() {
    const filled = this.sections.filter((section) => section.filled);
    const height = filled.reduce((sum, { element }) => sum + element.offsetHeight, 0);
    const letters = filled.reduce((sum, section) => sum + section.letters, 0);
    if (height > 0 && letters > 0) this.perLetter = height / letters;
    for (const section of this.sections) {
      if (!section.filled) this.#reserve(section);
    }
  }
}

/**
 * What marks places in a section: its blocks, and pages that begin within them.
 * @param {Section} section
 */
function anchorsOf({ element }) {
  return /** @type {HTMLElement[]} */ ([...element.querySelectorAll(':scope > *, [data-page]')]);
}

/** @param {HTMLElement} anchor */
function heightAround(anchor) {
  return (anchor.dataset.page ? anchor.parentElement ?? anchor : anchor).offsetHeight;
}

/** @param {string} text */
function letters(text) {
  return text.toLowerCase().replace(/[^\p{L}\p{N}]/gu, '');
}
