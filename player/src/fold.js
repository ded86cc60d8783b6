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

/** Widest roll, as a share of the leaf's width: paper that bends, not cardboard that snaps. */
const WIDEST_ROLL = 0.13;

/**
 * Nearest place to which the grabbed point of the edge can go without tearing the leaf from its
 * binding.
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
