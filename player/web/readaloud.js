import { rangeIn, setMark } from './readingmarks.js';
import { sentencesOf } from './sentences.js';

/** Blocks whose text is spoken. */
const SPOKEN = 'h2, h3, h4, h5, h6, p, li, td, pre';

/** Share of the window's height below which the sentence that is spoken is brought up. */
const LOW = 0.7;

/** Reads the text aloud by the browser's voices, sentence by sentence, and scrolls along. */
export class ReadAloud {
  /**
   * @param {import('./readingflow.js').Flow} flow
   * @param {string} language of the book, empty where it is not known
   * @param {() => void} changed called when it begins, ends, or voices come
   */
  constructor(flow, language, changed) {
    this.flow = flow;
    this.language = language;
    this.changed = changed;
    this.on = false;
    /** Which call is the last: what earlier ones lead to counts no more. */
    this.turn = 0;
    /** @type {{block: HTMLElement, index: number} | null} sentence that was spoken last */
    this.place = null;
    this.synthesis = window.speechSynthesis;
    this.synthesis?.addEventListener?.('voiceschanged', () => changed());
    window.addEventListener('pagehide', () => this.stop());
  }

  /** Whether there are voices; some browsers find them after a while. */
  get able() {
    return (this.synthesis?.getVoices().length ?? 0) > 0;
  }

  toggle() {
    if (this.on) this.stop();
    else this.#begin();
  }

  stop() {
    this.turn += 1;
    if (!this.on) return;
    this.on = false;
    this.synthesis.cancel();
    setMark('read-spoken', []);
    this.changed();
  }

  /** Goes on with the sentence that was interrupted if it is still in view, else begins with the first in view. */
  #begin() {
    const { place } = this;
    this.on = true;
    this.flow.strayed = false;
    this.changed();
    const sentence = place?.block.isConnected ? this.#sentences(place.block)[place.index] : undefined;
    if (place && sentence && this.flow.sees(rangeIn(place.block, sentence.from, sentence.to))) {
      this.#speak(place.block, place.index);
      return;
    }
    const block = this.flow.blocks(SPOKEN).find((one) => one.getBoundingClientRect().bottom > this.flow.line);
    if (!block) {
      this.stop();
      return;
    }
    const first = this.#sentences(block).findIndex(({ from, to }) => {
      const { top, bottom } = rangeIn(block, from, to).getBoundingClientRect();
      return (top + bottom) / 2 >= this.flow.line;
    });
    this.#speak(block, Math.max(0, first));
  }

  /** @param {HTMLElement} block */
  #sentences(block) {
    const language = block.closest('[lang]')?.getAttribute('lang') ?? '';
    return sentencesOf(block.textContent ?? '', language);
  }

  /**
   * @param {HTMLElement} block
   * @param {number} index of a sentence
   */
  async #speak(block, index) {
    const turn = ++this.turn;
    const sentence = this.#sentences(block)[index];
    if (!sentence) {
      const next = await this.flow.blockAfter(block, SPOKEN);
      if (turn !== this.turn) return;
      if (next) this.#speak(next, 0);
      else this.stop();
      return;
    }
    this.place = { block, index };
    this.flow.pinned = block;
    const range = rangeIn(block, sentence.from, sentence.to);
    setMark('read-spoken', [range]);
    this.flow.follow(range, LOW);
    const words = new SpeechSynthesisUtterance((block.textContent ?? '').slice(sentence.from, sentence.to));
    this.#voice(words);
    words.onend = () => {
      if (turn === this.turn) this.#speak(block, index + 1);
    };
    words.onerror = () => {
      if (turn === this.turn) this.stop();
    };
    // What is left of an earlier visit would be spoken first.
    if (this.synthesis.speaking || this.synthesis.pending) this.synthesis.cancel();
    this.synthesis.speak(words);
  }

  /** @param {SpeechSynthesisUtterance} words */
  #voice(words) {
    const language = this.language || document.documentElement.lang;
    const [code] = language.toLowerCase().split('-');
    const voices = this.synthesis.getVoices().filter(({ lang }) => lang.toLowerCase().split(/[-_]/)[0] === code);
    words.lang = language;
    words.voice = voices.find(({ lang }) => lang.replace('_', '-').toLowerCase() === language.toLowerCase())
      ?? voices.find((voice) => voice.default) ?? voices[0] ?? null;
  }
}
