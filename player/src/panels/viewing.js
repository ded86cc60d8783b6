import { part } from '../book/dom.js';
import { keep, recall } from '../book/storage.js';
import { Panel } from './panel.js';

/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('../book/layout.js').Choice} Choice */

/** @type {Choice[]} */
const CHOICES = ['auto', 'one', 'two', 'width'];

/** The panel in which the reader chooses how the pages lie, which is stored for the book. */
export class Viewing {
  /**
   * @param {HTMLElement} root
   * @param {Book} book
   */
  constructor(root, book) {
    this.book = book;
    this.panel = new Panel(part(root, '.view-panel'));
    this.first = /** @type {HTMLInputElement} */ (part(root, '.first-alone'));
    this.onChange = () => {};
    book.choice = CHOICES.find((choice) => choice === recall('view')) ?? 'auto';
    book.firstAlone = recall('first') !== 'paired';
    this.panel.dialog.addEventListener('change', ({ target }) => {
      if (target === this.first) this.#set(book.choice, this.first.checked);
      else this.#set(/** @type {Choice} */ (/** @type {HTMLInputElement} */ (target).value), book.firstAlone);
    });
  }

  open() {
    this.panel.open();
    this.#show().focus();
  }

  /**
   * Chooses a view; the same again is the end of it.
   * @param {Choice} choice
   */
  toggle(choice) {
    this.#set(this.book.choice === choice ? 'auto' : choice, this.book.firstAlone);
  }

  /**
   * @param {Choice} choice
   * @param {boolean} firstAlone
   */
  #set(choice, firstAlone) {
    Object.assign(this.book, { choice, firstAlone });
    keep('view', choice);
    keep('first', firstAlone ? 'alone' : 'paired');
    this.onChange();
    this.#show();
  }

  /** @returns {HTMLInputElement} what is chosen */
  #show() {
    const { choice, firstAlone, layout } = this.book;
    const chosen = /** @type {HTMLInputElement} */ (part(this.panel.dialog, '[value="' + choice + '"]'));
    chosen.checked = true;
    this.first.checked = firstAlone;
    this.first.disabled = !layout.spread;
    return chosen;
  }
}
