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
  // A sliver of paper at a page's edge looks like a fault, so such an image is stretched.
  const snap = (/** @type {number} */ part, /** @type {number} */ whole) =>
    (whole - part < whole * 0.006 ? whole : part);
  const w = snap(imageWidth * scale, width);
  const h = snap(imageHeight * scale, height);
  return { x: (width - w) / 2, y: (height - h) / 2, width: w, height: h };
}

/** Side of the small copy of a page that is looked at, in pixels. */
const SAMPLE = 24;

/** The least that each colour of paper has, which may be a scan's, of 255. */
const NEAR_WHITE = 215;

/** Share of a page below which what is near white is no paper. */
const LEAST_PAPER = 0.2;

/**
 * Whether a page is a photograph to its edges: too little of it is as white as paper.
 * @param {PageImage} entry
 */
export function isPhotograph({ image, photo }) {
  if (photo) return true;
  const context = sized(document.createElement('canvas'), SAMPLE, SAMPLE);
  context.drawImage(image, 0, 0, SAMPLE, SAMPLE);
  try {
    const { data } = context.getImageData(0, 0, SAMPLE, SAMPLE);
    const white = data.filter((red, at) => at % 4 === 0 && Math.min(red, data[at + 1], data[at + 2]) > NEAR_WHITE);
    return white.length < LEAST_PAPER * SAMPLE * SAMPLE;
  } catch {
    // Browsers let no page read pictures from disk: there a book says itself which pages are such.
    return false;
  }
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
 * @property {string} tint name of a filter of the page's document, or empty
 * @property {'left' | 'right' | 'none'} gutter side of the binding
 */

/**
 * @param {HTMLCanvasElement} canvas
 * @param {FaceOptions} options
 */
export function drawFace(canvas, { page, entry, width, height, density, paper, tint, gutter }) {
  const context = sized(canvas, Math.round(width * density), Math.round(height * density));
  context.setTransform(canvas.width / width, 0, 0, canvas.height / height, 0, 0);
  context.fillStyle = paper;
  context.fillRect(0, 0, width, height);
  if (entry?.state === 'ready') {
    const { image } = entry;
    const place = fitted(image.naturalWidth, image.naturalHeight, width, height);
    context.imageSmoothingQuality = 'high';
    // Not in all browsers: there leaves turn untinted.
    if (tint) context.filter = 'url(#paper-' + (tint === 'night' && isPhotograph(entry) ? 'photo' : tint) + ')';
    context.drawImage(image, place.x, place.y, place.width, place.height);
    context.filter = 'none';
  } else if (entry?.state === 'missing') {
    context.fillStyle = '#f4f2ef';
    context.fillRect(0, 0, width, height);
    context.fillStyle = '#6c6c6c';
    context.font = '15px system-ui, sans-serif';
    context.textAlign = 'center';
    context.fillText(missingText(page), width / 2, height / 2);
  }
  if (gutter !== 'none') drawGutter(context, width, height, gutter === 'right');
}

/**
 * @param {HTMLCanvasElement} canvas
 * @param {HTMLCanvasElement} left
 * @param {HTMLCanvasElement} right
 */
export function drawSideBySide(canvas, left, right) {
  const context = sized(canvas, left.width + right.width, left.height);
  context.drawImage(left, 0, 0);
  context.drawImage(right, left.width, 0);
}

/**
 * Back of a single page: paper through which the print of the front is faintly seen.
 * @param {HTMLCanvasElement} canvas
 * @param {HTMLCanvasElement} front
 * @param {string} paper
 */
export function drawShowThrough(canvas, front, paper) {
  const context = sized(canvas, front.width, front.height);
  context.fillStyle = paper;
  context.fillRect(0, 0, canvas.width, canvas.height);
  context.globalAlpha = 0.14;
  context.setTransform(-1, 0, 0, 1, canvas.width, 0);
  context.drawImage(front, 0, 0);
  context.globalAlpha = 1;
}

/**
 * Sizes a canvas and resets its transform. One that has this size already keeps its memory, and its content.
 * @param {HTMLCanvasElement} canvas
 * @param {number} width device pixels
 * @param {number} height
 */
function sized(canvas, width, height) {
  if (canvas.width !== Math.max(1, width)) canvas.width = Math.max(1, width);
  if (canvas.height !== Math.max(1, height)) canvas.height = Math.max(1, height);
  const context = /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
  context.setTransform(1, 0, 0, 1, 0, 0);
  return context;
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
