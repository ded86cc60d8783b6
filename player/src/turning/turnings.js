import { CurlPainter } from './curl.js';
import { FlipPainter } from './flip.js';
import { SlidePainter } from './slide.js';

/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./leaf.js').Leaf} Leaf */

/**
 * Draws a leaf while it turns. The origin of the context is at the leaf's binding.
 * @typedef {object} Painter
 * @property {boolean} whole the whole view moves, not one leaf of it
 * @property {number} enough share of the way from which on a leaf let go slowly goes on
 * @property {Point} peek how far the edge is lifted to show that the page can be turned, as shares
 *   of the leaf's width
 * @property {(wanted: Point, leaf: Leaf) => Point} reach nearest place to which the edge can go
 * @property {(leaf: Leaf, pressX: number) => number} gain way of the edge for each pixel of the
 *   pointer, which has taken the leaf at pressX
 * @property {(context: CanvasRenderingContext2D, leaf: Leaf, density: number) => void} draw
 */

/**
 * A template's pages turn in one way, which the build puts in, so that it can leave out the others.
 * @param {string | undefined} name of the way where the build has put in none
 * @returns {Painter}
 */
export function painterFor(name) {
  // With "else", since the build keeps what merely comes after a return.
  if (typeof TURN === 'string' ? TURN === 'flip' : name === 'flip') return new FlipPainter();
  else if (typeof TURN === 'string' ? TURN === 'slide' : name === 'slide') return new SlidePainter();
  else return new CurlPainter();
}
