/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('../turning/turner.js').Turner} Turner */
/** @typedef {import('../turning/fold.js').Point} Point */
/** @typedef {import('../book/book.js').ZoomState} ZoomState */

const MOST_ZOOM = 5;
const TAP_ZOOM = 2.5;
export const ZOOM_STEP = 1.5;
const ZOOM_MS = 240;

/** Lower levels exist only during a gesture: they would change how the book behaves but hardly how it looks. */
const LEAST_ZOOM = 1.04;

/** Exponent that damps pinching below level 1. */
const GIVE = 0.3;

/** Pause that ends a wheel gesture; pages are then drawn sharply. In milliseconds. */
const REST_MS = 200;

/** Time constant of inertial panning, in milliseconds. */
const GLIDE_MS = 300;

/** Margin between the edges of a zoomed page and the window, in CSS pixels. */
export const ZOOM_AIR = 14;

/** Readers do not notice if pages move less, in CSS pixels. */
const LEAST_WAY = 2;

/** Zooms and pans the pages in view. While zoomed in, views change without animation. */
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
    /** @type {ZoomState} end of the running animation */
    this.goal = this.now;
    /** @type {ZoomState | null} state of the running gesture before limits apply */
    this.free = null;
    /** Whether two fingers hold the pages. */
    this.held = false;
    /** Point of the pages in the middle of the window, as shares of their size. */
    this.middle = { x: 0.5, y: 0.5 };
    this.frame = 0;
    /** The view of which that is. */
    this.view = -1;
    /** Which way the reader goes on: pages higher than the window begin at their end for those who go back. */
    this.way = 1;
    /** @type {{leaf: unknown, from: number}} leaf with which such pages move, and where they were when it was lifted */
    this.ride = { leaf: null, from: 0 };
    turner.atOnce = () => this.active;
    turner.onStood = () => this.#refit();
    turner.onMoved = () => this.#moveWithLeaf();
  }

  /** 1 while not zoomed in. */
  get level() {
    return this.goal.level;
  }

  get active() {
    return this.held || this.goal.level > 1;
  }

  /** Whether whole pages are higher than the window. */
  get scrolls() {
    return this.book.layout.scrolls && !this.active;
  }

  /** Whether pages can be moved in the window. */
  get pans() {
    return this.active || (this.scrolls && !this.turner.turning);
  }

  /** Part of the window with whole pages that is seen once the pages have come to rest, in CSS pixels. */
  get seen() {
    const { level, x, y } = this.goal;
    const { root, sight } = this.book;
    return {
      left: (sight.left - x) / level, right: (sight.right - x) / level,
      top: -y / level, bottom: (root.clientHeight - y) / level,
    };
  }

  /**
   * Shows a place of the window with whole pages: in the middle across, and at the top, as far as the limits let it.
   * @param {number} x
   * @param {number} y
   * @param {number} [wanted] level
   * @param {boolean} [atOnce]
   * @returns {boolean} whether anything moves
   */
  lookAt(x, y, wanted = this.level, atOnce = false) {
    const level = Math.min(MOST_ZOOM, wanted);
    const { goal } = this;
    const to = this.#limited({ level, x: this.#windowMiddle().x - level * x, y: -level * y });
    if (level === goal.level && Math.hypot(to.x - goal.x, to.y - goal.y) < LEAST_WAY) return false;
    this.#glideTo(to, atOnce);
    return true;
  }

  in() {
    this.#glideTo(this.#about(this.#windowMiddle(), this.level * ZOOM_STEP));
  }

  out() {
    this.#glideTo(this.#about(this.#windowMiddle(), this.level / ZOOM_STEP));
  }

  reset() {
    if (this.active) this.#glideTo(this.#about(this.#windowMiddle(), 1));
  }

  /**
   * Zooms in on a point of the window, or out to whole pages.
   * @param {number} clientX
   * @param {number} clientY
   */
  toggleAt(clientX, clientY) {
    if (this.active) this.reset();
    else this.#glideTo(this.#about({ x: clientX, y: clientY }, TAP_ZOOM));
  }

  /**
   * Zooms about a point of the window without animation.
   * @param {Point} place
   * @param {number} factor
   */
  scaleAt(place, factor) {
    this.#follow(place, place, factor);
  }

  /** Starts a pinch, which lasts until release(). */
  hold() {
    if (!this.active) this.turner.settle();
    this.#stop();
    this.held = true;
  }

  /**
   * Continues a pinch.
   * @param {Point} from the point between the fingers before
   * @param {Point} to and now
   * @param {number} factor by which they have moved apart
   */
  pinch(from, to, factor) {
    this.#follow(from, to, factor);
  }

  /** One of two fingers was lifted; the other one pans. */
  loosen() {
    if (this.held && this.now.level < LEAST_ZOOM) this.#settle();
  }

  /**
   * Ends a gesture. The pages return within their limits, or glide on.
   * @param {Point | null} speed CSS pixels a millisecond
   */
  release(speed) {
    if (this.held && this.#settle()) return;
    if (this.pans && speed) this.#glide(speed);
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
   * Moves and scales the pages so that what was at one point of the window is at another. Steps add up however small,
   * and reversing them leads back: each continues from the gesture's own state, before limits apply.
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
   * Ends a gesture: hardly zoomed pages are shown whole, others return within their limits.
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
   * Continues panning with decreasing speed.
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
    const { root, sight } = this.book;
    return { x: (sight.left + sight.right) / 2, y: root.clientHeight / 2 };
  }

  /**
   * @param {Point} place the fixed point
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
   * The nearest state within the limits: pages must not leave the window.
   * @param {ZoomState} state
   * @returns {ZoomState}
   */
  #limited({ level, x, y }) {
    if (level < 1 || (level === 1 && !this.book.layout.scrolls)) return { level, x: 0, y: 0 };
    const { left, top, right, bottom } = this.book.boxOf(this.turner.current);
    const { root, sight } = this.book;
    return {
      level, x: heldInside(x, level, left, right, sight.right, sight.left),
      y: heldInside(y, level, top, bottom, root.clientHeight),
    };
  }

  /** @param {ZoomState} state */
  #set(state) {
    // A corner that is lifted as a hint.
    if (this.scrolls && this.turner.leaf) this.turner.settle();
    this.#stop();
    this.#aim(state);
    this.#apply(state);
    this.#restSoon();
  }

  /**
   * @param {ZoomState} goal
   * @param {boolean} [atOnce]
   */
  #glideTo(goal, atOnce) {
    this.#stop();
    const from = this.now;
    this.#aim(goal);
    if (atOnce || this.turner.calm.matches) {
      this.#apply(goal);
      return;
    }
    let start = 0;
    this.#animate((time) => {
      start = start || time;
      const passed = Math.min(1, (time - start) / ZOOM_MS);
      this.#apply(passed < 1 ? between(from, goal, 1 - (1 - passed) ** 3) : goal);
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
    this.view = this.turner.current;
    this.book.zoomTo(state);
  }

  /**
   * Where another view comes to lie: its beginning, or its end for readers who go back.
   * @returns {ZoomState}
   */
  #arrival() {
    return this.#limited({ level: 1, x: 0, y: this.way < 0 ? -this.book.layout.pageHeight : 0 });
  }

  /** Moves pages higher than the window from where they are to where the next ones are seen, as they turn. */
  #moveWithLeaf() {
    const { leaf } = this.turner;
    if (!leaf || !this.scrolls) return;
    this.#stop();
    if (this.ride.leaf !== leaf) this.ride = { leaf, from: this.now.y };
    const { from } = this.ride;
    this.#apply({ level: 1, x: 0, y: from + (this.#arrival().y - from) * leaf.slide });
    this.goal = this.now;
  }

  /** Keeps the same part of the pages in view after the window was resized. */
  #refit() {
    const { view, turner, goal } = this;
    if (!this.active && !this.book.layout.scrolls && !goal.y) return;
    this.#stop();
    if (!this.active && view !== turner.current) {
      this.#apply(this.#arrival());
      this.goal = this.now;
      this.way = 1;
      return;
    }
    const { left, top, right, bottom } = this.book.boxOf(turner.current);
    const { level } = goal;
    const middle = this.#windowMiddle();
    this.#apply(this.#limited({
      level, x: middle.x - level * (left + this.middle.x * (right - left)),
      y: middle.y - level * (top + this.middle.y * (bottom - top)),
    }));
    this.goal = this.now;
  }

  /** @param {(time: number) => boolean} step draws a frame and returns whether more follow */
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
   * A compositing layer moves smoothly, but keeps the resolution at which it was last rasterized.
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
 * Level after pinching by a factor, damped below 1.
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
  // Whole pages may be nearer to the edge than the margin; hardly zoomed ones must not jump away from there.
  const [least, most] = [Math.min(from, start + ZOOM_AIR), to > end ? end - ZOOM_AIR : Math.max(to, end - ZOOM_AIR)];
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
  // The fixed point stays fixed during the animation only if the offset depends linearly on the level.
  const level = from.level * (to.level / from.level) ** share;
  const part = to.level === from.level ? share : (level - from.level) / (to.level - from.level);
  return { level, x: from.x + (to.x - from.x) * part, y: from.y + (to.y - from.y) * part };
}
