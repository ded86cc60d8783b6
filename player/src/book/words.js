import { TRANSLATIONS } from './translations.js';

/** All that the player says to readers. A number in braces stands for a value. */
const ENGLISH = {
  bar: 'Book', previous: 'Previous page', next: 'Next page', pageBox: 'Page number',
  thumbs: 'Thumbnails', play: 'Turn pages by itself', sound: 'Sound', full: 'Full screen',
  zoomIn: 'Zoom in', zoomOut: 'Zoom out', share: 'Share', print: 'Print', help: 'Help',
  more: 'More', close: 'Close', loading: 'Opening the book',
  page: 'Page {0}', pageOf: 'Page {0} of {1}', pagesOf: 'Pages {0} and {1} of {2}',
  pageMissing: 'Page {0} could not be shown',
  shareTitle: 'Share this book', shareLink: 'Link', shareAtPage: 'Open at page {0}',
  copy: 'Copy link', copied: 'Copied', copyByHand: 'The link is marked. Copy it with Ctrl+C.',
  send: 'Send', shareLocal: 'The book was opened from this computer, so the link works here only.',
  printThis: 'This page', printThese: 'These pages', printAll: 'All pages',
  printSome: 'Pages', printFrom: 'First page', printTo: 'Last page', printUntil: 'to',
  printWrong: 'Enter page numbers from 1 to {0}.', printWait: 'Preparing page {0} of {1}',
  helpTitle: 'Keys and gestures', helpKeys: 'Keys', helpGestures: 'Mouse and touch',
  turn: 'Turn the page', ends: 'First and last page', goTo: 'Go to a page',
  drag: 'Drag a page, or swipe', tapSide: 'Click or tap at a side',
  tapMiddle: 'Click or tap in the middle', toggleBar: 'Show or hide the bar',
  tapTwice: 'Double click, or spread two fingers',
  wheel: 'Mouse wheel', space: 'Space',
  wasOn: 'You were on page {0}', startOver: 'Start over', tryAgain: 'Try again',
  failed: 'This book could not be opened', failedText: 'Something unexpected went wrong.',
  unreachable: 'This book could not be loaded',
  unreachableText: 'The server gave no answer. Check your connection and try again.',
  incomplete: 'This book is incomplete',
  incompleteText: 'The folder \u201cfiles\u201d beside this page holds the pages of the book, but '
    + 'it could not be read. Keep this page together with that folder.',
  damaged: 'This book is damaged',
  damagedText: 'Its configuration could not be read, so the pages cannot be shown. '
    + 'Publishing or copying the book again should help.',
  empty: 'This book has no pages', emptyText: 'Nothing was published into it.',
};

/** @typedef {keyof typeof ENGLISH} Word */

/** @type {Record<string, Partial<Record<Word, string>>>} */
const LANGUAGES = { en: ENGLISH, ...TRANSLATIONS };

/**
 * Adds what further parts of the player say.
 * @param {Record<string, Record<string, string>>} words by language
 */
export function learn(words) {
  for (const [tag, own] of Object.entries(words)) LANGUAGES[tag] = { ...LANGUAGES[tag], ...own };
}

/** The first language that the reader prefers and the player knows. */
const language = (navigator.languages ?? [])
  .map((tag) => tag.toLowerCase().split('-')[0])
  .find((tag) => Object.hasOwn(LANGUAGES, tag)) ?? 'en';

/**
 * @param {Word} word
 * @param {...(string | number)} values
 * @returns {string}
 */
export function say(word, ...values) {
  const text = LANGUAGES[language][word] ?? LANGUAGES.en[word] ?? '';
  return text.replace(/\{(\d)\}/g, (_, place) => String(values[place]));
}

/**
 * Puts the words into the elements that ask for them, as text (data-say) or as name (data-name).
 * @param {HTMLElement} root
 */
export function sayEverywhere(root) {
  document.documentElement.lang = language;
  for (const element of root.querySelectorAll('[data-say]')) {
    element.textContent = say(/** @type {Word} */ (element.getAttribute('data-say')));
  }
  for (const element of root.querySelectorAll('[data-name]')) {
    element.setAttribute('aria-label', say(/** @type {Word} */ (element.getAttribute('data-name'))));
  }
}
