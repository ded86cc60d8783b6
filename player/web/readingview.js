import { make, part } from '../src/book/dom.js';
import { fullLabel } from '../src/book/labels.js';
import { keyOf } from '../src/controls/keys.js';
import { pageInAddress } from '../src/controls/place.js';
import { drawn, icon } from './icons.js';
import { ReadAloud } from './readaloud.js';
import { Elements } from './readingelements.js';
import { Flow } from './readingflow.js';
import { SIZES, endOffers, mayOffer, storeLooks, storedLooks } from './readinglooks.js';
import { Marks } from './readingmarks.js';
import { LooksPanel } from './readingpanel.js';
import { ReadingHistory } from './readinghistory.js';

/** Room between the bar and what is shown at the top, in CSS pixels. */
const AIR = 8;

/** Pause after scrolling when the book behind follows, in milliseconds. */
const REST = 300;

/** How far a scroll goes until the bar follows it, in CSS pixels. */
const SCROLLED = 8;

const BOOK = 'M12 7.5c-2.4-1.6-5-1.6-7.5-.8v11c2.5-.8 5.1-.8 7.5.8 2.4-1.6 5-1.6 7.5-.8v-11c-2.5-.8-5.1-.8-7.5.8zm0 0v11';

const SPEAKER = 'M5 9.8v4.4h3l4 3.6V6.2L8 9.8zM15.2 9.2a4 4 0 0 1 0 5.6M17.8 6.8a7.4 7.4 0 0 1 0 10.4';
const PAUSE = 'M9 6.5v11M15 6.5v11';

/** Commands whose keys work in the reading view as in the book. */
const ALSO_HERE = ['contents', 'search', 'bookmark', 'notes', 'mark', 'keep', 'full', 'share', 'print', 'help', 'sound'];

