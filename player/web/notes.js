import { pageInAddress } from '../src/controls/place.js';
import { copyText } from './copytext.js';
import { anchorOfPage, findAnchor, findPage, inOneLine, searched } from './noteanchors.js';
import { NoteBar } from './notebar.js';
import { NoteChecks, allTexts } from './notechecks.js';
import { NoteEditor } from './noteeditor.js';
import { LARGEST, RefusedFile, fileOf, isSameBook, merged, notesOfFile } from './noteexchange.js';
import { NoteKeys } from './notekeys.js';
import { isPhrase, phraseLink, quoteInAddress, quoteLink } from './notelinks.js';
import { NoteList } from './notelist.js';
import { GUEST, NoteMarks } from './notemarks.js';
import { endsOf, hasPassages, passagesInText, passagesOnPages } from './notepassages.js';
import { COLOURS, NoteStore, makeNote } from './notestore.js';

/** @typedef {import('./notestore.js').Note} Note */
/** @typedef {import('./notestore.js').Colour} Colour */
/** @typedef {import('./notepassages.js').Passage} Passage */

/** Rest of a selection after which the bar comes, in milliseconds. */
const REST_MS = 250;

/** The reader's bookmarks, highlights and notes. */
export class Notes {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./data.js').DataFiles} files
   * @param {import('./side.js').SideRoom} room
   * @param {{bookmark: HTMLElement, notes: HTMLElement}} buttons in the bar
   */
  constructor(player, layers, files, room, buttons) {
    this.player = player;
    this.layers = layers;
    this.files = files;
    this.room = room;
    this.button = buttons.bookmark;
    this.store = new NoteStore();
    this.marks = new NoteMarks(player, layers, this.store);
    this.checks = new NoteChecks(this.store, layers, files);
    this.bar = new NoteBar(player, { colour: (colour) => this.#colour(colour), act: (action) => this.#act(action) });
    this.editor = new NoteEditor(player);
    this.keys = new NoteKeys(player, layers, () => this.markByKey());
    this.list = new NoteList(player, room, buttons.notes, {
      go: (note) => this.#go(note), write: (note) => this.#write(note), drop: (note) => this.#drop([note]),
      save: () => this.#save(), read: (file) => this.#read(file),
    });
    this.list.panel.onShow = () => {
      this.#tellStorage();
      this.list.focus();
      this.#search();
    };
    /** @type {Colour} the last one chosen */
    this.colour = 'yellow';
    this.opened = '';
    /** @type {() => Promise<Passage[]>} what the bar is for, where that is a selection */
    this.selected = async () => [];
    this.timer = 0;
    this.pressed = false;
    /** Whether the reader knows that notes are lost with the page. */
    this.warned = false;
    this.#wire();
    this.#changed();
    this.#look();
  }

  /** Looks for notes on other pages than those in view. */
  async #search() {
    await this.checks.search();
    this.#changed();
  }

  #wire() {
    const { store, layers, player: { root, gestures } } = this;
    store.onChange = () => {
      this.#changed();
      if (!store.kept) this.#warn();
    };
    layers.followers.push(() => this.#tellBookmark());
    document.addEventListener('selectionchange', () => this.#look());
    for (const kind of ['pointerdown', 'pointerup', 'pointercancel']) {
      window.addEventListener(kind, (event) => this.#pointer(/** @type {PointerEvent} */ (event)), { capture: true });
    }
    const { answersTap } = gestures;
    gestures.answersTap = (event) => answersTap(event) || this.#tapped(event);
    root.addEventListener('click', (event) => {
      const { target } = event;
      if (target instanceof Element && target.closest('.read-text') && !target.closest('a, button')) this.#tapped(event);
    });
  }

  #changed() {
    this.checks.look();
    this.marks.draw();
    this.list.show(this.store.notes, this.checks.lost);
    this.#tellBookmark();
  }

  /** Warns, once, of a browser that stores nothing. */
  #warn() {
    const { say, toast } = this.player;
    if (!this.warned) toast.show(say('notesNotKept'), say('exportNotes'), () => this.#save());
    this.warned = true;
  }

  /** @param {PointerEvent} event */
  #pointer({ type, pointerType, target }) {
    this.pressed = type === 'pointerdown';
    this.bar.byTouch = pointerType !== 'mouse';
    if (target instanceof Element && target.closest('.note-bar')) return;
    if (this.pressed) this.bar.hide();
    else this.#look();
  }

  /** Shows the bar when a selection rests. */
  #look() {
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => {
      if (!this.pressed) this.#lookNow();
    }, REST_MS);
  }

  #lookNow() {
    const found = this.#selection();
    if (!found) {
      if (this.bar.shown && !this.opened) this.bar.hide();
      return;
    }
    const { range, passages } = found;
    this.opened = '';
    this.selected = passages;
    // They are asked for in every frame; a long selection has thousands of words.
    const ends = endsOf(range);
    const rectsIn = (/** @type {Range[]} */ ranges) =>
      ranges.flatMap((one) => [...one.getClientRects()]).filter(({ width }) => width > 0);
    const rects = () => {
      if (getSelection()?.isCollapsed !== false) return [];
      const near = rectsIn(ends);
      return near.length > 0 ? near : rectsIn([range]);
    };
    this.bar.show({ colour: '', own: false, rects });
  }

  /** What is selected of the book's text, null for nothing. */
  #selection() {
    const selection = getSelection();
    if (!selection || selection.isCollapsed || this.player.root.querySelector('dialog.panel[open]')) return null;
    const range = selection.getRangeAt(0).cloneRange();
    const { commonAncestorContainer: around } = range;
    const article = (around instanceof Element ? around : around.parentElement)?.closest('.read-text');
    if (article) {
      return hasPassages(range, article) ? { range, passages: () => passagesInText(range, article, this.layers.texts) } : null;
    }
    const found = passagesOnPages(selection, this.layers);
    return found.length > 0 ? { range, passages: async () => found } : null;
  }

  /** H: highlights what is selected, or begins to select by keys. */
  async markByKey() {
    if (!this.#selection()) {
      if (!this.player.root.dataset.reading) this.keys.begin();
      return;
    }
    this.keys.end();
    this.#lookNow();
    this.bar.focus();
    await this.#colour(this.colour);
    if (this.bar.shown) this.bar.focus();
  }

  /**
   * Opens the bar of a highlight under a tap.
   * @param {MouseEvent} event
   * @returns {boolean} whether there is one
   */
  #tapped({ clientX, clientY }) {
    if (getSelection()?.isCollapsed === false) return false;
    const id = this.marks.at(clientX, clientY);
    if (id) this.#open(id);
    return id !== '';
  }

  /** @param {string} id */
  #open(id) {
    this.opened = id;
    const note = this.#noteOf(id);
    this.bar.show({ colour: note?.colour ?? '', own: note !== undefined, rects: () => this.marks.rectsOf(id) });
  }

  /** @param {string} id */
  #noteOf(id) {
    return this.store.notes.find((note) => note.id === id);
  }

  /**
   * What the bar is for.
   * @returns {Promise<Passage[]>}
   */
  async #passages() {
    if (!this.opened) return this.selected();
    const note = this.#noteOf(this.opened);
    if (note) return [{ page: note.page, anchor: note }];
    return this.opened === GUEST && this.marks.guest ? [this.marks.guest] : [];
  }

  /**
   * Highlights what is selected, or changes a highlight's colour.
   * @param {Colour} colour
   * @returns {Promise<Note | undefined>} the first one of what is highlighted now
   */
  async #colour(colour) {
    this.colour = colour;
    const note = this.#noteOf(this.opened);
    if (note) {
      this.store.edit(note.id, { colour });
      this.#open(note.id);
      return note;
    }
    const passages = await this.#passages();
    const made = passages.map(({ page, anchor }) => makeNote('highlight', page, anchor, colour));
    if (made.length === 0) return undefined;
    if (this.opened === GUEST) this.marks.guest = null;
    this.store.change((notes) => notes.concat(made));
    this.opened = made[0].id;
    getSelection()?.removeAllRanges();
    this.#open(made[0].id);
    return made[0];
  }

  /** @param {'note' | 'copy' | 'link' | 'drop'} action */
  async #act(action) {
    const { say } = this.player;
    const note = this.#noteOf(this.opened);
    if (action === 'drop') {
      this.bar.hide();
      if (note) this.#drop([note]);
      return;
    }
    if (action === 'note') {
      const own = note ?? await this.#colour(this.colour);
      this.bar.hide();
      if (own) this.#write(own);
      return;
    }
    const passages = await this.#passages();
    if (passages.length === 0) return;
    const text = action === 'copy' ? passages.map(({ anchor }) => anchor.quote).join('\n') : this.#linkOf(passages[0]);
    if (await copyText(text)) this.bar.done(action, say('copied'));
    else this.player.toast.show(text, say('close'), () => {});
  }

  /** @param {Passage} passage */
  #linkOf({ page, anchor }) {
    const [book] = location.href.split('#');
    return !this.opened && isPhrase(anchor.quote) ? phraseLink(book, page, anchor.quote) : quoteLink(book, page, anchor);
  }

  /** Sets a bookmark at the page that is read, or takes away those of the pages in view. */
  async toggleBookmark() {
    const { store, layers } = this;
    const { inView } = layers;
    const own = store.notes.filter(({ kind, page }) => kind === 'bookmark' && inView.includes(page));
    if (own.length > 0) {
      this.#drop(own);
      return;
    }
    const asked = pageInAddress();
    const page = inView.includes(asked) ? asked : inView[0];
    const text = await layers.texts.get(page);
    store.add(makeNote('bookmark', page, anchorOfPage(text?.string ?? ''), COLOURS[0]));
  }

  #tellBookmark() {
    const { inView } = this.layers;
    const on = this.store.notes.some(({ kind, page }) => kind === 'bookmark' && inView.includes(page));
    this.button.setAttribute('aria-pressed', String(on));
  }

  /** @param {Note} note */
  #go(note) {
    const { layers, marks, list, room } = this;
    layers.show(note.page);
    marks.wanted = note.id;
    if (layers.inView.includes(note.page)) marks.draw();
    if (!room.besideBook) list.panel.hide();
  }

  /** @param {Note} note */
  #write(note) {
    this.editor.open(inOneLine(note.quote), note.note, (text) => {
      if (text !== note.note) this.store.write(note, text);
      if (!this.store.kept) this.#tellStorage();
    });
  }

  /**
   * Deletes notes; the reader can undo that.
   * @param {Note[]} notes
   */
  #drop(notes) {
    const { store, player: { say, toast }, list } = this;
    const ids = notes.map(({ id }) => id);
    store.change((all) => all.filter(({ id }) => !ids.includes(id)));
    const undo = () => store.change((all) => all.filter(({ id }) => !ids.includes(id)).concat(notes));
    const words = say(notes[0].kind === 'bookmark' ? 'bookmarkDeleted' : 'noteDeleted');
    // A panel that covers the book covers its notes as well.
    if (list.panel.shown) list.tell(words, say('undo'), undo);
    else {
      // Of two that are deleted in a row the last one comes back.
      toast.hide();
      toast.show(words, say('undo'), undo);
    }
  }

  /** Warns where notes are lost with the page. */
  #tellStorage() {
    if (!this.store.kept && this.store.notes.length > 0) this.list.tell(this.player.say('notesNotKept'));
  }

  get #book() {
    return { title: document.title, address: location.href.split('#')[0], pages: this.player.config.pages.length };
  }

  #save() {
    const link = document.createElement('a');
    const address = URL.createObjectURL(new Blob([fileOf(this.store.notes, this.#book, new Date())], { type: 'application/json' }));
    link.href = address;
    link.download = (document.title.replace(/[\\/:*?"<>|\s]+/g, ' ').trim().slice(0, 80) || 'book') + ' - notes.json';
    link.click();
    setTimeout(() => URL.revokeObjectURL(address), 60_000);
  }

  /** @param {File} file */
  async #read(file) {
    const { list, player: { say } } = this;
    try {
      if (file.size > LARGEST) throw new RefusedFile('importMany');
      const { book, notes } = notesOfFile(await file.text().catch(() => ''));
      const take = () => this.#take(notes);
      if (isSameBook(book, this.#book)) take();
      else list.tell(say('importOther', book.title || book.address), say('importAnyway'), take);
    } catch (error) {
      if (!(error instanceof RefusedFile)) throw error;
      list.tell(say(error.word) + (error.entry ? ' (' + error.entry + ')' : ''));
    }
  }

  /** @param {Note[]} others */
  async #take(others) {
    const { store, list, player: { say } } = this;
    let [added, changed] = [0, 0];
    const taken = store.takeOver((notes) => {
      const result = merged(notes, others);
      ({ added, changed } = result);
      return result.notes;
    });
    list.tell(taken ? say('importDone', added, changed) : say('importMany'));
    if (!taken) return;
    await this.#search();
    if (!store.kept) this.#tellStorage();
  }

  /**
   * Marks the passage that an address names, on the page where this edition has it.
   * @param {string} fragment
   */
  async showQuote(fragment) {
    const named = quoteInAddress(fragment);
    if (!named) return;
    const { layers, files, player } = this;
    const text = searched((await layers.texts.get(named.page))?.string ?? '');
    let { page } = named;
    let found = findAnchor(text, named.anchor);
    let source = text.source;
    if (!found) {
      const all = (await allTexts(files, layers.facts.searchParts).catch(() => [])).map(searched);
      page = findPage(all, named.anchor, page).page;
      found = page ? findAnchor(all[page - 1], named.anchor) : null;
      source = all[page - 1]?.source ?? '';
    }
    if (!found) {
      player.toast.show(player.say('quoteLost'), player.say('close'), () => {});
      return;
    }
    const { from, to } = found;
    this.marks.guest = { page, anchor: { ...named.anchor, quote: source.slice(from, to), until: undefined, at: from } };
    // The address leads to its own page meanwhile.
    if (player.book.views.viewOf(page) !== player.turner.destination) layers.show(page);
    this.marks.wanted = GUEST;
    this.marks.draw();
  }
}
