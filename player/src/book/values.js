/**
 * Reads a yes/no text in the spellings that templates and the property editor write.
 * @param {string} text
 */
export function isYes(text) {
  return /^\s*(yes|show|enable|true)\s*$/i.test(text);
}

/**
 * @param {string} text
 * @param {number} fallback used when the text is not a number
 * @param {number} least
 * @param {number} most
 */
export function numberIn(text, fallback, least, most) {
  const value = Number.parseFloat(text);
  return Number.isFinite(value) ? Math.min(most, Math.max(least, value)) : fallback;
}

/**
 * Turns 0xRRGGBB (an alpha byte in front is dropped) into a CSS colour.
 * @param {string} text
 * @param {string} fallback a CSS colour
 */
export function cssColour(text, fallback) {
  const match = /^\s*(?:0x|#)?([0-9a-f]{1,8})\s*$/i.exec(text);
  if (!match) return fallback;
  return '#' + (Number.parseInt(match[1], 16) & 0xffffff).toString(16).padStart(6, '0');
}

/**
 * Relative luminance, 0 (black) to 1 (white).
 * @param {string} colour #rrggbb
 */
export function luminance(colour) {
  const [red, green, blue] = [1, 3, 5].map((at) => {
    const part = Number.parseInt(colour.slice(at, at + 2), 16) / 255;
    return part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

/**
 * A path of the configuration, or an empty text when it leads out of the book's files folder or has halves of letters,
 * of which no address can be made.
 * @param {string} text
 */
export function ownFile(text) {
  const path = text.trim();
  const leadsOut = /^[a-z][a-z0-9+.-]*:|^\/|\\|(?:^|\/)\.\.?(?:\/|$)/i.test(path);
  return leadsOut || /[\ud800-\udfff]/u.test(path) ? '' : path;
}

/**
 * URL of a file of the configuration; in a single-file book it may still be on its way.
 * @param {string} path relative to the book's files folder; an empty one has no address
 * @returns {string | Promise<string>}
 */
export function fileAddress(path) {
  // A single-file book has its images and sounds in its page, others share some files.
  return path && (window.folveroFile?.(path)
    ?? 'files/' + path.split('/').map(encodeURIComponent).join('/'));
}

/**
 * @param {{src: string}} element
 * @param {string} path
 */
export async function loadFile(element, path) {
  element.src = await fileAddress(path);
}
