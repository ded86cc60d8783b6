import { keep, recall } from '../book/storage.js';

/** Stores the page at which the reader left this book. */
export class Memory {
  /** @param {number} pageCount a book published again with other pages is another book */
  constructor(pageCount) {
    this.pageCount = pageCount;
  }

  /** The stored page, 0 for none. */
  get page() {
    const page = Number(recall(String(this.pageCount)));
    return Number.isInteger(page) && page >= 1 && page <= this.pageCount ? page : 0;
  }

  set page(page) {
    keep(String(this.pageCount), String(page));
  }
}
