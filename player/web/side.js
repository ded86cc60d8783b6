import { focusByKey, giveFocus, make, part } from '../src/book/dom.js';
import { icon } from './icons.js';

/** Minimum window width for a panel beside the book, and for one over it instead of a full-window sheet. */
const BESIDE_LEAST = 900;
const OVER_LEAST = 600;

/** @typedef {'beside' | 'over' | 'sheet'} Way how a panel lies to the book */

/** Whether the reader's language runs from right to left, and the controls with it. */
const isMirrored = () => document.documentElement.dir === 'rtl';

/** The area at the side where lines begin, in which one panel at a time opens. */
export class SideRoom {
  /** @param {import('../src/player.js').Player} player */
  constructor({ root, book, toolbar, commands, drawer, relayout, say }) {
    this.root = root;
    this.book = book;
    this.folding = toolbar.folding;
    this.drawer = drawer;
    this.relayout = relayout;
    this.say = say;
    /** @type {SidePanel | null} */
    this.open = null;
    /** @type {Way} */
    this.way = 'beside';
    /** @type {HTMLElement | null} what had the focus before */
    this.from = null;
    const { escape } = commands;
    commands.escape = () => {
      if (this.open) this.open.hide();
      else escape();
    };
    part(root, '.stage').addEventListener('pointerdown', () => {
      if (this.way === 'over') this.open?.hide();
    });
    new ResizeObserver(() => this.#follow()).observe(root);
  }

  /** Whether the reader sees the book while a panel is open. */
  get besideBook() {
    return this.way === 'beside';
  }

  /** Whether a panel would lie beside the book. */
  get isWide() {
    return this.#wayNow() === 'beside';
  }

  /** @param {SidePanel} panel */
  take(panel) {
    if (!this.open) this.from = focusByKey();
    else if (this.open !== panel) this.open.leave();
    this.open = panel;
    this.way = this.#wayNow();
    this.root.dataset.panel = this.way;
    if (this.way === 'sheet') panel.dialog.showModal();
    else panel.dialog.show();
    if (this.way !== 'beside') this.drawer.hide();
    const { offsetLeft, offsetWidth } = panel.dialog;
    const taken = isMirrored() ? this.root.clientWidth - offsetLeft : offsetLeft + offsetWidth;
    this.#make(this.way === 'beside' ? taken : 0);
  }

  free() {
    this.open = null;
    delete this.root.dataset.panel;
    this.#make(0);
  }

  /** Gives the focus back to where it was by key, or to the menu that it is in now. */
  giveBack() {
    const more = part(this.root, '[data-does="more"]');
    giveFocus(this.from && [this.from, more].find((one) => one.getClientRects().length > 0));
  }

  /** @returns {Way} */
  #wayNow() {
    const { clientWidth } = this.root;
    if (clientWidth >= BESIDE_LEAST) return 'beside';
    return clientWidth >= OVER_LEAST ? 'over' : 'sheet';
  }

  /** @param {number} beside width reserved for the panel, in CSS pixels */
  #make(beside) {
    this.root.style.setProperty('--beside', beside + 'px');
    this.book.beside = isMirrored() ? -beside : beside;
    this.folding.beside = beside;
    this.relayout();
    this.folding.fit();
  }

  /** Reopens an open panel in the way that fits the resized window. */
  #follow() {
    const panel = this.open;
    if (!panel || this.#wayNow() === this.way) return;
    const focused = /** @type {HTMLElement | null} */ (document.activeElement);
    panel.dialog.close();
    this.take(panel);
    if (focused && panel.dialog.contains(focused)) focused.focus({ preventScroll: true });
  }
}

/** A panel of that area, with a title and a button to close it. */
export class SidePanel {
  /**
   * @param {SideRoom} room
   * @param {'contents' | 'search' | 'notes'} name of the panel and of the command that opens it
   * @param {HTMLElement} button in the bar
   */
  constructor(room, name, button) {
    this.room = room;
    this.button = button;
    button.setAttribute('aria-expanded', 'false');
    const { say, root } = room;
    const title = make('h2', '', say(name));
    title.id = name + '-title';
    const close = make('button', 'side-button side-close', icon('close'));
    close.setAttribute('type', 'button');
    close.setAttribute('aria-label', say('close'));
    close.dataset.tip = say('close');
    this.head = make('header', '', title, close);
    this.body = make('div', 'side-body');
    this.dialog = /** @type {HTMLDialogElement} */ (make('dialog', 'side ' + name + '-side', this.head, this.body));
    this.dialog.setAttribute('aria-labelledby', title.id);
    part(root, '.toast').before(this.dialog);
    close.addEventListener('click', () => this.hide());
    this.dialog.addEventListener('keydown', (event) => this.#key(event));
    this.dialog.addEventListener('cancel', (event) => {
      event.preventDefault();
      this.hide();
    });
    this.onShow = () => {};
    this.onHide = () => {};
  }

  get shown() {
    return this.room.open === this;
  }

  toggle() {
    if (this.shown) this.hide();
    else this.show();
  }

  show() {
    if (!this.shown) {
      this.room.take(this);
      this.button.setAttribute('aria-expanded', 'true');
    }
    this.onShow();
  }

  /** Closes the panel; the focus goes back to where it was. */
  hide() {
    if (!this.shown) return;
    const hadFocus = this.dialog.contains(document.activeElement);
    this.leave();
    this.room.free();
    if (hadFocus) this.room.giveBack();
    else focusByKey();
  }

  /** Closes the panel because another one opens. */
  leave() {
    this.dialog.close();
    this.button.setAttribute('aria-expanded', 'false');
    this.onHide();
  }

  /**
   * Keys typed here do not turn pages; / switches from the contents to the search.
   * @param {KeyboardEvent} event
   */
  #key(event) {
    if (event.ctrlKey || event.metaKey || event.altKey || event.key === '/') return;
    event.stopPropagation();
    if (event.key !== 'Escape') return;
    event.preventDefault();
    this.hide();
  }
}
