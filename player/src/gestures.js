/** @typedef {import('./turner.js').Turner} Turner */
/** @typedef {import('./book.js').Book} Book */
/** @typedef {import('./zoom.js').Zoom} Zoom */
/** @typedef {'left' | 'right'} Side */

const DRAG_START = 7;
const FLICK_SPEED = 0.35;
const TAP_MS = 450;
const SWIPE_WAY = 40;

/** Two taps in the middle, that near to each other in time and place, are a double tap. */
const DOUBLE_TAP_MS = 350;
const DOUBLE_TAP_REACH = 30;

/** Wheel events closer together belong to one push, which turns one page. */
const WHEEL_PAUSE_MS = 160;

/** Turns what pointers, wheel and keys do on the book into turns of pages. */
export class Gestures {
  /**
   * @param {Book} book
   * @param {Turner} turner
   * @param {HTMLElement} stage
   * @param {Zoom} zoom
   * @param {() => void} onTapMiddle
   */
  constructor(book, turner, stage, zoom, onTapMiddle) {
    this.book = book;
    this.turner = turner;
    this.stage = stage;
    this.zoom = zoom;
    this.onTapMiddle = onTapMiddle;
    this.lastWheel = 0;
    /** @type {Press | null} */
    this.press = null;
    /** @type {{x: number, y: number, time: number} | null} last tap that a second may follow */
    this.lastTap = null;
    /** Whether something on the pages has dealt with a tap. @param {PointerEvent} _ */
    this.answersTap = (_) => false;
    /** Whether the pointer is over something on the pages. @param {PointerEvent} _ */
    this.isOver = (_) => false;
    stage.addEventListener('pointerdown', (event) => this.#down(event));
    stage.addEventListener('pointermove', (event) => this.#move(event));
    stage.addEventListener('pointerup', (event) => this.#up(event));
    for (const name of ['pointercancel', 'lostpointercapture']) {
      stage.addEventListener(name, (event) => {
        if (/** @type {PointerEvent} */ (event).pointerId === this.press?.id) this.drop();
      });
    }
    stage.addEventListener('pointerleave', () => this.turner.endPeek());
    stage.addEventListener('wheel', (event) => this.#wheel(event), { passive: true });
    window.addEventListener('keydown', (event) => this.#key(event));
  }

  /**
   * @typedef {object} Press
   * @property {number} id
   * @property {number} x
   * @property {number} y
   * @property {number} time
   * @property {{x: number, time: number}[]} trail
   * @property {Grip | null} grip
   *
   * @typedef {object} Grip
   * @property {1 | -1} sign screen x of the leaf's own x
   * @property {number} gain
   * @property {number} pressX
   * @property {import('./fold.js').Point} held
   */

  /** @param {PointerEvent} event */
  #down(event) {
    if (this.press || event.button !== 0) return;
    this.press = {
      id: event.pointerId, x: event.clientX, y: event.clientY, time: event.timeStamp,
      trail: [], grip: null,
    };
    this.stage.setPointerCapture(event.pointerId);
  }

  /** @param {PointerEvent} event */
  #move(event) {
    const { press } = this;
    if (!press) {
      if (event.pointerType === 'mouse') this.#hover(event);
      return;
    }
    if (press.id !== event.pointerId) return;
    const moved = event.clientX - press.x;
    if (!press.grip) {
      if (Math.abs(moved) < DRAG_START) return;
      press.grip = this.#grip(press, moved);
      if (!press.grip) return;
    }
    press.trail.push({ x: event.clientX, time: event.timeStamp });
    if (press.trail.length > 6) press.trail.shift();
    this.#drag(press.grip, event);
  }

  /**
   * @param {Press} press
   * @param {number} moved
   * @returns {Grip | null}
   */
  #grip(press, moved) {
    const { layout, config } = this.book;
    const { turner } = this;
    const leftward = moved < 0;
    const steps = leftward !== config.rightToLeft ? 1 : -1;
    const edgeShare = snapped((press.y - layout.bookTop) / layout.pageHeight);
    if (!turner.grab(turner.current + steps, edgeShare)) return null;
    const leaf = /** @type {import('./leaf.js').Leaf} */ (turner.leaf);
    const sign = leaf.mirrored ? -1 : 1;
    const pressX = sign * (press.x - layout.spineX - leaf.shift);
    return { sign, gain: turner.painter.gain(leaf, pressX), pressX, held: { ...leaf.held } };
  }

  /**
   * @param {Grip} grip
   * @param {PointerEvent} event
   */
  #drag(grip, event) {
    const { press, book, turner } = this;
    const { leaf } = turner;
    if (!press || !leaf) return;
    const { layout } = book;
    leaf.slide = Math.min(1, Math.abs(event.clientX - press.x) / (layout.pageWidth * 1.4));
    const x = grip.sign * (event.clientX - layout.spineX - leaf.shift);
    const held = {
      x: grip.held.x + (x - grip.pressX) * grip.gain,
      y: grip.held.y + (event.clientY - press.y),
    };
    turner.drag(held);
  }

  /** @param {PointerEvent} event */
  #up(event) {
    const { press } = this;
    if (!press || press.id !== event.pointerId) return;
    this.press = null;
    const moved = event.clientX - press.x;
    if (press.grip) this.turner.release(this.#goesOver(press, event));
    else if (Math.abs(moved) > SWIPE_WAY && this.turner.calm.matches && !this.zoom.active) {
      // Where no leaf follows the finger, the finger's way still says where to.
      this.turner.step(moved < 0 !== this.book.config.rightToLeft ? 1 : -1);
    } else if (event.timeStamp - press.time < TAP_MS && Math.abs(moved) < DRAG_START) {
      this.#tap(event);
    }
  }

  /** Lets go of everything: the pointer now means something else. */
  drop() {
    if (this.press?.grip) this.turner.release(false);
    this.press = null;
  }

  /**
   * @param {Press} press
   * @param {PointerEvent} event
   */
  #goesOver(press, event) {
    const { leaf } = this.turner;
    if (!leaf) return false;
    const first = press.trail.find(({ time }) => event.timeStamp - time < 120);
    const lasted = first ? event.timeStamp - first.time : 0;
    const speed = first && lasted > 0 ? (event.clientX - first.x) / lasted : 0;
    const onward = Math.sign(event.clientX - press.x) * speed;
    if (Math.abs(onward) > FLICK_SPEED) return onward > 0;
    return leaf.done > this.turner.painter.enough;
  }

