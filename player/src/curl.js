import { foldOf, reachable, seenAt } from './fold.js';

/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./fold.js').Fold} Fold */
/** @typedef {import('./leaf.js').Leaf} Leaf */

/** Strips that each quarter of the roll is drawn in. */
const STRIPS = 12;

/** Straight pieces that each edge of the turned part's outline is drawn in. */
const EDGE_STEPS = 24;

/** Paper that bends as it is turned. */
export class CurlPainter {
  whole = false;
  enough = 0.45;
  peek = { x: 0.1, y: 0.045 };

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
    this.context = context;
    this.density = density;
    context.save();
    if (leaf.alone) context.globalAlpha = Math.min(1, (1 - leaf.turned) * 6);
    if (leaf.mirrored) context.scale(-1, 1);
    const fold = foldOf(leaf.held, leaf.edge, leaf.width, leaf.height);
    if (fold) this.#drawFolded(leaf, fold, leaf.turned);
    else this.#drawFace(leaf, leaf.front, leaf.mirrored);
    context.restore();
  }

  /**
   * @param {Leaf} look
   * @param {Fold} fold
   * @param {number} share
   */
  #drawFolded(look, fold, share) {
    const quarter = (Math.PI / 2) * fold.radius;
    const far = 2 * (look.width + look.height);
    this.#shadeBeneath(look, fold, share);
    const plain = 'transparent';
    this.#drawStrip(look, fold, -far, -quarter, look.front, false, plain);
    const frontShade = this.#shade(fold, -quarter, 0,
      [[0, 'rgba(0,0,0,0)'], [0.35, 'rgba(255,255,255,.10)'], [0.6, 'rgba(0,0,0,.04)'],
        [0.85, 'rgba(0,0,0,.2)'], [1, 'rgba(0,0,0,.42)']]);
    this.#drawRoll(look, fold, -quarter, look.front, false, frontShade);
    this.#castShadow(look, fold, share);
    const backShade = this.#shade(fold, 0, quarter * 2.6,
      [[0, 'rgba(0,0,0,.3)'], [0.1, 'rgba(0,0,0,.12)'], [0.22, 'rgba(255,255,255,.28)'],
        [0.36, 'rgba(255,255,255,.08)'], [0.5, 'rgba(0,0,0,.05)'], [1, 'rgba(0,0,0,0)']]);
    this.#drawRoll(look, fold, 0, look.back, true, backShade);
    this.#drawStrip(look, fold, quarter, far, look.back, true, backShade);
  }

  /**
   * One quarter of the roll, from u onwards.
   * @param {Leaf} look
   * @param {Fold} fold
   * @param {number} from
   * @param {HTMLCanvasElement} face
   * @param {boolean} isBack
   * @param {string | CanvasGradient} shade
   */
  #drawRoll(look, fold, from, face, isBack, shade) {
    const step = ((Math.PI / 2) * fold.radius) / STRIPS;
    if (step * this.density < 0.02) return;
    for (let strip = 0; strip < STRIPS; strip++) {
      const u = from + strip * step;
      this.#drawStrip(look, fold, u, u + step, face, isBack, shade);
    }
  }

  /**
   * The paper between two distances from the fold line, as seen from above.
   * @param {Leaf} look
   * @param {Fold} fold
   * @param {number} from
   * @param {number} to
   * @param {HTMLCanvasElement} face
   * @param {boolean} isBack
   * @param {string | CanvasGradient} shade
   */
  #drawStrip(look, fold, from, to, face, isBack, shade) {
    const { context } = this;
    const seenFrom = seenAt(from, fold.radius);
    const scale = (seenAt(to, fold.radius) - seenFrom) / (to - from);
    if (Math.abs(scale) < 0.001) return;
    const far = 2 * (look.width + look.height);
    const overlap = Math.min(3, 0.6 / Math.abs(scale) / this.density);
    context.save();
    context.translate(fold.middle.x, fold.middle.y);
    context.rotate(fold.angle);
    context.translate(seenFrom, 0);
    context.scale(scale, 1);
    context.translate(-from, 0);
    context.beginPath();
    context.rect(from - overlap, -far, to - from + 2 * overlap, 2 * far);
    context.clip();
    context.rotate(-fold.angle);
    context.translate(-fold.middle.x, -fold.middle.y);
    this.#drawFace(look, face, look.mirrored !== isBack);
    if (shade !== 'transparent') {
      context.fillStyle = shade;
      context.fillRect(0, 0, look.width, look.height);
    }
    context.restore();
  }

  /**
   * @param {Leaf} look
   * @param {HTMLCanvasElement} face
   * @param {boolean} flipped
   */
  #drawFace(look, face, flipped) {
    const { context } = this;
    context.save();
    if (flipped) {
      context.translate(look.width, 0);
      context.scale(-1, 1);
    }
    context.drawImage(face, 0, 0, look.width, look.height);
    context.restore();
  }

  /**
   * A gradient across the fold, between two distances from its line.
   * @param {Fold} fold
   * @param {number} from
   * @param {number} to
   * @param {[number, string][]} stops
   */
  #shade(fold, from, to, stops) {
    const along = { x: Math.cos(fold.angle), y: Math.sin(fold.angle) };
    const { x, y } = fold.middle;
    const shade = this.context.createLinearGradient(
      x + along.x * from, y + along.y * from, x + along.x * to, y + along.y * to);
    for (const [at, colour] of stops) shade.addColorStop(at, colour);
    return shade;
  }

  /**
   * The shadow of the roll on the page that comes to light.
   * @param {Leaf} look
   * @param {Fold} fold
   * @param {number} share
   */
  #shadeBeneath(look, fold, share) {
    if (!look.overPage) return;
    const { context } = this;
    const front = seenAt(0, fold.radius);
    const reach = front + Math.min(look.width * 0.35, fold.radius * 3.2 + 4);
    const strength = 0.5 * Math.min(1, 4 * share) * (1 - share * 0.6);
    context.fillStyle = this.#shade(fold, front - 1, reach,
      [[0, 'rgba(0,0,0,' + strength + ')'], [0.18, 'rgba(0,0,0,' + strength * 0.55 + ')'],
        [0.5, 'rgba(0,0,0,' + strength * 0.18 + ')'], [1, 'rgba(0,0,0,0)']]);
    context.fillRect(0, 0, look.width, look.height);
  }

  /**
   * The shadow of the paper that has come over, on everything that it comes over.
   * @param {Leaf} look
   * @param {Fold} fold
   * @param {number} share
   */
  #castShadow(look, fold, share) {
    const outline = turnedOutline(look, fold);
    if (outline.length < 3) return;
    const { context } = this;
    const height = Math.sin(Math.PI * share);
    context.save();
    context.shadowColor = 'rgba(0, 0, 0, ' + (0.16 + 0.3 * height) + ')';
    context.shadowBlur = (4 + 30 * height) * this.density;
    context.shadowOffsetY = (1 + 6 * height) * this.density;
    context.fillStyle = '#888';
    context.beginPath();
    outline.forEach(({ x, y }) => context.lineTo(x, y));
    context.closePath();
    context.fill();
    context.restore();
  }
}

