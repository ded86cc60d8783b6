import { labelOf } from '../src/book/labels.js';

/** @type {MessageEventSource | null} the page around the book, once it has asked for events */
let asking = null;
let askingOrigin = '';

/**
 * Reports what the reader did: as an event of the window, for scripts in this page, and as a message to the page around
 * a book in a frame, if that has asked for it. Nothing is sent anywhere else.
 * @param {string} name
 * @param {Record<string, unknown>} detail
 */
export function report(name, detail) {
  window.dispatchEvent(new CustomEvent('folvero:' + name, { detail }));
  post(name, detail);
}

/**
 * @param {string} name
 * @param {Record<string, unknown>} detail
 */
function post(name, detail) {
  asking?.postMessage({ folvero: name, ...detail }, { targetOrigin: askingOrigin });
}

/**
 * Reports which pages are shown, and once that the end was reached.
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 */
export function reportPages({ config, book }, layers) {
  const { pageCount } = book.views;
  /** @type {{page: number, pages: number[], label: string, pageCount: number} | undefined} */
  let shown;
  let ended = false;
  const follow = () => {
    const pages = layers.inView;
    if (String(pages) === String(shown?.pages)) return;
    const [page] = pages;
    shown = { page, pages, label: labelOf(config, page), pageCount };
    report('page', shown);
    if (ended || !pages.includes(pageCount)) return;
    ended = true;
    report('end', { pageCount });
  };
  window.addEventListener('message', ({ source, origin, data }) => {
    if (source !== window.parent || source === window || data?.folvero !== 'listen') return;
    asking = source;
    // Pages opened from disk have no origin that could be named.
    askingOrigin = origin === 'null' ? '*' : origin;
    if (shown) post('page', shown);
  });
  layers.followers.push(follow);
}
