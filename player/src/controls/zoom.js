/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('../turning/turner.js').Turner} Turner */
/** @typedef {import('../turning/fold.js').Point} Point */
/** @typedef {import('../book/book.js').ZoomState} ZoomState */

const MOST_ZOOM = 5;
const TAP_ZOOM = 2.5;
const ZOOM_STEP = 1.5;
const ZOOM_MS = 240;

/** A level just above 1 would change how the book behaves and not how it looks: it is left only for a gesture's length. */
const LEAST_ZOOM = 1.04;

/** How far whole pages give way to fingers that make them smaller: the power of these that is left. */
const GIVE = 0.3;

/** Pause after which a wheel's gesture has ended, and pages are drawn sharply, in milliseconds. */
const REST_MS = 200;

/** Time in which a page that was thrown loses two thirds of its speed, in milliseconds. */
const GLIDE_MS = 300;

/** Room between an enlarged page's edge and the window's, in CSS pixels. */
const ZOOM_AIR = 14;

/** Enlarges the standing pages. While it does, pages change at once instead of turning. */
export class Zoom {
  /**
   * @param {Book} book
   * @param {Turner} turner
   */
  constructor(book, turner) {
    this.book = book;
    this.turner = turner;
    this.onChange = () => {};
    /** @type {ZoomState} */
    this.now = { level: 1, x: 0, y: 0 };
    /** @type {ZoomState} where the movement under way leads */
    this.goal = this.now;
    /** @type {ZoomState | null} where the gesture under way has led to, whatever limits say */
    this.free = null;
    /** Whether fingers hold the pages, which then go where these go. */
    this.held = false;
    /** Place of the book that is in the middle of the window, as shares of the shown pages. */
    this.middle = { x: 0.5, y: 0.5 };
    this.frame = 0;
    turner.atOnce = () => this.active;
    turner.onStood = () => this.#refit();
    turner.onJumped = () => this.#toReadingStart();
  }

  /** 1 while whole pages are seen. */
  get level() {
    return this.goal.level;
  }

  get active() {
    return this.held || this.goal.level > 1;
  }

  in() {
    this.#glideTo(this.#about(this.#windowMiddle(), this.level * ZOOM_STEP));
  }

  out() {
    this.#glideTo(this.#about(this.#windowMiddle(), this.level / ZOOM_STEP));
  }

  reset() {
    if (this.active) this.#glideTo({ level: 1, x: 0, y: 0 });
  }

  /**
   * Enlarges what lies at a place of the window, or shows whole pages again.
   * @param {number} clientX
   * @param {number} clientY
   */
  toggleAt(clientX, clientY) {
    if (this.active) this.reset();
    else this.#glideTo(this.#about({ x: clientX, y: clientY }, TAP_ZOOM));
  }

  /**
   * Changes the level about a place of the window, at once.
   * @param {Point} place
   * @param {number} factor
   */
  scaleAt(place, factor) {
    this.#follow(place, place, factor);
  }

  /** Two fingers take hold of the pages, until release(). */
  hold() {
    if (!this.active) this.turner.settle();
    this.#stop();
    this.held = true;
  }

  /**
   * The fingers that hold the pages have moved.
   * @param {Point} from the place between them before
   * @param {Point} to and now
   * @param {number} factor by which they have moved apart
   */
  pinch(from, to, factor) {
    this.#follow(from, to, factor);
  }

  /** One finger is left of two: it moves what is enlarged. */
  loosen() {
    if (this.held && this.now.level < LEAST_ZOOM) this.#settle();
  }

