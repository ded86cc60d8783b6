import { make } from '../src/book/dom.js';

/** Kinds of drawn covers in the style sheet. */
const DRAWN_COVERS = 6;

/**
 * A book as an item of the list, as the program writes it (src/library/catalogue/SitePage.cpp).
 * @param {import('./record.js').Record} record
 */
export function card(record) {
  const name = make('span', 'name', record.title);
  name.dir = 'auto';
  if (/^[a-z]{2,3}(?:-[a-z0-9]{1,8})*$/i.test(record.language)) name.lang = record.language;
  const link = make('a', '', coverOf(record), name);
  link.setAttribute('href', `books/${record.key}.html`);
  const item = make('li', '', link);
  if (record.authors) {
    const by = make('span', 'by', record.authors.split('; ').join(', '));
    by.dir = 'auto';
    item.append(by);
  }
  if (record.year) item.append(make('span', 'year', String(record.year)));
  return item;
}

/** @param {import('./record.js').Record} record */
function coverOf({ id, title, cover }) {
  if (cover) {
    const picture = document.createElement('img');
    Object.assign(picture, { alt: '', loading: 'lazy',
      src: `../books/${id}/` + cover.split('/').map(encodeURIComponent).join('/') });
    return make('span', 'cover', picture);
  }
  const text = make('span', '', title);
  text.dir = 'auto';
  const kind = [...id].reduce((sum, letter) => (Math.imul(sum, 31) + letter.charCodeAt(0)) >>> 0, 0) % DRAWN_COVERS;
  const drawn = make('span', `drawn drawn-${kind}`, text);
  drawn.setAttribute('aria-hidden', 'true');
  return make('span', 'cover', drawn);
}
