import { mayFollow } from '../src/book/addresses.js';
import { make } from '../src/book/dom.js';
import { fullLabel, labelOf } from '../src/book/labels.js';
import { loadFile } from '../src/book/values.js';
import { textOfBlock } from './readingblocks.js';

/** @typedef {import('./readingblocks.js').Block} Block */
/** @typedef {import('./readingblocks.js').Run} Run */

/** A bullet or a number before an item of a list. */
const MARKER = /^\s*((?:[^\p{L}\p{N}\s]|\(?[\p{L}\p{N}]{1,3}[.):])(?=\s))\s+/u;

/** How captions begin: the picture is on the page, as its place there is not known. */
const CAPTION =
  /^\s*(?:fig(?:ure|ura|\.)|abb(?:ildung|\.)|afb(?:eelding|\.)|\u56f3|\u56fe|\u0634\u0643\u0644)\s*\d[^]{0,400}$/iu;

/** Points of a figure that are as wide as a letter of the text is high. */
const LETTERS = 10;

/** Letters of the words within a figure that stand for it. */
const WORDS = 300;

/** Blocks that stand together in one element. */
const GROUPS = { item: 'ul', row: 'table', note: 'aside' };

/** Dots that lead to the numbers in contents and indexes. */
const DOTS = /((?:\s*[.\u2026]){5,})/;

/**
 * What may be wider than the text, so that keys scroll it once it has the focus.
 * @param {HTMLElement} element
 */
function scrollable(element) {
  element.tabIndex = 0;
  return element;
}

/** Makes elements of the text's blocks. */
export class Elements {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {(page: number) => void} lead to a page that a link names
   * @param {(page: number) => void} open a page's picture
   */
  constructor({ config, say, sheets }, lead, open) {
    this.config = config;
    this.say = say;
    this.sheets = sheets;
    this.lead = lead;
    this.open = open;
  }

  /**
   * @param {Block[]} blocks
   * @returns {HTMLElement[]}
   */
  of(blocks) {
    /** @type {HTMLElement[]} */
    const elements = [];
    let kind = '';
    let group = make('div', '');
    for (const block of blocks) {
      const element = this.#element(block);
      const name = GROUPS[/** @type {keyof typeof GROUPS} */ (block.kind)];
      if (name && kind !== block.kind) {
        group = make(name, 'read-' + block.kind + 's');
        elements.push(name === 'table' ? scrollable(make('div', 'read-table', group)) : group);
        if (block.rtl) group.dir = 'rtl';
      }
      kind = block.kind;
      if (name) group.append(element);
      else elements.push(element);
    }
    return elements;
  }

  /** @param {Block} block */
  #element(block) {
    if (block.kind === 'picture') return this.#picture(block.page);
    if (block.kind === 'figure' && block.figure) return this.#figure(block, block.figure);
    const element = this.#written(block);
    if (block.rtl) element.dir = 'rtl';
    if (block.begins) (element.querySelector('td') ?? element).prepend(this.#mark(block.page));
    return element;
  }

