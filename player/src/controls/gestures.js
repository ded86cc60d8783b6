/** @typedef {import('../turning/turner.js').Turner} Turner */
/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('./reading.js').Reading} Reading */

const DRAG_START = 7;
const FLICK_SPEED = 0.35;
const TAP_MS = 450;
const SWIPE_WAY = 40;

/** Maximum time and distance between the taps of a double tap. */
const DOUBLE_TAP_MS = 300;
const DOUBLE_TAP_REACH = 30;

/** Share of a page's width, at the outer edge, in which a tap can only mean turning: few pages have text there. */
const EDGE = 0.15;

/** How far beside a page a finger may still mean it, in CSS pixels. */
const NEAR = 24;

/** The same for taps that turn after a delay, where a page's content is unknown: a single page, and one of two. */
const WIDE_EDGE = { alone: 0.32, beside: 0.48 };

/** Wheel events closer together belong to one push, which turns one page. */
const WHEEL_PAUSE_MS = 160;

/** Turns pages by pointer, wheel and keys. */
export class Gestures {
  /**
   * @param {Book} book
   * @param {Turner} turner
   * @param {HTMLElement} stage
   * @param {Reading} reading
   * @param {() => void} onTapMiddle
   */
  constructor(book, turner, stage, reading, onTapMiddle) {
    this.book = book;
    this.turner = turner;
    this.stage = stage;
    this.reading = reading;
    this.zoom = reading.zoom;
    this.onTapMiddle = onTapMiddle;
    this.lastWheel = -Infinity;
    /** @type {Press | null} */
    this.press = null;
    /** @type {Tap | null} last tap that a second may follow */
    this.lastTap = null;
    /**
     * A turn that is delayed because a second tap would mean zooming.
     * @type {{timer: number, turn: () => void} | null}
     */
    this.waiting = null;
    /**
     * Whether a pointer means text; null where nobody knows. Not set where nothing is known about any page.
     * @type {((event: PointerEvent) => boolean | null) | null}
     */
    this.textAt = null;
    /**
     * Whether something on the pages, such as a link, has handled a tap.
     * @type {(event: PointerEvent) => boolean}
     */
    this.answersTap = () => false;
    /**
     * Whether the pointer is over something on the pages.
     * @type {(event: PointerEvent) => boolean}
     */
    this.isOver = () => false;
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
   * @property {boolean} scrolls whether it moves pages that are higher than the window
   * @property {Tap | null} first tap that this is the second of
   *
   * @typedef {object} Tap
   * @property {number} x
   * @property {number} y
   * @property {number} time
   * @property {() => void} undo reverts what it did
   *
   * @typedef {object} Turning what a tap turns
   * @property {1 | -1} steps
   * @property {boolean} waits whether a second tap may follow that means enlarging
   * @property {boolean} sure whether no second tap means that
   *
   * @typedef {object} Grip
   * @property {1 | -1} sign screen x of the leaf's own x
   * @property {number} gain
   * @property {number} pressX
   * @property {import('../turning/fold.js').Point} held
   */

  /** @param {PointerEvent} event */
  #down(event) {
    if (this.press || event.button !== 0) return;
    const { clientX: x, clientY: y, timeStamp: time, pointerId: id } = event;
    const { lastTap } = this;
    const first = lastTap && time - lastTap.time < DOUBLE_TAP_MS
      && Math.hypot(x - lastTap.x, y - lastTap.y) < DOUBLE_TAP_REACH ? lastTap : null;
    if (first) this.#forgetTurn();
    this.press = { id, x, y, time, trail: [], grip: null, scrolls: false, first };
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
      press.scrolls ||= this.zoom.scrolls && Math.abs(event.clientY - press.y) > Math.max(DRAG_START, Math.abs(moved));
      if (press.scrolls || Math.abs(moved) < DRAG_START) return;
      this.#forgetTurn();
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
    const edgeShare = snapped((press.y - this.book.top) / layout.pageHeight);
    if (!turner.grab(turner.current + steps, edgeShare)) return null;
    const leaf = /** @type {import('../turning/leaf.js').Leaf} */ (turner.leaf);
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
    if (press.scrolls) return;
    const moved = event.clientX - press.x;
    if (press.grip) this.turner.release(this.#goesOver(press, event));
    else if (Math.abs(moved) > SWIPE_WAY && this.turner.calm.matches && !this.zoom.active) {
      // Where no leaf follows the finger, the finger's way still says where to.
      this.turner.step(moved < 0 !== this.book.config.rightToLeft ? 1 : -1);
    } else if (event.timeStamp - press.time < TAP_MS && Math.abs(moved) < DRAG_START) {
      this.#tap(event, press.first);
    }
  }

  /** Cancels the gesture: something else handles the pointer from now on. */
  drop() {
    if (this.press?.grip) this.turner.release(false);
    this.press = null;
    this.#forgetTurn();
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

  /**
   * @param {PointerEvent} event
   * @param {Tap | null} first
   */
  #tap(event, first) {
    this.waiting?.turn();
    this.lastTap = null;
    if (first) {
      first.undo();
      // A double click on words marks one, elsewhere it enlarges as a double tap does everywhere.
      if (event.pointerType !== 'mouse' || !this.textAt?.(event)) this.zoom.toggleAt(event.clientX, event.clientY);
      return;
    }
    if (this.answersTap(event)) return;
    const turning = this.#turningAt(event);
    const undo = turning ? this.#turn(turning) : this.onTapMiddle;
    if (!turning) this.onTapMiddle();
    if (turning?.sure) return;
    this.lastTap = { x: event.clientX, y: event.clientY, time: event.timeStamp, undo };
  }

  /**
   * @param {Turning} turning
   * @returns {() => void} reverts it
   */
  #turn({ steps, waits }) {
    const { turner } = this;
    const before = turner.destination;
    const turn = () => {
      this.#forgetTurn();
      turner.step(steps);
    };
    if (waits) this.waiting = { turn, timer: window.setTimeout(turn, DOUBLE_TAP_MS) };
    else turn();
    return () => {
      if (turner.destination !== before) turner.stand(before);
    };
  }

