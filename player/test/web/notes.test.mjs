import assert from 'node:assert/strict';
import { afterEach, beforeEach, test } from 'node:test';
import '../support/browser.mjs';
import { anchorAt, findAnchor, findPage, searched } from '../../web/noteanchors.js';
import { NoteChecks } from '../../web/notechecks.js';
import { fileOf, isSameBook, merged, notesOfFile } from '../../web/noteexchange.js';
import { isPhrase, phraseLink, quoteInAddress, quoteLink } from '../../web/notelinks.js';
import { NoteStore, makeNote } from '../../web/notestore.js';

const KEY = 'folvero:/book/:notes';
const earlier = globalThis.location;
/** Storage of a browser, which may be full or forbidden. */
let kept = {};
let refuses = false;
globalThis.localStorage = {
  getItem: (key) => { if (refuses === 'all') throw new Error('forbidden'); return kept[key] ?? null; },
  setItem: (key, text) => { if (refuses) throw new Error('full'); kept[key] = text; },
};
beforeEach(() => {
  kept = {};
  refuses = false;
  globalThis.location = { pathname: '/book/', hash: '' };
});
afterEach(() => { globalThis.location = earlier; });

const TEXT = 'A river runs below the old town\nand carries what it finds to the har-\nbour. The river is wide.';
const noteAt = (quote, page = 2, values = {}) => {
  const from = TEXT.indexOf(quote);
  return { ...makeNote('highlight', page, anchorAt(TEXT, from, from + quote.length), 'yellow'), ...values };
};
const quotes = ({ notes }) => notes.map(({ quote }) => quote);
const event = () => window.dispatchEvent(Object.assign(new Event('storage'), { key: KEY, storageArea: localStorage }));

test('a quote is found again where lines break otherwise, words are hyphenated, and the same words occur before', () => {
  const cases = [
    ['finds to the har-\nbour', 'It finds to the\nharbour. Wide', 'finds to the\nharbour'],
    ['river is', 'The river is. A river runs. To the harbour. The river is wide.', 'river is', 48],
    ['carries what it finds', 'runs below the old town and carries all it found to the harbour. The', 'carries all it found'],
    ['river is', 'Nothing of that kind', null],
  ];
  for (const [quote, other, found, at] of cases) {
    const place = findAnchor(searched(other), noteAt(quote));
    assert.equal(place && other.slice(place.from, place.to), found);
    if (at) assert.equal(place.from, at);
  }
});

test('a quote that moved is found on the nearest page with the same surroundings, and short words nowhere', () => {
  const pages = ['The river is wide.', 'Other', TEXT.replace('A river', 'New. A river'), TEXT, 'is'].map(searched);
  const note = noteAt('carries what it finds');
  assert.deepEqual([1, 5].map((page) => findPage(pages, note, page).page), [3, 4]);
  assert.equal(findPage(pages, anchorAt('is', 0, 2), 2).page, 0);
});

test('where notes are is asked for once, when somebody wants to know', async () => {
  const store = new NoteStore();
  const gone = noteAt('wide', 1, { quote: 'nowhere to be found', before: '', after: '' });
  for (const note of [noteAt('river is'), noteAt('old town', 9), gone]) store.add(note);
  const asked = [];
  const files = { load: async (name) => { asked.push(name); return ['Cover', 'Other', TEXT]; } };
  const facts = { pageCount: 3, searchParts: 1, isOpen: () => true };
  const checks = new NoteChecks(store, { facts, faces: [], fillers: [] }, files);
  checks.look();
  assert.deepEqual([asked, [...checks.lost].length], [[], 1]);
  window.requestIdleCallback = (act) => act();
  await checks.search();
  await checks.search();
  const pages = store.notes.map(({ quote, page }) => [quote, page]);
  assert.deepEqual(pages, [['nowhere to be found', 1], ['old town', 3], ['river is', 3]]);
  assert.deepEqual([asked, [...checks.lost]], [['search/text'], [gone.id]]);
});

test('two tabs see what the other one keeps and deletes, and neither overwrites it', () => {
  const [one, other] = [new NoteStore(), new NoteStore()];
  one.add(noteAt('river'));
  other.add(noteAt('town', 1));
  assert.deepEqual(quotes(other), ['town', 'river']);
  event();
  assert.deepEqual(quotes(one), ['town', 'river']);
  one.edit(one.notes[1].id, { note: 'mine' });
  other.remove(other.notes[0].id);
  assert.deepEqual(JSON.parse(kept[KEY]).notes.map(({ quote, note }) => [quote, note]), [['river', 'mine']]);
  const [, note] = one.notes;
  other.remove(note.id);
  one.write(note, 'written meanwhile');
  event();
  assert.deepEqual(other.notes.map((each) => each.note), ['written meanwhile']);
});

test('a full or forbidden storage keeps notes as long as the page, and all of them once there is room', () => {
  for (const kind of ['some', 'all']) {
    refuses = false;
    kept = {};
    const store = new NoteStore();
    store.add(noteAt('river'));
    refuses = kind;
    store.add(noteAt('town'));
    store.remove(store.notes[0].id);
    assert.deepEqual([quotes(store), store.kept], [['town'], false]);
    refuses = false;
    new NoteStore().add(noteAt('wide'));
    store.add(noteAt('old'));
    assert.deepEqual([quotes(store).sort(), store.kept], [['old', 'town', 'wide'], true]);
  }
});

