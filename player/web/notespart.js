// Entry point of files/notes.js, which only readers who mark something need.

import { addStyle } from './addstyle.js';
import { Notes } from './notes.js';

/**
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {import('./data.js').DataFiles} files
 * @param {import('./side.js').SideRoom} room
 * @param {{bookmark: HTMLElement, notes: HTMLElement}} buttons in the bar
 */
export function makeNotes(player, layers, files, room, buttons) {
  player.learn(NOTES_TEXTS, 'notes');
  addStyle(NOTES_STYLE);
  return new Notes(player, layers, files, room, buttons);
}

window.folveroData?.('notes', makeNotes);
