/** Milliseconds from asking for a frame until it comes; more is late. */
const LATE_MS = 30;

/** What a frame counts at most, however late it is: the machine may have been busy otherwise. */
const MOST_OF_FRAME = 4;

/** With so much more lateness than frames in time, a machine does not keep up. */
const MOST_LATE = 12;

/** Lateness of late frames, on average, from which on the machine is far from keeping up. */
const FAR_BEHIND = 3;

/** Notes whether frames come in time. */
export class Pace {
  #asked = 0;
  #late = 0;
  #frames = 0;

  /** @param {number} now */
  ask(now) {
    this.#asked = now;
  }

  /** @param {number} now */
  frame(now) {
    const late = Math.min(MOST_OF_FRAME, Math.floor((now - this.#asked) / LATE_MS));
    this.#late = Math.max(0, this.#late + (late || -1));
    if (late) this.#frames += 1;
  }

  /**
   * By how much the density is to be lower, 0 where the machine keeps up. What was noted begins anew after that.
   * @returns {number}
   */
  lost() {
    if (this.#late < MOST_LATE) return 0;
    const isFar = this.#late >= FAR_BEHIND * this.#frames;
    this.#late = 0;
    this.#frames = 0;
    return isFar ? 1 : 0.5;
  }
}