  #forgetTurn() {
    clearTimeout(this.waiting?.timer);
    this.waiting = null;
  }

  /**
   * What a tap at that place turns; null in the middle, and for a mouse over words.
   * @param {PointerEvent} event
   * @returns {Turning | null}
   */
  #turningAt(event) {
    if (this.zoom.active) return null;
    const { book } = this;
    const { pageWidth } = book.layout;
    const { left, right } = book.boxOf(this.turner.current);
    const x = event.clientX;
    const atRight = x > (left + right) / 2;
    const inside = (atRight ? right - x : x - left) / pageWidth;
    const wide = WIDE_EDGE[right - left > pageWidth ? 'beside' : 'alone'];
    if (inside >= (this.textAt ? EDGE : wide)) return null;
    const mouse = event.pointerType === 'mouse';
    const beside = inside * pageWidth < -NEAR;
    const text = beside ? false : this.textAt?.(event) ?? null;
    if (mouse && text) return null;
    const waits = text === true || inside >= EDGE;
    return {
      steps: atRight !== book.config.rightToLeft ? 1 : -1,
      waits, sure: !waits && (mouse || text === false),
    };
  }

  /** @param {PointerEvent} event */
  #hover(event) {
    const { layout, config } = this.book;
    const { turner } = this;
    this.stage.style.cursor = this.#turningAt(event) ? 'pointer' : '';
    if (this.isOver(event)) {
      turner.endPeek();
      return;
    }
    if (turner.leaf && turner.leaf.motion?.end !== 'peek') return;
    const shift = this.book.shiftFor(turner.current);
    const half = layout.pageWidth;
    const x = (event.clientX - layout.spineX - shift) / half;
    const y = (event.clientY - this.book.top) / layout.pageHeight;
    const nearCorner = y > -0.02 && y < 1.02 && (y < 0.16 || y > 0.84);
    const reach = Math.abs(x) > 1 - EDGE && Math.abs(x) < 1.02;
    const side = x > 0 ? 'right' : 'left';
    const steps = (side === 'right') !== config.rightToLeft ? 1 : -1;
    const lifts = layout.spread || turner.painter.whole || steps === 1;
    if (!nearCorner || !reach || !lifts) turner.endPeek();
    else turner.peek(turner.current + steps, y < 0.5 ? 0 : 1);
  }

  /** @param {WheelEvent} event */
  #wheel(event) {
    const down = Math.abs(event.deltaY) > Math.abs(event.deltaX);
    const way = down ? event.deltaY : event.deltaX;
    if (event.ctrlKey || this.zoom.active || (down && this.zoom.scrolls) || Math.abs(way) < 8) return;
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
      PageDown: () => this.reading.step(1),
      PageUp: () => this.reading.step(-1),
      ' ': () => this.reading.step(event.shiftKey ? -1 : 1),
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
