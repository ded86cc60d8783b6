// Every template with documents as people have them, on a desk and on a phone, from disk or over http.
// FOLVERO_WHOLE_MATRIX=1 opens every document in every view from both places.

import assert from 'node:assert/strict';
import path from 'node:path';
import { test } from 'node:test';
import { folvero, ready, sample } from './support/program.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';

const DOCUMENTS = ['sample', 'slides', 'picture-book', 'novel'];
const VIEWS = {
  desk: { view: DESK, turn: (book) => book.page.keyboard.press('ArrowRight') },
  phone: { view: PHONE, turn: (book) => book.swipe([320, 400], [90, 410]) },
  'phone on its side': {
    view: { ...PHONE, viewport: { width: 844, height: 390 } },
    turn: (book) => book.swipe([700, 180], [240, 186]),
  },
};
const PLACES = { disk: 'openFromDisk', http: 'openOverHttp' };

// Only waiting is shortened; what is shown stays as the template has it.
const QUICK = ['--set', 'pageMoveTime=0.2', '--set', 'InitialShow=None'];

const templates = ready.skip ? [] : JSON.parse(await folvero('templates', '--json')).map(({ name }) => name);

const reader = Reader.forTests();

/** Publishes a document; the long one in full with the first template only. */
async function publish(document, template) {
  const folder = path.join(reader.folder, `${document}-${template}`);
  const pages = document === 'novel' && template !== templates[0] ? ['--pages', '1-12'] : [];
  await folvero('publish', '--quiet', '--type=html', '--template', template, ...QUICK, ...pages, sample(document), folder);
  return folder;
}

/** What lies over the pages of a book at rest: over a corner, where a reader takes hold of it, or over the lower edge. */
function inTheWay(book) {
  return book.page.evaluate(() => {
    document.getElementById('folvero').dataset.idle = 'yes';
    return [...document.querySelectorAll('.page')].map((one) => one.getBoundingClientRect())
      .filter(({ width }) => width > 0)
      .flatMap(({ left, right, top, bottom }) => [left + 3, (left + right) / 2, right - 3]
        .flatMap((x) => [top + 3, bottom - 3].map((y) => document.elementFromPoint(x, y))))
      .filter((at) => at && !at.closest('.stage')).map((at) => at.className);
  });
}

/** Opens a book, looks at its first page, turns once and looks again. */
async function tryOut(folder, place, { view, turn }) {
  const book = await reader[PLACES[place]](folder, { view });
  assert.deepEqual(await book.pages(), [1]);
  await book.page.waitForFunction(() => {
    const image = document.querySelector('.page.right img');
    return image && image.complete && image.naturalWidth > 0;
  });
  assert.match((await book.picture('right')).source, /files\/page\/1\.jpg$/);

  await turn(book);
  const spread = await book.page.evaluate(() => window.folvero.spread);
  await book.waitForPages(...(spread ? [2, 3] : [2]));
  const side = spread ? 'left' : 'right';
  assert.match((await book.picture(side)).source, /files\/page\/2\.jpg$/);
  assert.deepEqual(await inTheWay(book), []);

  assert.deepEqual(book.errors, []);
  const refused = (book.server?.requests ?? []).filter(({ status }) => status !== 200);
  assert.deepEqual(refused, []);
  await book.page.context().close();
}

/**
 * Places and views of a document in a template. Every document meets every template, and each of them every
 * view and both places: more than two that come together have nothing to do with one another.
 */
function waysOf(templateIndex, documentIndex) {
  const ways = Object.keys(PLACES).flatMap((place) => Object.keys(VIEWS).map((view) => [place, view]));
  return process.env.FOLVERO_WHOLE_MATRIX ? ways : [ways[(templateIndex * 2 + documentIndex * 5) % ways.length]];
}

for (const [templateIndex, template] of templates.entries()) {
  for (const [documentIndex, document] of DOCUMENTS.entries()) {
    const ways = waysOf(templateIndex, documentIndex);
    test(`${document} opens and turns in ${template}: ${ways.map((way) => way.join(', ')).join('; ')}`, async () => {
      const folder = await publish(document, template);
      for (const [place, view] of ways) await tryOut(folder, place, VIEWS[view]);
    });
  }
}
