import { make } from '../src/book/dom.js';
import { fullLabel } from '../src/book/labels.js';
import { drawn, icon } from './icons.js';
import { inOneLine } from './noteanchors.js';
import { SIGNS } from './notebar.js';
import { SidePanel } from './side.js';

/** @typedef {import('./notestore.js').Note} Note */
/**
 * @typedef {object} ListHandlers
 * @property {(note: Note) => void} go
 * @property {(note: Note) => void} write
 * @property {(note: Note) => void} drop
 * @property {() => void} save into a file
 * @property {(file: File) => void} read
 */

/** A longer first line of a page is no running head, in letters. */
const LONGEST_HEAD = 48;

/** The panel with the reader's bookmarks, highlights and notes, by page. */
export class NoteList {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./side.js').SideRoom} room
   * @param {HTMLElement} button
   * @param {ListHandlers} handlers
   */
  constructor({ say, config }, room, button, handlers) {
    this.say = say;
    this.config = config;
    this.handlers = handlers;
    this.panel = new SidePanel(room, 'notes', button);
    this.list = make('ul', 'note-list');
    this.list.setAttribute('aria-labelledby', 'notes-title');
    this.empty = make('p', 'note-empty', say('noNotes'));
    this.status = make('div', 'note-status');
    this.status.setAttribute('role', 'status');
    this.file = /** @type {HTMLInputElement} */ (make('input', ''));
    Object.assign(this.file, { type: 'file', accept: '.json,application/json', hidden: true });
    this.file.addEventListener('change', () => {
      const [file] = this.file.files ?? [];
      if (file) handlers.read(file);
      this.file.value = '';
    });
    this.saving = this.#textButton('exportNotes', () => handlers.save());
    this.panel.body.append(this.status, this.empty, this.list);
    this.panel.dialog.append(make('footer', 'note-files', this.saving,
      this.#textButton('importNotes', () => this.file.click()), this.file));
  }

  /**
   * @param {Note[]} notes
   * @param {Set<string>} lost ids of those that are not in this edition
   */
  show(notes, lost) {
    const at = this.#focused();
    this.empty.hidden = notes.length > 0;
    /** @type {HTMLButtonElement} */ (this.saving).disabled = notes.length === 0;
    this.list.hidden = notes.length === 0;
    const pages = [...new Set(notes.map(({ page }) => page))];
    this.list.replaceChildren(...pages.map((page) => {
      const own = make('ul', '', ...notes.filter((note) => note.page === page).map((note) => this.#item(note, lost)));
      return make('li', 'note-page', make('h3', '', this.say('page', fullLabel(this.config, page))), own);
    }));
    if (at >= 0) this.#focus(at);
  }

  /** Keys go to the entries first. */
  focus() {
    this.#focus(0);
  }

  /** @returns {number} index of the entry that has the focus, -1 for none */
  #focused() {
    return this.#entries().findIndex((entry) => entry.contains(document.activeElement));
  }

  /** @param {number} at index of an entry that is gone: the focus goes to the one in its place */
  #focus(at) {
    const entries = this.#entries();
    const entry = entries[Math.min(at, entries.length - 1)];
    /** @type {HTMLElement | null} */ ((entry ?? this.panel.head).querySelector('button'))?.focus({ preventScroll: true });
  }

  #entries() {
    return [...this.list.querySelectorAll('.note-entry')];
  }

  /**
   * @param {Note} note
   * @param {Set<string>} lost
   */
  #item(note, lost) {
    const { say, handlers } = this;
    const go = make('button', 'note-go');
    if (note.kind === 'bookmark') go.append(icon('bookmark'), make('span', 'unseen', say('bookmark') + '. '));
    const quote = make('span', 'note-words', wordsOf(note) || say('bookmark'));
    quote.dir = 'auto';
    go.append(quote);
    if (note.note) {
      const text = make('span', 'note-own', note.note);
      text.dir = 'auto';
      go.append(text);
    }
    if (lost.has(note.id)) go.append(make('span', 'note-lost', say('noteLost')));
    go.setAttribute('type', 'button');
    go.addEventListener('click', () => handlers.go(note));
    const entry = make('li', 'note-entry', go, this.#tool('note', () => handlers.write(note)),
      this.#tool('drop', () => handlers.drop(note)));
    Object.assign(entry.dataset, { kind: note.kind, colour: note.colour });
    return entry;
  }

  /**
   * @param {'note' | 'drop'} action
   * @param {() => void} act
   */
  #tool(action, act) {
    const name = this.say(action === 'note' ? 'note' : 'deleteNote');
    const button = make('button', 'side-button', drawn(SIGNS[action]));
    button.setAttribute('type', 'button');
    button.setAttribute('aria-label', name);
    button.dataset.tip = name;
    button.addEventListener('click', act);
    return button;
  }

  /**
   * @param {'exportNotes' | 'importNotes'} word
   * @param {() => void} act
   */
  #textButton(word, act) {
    const button = make('button', 'plain-button', this.say(word));
    button.setAttribute('type', 'button');
    button.addEventListener('click', act);
    return button;
  }

  /**
   * Reports something above the list.
   * @param {string} words none: nothing any more
   * @param {string} offer name of a button, none for none
   * @param {() => void} accept
   */
  tell(words, offer = '', accept = () => {}) {
    this.status.replaceChildren(...(words ? [make('span', '', words)] : []));
    if (!offer) return;
    const button = make('button', 'plain-button', offer);
    button.setAttribute('type', 'button');
    button.addEventListener('click', () => {
      this.status.replaceChildren();
      accept();
      if (!this.panel.dialog.contains(document.activeElement)) this.#focus(0);
    });
    this.status.append(button);
  }
}

/**
 * What a note is about. Of a bookmark's page the words below the running head say more than that.
 * @param {Note} note
 */
function wordsOf({ kind, quote }) {
  const [head, ...rest] = quote.split('\n');
  const isHead = kind === 'bookmark' && rest.length > 0 && head.length < LONGEST_HEAD;
  return inOneLine(isHead ? rest.join('\n') : quote);
}
