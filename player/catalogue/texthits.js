/** @typedef {{book: string, title: string, author: string, label: string, snippet: string[], address: string}} Hit */
/** @typedef {{hits: Hit[], count: number, open: boolean, last: boolean}} Answer one page of hits */

/** Pages of hits that a server has. */
const MOST_PAGES = 50;

/** @param {unknown} value */
const textOf = (value) => (typeof value === 'string' ? value : '');

/**
 * Where a server that names a search answers it: in a header of the page itself, so that servers without one are asked
 * for nothing that they don't have.
 * @param {string | null} header "Link"
 * @param {string} page the address of the page
 * @returns {URL | null} null for none, or one elsewhere
 */
export function searchIn(header, page) {
  const [, address] = /<([^<>]*)>\s*;[^,]*\brel="?search"?/.exec(header ?? '') ?? [];
  if (!address) return null;
  const found = new URL(address, page);
  return found.origin === new URL(page).origin ? found : null;
}

/**
 * @param {unknown} raw
 * @param {string} top address of the library
 * @returns {Hit | null} null for one that leads elsewhere
 */
function hitFrom(raw, top) {
  const { book, title, author, position, label, snippet, address } = Object(raw);
  const target = new URL(textOf(address), top);
  if (!address || !target.href.startsWith(top)) return null;
  return { book: textOf(book), title: textOf(title), author: textOf(author), label: textOf(label) || String(Number(position)),
    snippet: Array.isArray(snippet) ? snippet.map(textOf) : [], address: target.href };
}

/**
 * @param {unknown} raw the answer of the search
 * @param {string} top address of the library
 * @returns {Answer}
 */
export function answerFrom(raw, top) {
  const { hits, total, more, page, pageSize } = Object(raw);
  const all = (Array.isArray(hits) ? hits : []).map((hit) => hitFrom(hit, top));
  return { hits: /** @type {Hit[]} */ (all.filter(Boolean)), count: Number(total) || 0, open: more === true,
    last: !(page * pageSize < total) || page >= MOST_PAGES };
}

/** The search of all texts, which only some servers have. */
export class TextHits {
  constructor() {
    /** @type {URL | null} */
    this.address = null;
    this.top = new URL('../', location.href).href;
  }

  /** Finds out whether there is one. */
  async open() {
    if (!/^https?:$/.test(location.protocol)) return false;
    try {
      const self = await fetch(location.pathname, { method: 'HEAD' });
      const address = searchIn(self.headers.get('Link'), location.href);
      if (address && (await fetch(address, { method: 'HEAD' })).ok) this.address = address;
    } catch {
      // As without one.
    }
    return this.address !== null;
  }

  /**
   * @param {string} words
   * @param {number} page from 1
   * @param {AbortSignal} signal
   */
  async find(words, page, signal) {
    const address = new URL(/** @type {URL} */ (this.address));
    address.search = new URLSearchParams({ q: words, page: String(page) }).toString();
    const response = await fetch(address, { signal, headers: { Accept: 'application/json' } });
    if (!response.ok) throw new Error(String(response.status));
    return answerFrom(await response.json(), this.top);
  }
}
