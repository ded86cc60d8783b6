/** @typedef {import('./fold.js').Point} Point */

/** Pixels of the picture of a shadow for each CSS pixel: what is blurred needs no more. */
const SHADE_DENSITY = 0.5;

/** Way by which the shape lies outside of the picture that takes its shadow. */
const OUT_OF_SIGHT = 4000;

/** @type {CanvasRenderingContext2D | null} */
let shadePicture = null;

/**
 * Draws the shadow of a shape and not the shape. It is blurred at a low resolution: blurring takes more
 * time than anything else in a frame otherwise.
 * @param {CanvasRenderingContext2D} context
 * @param {Point[]} outline
 * @param {{opacity: number, blur: number, down: number}} shade blur and way down in CSS pixels
 */
export function drawShade(context, outline, { opacity, blur, down }) {
  const margin = blur * 1.6 + down + 4;
  const xs = outline.map(({ x }) => x);
  const ys = outline.map(({ y }) => y);
  const left = Math.min(...xs) - margin;
  const top = Math.min(...ys) - margin;
  const width = Math.ceil((Math.max(...xs) + margin - left) * SHADE_DENSITY);
  const height = Math.ceil((Math.max(...ys) + margin - top) * SHADE_DENSITY);
  shadePicture = shadePicture ?? /** @type {CanvasRenderingContext2D} */ (
    document.createElement('canvas').getContext('2d'));
  const picture = shadePicture;
  emptied(picture, width, height);
  picture.setTransform(SHADE_DENSITY, 0, 0, SHADE_DENSITY, -left * SHADE_DENSITY - OUT_OF_SIGHT,
    -top * SHADE_DENSITY);
  picture.shadowColor = 'rgba(0, 0, 0, ' + opacity + ')';
  picture.shadowBlur = blur * SHADE_DENSITY;
  picture.shadowOffsetX = OUT_OF_SIGHT;
  picture.shadowOffsetY = down * SHADE_DENSITY;
  traceOutline(picture, outline);
  picture.fill();
  context.drawImage(picture.canvas, 0, 0, width, height,
    left, top, width / SHADE_DENSITY, height / SHADE_DENSITY);
}

/**
 * @param {CanvasRenderingContext2D} context
 * @param {Point[]} outline
 */
export function traceOutline(context, outline) {
  context.beginPath();
  outline.forEach(({ x, y }) => context.lineTo(x, y));
  context.closePath();
}

/**
 * An empty picture of at least this size, in a canvas that only grows.
 * @param {CanvasRenderingContext2D} context
 * @param {number} width
 * @param {number} height
 */
export function emptied(context, width, height) {
  const { canvas } = context;
  if (canvas.width < width || canvas.height < height) {
    canvas.width = Math.max(canvas.width, width);
    canvas.height = Math.max(canvas.height, height);
  } else {
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.clearRect(0, 0, width, height);
  }
}
