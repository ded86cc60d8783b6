import { leafCorners, seenOutline } from './fold.js';
import { clearedCanvas, traceOutline } from './shade.js';

/** @typedef {import('./fold.js').Fold} Fold */
/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./leaf.js').Leaf} Leaf */

/** Rows of the band taken together, by the share of the quarter: paper that hardly bends hardly shrinks. */
const TOGETHER = [[0.45, 3], [0.7, 2], [1, 1]];

/** By how much the paper in the roll is made larger at its edges, in device pixels. */
const EDGE_SPILL = 1;

/**
 * A quarter of the roll that paper makes about a fold line. It is drawn into a band of its own in
 * which the fold line lies level: there each row of pixels is a slice of the paper, without seams
 * and without slanted cuts, and the band is then laid over the page as a whole.
 */
export class Roll {
  constructor() {
    this.paper = scratch();
    this.band = scratch();
  }

  /**
   * @param {CanvasRenderingContext2D} context
   * @param {Leaf} leaf
   * @param {Fold} fold
   * @param {number} density
   * @param {boolean} over the quarter that comes over, of which the back is seen
   * @param {number[][]} shades share of the quarter, opacity of white, opacity of black
   */
  draw(context, leaf, fold, density, over, shades) {
    const quarter = (Math.PI / 2) * fold.radius;
    const rows = fold.radius * density;
    if (rows < 0.3) return;
    const corners = leafCorners(leaf);
    const from = over ? 0 : -quarter;
    const outline = seenOutline(corners, fold, from, from + quarter);
    if (outline.length < 3) return;
    const extent = extentAlong(outline, fold);
    const length = Math.ceil((extent.to - extent.from) * density) + 2;
    this.#drawPaper(leaf, fold, density, over, extent.from - 1 / density, length, quarter);
    this.#bend(rows, length, quarter * density, over);
    this.#shade(rows, length, over, shades);
    const cos = Math.cos(fold.angle);
    const sin = Math.sin(fold.angle);
    const start = extent.from - 1 / density;
    context.save();
    traceOutline(context, outline);
    context.clip();
    context.transform(-sin / density, cos / density, cos / density, sin / density,
      fold.middle.x - cos * quarter - sin * start, fold.middle.y - sin * quarter + cos * start);
    context.drawImage(this.band.canvas, 0, 0, length, Math.ceil(rows), 0, 0, length, Math.ceil(rows));
    context.restore();
  }

  /**
   * The quarter's paper, spread out flat; the fold line lies level.
   * @param {Leaf} leaf
   * @param {Fold} fold
   * @param {number} density
   * @param {boolean} over
   * @param {number} start place along the fold line of the first column
   * @param {number} length in device pixels
   * @param {number} quarter
   */
  #drawPaper(leaf, fold, density, over, start, length, quarter) {
    const { paper } = this;
    const face = /** @type {HTMLCanvasElement} */ (over ? leaf.back : leaf.front);
    const height = Math.ceil(quarter * density) + 2;
    clearedCanvas(paper, length, height);
    const cos = Math.cos(fold.angle) * density;
    const sin = Math.sin(fold.angle) * density;
    const { x, y } = fold.middle;
    const first = (over ? 0 : -quarter) * density;
    paper.setTransform(-sin, cos, cos, sin, x * sin - y * cos - start * density,
      -x * cos - y * sin - first + 1);
    // The outline cuts the paper's edges; up to there it must have paper.
    const spill = EDGE_SPILL / density;
    if (leaf.mirrored !== over) paper.transform(-1, 0, 0, 1, leaf.width, 0);
    paper.drawImage(face, -spill, -spill, leaf.width + 2 * spill, leaf.height + 2 * spill);
  }

  /**
   * Bends the paper: each row of the band takes the slice that is seen there.
   * @param {number} rows height of the band in device pixels: the roll's radius
   * @param {number} length
   * @param {number} quarter length of the paper in device pixels
   * @param {boolean} over
   */
  #bend(rows, length, quarter, over) {
    const { paper, band } = this;
    clearedCanvas(band, length, Math.ceil(rows));
    /** @param {number} seen */
    const onPaper = (seen) => {
      const bent = rows * Math.asin(Math.min(1, seen / rows));
      return 1 + (over ? quarter - bent : bent);
    };
    for (let row = 0; row < rows;) {
      const share = row / rows;
      const end = Math.min(rows, row + (TOGETHER.find(([upTo]) => share < upTo)?.[1] ?? 1));
      const from = Math.min(onPaper(row), onPaper(end));
      const tall = Math.abs(onPaper(end) - onPaper(row));
      if (over && end - row > 1) {
        band.setTransform(1, 0, 0, -1, 0, row + end);
        band.drawImage(paper.canvas, 0, from, length, tall, 0, row, length, end - row);
        band.setTransform(1, 0, 0, 1, 0, 0);
      } else {
        slice(band, paper.canvas, from, tall, length, row, end - row);
      }
      row = end;
    }
  }

  /**
   * @param {number} rows
   * @param {number} length
   * @param {boolean} over
   * @param {number[][]} shades
   */
  #shade(rows, length, over, shades) {
    const { band } = this;
    const shade = band.createLinearGradient(0, 0, 0, rows);
    for (const [share, white, black] of shades) {
      const seen = Math.sin((over ? 1 - share : share) * (Math.PI / 2));
      const tone = white > black ? 'rgba(255, 255, 255, ' + white + ')' : 'rgba(0, 0, 0, ' + black + ')';
      shade.addColorStop(Math.min(1, Math.max(0, seen)), tone);
    }
    band.globalCompositeOperation = 'source-atop';
    band.fillStyle = shade;
    band.fillRect(0, 0, length, Math.ceil(rows));
    band.globalCompositeOperation = 'source-over';
  }
}

/**
 * Where along the fold line an outline lies.
 * @param {Point[]} outline
 * @param {Fold} fold
 */
function extentAlong(outline, fold) {
  const places = outline.map(({ x, y }) =>
    (y - fold.middle.y) * Math.cos(fold.angle) - (x - fold.middle.x) * Math.sin(fold.angle));
  return { from: Math.min(...places), to: Math.max(...places) };
}

/**
 * One row: the mean of the paper that is seen there edge-on, so that thin lines do not break up.
 * @param {CanvasRenderingContext2D} band
 * @param {HTMLCanvasElement} paper
 * @param {number} from
 * @param {number} tall
 * @param {number} length
 * @param {number} row
 * @param {number} height
 */
function slice(band, paper, from, tall, length, row, height) {
  const parts = Math.min(8, Math.ceil(tall / 2));
  for (let part = 0; part < parts; part++) {
    band.globalAlpha = 1 / (part + 1);
    band.drawImage(paper, 0, from + (tall * part) / parts, length, tall / parts, 0, row, length, height);
  }
  band.globalAlpha = 1;
}

/** @returns {CanvasRenderingContext2D} */
function scratch() {
  const canvas = document.createElement('canvas');
  canvas.width = 0;
  return /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
}
