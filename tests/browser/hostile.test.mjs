import assert from 'node:assert/strict';
import { copyFile, readFile, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { test } from 'node:test';
import { plainPages } from './support/book.mjs';
import { folvero, ready, sample } from './support/program.mjs';
import { TEMPLATE, Reader } from './support/reader.mjs';
import { readProperties } from './support/template.mjs';
import { typedPage } from './support/webbook.mjs';


/** Texts that try to become part of the page, of its script or of its style. */
const MARKUP = [
  '<img src=x onerror="window.broken=1"></title></script><script>window.broken=1</script>"><svg onload=window.broken=1>',
  ']]></TutorialTitle><x> &lt;img src=x onerror=window.broken=1&gt; ${index.title}',
  '");background:url("https://example.invalid/ \');window.broken=1//', 'constructor',
];

/** Addresses that must not be followed, in spellings that browsers take for one another. */
const REFUSED = [
  'javascript:window.broken=1', 'JaVaScRiPt:window.broken=1', 'java\tscript:window.broken=1', 'program://run',
  'java\nscript:window.broken=1', ' javascript:window.broken=1', 'vbscript:window.broken=1',
  'javascript://https://example.invalid/%0awindow.broken=1',
  'data:text/html,<script>window.broken=1</script>', 'file:///etc/passwd', 'blob:https://example.invalid/1',
  '//example.invalid/', '\\\\example.invalid\\share', 'https://',
];
const FOLLOWED = [
  'http://example.invalid/', 'HTTPS://example.invalid/a', 'https://example.invalid/"><script>window.broken=1</script>',
  'mailto:a@example.invalid', 'tel:+49301234', 'Tel:0301234',
];

const reader = Reader.forTests();

/** Notes whatever a book does beyond showing itself. */
function watch(page) {
  page.misdeeds = [];
  page.on('dialog', (dialog) => {
    page.misdeeds.push(`dialog ${dialog.message()}`);
    dialog.dismiss();
  });
  page.on('popup', (popup) => page.misdeeds.push(`window ${popup.url()}`));
  page.on('framenavigated', (frame) => {
    if (frame !== page.mainFrame()) page.misdeeds.push(`frame ${frame.url()}`);
  });
}

/** Uses everything that shows texts, then gives what the page consists of. */
async function structureOf(book) {
  for (const name of ['thumbs', 'share', 'print', 'help']) {
    await book.use(name);
    await book.page.keyboard.press('Escape');
  }
  await book.page.keyboard.press('End');
  await book.pages();
  await book.page.keyboard.press('Home');
  await book.waitForPages(1);
  return book.page.evaluate(() => {
    const counts = {};
    for (const element of document.querySelectorAll('*:not(.page *, .track *, script[src="files/UserConfig.js"])')) {
      const names = element.getAttributeNames().filter((name) => name.startsWith('on'));
      const kind = [element.localName, ...names].join(' ');
      counts[kind] = (counts[kind] ?? 0) + 1;
    }
    return counts;
  });
}

async function assertHarmless(book, folder) {
  assert.equal(await book.page.evaluate(() => window.broken), undefined, 'a script of the content ran');
  assert.deepEqual(book.page.misdeeds, []);
  assert.deepEqual(book.errors, []);
  const own = book.server?.address ?? new URL(`file://${encodeURI(folder)}/`).href;
  const foreign = book.requests.filter((address) => !address.startsWith(own) && !address.startsWith('data:'));
  assert.deepEqual(foreign, [], 'requests beyond the book');
}

async function publish(name, options, type = '--type=html') {
  const folder = path.join(reader.folder, name);
  await folvero('publish', '--quiet', type, '--links', '--bookmarks', ...options, sample('hostile'), folder);
  return folder;
}

// Texts in place of times leave those as they are, which are too long to wait for.
const watched = { before: watch, reducedMotion: 'reduce' };

test('the texts of a hostile document and of hostile settings stay texts', ready, async () => {
  const plain = await publish('harmless', ['--title', 'x', '--set', 'TutorialTitle=x']);
  const harmless = await reader.openFromDisk(plain, watched);
  const expected = await structureOf(harmless);
  const picture = path.join(reader.folder, 'a.p"ng\'),url(x) <b>#?%2e');
  await copyFile(path.join(TEMPLATE, 'icon.png'), picture);
  const properties = readProperties(TEMPLATE);
  for (const [index, text] of MARKUP.entries()) {
    const settings = path.join(reader.folder, 'settings.txt');
    await writeFile(settings, properties
      .filter(({ type, key }) => type !== 'pt_composite' && !/page(Width|Height)/i.test(key))
      .map(({ type, key }) => `${key}=${type === 'pt_file' ? picture : text}`).join('\n'));
    const folder = await publish(`texts-${index}`, ['--settings', settings, ...(index % 2 ? ['--title', text] : [])]);
    const book = await (index < 2 ? reader.openFromDisk(folder, watched) : reader.openOverHttp(folder, watched));
    assert.equal(await book.page.locator('#folvero').getAttribute('data-state'), 'ready', text);
    assert.equal(await book.page.locator('.caption').innerText(), text);
    const title = (await book.page.title()).replace(/\s+/g, ' ');
    assert.ok(index % 2 ? title === text : title.startsWith('</title><script>window.broken=1</script>'), title);
    assert.deepEqual(await structureOf(book), expected, text);
    await assertHarmless(book, folder);
    await reader.closeBooks();
  }
});

/** What runs in a page without a content security policy. */
const RAW = '<script>window.broken=1</script><script src="data:text/javascript,window.broken=1"></script>'
  + '<iframe srcdoc="<script>parent.broken=1</script>"></iframe><img src=x onerror="window.broken=1">'
  + '<a id="bad" href="javascript:window.broken=1">x</a>';

test('scripts that get into a page unescaped do not run', ready, async () => {
  for (const type of ['--type=html', '--type=web', '--single-file']) {
    const folder = await publish(`raw${type}`, [], type);
    for (const name of type === '--type=web' ? ['text.html', 'index.html'] : ['index.html']) {
      const html = await readFile(path.join(folder, name), 'utf8');
      await writeFile(path.join(folder, name), html.replaceAll(/(?=<title>|<\/head>|<main|<\/body>)/g, () => RAW));
    }
    for (const book of [await reader.openFromDisk(folder), await reader.openOverHttp(folder)]) {
      assert.equal(await book.page.locator('#folvero').getAttribute('data-state'), 'ready', type);
      for (const name of type === '--type=web' ? ['', 'text.html'] : ['']) {
        if (name) await book.page.goto(new URL(name, book.page.url()).href);
        await book.page.evaluate(() => document.querySelector('#bad').click());
        assert.equal(await book.page.evaluate(() => window.broken), undefined, `${type} ${name}`);
      }
    }
    await reader.closeBooks();
  }
});

test('only addresses of the web, for mail and of telephones can be followed from a page', async () => {
  const addresses = [...REFUSED, ...FOLLOWED];
  const page = typedPage(addresses.map(() => 'a link'), { links: addresses.map((target, row) => [row, 0, 6, target]) });
  const folder = await reader.webBook({ pages: plainPages(2), description: { pages: [page, typedPage(['x'])] } });
  const book = await reader.openFromDisk(folder, { before: watch });
  await book.page.waitForSelector('.page-link');
  const links = await book.page.locator('.page-link').evaluateAll((all) =>
    all.map(({ protocol, ariaDisabled }) => (ariaDisabled ? null : protocol)));
  assert.deepEqual(links.slice(0, REFUSED.length), REFUSED.map(() => null));
  assert.deepEqual(links.slice(REFUSED.length), ['http:', 'https:', 'https:', 'mailto:', 'tel:', 'tel:']);
  for (const link of await book.page.locator('.page-link[aria-disabled]').all()) {
    for (const modifiers of [[], ['Control']]) await link.click({ force: true, modifiers });
  }
  await assertHarmless(book, folder);
});

/** Paths of pictures and sounds, and, as many again, of grounds, which become part of the style. */
const PATHS = [
  '../../../../../../etc/passwd', 'https://example.invalid/x.jpg', 'javascript:window.broken=1',
  'page/%2e%2e/%2e%2e/%2e%2e/x.jpg', 'x.jpg?a#b', 'x.jpg\' onerror=\'window.broken=1',
  '/etc/passwd', '//example.invalid/x.jpg', 'data:image/svg+xml,<svg/>', 'page\\..\\..\\x.jpg',
  'x.jpg"),url("https://example.invalid/x.jpg', './../../x.jpg',
];

test('no path of a configuration leads out of the book', async () => {
  const half = PATHS.length / 2;
  for (let at = 0; at < half; at += 1) {
    const next = (at + 1) % half;
    const folder = await reader.book({
      pages: plainPages(2), thumb: { path: PATHS[at], width: 85, height: 113 },
      values: {
        SoundFile: PATHS[next], OuterBackgroundFile: PATHS[half + at], InnerBackgroundFile: PATHS[half + next],
      },
    });
    const book = await reader.openOverHttp(folder, { before: watch });
    await book.use('thumbs');
    await book.page.mouse.click(640, 20);
    await assertHarmless(book, folder);
    const beyond = book.server.requests.filter((request) => !/^\/($|index\.html$|files\/)/.test(request.path));
    assert.deepEqual(beyond, [], `${PATHS[at]}, ${PATHS[half + at]}`);
    await reader.closeBooks();
  }
});

test('the list of links keeps the addresses as they are in the document', ready, async () => {
  const addresses = JSON.parse(await folvero('info', '--json', sample('hostile'))).pages[0].links.map(({ url }) => url);
  for (const wanted of ['javascript:', 'JaVaScRiPt:', 'vbscript:'].map((scheme) => `${scheme}window.broken=1`)) {
    assert.ok(addresses.includes(wanted), `${wanted} in ${JSON.stringify(addresses)}`);
  }
});
