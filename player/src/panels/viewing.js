import { part } from '../book/dom.js';
import { ALL_BOOKS, keep, recall } from '../book/storage.js';
import { Panel } from './panel.js';

/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('../book/layout.js').Choice} Choice */

/** @type {Choice[]} */
const CHOICES = ['auto', 'one', 'two', 'width'];

/** Colour that white paper has, by what the reader chooses. */
const PAPERS = { day: '', sepia: '#f4ecd8', night: '#141414' };

/**
 * The panel in which the reader chooses how the pages lie, which is stored for the book, and on what paper: as printed,
 * in sepia, for the night, or for the night when the system is dark.
 */
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
    // Two pages would be tiny on a phone, unless its reader wants them.
    const first = matchMedia('(max-width: 600px)').matches ? 'auto' : book.config.firstView;
    book.choice = CHOICES.find((choice) => choice === (recall('view') ?? first)) ?? 'auto';
    book.firstAlone = recall('first') !== 'paired';
    this.root = root;
    this.dark = matchMedia('(prefers-color-scheme: dark)');
    this.paper = recall('paper', ALL_BOOKS) ?? 'day';
    this.dark.addEventListener('change', () => this.#applyPaper());
    this.#applyPaper();
    this.panel.dialog.addEventListener('change', ({ target }) => {
      const { name, value } = /** @type {HTMLInputElement} */ (target);
      if (name === 'paper') this.#setPaper(value);
      else if (target === this.first) this.#set(book.choice, this.first.checked);
      else this.#set(/** @type {Choice} */ (value), book.firstAlone);
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

  toggleNight() {
    this.#setPaper(this.book.tint === 'night' ? 'day' : 'night');
    this.#show();
  }

  /** @param {string} paper what the reader chooses: a paper, or "auto" */
  #setPaper(paper) {
    this.paper = paper;
    keep('paper', paper, ALL_BOOKS);
    this.#applyPaper();
  }

  #applyPaper() {
    const { root, book, dark, paper } = this;
    const wanted = paper === 'auto' ? (dark.matches ? 'night' : 'day') : paper;
    book.tint = wanted === 'night' || wanted === 'sepia' ? wanted : '';
    book.paper = PAPERS[book.tint || 'day'] || book.config.pageColour;
    root.dataset.paper = book.tint;
    root.style.setProperty('--paper', book.paper);
    this.onChange();
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
    const chosen = /** @type {HTMLInputElement} */ (part(this.panel.dialog, '[name="view"][value="' + choice + '"]'));
    chosen.checked = true;
    for (const paper of this.panel.dialog.querySelectorAll('[name="paper"]')) {
      const one = /** @type {HTMLInputElement} */ (paper);
      one.checked = one.value === this.paper;
    }
    this.first.checked = firstAlone;
    this.first.disabled = !layout.spread;
    return chosen;
  }
}
