import { part } from '../book/dom.js';

/** Room that stays free at both sides of the bar together, in CSS pixels. */
const BESIDE = 16;

/** A caption in less room than this cannot be read. */
const LEAST_CAPTION = 120;

/** Keeps the bar within the window: what has no room goes into the menu, the least used first. */
export class Folding {
  /**
   * @param {HTMLElement} root
   * @param {HTMLElement} bar
   */
  constructor(root, bar) {
    this.root = root;
    this.bar = bar;
    this.more = part(bar, '[data-does="more"]');
    /** Room at the left edge that a panel takes, in CSS pixels. */
    this.beside = 0;
    /** @type {HTMLElement[]} */
    this.order = [];
    this.collect();
    const observer = new ResizeObserver(() => this.fit());
    observer.observe(root);
    observer.observe(part(bar, '.pages'));
  }

  /** Notes what may be folded away. */
  collect() {
    this.order = [.../** @type {NodeListOf<HTMLElement>} */ (this.bar.querySelectorAll('[data-fold]'))];
    this.order.sort((a, b) => Number(a.dataset.fold) - Number(b.dataset.fold));
  }

  /** Buttons that are folded away, in the bar's order. */
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
    this.#fitCaption();
  }

  #fitCaption() {
    const caption = part(this.root, '.caption');
    const hidden = this.root.dataset.bar === 'no';
    const width = this.root.clientWidth - this.beside;
    const beside = (width - (hidden ? 0 : this.bar.offsetWidth)) / 2
      - (parseFloat(getComputedStyle(caption).left) - this.beside) - BESIDE;
    this.root.style.setProperty('--caption-room', beside + 'px');
    this.root.dataset.caption = beside < LEAST_CAPTION ? 'no' : 'yes';
  }
}
