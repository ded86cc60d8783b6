/**
 * Maps pages (numbered from 1) to views (numbered from 0). In spread mode the first page may be alone, on the side where
 * a book begins; in single mode every page is a view.
 */
export class Views {
  /**
   * @param {number} pageCount
   * @param {boolean} spread
   * @param {boolean} rightToLeft
   * @param {boolean} [firstAlone] in spread mode
   */
  constructor(pageCount, spread, rightToLeft, firstAlone = true) {
    this.pageCount = pageCount;
    this.spread = spread;
    this.rightToLeft = rightToLeft;
    /** Free places before the first page. */
    this.lead = spread && firstAlone ? 1 : 0;
  }

  get count() {
    return this.spread ? Math.ceil((this.pageCount + this.lead) / 2) : this.pageCount;
  }

  /**
   * @param {number} view
   * @returns {{left: number, right: number}} page numbers, 0 where there is no page
   */
  at(view) {
    /** @param {number} page */
    const existing = (page) => (page >= 1 && page <= this.pageCount ? page : 0);
    const begin = 2 * view + 1 - this.lead;
    const first = this.spread ? existing(begin) : 0;
    const second = existing(this.spread ? begin + 1 : view + 1);
    return this.rightToLeft ? { left: second, right: first } : { left: first, right: second };
  }

  /**
   * Pages of a view in reading order.
   * @param {number} view
   */
  pagesOf(view) {
    const { left, right } = this.at(view);
    return [left, right].filter((page) => page > 0).sort((a, b) => a - b);
  }

  /** @param {number} page */
  viewOf(page) {
    const within = Math.min(this.pageCount, Math.max(1, page));
    return this.spread ? Math.floor((within - 1 + this.lead) / 2) : within - 1;
  }

  /** @param {number} view */
  clamp(view) {
    return Math.min(this.count - 1, Math.max(0, view));
  }
}
