/** @typedef {import('../src/book/config.js').BookConfig} BookConfig */
/** @typedef {import('../src/book/config.js').Ground} Ground */

/**
 * Which settings of a changed configuration an open book can show. The others take the book's files, or another order of
 * its pages: they wait until the book is published.
 * @param {BookConfig} changed
 * @param {BookConfig} published the book's own
 * @returns {Partial<BookConfig>}
 */
export function shownAtOnce(changed, published) {
  const { margins, initialShow, windowColour, thumbsColour, pageColour, caption, hideBar, riseTime, moveTime,
    slideInterval, autoPlay, loopPlay, accent, firstView, hidden } = changed;
  return { margins, initialShow, windowColour, thumbsColour, pageColour, caption, hideBar, riseTime, moveTime,
    slideInterval, autoPlay, loopPlay, accent, firstView, hidden,
    outer: groundAtOnce(changed.outer, published.outer), inner: groundAtOnce(changed.inner, published.inner) };
}

/**
 * A picture can be taken away, and lie elsewhere, but another one is not among the book's files yet.
 * @param {Ground} changed
 * @param {Ground} published
 * @returns {Ground}
 */
function groundAtOnce(changed, published) {
  return changed.file ? { ...changed, file: published.file, size: published.size } : changed;
}
