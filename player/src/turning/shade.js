/** @typedef {import('./fold.js').Point} Point */

/** Shadow pixels per CSS pixel: blurred shapes need no more. */
const SHADE_DENSITY = 0.5;

/** Offset that keeps the shape itself outside of its shadow's canvas. */
const SHADOW_OFFSET = 4000;

/** @type {CanvasRenderingContext2D | null} */
let shadePicture = null;

/**
 * Draws the shadow of a shape without the shape. It is blurred at a low resolution; at full resolution blurring would
 * take most of a frame's time.
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
  clearedCanvas(picture, width, height);
  picture.setTransform(SHADE_DENSITY, 0, 0, SHADE_DENSITY, -left * SHADE_DENSITY - SHADOW_OFFSET,
    -top * SHADE_DENSITY);
  picture.shadowColor = 'rgba(0, 0, 0, ' + opacity + ')';
  picture.shadowBlur = blur * SHADE_DENSITY;
  picture.shadowOffsetX = SHADOW_OFFSET;
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
 * A cleared canvas of at least this size; it is reused and only grows.
 * @param {CanvasRenderingContext2D} context
 * @param {number} width
 * @param {number} height
 */
export function clearedCanvas(context, width, height) {
  const { canvas } = context;
  if (canvas.width < width || canvas.height < height) {
    canvas.width = Math.max(canvas.width, width);
    canvas.height = Math.max(canvas.height, height);
  } else {
    context.setTransform(1, 0, 0, 1, 0, 0);
    // Scaled drawing takes a pixel beside the part that is drawn, too: what is left there would be seen as a line.
    context.clearRect(0, 0, width + 2, height + 2);
  }
}
