import { make, part } from '../src/book/dom.js';
import { drawn } from './icons.js';

/** How long the strip stays after the last zooming, in milliseconds. */
const STAY_MS = 2600;

/** Rest after which the figure is announced to readers who hear the page, in milliseconds. */
const REST_MS = 500;

const SIGNS = {
  zoomOut: 'M6.5 12h11', zoomIn: 'M6.5 12h11M12 6.5v11',
  viewWidth: 'M4 6v12M20 6v12M7 12h10M9.5 9.5 7 12l2.5 2.5M14.5 9.5 17 12l-2.5 2.5', fitPage: 'M7 4.5h10v15H7zM12 8v8M9.8 10 12 7.8l2.2 2.2M9.8 14l2.2 2.2 2.2-2.2',
};

/** The strip with the zoom's figure, and with the two ways to fit: the whole width, and whole pages. */
export class ZoomStrip {
  /** @param {import('../src/player.js').Player} player */
  constructor(player) {
    const { root, zoom, commands, say } = player;
    this.player = player;
    this.rest = 0;
    this.timer = 0;
    this.figure = make('span', 'zoom-figure');
    this.element = make('div', 'zoom-strip', this.#button('zoomOut', '-', () => commands.zoomOut()), this.figure,
      this.#button('zoomIn', '+', () => commands.zoomIn()), make('span', 'zoom-rule'),
      this.#button('viewWidth', 'W', () => commands.viewWidth()), this.#button('fitPage', '0', () => this.#fitPage()));
    this.element.setAttribute('role', 'group');
    this.element.setAttribute('aria-label', say('zoom'));
    this.element.hidden = true;
    part(root, '.toast').before(this.element);
    const { onChange } = zoom;
    zoom.onChange = () => {
      onChange();
      this.#follow();
    };
    const { viewWidth } = commands;
    commands.viewWidth = () => {
      const enlarged = zoom.active;
      zoom.reset();
      // Pages that are as wide as the window are so again; the key would else choose another view.
      if (!enlarged || player.book.choice !== 'width') viewWidth();
    };
    window.addEventListener('keydown', (event) => this.#key(event), { capture: true });
    this.#follow();
  }

  /**
   * @param {keyof typeof SIGNS} name
   * @param {string} key
   * @param {() => void} act
   */
  #button(name, key, act) {
    const { say, config } = this.player;
    const button = make('button', 'zoom-' + name, drawn(SIGNS[name]));
    button.setAttribute('type', 'button');
    button.hidden = config.hidden.includes(name);
    button.setAttribute('aria-label', say(name));
    button.setAttribute('aria-keyshortcuts', key);
    Object.assign(button.dataset, { tip: say(name) });
    button.addEventListener('click', act);
    return button;
  }

  /** Shows the zoom's figure while pages are enlarged. */
  #follow() {
    const { zoom, root, say } = this.player;
    clearTimeout(this.rest);
    clearTimeout(this.timer);
    const figure = zoom.level.toLocaleString(document.documentElement.lang + '-u-nu-latn', { style: 'percent' });
    this.figure.textContent = figure;
    const shown = zoom.active || zoom.level !== 1;
    this.element.hidden = !shown;
    if (!shown) return;
    this.element.classList.add('fresh');
    this.timer = window.setTimeout(() => this.element.classList.remove('fresh'), STAY_MS);
    this.rest = window.setTimeout(() => { part(root, '.live').textContent = say('zoom') + ' ' + figure; }, REST_MS);
  }

  /** Whole pages, also where they lie at the window's width. */
  #fitPage() {
    const { zoom, book, viewing } = this.player;
    zoom.reset();
    if (!book.layout.scrolls) return;
    if (book.choice === 'width') viewing.toggle('width');
    // Tall pages, and those of phones on their side, are at the window's width of themselves.
    if (book.layout.scrolls) viewing.toggle('one');
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const { player: { zoom, book, root } } = this;
    if (event.key !== '0' || event.ctrlKey || event.altKey || event.metaKey || zoom.active || !book.layout.scrolls) return;
    if (event.target instanceof Element && event.target.closest('input, textarea, dialog[open]')) return;
    if (root.dataset.reading) return;
    event.preventDefault();
    event.stopImmediatePropagation();
    this.#fitPage();
  }
}
