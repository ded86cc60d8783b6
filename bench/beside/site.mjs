// A folder with the same pages for each viewer, to be served by one server.

import { execFile } from 'node:child_process';
import { existsSync } from 'node:fs';
import { cp, mkdir, readdir, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { promisify } from 'node:util';

const here = path.dirname(fileURLToPath(import.meta.url));
const MODULES = path.join(here, '../node_modules');
/** Of Debian's packages libjs-pdf and pdf.js-common. */
const PDF_VIEWER = '/usr/share/javascript/pdf';

const run = promisify(execFile);

const head = (title, more) => `<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>${title}</title>
<meta name="viewport" content="width=device-width, initial-scale=1"><link rel="icon" href="data:,">
${more}</head><body>
`;

/** The page of page-flip's readme, in the window's size; the library itself has no keys. */
const pageFlip = (title, pictures, { width, height }) => `${head(title, `<style>
body { margin: 0; height: 100vh; display: grid; place-items: center; overflow: hidden }
main { width: min(100vw, 100vh * ${(2 * width / height).toFixed(4)}) }
</style>`)}<main><div id="book"></div></main>
<script src="/viewers/page-flip.browser.js"></script>
<script>
const flip = new St.PageFlip(document.getElementById('book'), { width: ${width}, height: ${height},
  size: 'stretch', minWidth: 200, maxWidth: ${width}, minHeight: 200, maxHeight: ${height}, showCover: true });
flip.loadFromImages(${JSON.stringify(pictures)});
addEventListener('keydown', ({ key }) => {
  if (key === 'ArrowRight') flip.flipNext();
  if (key === 'ArrowLeft') flip.flipPrev();
});
</script></body></html>
`;

/** The page of BookReader's readme, without its logo, which it would load from another server. */
const bookReader = (title, pictures, { width, height }) => {
  const pages = pictures.map((uri) => ({ width, height, uri }));
  const spreads = [pages.slice(0, 1)];
  for (let at = 1; at < pages.length; at += 2) spreads.push(pages.slice(at, at + 2));
  return `${head(title, `<style>html, body, #BookReader { margin: 0; height: 100% }</style>
<link rel="stylesheet" href="/viewers/bookreader/BookReader.css">
<script src="/viewers/bookreader/webcomponents-bundle.js"></script>
<script src="/viewers/bookreader/jquery-3.js"></script>
<script src="/viewers/bookreader/BookReader.js"></script>`)}<div id="BookReader"></div>
<script>
const br = new BookReader({ data: ${JSON.stringify(spreads)}, bookTitle: ${JSON.stringify(title)}, ppi: 144,
  imagesBaseURL: '/viewers/bookreader/images/', showLogo: false, ui: 'full', el: '#BookReader' });
br.init();
</script></body></html>
`;
};

async function pageSize(folder) {
  const { stdout } = await run('file', ['--brief', folder]);
  const [width, height] = stdout.match(/\b(\d{3,5}) ?x ?(\d{3,5})\b/).slice(1).map(Number);
  return { width, height };
}

/** Puts the viewers themselves into the folder, and a page, without which it would not be served. */
export async function addViewers(site) {
  const viewers = path.join(site, 'viewers');
  await mkdir(viewers, { recursive: true });
  await writeFile(path.join(site, 'index.html'), `${head('Viewers', '')}</body></html>\n`);
  await cp(path.join(MODULES, 'page-flip/dist/js'), viewers, { recursive: true });
  await cp(path.join(MODULES, '@internetarchive/bookreader/BookReader'), path.join(viewers, 'bookreader'), {
    recursive: true, filter: (name) => !/\.map$|worker|translator|ia-bookreader|hypothesis/.test(path.basename(name)) });
  await cp(PDF_VIEWER, path.join(viewers, 'pdf'), {
    recursive: true, dereference: true, filter: existsSync }); // one of its links leads nowhere
}

/** Adds the pages of a document: name/folvero/, name/page-flip.html, name/bookreader.html, name/pages.pdf. */
export async function addDocument(site, program, { name, pdf, pages }) {
  const folder = path.join(site, name);
  await mkdir(folder, { recursive: true });
  await run(program, ['publish', '--quiet', '--type', 'web', '--title', name, '--pages', pages, pdf,
    path.join(folder, 'folvero')]);
  await run('qpdf', [pdf, '--pages', '.', pages, '--', '--linearize', path.join(folder, 'pages.pdf')]);
  const pictures = path.join(folder, 'folvero/files/page');
  const names = (await readdir(pictures)).sort((a, b) => parseInt(a, 10) - parseInt(b, 10));
  const addresses = names.map((file) => `folvero/files/page/${file}`);
  const size = await pageSize(path.join(pictures, names[0]));
  await writeFile(path.join(folder, 'page-flip.html'), pageFlip(name, addresses, size));
  await writeFile(path.join(folder, 'bookreader.html'), bookReader(name, addresses, size));
}
