/** @typedef {import('../turning/turner.js').Turner} Turner */

/** Turns pages automatically, an interval after the last turn has ended. */
export class Slideshow {
  /**
   * @param {Turner} turner
   * @param {number} interval seconds
   * @param {boolean} loop
   */
  constructor(turner, interval, loop) {
    this.turner = turner;
    this.interval = interval;
    this.loop = loop;
    this.running = false;
    this.timer = 0;
    this.onChange = () => {};
    /** Whether something pauses it, such as an open dialog. */
    this.isHeld = () => false;
  }

  /** @param {boolean} running */
  run(running) {
    this.running = running;
    this.wait();
    this.onChange();
  }

  /** Restarts the interval. */
  wait() {
    clearTimeout(this.timer);
    if (this.running) this.timer = window.setTimeout(() => this.#next(), this.interval * 1000);
  }

  #next() {
    const { turner } = this;
    if (document.hidden || turner.turning || this.isHeld()) {
      this.wait();
    } else if (turner.current < turner.book.views.count - 1) {
      turner.step(1);
    } else if (this.loop) {
      turner.turnTo(0);
    } else {
      this.run(false);
    }
  }
}
