import { fold, sourceOf } from './foldtext.js';

/** Letters of the text around a quote that are stored to tell it from others alike. */
const AROUND = 40;

/** Letters of a page's beginning by which a bookmark finds its page again. */
const BEGINNING = 80;

/** Letters that must agree, quote and surroundings together, before a quote counts as found on another page. */
const SURE = 12;

/** Letters on both sides by which a changed quote is found. */
const BESIDE = 20;

/** How much longer or shorter a changed quote may be, as a share of it, and in letters. */
const CHANGED = 0.3;
const FEW = 12;

/**
 * A part of a text by its words, so that it is found again in other editions.
 * @typedef {object} Anchor
 * @property {string} quote empty for a page without text
 * @property {string} before
 * @property {string} after
 * @property {number} at where it was in the text
 * @property {string} [until] end of a quote of which only the beginning is given
 *
 * @typedef {{from: number, to: number, alike: number}} Found alike: letters of quote and surroundings that agree
 * @typedef {{source: string, folded: import('./foldtext.js').Folded}} Searched
 */

/**
 * @param {string} source text of a page
 * @param {number} from
 * @param {number} to
 * @returns {Anchor}
 */
export function anchorAt(source, from, to) {
  return {
    quote: source.slice(from, to), before: source.slice(Math.max(0, from - AROUND), from),
    after: source.slice(to, to + AROUND), at: from,
  };
}

/**
 * Stands for a whole page.
 * @param {string} source
 */
export function anchorOfPage(source) {
  return anchorAt(source, 0, Math.min(source.length, BEGINNING));
}

/**
 * A text in which several anchors are looked for.
 * @param {string} source
 * @returns {Searched}
 */
export function searched(source) {
  return { source, folded: fold(source, true) };
}

/**
 * Where an anchor is in a text: of several places alike that with the same surroundings, then the nearest. Where the
 * quote itself was changed, what lies between the same surroundings.
 * @param {Searched} text
 * @param {Anchor} anchor
 * @returns {Found | null}
 */
export function findAnchor({ source, folded }, anchor) {
  const quote = fold(anchor.quote).text;
  const [before, after] = [fold(anchor.before).text, fold(anchor.after).text];
  if (!quote) return null;
  /** @type {Found | null} */
  let best = null;
  let bestAway = Infinity;
  for (const [at, length] of placesOf(folded.text, quote, fold(anchor.until ?? '').text)) {
    const [from, to] = sourceOf(source, folded, at, length);
    const alike = length + sameAtEnd(folded.text.slice(0, at).trimEnd(), before)
      + sameAtStart(folded.text.slice(at + length).trimStart(), after);
    const away = Math.abs(from - anchor.at);
    if (best && (alike < best.alike || (alike === best.alike && away >= bestAway))) continue;
    best = { from, to, alike };
    bestAway = away;
  }
  return best ?? between(source, folded, before.slice(-BESIDE).trim(), after.slice(0, BESIDE).trim(), quote.length);
}

/**
 * @param {string} text
 * @param {string} quote
 * @param {string} until
 * @returns {[at: number, length: number][]}
 */
function placesOf(text, quote, until) {
  /** @type {[number, number][]} */
  const places = [];
  for (let at = text.indexOf(quote); at >= 0; at = text.indexOf(quote, at + 1)) {
    const end = until ? text.indexOf(until, at + quote.length) : at + quote.length;
    if (end >= 0) places.push([at, end + until.length - at]);
  }
  return places;
}

/**
 * @param {string} source
 * @param {import('./foldtext.js').Folded} folded
 * @param {string} before
 * @param {string} after
 * @param {number} wanted length
 * @returns {Found | null}
 */
function between(source, folded, before, after, wanted) {
  if (before.length < FEW || after.length < FEW) return null;
  const { text } = folded;
  for (let at = text.indexOf(before); at >= 0; at = text.indexOf(before, at + 1)) {
    const start = at + before.length + (text[at + before.length] === ' ' ? 1 : 0);
    const behind = text.indexOf(after, start);
    const end = text[behind - 1] === ' ' ? behind - 1 : behind;
    if (behind < 0 || end <= start || Math.abs(end - start - wanted) > Math.max(FEW, CHANGED * wanted)) continue;
    const [from, to] = sourceOf(source, folded, start, end - start);
    return { from, to, alike: before.length + after.length };
  }
  return null;
}

/**
 * The page of another edition on which an anchor is, 0 for none: where most agrees, of several the nearest.
 * @param {Searched[]} texts by position, from that of page 1
 * @param {Anchor} anchor
 * @param {number} page where it was
 * @returns {{page: number, from: number}}
 */
export function findPage(texts, anchor, page) {
  let best = { page: 0, from: 0, alike: SURE - 1 };
  texts.forEach((text, index) => {
    const found = findAnchor(text, anchor);
    if (!found || found.alike < best.alike) return;
    const nearer = Math.abs(index + 1 - page) < Math.abs(best.page - page);
    if (found.alike > best.alike || nearer) best = { page: index + 1, from: found.from, alike: found.alike };
  });
  return best;
}

/**
 * A quote of several lines as it is read, with nothing in it that is not found again.
 * @param {string} quote
 */
export function inOneLine(quote) {
  return quote.replace(/(\p{L})[-\u00ad\u2010]\n(?=\p{L})/gu, '$1')
    .replace(/([\u3001-\u30ff\u3400-\u9fff\uac00-\ud7a3\uf900-\ufaff])\n/g, '$1').replace(/\s+/g, ' ').trim();
}

/** @param {string} one @param {string} other */
function sameAtStart(one, other) {
  let same = 0;
  while (same < other.length && one[same] === other[same]) same++;
  return same;
}

/** @param {string} one @param {string} other */
function sameAtEnd(one, other) {
  let same = 0;
  while (same < other.length && one[one.length - 1 - same] === other[other.length - 1 - same]) same++;
  return same;
}
