import { drawShade, traceOutline } from './shade.js';

/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./leaf.js').Leaf} Leaf */
/**
 * A board that stands on its hinge, as the reader sees it.
 * @typedef {object} Stand
 * @property {number} cos of its angle from where it lay
 * @property {number} sin
 * @property {number} distance of the reader's eye, in CSS pixels
 * @property {number} near by how much its free edge is enlarged
 * @property {number} reach how far from the hinge its free edge is seen
 */

/** Distance of the reader's eye from the book, in widths of a page. */
const EYE_DISTANCE = 8;

/** How much a board's edge may rise from one column to the next, in device pixels. */
const EDGE_STEP = 0.5;

/** Stiff boards, hinged at the binding. */
export class FlipPainter {
  whole = false;
  enough = 0.45;
  peek = { x: 0.06, y: 0 };

  /**
   * @param {Point} wanted
   * @param {Leaf} leaf
   * @returns {Point}
   */
  reach(wanted, leaf) {
    return { x: Math.min(leaf.width, Math.max(-leaf.width, wanted.x)), y: leaf.edge.y };
  }

  /**
   * @param {Leaf} leaf
   * @param {number} pressX
   */
  gain(leaf, pressX) {
    if (leaf.alone) return 2;
    return Math.max(1, (2 * leaf.width) / (leaf.width + Math.max(leaf.width * 0.35, pressX)));
  }

  /**
   * @param {CanvasRenderingContext2D} context
   * @param {Leaf} leaf
   * @param {number} density
   */
  draw(context, leaf, density) {
    const { width, turned, mirrored, front, back } = leaf;
    if (!front || !back) return;
    const stand = standing(Math.PI * turned, width);
    const outward = mirrored ? -1 : 1;
    const sign = stand.cos < 0 ? -outward : outward;
    context.save();
    if (leaf.alone) context.globalAlpha = Math.min(1, (1 - turned) * 2.4);
    const other = mirrored ? 'right' : 'left';
    if (leaf.overPage) shadeBesideBoard(context, leaf, stand, outward, sign === outward);
    if (leaf.beneath[other]) shadeBesideBoard(context, leaf, stand, -outward, sign !== outward);
    else if (sign !== outward) {
      drawShade(context, boardOutline(leaf, stand, sign),
        { opacity: 0.4 - 0.2 * stand.sin, blur: 14 + 26 * stand.sin, down: 5 + 10 * stand.sin });
    }
    drawBoard(context, leaf, stand, stand.cos < 0 ? back : front, sign, density);
    lightBoard(context, leaf, stand, sign);
    context.restore();
  }
}

/**
 * @param {number} angle
 * @param {number} width
 * @returns {Stand}
 */
function standing(angle, width) {
  const cos = Math.cos(angle);
  const sin = Math.sin(angle);
  const distance = width * EYE_DISTANCE;
  const near = distance / (distance - width * sin);
  return { cos, sin, distance, near, reach: Math.abs(width * cos * near) };
}

/**
 * The board, column by column: each is as high as the eye sees it there.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Stand} stand
 * @param {HTMLCanvasElement} face
 * @param {number} sign direction on the screen in which the board lies from its hinge
 * @param {number} density
 */
function drawBoard(context, leaf, stand, face, sign, density) {
  const { width, height } = leaf;
  const { sin, distance, near } = stand;
  const cos = Math.abs(stand.cos);
  const wide = stand.reach * density;
  if (wide < 0.5) return;
  const slope = (height * (near - 1)) / 2 / stand.reach;
  const column = Math.max(1, Math.min(32, Math.floor(EDGE_STEP / Math.max(0.001, slope))));
  /** @param {number} seen distance from the hinge, in device pixels */
  const onBoard = (seen) => {
    const s = seen / density;
    return Math.min(width, (s * distance) / (cos * distance + s * sin));
  };
  const scale = face.width / width;
  // Columns end on whole pixels; the slanted edges are cut.
  context.save();
  traceOutline(context, boardOutline(leaf, stand, sign));
  context.clip();
  for (let at = 0; at < wide; at += column) {
    const end = Math.min(at + column, wide);
    const from = onBoard(at);
    const to = onBoard(end);
    const tall = (height * distance) / (distance - ((from + to) / 2) * sin) + 2 / density;
    const source = sign > 0 ? from : width - to;
    context.drawImage(face, source * scale, 0, Math.max(0.01, (to - from) * scale), face.height,
      (sign > 0 ? at : -end) / density, (height - tall) / 2, (end - at) / density, tall);
  }
  context.restore();
}

/**
 * @param {Leaf} leaf
 * @param {Stand} stand
 * @param {number} sign
 * @returns {Point[]}
 */
function boardOutline(leaf, stand, sign) {
  const rise = (leaf.height * (stand.near - 1)) / 2;
  const x = sign * stand.reach;
  return [{ x: 0, y: 0 }, { x, y: -rise }, { x, y: leaf.height + rise }, { x: 0, y: leaf.height }];
}

/**
 * Light from above falls off as the board stands up.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Stand} stand
 * @param {number} sign
 */
function lightBoard(context, leaf, stand, sign) {
  if (stand.reach < 0.5) return;
  const dark = 0.46 * (1 - Math.abs(stand.cos)) ** 1.2;
  const shade = context.createLinearGradient(0, 0, sign * stand.reach, 0);
  shade.addColorStop(0, 'rgba(0, 0, 0, ' + dark + ')');
  shade.addColorStop(1, 'rgba(0, 0, 0, ' + dark * 0.55 + ')');
  context.fillStyle = shade;
  traceOutline(context, boardOutline(leaf, stand, sign));
  context.fill();
}

/**
 * Shadow on the page at one side of the hinge, from where the board ends.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Stand} stand
 * @param {number} sign
 * @param {boolean} covered the board lies over that page
 */
function shadeBesideBoard(context, leaf, stand, sign, covered) {
  const from = covered ? stand.reach : 0;
  const soft = leaf.width * 0.56 * stand.sin + 2;
  const to = Math.min(leaf.width, from + soft);
  if (to <= from) return;
  const strength = (covered ? 0.36 : 0.3) * Math.min(1, stand.sin * 1.6);
  const shade = context.createLinearGradient(sign * from, 0, sign * (from + soft), 0);
  for (const [at, share] of [[0, 1], [0.2, 0.58], [0.5, 0.2], [1, 0]]) {
    shade.addColorStop(at, 'rgba(0, 0, 0, ' + strength * share + ')');
  }
  context.fillStyle = shade;
  context.fillRect(Math.min(sign * from, sign * to), 0, to - from, leaf.height);
}
