/** Cached faces: enough for the pages in view and the leaves to both sides, and some spare. */
const MOST_FACES = 8;

/** Caches page faces drawn at display size, and reuses their canvases. */
export class FaceCache {
  constructor() {
    /** @type {Map<string, {canvas: HTMLCanvasElement, page: number}>} the longest unused first */
    this.kept = new Map();
    /** @type {HTMLCanvasElement[]} */
    this.spare = [];
    /** @type {WeakMap<HTMLCanvasElement, CanvasPattern>} */
    this.patterns = new WeakMap();
  }

  /**
   * @param {number} page
   * @param {string} kind what else tells this face from others of the page
   * @param {(canvas: HTMLCanvasElement) => void} draw
   * @returns {HTMLCanvasElement}
   */
  get(page, kind, draw) {
    const key = page + kind;
    let face = this.kept.get(key);
    if (!face) {
      if (this.kept.size >= MOST_FACES) this.#discard([...this.kept.keys()][0]);
      face = { canvas: this.spare.pop() ?? document.createElement('canvas'), page };
      draw(face.canvas);
      this.patternOf(face.canvas);
    }
    this.kept.delete(key);
    this.kept.set(key, face);
    return face.canvas;
  }

  /**
   * A face as a fill style. Browsers put off what is drawn on a canvas until it is needed: with the pattern that happens
   * before a turn, not in its first frame.
   * @param {HTMLCanvasElement} face
   * @returns {CanvasPattern}
   */
  patternOf(face) {
    const context = /** @type {CanvasRenderingContext2D} */ (face.getContext('2d'));
    const pattern = this.patterns.get(face) ?? /** @type {CanvasPattern} */ (context.createPattern(face, 'no-repeat'));
    this.patterns.set(face, pattern);
    return pattern;
  }

  /** @param {number} page whose picture has changed */
  drop(page) {
    for (const [key, face] of this.kept) {
      if (face.page === page) this.#discard(key);
    }
  }

  clear() {
    this.kept.clear();
    this.spare = [];
  }

  /** @param {string} key */
  #discard(key) {
    const face = this.kept.get(key);
    if (face) {
      this.spare.push(face.canvas);
      // Otherwise the canvas would be copied for it when it is drawn again.
      this.patterns.delete(face.canvas);
    }
    this.kept.delete(key);
  }
}
