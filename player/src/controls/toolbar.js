import { part } from '../book/dom.js';
import { Folding } from './folding.js';
import { labelOf, pageNamed } from '../book/labels.js';
import { Tips } from './tips.js';
import { say } from '../book/words.js';

/** @typedef {import('../turning/turner.js').Turner} Turner */
/** @typedef {Record<string, () => void>} Commands what the reader can ask for, by name */

const IDLE_MS = 2600;
const IDLE_TOUCH_MS = 4500;

/** Keys of those who read on, whom the bar would hide the end of each page. */
const READS_ON = /^(Arrow|Page| $)/;

/** The bar and the arrows at the sides, shown while the reader is active. */
export class Toolbar {
  /**
   * @param {HTMLElement} root
   * @param {Turner} turner
   * @param {Commands} commands
   */
  constructor(root, turner, commands) {
    this.root = root;
    this.turner = turner;
    this.commands = commands;
    this.timer = 0;
    this.idleTime = IDLE_MS;
    this.cameNow = false;
    this.bar = part(root, '.bar');
    this.box = /** @type {HTMLInputElement} */ (part(root, '.page-box'));
    this.count = part(root, '.page-count');
    this.#wireButtons();
    this.#wireComing();
    this.#wirePageBox();
    this.#wireFullScreen();
    this.#hideCommands();
    this.folding = new Folding(root, this.bar);
    this.tips = new Tips(root);
    this.show();
  }

  /** Shows the bar until the reader has been idle for some time. */
  show() {
    this.root.dataset.idle = 'no';
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => this.#hide(), this.idleTime);
  }

  /** Shows or hides the bar, for a tap on the middle of the book. */
  toggle() {
    if (this.root.dataset.idle === 'yes') this.show();
    else if (!this.cameNow) this.#hide();
  }

  /** Updates everything that depends on the current page. */
  update() {
    const { views, config } = this.turner.book;
    const { current } = this.turner;
    if (document.activeElement !== this.box) this.#writePages();
    if (this.count.textContent !== String(views.pageCount)) this.#writeCount(views.pageCount);
    const atStart = current === 0;
    const atEnd = current === views.count - 1;
    for (const [side, end] of [['left', config.rightToLeft ? atEnd : atStart],
      ['right', config.rightToLeft ? atStart : atEnd]]) {
      for (const button of this.root.querySelectorAll('button[data-turn="' + side + '"]')) {
        /** @type {HTMLButtonElement} */ (button).disabled = Boolean(end);
        /** @type {HTMLElement} */ (button).hidden = views.count === 1;
      }
    }
  }

  /**
   * Sets a toggle button's state.
   * @param {string} name
   * @param {boolean} on
   */
  press(name, on) {
    const attribute = name === 'thumbs' ? 'aria-expanded' : 'aria-pressed';
    part(this.bar, '[data-does="' + name + '"]').setAttribute(attribute, String(on));
  }

  /**
   * @param {string} name
   * @param {boolean} able
   */
  enable(name, able) {
    const button = part(this.bar, '[data-does="' + name + '"]');
    /** @type {HTMLButtonElement} */ (button).disabled = !able;
  }

  /** Focuses the page box. */
  askForPage() {
    this.show();
    this.box.focus();
  }

  toggleFullScreen() {
    const done = document.fullscreenElement
      ? document.exitFullscreen() : document.documentElement.requestFullscreen();
    done.catch(() => {});
  }

