import { make } from '../src/book/dom.js';
import { fullLabel, labelOf } from '../src/book/labels.js';
import { Facts } from './facts.js';
import { SidePanel } from './side.js';
import { textLink } from './textlink.js';

/** @typedef {import('./branches.js').Item} Item */
/** @typedef {import('./facts.js').Entry} Entry */
/** @typedef {import('./tree.js').Tree} Tree */

/** Contents of so few entries are shown whole. */
const SHORT = 24;

/** The panel with the book's contents. */
export class Contents {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./data.js').DataFiles} files
   * @param {import('./side.js').SideRoom} room
   * @param {HTMLElement} button
   */
  constructor(player, layers, files, room, button) {
    this.player = player;
    this.layers = layers;
    this.files = files;
    this.room = room;
    this.panel = new SidePanel(room, 'contents', button);
    /** @type {Item | null} what the reader has chosen, while its page is in view */
    this.chosen = null;
    /** @type {Tree | null} none until it is first shown */
    this.tree = null;
    /** @type {Promise<void> | null} */
    this.loading = null;
    if (layers.facts.textPage) {
      this.panel.dialog.append(make('footer', '', textLink(layers, 'side-link', player.say('textPage'))));
    }
    this.panel.onShow = () => this.#show();
    layers.followers.push(() => this.#follow());
    const { outline } = layers.facts;
    if (outline.length > 0) player.seeking.setChapters(outline);
    else {
      player.seeking.onUse = () => {
        if (!this.tree) this.#show();
      };
    }
  }

  /**
   * @param {typeof import('./tree.js').Tree} Made
   * @param {Entry[]} outline
   */
  #makeTree(Made, outline) {
    const { config, say } = this.player;
    const list = make('ul', 'tree');
    list.setAttribute('aria-labelledby', 'contents-title');
    this.player.seeking.setChapters(outline);
    const tree = new Made(list, outline, ({ position }) => (position ? labelOf(config, position) : ''),
      (position) => say('page', fullLabel(config, position)), (item) => {
        this.layers.show(item.entry.position, item.entry.title);
        this.chosen = item;
        tree.mark(item);
        if (!this.room.besideBook) this.panel.hide();
      });
    if (tree.all.length <= SHORT) tree.openAll();
    this.panel.body.replaceChildren(list);
    return tree;
  }

  #show() {
    if (!this.tree) {
      this.loading ??= this.#load();
      return;
    }
    this.#reveal();
    this.tree?.focus();
  }

  #reveal() {
    this.#follow();
    this.tree?.reveal(this.tree.current);
  }

  /** Loads the tree, and the outline of a long book, which is too long for the page. */
  async #load() {
    const { say, config } = this.player;
    const again = make('button', 'plain-button', say('tryAgain'));
    again.setAttribute('type', 'button');
    again.addEventListener('click', () => this.#show());
    const status = make('p', 'search-status');
    status.setAttribute('role', 'status');
    this.panel.body.replaceChildren(status);
    try {
      const { outline } = this.layers.facts;
      const part = /** @type {{Tree: typeof import('./tree.js').Tree}} */ (await this.files.run('contents'));
      this.tree = this.#makeTree(part.Tree, outline.length > 0 ? outline
        : new Facts(await this.files.load('web/book'), config.pages.length).outline);
      this.#reveal();
      // A panel that opened by itself leaves the keys to the book.
      if (this.panel.dialog.contains(document.activeElement)) this.tree.focus();
    } catch {
      this.loading = null;
      status.textContent = say('unreachableText');
      status.after(again);
    }
  }

  /** Marks the entry to which the pages in view belong. */
  #follow() {
    if (!this.tree) return;
    const pages = this.layers.inView;
    if (this.chosen && !pages.includes(this.chosen.entry.position)) this.chosen = null;
    this.tree.mark(this.chosen ?? this.tree.ofPage(pages[pages.length - 1]));
  }
}
