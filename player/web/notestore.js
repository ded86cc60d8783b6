import { keep, recall } from '../src/book/storage.js';
import { fieldsOf, listOf, numberOf } from './facts.js';

/** @typedef {import('./noteanchors.js').Anchor} Anchor */
/**
 * @typedef {Omit<Anchor, 'until'> & {
 *   id: string, kind: 'bookmark' | 'highlight', page: number, colour: Colour, note: string, made: number, changed: number,
 * }} Note
 * made, changed: milliseconds since 1970
 */

export const COLOURS = /** @type {const} */ (['yellow', 'green', 'blue', 'pink']);
/** @typedef {COLOURS[number]} Colour */

export const VERSION = 1;

/** Longest quote and note, in letters, and the most notes of a book. */
export const LONGEST = 20_000;
export const MOST_NOTES = 5000;

const KEY = 'notes';
/** Where stored notes go that cannot be read, so that nothing overwrites them. */
const DAMAGED = 'notes-damaged';

/** The reader's notes in this book, kept in the browser and shared by all tabs that show the book. */
export class NoteStore {
  constructor() {
    /** @type {Note[]} in the order of the book */
    this.notes = [];
    /** Whether the browser stores them; else they last as long as the page. */
    this.kept = true;
    /** Whether what is stored must not be overwritten: it comes from a later player, or is damaged and has no copy. */
    this.locked = false;
    /** Ids that were here once: what this tab has deleted does not come back from another one. */
    this.known = new Set();
    this.onChange = () => {};
    this.#take(this.#stored());
    window.addEventListener('storage', ({ key, storageArea }) => {
      if (storageArea !== localStorage || (key !== null && !key.endsWith(':' + KEY)) || !this.kept) return;
      this.#take(this.#stored());
      this.onChange();
    });
  }

  /**
   * Changes the notes. What other tabs have stored meanwhile is taken over first.
   * @param {(notes: Note[]) => Note[]} act may be called twice
   */
  change(act) {
    const stored = this.#stored();
    const all = this.notes.concat(stored.filter(({ id }) => !this.known.has(id)));
    this.#take(act(this.kept ? stored : all));
    const before = this.kept;
    this.kept = !this.locked && this.#keep(this.notes);
    // Nothing may be stored any more, and nothing be read.
    if (before && !this.kept) this.#take(act(all));
    this.onChange();
  }

  /**
   * Takes over many notes, all or none: what the browser has no room for must not cost it what it stores.
   * @param {(notes: Note[]) => Note[]} act may be called twice
   * @returns {boolean} whether they are there
   */
  takeOver(act) {
    const stored = this.#stored();
    const notes = act(this.kept ? stored : this.notes);
    if (notes.length > MOST_NOTES || (this.kept && !this.#keep(inOrder(notes)))) return false;
    if (!this.kept) this.change(act);
    else {
      this.#take(notes);
      this.onChange();
    }
    return true;
  }

  /** @param {Note} note */
  add(note) {
    this.change((notes) => notes.filter(({ id }) => id !== note.id).concat(note));
  }

  /**
   * @param {string} id
   * @param {Partial<Note>} values
   */
  edit(id, values) {
    this.change((notes) => notes.map((note) => (note.id === id ? { ...note, ...values, changed: Date.now() } : note)));
  }

  /**
   * Sets a note's text. One that another tab has deleted meanwhile comes back: nothing that was written is lost.
   * @param {Note} note
   * @param {string} text
   */
  write(note, text) {
    this.change((notes) => notes.filter(({ id }) => id !== note.id)
      .concat({ ...(notes.find(({ id }) => id === note.id) ?? note), note: text, changed: Date.now() }));
  }

  /** @param {string} id */
  remove(id) {
    this.change((notes) => notes.filter((note) => note.id !== id));
  }

  /** @param {Note[]} notes */
  #keep(notes) {
    return keep(KEY, JSON.stringify({ version: VERSION, notes }));
  }

  /** @param {Note[]} notes */
  #take(notes) {
    this.notes = inOrder(notes);
    for (const { id } of notes) this.known.add(id);
  }

  /** @returns {Note[]} */
  #stored() {
    const text = recall(KEY);
    if (text === null) return [];
    const { notes, whole, newer } = notesIn(text);
    this.locked = newer || (!whole && !putAside(text));
    if (this.locked) this.kept = false;
    return notes;
  }
}

/**
 * Stores damaged notes beside all others that were damaged before.
 * @param {string} text
 * @returns {boolean} whether they are stored
 */
function putAside(text) {
  let name = DAMAGED;
  for (let count = 2; ; count++) {
    const there = recall(name);
    if (there === text) return true;
    if (there === null) return keep(name, text);
    name = DAMAGED + '-' + count;
  }
}

/**
 * Stored notes, those that can be read.
 * @param {string} text
 * @returns {{notes: Note[], whole: boolean, newer: boolean}} whole: whether these are all
 */
function notesIn(text) {
  try {
    const raw = fieldsOf(JSON.parse(text));
    const list = listOf(raw.notes);
    const notes = list.flatMap((one) => noteOf(one) ?? []);
    return { notes, whole: Array.isArray(raw.notes) && notes.length === list.length, newer: numberOf(raw.version) > VERSION };
  } catch {
    return { notes: [], whole: false, newer: false };
  }
}

/**
 * @param {unknown} raw
 * @returns {Note | null} none for what is no note
 */
export function noteOf(raw) {
  const { id, kind, page, quote, before, after, at, colour, note, made, changed } = fieldsOf(raw);
  const texts = [id, quote, before, after, note];
  const numbers = [page, at, made, changed];
  if (texts.some((text) => typeof text !== 'string' || text.length > LONGEST)) return null;
  if (numbers.some((number) => !Number.isSafeInteger(number) || Number(number) < 0)) return null;
  if (!id || !page || (kind !== 'bookmark' && kind !== 'highlight')) return null;
  if (!COLOURS.includes(/** @type {Colour} */ (colour)) || (kind === 'highlight' && !quote)) return null;
  return /** @type {Note} */ ({ id, kind, page, quote, before, after, at, colour, note, made, changed });
}

/**
 * @param {'bookmark' | 'highlight'} kind
 * @param {number} page
 * @param {Anchor} anchor
 * @param {Colour} colour
 * @returns {Note}
 */
export function makeNote(kind, page, { quote, before, after, at }, colour) {
  const made = Date.now();
  return { id: freshID(), kind, page, quote: quote.slice(0, LONGEST), before, after, at, colour, note: '', made, changed: made };
}

/** Pages opened over plain http have no crypto.randomUUID. */
export function freshID() {
  return Date.now().toString(36) + '-' + Math.random().toString(36).slice(2, 12);
}

/** @param {Note[]} notes */
export function inOrder(notes) {
  return [...notes].sort((a, b) => a.page - b.page || Number(b.kind === 'bookmark') - Number(a.kind === 'bookmark')
    || a.at - b.at || a.made - b.made);
}
