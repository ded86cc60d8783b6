import { make, part } from '../src/book/dom.js';
import { BooksFound } from './booksfound.js';
import { Index } from './index.js';
import { TextHits } from './texthits.js';
import { TextsFound } from './textsfound.js';

/** @type {import('./texts/en.json')['search']} */
const TEXTS = JSON.parse(part(document, '#texts').textContent ?? '');

const NAMES = /** @type {const} */ (['q', 'author', 'subject', 'language', 'from', 'to']);

/**
 * A text in the form that the language has for a number.
 * @param {string | Record<string, string>} text
 * @param {number} count
 */
function formOf(text, count) {
  if (typeof text === 'string') return text;
  return text[new Intl.PluralRules(document.documentElement.lang).select(count)] ?? text.other;
}

/** The page of the search: finds books while the reader types, and the pages of their texts where a server can. */
class SearchPage {
  constructor() {
    this.index = new Index();
    this.hits = new TextHits();
    this.search = /** @type {HTMLFormElement} */ (part(document, 'form.search'));
    this.filters = /** @type {HTMLFormElement} */ (part(document, 'form.filters'));
    this.details = /** @type {HTMLDetailsElement} */ (part(this.filters, 'details'));
    this.status = part(document, '.status');
    this.more = part(document, '.next');
    this.views = part(document, '.views');
    this.books = new BooksFound(this.index, part(document, '.found .books'), TEXTS);
    this.texts = new TextsFound(this.hits, part(document, '.found .hits'), TEXTS);
    this.numbers = new Intl.NumberFormat(document.documentElement.lang + '-u-nu-latn');
    /** @type {BooksFound | TextsFound} what is shown */
    this.shown = this.books;
    /** Whether the reader chose what is shown. */
    this.chosen = false;
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
    this.filters.hidden = !this.#hasFilters;
    this.details.open = matchMedia('(min-width: 60rem)').matches;
    for (const form of [this.search, this.filters]) {
      form.addEventListener('input', () => this.#find());
      form.addEventListener('submit', (event) => event.preventDefault());
    }
    this.filters.addEventListener('reset', () => setTimeout(() => this.#find()));
    this.more.addEventListener('click', () => this.#showMore());
    this.#offerTexts(asked.get('in') === 'texts');
    await this.#find();
  }

  /** @param {boolean} first whether they are shown at first */
  async #offerTexts(first) {
    if (!await this.hits.open()) return;
    for (const button of this.views.querySelectorAll('button')) {
      button.addEventListener('click', () => {
        this.chosen = true;
        this.#show(button.value === 'texts' ? this.texts : this.books);
        this.#remember();
      });
    }
    this.views.hidden = false;
    this.chosen = first;
    if (first) {
      this.#show(this.texts);
      this.#remember();
    }
    await this.#findTexts();
  }

  /** Whether the books have facts to choose by. */
  get #hasFilters() {
    return this.filters.querySelector('input, select') !== null;
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
    this.#remember();
    await Promise.all([this.#findTexts(), this.#run(this.books, () => this.books.find({ q, author, subject, language, from, to }))]);
  }

  async #findTexts() {
    if (!this.views.hidden) await this.#run(this.texts, () => this.texts.find(this.#field('q')?.value ?? ''));
  }

  /**
   * Finds something, and shows what has come of it unless the reader has typed on.
   * @param {BooksFound | TextsFound} found
   * @param {() => Promise<boolean>} find
   */
  async #run(found, find) {
    try {
      if (!await find()) return;
      // The words that nobody wrote on a cover.
      if (!this.chosen && !this.views.hidden) this.#show(!this.books.count && this.texts.count ? this.texts : this.books);
      else this.#tell();
    } catch {
      if (this.shown === found) this.status.textContent = TEXTS.failed;
    }
  }

  /** @param {BooksFound | TextsFound} found */
  #show(found) {
    this.shown = found;
    const isText = found === this.texts;
    for (const button of this.views.querySelectorAll('button')) button.ariaPressed = String((button.value === 'texts') === isText);
    this.books.list.hidden = isText;
    this.texts.list.hidden = !isText;
    this.filters.hidden = isText || !this.#hasFilters;
    this.#tell();
  }

  /** Puts the search into the address, so that it can be sent and found again. From disk some browsers refuse that. */
  #remember() {
    const typed = NAMES.map((name) => [name, this.#field(name)?.value.trim() ?? '']).filter(([, value]) => value);
    const filters = typed.filter(([name]) => name !== 'q').length;
    if (this.chosen && this.shown === this.texts) typed.push(['in', 'texts']);
    const query = new URLSearchParams(typed).toString();
    try {
      history.replaceState(null, '', query ? '?' + query : location.pathname);
    } catch {
      // The address stays as it is.
    }
    part(this.filters, '.used').textContent = filters ? ` (${filters})` : '';
  }

  async #showMore() {
    if (this.more.ariaBusy === 'true') return;
    this.more.ariaBusy = 'true';
    const { shown } = this;
    await this.#run(shown, () => shown.more());
    this.more.ariaBusy = 'false';
  }

  #tell() {
    this.more.hidden = this.shown.done;
    const { status, count } = this.shown;
    this.status.textContent = formOf(status, count).replace('{0}', this.numbers.format(count));
    for (const button of this.views.querySelectorAll('button')) {
      const found = button.value === 'texts' ? this.texts : this.books;
      part(button, '.count').textContent = this.#field('q')?.value.trim() ? this.numbers.format(found.count) : '';
    }
  }
}

new SearchPage().start();
