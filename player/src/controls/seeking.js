import { make, part } from '../book/dom.js';
import { fullLabel } from '../book/labels.js';
import { say } from '../book/words.js';

/** @typedef {import('../turning/turner.js').Turner} Turner */
/** @typedef {{title: string, position: number, children: Chapter[]}} Chapter position 0: leads nowhere */

/** More marks than this would be a solid line. */
const MOST_MARKS = 200;

/** The slider of the bar: leads to any page, and shows meanwhile its picture, its chapter and where hits are. */
export class Seeking {
  /**
   * @param {HTMLElement} root
   * @param {Turner} turner
   * @param {(page: number, put: (picture: HTMLCanvasElement) => void) => void} picture gives that of a page, once it is there
   */
  constructor(root, turner, picture) {
    this.root = root;
    this.turner = turner;
    this.config = turner.book.config;
    this.picture = picture;
    this.element = part(root, '.seek');
    this.input = /** @type {HTMLInputElement} */ (part(this.element, 'input'));
    this.note = part(root, '.seek-note');
    /** Whether a pointer holds it. */
    this.held = false;
    /** @type {Chapter[]} in the order of their pages */
    this.chapters = [];
    /** Called when it is first used: what it shows may still have to be loaded. */
    this.onUse = () => {};
    const { pages, rightToLeft } = this.config;
    this.input.max = String(pages.length);
    this.element.dir = rightToLeft ? 'rtl' : 'ltr';
    this.element.hidden = pages.length === 1;
    this.#wire();
  }

  #wire() {
    const { input } = this;
    input.addEventListener('pointerdown', () => {
      this.held = true;
      this.onUse();
    });
    input.addEventListener('pointermove', (event) => {
      if (this.held || event.pointerType !== 'mouse') return;
      this.onUse();
      this.#preview(this.#pageAt(event.clientX));
    });
    input.addEventListener('input', () => this.#preview(Number(input.value)));
    input.addEventListener('change', () => this.#choose());
    input.addEventListener('focus', () => this.onUse());
    for (const kind of ['pointerup', 'pointercancel']) input.addEventListener(kind, () => this.#release());
    for (const kind of ['pointerleave', 'blur']) {
      input.addEventListener(kind, () => { this.note.hidden = !this.held; });
    }
  }

  /** Shows where the reader is. */
  update() {
    const { views } = this.turner.book;
    const [page] = views.pagesOf(this.turner.destination);
    if (!this.held) this.input.value = String(page);
    this.root.style.setProperty('--read', String(this.#shareOf(page)));
    const { length } = this.config.pages;
    const named = say('pageOf', fullLabel(this.config, page), length);
    this.input.setAttribute('aria-valuetext', [named, this.#chapterOf(page)].filter(Boolean).join(', '));
    part(this.element, '.seek-pages').textContent = say('pageOfAll', page, length);
  }

  /** @param {Chapter[]} outline */
  setChapters(outline) {
    /** @param {Chapter[]} level @returns {Chapter[]} */
    const flat = (level) => level.flatMap((one) => [one, ...flat(one.children)]);
    this.chapters = flat(outline).filter(({ position }) => position > 0).sort((a, b) => a.position - b.position);
    this.#mark('chapter', outline.map(({ position }) => position).filter((page) => page > 1));
  }

  /** @param {number[]} pages on which something was found */
  setHits(pages) {
    this.#mark('hit', pages);
  }

  /**
   * @param {'chapter' | 'hit'} kind
   * @param {number[]} pages
   */
  #mark(kind, pages) {
    for (const old of this.element.querySelectorAll('.' + kind)) old.remove();
    const shown = [...new Set(pages)];
    const step = Math.ceil(shown.length / MOST_MARKS);
    this.element.prepend(...shown.filter((_, index) => index % step === 0).map((page) => {
      const mark = make('i', kind);
      mark.style.setProperty('--at', String(this.#shareOf(page)));
      return mark;
    }));
  }

  /** @param {number} page */
  #shareOf(page) {
    return (page - 1) / Math.max(1, this.config.pages.length - 1);
  }

  /** @param {number} page */
  #chapterOf(page) {
    return this.chapters.filter(({ position }) => position <= page).at(-1)?.title ?? '';
  }

  /**
   * The page to which a place of the slider belongs.
   * @param {number} x
   */
  #pageAt(x) {
    const { left, right, height } = this.input.getBoundingClientRect();
    // The middle of the knob goes from half of its width on.
    const share = Math.min(1, Math.max(0, (x - left - height / 4) / (right - left - height / 2)));
    return 1 + Math.round((this.config.rightToLeft ? 1 - share : share) * (this.config.pages.length - 1));
  }

  /**
   * Shows a page's picture above its place.
   * @param {number} page
   */
  #preview(page) {
    const { note, input } = this;
    const frame = make('span', 'thumb-picture');
    note.replaceChildren(frame, make('b', '', this.#chapterOf(page)),
      make('span', '', say('page', fullLabel(this.config, page))));
    note.hidden = false;
    note.dataset.page = String(page);
    const { left, right, top, height } = input.getBoundingClientRect();
    const share = this.config.rightToLeft ? 1 - this.#shareOf(page) : this.#shareOf(page);
    const middle = left + height / 4 + share * (right - left - height / 2);
    const most = this.root.clientWidth - note.offsetWidth - 6;
    note.style.left = Math.max(6, Math.min(most, middle - note.offsetWidth / 2)) + 'px';
    note.style.bottom = this.root.clientHeight - top + 6 + 'px';
    this.picture(page, (picture) => {
      if (note.dataset.page !== String(page)) return;
      const copy = /** @type {HTMLCanvasElement} */ (picture.cloneNode());
      copy.getContext('2d')?.drawImage(picture, 0, 0);
      frame.replaceChildren(copy);
    });
  }

  /** Goes to the page; by key, where each press is one, without an entry in the history. */
  #choose() {
    const view = this.turner.book.views.viewOf(Number(this.input.value));
    if (this.held) {
      this.turner.go(view);
      return;
    }
    this.turner.turnTo(view);
    this.note.hidden = true;
  }

  /** Lets the keys be the book's again. */
  #release() {
    // The event "change" comes after this.
    setTimeout(() => {
      this.held = false;
      this.note.hidden = true;
      this.input.blur();
      this.update();
    });
  }
}
