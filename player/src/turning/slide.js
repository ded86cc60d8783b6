/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./leaf.js').Leaf} Leaf */

/** Width of the moving view's shadow, in CSS pixels. */
const SLIDE_SHADOW = 44;

/** Views that slide off one another like slides of a presentation. */
export class SlidePainter {
  whole = true;
  enough = 0.2;
  peek = { x: 0.02, y: 0 };

  /**
   * @param {Point} wanted
   * @param {Leaf} leaf
   * @returns {Point}
   */
  reach(wanted, leaf) {
    return { x: Math.min(leaf.width, Math.max(-leaf.width, wanted.x)), y: leaf.edge.y };
  }

  /** @param {Leaf} leaf */
  gain(leaf) {
    return (2 * leaf.width) / way(leaf);
  }

  /**
   * @param {CanvasRenderingContext2D} context
   * @param {Leaf} leaf
   * @param {number} density
   */
  draw(context, leaf, density) {
    const { front, width, height, turned } = leaf;
    if (!front) return;
    this.#dim(context, leaf);
    const { book } = leaf;
    const own = book.shiftFor(leaf.reversed ? leaf.to : leaf.from) - leaf.shift;
    const gone = own + (leaf.mirrored ? 1 : -1) * turned * way(leaf);
    const x = Math.round(gone * density) / density;
    const begin = x - (leaf.pages.left ? width : 0);
    const end = x + (leaf.pages.right ? width : 0);
    if (turned > 0) this.#castShadow(context, begin, end - begin, leaf, density);
    context.drawImage(front, begin, 0, end - begin, height);
  }

  /**
   * Darkens the view beneath, less and less as it is uncovered.
   * @param {CanvasRenderingContext2D} context
   * @param {Leaf} leaf
   */
  #dim(context, leaf) {
    const { beneath, width, height, turned } = leaf;
    context.fillStyle = 'rgba(0, 0, 0, ' + 0.3 * (1 - turned) ** 1.5 + ')';
    const begin = beneath.left ? -width : 0;
    context.fillRect(begin, 0, (beneath.right ? width : 0) - begin, height);
  }

  /**
   * @param {CanvasRenderingContext2D} context
   * @param {number} x
   * @param {number} width
   * @param {Leaf} leaf
   * @param {number} density
   */
  #castShadow(context, x, width, leaf, density) {
    const strength = Math.min(1, leaf.turned * 10);
    context.save();
    context.shadowColor = 'rgba(0, 0, 0, ' + 0.42 * strength + ')';
    context.shadowBlur = 0.8 * SLIDE_SHADOW * density;
    context.shadowOffsetY = 0.14 * SLIDE_SHADOW * density;
    context.fillStyle = '#000';
    context.fillRect(x, 0, width, leaf.height);
    context.restore();
  }
}

/**
 * Distance that a view slides to leave the window.
 * @param {Leaf} leaf
 */
function way(leaf) {
  const { book, width, mirrored, pages } = leaf;
  const origin = book.layout.spineX + book.shiftFor(leaf.reversed ? leaf.to : leaf.from);
  return SLIDE_SHADOW + (mirrored ? book.root.clientWidth - origin + (pages.left ? width : 0)
    : origin + (pages.right ? width : 0));
}
