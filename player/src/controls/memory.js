/** Stores the page at which the reader left this book, where the browser allows it. */
export class Memory {
  /** @param {number} pageCount a book published again with other pages is another book */
  constructor(pageCount) {
    this.key = 'folvero:' + location.pathname + ':' + pageCount;
    this.pageCount = pageCount;
  }

  /** The stored page, 0 for none. */
  get page() {
    try {
      const page = Number(localStorage.getItem(this.key));
      return Number.isInteger(page) && page >= 1 && page <= this.pageCount ? page : 0;
    } catch {
      return 0;
    }
  }

  set page(page) {
    try {
      localStorage.setItem(this.key, String(page));
    } catch {
      // Private windows and strict settings forbid it; then the book opens at its cover.
    }
  }
}
