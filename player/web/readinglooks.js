/**
 * @typedef {object} Looks
 * @property {number} size index of SIZES
 * @property {'narrow' | 'medium' | 'wide'} width
 * @property {'serif' | 'sans' | 'spaced'} face
 * @property {'' | 'paper' | 'sepia' | 'night'} colours none: as the system is set
 */

/** Sizes of letters in times of the browser's. */
export const SIZES = [0.8125, 0.9375, 1.0625, 1.1875, 1.3125, 1.5, 1.75, 2, 2.375, 2.875];
export const WIDTHS = /** @type {const} */ (['narrow', 'medium', 'wide']);
export const FACES = /** @type {const} */ (['serif', 'sans', 'spaced']);
export const COLOURS = /** @type {const} */ (['paper', 'sepia', 'night']);

const KEY = 'folvero:reading';
const NO_OFFER = 'folvero:reading-offer';

/** @type {Looks} */
const FIRST = { size: 3, width: 'medium', face: 'serif', colours: '' };

/**
 * How the reader wants texts to look, remembered for all books of this site where the browser allows it.
 * @returns {Looks}
 */
export function storedLooks() {
  try {
    return looksOf(JSON.parse(localStorage.getItem(KEY) ?? ''));
  } catch {
    return { ...FIRST };
  }
}

/**
 * @param {unknown} raw
 * @returns {Looks}
 */
export function looksOf(raw) {
  const { size, width, face, colours } = /** @type {Record<string, any>} */ (Object(raw));
  return {
    size: Number.isInteger(size) ? Math.min(SIZES.length - 1, Math.max(0, size)) : FIRST.size,
    width: WIDTHS.includes(width) ? width : FIRST.width,
    face: FACES.includes(face) ? face : FIRST.face,
    colours: COLOURS.includes(colours) ? colours : FIRST.colours,
  };
}

/** @param {Looks} looks */
export function storeLooks(looks) {
  store(KEY, JSON.stringify(looks));
}

/** Whether the reading view may offer itself. */
export function mayOffer() {
  try {
    return localStorage.getItem(NO_OFFER) === null;
  } catch {
    return true;
  }
}

export function endOffers() {
  store(NO_OFFER, 'no');
}

/**
 * @param {string} key
 * @param {string} value
 */
function store(key, value) {
  try {
    localStorage.setItem(key, value);
  } catch {
    // Private windows and strict settings forbid it; it lasts as long as the page then.
  }
}
