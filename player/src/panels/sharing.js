import { part } from '../book/dom.js';
import { Panel } from './panel.js';
import { say } from '../book/words.js';

/** The panel for sharing the book's link. */
export class Sharing {
  /**
   * @param {HTMLElement} root
   * @param {() => number} currentPage
   * @param {(page: number) => string} labelOf
   */
  constructor(root, currentPage, labelOf) {
    this.labelOf = labelOf;
    this.panel = new Panel(part(root, '.share-panel'));
    this.currentPage = currentPage;
    this.link = this.#input('.link');
    this.atPage = this.#input('.at-page');
    this.copyButton = this.#part('.copy');
    this.#part('.on-disk').hidden = location.protocol !== 'file:';
    this.atPage.addEventListener('change', () => this.#write());
    this.copyButton.addEventListener('click', () => this.#copy());
    this.link.addEventListener('focus', () => this.link.select());
    const send = this.#part('.send');
    send.hidden = !navigator.share || location.protocol === 'file:';
    send.addEventListener('click', () => {
      navigator.share({ title: document.title, url: this.link.value }).catch(() => {});
    });
  }

  open() {
    const page = this.currentPage();
    this.atPage.checked = page > 1;
    this.#part('.at-page-text').textContent = say('shareAtPage', this.labelOf(page));
    this.#write();
    this.panel.open();
  }

  #write() {
    const book = location.href.split('#')[0];
    this.link.value = this.atPage.checked ? book + '#page=' + this.currentPage() : book;
    this.copyButton.textContent = say('copy');
    this.#part('.by-hand').textContent = '';
  }

  async #copy() {
    try {
      await navigator.clipboard.writeText(this.link.value);
    } catch {
      this.link.select();
      // For pages from disk and over plain http, which have no clipboard API.
      if (!document.execCommand('copy')) {
        this.#part('.by-hand').textContent = say('copyByHand');
        return;
      }
    }
    this.copyButton.textContent = say('copied');
  }

  /** @param {string} selector */
  #part(selector) {
    return part(this.panel.dialog, selector);
  }

  /** @param {string} selector */
  #input(selector) {
    return /** @type {HTMLInputElement} */ (this.#part(selector));
  }
}