  /**
   * The fingers have let go. The pages come back to where they may be, or glide on.
   * @param {Point | null} speed CSS pixels a millisecond
   */
  release(speed) {
    if (this.held && this.#settle()) return;
    if (this.active && speed) this.#glide(speed);
  }

  /**
   * @param {number} dx CSS pixels
   * @param {number} dy
   */
  panBy(dx, dy) {
    if (this.held) this.#follow({ x: 0, y: 0 }, { x: dx, y: dy }, 1);
    else this.#set(this.#limited({ level: this.now.level, x: this.now.x + dx, y: this.now.y + dy }));
  }

  /**
   * What lies at one place of the window comes to lie at another. Steps add up however small they are, and the way back
   * is the way there: the next one goes on from where the gesture has led to and not from what limits made of that.
   * @param {Point} from
   * @param {Point} to
   * @param {number} factor
   */
  #follow(from, to, factor) {
    const before = this.free ?? this.now;
    const level = this.held ? stretched(before.level, factor)
      : Math.min(MOST_ZOOM, Math.max(1, before.level * factor));
    const ratio = level / before.level;
    const free = { level, x: to.x - (from.x - before.x) * ratio, y: to.y - (from.y - before.y) * ratio };
    this.#set(this.held ? free : this.#limited(free));
    this.free = free;
  }

  /**
   * Ends a gesture: pages that are hardly enlarged are shown whole, others where they may be.
   * @returns {boolean} whether they must move for that
   */
  #settle() {
    this.held = false;
    this.free = null;
    const { level, x, y } = this.now;
    const goal = this.#limited({ level: level < LEAST_ZOOM ? 1 : level, x, y });
    if (goal.level === level && Math.hypot(goal.x - x, goal.y - y) < 0.5) return false;
    this.#glideTo(goal);
    return true;
  }

  /**
   * A thrown page glides on.
   * @param {Point} speed CSS pixels a millisecond
   */
  #glide(speed) {
    const from = this.now;
    let start = 0;
    this.#animate((time) => {
      start = start || time;
      const gone = GLIDE_MS * (1 - Math.exp((start - time) / GLIDE_MS));
      const before = this.now;
      this.#apply(this.#limited({
        level: from.level, x: from.x + speed.x * gone, y: from.y + speed.y * gone,
      }));
      this.goal = this.now;
      const still = Math.abs(before.x - this.now.x) + Math.abs(before.y - this.now.y) < 0.2;
      return time - start < 40 || !still;
    });
  }

  /** @returns {Point} */
  #windowMiddle() {
    const { root, beside } = this.book;
    return { x: (beside + root.clientWidth) / 2, y: root.clientHeight / 2 };
  }

  /**
   * @param {Point} place that keeps still
   * @param {number} wanted level
   * @returns {ZoomState}
   */
  #about(place, wanted) {
    const level = wanted < LEAST_ZOOM ? 1 : Math.min(MOST_ZOOM, wanted);
    const { now } = this;
    const ratio = level / now.level;
    return this.#limited({
      level, x: place.x - (place.x - now.x) * ratio, y: place.y - (place.y - now.y) * ratio,
    });
  }

  /**
   * The nearest state in which the pages do not leave the window.
   * @param {ZoomState} state
   * @returns {ZoomState}
   */
  #limited({ level, x, y }) {
    if (level <= 1) return { level, x: 0, y: 0 };
    const { left, top, right, bottom } = this.book.boxOf(this.turner.current);
    const { root: { clientWidth, clientHeight }, beside } = this.book;
    return {
      level, x: heldInside(x, level, left, right, clientWidth, beside),
      y: heldInside(y, level, top, bottom, clientHeight),
    };
  }

  /** @param {ZoomState} state */
  #set(state) {
    this.#stop();
    this.#aim(state);
    this.#apply(state);
    this.#restSoon();
  }

  /** @param {ZoomState} goal */
  #glideTo(goal) {
    this.#stop();
    const from = this.now;
    this.#aim(goal);
    if (this.turner.calm.matches) {
      this.#apply(goal);
      return;
    }
    let start = 0;
    this.#animate((time) => {
      start = start || time;
      const passed = Math.min(1, (time - start) / ZOOM_MS);
      this.#apply(between(from, goal, 1 - (1 - passed) ** 3));
      return passed < 1;
    });
  }

  /** @param {ZoomState} goal */
  #aim(goal) {
    const before = this.level;
    if (before === 1 && goal.level > 1) this.turner.settle();
    this.goal = goal;
    this.book.root.dataset.zoomed = goal.level > 1 ? 'yes' : 'no';
    if (goal.level !== before) this.onChange();
  }

  /** @param {ZoomState} state */
  #apply(state) {
    this.now = state;
    const { left, top, right, bottom } = this.book.boxOf(this.turner.current);
    const middle = this.#windowMiddle();
    this.middle = {
      x: ((middle.x - state.x) / state.level - left) / (right - left),
      y: ((middle.y - state.y) / state.level - top) / (bottom - top),
    };
    this.book.zoomTo(state);
  }

  /** Keeps the same part of the pages in view when the window has changed. */
  #refit() {
    if (!this.active) return;
    this.#stop();
    const { left, top, right, bottom } = this.book.boxOf(this.turner.current);
    const { level } = this.goal;
    const middle = this.#windowMiddle();
    this.#apply(this.#limited({
      level, x: middle.x - level * (left + this.middle.x * (right - left)),
      y: middle.y - level * (top + this.middle.y * (bottom - top)),
    }));
    this.goal = this.now;
  }

  /** A page that has just been opened is read from its top. */
  #toReadingStart() {
    this.#stop();
    const far = this.book.config.rightToLeft ? -1e6 : 1e6;
    this.#apply(this.#limited({ level: this.goal.level, x: far, y: 1e6 }));
    this.goal = this.now;
  }

  /** @param {(time: number) => boolean} step draws a frame and tells whether more follow */
  #animate(step) {
    this.#stop();
    this.#move(true);
    /** @param {number} time */
    const tick = (time) => {
      this.frame = 0;
      if (step(time)) this.frame = requestAnimationFrame(tick);
      else this.#move(false);
    };
    this.frame = requestAnimationFrame(tick);
  }

  #stop() {
    if (this.frame) cancelAnimationFrame(this.frame);
    this.frame = 0;
    this.free = null;
    this.#move(false);
  }

  /**
   * A layer of its own moves smoothly, but keeps the sharpness at which it was last drawn.
   * @param {boolean} moving
   */
  #move(moving) {
    clearTimeout(this.rest);
    this.book.element.style.willChange = moving ? 'transform' : '';
  }

  #restSoon() {
    this.#move(true);
    this.rest = window.setTimeout(() => {
      this.#move(false);
      if (!this.held) this.#settle();
    }, REST_MS);
  }
}

