import { make, part } from '../src/book/dom.js';
import { fullLabel } from '../src/book/labels.js';
import { Hits } from './hits.js';
import { icon } from './icons.js';
import { Results } from './results.js';
import { SearchText } from './searchtext.js';

/** @typedef {import('./searchtext.js').Answer} Answer */

/** Rest after which what was typed counts as searched, in milliseconds. */
const TYPED_MS = 1000;

/** What the search panel finds, and the strip that replaces it where it would cover the book. */
export class Searching {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./data.js').DataFiles} files
   * @param {import('./side.js').SideRoom} room
   * @param {import('./searchpanel.js').SearchPanel} head
   * @param {Promise<unknown>} begun the first part of the text
   */
  constructor(player, layers, files, room, head, begun) {
    const { config, say, root } = player;
    this.say = say;
    this.room = room;
    this.head = head;
    this.box = head.box;
    this.panel = head.panel;
    this.layers = layers;
    this.files = files;
    this.hits = new Hits(player, layers);
    this.seeking = player.seeking;
    this.text = new SearchText(layers.facts.listings);
    /** @type {Promise<unknown> | null} */
    this.begun = begun;
    /** Parts of the text that are loaded. */
    this.loaded = 0;
    /** @type {Promise<void> | null} */
    this.loading = null;
    /** @type {Answer | null} */
    this.answer = null;
    /** Index of the current hit, -1 for none. */
    this.index = -1;
    /** @type {ReturnType<typeof setTimeout> | undefined} */
    this.typing = undefined;
    /** Whether the strip is shown when the panel closes. */
    this.stays = false;
    this.count = make('button', 'strip-count');
    this.strip = make('div', 'search-strip');
    this.#build(root);
    this.results = new Results(make('div', 'results'), (position) => say('page', fullLabel(config, position)),
      layers.facts.language, (index) => this.#show(index));
    this.results.element.setAttribute('aria-labelledby', 'search-title');
    this.panel.body.append(this.results.element);
    this.results.show(null, []);
    this.panel.onHide = () => this.#hidden();
  }

  /**
   * Marks what was found on the pages and on the slider.
   * @param {import('./query.js').Query | null} query
   * @param {import('./searchtext.js').Hit | null} current
   */
  #mark(query, current) {
    this.hits.show(query, current);
    this.seeking.setHits(query && this.answer ? this.answer.hits.map(({ position }) => position) : []);
  }

  /** @param {HTMLElement} root */
  #build(root) {
    this.head.row.append(...this.#steps());
    this.box.addEventListener('keydown', (event) => this.#boxKey(event));
    this.count.setAttribute('type', 'button');
    this.count.addEventListener('click', () => this.panel.show());
    const end = this.#button('close', 'searchEnd', () => this.end());
    this.strip.append(this.count, ...this.#steps(), end);
    this.strip.setAttribute('role', 'group');
    this.strip.setAttribute('aria-label', this.say('search'));
    this.strip.hidden = true;
    part(root, '.toast').before(this.strip);
  }

  /** @returns {HTMLElement[]} buttons for the hits before and after */
  #steps() {
    return [this.#button('up', 'hitBefore', () => this.step(-1)), this.#button('down', 'hitAfter', () => this.step(1))];
  }

  /**
   * @param {'up' | 'down' | 'close'} sign
   * @param {import('../src/player.js').AnyWord} word
   * @param {() => void} act
   */
  #button(sign, word, act) {
    const button = make('button', 'side-button step-' + sign, icon(sign));
    button.setAttribute('type', 'button');
    button.setAttribute('aria-label', this.say(word));
    button.dataset.tip = this.say(word);
    button.addEventListener('click', act);
    return button;
  }

  shown() {
    this.strip.hidden = true;
    this.stays = false;
    this.#load();
    if (this.answer) this.#tell();
  }

  #hidden() {
    if (this.stays) this.strip.hidden = false;
    else this.#mark(null, null);
  }

  /** Removes the marks and the strip. */
  end() {
    this.strip.hidden = true;
    this.#mark(null, null);
    if (this.panel.shown) this.panel.hide();
    else this.room.giveBack();
  }

