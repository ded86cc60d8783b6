/** @typedef {import('../book/config.js').BookConfig} BookConfig */
import { fileAddress } from '../book/values.js';

const TURN_SOUND = 'extfiles/moveSound.mp3';

/** Plays the page-turn sound and the background sound. Browsers allow neither before a user gesture. */
export class Sounds {
  /** @param {BookConfig['sound']} background */
  constructor(background) {
    this.background = background;
    this.on = true;
    this.allowed = false;
    /** @type {HTMLAudioElement | null} */
    this.turnSound = null;
    /** @type {HTMLAudioElement | null} */
    this.music = null;
    this.timesLeft = background.loops;
    for (const kind of ['pointerdown', 'keydown']) {
      window.addEventListener(kind, () => this.#allow(), { once: true, capture: true });
    }
    document.addEventListener('visibilitychange', () => {
      if (document.hidden) this.music?.pause();
      else this.#playMusic();
    });
  }

  async playTurn() {
    if (!this.on || !this.allowed) return;
    this.turnSound ??= new Audio(await fileAddress(TURN_SOUND));
    this.turnSound.currentTime = 0;
    this.turnSound.volume = 0.7;
    quietly(this.turnSound.play());
  }

  /** @param {boolean} on */
  switchTo(on) {
    this.on = on;
    if (on) this.#playMusic();
    else this.music?.pause();
  }

  #allow() {
    if (this.allowed) return;
    this.allowed = true;
    this.#playMusic();
  }

  async #playMusic() {
    if (!this.background.file || !this.on || !this.allowed || this.timesLeft === 0) return;
    const address = await fileAddress(this.background.file);
    if (!this.on) return;
    if (!this.music) {
      this.music = new Audio(address);
      // Looped by the browser, a sound repeats without a gap.
      this.music.loop = this.background.loops < 0;
      this.music.addEventListener('ended', () => {
        if (this.timesLeft > 0) this.timesLeft--;
        this.#playMusic();
      });
    }
    quietly(this.music.play());
  }
}

/**
 * Ignores failures: a sound that can't be played is no reason to disturb the reader.
 * @param {Promise<void>} playing
 */
function quietly(playing) {
  playing.catch(() => {});
}