  /** @param {Block} block */
  #written(block) {
    const { kind, level, runs } = block;
    if (kind === 'heading') return make('h' + Math.min(6, level + 1), '', ...this.#runs(runs, 1));
    if (kind === 'code') return scrollable(make('pre', '', make('code', '', ...this.#runs(runs, 4))));
    if (kind === 'note') return make('p', 'read-note', ...this.#runs(runs));
    if (kind === 'row') return make('tr', '', ...cellsOf(runs).map((cell) => make('td', '', ...this.#runs(cell))));
    if (kind === 'closed') return make('p', 'read-closed', this.say('notOpen'));
    if (kind === 'item') return this.#item(runs);
    const paragraph = make('p', '', ...this.#runs(runs));
    if (CAPTION.test(textOfBlock(block))) paragraph.append(' ', this.#opener(block.page, 'read-see'));
    return paragraph;
  }

  /** @param {(Run | number)[]} runs */
  #item(runs) {
    const [first, ...others] = runs;
    const found = typeof first === 'object' ? MARKER.exec(first.text) : null;
    if (!found || typeof first !== 'object') return make('li', '', ...this.#runs(runs));
    const rest = { ...first, text: first.text.slice(found[0].length) };
    return make('li', '', make('span', 'read-marker', found[1] + ' '), ...this.#runs([rest, ...others]));
  }

  /**
   * @param {(Run | number)[]} runs
   * @param {number} plain styles that all of it has
   */
  #runs(runs, plain = 0) {
    return runs.flatMap((run) => (typeof run === 'number' ? this.#mark(run) : this.#run(run, run.style & ~plain)));
  }

  /**
   * @param {Run} run
   * @param {number} style
   */
  #run({ text, target, style: all }, style) {
    /** @type {(Node | string)[]} */
    let nodes = all & 4 ? [text] : text.split(DOTS).map((part, index) => (index % 2 ? make('span', 'read-dots', part) : part));
    if (style & 4) nodes = [make('code', '', ...nodes)];
    if (style & 2) nodes = [make('i', '', ...nodes)];
    if (style & 1) nodes = [make('b', '', ...nodes)];
    const link = this.#link(target);
    if (!link) return nodes;
    link.append(...nodes);
    return [link];
  }

  /**
   * @param {number | string} target
   * @returns {HTMLElement | null} none for what leads nowhere
   */
  #link(target) {
    const link = /** @type {HTMLAnchorElement} */ (make('a', ''));
    if (typeof target === 'string') {
      if (!mayFollow(target)) return null;
      Object.assign(link, { href: target, target: '_blank', rel: 'noopener noreferrer' });
      return link;
    }
    if (!(target >= 1 && target <= this.config.pages.length)) return null;
    link.href = '#page=' + target;
    link.setAttribute('role', 'link');
    link.addEventListener('click', (event) => {
      event.preventDefault();
      this.lead(target);
    });
    return link;
  }

  /**
   * The number of a page beside the line with which it begins. It is no part of the text.
   * @param {number} page
   */
  #mark(page) {
    const mark = make('span', 'read-page');
    mark.dataset.page = String(page);
    mark.dataset.label = labelOf(this.config, page);
    mark.setAttribute('aria-hidden', 'true');
    return mark;
  }

  /** @param {number} page */
  #picture(page) {
    const { path, width, height } = this.config.pages[page - 1];
    const image = /** @type {HTMLImageElement} */ (make('img', ''));
    loadFile(image, path);
    Object.assign(image, { width, height, decoding: 'async', alt: '' });
    // Its room is there before the picture.
    image.style.width = 'calc(82vh * ' + width / height + ')';
    const button = this.#opener(page, 'read-picture');
    button.append(image);
    return make('figure', '', this.#mark(page), button);
  }

  /**
   * A part of a page's picture, with its caption.
   * @param {Block} block
   * @param {import('./readingblocks.js').Figure} figure
   */
  #figure(block, figure) {
    const { page, runs } = block;
    const { alternative, words, x, y, width, height, points, ratio, images } = figure;
    const button = make('button', images ? 'read-crop' : 'read-crop read-drawn');
    const caption = textOfBlock(block);
    const name = alternative || caption || this.say('figureOn', fullLabel(this.config, page));
    button.setAttribute('type', 'button');
    button.setAttribute('aria-label', alternative || !words ? name : name + '. ' + words.slice(0, WORDS));
    button.addEventListener('click', () => this.open(page));
    // Its letters are about as large as those of the text.
    button.style.width = 'min(' + (points / LETTERS).toFixed(2) + 'em, ' + (80 * ratio).toFixed(1) + 'vh)';
    button.style.aspectRatio = ratio.toFixed(4);
    const place = { width: percent(1 / width), left: percent(-x / width), top: percent(-y / height) };
    button.append(this.#crop(page, place));
    const mark = block.begins ? [this.#mark(page)] : [];
    const text = make('p', '', ...this.#runs(runs));
    if (block.rtl) text.dir = 'rtl';
    return make('figure', 'read-figure', ...mark, button, ...(caption ? [make('figcaption', '', text)] : []));
  }

  /**
   * The picture of a page, and the larger one where this shows too few pixels.
   * @param {number} page
   * @param {Record<'width' | 'left' | 'top', string>} place
   */
  #crop(page, place) {
    const { path } = this.config.pages[page - 1];
    const image = /** @type {HTMLImageElement} */ (make('img', ''));
    /** @param {HTMLImageElement} shown */
    const dress = (shown) => {
      shown.alt = '';
      Object.assign(shown.style, place);
    };
    dress(image);
    Object.assign(image, { loading: 'lazy', decoding: 'async' });
    image.addEventListener('load', async () => {
      const { width } = image.getBoundingClientRect();
      if (path.endsWith('.js') || image.naturalWidth >= width * devicePixelRatio) return;
      const larger = await this.sheets.load(page, 1).catch(() => null);
      if (!larger || !image.isConnected) return;
      dress(larger);
      image.replaceWith(larger);
    }, { once: true });
    loadFile(image, path);
    return image;
  }

  /**
   * A button that shows a page's picture.
   * @param {number} page
   * @param {string} className
   */
  #opener(page, className) {
    const button = make('button', className);
    button.setAttribute('type', 'button');
    // Its label is no part of the text.
    button.dataset.label = this.say('showPage', fullLabel(this.config, page));
    button.setAttribute('aria-label', button.dataset.label);
    button.addEventListener('click', () => this.open(page));
    return button;
  }
}

/** @param {number} share */
function percent(share) {
  return (100 * share).toFixed(3) + '%';
}

/**
 * The runs of each cell of a table's row.
 * @param {(Run | number)[]} runs
 */
function cellsOf(runs) {
  /** @type {(Run | number)[][]} */
  const cells = [[]];
  for (const run of runs) {
    const texts = typeof run === 'number' ? [] : run.text.split('\t');
    if (typeof run === 'number') cells[cells.length - 1].push(run);
    texts.forEach((text, index) => {
      if (index > 0) cells.push([]);
      if (text && typeof run === 'object') cells[cells.length - 1].push({ ...run, text });
    });
  }
  return cells;
}
