import { part } from '../book/dom.js';
import { labelOf, pageNamed } from '../book/labels.js';
import { Panel } from './panel.js';
import { say } from '../book/words.js';

/** @typedef {import('./sheets.js').Sheets} Sheets */

/** The panel in which the reader chooses what to print. */
export class Printing {
  /**
   * @param {HTMLElement} root
   * @param {Sheets} sheets
   * @param {import('../book/config.js').BookConfig} config
   * @param {() => number[]} pagesInView
   */
  constructor(root, sheets, config, pagesInView) {
    this.panel = new Panel(part(root, '.print-panel'));
    this.sheets = sheets;
    this.config = config;
    this.pagesInView = pagesInView;
    this.form = /** @type {HTMLFormElement} */ (part(this.panel.dialog, 'form'));
    this.from = this.#input('.from');
    this.to = this.#input('.to');
    this.note = part(this.form, '.note');
    this.start = /** @type {HTMLButtonElement} */ (part(this.form, '.main-button'));
    for (const box of [this.from, this.to]) {
      box.addEventListener('focus', () => { this.#input('[value="some"]').checked = true; });
      if (config.labels) box.inputMode = 'text';
    }
    this.form.addEventListener('submit', (event) => {
      event.preventDefault();
      this.#print();
    });
    this.panel.onClose = () => sheets.cancel();
  }

  open() {
    const pages = this.pagesInView();
    part(this.form, '.these').textContent = say(pages.length > 1 ? 'printThese' : 'printThis');
    const labels = pages.map((page) => labelOf(this.config, page));
    part(this.form, '.these-count').textContent = labels.join(' \u2013 ');
    part(this.form, '.all-count').textContent = String(this.config.pages.length);
    this.#input('[value="these"]').checked = true;
    this.from.value = labels[0];
    this.to.value = labels[pages.length - 1];
    this.#tell('');
    this.panel.open();
  }

  /** @returns {number[] | null} null when there are no such pages */
  #chosen() {
    const { config } = this;
    const choice = new FormData(this.form).get('what');
    if (choice === 'these') return this.pagesInView();
    const [from, to] = choice === 'all' ? [1, config.pages.length]
      : [pageNamed(config, this.from.value), pageNamed(config, this.to.value)];
    if (!from || from > to) return null;
    return Array.from({ length: to - from + 1 }, (_, index) => from + index);
  }

  async #print() {
    const pages = this.#chosen();
    if (!pages) {
      this.#tell(say('printWrong', labelOf(this.config, 1), labelOf(this.config, this.config.pages.length)));
      this.from.focus();
      return;
    }
    this.start.disabled = true;
    const printed = await this.sheets.print(pages,
      (done) => this.#tell(say('printWait', done, pages.length)));
    this.start.disabled = false;
    this.#tell('');
    if (printed) this.panel.dialog.close();
  }

  /** @param {string} text */
  #tell(text) {
    this.note.textContent = text;
  }

  /** @param {string} selector */
  #input(selector) {
    return /** @type {HTMLInputElement} */ (part(this.form, selector));
  }
}