/** The text of the book as a page to scroll, in the reader's own letters. */
export class ReadingView {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./data.js').DataFiles} files
   * @param {import('./side.js').SideRoom} room
   * @param {HTMLElement} button in the bar
   */
  constructor(player, layers, files, room, button) {
    const { root, say } = player;
    this.player = player;
    this.layers = layers;
    this.room = room;
    this.button = button;
    this.looks = storedLooks();
    this.isOpen = false;
    /** Page at the top of the view. */
    this.page = 1;
    /** @type {HTMLElement | null} the note that offers the view */
    this.offered = null;
    /** @type {Element | null} what had the focus before */
    this.before = null;
    this.timer = 0;
    this.lastTop = 0;
    /** @type {Promise<void>} resolves when what was asked for last is shown */
    this.arrived = Promise.resolve();
    /** Whether the text of the page that was asked for last is still to come. */
    this.waits = false;
    this.article = make('article', 'read-text');
    this.scroller = make('div', 'read-scroll', this.article);
    this.dialog = /** @type {HTMLDialogElement} */ (make('dialog', 'read'));
    this.where = make('span', 'read-where');
    const opener = this.#button('read-tool read-opener', 'looks', icon('reading'));
    this.panel = new LooksPanel(say, opener, this.looks, () => this.#dress(true));
    this.speaker = this.#button('read-tool read-speaker', 'readAloud', drawn(SPEAKER));
    this.speaker.dataset.key = 'R';
    this.speaker.setAttribute('aria-keyshortcuts', 'R');
    this.speaker.addEventListener('click', () => this.aloud.toggle());
    this.bar = this.#makeBar(opener);
    this.#build();
    const elements = new Elements(player, (page) => this.#lead(page), (page) => this.close(page));
    const load = (/** @type {number} */ part) => files.load('reading/text-' + (part + 1));
    this.flow = new Flow(this.scroller, this.article, layers.facts, load, ({ blocks }) => {
      this.article.dir ||= blocks.filter(({ rtl }) => rtl).length * 2 > blocks.length ? 'rtl' : 'ltr';
      return elements.of(blocks);
    });
    this.flow.onFilled = () => this.#filled();
    this.flow.onFailed = () => player.toast.show(say('searchFailed'), say('tryAgain'), () => this.#goTo(this.page));
    this.marks = new Marks(this.article);
    this.aloud = new ReadAloud(this.flow, layers.facts.language, () => this.#tellAloud());
    this.#tellAloud();
    /** @type {Range | null} */
    this.hit = null;
    this.history = new ReadingHistory(this);
    part(root, '.drawer').before(this.dialog);
    this.#wire();
    const { show, onMarked } = layers;
    layers.show = (page, title) => (this.isOpen ? this.#lead(page, title) : show(page, title));
    layers.onMarked = () => {
      onMarked();
      if (this.isOpen) this.#showMarked();
    };
    const { escape } = player.commands;
    player.commands.escape = () => (this.isOpen && !room.open ? this.close() : escape());
  }

  /** @param {HTMLElement} opener of the panel */
  #makeBar(opener) {
    const { say, commands } = this.player;
    const back = this.#button('read-back', 'readingBack', drawn(BOOK));
    back.append(make('span', '', say('readingBack')));
    back.addEventListener('click', () => this.close());
    const tools = make('div', 'read-tools');
    for (const name of /** @type {const} */ (['contents', 'search'])) {
      if (!commands[name]) continue;
      const tool = this.#button('read-tool', name, icon(name));
      tool.addEventListener('click', () => commands[name]());
      tools.append(tool);
    }
    tools.append(this.speaker, opener);
    return make('header', 'read-bar', back, this.where, tools, this.panel.element);
  }

  #build() {
    const { article, scroller, dialog } = this;
    const { say } = this.player;
    scroller.tabIndex = 0;
    scroller.setAttribute('role', 'document');
    const { language } = this.layers.facts;
    if (language) article.lang = language;
    article.append(make('p', 'read-title', document.title));
    for (const element of [dialog, scroller, article]) element.setAttribute('aria-label', say('reading'));
    dialog.append(this.bar, scroller);
  }

  /**
   * @param {string} className
   * @param {import('../src/player.js').AnyWord} word
   * @param {Element} sign
   */
  #button(className, word, sign) {
    const button = make('button', className, sign);
    button.setAttribute('type', 'button');
    button.setAttribute('aria-label', this.player.say(word));
    button.dataset.tip = this.player.say(word);
    return button;
  }

  #wire() {
    const { scroller, dialog, panel } = this;
    scroller.addEventListener('scroll', () => this.#scrolled(), { passive: true });
    scroller.addEventListener('pointerdown', () => panel.show(false));
    dialog.addEventListener('close', () => this.closed());
    dialog.addEventListener('cancel', (event) => {
      // Going back on phones closes first what lies over the text.
      if (this.room.open || this.player.root.querySelector('dialog.panel[open]')) event.preventDefault();
    });
    window.addEventListener('keydown', (event) => this.#key(event), { capture: true });
    matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () => this.#dress());
    new ResizeObserver(() => this.#resized()).observe(scroller);
  }

  toggle() {
    if (this.isOpen) this.close();
    else this.open();
  }

  open() {
    const { root, turner } = this.player;
    turner.settle();
    this.isOpen = true;
    this.before = document.activeElement;
    this.offered?.remove();
    root.dataset.reading = 'yes';
    this.#dress();
    this.dialog.show();
    this.scroller.focus({ preventScroll: true });
    this.history.enter();
    const pages = this.layers.inView;
    const [page] = pages.includes(pageInAddress()) ? [pageInAddress()] : pages;
    this.flow.top = this.bar.offsetHeight + AIR;
    this.showBar(true);
    const { held } = this.flow;
    if (held && pages.includes(held.page)) this.flow.resume();
    else this.#goTo(page);
  }

  /** @param {number} page to which the reader returns, 0: that at the top */
  close(page = 0) {
    if (!this.isOpen) return;
    this.#note();
    if (page) this.page = page;
    this.history.leave(() => {
      this.dialog.close();
      this.closed();
    });
  }

  /** The button is there where voices are. */
  #tellAloud() {
    const { aloud, speaker, player: { say } } = this;
    const word = say(aloud.on ? 'readPause' : 'readAloud');
    speaker.hidden = !aloud.able;
    speaker.setAttribute('aria-label', word);
    speaker.dataset.tip = word;
    speaker.replaceChildren(drawn(aloud.on ? PAUSE : SPEAKER));
    if (this.isOpen) this.showBar(true);
  }

  /** The book shows again, at the page where the reader was. */
  closed() {
    if (!this.isOpen) return;
    this.isOpen = false;
    clearTimeout(this.timer);
    this.aloud.stop();
    this.panel.show(false);
    delete this.player.root.dataset.reading;
    this.#follow();
    this.history.left();
    const { before } = this;
    const focused = before instanceof HTMLElement && before !== document.body && before.isConnected;
    if (focused) before.focus({ preventScroll: true });
    else /** @type {HTMLElement | null} */ (document.activeElement)?.blur();
  }

  /**
   * Leads to a page from a link, the contents or a search; Back leads back.
   * @param {number} page
   * @param {string} title
   */
  #lead(page, title = '') {
    this.#follow();
    if (page !== this.page) this.history.jump(page);
    this.#goTo(page, title);
    if (this.room.open && !this.room.besideBook) return;
    if (!this.room.open) this.scroller.focus({ preventScroll: true });
  }

  /**
   * @param {number} page
   * @param {string} title
   */
  #goTo(page, title = '') {
    this.page = page;
    this.waits = true;
    const arrived = this.flow.showPage(page, title).finally(() => {
      if (this.arrived === arrived) this.waits = false;
    }).then(() => {
      this.showBar(true);
      this.#scrolled();
    }, () => this.flow.onFailed());
    this.arrived = arrived;
    return arrived;
  }

  /**
   * A page that the address names now.
   * @param {number} page
   */
  addressed(page) {
    if (page >= 1 && page <= this.player.config.pages.length && page !== this.page) this.#goTo(page);
  }

  async #showMarked() {
    await this.arrived;
    const { query, current } = this.layers.marked;
    this.hit = query && current ? this.marks.find(query, current.position, current.ordinal) ?? null : null;
    this.#mark();
    if (this.hit) this.flow.bring(this.hit, this.scroller.clientHeight / 4);
  }

