import { make } from '../src/book/dom.js';
import { fold, sourceOf } from './foldtext.js';
import { putOver } from './layers.js';

/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('./searchtext.js').Hit} Hit */

/** Height at the window's edges that the strip above and the bar below may cover, in CSS pixels. */
const COVERED = 72;

/** Marks what was found on the pages in view. */
export class Hits {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   */
  constructor(player, layers) {
    this.player = player;
    this.layers = layers;
    layers.fillers.push((face) => this.#mark(face));
  }

  /**
   * @param {import('./query.js').Query | null} query
   * @param {Hit | null} current
   */
  show(query, current) {
    this.layers.marked = { query, current };
    this.layers.onMarked();
    for (const face of this.layers.faces) this.#mark(face);
  }

  /** @param {Face} face */
  #mark(face) {
    const { box, text, position } = face;
    const { query, current } = this.layers.marked;
    box.querySelector('.hit-layer')?.remove();
    if (!text || !query || query.empty) return;
    const source = text.string;
    const folded = fold(source, true);
    const layer = make('div', 'hit-layer');
    layer.setAttribute('aria-hidden', 'true');
    query.hitsIn(folded.text).forEach(({ at, length }, ordinal) => {
      const isCurrent = current?.position === position && current.ordinal === ordinal;
      for (const { box: place, turn } of text.boxesOf(...sourceOf(source, folded, at, length))) {
        const mark = make('i', isCurrent ? 'hit current' : 'hit');
        if (turn === 90 || turn === 270) mark.classList.add('upright');
        putOver(mark, text, place);
        layer.append(mark);
      }
    });
    // Below the words, which are what the pointer is to reach.
    box.prepend(layer);
    if (current?.position === position) bringIntoView(layer.querySelector('.current'), this.player);
  }

}

/**
 * Moves pages that go beyond the window so that a mark on them can be seen.
 * @param {Element | null} mark
 * @param {Pick<import('../src/player.js').Player, 'zoom' | 'root' | 'book'>} player
 */
export function bringIntoView(mark, { zoom, root, book }) {
  if (!mark || !zoom.pans) return;
  const { left, right, top, bottom } = mark.getBoundingClientRect();
  const { clientHeight } = root;
  const { sight } = book;
  const seen = left >= sight.left && right <= sight.right && top >= COVERED && bottom <= clientHeight - COVERED;
  if (seen) return;
  zoom.panBy((sight.left + sight.right) / 2 - (left + right) / 2, clientHeight / 2 - (top + bottom) / 2);
}