  #hide() {
    const used = this.bar.matches(':hover') || this.root.querySelector(
      'dialog.panel[open], .drawer:not([hidden]), :is(.bar *, .arrow, .back, .caption *):focus-visible');
    if (used) {
      this.show();
      return;
    }
    this.root.dataset.idle = 'yes';
    this.tips.hide();
  }

  #wireButtons() {
    const { turner, root } = this;
    const { rightToLeft } = turner.book.config;
    for (const button of root.querySelectorAll('button[data-turn]')) {
      const onward = (/** @type {HTMLElement} */ (button).dataset.turn === 'right') !== rightToLeft;
      button.setAttribute('aria-label', say(onward ? 'next' : 'previous'));
      button.addEventListener('click', () => turner.step(onward ? 1 : -1));
    }
    for (const button of this.bar.querySelectorAll('[data-does]')) this.#wireButton(button);
  }

  /** @param {Element} button */
  #wireButton(button) {
    const { does = '', key } = /** @type {HTMLElement} */ (button).dataset;
    if (key) button.setAttribute('aria-keyshortcuts', key);
    button.addEventListener('click', () => this.commands[does]());
  }

  /**
   * Inserts a button before another.
   * @param {HTMLElement} button
   * @param {string} next name of the other
   */
  add(button, next) {
    part(this.bar, '[data-does="' + next + '"]').before(button);
    this.#wireButton(button);
    this.#hideCommands();
    this.folding.collect();
    this.folding.fit();
  }

  /** Takes away what the publisher does not offer; keys and help follow, and lines between groups that are empty. */
  #hideCommands() {
    const { hidden, download } = this.turner.book.config;
    for (const one of /** @type {NodeListOf<HTMLElement>} */ (this.root.querySelectorAll('[data-does]'))) {
      const { does = '' } = one.dataset;
      if (hidden.includes(does)) one.hidden = true;
      if (does === 'download') one.hidden = !download;
    }
    for (const rule of /** @type {NodeListOf<HTMLElement>} */ (this.bar.querySelectorAll('.rule'))) {
      let next = /** @type {HTMLElement | null} */ (rule.nextElementSibling);
      while (next?.hidden) next = /** @type {HTMLElement | null} */ (next.nextElementSibling);
      rule.hidden = !next || next.matches('.rule');
    }
  }

  /** Shows the bar on pointer and key events; a finger that swipes or scrolls must not cover what it moves. */
  #wireComing() {
    this.root.addEventListener('pointermove', (event) => {
      if (event.pointerType === 'mouse') this.show();
    });
    this.root.addEventListener('pointerdown', (event) => {
      this.idleTime = event.pointerType === 'mouse' ? IDLE_MS : IDLE_TOUCH_MS;
      this.cameNow = this.root.dataset.idle === 'yes';
      const onPages = /** @type {Element} */ (event.target).closest('.stage');
      if (event.pointerType === 'mouse' || !onPages) this.show();
    }, { capture: true });
    window.addEventListener('keydown', ({ key }) => {
      if (!READS_ON.test(key)) this.show();
    }, { capture: true });
    this.root.addEventListener('focusin', () => this.show());
  }

  #wirePageBox() {
    this.box.addEventListener('focus', () => this.box.select());
    this.box.addEventListener('blur', () => this.update());
    this.box.addEventListener('keydown', (event) => {
      if (event.key === 'Escape') this.box.blur();
      if (event.key !== 'Enter') return;
      const page = pageNamed(this.turner.book.config, this.box.value);
      if (page < 1) {
        this.#writePages();
        this.box.select();
        return;
      }
      this.turner.go(this.turner.book.views.viewOf(page));
      this.box.blur();
    });
  }

  #writePages() {
    const { views, config } = this.turner.book;
    const pages = views.pagesOf(this.turner.current);
    this.box.value = pages.map((page) => labelOf(config, page)).join('\u2013');
    // Where pages have labels, screen readers get the position too.
    if (config.labels) part(this.bar, '.of > span').textContent = '(' + pages.join('\u2013') + ' /';
  }

  /** @param {number} pageCount */
  #writeCount(pageCount) {
    const { labels } = this.turner.book.config;
    this.count.textContent = pageCount + (labels ? ')' : '');
    const longest = Math.min(7, Math.max(...[String(pageCount), ...labels ?? []].map((label) => label.length)));
    this.box.style.width = Math.max(4, 2.4 + longest * 1.22) + 'em';
  }

  #wireFullScreen() {
    part(this.bar, '[data-does="full"]').hidden = !document.fullscreenEnabled;
    document.addEventListener('fullscreenchange',
      () => this.press('full', document.fullscreenElement !== null));
  }
}
