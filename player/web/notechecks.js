import { findAnchor, findPage, searched } from './noteanchors.js';
import { listOf, textOf } from './facts.js';
import { pause } from './idle.js';

/** @typedef {import('./notestore.js').Note} Note */
/** @typedef {import('./noteanchors.js').Searched} Searched */

/** Time slice for looking for notes in all pages, in milliseconds. */
const SLICE_MS = 8;

/** Knows which notes are where they were made, and follows those that another edition has moved to other pages. */
export class NoteChecks {
  /**
   * @param {import('./notestore.js').NoteStore} store
   * @param {import('./layers.js').Layers} layers
   * @param {import('./data.js').DataFiles} files
   */
  constructor(store, layers, files) {
    this.store = store;
    this.layers = layers;
    this.facts = layers.facts;
    this.files = files;
    /** @type {Set<string>} ids of notes that this edition does not have */
    this.lost = new Set();
    /** @type {Set<string>} ids of notes that were found, or looked for on all pages */
    this.checked = new Set();
    /** @type {Promise<void>} */
    this.running = Promise.resolve();
    layers.fillers.push((face) => this.#lookAt(face));
  }

  /** Looks for notes where that needs no request: on the pages in view, and on pages that this edition does not have. */
  look() {
    for (const { id, page } of this.store.notes) {
      if (page > this.facts.pageCount && !this.checked.has(id)) this.lost.add(id);
    }
    this.layers.faces.forEach((face) => this.#lookAt(face));
  }

  /** @param {import('./layers.js').Face} face */
  #lookAt({ position, text }) {
    const notes = text ? this.#unknown.filter(({ page }) => page === position) : [];
    if (!text || notes.length === 0) return;
    const own = searched(text.string);
    for (const note of notes) if (isOn(own, note)) this.checked.add(note.id);
  }

  get #unknown() {
    const { facts, checked } = this;
    return this.store.notes.filter(({ id, page }) => !checked.has(id) && (page > facts.pageCount || facts.isOpen(page)));
  }

  /**
   * Looks for all notes that were not seen yet in the text of the book. One that cannot be loaded says nothing.
   * @returns {Promise<void>}
   */
  search() {
    this.running = this.running.then(() => this.#search()).catch(() => {});
    return this.running;
  }

  async #search() {
    if (this.#unknown.length === 0) return;
    const pages = await inSlices(await allTexts(this.files, this.facts.searchParts), searched);
    /** @type {Map<string, {page: number, at: number}>} */
    const moved = new Map();
    await inSlices(this.#unknown, (note) => {
      this.checked.add(note.id);
      const own = pages[note.page - 1];
      const { page, from } = own && isOn(own, note) ? { page: note.page, from: note.at } : findPage(pages, note, note.page);
      if (page !== note.page && page) moved.set(note.id, { page, at: from });
      if (page) this.lost.delete(note.id);
      else this.lost.add(note.id);
    });
    if (moved.size > 0) this.store.change((notes) => notes.map((note) => ({ ...note, ...moved.get(note.id) })));
  }
}

/**
 * Whether a note is on a page. What has no words is anywhere.
 * @param {Searched} text
 * @param {Note} note
 */
function isOn(text, note) {
  return !note.quote || findAnchor(text, note) !== null;
}

/**
 * Does something with each of many, in slices.
 * @template T, R
 * @param {T[]} all
 * @param {(one: T) => R} act
 * @returns {Promise<R[]>}
 */
async function inSlices(all, act) {
  const results = [];
  let until = 0;
  for (const one of all) {
    if (performance.now() >= until) {
      await pause();
      until = performance.now() + SLICE_MS;
    }
    results.push(act(one));
  }
  return results;
}

/**
 * The texts of all pages, as the search has them.
 * @param {import('./data.js').DataFiles} files
 * @param {number} parts
 * @returns {Promise<string[]>}
 */
export async function allTexts(files, parts) {
  const texts = [];
  for (let part = 0; part < parts; part++) {
    texts.push(...listOf(await files.load('search/text' + (part ? '-' + part : ''))).map(textOf));
  }
  return texts;
}
