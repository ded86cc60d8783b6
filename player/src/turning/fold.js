/**
 * Geometry of a page that is turned over. Coordinates are those of a leaf bound at x = 0, its top
 * at y = 0, lying flat over 0..width; a turned leaf lies over -width..0.
 *
 * @typedef {{x: number, y: number}} Point
 * @typedef {object} Fold
 * @property {Point} middle a point of the line about which the leaf folds
 * @property {number} angle direction, in radians, in which the leaf leaves the table
 * @property {number} radius of the roll that the paper makes about the fold line
 */

/** Line segments that approximate a paper edge in the roll. */
const EDGE_STEPS = 10;

/** Widest roll, as a share of the leaf's width: paper that bends, not cardboard that snaps. */
const WIDEST_ROLL = 0.13;

/**
 * The reachable point nearest to the one asked for: the held point of the edge can't go further from the binding than
 * the paper reaches.
 * @param {Point} wanted
 * @param {Point} edge where the grabbed point lies in the flat leaf
 * @param {number} height
 * @returns {Point}
 */
export function reachable(wanted, edge, height) {
  let { x, y } = wanted;
  for (let round = 0; round < 3; round++) {
    for (const bindingY of [0, height]) {
      const limit = Math.hypot(edge.x, edge.y - bindingY);
      const distance = Math.hypot(x, y - bindingY);
      if (distance > limit) {
        x *= limit / distance;
        y = bindingY + (y - bindingY) * (limit / distance);
      }
    }
  }
  return { x, y };
}

/**
 * @param {Point} held where the grabbed point of the edge is now
 * @param {Point} edge where it lies in the flat leaf
 * @param {number} width
 * @param {number} height
 * @returns {Fold | null} none while the leaf lies flat
 */
export function foldOf(held, edge, width, height) {
  const way = Math.hypot(edge.x - held.x, edge.y - held.y);
  if (way < 0.5) return null;
  const normal = { x: (edge.x - held.x) / way, y: (edge.y - held.y) / way };
  const middle = { x: (edge.x + held.x) / 2, y: (edge.y + held.y) / 2 };
  const room = Math.min(...[0, height].map(
    (bindingY) => middle.x * normal.x + (middle.y - bindingY) * normal.y));
  return {
    middle,
    angle: Math.atan2(normal.y, normal.x),
    radius: Math.max(0.01, Math.min(width * WIDEST_ROLL, (room * 2) / Math.PI, way / Math.PI)),
  };
}

/**
 * Where paper at a distance from the fold line is seen from above.
 * @param {number} u distance from the fold line, before folding
 * @param {number} radius
 */
export function seenAt(u, radius) {
  const start = (-Math.PI / 2) * radius;
  if (u <= start) return u;
  if (u >= -start) return -u;
  return start + radius * Math.sin((u - start) / radius);
}

/**
 * The part of a convex outline between two distances from the fold line, before folding.
 * @param {Point[]} outline
 * @param {Fold} fold
 * @param {number} from
 * @param {number} to
 * @returns {Point[]}
 */
export function within(outline, fold, from, to) {
  const cos = Math.cos(fold.angle);
  const sin = Math.sin(fold.angle);
  /** @param {Point} point */
  const beyond = (point) => (point.x - fold.middle.x) * cos + (point.y - fold.middle.y) * sin;
  let part = outline;
  if (from > -Infinity) part = cutOff(part, (point) => beyond(point) - from);
  if (to < Infinity) part = cutOff(part, (point) => to - beyond(point));
  return part;
}

/** @param {{width: number, height: number}} leaf */
export function leafCorners({ width, height }) {
  return [{ x: 0, y: 0 }, { x: width, y: 0 }, { x: width, y: height }, { x: 0, y: height }];
}

/**
 * The outline of a part of the leaf, between two distances from the fold line, as it is seen folded.
 * @param {Point[]} outline of the flat leaf
 * @param {Fold} fold
 * @param {number} from
 * @param {number} to
 * @returns {Point[]}
 */
export function seenOutline(outline, fold, from, to) {
  const cos = Math.cos(fold.angle);
  const sin = Math.sin(fold.angle);
  const part = within(outline, fold, from, to);
  return part.flatMap((point, index) => stepsBetween(point, part[(index + 1) % part.length]))
    .map((point) => {
      const u = (point.x - fold.middle.x) * cos + (point.y - fold.middle.y) * sin;
      const shift = seenAt(u, fold.radius) - u;
      return { x: point.x + cos * shift, y: point.y + sin * shift };
    });
}

/**
 * @param {Point} from
 * @param {Point} to
 * @returns {Point[]}
 */
function stepsBetween(from, to) {
  return Array.from({ length: EDGE_STEPS }, (_, step) => ({
    x: from.x + ((to.x - from.x) * step) / EDGE_STEPS,
    y: from.y + ((to.y - from.y) * step) / EDGE_STEPS,
  }));
}

/**
 * @param {Point[]} outline
 * @param {(point: Point) => number} inside negative outside
 * @returns {Point[]}
 */
function cutOff(outline, inside) {
  /** @type {Point[]} */
  const kept = [];
  outline.forEach((point, index) => {
    const next = outline[(index + 1) % outline.length];
    const here = inside(point);
    const there = inside(next);
    if (here >= 0) kept.push(point);
    if (here >= 0 === there >= 0) return;
    const part = here / (here - there);
    kept.push({ x: point.x + (next.x - point.x) * part, y: point.y + (next.y - point.y) * part });
  });
  return kept;
}
