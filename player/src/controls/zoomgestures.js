/** @typedef {import('./reading.js').Reading} Reading */
/** @typedef {import('../turning/fold.js').Point} Point */

/** Pixels by which an arrow key pans. */
const KEY_PAN = 90;

/** Minimum speed for inertial panning, in pixels a millisecond. */
const LEAST_THROW = 0.08;

/** Zooms and pans by fingers, wheel and keys. */
export class ZoomGestures {
  /**
   * @param {Reading} reading
   * @param {HTMLElement} stage
   * @param {() => void} onPinch called when a second finger comes down
   */
  constructor(reading, stage, onPinch) {
    this.reading = reading;
    this.zoom = reading.zoom;
    this.stage = stage;
    this.onPinch = onPinch;
    /** @type {Map<number, Point>} */
    this.pointers = new Map();
    /** @type {{x: number, y: number, time: number}[]} */
    this.trail = [];
    stage.addEventListener('pointerdown', (event) => this.#down(event));
    stage.addEventListener('pointermove', (event) => this.#move(event));
    for (const name of ['pointerup', 'pointercancel', 'lostpointercapture']) {
      stage.addEventListener(name, (event) => this.#up(/** @type {PointerEvent} */ (event)));
    }
    stage.addEventListener('wheel', (event) => this.#wheel(event), { passive: false });
    // Safari zooms its whole page by these whatever touch-action says.
    stage.addEventListener('gesturestart', (event) => event.preventDefault());
    window.addEventListener('keydown', (event) => this.#key(event));
  }

  /** @param {PointerEvent} event */
  #down(event) {
    if (event.button !== 0 || this.pointers.size === 2) return;
    this.pointers.set(event.pointerId, { x: event.clientX, y: event.clientY });
    this.trail = [];
    if (this.zoom.pans) this.zoom.panBy(0, 0);
    if (this.pointers.size === 2) {
      this.stage.setPointerCapture(event.pointerId);
      this.onPinch();
      this.zoom.hold();
    }
  }

  /** @param {PointerEvent} event */
  #move(event) {
    const before = this.pointers.get(event.pointerId);
    if (!before) return;
    const here = { x: event.clientX, y: event.clientY };
    const other = [...this.pointers].find(([id]) => id !== event.pointerId)?.[1];
    this.pointers.set(event.pointerId, here);
    if (other) this.#pinch(before, here, other);
    else if (this.zoom.pans) {
      this.zoom.panBy(here.x - before.x, here.y - before.y);
      this.trail.push({ ...here, time: event.timeStamp });
      if (this.trail.length > 8) this.trail.shift();
    }
  }

  /**
   * Handles a pinch: the point between the fingers stays between them.
   * @param {Point} before
   * @param {Point} here
   * @param {Point} other
   */
  #pinch(before, here, other) {
    const apart = Math.max(20, Math.hypot(before.x - other.x, before.y - other.y));
    const now = Math.max(20, Math.hypot(here.x - other.x, here.y - other.y));
    /** @param {Point} finger */
    const middle = (finger) => ({ x: (finger.x + other.x) / 2, y: (finger.y + other.y) / 2 });
    this.zoom.pinch(middle(before), middle(here), now / apart);
  }

  /** @param {PointerEvent} event */
  #up(event) {
    if (!this.pointers.delete(event.pointerId)) return;
    if (this.pointers.size > 0) this.zoom.loosen();
    else this.zoom.release(this.#throwAt(event.timeStamp));
    this.trail = [];
  }

  /**
   * Speed of a finger when it was lifted, in pixels a millisecond.
   * @param {number} time
   */
  #throwAt(time) {
    const recent = this.trail.filter((point) => time - point.time < 90);
    const [first] = recent;
    const last = recent[recent.length - 1];
    if (!first || last.time <= first.time) return null;
    const passed = last.time - first.time;
    const speed = { x: (last.x - first.x) / passed, y: (last.y - first.y) / passed };
    return Math.hypot(speed.x, speed.y) > LEAST_THROW ? speed : null;
  }

  /** @param {WheelEvent} event */
  #wheel(event) {
    const unit = event.deltaMode === 1 ? 20 : 1;
    if (event.ctrlKey) {
      event.preventDefault();
      const way = Math.min(50, Math.max(-50, event.deltaY * unit));
      this.zoom.scaleAt({ x: event.clientX, y: event.clientY }, Math.exp(-way / 100));
    } else if (this.zoom.active || (this.zoom.scrolls && Math.abs(event.deltaY) > Math.abs(event.deltaX))) {
      event.preventDefault();
      this.reading.wheel(event.deltaX * unit, event.deltaY * unit, event.timeStamp);
    }
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const { zoom, reading } = this;
    if (event.defaultPrevented || event.ctrlKey || event.altKey || event.metaKey) return;
    if (event.target instanceof HTMLInputElement) return;
    /** @type {Record<string, () => void>} */
    const actions = {
      '+': () => reading.enlarge(), '=': () => reading.enlarge(), '-': () => zoom.out(), '0': () => zoom.reset(),
    };
    if (zoom.active) actions.Escape = () => zoom.reset();
    if (zoom.pans) {
      actions.ArrowUp = () => zoom.panBy(0, KEY_PAN);
      actions.ArrowDown = () => zoom.panBy(0, -KEY_PAN);
    }
    const action = actions[event.key];
    if (!action) return;
    event.preventDefault();
    action();
  }
}
