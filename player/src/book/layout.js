/** @typedef {import('./config.js').BookConfig} BookConfig */

/** Windows of which the shorter side is below this are phones, where every pixel of width goes to the page. */
const PHONE = 600;

/** Share of the window's height between each of its edges and the book, and the least inside the margins, in pixels. */
const AIR = 0.022;
const LEAST_AIR = 6;

/** Two pages lie side by side where they are at least this share of the size of one alone. */
const WORTH_TWO = 0.75;

/**
 * Pages of which the width is a smaller share of the height are read at the window's width, but none of itself wider
 * than this, in CSS pixels. In windows as low as those of phones on their side all that are higher than wide are.
 */
const TALL = 0.5;
const TALL_IN_LOW = 0.85;
const LOW = 480;
const WIDE_ENOUGH = 1000;

/** @typedef {'auto' | 'one' | 'two' | 'width'} Choice of view: as it suits the window, or one page, two, all of its width */

/**
 * @typedef {object} Layout
 * @property {boolean} spread
 * @property {boolean} scrolls whether the pages are higher than the window
 * @property {number} pageWidth CSS pixels, whole
 * @property {number} pageHeight
 * @property {number} bookLeft where the book's left edge lies, of both pages in spread mode
 * @property {number} bookTop
 * @property {number} spineX
 */

/**
 * Limits margins to a share of the window; phones have none.
 * @param {BookConfig['margins']} margins
 * @param {number} width
 * @param {number} height
 */
export function fittingMargins(margins, width, height) {
  const most = Math.min(width, height) < PHONE ? 0 : 0.2;
  /** @param {number} margin @param {number} extent */
  const fit = (margin, extent) => Math.round(Math.min(margin, extent * most));
  return {
    top: fit(margins.top, height), bottom: fit(margins.bottom, height),
    left: fit(margins.left, width), right: fit(margins.right, width),
  };
}

/**
 * @param {object} of
 * @param {number} of.width window width
 * @param {number} of.height
 * @param {BookConfig['margins']} of.margins as they fit the window
 * @param {number} of.aspect page width by page height
 * @param {number} of.pageCount
 * @param {boolean} of.rightToLeft
 * @param {boolean} of.maySpread two pages may lie side by side without the reader's choice
 * @param {Choice} of.choice
 * @returns {Layout}
 */
export function layOut(of) {
  const { width, height, margins, aspect, pageCount, rightToLeft, maySpread, choice } = of;
  /** @param {number} margin */
  const air = (margin) => Math.max(LEAST_AIR, Math.round(height * AIR) - margin);
  const sides = Math.min(width, height) < PHONE ? 0 : LEAST_AIR;
  const area = {
    left: margins.left + sides, top: margins.top + air(margins.top),
    width: width - margins.left - margins.right - 2 * sides,
    height: height - margins.top - margins.bottom - air(margins.top) - air(margins.bottom),
  };
  const low = height < LOW && width > height;
  const tall = aspect < (low ? TALL_IN_LOW : TALL);
  const wholeHeight = Math.max(40, area.height) * aspect;
  const alone = Math.min(area.width, wholeHeight);
  const suitsTwo = maySpread && !tall && area.width >= 560 && area.width > area.height * 1.05
    && Math.min(area.width / 2, wholeHeight) >= alone * WORTH_TWO;
  const spread = pageCount > 1 && (choice === 'two' || (choice !== 'one' && suitsTwo));
  const mostWidth = Math.max(40, area.width / (spread ? 2 : 1));
  const wide = choice === 'width' || (choice === 'auto' && tall);
  const most = choice === 'width' || low ? mostWidth : Math.min(mostWidth, WIDE_ENOUGH);
  const scale = wide ? Math.max(most, Math.min(mostWidth, wholeHeight)) : Math.min(mostWidth, wholeHeight);
  const pageWidth = Math.round(scale);
  const pageHeight = Math.round(scale / aspect);
  const bookWidth = pageWidth * (spread ? 2 : 1);
  const bookLeft = Math.round(area.left + (area.width - bookWidth) / 2);
  const scrolls = pageHeight > area.height + 1;
  const bookTop = Math.round(area.top + (scrolls ? 0 : (area.height - pageHeight) / 2));
  const boundLeft = spread || !rightToLeft;
  const spineX = spread ? bookLeft + pageWidth : bookLeft + (boundLeft ? 0 : pageWidth);
  return { spread, scrolls, pageWidth, pageHeight, bookLeft, bookTop, spineX };
}
