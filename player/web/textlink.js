import { make } from '../src/book/dom.js';

/**
 * A link to the first page in view in the plain text.
 * @param {import('./layers.js').Layers} layers
 * @param {string} className
 * @param {string} words
 */
export function textLink(layers, className, words) {
  const link = /** @type {HTMLAnchorElement} */ (make('a', className, words));
  layers.followers.push(() => { link.href = layers.facts.textPage + '#page-' + layers.inView[0]; });
  return link;
}
