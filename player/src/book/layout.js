/** @typedef {import('./config.js').BookConfig} BookConfig */

/** Windows of which the shorter side is below this are phones, where every pixel of width goes to the page. */
const PHONE = 600;

/** Share of the window's height between each of its edges and the book, and the least inside the margins, in pixels. */
const AIR = 0.022;
const LEAST_AIR = 6;

/**
 * @typedef {object} Layout
 * @property {boolean} spread
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
 * @param {boolean} of.maySpread two pages may lie side by side
 * @returns {Layout}
 */
export function layOut(of) {
  const { width, height, margins, aspect, pageCount, rightToLeft, maySpread } = of;
  /** @param {number} margin */
  const air = (margin) => Math.max(LEAST_AIR, Math.round(height * AIR) - margin);
  const sides = Math.min(width, height) < PHONE ? 0 : LEAST_AIR;
  const area = {
    left: margins.left + sides, top: margins.top + air(margins.top),
    width: width - margins.left - margins.right - 2 * sides,
    height: height - margins.top - margins.bottom - air(margins.top) - air(margins.bottom),
  };
  const spread = maySpread && pageCount > 1 && area.width >= 560
    && area.width > area.height * 1.05;
  const mostWidth = Math.max(40, area.width / (spread ? 2 : 1));
  const scale = Math.min(mostWidth, Math.max(40, area.height) * aspect);
  const pageWidth = Math.round(scale);
  const pageHeight = Math.round(scale / aspect);
  const bookWidth = pageWidth * (spread ? 2 : 1);
  const bookLeft = Math.round(area.left + (area.width - bookWidth) / 2);
  const bookTop = Math.round(area.top + (area.height - pageHeight) / 2);
  const boundLeft = spread || !rightToLeft;
  const spineX = spread ? bookLeft + pageWidth : bookLeft + (boundLeft ? 0 : pageWidth);
  return { spread, pageWidth, pageHeight, bookLeft, bookTop, spineX };
}
