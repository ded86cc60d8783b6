// What eslint holds all our JavaScript to. It runs at the repository's root.

import js from '@eslint/js';
import globals from 'globals';

/**
 * @param {string[]} files
 * @param {'module' | 'script'} sourceType
 * @param {object} names that are there
 */
const kind = (files, sourceType, names) => ({ files, languageOptions: { sourceType, globals: names } });

/** The build puts them in. */
const BUILT = { TURN: false, LANGUAGES: false, PAGE_TEXTS: false, WEB_TEXTS: false, OFFLINE_TEXTS: false, READING_TEXTS: false,
  READING_STYLE: false, NOTES_TEXTS: false, NOTES_STYLE: false, VECTORS_TEXTS: false, VECTORS_STYLE: false };

export default [
  js.configs.recommended,
  kind(['**/*.mjs'], 'module', { ...globals.node, ...globals.browser }),
  kind(['player/early.js', 'player/{src,web,catalogue,preview}/**/*.js'], 'module', { ...globals.browser, ...BUILT }),
  kind(['player/swf/*.js'], 'script', globals.browser),
  kind(['player/sw*.js'], 'module', { ...globals.serviceworker, AbortSignal: false, BOOK: false }),
  // Its one name is for the pages that take it.
  { files: ['player/swf/*.js'], rules: { 'no-unused-vars': ['error', { vars: 'local' }] } },
];
