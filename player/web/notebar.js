import { make, part } from '../src/book/dom.js';
import { drawn } from './icons.js';
import { COLOURS } from './notestore.js';

/** @typedef {import('./notestore.js').Colour} Colour */
/** @typedef {'note' | 'copy' | 'link' | 'drop'} Action */
/**
 * What the bar is for: text that is selected, or a highlight.
 * @typedef {object} Subject
 * @property {Colour | ''} colour of a highlight
 * @property {boolean} own whether it is a highlight of the reader's, which can be deleted
 * @property {() => DOMRect[]} rects where it is seen; none: no longer
 */

export const SIGNS = {
  note: 'M5 5.5h14v10h-7l-4 3.5v-3.5H5zM8.5 9h7M8.5 12h4.5',
  copy: 'M9 9h10v10H9zM5 15V5h10',
  link: 'm10 14 4-4M8.7 11.3l-2 2a2.8 2.8 0 0 0 4 4l2-2M15.3 12.7l2-2a2.8 2.8 0 0 0-4-4l-2 2',
  drop: 'M6 7.5h12M10 7V5h4v2M7.5 7.5l.8 11.5h7.4l.8-11.5M10.5 10.5v5.5M13.5 10.5v5.5',
  done: 'm6 12.5 4 4 8-9',
};

/** Room between the bar and what it is for; below it, fingers hold the selection's handles. In CSS pixels. */
const GAP = 10;
const HANDLES = 34;

/** Room to the window's edges, and to its lower one, where the player's bar comes. */
const AIR = 8;
const BAR = 76;

/** How long a sign tells that something was copied, in milliseconds. */
const DONE_MS = 1600;

/** The small bar at text that is selected, and at a highlight. */
export class NoteBar {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {{colour: (colour: Colour) => void, act: (action: Action) => void}} handlers
   */
  constructor({ root, book, toolbar, say }, { colour, act }) {
    this.root = root;
    this.tips = toolbar.tips;
    this.book = book;
    this.say = say;
    /** @type {Subject | null} */
    this.subject = null;
    /** Whether a finger selects. */
    this.byTouch = matchMedia('(pointer: coarse)').matches;
    /** @type {Element | null} what had the focus before */
    this.before = null;
    this.frame = 0;
    this.colours = COLOURS.map((one) => {
      const button = this.#button('note-colour', say('highlightIn', say(one)), () => colour(one));
      button.dataset.colour = one;
      return button;
    });
    this.drop = this.#act('drop', say('deleteNote'), act);
    this.element = make('div', 'note-bar', ...this.colours, make('span', 'note-rule'), this.#act('note', say('note'), act),
      this.#act('copy', say('copyText'), act), this.#act('link', say('copy'), act), this.drop);
    this.element.setAttribute('role', 'toolbar');
    this.element.setAttribute('aria-label', say('markTools'));
    this.element.hidden = true;
    this.element.addEventListener('keydown', (event) => this.#key(event));
    // A press that moved the focus, or ended in the selection's end, would take away what the bar is for.
    this.element.addEventListener('pointerdown', (event) => event.preventDefault());
    this.element.addEventListener('mousedown', (event) => event.preventDefault());
    part(root, '.toast').before(this.element);
    window.addEventListener('keydown', (event) => {
      if (event.key !== 'Escape' || !this.shown || root.querySelector('dialog.panel[open]')) return;
      event.preventDefault();
      event.stopImmediatePropagation();
      this.hide();
    }, { capture: true });
  }

  /**
   * @param {string} className
   * @param {string} name
   * @param {() => void} act
   * @param {...Element} children
   */
  #button(className, name, act, ...children) {
    const button = make('button', className, ...children);
    button.setAttribute('type', 'button');
    button.setAttribute('aria-label', name);
    button.dataset.tip = name;
    button.tabIndex = -1;
    button.addEventListener('click', act);
    return button;
  }

  /**
   * @param {Action} action
   * @param {string} name
   * @param {(action: Action) => void} act
   */
  #act(action, name, act) {
    const button = this.#button('note-act', name, () => act(action), drawn(SIGNS[action]));
    button.dataset.act = action;
    return button;
  }

  get shown() {
    return !this.element.hidden;
  }

