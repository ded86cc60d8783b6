// Entry point of files/reading.js, which only readers who want the text as text need.

import { make } from '../src/book/dom.js';
import { ReadingView } from './readingview.js';

/**
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {import('./data.js').DataFiles} files
 * @param {import('./side.js').SideRoom} room
 * @param {HTMLElement} button in the bar
 */
export function makeReading(player, layers, files, room, button) {
  player.learn(READING_TEXTS);
  addStyle();
  return new ReadingView(player, layers, files, room, button);
}

/** A style sheet made by script needs no leave of a policy that forbids style elements. */
function addStyle() {
  try {
    const sheet = new CSSStyleSheet();
    sheet.replaceSync(READING_STYLE);
    document.adoptedStyleSheets = [...document.adoptedStyleSheets, sheet];
  } catch {
    // Safari before 16.4
    document.head.append(make('style', '', READING_STYLE));
  }
}

window.folveroData?.('reading', makeReading);
