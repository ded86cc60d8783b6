import { paintGround, paintWindow } from './backdrop.js';
import { Book } from './book.js';
import { BookError, loadConfiguration } from './config.js';
import { Gestures } from './gestures.js';
import { bringIn } from './opening.js';
import { Slideshow } from './slideshow.js';
import { Sounds } from './sound.js';
import { Toolbar } from './toolbar.js';
import { Turner } from './turner.js';
import { Zoom } from './zoom.js';
import { ZoomGestures } from './zoomgestures.js';

/** @typedef {import('./config.js').BookConfig} BookConfig */

/**
 * @param {HTMLElement} root
 * @param {string} selector
 * @returns {HTMLElement}
 */
function part(root, selector) {
  return /** @type {HTMLElement} */ (root.querySelector(selector));
}

/** Page that the address asks for, 0 when it asks for none. */
function pageInAddress() {
  const match = /(?:^#|&)page=(\d+)/.exec(location.hash);
  return match ? Number(match[1]) : 0;
}

/** @param {number} page */
function putPageInAddress(page) {
  try {
    history.replaceState(null, '', '#page=' + page);
  } catch {
    // Some viewers of local files forbid it; the book works without.
  }
}

/**
 * @param {HTMLElement} root
 * @param {unknown} error
 */
function tellReader(root, error) {
  const known = error instanceof BookError ? error : new BookError('This book could not be opened',
    'Something unexpected went wrong. (' + error + ')');
  part(root, '.message h1').textContent = known.message;
  part(root, '.message p').textContent = known.detail;
  part(root, '.message').hidden = false;
  root.dataset.state = 'error';
}

/**
 * @param {HTMLElement} root
 * @param {BookConfig} config
 */
function dress(root, config) {
  paintGround(part(root, '.outer'), config.outer);
  paintGround(part(root, '.inner'), config.inner);
  paintWindow(root, config.windowColour);
  root.style.setProperty('--paper', config.pageColour);
  root.dataset.bar = config.hideBar ? 'no' : 'yes';
  const caption = part(root, '.caption');
  if (/^https?:\/\//i.test(config.caption)) {
    const link = document.createElement('a');
    link.href = config.caption;
    link.textContent = config.caption.replace(/^https?:\/\/|\/$/gi, '');
    link.rel = 'noopener';
    link.target = '_blank';
    caption.replaceChildren(link);
  } else {
    caption.textContent = config.caption;
  }
}

/**
 * Keeps a page in view when the window changes between one page and two.
 * @param {HTMLElement} root
 * @param {Book} book
 * @param {Turner} turner
 * @param {() => number} page
 */
function followWindow(root, book, turner, page) {
  const fit = () => {
    book.resize();
    turner.resized();
    turner.stand(book.views.viewOf(page()));
  };
  new ResizeObserver(fit).observe(root);
  fit();
}

/** @param {HTMLElement} root */
async function openBook(root) {
  const config = await loadConfiguration();
  dress(root, config);
  const book = new Book(config, root);
  await book.measure();
  const turner = new Turner(book, /** @type {HTMLCanvasElement} */ (part(root, '.leaf')));
  const sounds = new Sounds(config.sound);
  const slideshow = new Slideshow(turner, config.slideInterval, config.loopPlay);
  const toolbar = new Toolbar(root, turner, slideshow, sounds);
  const zoom = new Zoom(book, turner);
  const stage = part(root, '.stage');
  const gestures = new Gestures(book, turner, stage, zoom, () => toolbar.toggle());
  new ZoomGestures(zoom, stage, () => gestures.drop());

  let page = Math.min(config.pages.length, Math.max(1, pageInAddress()));
  turner.onTurn = () => sounds.playTurn();
  turner.onLanded = () => {
    const pages = book.views.pagesOf(turner.current);
    if (!pages.includes(page)) {
      page = pages[0];
      putPageInAddress(page);
      part(root, '.live').textContent = 'Page ' + pages.join(' and ');
    }
    toolbar.update();
    slideshow.wait();
  };
  followWindow(root, book, turner, () => page);
  window.addEventListener('hashchange', () => {
    if (pageInAddress() > 0) turner.go(book.views.viewOf(pageInAddress()));
  });
  await Promise.all(book.views.pagesOf(turner.current).map((shown) => book.images.get(shown).settled));
  root.dataset.state = 'ready';
  bringIn(book.element, config.initialShow);
  if (config.autoPlay) slideshow.run(true);
  expose(book, turner);
}

/**
 * State of the book for whoever embeds or tests it.
 * @param {Book} book
 * @param {Turner} turner
 */
function expose(book, turner) {
  Object.defineProperty(window, 'folvero', {
    value: Object.freeze({
      get page() { return book.views.pagesOf(turner.current)[0]; },
      get pages() { return book.views.pagesOf(turner.current); },
      get pageCount() { return book.views.pageCount; },
      get spread() { return book.layout.spread; },
      get turning() { return turner.turning; },
      get imagesKept() { return book.images.kept.size; },
      /** @param {number} page */
      goTo(page) { turner.go(book.views.viewOf(page)); },
    }),
  });
}

const root = /** @type {HTMLElement} */ (document.getElementById('folvero'));
openBook(root).catch((error) => tellReader(root, error));