  #filled() {
    this.#mark();
    this.#tell();
    this.layers.onRead();
  }

  #mark() {
    this.marks.showHits(this.layers.marked.query, this.hit);
  }

  #scrolled() {
    if (!this.isOpen) return;
    const { scroller: { scrollTop }, flow: { moved, top } } = this;
    const way = scrollTop - moved - this.lastTop;
    if (Math.abs(way) > SCROLLED) this.showBar(way < 0 || scrollTop < top);
    this.#note();
    this.#tell();
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => this.#follow(), REST);
  }

  /** @param {boolean} shown */
  showBar(shown) {
    const used = !this.panel.element.hidden || this.aloud.on || this.bar.querySelector(':focus-visible');
    this.dialog.dataset.calm = shown || used ? 'no' : 'yes';
    this.lastTop = this.scroller.scrollTop - this.flow.moved;
  }

  /** Notes where the reader is. */
  #note() {
    this.flow.note();
    if (!this.waits) this.page = this.flow.held?.page ?? this.page;
  }

  #tell() {
    const { config, say } = this.player;
    const words = say('pageOf', fullLabel(config, this.page), config.pages.length);
    if (this.where.textContent !== words) this.where.textContent = words;
  }

  /** The book behind follows, so that panels, the address and the next visit know where the reader is. */
  #follow() {
    const { page, player: { turner, book } } = this;
    this.history.note(page);
    if (!this.layers.inView.includes(page)) turner.stand(book.views.viewOf(page));
  }

  /** @param {boolean} chosen whether the reader has changed something */
  #dress(chosen = false) {
    const { looks, dialog } = this;
    const dark = matchMedia('(prefers-color-scheme: dark)').matches;
    const colours = looks.colours || (dark ? 'night' : 'paper');
    this.flow.keep(() => {
      dialog.style.setProperty('--read-size', SIZES[looks.size] + 'rem');
      Object.assign(dialog.dataset, { face: looks.face, width: looks.width, colours });
      if (chosen) this.flow.relay();
    });
    this.panel.check(colours);
    if (chosen) storeLooks(looks);
  }

  #resized() {
    if (this.isOpen) this.flow.top = this.bar.offsetHeight + AIR;
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const { target, key } = event;
    if (!this.isOpen || event.ctrlKey || event.altKey || event.metaKey) return;
    if (target instanceof Element && target.closest('dialog:not(.read), .search-strip, .note-bar')) return;
    if (key === 'Tab' && target === this.scroller && !event.shiftKey && this.flow.focusNext()) event.preventDefault();
    /** @type {Partial<Record<string, () => unknown>>} */
    const actions = {
      Escape: () => (this.panel.element.hidden ? this.player.commands.escape() : this.panel.show(false)),
      A: () => this.close(), R: () => !this.speaker.hidden && this.aloud.toggle(),
      '+': () => this.panel.resize(1), '=': () => this.panel.resize(1),
      '-': () => this.panel.resize(-1), 0: () => this.panel.resize(0),
      Home: () => this.flow.showStart(), End: () => this.flow.showEnd().catch(() => this.flow.onFailed()),
    };
    const shortcut = keyOf(event);
    const action = actions[key.length > 1 ? key : shortcut];
    if (action) event.preventDefault();
    action?.();
    const button = this.player.root.querySelector('.bar [data-key="' + CSS.escape(shortcut) + '"]');
    const { does = '' } = /** @type {HTMLElement} */ (button ?? this.button).dataset;
    if (!action && button && ALSO_HERE.includes(does)) return;
    // Keys of the book behind; those that scroll are the browser's.
    event.stopImmediatePropagation();
    if (target === document.body) this.scroller.focus({ preventScroll: true });
  }

  /** Offers itself where the letters of the pages are small, until it was used or is not wanted. */
  offer() {
    if (this.isOpen || this.flow.held || this.offered || !mayOffer()) return;
    const { say, root } = this.player;
    const accept = make('button', 'read-accept', icon('reading'), make('span', '', say('readingOffer')));
    const refuse = this.#button('read-refuse', 'close', icon('close'));
    accept.setAttribute('type', 'button');
    this.offered = make('div', 'read-offer', accept, refuse);
    accept.addEventListener('click', () => this.open());
    refuse.addEventListener('click', () => {
      endOffers();
      this.offered?.remove();
    });
    part(root, '.toast').before(this.offered);
  }
}
