import { part } from '../src/book/dom.js';
import { caretIn, wordAround } from './carets.js';
import { distance } from './pagetext.js';

/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('./layers.js').Layers} Layers */
/** @typedef {{node: Node, offset: number}} Caret */

/** Distance after which a press on a word selects text instead of being a click. */
const MARK_START = 4;

/** Maximum movement and minimum time of a long press, which selects a word unless the browser has done so. */
const LONG_PRESS_WAY = 8;
const LONG_PRESS_MS = 700;

/** Distance at which a mouse and a finger still hit words, in CSS pixels: it bridges the gaps between lines. */
const MOUSE_REACH = 4;
const FINGER_REACH = 12;

/**
 * Selects text with the mouse, a word by a double click and a line by a triple click, and by a long press where the
 * browser does not. Hit testing uses the boxes of the words: between lines of words placed one by one, the browser's
 * own selection jumps to the ends of the page.
 */
export class Selecting {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {Layers} layers
   */
  constructor({ root, gestures }, layers) {
    this.root = root;
    this.gestures = gestures;
    this.layers = layers;
    gestures.textAt = (event) => this.#textAt(event);
    /** @type {{id: number, x: number, y: number, anchor: Caret, marks: boolean, timer: number} | null} */
    this.press = null;
    /** Whether the current press only changes or clears the selection. */
    this.answers = false;
    /** Whether the last press was a mouse's. */
    this.byMouse = false;
    part(root, '.stage').addEventListener('mousedown', (event) => this.#keepFromBrowser(event));
    root.addEventListener('pointerdown', (event) => this.#down(event), { capture: true });
    root.addEventListener('pointermove', (event) => this.#move(event), { capture: true });
    for (const name of /** @type {const} */ (['pointerup', 'pointercancel'])) {
      root.addEventListener(name, (event) => this.#up(event), { capture: true });
    }
    document.addEventListener('selectionchange', () => this.#touched());
    document.addEventListener('copy', (event) => this.#copy(event));
  }

  /** Whether text of the pages is selected. */
  get marked() {
    const selection = getSelection();
    return Boolean(selection && !selection.isCollapsed && wordsIn(selection, this.layers).length);
  }

  /** @param {MouseEvent} event */
  #keepFromBrowser(event) {
    const word = wordAt(event.target);
    if (event.button !== 0 || !word) return;
    event.preventDefault();
    // Taps also arrive as clicks, and a double tap zooms.
    if (this.byMouse && event.detail > 1) this.#markWhole(word, event);
    // The browser would have moved the focus beside selecting.
    if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
  }

  /**
   * Selects a word or a line, for a double or a triple click.
   * @param {Element} word
   * @param {MouseEvent} event
   */
  #markWhole(word, event) {
    this.#letGo();
    this.gestures.drop();
    const caret = event.detail === 2 ? this.#caretAt(event) : null;
    const line = [.../** @type {Element} */ (word.parentElement).querySelectorAll('.word')];
    const [first, last] = caret ? [caret.node, caret.node]
      : [line[0], line[line.length - 1]].map(({ firstChild }) => /** @type {Text} */ (firstChild));
    const text = last.textContent ?? '';
    const [from, to] = caret ? wordAround(text, caret.offset) : [0, text.trimEnd().length];
    getSelection()?.setBaseAndExtent(first, from, last, to);
  }

  /**
   * Whether a pointer means text; null on a page without any, which may show words that nobody has read.
   * @param {PointerEvent} event
   */
  #textAt({ clientX, clientY, pointerType }) {
    if (this.root.dataset.air === 'yes') return false;
    const face = this.layers.faces.find(({ position, over }) =>
      position && distance(over.getBoundingClientRect(), clientX, clientY) === 0);
    if (!face) return false;
    if (!face.text?.lines.length) return null;
    const { x, y, across, down } = placeIn(face, clientX, clientY);
    const reach = pointerType === 'mouse' ? MOUSE_REACH : FINGER_REACH;
    return face.text.lines.some(({ box }) => distance(box, x, y, [across, down]) <= reach);
  }

  /** @param {PointerEvent} event */
  #down(event) {
    if (event.button !== 0 || !onStage(event.target)) return;
    this.#letGo();
    // A second finger means zooming, however long either rests on a word.
    if (!event.isPrimary) return;
    const selection = getSelection();
    this.answers = this.marked;
    const mouse = event.pointerType === 'mouse';
    this.byMouse = mouse;
    const word = wordAt(event.target);
    const extended = this.answers && mouse && event.shiftKey && word ? selection?.anchorNode : null;
    const anchor = extended ? { node: extended, offset: selection?.anchorOffset ?? 0 } : word && this.#caretAt(event);
    if (this.answers && mouse && !extended) selection?.removeAllRanges();
    if (!anchor) return;
    const timer = mouse ? 0 : window.setTimeout(() => this.#rested(/** @type {Element} */ (word)), LONG_PRESS_MS);
    this.press = { id: event.pointerId, x: event.clientX, y: event.clientY, anchor, marks: false, timer };
    if (extended) this.#mark(event);
  }

  #letGo() {
    clearTimeout(this.press?.timer);
    this.press = null;
  }

  /** @param {Element} word */
  #rested(word) {
    const node = word.firstChild;
    if (!this.press || !node || this.marked) return;
    this.#take();
    this.press.anchor = { node, offset: 0 };
    getSelection()?.setBaseAndExtent(node, 0, node, (node.textContent ?? '').trimEnd().length);
  }

  /** From here on the press selects text and does nothing else. */
  #take() {
    this.gestures.drop();
    if (this.press) this.press.marks = true;
  }

