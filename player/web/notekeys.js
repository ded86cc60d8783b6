import { part } from '../src/book/dom.js';

/** Selects text of the pages by keys, word by word: browsers do that only where text can be edited. */
export class NoteKeys {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {() => void} onDone called when the reader has selected what is to be highlighted
   */
  constructor({ root }, layers, onDone) {
    this.root = root;
    this.layers = layers;
    this.onDone = onDone;
    /** Indices of the words at both ends of what is selected, null: not selecting. */
    this.ends = /** @type {{anchor: number, head: number} | null} */ (null);
    window.addEventListener('keydown', (event) => this.#key(event), { capture: true });
    root.addEventListener('pointerdown', () => this.end(), { capture: true });
    layers.followers.push(() => this.end());
  }

  /** Begins at what a search has found in view, or at the first word. */
  begin() {
    const words = this.#words;
    if (words.length === 0) return;
    const hit = this.root.querySelector('.hit.current')?.getBoundingClientRect();
    const { top, left } = hit ?? { top: 0, left: 0 };
    const at = hit ? this.#nearest(words, left, top + hit.height / 2) : 0;
    this.ends = { anchor: at, head: at };
    this.#select(words);
    // The keys are for the words now, not for what had the focus.
    if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
  }

  /** Gives the keys back; what is selected stays so. */
  end() {
    this.ends = null;
  }

  get #words() {
    const faces = this.layers.faces.filter(({ position, over }) => position && !over.hidden);
    return faces.flatMap(({ over }) => /** @type {HTMLElement[]} */ ([...over.querySelectorAll('.word')]));
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    if (getSelection()?.isCollapsed !== false) this.end();
    const { ends } = this;
    if (!ends || event.ctrlKey || event.metaKey || event.altKey || !this.root.querySelector('.stage')) return;
    if (event.target instanceof Element && event.target.closest('a, button, dialog, input, .note-bar')) return;
    const words = this.#words;
    const right = words[ends.head].closest('[dir="rtl"].line') ? -1 : 1;
    /** @type {Record<string, () => number>} */
    const ways = {
      ArrowRight: () => ends.head + right, ArrowLeft: () => ends.head - right,
      ArrowDown: () => this.#beside(words, ends.head, 1), ArrowUp: () => this.#beside(words, ends.head, -1),
    };
    if (ways[event.key]) {
      const head = Math.min(words.length - 1, Math.max(0, ways[event.key]()));
      this.ends = { anchor: event.shiftKey ? ends.anchor : head, head };
      this.#select(words);
    } else if (event.key === 'Enter') {
      this.end();
      this.onDone();
    } else if (event.key === 'Escape') {
      this.end();
      getSelection()?.removeAllRanges();
    } else return;
    event.preventDefault();
    event.stopImmediatePropagation();
  }

  /** @param {HTMLElement[]} words */
  #select(words) {
    const { anchor, head } = /** @type {NonNullable<NoteKeys['ends']>} */ (this.ends);
    const [first, last] = [words[Math.min(anchor, head)], words[Math.max(anchor, head)]];
    const [start, end] = [first, last].map(({ firstChild }) => /** @type {Text} */ (firstChild));
    getSelection()?.setBaseAndExtent(start, 0, end, end.data.trimEnd().length);
    part(this.root, '.live').textContent = words[head].textContent;
  }

  /**
   * The word above or below another.
   * @param {HTMLElement[]} words
   * @param {number} at
   * @param {1 | -1} way
   */
  #beside(words, at, way) {
    const { left, right } = words[at].getBoundingClientRect();
    const own = words[at].parentElement;
    let next = at;
    while (words[next + way] && words[next].parentElement === own) next += way;
    const line = words[next].parentElement;
    if (line === own) return at;
    const { top, bottom } = words[next].getBoundingClientRect();
    return this.#nearest(words, (left + right) / 2, (top + bottom) / 2, line);
  }

  /**
   * @param {HTMLElement[]} words
   * @param {number} x
   * @param {number} y
   * @param {Element | null} line in which the word is to be, null: in any
   */
  #nearest(words, x, y, line = null) {
    let best = { at: 0, away: Infinity };
    words.forEach((word, at) => {
      if (line && word.parentElement !== line) return;
      const { left, right, top, bottom } = word.getBoundingClientRect();
      const away = Math.max(left - x, 0, x - right) + Math.max(top - y, 0, y - bottom);
      if (away < best.away) best = { at, away };
    });
    return best.at;
  }
}
