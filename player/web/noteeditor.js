import { make, part } from '../src/book/dom.js';
import { Panel } from '../src/panels/panel.js';
import { icon } from './icons.js';
import { LONGEST } from './notestore.js';

/** Letters of a quote that are shown above its note. */
const SHOWN = 240;

/** The dialog in which a note is written. */
export class NoteEditor {
  /** @param {import('../src/player.js').Player} player */
  constructor({ root, say }) {
    const title = make('h2', '', say('note'));
    title.id = 'note-title';
    const close = this.#button('close', '', () => this.panel.close());
    close.append(icon('close'));
    close.setAttribute('aria-label', say('close'));
    this.quote = make('blockquote', 'note-quote');
    this.quote.dir = 'auto';
    this.text = /** @type {HTMLTextAreaElement} */ (make('textarea', 'note-text'));
    Object.assign(this.text, { rows: 5, maxLength: LONGEST, dir: 'auto' });
    this.text.setAttribute('aria-labelledby', title.id);
    this.text.addEventListener('keydown', (event) => {
      if (event.key === 'Enter' && (event.ctrlKey || event.metaKey)) this.panel.close();
    });
    const cancel = this.#button('plain-button', say('cancel'), () => {
      this.save = () => {};
      this.panel.close();
    });
    const save = this.#button('main-button', say('save'), () => this.panel.close());
    const dialog = make('dialog', 'panel note-panel', make('div', 'panel-body', make('header', '', title, close),
      this.quote, this.text, make('div', 'actions', cancel, save)));
    dialog.setAttribute('aria-labelledby', title.id);
    part(root, '.wait').before(dialog);
    this.panel = new Panel(dialog);
    // However the dialog is closed, what was written is worth more than what was not.
    this.panel.onClose = () => this.save(this.text.value.trim());
    /** @type {(note: string) => void} */
    this.save = () => {};
  }

  /**
   * @param {string} className
   * @param {string} words
   * @param {() => void} act
   */
  #button(className, words, act) {
    const button = make('button', className, words);
    button.setAttribute('type', 'button');
    button.addEventListener('click', act);
    return button;
  }

  /**
   * @param {string} quote
   * @param {string} note
   * @param {(note: string) => void} save called with what was written, unless the reader cancels
   */
  open(quote, note, save) {
    this.save = save;
    this.quote.textContent = quote.length > SHOWN ? quote.slice(0, SHOWN).trimEnd() + '\u2026' : quote;
    this.quote.hidden = !quote;
    this.text.value = note;
    this.panel.open();
    this.text.focus();
  }
}
