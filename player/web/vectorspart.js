// Entry point of files/vectors.js, which only readers who enlarge or print pages need.

import { addStyle } from './addstyle.js';
import { columnsOf } from './columns.js';
import { showColumn } from './columnzoom.js';
import { loadLarge } from './largepicture.js';
import { Sharper } from './sharper.js';
import { ZoomStrip } from './zoomstrip.js';

/**
 * Called when pages are first enlarged.
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {import('./data.js').DataFiles} files
 * @returns {(x: number, y: number) => boolean} shows the column at a place of the window, if there is one
 */
export function beginEnlarged(player, layers, files) {
  const { reading, zoom, turner } = player;
  player.learn(VECTORS_TEXTS, 'vectors');
  addStyle(VECTORS_STYLE);
  new Sharper(player, layers, files);
  new ZoomStrip(player);
  reading.columnsOf = (page, whole) => columnsOf(layers.faces.find(({ position }) => position === page), whole);
  // Pages begin before their text is there: at the top of the page, not of its first column.
  const { onJumped } = turner;
  /** @type {{ goal: unknown, way: number }} */
  let begun = { goal: null, way: 1 };
  turner.onJumped = () => {
    onJumped();
    begun = { goal: zoom.goal, way: reading.way };
  };
  layers.fillers.push(() => {
    if (begun.goal !== zoom.goal) return;
    reading.begin(begun.way);
    begun.goal = zoom.goal;
  });
  return (x, y) => showColumn(player, layers, x, y);
}

/**
 * The larger picture of a page, for the printer. Rejects where there is none.
 * @param {number} page
 * @param {import('../src/player.js').Player} player
 * @param {import('./layers.js').Layers} layers
 * @param {import('./data.js').DataFiles} files
 */
export async function largePage(page, { say }, { facts }, files) {
  const image = new Image();
  image.alt = say('page', page);
  await loadLarge(image, facts.largeFile(page), files);
  return image;
}

window.folveroData?.('vectors', { beginEnlarged, largePage });
