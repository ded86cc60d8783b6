import { make } from '../src/book/dom.js';
import { append } from './booksfound.js';

/** Typing goes on for so long, in milliseconds, before a server is asked. */
const PAUSE = 200;

/** The pages of books whose texts have what is looked for, as items of a list. */
export class TextsFound {
  /**
   * @param {import('./texthits.js').TextHits} hits
   * @param {HTMLElement} list
   * @param {import('./texts/en.json')['search']} texts
   */
  constructor(hits, list, texts) {
    this.hits = hits;
    this.list = list;
    this.texts = texts;
    this.words = '';
    this.page = 0;
    /** @type {import('./texthits.js').Answer} */
    this.answer = { hits: [], count: 0, open: false, last: true };
    this.running = new AbortController();
  }

  get count() {
    return this.answer.count;
  }

  get done() {
    return this.answer.last;
  }

  /** The text of the status, with "{0}" for the count. */
  get status() {
    const { texts, answer } = this;
    if (!this.words) return texts.startTexts;
    if (!answer.count) return texts.noPage;
    return answer.open ? texts.morePages : answer.count === 1 ? texts.onePage : texts.manyPages;
  }

  /**
   * @param {string} words
   * @returns {Promise<boolean>} false when the reader has typed on meanwhile
   */
  async find(words) {
    this.running.abort();
    const { signal } = this.running = new AbortController();
    await new Promise((resolve) => { setTimeout(resolve, PAUSE); });
    if (signal.aborted) return false;
    this.words = words.trim();
    this.page = 0;
    this.answer = { hits: [], count: 0, open: false, last: true };
    if (this.words && !await this.#next(signal)) return false;
    this.list.replaceChildren(...this.answer.hits.map((hit) => item(hit, this.texts)));
    return true;
  }

  /** @returns {Promise<boolean>} as of find */
  async more() {
    if (!await this.#next(this.running.signal)) return false;
    append(this.list, this.answer.hits.map((hit) => item(hit, this.texts)));
    return true;
  }

  /** @param {AbortSignal} signal */
  async #next(signal) {
    try {
      const answer = await this.hits.find(this.words, this.page + 1, signal);
      if (signal.aborted) return false;
      this.answer = answer;
      this.page += 1;
      return true;
    } catch (error) {
      if (signal.aborted) return false;
      throw error;
    }
  }
}

/**
 * @param {import('./texthits.js').Hit} hit
 * @param {import('./texts/en.json')['search']} texts
 */
function item({ title, author, label, snippet, address }, texts) {
  const name = make('span', 'name', title);
  name.dir = 'auto';
  const link = make('a', '', name, make('span', 'at', texts.page.replace('{0}', label)));
  link.setAttribute('href', address);
  const words = make('p', 'words', ...snippet.map((piece, index) => (index % 2 ? make('mark', '', piece) : piece)));
  words.dir = 'auto';
  const by = make('span', 'by', author);
  by.dir = 'auto';
  return make('li', '', link, ...(author ? [by] : []), words);
}
