import { make } from '../src/book/dom.js';

/**
 * Adds the style sheet of a part of the player: made by script, it needs no leave of a policy that forbids style elements.
 * @param {string} style
 */
export function addStyle(style) {
  try {
    const sheet = new CSSStyleSheet();
    sheet.replaceSync(style);
    document.adoptedStyleSheets = [...document.adoptedStyleSheets, sheet];
  } catch {
    // Safari before 16.4
    document.head.append(make('style', '', style));
  }
}