  /** @param {Subject} subject */
  show(subject) {
    this.subject = subject;
    for (const button of this.colours) {
      button.setAttribute('aria-pressed', String(button.dataset.colour === subject.colour));
    }
    this.drop.hidden = !subject.own;
    this.element.hidden = false;
    this.#rove(this.#buttons().find((button) => button.getAttribute('aria-pressed') === 'true') ?? this.colours[0]);
    cancelAnimationFrame(this.frame);
    this.#follow();
  }

  hide() {
    if (!this.shown) return;
    cancelAnimationFrame(this.frame);
    const { before } = this;
    const focused = /** @type {HTMLElement} */ (document.activeElement);
    if (this.element.contains(focused)) {
      // Until the next frame a hidden element keeps the focus, and the keys.
      focused.blur();
      if (before instanceof HTMLElement && before.isConnected) before.focus({ preventScroll: true });
    }
    this.element.hidden = true;
    this.subject = null;
  }

  /** Takes the focus, for readers who use keys. */
  focus() {
    if (!this.element.contains(document.activeElement)) this.before = document.activeElement;
    part(this.element, '[tabindex="0"]').focus({ preventScroll: true });
  }

  /**
   * Shows for a moment that something was done.
   * @param {Action} action
   * @param {string} words for readers who hear the page
   */
  done(action, words) {
    const button = part(this.element, '[data-act="' + action + '"]');
    button.replaceChildren(drawn(SIGNS.done));
    part(this.root, '.live').textContent = words;
    setTimeout(() => button.replaceChildren(drawn(SIGNS[action])), DONE_MS);
  }

  /** Stays at what it is for, which moves with the pages. */
  #follow() {
    const rects = this.subject?.rects() ?? [];
    if (rects.length === 0) {
      this.hide();
      return;
    }
    this.#place(rects);
    this.frame = requestAnimationFrame(() => this.#follow());
  }

  /** @param {DOMRect[]} rects */
  #place(rects) {
    const { offsetWidth: width, offsetHeight: height, style } = this.element;
    const { clientHeight } = this.root;
    const { sight } = this.book;
    const top = Math.min(...rects.map((rect) => rect.top));
    const bottom = Math.max(...rects.map((rect) => rect.bottom));
    const [above, below] = [top - GAP - height, bottom + (this.byTouch ? HANDLES : GAP)];
    const lowest = clientHeight - BAR - height;
    const [first, second] = this.byTouch ? [below, above] : [above, below];
    const fits = (/** @type {number} */ y) => y >= AIR && y <= lowest;
    const y = [first, second].find(fits) ?? Math.max(AIR, Math.min(first, lowest));
    const line = y === below ? rects[rects.length - 1] : rects[0];
    const x = Math.max(sight.left + AIR, Math.min((line.left + line.right - width) / 2, sight.right - AIR - width));
    const transform = 'translate(' + Math.round(x) + 'px, ' + Math.round(y) + 'px)';
    if (style.transform === transform) return;
    style.transform = transform;
    // The name of a button would stay where that was.
    this.tips.hide();
  }

  #buttons() {
    return /** @type {HTMLElement[]} */ ([...this.element.querySelectorAll('button:not([hidden])')]);
  }

  /** @param {HTMLElement} button the one that Tab reaches */
  #rove(button) {
    for (const one of this.#buttons()) one.tabIndex = one === button ? 0 : -1;
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const isCommand = event.key.length === 1 && event.key !== ' ';
    if (isCommand || event.ctrlKey || event.metaKey || event.altKey) return;
    // Others, typed here, do not turn pages.
    event.stopPropagation();
    const buttons = this.#buttons();
    const at = buttons.indexOf(/** @type {HTMLElement} */ (document.activeElement));
    const right = document.documentElement.dir === 'rtl' ? -1 : 1;
    /** @type {Record<string, number>} */
    const ways = { ArrowRight: at + right, ArrowLeft: at - right, Home: 0, End: -1 };
    if (!(event.key in ways)) return;
    const next = /** @type {HTMLElement} */ (buttons.at(ways[event.key] % buttons.length));
    this.#rove(next);
    next.focus();
    event.preventDefault();
  }
}
