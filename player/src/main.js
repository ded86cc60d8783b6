import { applyLook } from './book/backdrop.js';
import { Book } from './book/book.js';
import { loadConfiguration } from './book/config.js';
import { make, part } from './book/dom.js';
import { fullLabel, labelOf } from './book/labels.js';
import { addLogo } from './book/logo.js';
import { playEntrance } from './book/opening.js';
import { fileAddress } from './book/values.js';
import { learn, loadTexts, say, setTexts } from './book/words.js';
import { Turner } from './turning/turner.js';
import { Gestures } from './controls/gestures.js';
import { keepKeys, wireKeys } from './controls/keys.js';
import { Memory } from './controls/memory.js';
import { Place, pageInAddress } from './controls/place.js';
import { Reading } from './controls/reading.js';
import { Seeking } from './controls/seeking.js';
import { Slideshow } from './controls/slideshow.js';
import { Sounds } from './controls/sound.js';
import { Toolbar } from './controls/toolbar.js';
import { Zoom } from './controls/zoom.js';
import { ZoomGestures } from './controls/zoomgestures.js';
import { closeByBack } from './panels/covers.js';
import { Drawer } from './panels/drawer.js';
import { Helping } from './panels/helping.js';
import { Menu } from './panels/menu.js';
import { showFailure } from './panels/message.js';
import { Printing } from './panels/printing.js';
import { Sharing } from './panels/sharing.js';
import { Sheets } from './panels/sheets.js';
import { Toast } from './panels/toast.js';
import { Viewing } from './panels/viewing.js';

/**
 * Extensions by other scripts. Each is called with the configuration before any page image is requested, and may return
 * a function to call once the controls have been created.
 */
const extensions = window.folveroExtensions ?? [];

/**
 * What screen readers announce.
 * @param {number[]} pages
 * @param {import('./book/config.js').BookConfig} config
 */
function announcement(pages, config) {
  const labels = pages.map((page) => fullLabel(config, page));
  return say(pages.length > 1 ? 'pagesOf' : 'pageOf', ...labels, config.pages.length);
}

/**
 * Keeps a page in view when the window changes between one page and two.
 * @param {HTMLElement} root
 * @param {Turner} turner
 * @param {Drawer} drawer
 * @param {() => number} page
 * @returns {() => void} lays everything out again when the space for the book has changed
 */
function followWindow(root, turner, drawer, page) {
  const { book } = turner;
  const placeLogo = addLogo(root, book);
  let size = '';
  const fit = () => {
    const now = [root.clientWidth, root.clientHeight, book.beside, book.choice, book.firstAlone, book.tint].join();
    // Observers fire once without a change, which must not cancel a turn in progress.
    if (now === size) return;
    size = now;
    turner.settle();
    book.resize();
    turner.resized();
    turner.stand(book.views.viewOf(page()));
    drawer.lay();
    placeLogo();
  };
  new ResizeObserver(fit).observe(root);
  fit();
  return fit;
}

/**
 * Creates the controls around the book and connects them.
 * @param {HTMLElement} root
 * @param {Turner} turner
 * @param {Sounds} sounds
 * @returns {import('./player.js').Controls}
 */
function addControls(root, turner, sounds) {
  const { book } = turner;
  const { config } = book;
  const pagesInView = () => book.views.pagesOf(turner.current);
  const slideshow = new Slideshow(turner, config.slideInterval, config.loopPlay);
  const drawer = new Drawer(root, book, (page) => turner.go(book.views.viewOf(page)));
  const seeking = new Seeking(root, turner, (page, put) => drawer.give(page, put));
  const sharing = new Sharing(root, () => pagesInView()[0], (page) => labelOf(config, page));
  const sheets = new Sheets(config.pages, pagesInView);
  const printing = new Printing(root, sheets, config, pagesInView);
  const viewing = new Viewing(root, book);
  const helping = new Helping(root);
  const menu = new Menu(root, () => toolbar.folding.folded);
  const toast = new Toast(root);
  /** @type {import('./controls/toolbar.js').Commands} */
  const commands = {
    thumbs: () => drawer.toggle(),
    zoomIn: () => reading.enlarge(),
    zoomOut: () => zoom.out(),
    view: () => viewing.open(),
    night: () => viewing.toggleNight(),
    viewOne: () => viewing.toggle('one'),
    viewTwo: () => viewing.toggle('two'),
    viewWidth: () => viewing.toggle('width'),
    play: () => slideshow.run(!slideshow.running),
    sound: () => {
      sounds.switchTo(!sounds.on);
      toolbar.press('sound', sounds.on);
    },
    full: () => toolbar.toggleFullScreen(),
    share: () => sharing.open(),
    print: () => printing.open(),
    download: () => {
      const link = make('a', '');
      Object.assign(link, { href: fileAddress(config.download), download: document.title + '.pdf' });
      link.click();
    },
    help: () => helping.open(),
    more: () => menu.open(),
    goTo: () => toolbar.askForPage(),
    escape: () => {
      if (drawer.open) drawer.hide();
      else zoom.reset();
    },
  };
  const toolbar = new Toolbar(root, turner, commands);
  wireKeys(root, commands);
  const stage = part(root, '.stage');
  const zoom = new Zoom(book, turner);
  const reading = new Reading(zoom, stage);
  const gestures = new Gestures(book, turner, stage, reading, () => {
    if (drawer.open) drawer.hide();
    else toolbar.toggle();
  });
  new ZoomGestures(reading, stage, () => gestures.drop());
  zoom.onChange = () => toolbar.enable('zoomOut', zoom.active);
  slideshow.onChange = () => toolbar.press('play', slideshow.running);
  slideshow.isHeld = () => root.querySelector('dialog[open]') !== null;
  drawer.onToggle = () => toolbar.press('thumbs', drawer.open);
  return { toolbar, commands, slideshow, drawer, sheets, viewing, seeking, zoom, reading, gestures, toast };
}

