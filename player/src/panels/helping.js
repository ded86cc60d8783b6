import { make, part } from '../book/dom.js';
import { Panel } from './panel.js';
import { say } from '../book/words.js';

/** @typedef {import('../book/words.js').Word} Word */

/** @type {[keys: string[], word: Word][]} keys of the book beside those of the bar's buttons */
const KEYS = [
  [['\u2190', '\u2192', 'Page \u2191', 'Page \u2193', 'space'], 'turn'], [['Home', 'End'], 'ends'],
];

/** @type {[gesture: Word, effect: Word][]} */
const GESTURES = [
  ['drag', 'turn'], ['tapSide', 'turn'], ['wheel', 'turn'], ['tapMiddle', 'toggleBar'],
  ['tapTwice', 'zoomIn'],
];

/** The panel that lists keys and gestures. */
export class Helping {
  /** @param {HTMLElement} root */
  constructor(root) {
    this.root = root;
    this.panel = new Panel(part(root, '.help-panel'));
  }

  open() {
    part(this.panel.dialog, '.keys').replaceChildren(
      ...KEYS.map(([names, word]) => row(caps(names), say(word))));
    const letters = [...this.root.querySelectorAll('[data-does][data-key]:not([hidden])')];
    const commands = letters.map((button) => {
      const { key = '', name } = /** @type {HTMLElement} */ (button).dataset;
      return row(caps([key]), say(/** @type {Word} */ (name)));
    });
    part(this.panel.dialog, '.letters').replaceChildren(row(caps(['G']), say('goTo')), ...commands);
    part(this.panel.dialog, '.gestures').replaceChildren(
      ...GESTURES.map(([gesture, effect]) => row([say(gesture)], say(effect))));
    this.panel.open();
  }
}

/** @param {string[]} names */
function caps(names) {
  return names.map((name) => make('kbd', '', name === 'space' ? say('space') : name));
}

/**
 * @param {(Node | string)[]} how
 * @param {string} effect
 */
function row(how, effect) {
  return make('div', '', make('dt', '', ...how), make('dd', '', effect));
}
