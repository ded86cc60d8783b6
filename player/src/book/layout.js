/** @typedef {import('./config.js').BookConfig} BookConfig */

/** Height reserved for the bar where the window is high enough. */
const BAR_ROOM = 64;
const BAR_ROOM_LEAST_HEIGHT = 480;

/** Width reserved at both sides for the arrows and the edges of the pages beneath. */
const ARROW_ROOM = 70;

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
 * Limits margins to a share of the window: on a phone those chosen for a desktop would leave no room for the page.
 * @param {BookConfig['margins']} margins
 * @param {number} width
 * @param {number} height
 */
export function fittingMargins(margins, width, height) {
  const most = Math.min(width, height) < 600 ? 0.02 : 0.2;
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
 * @param {boolean} of.hasBar
 * @param {boolean} of.maySpread two pages may lie side by side
 * @returns {Layout}
 */
export function layOut(of) {
  const { width, height, margins, aspect, pageCount, rightToLeft, hasBar, maySpread } = of;
  const area = {
    left: margins.left, top: margins.top,
    width: width - margins.left - margins.right, height: height - margins.top - margins.bottom,
  };
  const spread = maySpread && pageCount > 1 && area.width >= 560
    && area.width > area.height * 1.05;
  const roomy = Math.min(area.width, area.height) >= 480;
  const air = roomy ? Math.round(Math.min(area.width, area.height) * 0.045) : 10;
  const below = hasBar && area.height >= BAR_ROOM_LEAST_HEIGHT ? Math.max(BAR_ROOM, air) : air;
  const sides = hasBar && (spread || !maySpread) && roomy ? Math.max(air, ARROW_ROOM) : air;
  const mostWidth = Math.max(40, (area.width - 2 * sides) / (spread ? 2 : 1));
  const mostHeight = Math.max(40, area.height - air - below);
  const scale = Math.min(mostWidth, mostHeight * aspect);
  const pageWidth = Math.round(scale);
  const pageHeight = Math.round(scale / aspect);
  const bookWidth = pageWidth * (spread ? 2 : 1);
  const bookLeft = Math.round(area.left + (area.width - bookWidth) / 2);
  const spare = area.height - pageHeight;
  const bookTop = Math.round(area.top + Math.max(air, Math.min(spare / 2, spare - below)));
  const boundLeft = spread || !rightToLeft;
  const spineX = spread ? bookLeft + pageWidth : bookLeft + (boundLeft ? 0 : pageWidth);
  return { spread, pageWidth, pageHeight, bookLeft, bookTop, spineX };
}
