// States of a web book in which axe looks for what keeps readers out: panels, views, papers, directions, at a desk and
// on a phone.

import { faults } from '../../tests/browser/support/axe.mjs';
import { DESK, PHONE } from '../../tests/browser/support/reader.mjs';
import { WCAG } from './access.mjs';
import { openViewer } from './opening.mjs';

const key = (...names) => async (book) => { for (const name of names) await book.page.keyboard.press(name); };
const see = (book, selector) => book.page.waitForSelector(selector, { state: 'attached' });

/** Pages of the document's contents, whose lines are links. */
async function contentsPages({ page }) {
  await page.evaluate(() => window.folvero.goTo(4));
  await page.waitForFunction(() => document.querySelectorAll('.page-link').length > 30);
}
async function search(book) {
  await book.page.keyboard.press('/');
  await book.page.locator('.search-box').fill('the');
  await see(book, '.result');
}
async function searchStrip(book) {
  await search(book);
  await book.page.keyboard.press('Enter');
}
async function select(book) {
  await book.page.keyboard.press('h');
  await book.page.waitForFunction(() => !getSelection().isCollapsed);
}
async function highlight(book) {
  await select(book);
  await book.page.keyboard.press('Enter');
  await see(book, '.note-bar [aria-pressed="true"]');
}
async function notes(book) {
  await book.page.keyboard.press('m');
  await see(book, '.note-list');
}
async function note(book) {
  await highlight(book);
  await key('Escape')(book);
  await notes(book);
  await book.page.locator('.note-entry').last().locator('button').nth(1).click();
  await see(book, '.note-panel[open]');
}
async function enlarged(book) {
  await book.page.keyboard.press('+');
  await see(book, '.zoom-strip:not([hidden])');
}
async function reading(book) {
  await book.page.keyboard.press('a');
  await see(book, '.read-text p');
}
async function looks(book) {
  await reading(book);
  await book.page.locator('.read-opener').click();
  await see(book, '.read-looks:not([hidden])');
}
async function keep(book) {
  await book.page.keyboard.press('k');
  await see(book, '.keep-panel[open]');
}

/** What a reader does, from a page at rest; the state is named after it. */
const ACTS = {
  'pages': () => {}, 'the cover': key('Home'), 'dense links': contentsPages, 'the last pages': key('End'),
  'a larger page': enlarged,
  'thumbnails': key('t'), 'contents': key('c'), 'search': search, 'a hit': searchStrip,
  'selected words': select, 'a highlight': highlight, 'a bookmark': key('b'), 'the notes': notes, 'a note': note,
  'the view': key('v'), 'sharing': key('l'), 'printing': key('p'), 'help': key('?'), 'page number': key('g'),
  'keeping': keep, 'the reading view': reading, 'looks of the reading view': looks,
  'one page': key('1'), 'two pages': key('2'), 'whole width': key('w'),
};

const paper = (name) => async (book) => {
  await book.page.keyboard.press('v');
  await book.page.locator(`[name="paper"][value="${name}"]`).check({ force: true });
  await book.page.keyboard.press('Escape');
};
const READERS = {
  'desk': { ...DESK, locale: 'en' },
  'phone': { ...PHONE, locale: 'en' },
  'desk, Arabic, sepia': { ...DESK, locale: 'ar', paper: 'sepia' },
  'phone, Arabic, night': { ...PHONE, locale: 'ar', paper: 'night', colorScheme: 'dark' },
};

/** Back to a page at rest, whatever was open. */
async function leave(page) {
  for (let count = 0; count < 3; count += 1) await page.keyboard.press('Escape');
  await page.evaluate(() => { if (!window.folvero.pages.includes(13)) window.folvero.goTo(13); });
  await page.waitForFunction(() => !window.folvero.turning);
  await see({ page }, '.word');
}

/** The faults of a state, or why it was not reached. */
async function faultsIn(page, act) {
  const book = { page, rest: () => page.waitForTimeout(500) };
  try {
    await leave(page);
    await act(book);
    return { found: await faults(book, WCAG) };
  } catch (error) {
    return { missed: error.message.split('\n')[0] };
  }
}

/** Faults by state, and the states that were not reached. */
export async function faultsByState(browser, address, viewer) {
  const states = [];
  for (const [reader, { paper: wanted, ...options }] of Object.entries(READERS)) {
    const page = await openViewer(browser, `${address}#page=13`, viewer, options);
    page.setDefaultTimeout(15000);
    if (wanted) await paper(wanted)({ page });
    for (const [name, act] of Object.entries(ACTS)) {
      states.push({ name: `${reader}: ${name}`, ...await faultsIn(page, act) });
    }
    await page.context().close();
  }
  return states;
}
