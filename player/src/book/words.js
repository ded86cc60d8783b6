/** @typedef {keyof typeof import('../../texts/en.json').page} Word */

/** @type {Map<string, string>} texts in the reader's language; a number in braces stands for a value */
const texts = new Map();

/**
 * Adds texts in the most preferred of the browser's languages that the table has, else in its first.
 * @param {string} table a line of names, then a line for each language: its code and the texts, with | between them
 */
export function learn(table) {
  const [names, ...languages] = table.split('\n').map((line) => line.split('|'));
  const wanted = (navigator.languages ?? []).map((tag) => tag.toLowerCase().split('-')[0])
    .find((code) => languages.some(([own]) => own === code));
  const own = languages.find(([code]) => code === wanted) ?? languages[0];
  own.forEach((text, index) => texts.set(names[index], text));
}

/**
 * @param {Word} word
 * @param {...(string | number)} values
 * @returns {string}
 */
export function say(word, ...values) {
  return (texts.get(word) ?? '').replace(/\{(\d)\}/g, (_, place) => String(values[place]));
}

/**
 * Sets texts (data-say) and accessible names (data-name) of all elements below.
 * @param {HTMLElement} root
 */
export function setTexts(root) {
  document.documentElement.lang = texts.get('language') ?? '';
  for (const element of root.querySelectorAll('[data-say]')) {
    element.textContent = say(/** @type {Word} */ (element.getAttribute('data-say')));
  }
  for (const element of root.querySelectorAll('[data-name]')) {
    element.setAttribute('aria-label', say(/** @type {Word} */ (element.getAttribute('data-name'))));
  }
}
