/** Cached faces: enough for the pages in view and the leaves to both sides, and some spare. */
const MOST_FACES = 8;

/** Caches page faces drawn at display size, and reuses their canvases. */
export class FaceCache {
  constructor() {
    /** @type {Map<string, {canvas: HTMLCanvasElement, page: number}>} the longest unused first */
    this.kept = new Map();
    /** @type {HTMLCanvasElement[]} */
    this.spare = [];
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
    }
    this.kept.delete(key);
    this.kept.set(key, face);
    return face.canvas;
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
    if (face) this.spare.push(face.canvas);
    this.kept.delete(key);
  }
}