  /**
   * Marks the words that an address names, without the panel.
   * @param {string} typed
   */
  async mark(typed) {
    this.text.apart = typed;
    this.#find();
    await this.loading;
    const { inView } = this.layers;
    // The address also names a page, on which the reader stays.
    if (!this.answer?.hits.some(({ position }) => inView.includes(position))) return;
    this.step(1);
    this.strip.hidden = this.panel.shown;
  }

  /** Whether all of the text is loaded. */
  get #complete() {
    return this.loaded >= this.layers.facts.searchParts;
  }

  #load() {
    this.loading ??= this.#loadParts().catch(() => this.head.fail()).finally(() => { this.loading = null; });
  }

  /** Loads the text, of which a long book has megabytes: until the reader types, only the first part. */
  async #loadParts() {
    while (!this.#complete && (this.loaded === 0 || this.box.value.trim())) {
      const text = this.begun ?? this.files.load('search/text' + (this.loaded ? '-' + this.loaded : ''));
      this.begun = null;
      await this.text.add(await text);
      this.loaded += 1;
      this.text.complete = this.#complete;
      this.#answer(this.answer);
    }
  }

  /** Searches for what was typed. */
  find() {
    this.#find();
    clearTimeout(this.typing);
    this.typing = setTimeout(() => this.#reportSearch(), TYPED_MS);
  }

  #find() {
    if (!this.#complete) this.#load();
    this.#answer(null);
  }

  /**
   * Shows what is found in the loaded parts of the text.
   * @param {Answer | null} before what is shown of the same search
   */
  #answer(before) {
    if (this.loaded === 0) return;
    this.answer = this.text.find(this.box.value);
    const { query, hits } = this.answer;
    if (before && before.hits.length > 0 && String(before.query.parts) === String(query.parts)) this.results.extend(hits);
    else {
      this.index = -1;
      this.results.show(this.text, hits);
      this.#mark(query, null);
    }
    this.#tell();
  }

  /** Reports what was searched, once all of the text is. */
  async #reportSearch() {
    const typed = this.box.value;
    await this.loading;
    const { query, hits } = this.answer ?? {};
    if (query && !query.empty && this.#complete && typed === this.box.value) this.head.report(typed, hits?.length);
  }

  /** Shows the number of hits and which one is current. */
  #tell() {
    const { hits, more, query } = /** @type {Answer} */ (this.answer);
    /** @param {number} value */
    const written = (value) => value.toLocaleString(document.documentElement.lang + '-u-nu-latn');
    const open = more || !this.#complete;
    const count = written(hits.length) + (open ? '+' : '');
    let text = '';
    if (!query.empty && hits.length === 0) text = this.say(this.#complete ? 'noHits' : 'searchWait');
    else if (this.index >= 0) text = this.say('hitOf', written(this.index + 1), count);
    else if (hits.length > 0) text = this.say('hits', count, open ? 100 : hits.length);
    this.head.status.textContent = text;
    this.count.textContent = text;
    for (const step of this.panel.dialog.querySelectorAll('.step-up, .step-down')) {
      /** @type {HTMLButtonElement} */ (step).disabled = hits.length === 0;
    }
  }

  /**
   * Shows the next or previous hit; the first time, the next one from the pages in view on.
   * @param {1 | -1} way
   */
  step(way) {
    const hits = this.answer?.hits ?? [];
    if (hits.length === 0) return;
    let index = this.index + way;
    if (this.index < 0) {
      const from = this.layers.inView[0];
      const next = hits.findIndex(({ position }) => position >= from);
      index = way > 0 ? Math.max(0, next) : (next < 0 ? hits.length : next) - 1;
    }
    this.#show((index + hits.length) % hits.length);
  }

  /**
   * Shows a hit; a panel that covers the book closes.
   * @param {number} index
   */
  #show(index) {
    const { hits, query } = /** @type {Answer} */ (this.answer);
    this.index = index;
    this.layers.show(hits[index].position);
    this.#mark(query, hits[index]);
    this.results.mark(index);
    this.#tell();
    if (this.room.besideBook || !this.panel.shown) return;
    // The strip leads to the other hits.
    this.stays = true;
    this.panel.hide();
    part(this.strip, '.step-down').focus({ preventScroll: true });
  }

  /** @param {KeyboardEvent} event */
  #boxKey(event) {
    if (event.key === 'ArrowDown') this.results.focus();
    else if (event.key === 'Enter') this.step(event.shiftKey ? -1 : 1);
    else return;
    event.preventDefault();
  }
}
