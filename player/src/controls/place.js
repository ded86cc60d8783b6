/** @typedef {import('../turning/turner.js').Turner} Turner */

/** Page that the address asks for, 0 when it asks for none. */
export function pageInAddress() {
  const match = /(?:^#|&)page=(\d+)/.exec(location.hash);
  return match ? Number(match[1]) : 0;
}

/** The page where the reader is, in the address and in the browser's history. */
export class Place {
  /**
   * @param {Turner} turner
   * @param {number} page where the book opens
   */
  constructor(turner, page) {
    this.turner = turner;
    this.page = page;
    turner.onJump = (view) => this.#jump(view);
    window.addEventListener('hashchange', () => {
      const asked = pageInAddress();
      if (asked > 0) turner.turnTo(turner.book.views.viewOf(asked));
    });
  }

  /**
   * A jump makes an entry, so that Back leads to the page where it began; turns replace the address.
   * @param {number} view
   */
  #jump(view) {
    if (!pageInAddress()) write('replaceState', this.page);
    write('pushState', this.turner.book.views.pagesOf(view)[0]);
  }

  /**
   * Follows the pages that have landed.
   * @returns {boolean} whether the reader is on another page now
   */
  land() {
    const { turner, page } = this;
    // The entry of a jump keeps its page while other pages are passed on the way.
    if (turner.destination !== turner.current) return false;
    const pages = turner.book.views.pagesOf(turner.current);
    const asked = pageInAddress();
    this.page = [asked, page].find((one) => pages.includes(one)) ?? pages[0];
    if (this.page !== (asked || page)) write('replaceState', this.page);
    return this.page !== page;
  }
}

/**
 * @param {'replaceState' | 'pushState'} how
 * @param {number} page
 */
function write(how, page) {
  try {
    history[how](null, '', '#page=' + page);
  } catch {
    // Some viewers of local files forbid it; the book works without.
  }
}