  /** @param {PointerEvent} event */
  #move(event) {
    const { press } = this;
    if (!press || press.id !== event.pointerId) return;
    const way = Math.hypot(event.clientX - press.x, event.clientY - press.y);
    if (!press.marks && way < (press.timer ? LONG_PRESS_WAY : MARK_START)) return;
    if (!press.marks && press.timer) {
      this.#letGo();
      return;
    }
    this.#mark(event);
    event.stopPropagation();
  }

  /** @param {PointerEvent} event */
  #up(event) {
    if (this.press?.id === event.pointerId) this.#letGo();
  }

  /** @param {PointerEvent} event */
  #mark(event) {
    const press = /** @type {NonNullable<Selecting['press']>} */ (this.press);
    if (!press.marks) this.#take();
    const here = this.#caretAt(event);
    if (here) getSelection()?.setBaseAndExtent(press.anchor.node, press.anchor.offset, here.node, here.offset);
  }

  /** Where the browser itself selects a word on a long press, the press must not turn a page. */
  #touched() {
    if (!this.gestures.press || this.answers || this.press?.marks || !this.marked) return;
    this.#letGo();
    this.gestures.drop();
  }

  /**
   * The caret position nearest to the pointer.
   * @param {MouseEvent} event
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
    return nearest && caretAt(nearest.face, clientX, clientY);
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
 * A place of the window in a page's own units, and how many CSS pixels one of these takes.
 * @param {Face} face whose text is there
 * @param {number} clientX
 * @param {number} clientY
 */
function placeIn({ box, text }, clientX, clientY) {
  const seen = box.getBoundingClientRect();
  const [across, down] = [seen.width / (text?.width ?? 1), seen.height / (text?.height ?? 1)];
  return { x: (clientX - seen.x) / across, y: (clientY - seen.y) / down, across, down };
}

/**
 * @param {Face} face
 * @param {number} clientX
 * @param {number} clientY
 * @returns {Caret | null}
 */
function caretAt(face, clientX, clientY) {
  const { x, y } = placeIn(face, clientX, clientY);
  const caret = face.text && caretIn(face.text, x, y);
  if (!caret) return null;
  const line = face.box.querySelectorAll('.line')[caret.line];
  const node = line?.querySelectorAll('.word')[caret.word].firstChild;
  return node ? { node, offset: caret.offset } : null;
}

/**
 * The selected parts of words, in reading order.
 * @param {Selection} selection
 * @param {Layers} layers
 * @returns {{face: Face, word: Element, line: Element | null, part: string, from: number, to: number}[]}
 */
export function wordsIn(selection, layers) {
  const range = selection.getRangeAt(0);
  const marked = [];
  for (const face of layers.faces) {
    if (face.over.hidden || !range.intersectsNode(face.over)) continue;
    for (const word of face.over.querySelectorAll('.word')) {
      const node = /** @type {Text} */ (word.firstChild);
      if (!range.intersectsNode(node)) continue;
      const from = node === range.startContainer ? range.startOffset : 0;
      const to = node === range.endContainer ? range.endOffset : node.length;
      if (to > from) marked.push({ face, word, line: word.parentElement, part: node.data.slice(from, to), from, to });
    }
  }
  return marked;
}
