import { make, part } from '../src/book/dom.js';
import { Finding } from './finding.js';
import { Index } from './index.js';

/** Books shown at a time. */
const AT_A_TIME = 24;

/** @type {import('./texts/en.json')['search']} */
const TEXTS = JSON.parse(part(document, '#texts').textContent ?? '');

const NAMES = /** @type {const} */ (['q', 'author', 'subject', 'language', 'from', 'to']);

/** The page of the search: finds books while the reader types. */
class SearchPage {
  constructor() {
    this.index = new Index();
    this.search = /** @type {HTMLFormElement} */ (part(document, 'form.search'));
    this.filters = /** @type {HTMLFormElement} */ (part(document, 'form.filters'));
    this.details = /** @type {HTMLDetailsElement} */ (part(this.filters, 'details'));
    this.status = part(document, '.status');
    this.list = part(document, '.found .books');
    this.more = part(document, '.next');
    this.numbers = new Intl.NumberFormat(document.documentElement.lang);
    /** @type {Finding | null} the search that the reader waits for or sees */
    this.finding = null;
  }

  async start() {
    const asked = new URLSearchParams(location.search);
    this.#field('q')?.focus({ preventScroll: true });
    try {
      await this.index.open();
    } catch {
      this.status.textContent = TEXTS.failed;
      return;
    }
    this.#fill();
    for (const name of NAMES) {
      const field = this.#field(name);
      if (field && asked.has(name)) field.value = asked.get(name) ?? '';
    }
    this.filters.hidden = false;
    this.details.open = matchMedia('(min-width: 60rem)').matches;
    for (const form of [this.search, this.filters]) {
      form.addEventListener('input', () => this.#find());
      form.addEventListener('submit', (event) => event.preventDefault());
    }
    this.filters.addEventListener('reset', () => setTimeout(() => this.#find()));
    this.more.addEventListener('click', () => this.#showMore());
    await this.#find();
  }

  /**
   * @param {string} name
   * @returns {HTMLInputElement | HTMLSelectElement | null}
   */
  #field(name) {
    return document.querySelector(`.search [name="${name}"], .filters [name="${name}"]`);
  }

  #fill() {
    const { languages, authors, subjects } = this.index;
    for (const { tag, name, count } of languages) {
      const option = make('option', '', `${name} (${this.numbers.format(count)})`);
      option.setAttribute('value', tag);
      this.#field('language')?.append(option);
    }
    for (const [id, names] of /** @type {[string, string[]][]} */ ([['authors', authors], ['subjects', subjects]])) {
      const list = document.getElementById(id);
      for (const name of names) list?.append(Object.assign(document.createElement('option'), { value: name }));
    }
  }

  async #find() {
    const [q, author, subject, language, from, to] = NAMES.map((name) => this.#field(name)?.value ?? '');
    const finding = new Finding(this.index, { q, author, subject, language, from, to });
    this.finding = finding;
    this.#remember();
    try {
      if (!finding.empty) await finding.run();
      const found = await finding.next(AT_A_TIME);
      // The reader has typed on.
      if (this.finding !== finding) return;
      this.list.replaceChildren(...found.map(card));
      this.#tell();
    } catch {
      if (this.finding === finding) this.status.textContent = TEXTS.failed;
    }
  }

  /** Puts the search into the address, so that it can be sent and found again. From disk some browsers refuse that. */
  #remember() {
    const typed = NAMES.map((name) => [name, this.#field(name)?.value.trim() ?? '']).filter(([, value]) => value);
    const query = new URLSearchParams(typed).toString();
    try {
      history.replaceState(null, '', query ? '?' + query : location.pathname);
    } catch {
      // The address stays as it is.
    }
    const filters = typed.filter(([name]) => name !== 'q').length;
    part(this.filters, '.used').textContent = filters ? ` (${filters})` : '';
  }

  async #showMore() {
    const { finding } = this;
    if (!finding || this.more.ariaBusy === 'true') return;
    this.more.ariaBusy = 'true';
    const found = await finding.next(AT_A_TIME).catch(() => null);
    this.more.ariaBusy = 'false';
    if (this.finding !== finding) return;
    if (!found) this.status.textContent = TEXTS.failed;
    else {
      const cards = found.map(card);
      this.list.append(...cards);
      this.#tell();
      cards[0]?.querySelector('a')?.focus();
    }
  }

  #tell() {
    const finding = /** @type {Finding} */ (this.finding);
    const { count, done, dropped, empty, short } = finding;
    this.more.hidden = done;
    const text = empty ? TEXTS.start : count === 0 ? (short ? TEXTS.short : TEXTS.none) : count === 1 ? TEXTS.one
      : dropped > 0 && !done ? TEXTS.about : TEXTS.many;
    this.status.textContent = text.replace('{0}', this.numbers.format(count));
  }
}

/** Kinds of drawn covers in the style sheet. */
const DRAWN_COVERS = 6;

/**
 * A book as an item of the list, as the program writes it (src/library/catalogue/SitePage.cpp).
 * @param {import('./record.js').Record} record
 */
function card(record) {
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

new SearchPage().start();
