import { make } from '../src/book/dom.js';

/** @typedef {import('./searchtext.js').Hit} Hit */
/** @typedef {import('./searchtext.js').SearchText} SearchText */

/** Results inserted into the document at a time. */
const AT_A_TIME = 16;

/** How near to its end the list is scrolled when more results come, in CSS pixels. */
const NEAR_END = 600;

/** The list of hits, grouped by page. */
export class Results {
  /**
   * @param {HTMLElement} element
   * @param {(position: number) => string} headingOf
   * @param {string} language of the book, empty where it is not known
   * @param {(index: number) => void} choose
   */
  constructor(element, headingOf, language, choose) {
    this.element = element;
    this.headingOf = headingOf;
    this.choose = choose;
    /** @type {Hit[]} */
    this.hits = [];
    /** @type {SearchText | null} */
    this.text = null;
    /** @type {HTMLElement[]} */
    this.options = [];
    this.active = 0;
    element.setAttribute('role', 'listbox');
    element.tabIndex = 0;
    if (language) element.lang = language;
    element.addEventListener('scroll', () => this.#fill(), { passive: true });
    element.addEventListener('keydown', (event) => this.#key(event));
    element.addEventListener('click', (event) => {
      const option = /** @type {Element} */ (event.target).closest('.result');
      const index = this.options.indexOf(/** @type {HTMLElement} */ (option));
      if (index >= 0) this.choose(index);
    });
  }

  /**
   * @param {SearchText | null} text
   * @param {Hit[]} hits
   */
  show(text, hits) {
    this.text = text;
    this.hits = hits;
    this.options = [];
    this.active = 0;
    this.element.replaceChildren();
    this.element.hidden = hits.length === 0;
    this.element.removeAttribute('aria-activedescendant');
    this.element.scrollTop = 0;
    if (hits.length === 0) return;
    this.#more();
    // The first results appear in this frame, the rest of the visible ones in the next.
    requestAnimationFrame(() => this.#fill());
  }

  /** @param {Hit[]} hits those that are listed, and further ones */
  extend(hits) {
    this.hits = hits;
    this.#fill();
  }

  /**
   * Marks the result that is shown in the book; a negative index marks none.
   * @param {number} index
   */
  mark(index) {
    this.element.querySelector('[aria-selected="true"]')?.setAttribute('aria-selected', 'false');
    if (index < 0) return;
    this.#activate(index);
    this.options[index].setAttribute('aria-selected', 'true');
  }

  focus() {
    if (this.hits.length === 0) return;
    this.element.focus({ preventScroll: true });
    this.#activate(this.active);
  }

  /** @param {number} index */
  #activate(index) {
    while (this.options.length <= index) this.#more();
    this.options[this.active]?.classList.remove('active');
    this.active = index;
    const option = this.options[index];
    option.classList.add('active');
    this.element.setAttribute('aria-activedescendant', option.id);
    option.scrollIntoView({ block: 'nearest' });
  }

  #fill() {
    const { element, options, hits } = this;
    const isNear = () => element.scrollHeight - element.scrollTop - element.clientHeight < NEAR_END;
    while (options.length < hits.length && element.clientHeight > 0 && isNear()) this.#more();
  }

  #more() {
    for (const hit of this.hits.slice(this.options.length, this.options.length + AT_A_TIME)) {
      this.#groupOf(hit.position).append(this.#option(hit));
    }
  }

  /** @param {number} position */
  #groupOf(position) {
    const last = /** @type {HTMLElement | null} */ (this.element.lastElementChild);
    if (last?.dataset.position === String(position)) return last;
    const words = this.headingOf(position);
    const heading = make('div', 'result-page', words);
    heading.setAttribute('role', 'presentation');
    heading.setAttribute('aria-hidden', 'true');
    const group = make('div', 'result-group', heading);
    group.dataset.position = String(position);
    group.setAttribute('role', 'group');
    group.setAttribute('aria-label', words);
    this.element.append(group);
    return group;
  }

  /** @param {Hit} hit */
  #option(hit) {
    const [before, found, behind] = /** @type {SearchText} */ (this.text).excerpt(hit);
    const option = make('div', 'result', before, make('mark', '', found), behind);
    option.id = 'result-' + this.options.length;
    option.dir = 'auto';
    option.setAttribute('role', 'option');
    option.setAttribute('aria-selected', 'false');
    this.options.push(option);
    return option;
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const last = this.hits.length - 1;
    /** @type {Record<string, number>} */
    const targets = {
      ArrowDown: this.active + 1, ArrowUp: this.active - 1, PageDown: this.active + 8, PageUp: this.active - 8,
      Home: 0, End: last,
    };
    if (event.key === 'Enter' || event.key === ' ') this.choose(this.active);
    else if (event.key in targets) this.#activate(Math.min(last, Math.max(0, targets[event.key])));
    else return;
    event.preventDefault();
  }
}
