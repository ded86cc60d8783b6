import { make, part } from '../book/dom.js';

const TOAST_MS = 8000;

/** A note that disappears after some time, unless the reader hovers or focuses it. */
export class Toast {
  /** @param {HTMLElement} root */
  constructor(root) {
    this.element = part(root, '.toast');
    this.timer = 0;
    for (const kind of ['pointerenter', 'focusin']) {
      this.element.addEventListener(kind, () => clearTimeout(this.timer));
    }
    for (const kind of ['pointerleave', 'focusout']) {
      this.element.addEventListener(kind, () => this.#wait());
    }
  }

  /**
   * @param {string} text
   * @param {string} offer the button's label
   * @param {() => void} accept
   */
  show(text, offer, accept) {
    // The same note again must not replace the button that the reader is about to click.
    if (!this.element.hidden && this.element.firstElementChild?.textContent === text) return;
    const button = make('button', 'plain-button', offer);
    button.addEventListener('click', () => {
      this.hide();
      accept();
    });
    this.element.replaceChildren(make('span', '', text), button);
    this.element.hidden = false;
    this.#wait();
  }

  hide() {
    clearTimeout(this.timer);
    this.element.hidden = true;
  }

  #wait() {
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => this.hide(), TOAST_MS);
  }
}
