import { part } from '../book/dom.js';

/** Total margin at both sides of the bar, in CSS pixels. */
const BESIDE = 16;

/** A caption narrower than this is unreadable. */
const LEAST_CAPTION = 120;

/** Fits the bar into the window: controls that do not fit move to the menu, the least used first. */
export class Folding {
  /**
   * @param {HTMLElement} root
   * @param {HTMLElement} bar
   */
  constructor(root, bar) {
    this.root = root;
    this.bar = bar;
    this.more = part(bar, '[data-does="more"]');
    /** Width of an open panel at the side where lines begin, in CSS pixels. */
    this.beside = 0;
    /** @type {HTMLElement[]} */
    this.order = [];
    this.collect();
    const observer = new ResizeObserver(() => this.fit());
    observer.observe(root);
    observer.observe(part(bar, '.pages'));
  }

  /** Collects the controls that may move to the menu. */
  collect() {
    this.order = [.../** @type {NodeListOf<HTMLElement>} */ (this.bar.querySelectorAll('[data-fold]'))];
    this.order.sort((a, b) => Number(a.dataset.fold) - Number(b.dataset.fold));
  }

  /** Buttons that are in the menu, in the bar's order. */
  get folded() {
    return this.order.filter((one) => one.matches('button.folded:not([hidden])'))
      .sort((a, b) => (a.compareDocumentPosition(b) & Node.DOCUMENT_POSITION_FOLLOWING ? -1 : 1));
  }

  fit() {
    const { bar, root } = this;
    const room = root.clientWidth - this.beside - BESIDE;
    for (const one of this.order) one.classList.remove('folded');
    this.more.hidden = true;
    bar.dataset.folded = 'no';
    const waiting = this.order.filter((one) => !one.hidden);
    while (bar.offsetWidth > room && waiting.length > 0) {
      this.more.hidden = false;
      bar.dataset.folded = 'yes';
      /** @type {HTMLElement} */ (waiting.shift()).classList.add('folded');
    }
    // Then the slider shows the count.
    bar.dataset.count = part(bar, '.of').matches('.folded') ? 'no' : 'yes';
    this.#fitCaption();
  }

  #fitCaption() {
    const caption = part(this.root, '.caption');
    const hidden = this.root.dataset.bar === 'no';
    const width = this.root.clientWidth - this.beside;
    const beside = (width - (hidden ? 0 : this.bar.offsetWidth)) / 2
      - (parseFloat(getComputedStyle(caption).insetInlineStart) - this.beside) - BESIDE;
    this.root.style.setProperty('--caption-room', beside + 'px');
    this.root.dataset.caption = beside < LEAST_CAPTION ? 'no' : 'yes';
  }
}
