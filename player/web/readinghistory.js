import { pageInAddress, write } from '../src/controls/place.js';

/** Windows in which the player itself lets Back close what lies over the book. */
const NARROW = '(max-width: 899px)';

/** The reading view in the browser's history: Back leads to where a jump began, and in the end back to the pages. */
export class ReadingHistory {
  /** @param {import('./readingview.js').ReadingView} view */
  constructor(view) {
    this.view = view;
    /** Entries of jumps since the view was opened. */
    this.depth = 0;
    /** Whether the entry that stands for the view is ours. */
    this.own = false;
    /** Page to be written into the entry that Back reaches, 0 for none. */
    this.goal = 0;
    /** @type {(() => void) | null} what waits until the entries of jumps are passed */
    this.waiting = null;
    window.addEventListener('popstate', () => this.#moved());
  }

  enter() {
    this.depth = 0;
    this.goal = 0;
    this.own = !matchMedia(NARROW).matches && write('pushState', pageInAddress() || this.view.page, 'cover');
  }

  /** @param {number} page */
  jump(page) {
    if (write('pushState', page, 'cover ' + (this.depth + 1))) this.depth += 1;
  }

  /**
   * The address names the page that is read.
   * @param {number} page
   */
  note(page) {
    if (pageInAddress() !== page) write('replaceState', page, history.state);
  }

  /**
   * @param {() => void} close
   */
  leave(close) {
    if (this.depth === 0) {
      close();
      return;
    }
    this.waiting = close;
    history.go(-this.depth);
    // Some viewers of local files have no history.
    setTimeout(() => this.#pass(), 500);
  }

  #pass() {
    const { waiting } = this;
    this.waiting = null;
    waiting?.();
  }

  /** The view is closed; its entry goes, and the one before names the page where the reader is now. */
  left() {
    const goes = history.state !== null;
    this.goal = goes ? this.view.page : 0;
    if (this.own && goes) history.back();
    this.own = false;
  }

  #moved() {
    const { view } = this;
    if (this.waiting) {
      this.#pass();
      return;
    }
    // On phones the player has closed the view.
    if (!view.dialog.open) view.closed();
    if (!view.isOpen) {
      if (this.goal) this.note(this.goal);
      this.goal = 0;
      return;
    }
    this.depth = Number(/^cover (\d+)$/.exec(history.state)?.[1] ?? 0);
    if (this.own && history.state === null) view.close();
    else view.addressed(pageInAddress());
  }
}
