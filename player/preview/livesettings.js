import { applyLook } from '../src/book/backdrop.js';
import { part } from '../src/book/dom.js';
import { playEntrance } from '../src/book/opening.js';
import { recall } from '../src/book/storage.js';
import { shownAtOnce } from './atonce.js';

/** @typedef {import('../src/book/config.js').BookConfig} BookConfig */

/** What applyLook() sets where the publisher has chosen an accent. */
const ACCENTS = ['--accent', '--accent-ink', '--accent-text'];

/** @param {BookConfig} before @param {BookConfig} config */
const isLaidAnew = (before, config) => config.firstView !== before.firstView || config.pageColour !== before.pageColour
  || JSON.stringify(config.margins) !== JSON.stringify(before.margins);

/** Shows changed settings in an open book. */
export class LiveSettings {
  /**
   * @param {HTMLElement} root
   * @param {BookConfig} published
   * @param {import('../src/player.js').Parts} parts
   */
  constructor(root, published, parts) {
    this.root = root;
    this.published = published;
    this.parts = parts;
  }

  /** @param {BookConfig} changed */
  apply(changed) {
    const { config } = this.parts.book;
    const before = { ...config };
    Object.assign(config, shownAtOnce(changed, this.published));
    this.#paint(config);
    this.#applyTimes(before, config);
    this.#showButtons(before, config);
    if (isLaidAnew(before, config)) this.#lay(before, config);
    if (config.initialShow !== before.initialShow) playEntrance(this.parts.book.element, config.initialShow);
  }

  /** @param {BookConfig} config */
  #paint(config) {
    const { root, parts: { book } } = this;
    if (!config.accent) for (const name of ACCENTS) root.style.removeProperty(name);
    applyLook(root, config);
    for (const [name, ground] of Object.entries({ outer: config.outer, inner: config.inner })) {
      if (!ground.file) delete part(root, '.' + name).dataset.picture;
    }
    // Readers' own paper hides that of the book.
    if (!book.tint) book.paper = config.pageColour;
    root.style.setProperty('--paper', book.paper);
  }

  /** @param {BookConfig} before @param {BookConfig} config */
  #applyTimes(before, config) {
    const { slideshow } = this.parts;
    Object.assign(slideshow, { interval: config.slideInterval, loop: config.loopPlay });
    if (config.autoPlay !== before.autoPlay) slideshow.run(config.autoPlay);
    else if (config.slideInterval !== before.slideInterval) slideshow.wait();
  }

  /** @param {BookConfig} before @param {BookConfig} config */
  #showButtons(before, config) {
    const { root, parts: { toolbar } } = this;
    const wasHidden = new Set(before.hidden);
    const isHidden = new Set(config.hidden);
    for (const one of /** @type {NodeListOf<HTMLElement>} */ (root.querySelectorAll('[data-does]'))) {
      const { does = '' } = one.dataset;
      if (isHidden.has(does)) one.hidden = true;
      // What was hidden for another reason stays so.
      else if (wasHidden.has(does)) one.hidden = does === 'full' && !document.fullscreenEnabled;
    }
    toolbar.folding.fit();
  }

  /** @param {BookConfig} before @param {BookConfig} config */
  #lay(before, config) {
    const { book, turner, drawer } = this.parts;
    if (config.firstView !== before.firstView && recall('view') === null) {
      book.choice = config.firstView === 'one' || config.firstView === 'two' ? config.firstView : 'auto';
    }
    turner.settle();
    const [page] = book.views.pagesOf(turner.current);
    book.resize();
    turner.resized();
    turner.stand(book.views.viewOf(page));
    drawer.lay();
    // A logo finds its place once its picture is there.
    this.root.querySelector('.logo img')?.dispatchEvent(new Event('load'));
  }
}
