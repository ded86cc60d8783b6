import { focusByKey, giveFocus, part } from '../book/dom.js';

/**
 * A modal dialog. The browser makes everything behind it inert and gives the focus back when it closes.
 */
export class Panel {
  /** @param {HTMLElement} element a dialog with a button to close it */
  constructor(element) {
    this.dialog = /** @type {HTMLDialogElement} */ (element);
    /** Whether the last press was beside the panel: one that marks text in it may end there. */
    this.beside = false;
    this.dialog.addEventListener('pointerdown', (event) => { this.beside = event.target === this.dialog; });
    this.dialog.addEventListener('click', (event) => {
      if (event.target === this.dialog && this.beside) this.close();
    });
    this.dialog.addEventListener('keydown', (event) => this.#key(event));
    this.dialog.addEventListener('cancel', () => this.close());
    this.dialog.addEventListener('close', () => this.onClose());
    part(element, '.close').addEventListener('click', () => this.close());
    this.onClose = () => {};
  }

  get shown() {
    return this.dialog.open;
  }

  open() {
    if (this.dialog.open) return;
    focusByKey();
    this.dialog.showModal();
  }

  close() {
    this.dialog.close();
    // Nor would keys that are pressed at once reach the book from a field.
    if (this.dialog.contains(document.activeElement)) giveFocus(null);
  }

  /**
   * Keys typed here do not turn pages, and Tab stays within the panel. Until the next frame a closed panel still has
   * the focus if it came from nowhere.
   * @param {KeyboardEvent} event
   */
  #key(event) {
    if (!this.dialog.open) return;
    event.stopPropagation();
    if (event.key !== 'Tab') return;
    const controls = [...this.dialog.querySelectorAll('button, input')]
      .filter((control) => control.getClientRects().length && !control.matches(':disabled'));
    const [end, start] = event.shiftKey ? [controls[0], controls.at(-1)]
      : [controls.at(-1), controls[0]];
    if (document.activeElement !== end) return;
    event.preventDefault();
    /** @type {HTMLElement} */ (start).focus();
  }
}