/** @param {HTMLElement} root */
async function openBook(root) {
  const config = await loadConfiguration();
  const asked = { page: pageInAddress(), fragment: location.hash };
  // An extension of another version, from the browser's cache, may fail; the book works without it.
  const additions = await Promise.all(extensions.map(async (extend) => {
    try {
      return await extend({ root, config, asked, say, learn });
    } catch (error) {
      console.error(error);
      return undefined;
    }
  }));
  applyLook(root, config);
  const book = new Book(config, root);
  await book.measure();
  const turner = new Turner(book, /** @type {HTMLCanvasElement} */ (part(root, '.leaf')));
  const sounds = new Sounds(config.sound);
  const controls = addControls(root, turner, sounds);
  const { toolbar, slideshow, drawer, viewing, seeking, toast } = controls;
  const memory = new Memory(config.pages.length);
  const left = pageInAddress() ? 0 : memory.page;

  const place = new Place(turner, Math.min(config.pages.length, Math.max(1, pageInAddress() || left)));
  closeByBack(root, place, drawer);
  const back = part(root, '.back');
  back.addEventListener('click', () => history.back());
  turner.onTurn = () => sounds.playTurn();
  turner.onLanded = () => {
    const pages = book.views.pagesOf(turner.current);
    if (place.land()) {
      memory.page = place.page;
      part(root, '.live').textContent = announcement(pages, config);
    }
    back.hidden = !place.left;
    part(back, 'span').textContent = say('backTo', labelOf(config, place.left));
    toolbar.update();
    seeking.update();
    drawer.mark(pages);
    slideshow.wait();
  };
  const relayout = followWindow(root, turner, drawer, () => place.page);
  viewing.onChange = relayout;
  for (const add of additions) add?.({ book, turner, relayout, ...controls });
  const inView = book.views.pagesOf(turner.current);
  await Promise.all(inView.map((shown) => book.images.get(shown).settled));
  root.dataset.state = 'ready';
  part(root, '.live').textContent = announcement(inView, config);
  playEntrance(book.element, config.initialShow);
  if (config.autoPlay) slideshow.run(true);
  if (left > 1) {
    toast.show(say('wasOn', labelOf(config, left)), say('startOver'), () => turner.go(0));
  }
  expose(book, turner, controls);
  giveKeys();
}

/**
 * Exposes the state of the book to pages that embed it and to tests.
 * @param {Book} book
 * @param {Turner} turner
 * @param {import('./player.js').Controls} controls
 */
function expose(book, turner, { drawer, sheets }) {
  Object.defineProperty(window, 'folvero', {
    value: Object.freeze({
      get page() { return book.views.pagesOf(turner.current)[0]; },
      get pages() { return book.views.pagesOf(turner.current); },
      get pageCount() { return book.views.pageCount; },
      get spread() { return book.layout.spread; },
      get turning() { return turner.turning; },
      get imagesKept() { return book.images.kept.size; },
      get drawerImages() { return drawer.thumbnails.imagesKept; },
      get printImages() { return sheets.imagesKept; },
      /** @param {number} page */
      goTo(page) { turner.turnTo(book.views.viewOf(page)); },
    }),
  });
}

const root = /** @type {HTMLElement} */ (document.getElementById('folvero'));
part(root, '.book-title').textContent = document.title;
root.dataset.begun = 'yes';
const giveKeys = keepKeys(root);
loadTexts(LANGUAGES).then(() => {
  learn(PAGE_TEXTS, 'page');
  setTexts(root);
  return openBook(root);
}).catch((error) => showFailure(root, error));
