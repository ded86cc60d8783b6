/** Milliseconds from asking for a frame until it comes; more is late. */
const LATE_MS = 30;

/** What a frame counts at most, however late it is: the machine may have been busy otherwise. */
const MOST_OF_FRAME = 4;

/** With so much more lateness than frames in time, a machine does not keep up. */
const MOST_LATE = 12;

/** Notes whether frames come in time. */
export class Pace {
  #asked = 0;
  #late = 0;

  /** @param {number} now */
  ask(now) {
    this.#asked = now;
  }

  /** @param {number} now */
  frame(now) {
    const late = Math.min(MOST_OF_FRAME, Math.floor((now - this.#asked) / LATE_MS));
    this.#late = Math.max(0, this.#late + (late || -1));
  }

  /** Whether the machine does not keep up; once true, it is noted anew. */
  isLost() {
    if (this.#late < MOST_LATE) return false;
    this.#late = 0;
    return true;
  }
}
