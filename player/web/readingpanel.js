import { make } from '../src/book/dom.js';
import { COLOURS, FACES, SIZES, WIDTHS } from './readinglooks.js';

/** @typedef {import('./readinglooks.js').Looks} Looks */

/** The small panel in which readers choose letters, lines and colours. */
export class LooksPanel {
  /**
   * @param {import('../src/player.js').Say} say
   * @param {HTMLElement} button that opens it
   * @param {Looks} looks
   * @param {() => void} changed
   */
  constructor(say, button, looks, changed) {
    this.say = say;
    this.button = button;
    this.looks = looks;
    this.changed = changed;
    this.smaller = this.#step('smaller', -1);
    this.larger = this.#step('larger', 1);
    this.percent = make('output', 'read-percent');
    const sizes = make('div', 'read-sizes', this.smaller, this.percent, this.larger);
    sizes.setAttribute('role', 'group');
    sizes.setAttribute('aria-label', say('letterSize'));
    this.element = make('div', 'read-looks', sizes, this.#choice('face', 'typeface', FACES),
      this.#choice('width', 'lineWidth', WIDTHS), this.#choice('colours', 'colours', COLOURS));
    this.element.setAttribute('role', 'group');
    this.element.setAttribute('aria-label', say('looks'));
    this.element.hidden = true;
    button.setAttribute('aria-expanded', 'false');
    button.addEventListener('click', () => this.show(this.element.hidden));
    this.#tell();
  }

  /**
   * @param {'smaller' | 'larger'} word
   * @param {number} way
   */
  #step(word, way) {
    const step = make('button', 'read-step read-' + word, 'A');
    step.setAttribute('type', 'button');
    step.setAttribute('aria-label', this.say(word));
    step.addEventListener('click', () => this.resize(way));
    return step;
  }

  /**
   * @template {'face' | 'width' | 'colours'} Name
   * @param {Name} name
   * @param {'typeface' | 'lineWidth' | 'colours'} word
   * @param {readonly (Looks[Name] & import('../src/player.js').AnyWord)[]} values
   */
  #choice(name, word, values) {
    const options = values.map((value) => {
      const input = /** @type {HTMLInputElement} */ (make('input', ''));
      Object.assign(input, { type: 'radio', name: 'read-' + name, value, checked: this.looks[name] === value });
      input.addEventListener('change', () => {
        this.looks[name] = value;
        this.changed();
      });
      const sign = make('span', 'read-sign');
      sign.setAttribute('aria-hidden', 'true');
      const label = make('label', 'read-option', input, sign, make('span', 'read-word', this.say(value)));
      label.dataset.value = value;
      return label;
    });
    const choice = make('fieldset', 'read-' + name + '-choice', make('legend', '', this.say(word)),
      make('div', 'read-options', ...options));
    return choice;
  }

  /** @param {boolean} shown */
  show(shown) {
    const left = !shown && this.element.contains(document.activeElement);
    this.element.hidden = !shown;
    this.button.setAttribute('aria-expanded', String(shown));
    if (left) this.button.focus({ preventScroll: true });
  }

  /** @param {number} way larger or smaller by so many steps, 0: as at first */
  resize(way) {
    const size = way ? this.looks.size + way : 3;
    this.looks.size = Math.min(SIZES.length - 1, Math.max(0, size));
    this.#tell();
    this.changed();
  }

  #tell() {
    const { size } = this.looks;
    this.percent.textContent = Math.round((100 * SIZES[size]) / SIZES[3]) + ' %';
    // A button that is disabled under the reader's finger would lose the focus.
    this.smaller.setAttribute('aria-disabled', String(size === 0));
    this.larger.setAttribute('aria-disabled', String(size === SIZES.length - 1));
  }

  /** @param {'paper' | 'sepia' | 'night'} colours in force, if the reader has chosen none */
  check(colours) {
    for (const input of this.element.querySelectorAll('input[name="read-colours"]')) {
      /** @type {HTMLInputElement} */ (input).checked = /** @type {HTMLInputElement} */ (input).value === colours;
    }
  }
}