test('notes that do not fit in are not taken over, and cost the store neither its own nor what comes later', () => {
  const store = new NoteStore();
  store.add(noteAt('river'));
  refuses = 'some';
  assert.equal(store.takeOver((notes) => notes.concat(noteAt('wide'))), false);
  refuses = false;
  assert.equal(store.takeOver((notes) => notes.concat(Array.from({ length: 5000 }, () => noteAt('wide')))), false);
  store.add(noteAt('town'));
  assert.ok(store.takeOver((notes) => notes.concat(noteAt('old'))));
  assert.deepEqual([quotes(store), quotes(new NoteStore())], [['river', 'old', 'town'], ['river', 'old', 'town']]);
});

test('stored notes that cannot be read are put aside, those of a later version left alone', () => {
  const whole = noteAt('river');
  for (const text of ['{"version":1,"notes":[', JSON.stringify({ version: 1, notes: [whole, { ...whole, page: 'x' }] })]) {
    kept = { [KEY]: text };
    const store = new NoteStore();
    store.add(noteAt('town'));
    assert.equal(kept[`${KEY}-damaged`], text);
    assert.equal(new NoteStore().notes.length, text.endsWith('[') ? 1 : 2);
    kept[KEY] = '{';
    for (let again = 0; again < 2; again += 1) new NoteStore();
    assert.deepEqual(Object.entries(kept).filter(([key]) => key !== KEY), [[`${KEY}-damaged`, text], [`${KEY}-damaged-2`, '{']]);
  }
  const later = JSON.stringify({ version: 2, notes: [{ shape: 'new' }] });
  kept = { [KEY]: later };
  new NoteStore().add(whole);
  assert.equal(kept[KEY], later);
});

test('a file brings all notes to another browser, twice the same as once, and loses nothing of either', () => {
  const book = { title: 'A book', address: 'https://example.org/', pages: 9 };
  const [mine, theirs] = [noteAt('river', 2, { note: 'mine' }), noteAt('river', 2, { note: 'theirs' })];
  const older = { ...mine, note: '', changed: 0 };
  const file = notesOfFile(fileOf([theirs, noteAt('town'), { ...noteAt('wide'), id: mine.id }], book, new Date(0)));
  assert.deepEqual(file.book, book);
  const once = merged([mine], file.notes);
  assert.deepEqual([once.added, once.changed, once.notes[0].note], [2, 1, 'mine\n\ntheirs']);
  assert.equal(new Set(once.notes.map(({ id }) => id)).size, 3);
  assert.deepEqual(merged(once.notes, file.notes), { notes: once.notes, added: 0, changed: 0 });
  assert.deepEqual(merged([mine], [older]).notes, [mine]);
  assert.ok(isSameBook(book, { ...book, address: '' }) && isSameBook(book, { ...book, title: 'New' }));
  assert.ok(!isSameBook({ ...book, title: '', address: '' }, { title: '', address: '', pages: 9 }));
});

test('a file that is cut off, damaged, newer or of another kind is refused as a whole', () => {
  const text = fileOf([noteAt('river'), noteAt('town')], { title: 'A', address: '', pages: 1 }, new Date(0));
  const changed = (change) => JSON.stringify({ ...JSON.parse(text), ...change });
  const files = [
    [text.slice(0, -30), 'importDamaged'], ['{"a":1}', 'importForeign'], ['', 'importForeign'], ['null', 'importForeign'],
    [changed({ version: 2 }), 'importNewer'], [changed({ notes: {} }), 'importDamaged'],
    [changed({ notes: new Array(5001).fill(noteAt('river')) }), 'importMany'],
    [text.replace('"yellow"', '"url(x)"'), 'importDamaged', 1], [text.replaceAll('"town"', '7'), 'importDamaged', 2],
  ];
  for (const [file, word, entry = 0] of files) {
    assert.throws(() => notesOfFile(file), (error) => error.word === word && error.entry === entry, word);
  }
});

test('links name a phrase to be searched for, or a passage that is found by its beginning and its end', () => {
  assert.equal(phraseLink('b', 5, 'old\ntown "x"'), 'b#page=5&search=%22old%20town%20x%22');
  assert.deepEqual(['river', '…', 'x'.repeat(99)].map(isPhrase), [true, false, false]);
  const long = `${'Word after word. '.repeat(5)}${TEXT} ${'And on it flows. '.repeat(4)}To the end.`;
  for (const [source, quote] of [[TEXT, 'river is'], [`${TEXT}\n${long}`, long], [TEXT, 'har-\nbour']]) {
    const from = source.indexOf(quote);
    const fragment = quoteLink('', 3, anchorAt(source, from, from + quote.length));
    const { page, anchor } = quoteInAddress(fragment);
    const found = findAnchor(searched(source), anchor);
    assert.deepEqual([page, source.slice(found.from, found.to)], [3, quote]);
    assert.ok(fragment.length < 400);
  }
  assert.equal(quoteInAddress('#page=4'), null);
});
