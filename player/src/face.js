import { say } from './words.js';

/** @typedef {import('./images.js').PageImage} PageImage */

/**
 * Darkening of a page towards its binding: share of the page's width, opacity of black. The
 * standing pages (style sheet) and the turning leaf show the same.
 */
export const GUTTER = [[0, 0.26], [0.012, 0.16], [0.04, 0.075], [0.09, 0.03], [0.16, 0]];

/** @param {number} page */
export function missingText(page) {
  return say('pageMissing', page);
}

/**
 * Where an image lies in a page: whole, centred, as large as possible.
 * @param {number} imageWidth
 * @param {number} imageHeight
 * @param {number} width
 * @param {number} height
 */
export function fitted(imageWidth, imageHeight, width, height) {
  const scale = Math.min(width / imageWidth, height / imageHeight);
  // A hair's breadth of paper at a page's edge looks like a fault; stretch it away.
  const snap = (/** @type {number} */ part, /** @type {number} */ whole) =>
    (whole - part < whole * 0.006 ? whole : part);
  const w = snap(imageWidth * scale, width);
  const h = snap(imageHeight * scale, height);
  return { x: (width - w) / 2, y: (height - h) / 2, width: w, height: h };
}

/**
 * One side of a leaf, drawn once per turn at the size at which it is shown.
 * @typedef {object} FaceOptions
 * @property {number} page 0 for the back of a single page, of which no page is printed
 * @property {PageImage | null} entry
 * @property {number} width CSS pixels
 * @property {number} height
 * @property {number} density device pixels per CSS pixel
 * @property {string} paper
 * @property {'left' | 'right' | 'none'} gutter side of the binding
 */

/**
 * @param {FaceOptions} options
 * @returns {HTMLCanvasElement}
 */
export function drawFace({ page, entry, width, height, density, paper, gutter }) {
  const canvas = document.createElement('canvas');
  canvas.width = Math.max(1, Math.round(width * density));
  canvas.height = Math.max(1, Math.round(height * density));
  const context = /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
  context.scale(canvas.width / width, canvas.height / height);
  context.fillStyle = paper;
  context.fillRect(0, 0, width, height);
  if (entry?.state === 'ready') {
    const { image } = entry;
    const place = fitted(image.naturalWidth, image.naturalHeight, width, height);
    context.imageSmoothingQuality = 'high';
    context.drawImage(image, place.x, place.y, place.width, place.height);
  } else if (entry?.state === 'missing') {
    context.fillStyle = 'rgba(110, 110, 110, .9)';
    context.font = '15px system-ui, sans-serif';
    context.textAlign = 'center';
    context.fillText(missingText(page), width / 2, height / 2);
  }
  if (gutter !== 'none') drawGutter(context, width, height, gutter === 'right');
  return canvas;
}

/**
 * @param {HTMLCanvasElement} left
 * @param {HTMLCanvasElement} right
 */
export function sideBySide(left, right) {
  const canvas = document.createElement('canvas');
  canvas.width = left.width + right.width;
  canvas.height = left.height;
  const context = /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
  context.drawImage(left, 0, 0);
  context.drawImage(right, left.width, 0);
  return canvas;
}

/**
 * Back of a single page: paper through which the print of the front is faintly seen.
 * @param {HTMLCanvasElement} front
 * @param {string} paper
 */
export function drawShowThrough(front, paper) {
  const canvas = document.createElement('canvas');
  canvas.width = front.width;
  canvas.height = front.height;
  const context = /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
  context.fillStyle = paper;
  context.fillRect(0, 0, canvas.width, canvas.height);
  context.globalAlpha = 0.14;
  context.translate(canvas.width, 0);
  context.scale(-1, 1);
  context.drawImage(front, 0, 0);
  return canvas;
}

/**
 * @param {CanvasRenderingContext2D} context
 * @param {number} width
 * @param {number} height
 * @param {boolean} atRight
 */
function drawGutter(context, width, height, atRight) {
  const shade = context.createLinearGradient(atRight ? width : 0, 0, atRight ? 0 : width, 0);
  for (const [at, opacity] of GUTTER) shade.addColorStop(at, 'rgba(0, 0, 0, ' + opacity + ')');
  context.fillStyle = shade;
  context.fillRect(0, 0, width, height);
}
