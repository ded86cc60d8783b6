import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Thing } from '../support/browser.mjs';
import { addStyle } from '../../web/addstyle.js';
import { wordsIn } from '../../web/selecting.js';

test('a part brings its styles as a sheet, and as an element where scripts can make no sheets', () => {
  const added = [];
  document.createElement = (tag) => Object.assign(new Thing(), { tag, append(text) { this.text = text; } });
  document.head = { append: ({ tag, text }) => added.push([tag, text]) };
  document.adoptedStyleSheets = ['earlier'];
  addStyle('a {}');
  assert.deepEqual([added, document.adoptedStyleSheets], [[['style', 'a {}']], ['earlier']]);
  globalThis.CSSStyleSheet = class { replaceSync(style) { this.style = style; } };
  addStyle('b {}');
  assert.deepEqual([added.length, ...document.adoptedStyleSheets.map((sheet) => sheet.style ?? sheet)], [1, 'earlier', 'b {}']);
});

test('what is selected are parts of words, none of them empty or on a hidden page', () => {
  const line = {};
  const words = ['one ', 'two ', 'three'].map((data) => ({ firstChild: { data, length: data.length }, parentElement: line }));
  const [first, , last] = words.map(({ firstChild }) => firstChild);
  const face = (hidden) => ({ over: { hidden, querySelectorAll: () => words } });
  /** What is selected between these places, where all is on the page or nothing. */
  const selected = (startContainer, startOffset, endContainer, endOffset, hidden = false) => wordsIn({ getRangeAt: () =>
    ({ startContainer, startOffset, endContainer, endOffset, intersectsNode: () => true }) }, { faces: [face(hidden)] })
    .map(({ part, from, to }) => [part, from, to]);
  assert.deepEqual(selected(first, 1, last, 2), [['ne ', 1, 4], ['two ', 0, 4], ['th', 0, 2]]);
  assert.deepEqual(selected(first, 4, last, 0), [['two ', 0, 4]]);
  assert.deepEqual(selected(first, 0, last, 2, true), []);
});