/**
 * Outline of the part of a leaf that lies beyond the fold line, as seen from above.
 * @param {{width: number, height: number}} look
 * @param {Fold} fold
 * @returns {Point[]}
 */
export function turnedOutline(look, fold) {
  const along = { x: Math.cos(fold.angle), y: Math.sin(fold.angle) };
  /** @param {Point} point */
  const beyond = (point) =>
    (point.x - fold.middle.x) * along.x + (point.y - fold.middle.y) * along.y;
  const corners = [{ x: 0, y: 0 }, { x: look.width, y: 0 },
    { x: look.width, y: look.height }, { x: 0, y: look.height }];
  /** @type {Point[]} */
  const outline = [];
  corners.forEach((corner, index) => {
    const next = corners[(index + 1) % corners.length];
    const here = beyond(corner);
    const there = beyond(next);
    if (here >= 0) outline.push(corner);
    if (here >= 0 !== there >= 0) {
      const part = here / (here - there);
      outline.push({ x: corner.x + (next.x - corner.x) * part,
        y: corner.y + (next.y - corner.y) * part });
    }
  });
  return outline.flatMap((point, index) => steps(point, outline[(index + 1) % outline.length]))
    .map((point) => {
      const u = beyond(point);
      const shift = seenAt(u, fold.radius) - u;
      return { x: point.x + along.x * shift, y: point.y + along.y * shift };
    });
}

/**
 * Points from one point towards another: straight edges become curves where the paper rolls.
 * @param {Point} from
 * @param {Point} to
 * @returns {Point[]}
 */
function steps(from, to) {
  return Array.from({ length: EDGE_STEPS }, (_, step) => ({
    x: from.x + ((to.x - from.x) * step) / EDGE_STEPS,
    y: from.y + ((to.y - from.y) * step) / EDGE_STEPS,
  }));
}