  /** @param {PointerEvent} event */
  #tap(event) {
    if (this.answersTap(event)) return;
    const { clientX: x, clientY: y, timeStamp: time } = event;
    const side = this.zoom.active ? null : this.#sideAt(x);
    if (side) {
      this.lastTap = null;
      this.turner.step((side === 'right') !== this.book.config.rightToLeft ? 1 : -1);
      return;
    }
    const { lastTap } = this;
    const second = lastTap !== null && time - lastTap.time < DOUBLE_TAP_MS
      && Math.hypot(x - lastTap.x, y - lastTap.y) < DOUBLE_TAP_REACH;
    this.lastTap = second ? null : { x, y, time };
    // What the first tap did to the bar at once, the second undoes.
    this.onTapMiddle();
    if (second) this.zoom.toggleAt(x, y);
  }

  /**
   * Side towards which a click at that place turns; none in the middle.
   * @param {number} clientX
   * @returns {Side | null}
   */
  #sideAt(clientX) {
    const { layout } = this.book;
    const width = layout.pageWidth * (layout.spread ? 2 : 1);
    const left = layout.bookLeft;
    const zone = layout.spread ? 0.24 : 0.32;
    if (clientX < left + width * zone) return 'left';
    if (clientX > left + width * (1 - zone)) return 'right';
    return null;
  }

  /** @param {PointerEvent} event */
  #hover(event) {
    const { layout, config } = this.book;
    const { turner } = this;
    if (this.isOver(event)) {
      turner.endPeek();
      return;
    }
    this.stage.style.cursor = !this.zoom.active && this.#sideAt(event.clientX) ? 'pointer' : '';
    if (turner.leaf && turner.leaf.motion?.end !== 'peek') return;
    const shift = this.book.shiftFor(turner.current);
    const half = layout.pageWidth;
    const x = (event.clientX - layout.spineX - shift) / half;
    const y = (event.clientY - layout.bookTop) / layout.pageHeight;
    const nearCorner = y > -0.02 && y < 1.02 && (y < 0.16 || y > 0.84);
    const reach = Math.abs(x) > 0.84 && Math.abs(x) < 1.02;
    const side = x > 0 ? 'right' : 'left';
    const steps = (side === 'right') !== config.rightToLeft ? 1 : -1;
    const lifts = layout.spread || turner.painter.whole || steps === 1;
    if (!nearCorner || !reach || !lifts) turner.endPeek();
    else turner.peek(turner.current + steps, y < 0.5 ? 0 : 1);
  }

  /** @param {WheelEvent} event */
  #wheel(event) {
    const way = Math.abs(event.deltaY) > Math.abs(event.deltaX) ? event.deltaY : event.deltaX;
    if (event.ctrlKey || this.zoom.active || Math.abs(way) < 8) return;
    const pause = event.timeStamp - this.lastWheel;
    this.lastWheel = event.timeStamp;
    if (pause >= WHEEL_PAUSE_MS) this.turner.step(way > 0 ? 1 : -1);
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const target = /** @type {HTMLElement} */ (event.target);
    if (target instanceof HTMLInputElement) return;
    if (event.key === ' ' && target instanceof HTMLButtonElement) return;
    const onward = this.book.config.rightToLeft ? -1 : 1;
    /** @type {Record<string, () => void>} */
    const actions = {
      ArrowRight: () => this.turner.step(onward),
      ArrowLeft: () => this.turner.step(-onward),
      PageDown: () => this.turner.step(1),
      PageUp: () => this.turner.step(-1),
      ' ': () => this.turner.step(event.shiftKey ? -1 : 1),
      Home: () => this.turner.go(0),
      End: () => this.turner.go(this.book.views.count - 1),
    };
    const action = actions[event.key];
    if (!action) return;
    event.preventDefault();
    action();
  }
}

/**
 * Near a corner the corner itself is taken.
 * @param {number} share
 */
function snapped(share) {
  if (share < 0.3) return 0;
  return share > 0.7 ? 1 : share;
}