/**
 * Level to which fingers bring pages.
 * @param {number} level
 * @param {number} factor by which they move apart
 */
function stretched(level, factor) {
  const wanted = (level < 1 ? level ** (1 / GIVE) : level) * factor;
  return wanted < 1 ? wanted ** GIVE : Math.min(MOST_ZOOM, wanted);
}

/**
 * @param {number} offset
 * @param {number} level
 * @param {number} from where the pages begin on this axis
 * @param {number} to
 * @param {number} end of the window
 * @param {number} start of the window
 */
function heldInside(offset, level, from, to, end, start = 0) {
  const size = level * (to - from);
  // Whole pages may lie nearer to the edge; what is hardly enlarged must not leap away from there.
  const [least, most] = [Math.min(from, start + ZOOM_AIR), Math.max(to, end - ZOOM_AIR)];
  if (size > most - least) {
    return Math.min(least, Math.max(most - size, offset + level * from)) - level * from;
  }
  const centre = Math.min(most - size / 2, Math.max(least + size / 2, (from + to) / 2));
  return centre - (level * (from + to)) / 2;
}

/**
 * @param {ZoomState} from
 * @param {ZoomState} to
 * @param {number} share
 * @returns {ZoomState}
 */
function between(from, to, share) {
  // The place that keeps still keeps still all the way only if the offset follows the level.
  const level = from.level * (to.level / from.level) ** share;
  const part = to.level === from.level ? share : (level - from.level) / (to.level - from.level);
  return { level, x: from.x + (to.x - from.x) * part, y: from.y + (to.y - from.y) * part };
}
