import { foldOf, leafCorners, reachable, seenAt, seenOutline, within } from './fold.js';
import { Roll } from './roll.js';
import { drawShade, traceOutline } from './shade.js';

/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./fold.js').Fold} Fold */
/** @typedef {import('./leaf.js').Leaf} Leaf */

/** Shade of the paper that rolls up, by the share of the quarter of the roll: opacity of white, black. */
const RISING = [[0, 0, 0], [0.35, 0.1, 0], [0.6, 0, 0.04], [0.85, 0, 0.2], [1, 0, 0.42]];

/** The same of the paper that has come over, up to where it lies flat again. */
const COMING_OVER = [[0, 0, 0.3], [0.26, 0, 0.12], [0.57, 0.28, 0], [0.94, 0.08, 0], [1, 0.06, 0.01]];

/** Paper that curls as it turns. */
export class CurlPainter {
  whole = false;
  enough = 0.45;
  peek = { x: 0.1, y: 0.045 };
  rising = new Roll();
  comingOver = new Roll();

  /**
   * @param {Point} wanted
   * @param {Leaf} leaf
   */
  reach(wanted, leaf) {
    return reachable(wanted, leaf.edge, leaf.height);
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
    if (!leaf.front || !leaf.back) return;
    const fold = foldOf(leaf.held, leaf.edge, leaf.width, leaf.height);
    context.save();
    if (leaf.alone) context.globalAlpha = Math.min(1, (1 - leaf.turned) * 6);
    if (leaf.mirrored) context.scale(-1, 1);
    if (!fold) {
      drawPart(context, leaf, leaf.front, leaf.mirrored, leafCorners(leaf));
    } else {
      shadeBeneath(context, leaf, fold);
      drawLying(context, leaf, fold, density);
      this.rising.draw(context, leaf, fold, density, false, RISING);
      castShadow(context, leaf, fold);
      this.comingOver.draw(context, leaf, fold, density, true, COMING_OVER);
      drawTurned(context, leaf, fold, density);
    }
    context.restore();
  }
}

/**
 * A part of one side of the leaf, where it lies in the flat leaf.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {HTMLCanvasElement} face
 * @param {boolean} flipped the picture runs from the edge to the binding
 * @param {Point[]} part
 */
function drawPart(context, leaf, face, flipped, part) {
  if (part.length < 3) return;
  const across = leaf.width / face.width;
  const pattern = leaf.book.drawn.patternOf(face);
  pattern.setTransform(new DOMMatrix(
    [flipped ? -across : across, 0, 0, leaf.height / face.height, flipped ? leaf.width : 0, 0]));
  context.fillStyle = pattern;
  traceOutline(context, part);
  context.fill();
}

/**
 * What still lies flat, a hair's breadth into the roll, so that no gap is seen between them.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Fold} fold
 * @param {number} density
 */
function drawLying(context, leaf, fold, density) {
  const part = within(leafCorners(leaf), fold, -Infinity, (-Math.PI / 2) * fold.radius + 1 / density);
  drawPart(context, leaf, /** @type {HTMLCanvasElement} */ (leaf.front), leaf.mirrored, part);
}

/**
 * The part that has turned over and lies flat.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Fold} fold
 * @param {number} density
 */
function drawTurned(context, leaf, fold, density) {
  const quarter = (Math.PI / 2) * fold.radius;
  const part = within(leafCorners(leaf), fold, quarter - 1 / density, Infinity);
  if (part.length < 3) return;
  context.save();
  context.translate(fold.middle.x, fold.middle.y);
  context.rotate(fold.angle);
  context.scale(-1, 1);
  context.rotate(-fold.angle);
  context.translate(-fold.middle.x, -fold.middle.y);
  drawPart(context, leaf, /** @type {HTMLCanvasElement} */ (leaf.back), !leaf.mirrored, part);
  context.restore();
  const glow = acrossFold(context, fold, -quarter, -quarter * 2.6,
    [[0, 'rgba(255, 255, 255, .06)'], [0.3, 'rgba(0, 0, 0, .05)'], [1, 'rgba(0, 0, 0, 0)']]);
  context.fillStyle = glow;
  traceOutline(context, seenOutline(leafCorners(leaf), fold, quarter - 1 / density, quarter * 2.6));
  context.fill();
}

/**
 * A gradient across the fold, between two distances from its line as they are seen.
 * @param {CanvasRenderingContext2D} context
 * @param {Fold} fold
 * @param {number} from
 * @param {number} to
 * @param {[number, string][]} stops
 */
function acrossFold(context, fold, from, to, stops) {
  const { x, y } = fold.middle;
  const cos = Math.cos(fold.angle);
  const sin = Math.sin(fold.angle);
  const shade = context.createLinearGradient(
    x + cos * from, y + sin * from, x + cos * to, y + sin * to);
  for (const [at, colour] of stops) shade.addColorStop(at, colour);
  return shade;
}

/**
 * The roll's shadow on the page that it uncovers.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Fold} fold
 */
function shadeBeneath(context, leaf, fold) {
  if (!leaf.overPage) return;
  const share = leaf.turned;
  const front = seenAt(0, fold.radius);
  const reach = front + Math.min(leaf.width * 0.35, fold.radius * 3.2 + 4);
  const strength = 0.5 * Math.min(1, 4 * share) * (1 - share * 0.6);
  context.fillStyle = acrossFold(context, fold, front - 1, reach,
    [[0, 'rgba(0,0,0,' + strength + ')'], [0.18, 'rgba(0,0,0,' + strength * 0.55 + ')'],
      [0.5, 'rgba(0,0,0,' + strength * 0.18 + ')'], [1, 'rgba(0,0,0,0)']]);
  traceOutline(context, within(leafCorners(leaf), fold, front - 2, reach));
  context.fill();
}

/**
 * The shadow of the turned paper on everything below it.
 * @param {CanvasRenderingContext2D} context
 * @param {Leaf} leaf
 * @param {Fold} fold
 */
function castShadow(context, leaf, fold) {
  const outline = seenOutline(leafCorners(leaf), fold, 0, Infinity);
  if (outline.length < 3) return;
  const height = Math.sin(Math.PI * leaf.turned);
  drawShade(context, outline,
    { opacity: 0.16 + 0.3 * height, blur: 4 + 30 * height, down: 1 + 6 * height });
}
