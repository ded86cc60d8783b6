/** @typedef {import('./config.js').BookConfig} BookConfig */

/**
 * A page's label, by default its position.
 * @param {BookConfig} config
 * @param {number} page
 */
export function labelOf({ labels }, page) {
  return labels?.[page - 1] || String(page);
}

/**
 * A page's label, followed by its position where that differs.
 * @param {BookConfig} config
 * @param {number} page
 */
export function fullLabel(config, page) {
  const label = labelOf(config, page);
  return label === String(page) ? label : label + ' (' + page + ')';
}

/**
 * Position of the page that the reader entered, "iv" as well as "12" and "4-5"; 0 when there is no such page.
 * @param {BookConfig} config
 * @param {string} text
 */
export function pageNamed(config, text) {
  const labelled = pageLabelled(config.labels, text.trim())
    || pageLabelled(config.labels, text.split(/[\u2013\u2014/,]/)[0].trim());
  if (labelled) return labelled;
  const match = /^\s*(\d+)\s*(?:[-\u2013\u2014/,]\s*\d+\s*)?$/.exec(text);
  return match && Number(match[1]) <= config.pages.length ? Number(match[1]) : 0;
}

/**
 * @param {string[] | null} labels
 * @param {string} text
 * @returns {number} 0 when no page is called so
 */
function pageLabelled(labels, text) {
  if (!labels || !text) return 0;
  const exact = labels.indexOf(text);
  const small = text.toLowerCase();
  return 1 + (exact >= 0 ? exact : labels.findIndex((label) => label.toLowerCase() === small));
}
