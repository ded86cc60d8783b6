import { make } from '../src/book/dom.js';
import { findAnchor, searched } from './noteanchors.js';
import { bringIntoView } from './hits.js';
import { putOver } from './layers.js';
import { BLOCKS } from './notepassages.js';
import { COLOURS } from './notestore.js';
import { rangeIn, setMark } from './readingmarks.js';

/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('./notestore.js').Note} Note */

/** Id of the passage that a link names, which is no note of the reader's. */
export const GUEST = 'guest';

/** Draws highlights and bookmarks over the pages, and highlights in the reading view. */
export class NoteMarks {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./notestore.js').NoteStore} store
   */
  constructor(player, layers, store) {
    this.player = player;
    this.root = player.root;
    this.layers = layers;
    this.store = store;
    /** @type {import('./notepassages.js').Passage | null} what a link names */
    this.guest = null;
    /** Id of a highlight to be brought into view with its page, empty for none. */
    this.wanted = '';
    /** @type {{id: string, range: Range}[]} in the reading view */
    this.ranges = [];
    layers.fillers.push((face) => this.#drawFace(face));
    layers.followers.push(() => this.#drawRibbons());
    const { onRead } = layers;
    layers.onRead = () => {
      onRead();
      this.#drawText();
    };
    this.draw();
  }

  draw() {
    this.layers.faces.forEach((face) => this.#drawFace(face));
    this.#drawRibbons();
    this.#drawText();
  }

  /** What is to be marked: the reader's highlights, and what a link names. */
  get #all() {
    const own = this.store.notes.filter(({ kind }) => kind === 'highlight');
    const { guest } = this;
    return guest ? [...own, { ...guest.anchor, id: GUEST, page: guest.page, colour: GUEST, note: '' }] : own;
  }

  /** @param {Face} face */
  #drawFace({ box, text, position }) {
    box.querySelector('.note-layer')?.remove();
    const notes = this.#all.filter(({ page }) => page === position);
    if (!text || notes.length === 0) return;
    const layer = make('div', 'note-layer');
    layer.setAttribute('aria-hidden', 'true');
    const own = searched(text.string);
    for (const note of notes) {
      const found = findAnchor(own, note);
      const marks = found ? text.boxesOf(found.from, found.to).map(({ box: place, turn }) => {
        const mark = make('i', turn === 90 || turn === 270 ? 'note-mark upright' : 'note-mark');
        Object.assign(mark.dataset, { note: note.id, colour: note.colour });
        putOver(mark, text, place);
        return mark;
      }) : [];
      if (note.note) marks.at(-1)?.classList.add('noted');
      layer.append(...marks);
    }
    // Below the words, which are what the pointer is to reach.
    box.prepend(layer);
    const wanted = this.wanted && layer.querySelector('[data-note="' + CSS.escape(this.wanted) + '"]');
    if (!wanted) return;
    this.wanted = '';
    bringIntoView(wanted, this.player);
  }

  #drawRibbons() {
    for (const { over, position } of this.layers.faces) {
      const marked = this.store.notes.some(({ kind, page }) => kind === 'bookmark' && page === position);
      const ribbon = over.querySelector('.note-ribbon');
      if (!marked) ribbon?.remove();
      else if (!ribbon) over.append(make('span', 'note-ribbon'));
    }
  }

  /** Marks what the reading view has in its document. Its text has no running heads, so pages are found by quotes. */
  #drawText() {
    this.ranges = [];
    const article = this.root.querySelector('.read[open] .read-text');
    if (!article) return;
    const pages = [.../** @type {NodeListOf<HTMLElement>} */ (article.querySelectorAll('[data-page]'))]
      .map(({ dataset }) => Number(dataset.page));
    const notes = this.#all.filter(({ page }) => page >= Math.min(...pages) - 1 && page <= Math.max(...pages) + 1);
    const blocks = notes.length > 0 ? blocksOf(article) : [];
    const text = searched(blocks.map(({ source }) => source).join('\n'));
    for (const note of notes) {
      const found = findAnchor(text, note);
      if (!found) continue;
      for (const { element, source, start } of blocks) {
        const [from, to] = [Math.max(0, found.from - start), Math.min(source.length, found.to - start)];
        if (from < to) this.ranges.push({ id: note.id, range: rangeIn(element, from, to) });
      }
    }
    for (const colour of [...COLOURS, GUEST]) {
      const ids = new Set(notes.filter((note) => note.colour === colour).map(({ id }) => id));
      setMark('note-' + colour, this.ranges.filter(({ id }) => ids.has(id)).map(({ range }) => range));
    }
  }

  /**
   * The highlight at a place of the window, the shortest of several; none: an empty text.
   * @param {number} x
   * @param {number} y
   */
  at(x, y) {
    if (this.root.dataset.reading) return this.#idInText(x, y);
    const ids = this.#elements().filter((mark) => {
      const { left, right, top, bottom } = mark.getBoundingClientRect();
      return x >= left && x <= right && y >= top && y <= bottom;
    }).map(({ dataset }) => dataset.note ?? '');
    return this.#all.filter(({ id }) => ids.includes(id)).sort((a, b) => a.quote.length - b.quote.length)[0]?.id ?? '';
  }

  /**
   * @param {number} x
   * @param {number} y
   */
  #idInText(x, y) {
    const caret = caretAt(x, y);
    return (caret && this.ranges.find(({ range }) => range.isPointInRange(caret.node, caret.offset))?.id) ?? '';
  }

  /**
   * Where a highlight is seen.
   * @param {string} id
   * @returns {DOMRect[]}
   */
  rectsOf(id) {
    if (this.root.dataset.reading) {
      return this.ranges.filter((one) => one.id === id).flatMap(({ range }) => [...range.getClientRects()]);
    }
    return this.#elements().filter(({ dataset }) => dataset.note === id).map((mark) => mark.getBoundingClientRect());
  }

  #elements() {
    return /** @type {HTMLElement[]} */ ([...this.root.querySelectorAll('.over:not([hidden]) .note-mark')]);
  }
}

/** @param {Element} article */
function blocksOf(article) {
  let start = 0;
  return [.../** @type {NodeListOf<HTMLElement>} */ (article.querySelectorAll(BLOCKS))].map((element) => {
    const source = element.textContent ?? '';
    const block = { element, source, start };
    start += source.length + 1;
    return block;
  });
}

/**
 * @param {number} x
 * @param {number} y
 * @returns {{node: Node, offset: number} | null}
 */
function caretAt(x, y) {
  const browser = /** @type {any} */ (document);
  const position = browser.caretPositionFromPoint?.(x, y);
  if (position) return { node: position.offsetNode, offset: position.offset };
  const range = browser.caretRangeFromPoint?.(x, y);
  return range && { node: range.startContainer, offset: range.startOffset };
}
