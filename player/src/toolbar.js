/** @typedef {import('./turner.js').Turner} Turner */
/** @typedef {import('./slideshow.js').Slideshow} Slideshow */
/** @typedef {import('./sound.js').Sounds} Sounds */

const IDLE_MS = 2600;

/** The bar and the arrows at the sides: they come with the pointer and go when it rests. */
export class Toolbar {
  /**
   * @param {HTMLElement} root
   * @param {Turner} turner
   * @param {Slideshow} slideshow
   * @param {Sounds} sounds
   */
  constructor(root, turner, slideshow, sounds) {
    this.root = root;
    this.turner = turner;
    this.slideshow = slideshow;
    this.sounds = sounds;
    this.timer = 0;
    this.bar = this.#find('.bar');
    this.box = /** @type {HTMLInputElement} */ (this.#find('.page-box'));
    this.#wire();
    this.show();
  }

  /** Shows the bar until the reader has been idle for a while. */
  show() {
    this.root.dataset.idle = 'no';
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => this.#hide(), IDLE_MS);
  }

  /** What a tap on the middle of the book does. */
  toggle() {
    if (this.root.dataset.idle === 'no') this.#hide();
    else this.show();
  }

  /** Follows the shown page. */
  update() {
    const { views, config } = this.turner.book;
    const { current } = this.turner;
    const pages = views.pagesOf(current);
    if (document.activeElement !== this.box) this.box.value = pages.join('\u2013');
    this.#find('.page-count').textContent = String(views.pageCount);
    const atStart = current === 0;
    const atEnd = current === views.count - 1;
    for (const [side, end] of [['left', config.rightToLeft ? atEnd : atStart],
      ['right', config.rightToLeft ? atStart : atEnd]]) {
      for (const button of this.root.querySelectorAll('[data-turn="' + side + '"]')) {
        /** @type {HTMLButtonElement} */ (button).disabled = Boolean(end);
      }
    }
    const share = views.count > 1 ? current / (views.count - 1) : 1;
    this.bar.style.setProperty('--read', String(share));
  }

  #hide() {
    const inUse = this.bar.matches(':focus-within') && this.bar.querySelector(':focus-visible');
    if (inUse || this.bar.matches(':hover')) this.show();
    else this.root.dataset.idle = 'yes';
  }

  /**
   * @param {string} selector
   * @returns {HTMLElement}
   */
  #find(selector) {
    return /** @type {HTMLElement} */ (this.root.querySelector(selector));
  }

  #wire() {
    const { turner, root } = this;
    const { rightToLeft } = turner.book.config;
    for (const button of root.querySelectorAll('[data-turn]')) {
      const onward = (/** @type {HTMLElement} */ (button).dataset.turn === 'right') !== rightToLeft;
      button.setAttribute('aria-label', onward ? 'Next page' : 'Previous page');
      button.setAttribute('title', onward ? 'Next page' : 'Previous page');
      button.addEventListener('click', () => turner.step(onward ? 1 : -1));
    }
    root.addEventListener('pointermove', (event) => {
      if (event.pointerType === 'mouse') this.show();
    });
    window.addEventListener('keydown', () => this.show());
    this.bar.addEventListener('focusin', () => this.show());
    this.#wirePageBox();
    this.#wireSwitch('.play', () => this.slideshow.run(!this.slideshow.running));
    this.#wireSwitch('.sound', () => {
      this.sounds.switchTo(!this.sounds.on);
      this.#press('.sound', this.sounds.on);
    });
    this.#press('.sound', true);
    this.slideshow.onChange = () => this.#press('.play', this.slideshow.running);
    this.#wireFullScreen();
  }

  #wirePageBox() {
    this.box.addEventListener('focus', () => this.box.select());
    this.box.addEventListener('blur', () => this.update());
    this.box.addEventListener('keydown', (event) => {
      if (event.key === 'Escape') this.box.blur();
      if (event.key !== 'Enter') return;
      const page = Number.parseInt(this.box.value, 10);
      if (page > 0) this.turner.go(this.turner.book.views.viewOf(page));
      this.box.blur();
    });
  }

  #wireFullScreen() {
    const button = this.#find('.full');
    button.hidden = !document.fullscreenEnabled;
    this.#wireSwitch('.full', () => {
      const done = document.fullscreenElement
        ? document.exitFullscreen() : document.documentElement.requestFullscreen();
      done.catch(() => {});
    });
    document.addEventListener('fullscreenchange',
      () => this.#press('.full', document.fullscreenElement !== null));
  }

  /**
   * @param {string} selector
   * @param {() => void} action
   */
  #wireSwitch(selector, action) {
    this.#find(selector).addEventListener('click', action);
  }

  /**
   * @param {string} selector
   * @param {boolean} pressed
   */
  #press(selector, pressed) {
    this.#find(selector).setAttribute('aria-pressed', String(pressed));
  }
}
