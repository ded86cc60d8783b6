import { pageInAddress } from '../src/controls/place.js';
import { inOneLine } from './noteanchors.js';

/** @typedef {import('./noteanchors.js').Anchor} Anchor */

/** Longest phrase that a link searches for; a longer passage is named by its beginning and its end. */
const LONGEST_PHRASE = 80;
const LONGEST_QUOTE = 160;
const PART = 60;

/** A quote of fewer letters may occur often: its link names what comes before it, too. */
const SHORT = 40;

/**
 * Link that opens a page with a phrase marked wherever it occurs.
 * @param {string} book address without a fragment
 * @param {number} page
 * @param {string} phrase
 */
export function phraseLink(book, page, phrase) {
  return linkOf(book, page, { search: '"' + inOneLine(phrase).replaceAll('"', '') + '"' });
}

/**
 * Whether a link can name a passage by searching for it.
 * @param {string} phrase
 */
export function isPhrase(phrase) {
  return inOneLine(phrase).length <= LONGEST_PHRASE && /[\p{L}\p{N}]/u.test(phrase);
}

/**
 * Link that opens a page with just that passage marked.
 * @param {string} book address without a fragment
 * @param {number} page
 * @param {Anchor} anchor
 */
export function quoteLink(book, page, anchor) {
  const quote = inOneLine(anchor.quote);
  /** @type {Record<string, string>} */
  const values = { quote };
  if (quote.length > LONGEST_QUOTE) {
    values.quote = quote.slice(0, PART).replace(/\s\S*$/, '');
    values.until = quote.slice(-PART).replace(/^\S*\s/, '');
  }
  if (quote.length < SHORT) values.before = inOneLine(anchor.before).slice(-PART / 2).replace(/^\S*\s/, '');
  return linkOf(book, page, values);
}

/**
 * The passage that an address names, null for none.
 * @param {string} fragment
 * @returns {{page: number, anchor: Anchor} | null}
 */
export function quoteInAddress(fragment) {
  const values = new URLSearchParams(fragment.slice(1));
  const [quote, until, before] = ['quote', 'until', 'before'].map((name) => values.get(name) ?? '');
  return quote.trim() ? { page: pageInAddress(fragment) || 1, anchor: { quote, until, before, after: '', at: 0 } } : null;
}

/**
 * @param {string} book
 * @param {number} page
 * @param {Record<string, string>} values
 */
function linkOf(book, page, values) {
  const pairs = Object.entries(values).filter(([, value]) => value);
  return book + '#page=' + page + pairs.map(([name, value]) => '&' + name + '=' + encodeURIComponent(unsplit(value))).join('');
}

/**
 * Halves of letters, where a text was cut, cannot be encoded.
 * @param {string} text
 */
function unsplit(text) {
  return text.replace(/[\ud800-\udfff]/gu, '');
}
