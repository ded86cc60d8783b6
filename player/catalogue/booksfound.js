import { card } from './card.js';
import { Finding } from './finding.js';

/** Books shown at a time. */
const AT_A_TIME = 24;

/** The books that are found, as items of a list. */
export class BooksFound {
  /**
   * @param {import('./index.js').Index} index
   * @param {HTMLElement} list
   * @param {import('./texts/en.json')['search']} texts
   */
  constructor(index, list, texts) {
    this.index = index;
    this.list = list;
    this.texts = texts;
    /** @type {Finding | null} the search that the reader waits for or sees */
    this.finding = null;
  }

  get count() {
    return this.finding?.count ?? 0;
  }

  get done() {
    return this.finding?.done ?? true;
  }

  /** The text of the status, with "{0}" for the count. */
  get status() {
    const { texts, finding } = this;
    if (!finding || finding.empty) return texts.start;
    if (finding.count === 0) return finding.short ? texts.short : texts.none;
    return finding.count === 1 ? texts.one : finding.dropped > 0 && !finding.done ? texts.about : texts.many;
  }

  /**
   * @param {import('./finding.js').Typed} typed
   * @returns {Promise<boolean>} false when the reader has typed on meanwhile
   */
  async find(typed) {
    const finding = new Finding(this.index, typed);
    this.finding = finding;
    if (!finding.empty) await finding.run();
    const found = await finding.next(AT_A_TIME);
    if (this.finding !== finding) return false;
    this.list.replaceChildren(...found.map(card));
    return true;
  }

  /** @returns {Promise<boolean>} as of find */
  async more() {
    const { finding } = this;
    if (!finding) return false;
    const found = await finding.next(AT_A_TIME);
    if (this.finding !== finding) return false;
    append(this.list, found.map(card));
    return true;
  }
}

/**
 * Appends items and moves the focus to the first.
 * @param {HTMLElement} list
 * @param {Element[]} items
 */
export function append(list, items) {
  list.append(...items);
  items[0]?.querySelector('a')?.focus();
}
