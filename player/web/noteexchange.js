import { fieldsOf, numberOf, textOf } from './facts.js';
import { LONGEST, MOST_NOTES, VERSION, freshID, noteOf } from './notestore.js';

/** @typedef {import('./notestore.js').Note} Note */
/** @typedef {{title: string, address: string, pages: number}} BookOfNotes address: without a fragment */

const FORMAT = 'folvero-notes';

/** Largest file that is read, in bytes. */
export const LARGEST = 20_000_000;

/** Why a file of notes is refused. */
export class RefusedFile extends Error {
  /**
   * @param {'importForeign' | 'importDamaged' | 'importNewer' | 'importMany'} word
   * @param {number} entry that is damaged, from 1; 0: the file as a whole
   */
  constructor(word, entry = 0) {
    super(word);
    this.word = word;
    this.entry = entry;
  }
}

/**
 * @param {Note[]} notes
 * @param {BookOfNotes} book
 * @param {Date} now
 */
export function fileOf(notes, book, now) {
  return JSON.stringify({ format: FORMAT, version: VERSION, book, exported: now.toISOString(), notes }, null, 1) + '\n';
}

/**
 * What a file holds. Throws a RefusedFile unless all of it can be read.
 * @param {string} text
 * @returns {{book: BookOfNotes, notes: Note[]}}
 */
export function notesOfFile(text) {
  let raw;
  try {
    raw = fieldsOf(JSON.parse(text.replace(/^\ufeff/, '')));
  } catch {
    // A file that was cut off begins as it should.
    throw new RefusedFile(text.includes('"' + FORMAT + '"') ? 'importDamaged' : 'importForeign');
  }
  if (raw.format !== FORMAT) throw new RefusedFile('importForeign');
  if (numberOf(raw.version) > VERSION) throw new RefusedFile('importNewer');
  if (raw.version !== VERSION || !Array.isArray(raw.notes)) throw new RefusedFile('importDamaged');
  if (raw.notes.length > MOST_NOTES) throw new RefusedFile('importMany');
  const notes = raw.notes.map((one, index) => {
    const note = noteOf(one);
    if (!note) throw new RefusedFile('importDamaged', index + 1);
    return note;
  });
  const { title, address, pages } = fieldsOf(raw.book);
  return { book: { title: textOf(title), address: textOf(address), pages: numberOf(pages) || 0 }, notes };
}

/**
 * Whether notes belong to this book: by its title, or its address for one that was renamed.
 * @param {BookOfNotes} one
 * @param {BookOfNotes} other
 */
export function isSameBook(one, other) {
  return (one.title !== '' && one.title === other.title) || (one.address !== '' && one.address === other.address);
}

/**
 * Adds notes to those that are there, of which none is lost: of two of the same place, the texts of both are kept.
 * @param {Note[]} own
 * @param {Note[]} others
 * @returns {{notes: Note[], added: number, changed: number}}
 */
export function merged(own, others) {
  const notes = [...own];
  let [added, changed] = [0, 0];
  for (const other of others) {
    const index = notes.findIndex((note) => isSamePlace(note, other));
    const before = notes[index];
    if (!before) {
      // The same id with another quote would be taken for the same note.
      const taken = notes.some(({ id }) => id === other.id);
      notes.push(taken ? { ...other, id: freshID() } : other);
      added += 1;
      continue;
    }
    const later = other.id === before.id && other.changed > before.changed;
    const note = joined(before.note, other.note, later);
    const colour = later ? other.colour : before.colour;
    if (note === before.note && colour === before.colour) continue;
    notes[index] = { ...before, note, colour, changed: Math.max(before.changed, other.changed) };
    changed += 1;
  }
  return { notes, added, changed };
}

/**
 * Whether two notes mark the same. A later edition may have moved one to another page.
 * @param {Note} one
 * @param {Note} other
 */
function isSamePlace(one, other) {
  const alike = one.kind === other.kind && one.quote === other.quote;
  return alike && (one.id === other.id || (one.page === other.page && one.at === other.at));
}

/**
 * @param {string} own
 * @param {string} other
 * @param {boolean} later whether the other one is a later version
 */
function joined(own, other, later) {
  if (own.includes(other)) return own;
  if (other.includes(own)) return other;
  const both = later ? other + '\n\n' + own : own + '\n\n' + other;
  // Rather none of the other than half of the own.
  return both.length > LONGEST ? own : both;
}
