/** @typedef {import('../turning/turner.js').Turner} Turner */

/**
 * Page number in a URL's fragment, 0 for none.
 * @param {string} [fragment] by default that of the page
 */
export function pageInAddress(fragment = location.hash) {
  const match = /(?:^#|&)page=(\d+)/.exec(fragment);
  return match ? Number(match[1]) : 0;
}

/** Turns after a jump until the way back is offered no more. */
const TURNS_AFTER = 3;

/** Keeps the current page in the URL's fragment and in the browser's history. */
export class Place {
  /**
   * @param {Turner} turner
   * @param {number} page where the book opens
   */
  constructor(turner, page) {
    this.turner = turner;
    this.page = page;
    /** The page to which Back leads from the last jump, 0 once the reader has come back to it or turned on. */
    this.left = 0;
    this.turns = 0;
    turner.onJump = (view) => this.#jump(view);
    window.addEventListener('hashchange', () => {
      const asked = pageInAddress();
      if (asked > 0) turner.turnTo(turner.book.views.viewOf(asked));
    });
  }

  /**
   * Jumps push a history entry, so that Back leads to where they began; turns replace the current one.
   * @param {number} view
   */
  #jump(view) {
    this.turns = 0;
    if (!pageInAddress()) write('replaceState', this.page);
    // From a panel over the book, the way back leads to where that was opened.
    const [page] = this.turner.book.views.pagesOf(view);
    this.left = write(history.state ? 'replaceState' : 'pushState', page) ? this.page : 0;
  }

  /**
   * Pushes an entry for what covers the book.
   * @returns {boolean} whether there is one now
   */
  cover() {
    return write('replaceState', this.page) && write('pushState', this.page, 'cover');
  }


  /**
   * Updates the fragment after a turn.
   * @returns {boolean} whether the reader is on another page now
   */
  land() {
    const { turner, page } = this;
    // Pages passed on the way of a jump must not replace its entry.
    if (turner.destination !== turner.current) return false;
    const pages = turner.book.views.pagesOf(turner.current);
    const asked = pageInAddress();
    this.page = [asked, page].find((one) => pages.includes(one)) ?? pages[0];
    if (this.page !== (asked || page)) write('replaceState', this.page);
    if (pages.includes(this.left) || (this.page !== page && this.turns++ >= TURNS_AFTER)) this.left = 0;
    return this.page !== page;
  }
}

/**
 * Writes an entry of the history.
 * @param {'replaceState' | 'pushState'} how
 * @param {number} page
 * @param {string | null} state
 * @returns {boolean} whether there is one now
 */
export function write(how, page, state = null) {
  try {
    history[how](state, '', '#page=' + page);
    return true;
  } catch {
    // Some viewers of local files forbid it; the book works without.
    return false;
  }
}
