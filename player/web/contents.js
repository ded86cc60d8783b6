import { make } from '../src/book/dom.js';
import { fullLabel, labelOf } from '../src/book/labels.js';
import { itemOfPage } from './branches.js';
import { SidePanel } from './side.js';
import { Tree } from './tree.js';

/** @typedef {import('./branches.js').Item} Item */

/** Contents of so few entries are shown whole. */
const SHORT = 24;

/** The panel with the book's contents. */
export class Contents {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./side.js').SideRoom} room
   * @param {HTMLElement} button
   */
  constructor({ config, book, turner, say }, layers, room, button) {
    this.layers = layers;
    this.panel = new SidePanel(room, 'contents', button);
    /** @type {Item | null} what the reader has chosen, while its page is in view */
    this.chosen = null;
    const list = make('ul', 'tree');
    list.setAttribute('aria-labelledby', 'contents-title');
    this.tree = new Tree(list, layers.facts.outline, ({ position }) => (position ? labelOf(config, position) : ''),
      (position) => say('page', fullLabel(config, position)), (item) => {
        turner.go(book.views.viewOf(item.entry.position));
        this.chosen = item;
        this.tree.mark(item);
        if (!room.besideBook) this.panel.hide();
      });
    if (this.tree.all.length <= SHORT) this.tree.openAll();
    this.panel.body.append(list);
    this.#addTextPage(layers.facts.textPage, say('textPage'));
    this.panel.onShow = () => {
      this.#follow();
      this.tree.reveal(this.tree.current);
      this.tree.focus();
    };
    layers.followers.push(() => this.#follow());
  }

  /**
   * @param {string} address
   * @param {string} words
   */
  #addTextPage(address, words) {
    if (!address) return;
    const link = /** @type {HTMLAnchorElement} */ (make('a', 'side-link', words));
    link.href = address;
    this.panel.dialog.append(make('footer', '', link));
  }

  /** Marks the entry to which the pages in view belong. */
  #follow() {
    const pages = this.layers.inView;
    if (this.chosen && !pages.includes(this.chosen.entry.position)) this.chosen = null;
    this.tree.mark(this.chosen ?? itemOfPage(this.tree.all, pages[pages.length - 1]));
  }
}
