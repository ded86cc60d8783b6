import { make } from '../src/book/dom.js';
import { report } from './events.js';
import { icon } from './icons.js';
import { once } from './once.js';
import { SidePanel } from './side.js';

/**
 * The search panel with its box, which takes what is typed at once. What searches is a script of its own, loaded at its
 * first use.
 */
export class SearchPanel {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./data.js').DataFiles} files
   * @param {import('./side.js').SideRoom} room
   * @param {HTMLElement} button
   */
  constructor(player, layers, files, room, button) {
    this.say = player.say;
    this.panel = new SidePanel(room, 'search', button);
    this.box = /** @type {HTMLInputElement} */ (make('input', 'search-box'));
    this.status = make('p', 'search-status');
    this.row = make('div', 'search-row', this.status);
    this.again = make('button', 'plain-button', this.say('tryAgain'));
    this.load = once(async () => {
      // The text takes longer than the script, and waits for no round trip.
      const text = files.load('search/text');
      text.catch(() => {});
      const part = /** @type {typeof import('./searchpart.js')} */ (await files.run('search'));
      return new part.Searching(player, layers, files, room, this, text);
    });
    this.#build();
    this.panel.onShow = () => {
      this.box.focus({ preventScroll: true });
      this.box.select();
      this.#search((searching) => searching.shown());
    };
    window.addEventListener('keydown', (event) => this.#key(event), { capture: true });
  }

  #build() {
    const { box, again } = this;
    Object.assign(box, { type: 'search', autocomplete: 'off', spellcheck: false, enterKeyHint: 'search', maxLength: 200 });
    box.dir = 'auto';
    box.setAttribute('aria-label', this.say('searchBox'));
    box.placeholder = this.say('searchBox');
    box.addEventListener('input', () => this.find());
    this.status.setAttribute('role', 'status');
    again.setAttribute('type', 'button');
    again.hidden = true;
    again.addEventListener('click', () => {
      box.focus();
      this.find();
    });
    this.panel.head.after(make('div', 'search-head', make('label', 'search-field', icon('search'), box), this.row, again));
  }

  find() {
    this.status.textContent = this.box.value.trim() ? this.say('searchWait') : '';
    this.#search((searching) => searching.find());
  }

  /**
   * Marks the words that an address names, without the panel.
   * @param {string} typed
   */
  mark(typed) {
    this.box.value = typed;
    this.#search((searching) => searching.mark(typed));
  }

  /** Says that what is searched for could not be loaded, and lets the reader try again. */
  fail() {
    this.status.textContent = this.say('searchFailed');
    this.again.hidden = false;
  }

  /**
   * Reports what was searched: only this script knows whether a page around the book listens.
   * @param {string} text
   * @param {number | undefined} hits
   */
  report(text, hits) {
    report('search', { text, hits });
  }

  /** @param {(searching: import('./searching.js').Searching) => void} act */
  #search(act) {
    this.again.hidden = true;
    this.load().then(act, () => this.fail());
  }

  /**
   * Ctrl+F: the browser's own search would find only what is in view. A second Ctrl+F is left to the browser.
   * @param {KeyboardEvent} event
   */
  #key(event) {
    const { room: { root }, button } = this.panel;
    const asked = (event.ctrlKey || event.metaKey) && !event.altKey && !event.shiftKey && event.key.toLowerCase() === 'f';
    if (!asked || document.activeElement === this.box || root.dataset.state !== 'ready') return;
    if (button.hidden) return;
    if (root.querySelector('dialog.panel[open]')) return;
    event.preventDefault();
    this.panel.show();
  }
}
