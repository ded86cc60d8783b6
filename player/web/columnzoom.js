/** Enlarged lines are at most this high, in CSS pixels: wide windows are too wide for a column. */
const HIGHEST_LINE = 40;

/** A column that would become hardly wider is wide enough already. */
const LEAST = 1.15;

/** Room on both sides of a column, in CSS pixels. */
const AIR = 10;

/**
 * Shows the column of text at a place of the window at the window's width; that place stays at its height.
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {number} x
 * @param {number} y
 * @returns {boolean} whether there is a column that gains by it
 */
export function showColumn({ book, zoom, reading, turner, gestures }, layers, x, y) {
  const at = { clientX: x, clientY: y, pointerType: 'touch' };
  if (!gestures.textAt?.(/** @type {PointerEvent} */ (at))) return false;
  const columns = reading.columns();
  const across = (x - zoom.now.x) / zoom.level;
  const index = nearest(columns, across);
  const { left, right } = columns[index];
  const level = Math.min((book.sight.right - book.sight.left - 2 * AIR) / (right - left), HIGHEST_LINE / lineHeight(layers, x));
  if (level < LEAST) return false;
  reading.led = { view: turner.current, column: index };
  return zoom.lookAt((left + right) / 2, (y - zoom.now.y) / zoom.level - y / level, level);
}

/**
 * @param {import('../src/controls/reading.js').Column[]} columns
 * @param {number} x
 */
function nearest(columns, x) {
  const away = columns.map(({ left, right }) => Math.max(left - x, 0, x - right));
  return away.indexOf(Math.min(...away));
}

/**
 * Height of the lines of the page at a place of the window, in CSS pixels of whole pages.
 * @param {import('./layers.js').Layers} layers
 * @param {number} x
 */
function lineHeight({ faces }, x) {
  const face = faces.find(({ position, over }) => {
    const { left, right } = over.getBoundingClientRect();
    return position && x >= left && x <= right;
  });
  return face?.text ? (face.text.lineHeight * face.box.clientHeight) / face.text.height || 1 : 1;
}
