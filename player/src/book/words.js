import { runScript } from './asking.js';
import { fileAddress } from './values.js';

/** @typedef {keyof typeof import('../../texts/en.json').page} Word */

/** @type {Map<string, string>} texts in the reader's language; a number in braces stands for a value */
const texts = new Map();

/** Codes of the browser's languages, the most preferred first. */
const wanted = () => (navigator.languages ?? []).map((tag) => tag.toLowerCase().split('-')[0]);

/**
 * Loads the texts of languages that scripts do not have, where the reader's is one of these.
 * @param {string} table as learn() takes it, with lines for these languages that have no texts
 */
export async function loadMore(table) {
  const lines = table.split('\n').map((line) => line.split('|'));
  const line = wanted().map((code) => lines.find(([own]) => own === code)).find(Boolean);
  // Where it fails, the reader's next language is used.
  if (line?.length === 1 && !window.folveroTexts) {
    await Promise.resolve(fileAddress('languages.js')).then(runScript).catch(() => {});
  }
}

/**
 * Adds texts in the most preferred of the browser's languages that there are, else in the table's first.
 * @param {string} table a line of names, then a line for each language: its code and the texts, with | between them
 * @param {string} section of the texts
 */
export function learn(table, section) {
  const all = [table, window.folveroTexts?.[section] ?? ''].flatMap((text) => {
    const [names, ...languages] = text.split('\n').map((line) => line.split('|'));
    return languages.filter((own) => own.length > 1).map((own) => ({ names, own }));
  });
  const { names, own } = wanted().map((code) => all.find(({ own: [known] }) => known === code)).find(Boolean) ?? all[0];
  own.forEach((text, index) => texts.set(names[index], text));
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
