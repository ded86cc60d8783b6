import { boxIn, isUpright, runsBack } from './pagetext.js';

/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('./layers.js').Layers} Layers */
/** @typedef {{node: Node, offset: number}} Caret */

/** Way after which a press on a word marks text instead of being a click. */
const MARK_START = 4;

/** What a way along a line counts beside one from line to line: readers stop behind a line's end. */
const BESIDE = 0.4;

/**
 * Marks text with the mouse. The words' own places say what lies under the pointer: what browsers make
 * of words that are placed one by one leaps to the ends of the page between the lines.
 */
export class Selecting {
  /**
   * @param {any} parts of the player
   * @param {Layers} layers
   */
  constructor({ root, gestures }, layers) {
    this.gestures = gestures;
    this.layers = layers;
    /** @type {{id: number, x: number, y: number, anchor: Caret, marks: boolean} | null} */
    this.press = null;
    /** Whether the press under way only takes an earlier marking back. */
    this.clears = false;
    const stage = root.querySelector('.stage');
    stage.addEventListener('mousedown', (/** @type {MouseEvent} */ event) => this.#keepFromBrowser(event));
    root.addEventListener('pointerdown', (/** @type {PointerEvent} */ event) => this.#down(event), { capture: true });
    root.addEventListener('pointermove', (/** @type {PointerEvent} */ event) => this.#move(event), { capture: true });
    for (const name of ['pointerup', 'pointercancel']) {
      root.addEventListener(name, (/** @type {PointerEvent} */ event) => this.#up(event), { capture: true });
    }
    document.addEventListener('selectionchange', () => this.#touched());
    document.addEventListener('copy', (event) => this.#copy(event));
  }

  /** Whether text of the pages is marked. */
  get marked() {
    const selection = getSelection();
    return Boolean(selection && !selection.isCollapsed && wordsIn(selection, this.layers).length);
  }

  /** @param {MouseEvent} event */
  #keepFromBrowser(event) {
    if (event.button !== 0 || !wordAt(event.target)) return;
    event.preventDefault();
    // What the browser would have done beside marking.
    if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
  }

  /** @param {PointerEvent} event */
  #down(event) {
    if (event.button !== 0 || !onStage(event.target)) return;
    const selection = getSelection();
    this.clears = this.marked && !event.shiftKey;
    const mouse = event.pointerType === 'mouse';
    if (this.clears && mouse) selection?.removeAllRanges();
    if (!mouse || !wordAt(event.target)) return;
    const here = this.#caretAt(event);
    if (!here) return;
    const extends_ = event.shiftKey && this.marked && selection?.anchorNode;
    const anchor = extends_ ? { node: /** @type {Node} */ (selection.anchorNode), offset: selection.anchorOffset } : here;
    this.press = { id: event.pointerId, x: event.clientX, y: event.clientY, anchor, marks: false };
    if (extends_) this.#mark(event);
  }

  /** @param {PointerEvent} event */
  #move(event) {
    const { press } = this;
    if (!press || press.id !== event.pointerId) return;
    if (!press.marks && Math.hypot(event.clientX - press.x, event.clientY - press.y) < MARK_START) return;
    this.#mark(event);
    event.stopPropagation();
  }

  /** @param {PointerEvent} event */
  #up(event) {
    if (this.press?.id === event.pointerId) this.press = null;
  }

  /** @param {PointerEvent} event */
  #mark(event) {
    const press = /** @type {NonNullable<Selecting['press']>} */ (this.press);
    if (!press.marks) {
      // From here on the press turns and moves nothing.
      this.gestures.drop();
      press.marks = true;
    }
    const here = this.#caretAt(event);
    if (here) getSelection()?.setBaseAndExtent(press.anchor.node, press.anchor.offset, here.node, here.offset);
  }

  /** A finger that rests on a word marks it, by the browser's own ways; it then turns nothing. */
  #touched() {
    if (this.gestures.press && !this.press && this.marked && !this.clears) this.gestures.drop();
  }

