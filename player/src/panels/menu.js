import { make, part } from '../book/dom.js';
import { Panel } from './panel.js';

/** The panel with controls that do not fit into the bar. */
export class Menu {
  /**
   * @param {HTMLElement} root
   * @param {() => HTMLElement[]} folded buttons of the bar that are folded away
   */
  constructor(root, folded) {
    this.root = root;
    this.folded = folded;
    this.panel = new Panel(part(root, '.menu-panel'));
  }

  open() {
    const caption = part(this.root, '.caption');
    const entries = this.folded().map((button) => this.#entry(button));
    part(this.panel.dialog, '.entries').replaceChildren(...entries);
    part(this.panel.dialog, '.caption-copy').replaceChildren(
      ...[...caption.childNodes].map((node) => node.cloneNode(true)));
    this.panel.open();
  }

  /** @param {HTMLElement} button */
  #entry(button) {
    const icon = /** @type {SVGElement} */ (button.querySelector('svg')).cloneNode(true);
    const entry = make('button', 'entry', icon, button.getAttribute('aria-label') ?? '');
    const pressed = button.getAttribute('aria-pressed');
    if (pressed) entry.setAttribute('aria-pressed', pressed);
    entry.setAttribute('type', 'button');
    /** @type {HTMLButtonElement} */ (entry).disabled = button.matches(':disabled');
    entry.addEventListener('click', () => {
      this.panel.close();
      button.click();
    });
    return entry;
  }
}
