import { findAnchor, findPage, searched } from './noteanchors.js';
import { listOf, textOf } from './facts.js';

/** @typedef {import('./notestore.js').Note} Note */

/**
 * Looks whether the notes are where they were made, and follows those that another edition has moved to other pages.
 * @param {import('./notestore.js').NoteStore} store
 * @param {import('./layers.js').Layers} layers
 * @param {import('./data.js').DataFiles} files
 * @returns {Promise<Set<string>>} ids of those that this edition does not have
 */
export async function checkPlaces(store, { texts, facts }, files) {
  const lost = [];
  for (const page of new Set(store.notes.map((note) => note.page))) {
    const text = await texts.get(page);
    // A page that could not be loaded says nothing.
    if (!text && page <= facts.pageCount) continue;
    const own = searched(text?.string ?? '');
    lost.push(...store.notes.filter((note) => note.page === page && isMissing(own, note, facts.pageCount)));
  }
  if (lost.length === 0) return new Set();
  /** @type {Map<string, {page: number, at: number}>} */
  const moved = new Map();
  const all = (await allTexts(files, facts.searchParts)).map(searched);
  for (const note of lost) {
    const { page, from } = findPage(all, note, note.page);
    if (page) moved.set(note.id, { page, at: from });
  }
  if (moved.size > 0) store.change((notes) => notes.map((note) => ({ ...note, ...moved.get(note.id) })));
  return new Set(lost.map(({ id }) => id).filter((id) => !moved.has(id)));
}

/**
 * @param {import('./noteanchors.js').Searched} text of the note's page
 * @param {Note} note
 * @param {number} pageCount
 */
function isMissing(text, note, pageCount) {
  return note.quote ? !findAnchor(text, note) : note.page > pageCount;
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
