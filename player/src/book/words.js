import { runScript } from './asking.js';
import { fileAddress } from './values.js';

/** @typedef {keyof typeof import('../../texts/en.json').page} Word */

/** @type {Map<string, string>} texts in the reader's language; a number in braces stands for a value */
const texts = new Map();

/**
 * Loads the texts of the most preferred of the browser's languages that there are; English is in the scripts.
 * @param {string} languages codes of all others, with blanks between them
 */
export async function loadTexts(languages) {
  const codes = languages.split(' ');
  for (const tag of navigator.languages ?? []) {
    const code = tag.toLowerCase().split('-')[0];
    if (code === 'en' || window.folveroTexts) return;
    // Where it fails, the reader's next language is used.
    if (codes.includes(code)) await Promise.resolve(fileAddress(`languages/${code}.js`)).then(runScript).catch(() => {});
  }
}

/**
 * Adds texts in the language that is loaded; those that it lacks are in English.
 * @param {string} table a line of names, then one of English texts, with | between them
 * @param {string} section of the texts
 */
export function learn(table, section) {
  for (const text of [table, window.folveroTexts?.[section] ?? '']) {
    /** @type {string[][]} */
    const [names, own = []] = text.split('\n').map((line) => line.split('|'));
    own.forEach((one, index) => texts.set(names[index], one));
  }
}

/**
 * @param {Word} word
 * @param {...(string | number)} values what stands in the text; of one with forms the last is the number
 * @returns {string}
 */
export function say(word, ...values) {
  // The form for most numbers comes first, then those for some, such as "few:..." in Polish.
  const [text, ...forms] = (texts.get(word) ?? '').split('\t');
  const form = forms.length ? new Intl.PluralRules(texts.get('language')).select(Number(values.at(-1))) + ':' : '';
  const own = forms.find((one) => one.startsWith(form))?.slice(form.length) ?? text;
  return own.replace(/\{(\d)\}/g, (_, place) => String(values[place]));
}

/**
 * Sets texts (data-say) and accessible names (data-name) of all elements below, and the way that they read.
 * @param {HTMLElement} root
 */
export function setTexts(root) {
  const html = document.documentElement;
  html.lang = texts.get('language') ?? '';
  html.dir = /^(ar|fa|he)/.test(html.lang) ? 'rtl' : 'ltr';
  for (const element of root.querySelectorAll('[data-say]')) {
    element.textContent = say(/** @type {Word} */ (element.getAttribute('data-say')));
  }
  for (const element of root.querySelectorAll('[data-name]')) {
    element.setAttribute('aria-label', say(/** @type {Word} */ (element.getAttribute('data-name'))));
  }
}
