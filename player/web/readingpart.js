// Entry point of files/reading.js, which only readers who want the text as text need.

import { addStyle } from './addstyle.js';
import { ReadingView } from './readingview.js';

/**
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {import('./data.js').DataFiles} files
 * @param {import('./side.js').SideRoom} room
 * @param {HTMLElement} button in the bar
 */
export function makeReading(player, layers, files, room, button) {
  player.learn(READING_TEXTS, 'reading');
  addStyle(READING_STYLE);
  return new ReadingView(player, layers, files, room, button);
}

window.folveroData?.('reading', makeReading);
