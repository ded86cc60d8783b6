import { ALL_BOOKS, keep, recall } from '../src/book/storage.js';

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

const KEY = 'reading';
const NO_OFFER = 'reading-offer';

/** @type {Looks} */
const FIRST = { size: 3, width: 'medium', face: 'serif', colours: '' };

/**
 * How the reader wants texts to look, remembered for all books of this site where the browser allows it.
 * @returns {Looks}
 */
export function storedLooks() {
  try {
    return looksOf(JSON.parse(recall(KEY, ALL_BOOKS) ?? ''));
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
  keep(KEY, JSON.stringify(looks), ALL_BOOKS);
}

/** Whether the reading view may offer itself. */
export function mayOffer() {
  return recall(NO_OFFER, ALL_BOOKS) === null;
}

export function endOffers() {
  keep(NO_OFFER, 'no', ALL_BOOKS);
}
