import { make, part } from '../src/book/dom.js';
import { Panel } from '../src/panels/panel.js';
import { icon } from './icons.js';

/**
 * Pauses, in milliseconds, after which missing pages are requested when the connection is back: browsers notice it
 * before requests succeed, and those that were under way may fail after it.
 */
const RETRIES = [0, 3000, 10000];

/** The panel in which readers save the whole book for reading offline. */
export class Keeping {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   * @param {import('./offline.js').Offline} offline
   * @param {HTMLElement} button in the bar
   */
  constructor({ root, say, book, toast }, layers, offline, button) {
    this.say = say;
    this.offline = offline;
    this.button = button;
    const title = make('h2', '', say('keep'));
    title.id = 'keep-title';
    const close = this.#button('close', '');
    close.append(icon('close'));
    close.setAttribute('aria-label', say('close'));
    this.text = make('p', 'keep-text');
    this.text.setAttribute('role', 'status');
    this.bar = /** @type {HTMLProgressElement} */ (make('progress', 'keep-bar'));
    this.bar.setAttribute('aria-labelledby', title.id);
    this.drop = this.#button('plain-button', '');
    this.drop.addEventListener('click', () => offline.want('read'));
    this.keep = this.#button('main-button', say('keep'));
    this.keep.addEventListener('click', () => offline.want('whole'));
    const body = make('div', 'panel-body', make('header', '', title, close), this.text, this.bar,
      make('div', 'actions', this.drop, this.keep));
    const dialog = make('dialog', 'panel keep-panel', body);
    dialog.setAttribute('aria-labelledby', title.id);
    part(root, '.wait').before(dialog);
    this.panel = new Panel(dialog);
    offline.onChange = () => this.#show();
    this.#show();
    this.toast = toast;
    this.images = book.images;
    this.layers = layers;
    /** Whether pages are missing because there is no connection. */
    this.alone = false;
    layers.followers.push(() => this.#look());
    window.addEventListener('online', () => {
      this.alone = false;
      for (const pause of RETRIES) setTimeout(() => this.images.retry(), pause);
    });
  }

  open() {
    this.offline.begin();
    this.panel.open();
  }

  /**
   * @param {string} className
   * @param {string} words
   */
  #button(className, words) {
    const button = /** @type {HTMLButtonElement} */ (make('button', className, words));
    button.type = 'button';
    return button;
  }

  /** Shows how much of the book is saved. */
  #show() {
    const { say, offline, button } = this;
    const { state } = offline;
    const { does, text: word } = shownOf(offline);
    const [kept, keeping] = [does === 'kept', does === 'keeping'];
    const percent = Math.floor((state?.share ?? 0) * 100);
    button.replaceChildren(icon(kept ? 'kept' : 'keep'));
    button.setAttribute('aria-label', say(does, percent));
    const text = say(word, word === 'keeping' ? percent : sizeOf(state?.bytes ?? 0));
    if (this.text.textContent !== text) this.text.textContent = text;
    this.bar.hidden = !keeping;
    this.bar.value = state?.share ?? 0;
    this.drop.hidden = !kept && !keeping;
    this.drop.textContent = say(kept ? 'keepRemove' : 'keepStop');
    this.keep.hidden = !state || kept || keeping;
    this.#holdFocus();
  }

  /** Keeps the focus in the panel when the focused button is hidden: elsewhere, keys would turn pages. */
  #holdFocus() {
    const { dialog } = this.panel;
    const active = /** @type {HTMLElement} */ (document.activeElement);
    if (!dialog.open || (dialog.contains(active) && !active.hidden)) return;
    const [first] = [...dialog.querySelectorAll('button')].reverse().filter((button) => !button.hidden);
    first.focus();
  }

  /**
   * Shows what the service worker reports about files that it can't provide.
   * @param {MessageEvent} message
   */
  hear({ data }) {
    const { say } = this;
    if (data.news === 'newEdition') this.toast.show(say('newEdition'), say('openNew'), () => location.reload());
    this.alone ||= data.news === 'notKept';
    this.#look();
  }

  /** Shows a note when a page in view is missing; those that are only prefetched do not matter yet. */
  #look() {
    const { say, layers, toast } = this;
    layers.inView.forEach(async (page) => {
      const entry = this.images.get(page);
      await entry.settled;
      const misses = this.alone && entry.state === 'missing' && layers.inView.includes(page);
      if (misses) toast.show(say('notKept'), say('close'), () => {});
    });
  }
}

/**
 * What the button and the panel say about keeping the book.
 * @param {Pick<import('./offline.js').Offline, 'state' | 'busy' | 'unable'>} offline
 * @returns {{does: 'keep' | 'keeping' | 'kept', text: import('../src/player.js').AnyWord}}
 */
export function shownOf({ state, busy, unable }) {
  const wanted = busy && state?.whole ? 'keeping' : 'keep';
  const does = state?.left === 0 ? 'kept' : wanted;
  if (unable) return { does, text: 'keepNever' };
  if (!state) return { does, text: 'keepWait' };
  if (does === 'kept') return { does, text: 'keptText' };
  if (does === 'keeping') return { does, text: 'keeping' };
  return { does, text: state.whole && state.failed ? 'keepFailed' : 'keepText' };
}

/** @param {number} bytes */
function sizeOf(bytes) {
  const digits = bytes < 1e7 ? 1 : 0;
  return (bytes / 1e6).toLocaleString(document.documentElement.lang, { maximumFractionDigits: digits });
}
