// Runs in the page of the window's preview only, before the player's own script: the window puts it there, no book has
// it. Its one entry, window.folveroPreview.applySettings(), takes the configuration document with changed settings, not
// enciphered and without pages, and shows what can be shown without loading the book again.

import { readConfiguration, textAt } from '../src/book/config.js';
import { LiveSettings } from './livesettings.js';

/** @type {LiveSettings | undefined} */
let live;
/** @type {import('../src/book/config.js').BookConfig | undefined} settings that came before the book was open */
let waiting;

/** @param {string} document XML */
function applySettings(document) {
  const root = new DOMParser().parseFromString(document, 'application/xml').documentElement;
  const changed = readConfiguration((path) => textAt(root, path), []);
  if (live) live.apply(changed);
  else waiting = changed;
}

Object.defineProperty(window, 'folveroPreview', { value: Object.freeze({ applySettings }) });
window.folveroExtensions ??= [];
window.folveroExtensions.push(({ root, config }) => {
  const published = { ...config };
  return (parts) => {
    live = new LiveSettings(root, published, parts);
    if (waiting) live.apply(waiting);
  };
});
