// Entry point of files/web/offline.js, which only books on a server need, and not at once.

import { Keeping } from './keeping.js';
import { Offline } from './offline.js';

/**
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {HTMLElement} button in the bar
 */
export function addKeeping(player, layers, button) {
  player.learn(OFFLINE_TEXTS, 'offline');
  return new Keeping(player, layers, new Offline(layers), button);
}

window.folveroData?.('web/offline', addKeeping);