  /**
   * Place in the text that is nearest to the pointer.
   * @param {PointerEvent} event
   * @returns {Caret | null}
   */
  #caretAt({ clientX, clientY }) {
    /** @type {{face: Face, away: number} | null} */
    let nearest = null;
    for (const face of this.layers.faces) {
      if (!face.position || !face.text?.lines.length) continue;
      const away = distance(face.box.getBoundingClientRect(), clientX, clientY);
      if (!nearest || away < nearest.away) nearest = { face, away };
    }
    return nearest && caretIn(nearest.face, clientX, clientY);
  }

  /** @param {ClipboardEvent} event */
  #copy(event) {
    const selection = getSelection();
    const words = selection && !selection.isCollapsed ? wordsIn(selection, this.layers) : [];
    if (words.length === 0 || !event.clipboardData) return;
    let text = '';
    words.forEach(({ line, part }, index) => {
      text += (index > 0 && words[index - 1].line !== line ? '\n' : '') + part;
    });
    event.clipboardData.setData('text/plain', text);
    event.preventDefault();
  }
}

/** @param {EventTarget | null} target */
function wordAt(target) {
  return target instanceof Element ? target.closest('.word') : null;
}

/** @param {EventTarget | null} target */
function onStage(target) {
  return target instanceof Element && target.closest('.stage') !== null;
}

/**
 * @param {{x: number, y: number, width: number, height: number}} box
 * @param {number} x
 * @param {number} y
 * @param {[across: number, down: number]} weights
 */
function distance(box, x, y, weights = [1, 1]) {
  const across = Math.max(box.x - x, 0, x - box.x - box.width);
  const down = Math.max(box.y - y, 0, y - box.y - box.height);
  return Math.hypot(across * weights[0], down * weights[1]);
}

/**
 * @param {Face} face
 * @param {number} clientX
 * @param {number} clientY
 * @returns {Caret | null}
 */
function caretIn({ box, text }, clientX, clientY) {
  const layer = box.querySelector('.text-layer');
  if (!text || !layer) return null;
  const seen = box.getBoundingClientRect();
  const x = ((clientX - seen.x) / seen.width) * text.width;
  const y = ((clientY - seen.y) / seen.height) * text.height;
  const near = text.lines.map((line, index) => {
    const weights = /** @type {[number, number]} */ (isUpright(line) ? [1, BESIDE] : [BESIDE, 1]);
    return { line, index, away: distance(line.box, x, y, weights) };
  }).reduce((a, b) => (b.away < a.away ? b : a));
  const { line } = near;
  const words = line.words.map((word, index) => ({ word, index, away: distance(boxIn(line, word, 0, 1), x, y) }));
  const { word, index } = words.reduce((a, b) => (b.away < a.away ? b : a));
  const along = isUpright(line) ? y - line.box.y : x - line.box.x;
  const share = Math.min(1, Math.max(0, (along - word.start) / word.length));
  const offset = Math.round((runsBack(line, word) ? 1 - share : share) * word.text.trimEnd().length);
  const node = layer.children[near.index].children[index].firstChild;
  return node && { node, offset };
}

/**
 * The marked parts of words, in reading order.
 * @param {Selection} selection
 * @param {Layers} layers
 * @returns {{line: Element | null, part: string}[]}
 */
function wordsIn(selection, layers) {
  const range = selection.getRangeAt(0);
  const marked = [];
  for (const { over } of layers.faces) {
    if (over.hidden || !range.intersectsNode(over)) continue;
    for (const word of over.querySelectorAll('.word')) {
      const node = /** @type {Text} */ (word.firstChild);
      if (!range.intersectsNode(node)) continue;
      const from = node === range.startContainer ? range.startOffset : 0;
      const to = node === range.endContainer ? range.endOffset : node.length;
      if (to > from) marked.push({ line: word.parentElement, part: node.data.slice(from, to) });
    }
  }
  return marked;
}
