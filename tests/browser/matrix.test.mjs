// Every template with documents as people have them, from disk and over http, on a desk and on a phone.
// FOLVERO_WHOLE_MATRIX=1 opens every document in every view from both places.

import assert from 'node:assert/strict';
import { execFile, execFileSync } from 'node:child_process';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { promisify } from 'node:util';
import { Likeness } from './support/likeness.mjs';
import { DESK, PHONE, Reader } from './support/reader.mjs';

const run = promisify(execFile);
const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;
const ready = FOLVERO_BIN && FOLVERO_SAMPLES_DIR;

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

const templates = ready
  ? JSON.parse(execFileSync(FOLVERO_BIN, ['templates', '--json'])).map(({ name }) => name)
  : [];

let reader;
let likeness;
if (ready) {
  before(async () => {
    reader = await Reader.start();
    likeness = await Likeness.start(reader.browser);
  });
  after(() => reader.stop());
}

/** Publishes a document; the long one in full with the first template only. */
async function publish(document, template) {
  const folder = path.join(reader.folder, `${document}-${template}`);
  const pages = document === 'novel' && template !== templates[0] ? ['--pages', '1-12'] : [];
  await run(FOLVERO_BIN, ['publish', '--quiet', '--template', template, ...QUICK, ...pages,
    path.join(FOLVERO_SAMPLES_DIR, `${document}.pdf`), folder]);
  return folder;
}

/** Opens a book, looks at its first page, turns once and looks again. */
async function tryOut(folder, place, { view, turn }) {
  const failed = [];
  const watch = (page) => {
    page.on('requestfailed', (request) => {
      if (request.failure().errorText !== 'net::ERR_ABORTED') failed.push(request.url());
    });
    page.on('console', (message) => { if (message.type() === 'error') failed.push(message.text()); });
  };
  const book = await reader[PLACES[place]](folder, { view, before: watch });
  const file = (number) => path.join(folder, `files/page/${number}.jpg`);
  assert.equal(await book.page.locator('#folvero').getAttribute('data-state'), 'ready');
  assert.deepEqual(await book.pages(), [1]);
  await book.page.waitForFunction(() => {
    const image = document.querySelector('.page.right img');
    return image && image.complete && image.naturalWidth > 0;
  });
  const [first, ...others] = await likeness.differencesOf(book, 'right', [file(1), file(2), file(3)]);
  assert.ok(first < 14 && first < Math.min(...others), `differs from pages 1 to 3 by ${[first, ...others]}`);

  await turn(book);
  const spread = await book.page.evaluate(() => window.folvero.spread);
  await book.waitForPages(...(spread ? [2, 3] : [2]));
  const side = spread ? 'left' : 'right';
  assert.match((await book.picture(side)).source, /files\/page\/2\.jpg$/);

  assert.deepEqual(book.errors, []);
  assert.deepEqual(failed, []);
  const refused = (book.server?.requests ?? []).filter(({ status }) => status !== 200);
  assert.deepEqual(refused, []);
  await book.page.context().close();
}

test('templates and documents are there', { skip: ready ? false : 'FOLVERO_BIN and FOLVERO_SAMPLES_DIR are not set' }, () => {
  assert.ok(templates.length > 0);
});

/**
 * Views of a book from a place. The first document is tried in all of them; the others in every view
 * once, from disk or over http by turns, so that each pair is met with some template.
 */
function viewsFrom(place, documentIndex, templateIndex) {
  const turn = Object.keys(PLACES).indexOf(place);
  return Object.entries(VIEWS).filter((_, index) =>
    documentIndex === 0 || process.env.FOLVERO_WHOLE_MATRIX || (index + documentIndex + templateIndex) % 2 === turn);
}

for (const [templateIndex, template] of templates.entries()) {
  for (const [documentIndex, document] of DOCUMENTS.entries()) {
    test(`${document} opens and turns in ${template}`, async () => {
      const folder = await publish(document, template);
      // Books from disk and over http may be open side by side; the views come one by one.
      await Promise.all(Object.keys(PLACES).map(async (place) => {
        for (const [name, view] of viewsFrom(place, documentIndex, templateIndex)) {
          await tryOut(folder, place, view).catch((error) => {
            error.message = `${place}, ${name}: ${error.message}`;
            throw error;
          });
        }
      }));
    });
  }
}
