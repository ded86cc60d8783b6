import { Leaf } from './leaf.js';
import { Pace } from './pace.js';
import { painterFor } from './turnings.js';

/** @typedef {import('../book/book.js').Book} Book */
/** @typedef {import('./fold.js').Point} Point */
/** @typedef {import('./leaf.js').Motion} Motion */

const QUICK_MS = 220;
const HURRIED_MS = 110;
const FADE_MS = 260;

/** Device pixels of a page on a leaf; larger ones are drawn coarser while they turn. */
const MOST_PIXELS = 9e6;

/** Turns leaves: animated, dragged, or as a cross-fade for readers who prefer reduced motion. */
export class Turner {
  /**
   * @param {Book} book
   * @param {HTMLCanvasElement} canvas
   */
  constructor(book, canvas) {
    this.book = book;
    this.canvas = canvas;
    this.context = /** @type {CanvasRenderingContext2D} */ (canvas.getContext('2d'));
    this.painter = painterFor(book.root.dataset.turn);
    this.current = 0;
    /** @type {Leaf | null} */
    this.leaf = null;
    /** @type {number | null} view asked for while a leaf was on its way */
    this.pending = null;
    this.density = 1;
    /** Highest density at which this machine keeps up. */
    this.most = 2;
    this.pace = new Pace();
    this.frame = 0;
    this.calm = matchMedia('(prefers-reduced-motion: reduce)');
    /** @type {Animation | null} */
    this.fading = null;
    this.onTurn = () => {};
    this.onLanded = () => {};
    /** Whether views change without animation, as they do while zoomed in. */
    this.atOnce = () => false;
    this.onStood = () => {};
    /** Called before a leaf in the air is drawn. */
    this.onMoved = () => {};
    this.onJumped = () => {};
    /**
     * Called before a jump begins.
     * @type {(view: number) => void}
     */
    this.onJump = () => {};
    /**
     * Called when a leaf is lifted and when it has landed.
     * @type {(inAir: boolean) => void}
     */
    this.onAir = () => {};
    book.onImage = (page) => this.#imageArrived(page);
  }

  /** The view in which the turns in progress will end. */
  get destination() {
    if (this.pending !== null) return this.pending;
    return this.leaf?.motion?.end === 'over' ? this.leaf.to : this.current;
  }

  get turning() {
    return this.leaf !== null && this.leaf.motion?.end !== 'peek';
  }

  /**
   * Shows a view at once.
   * @param {number} view
   */
  stand(view) {
    this.#dropLeaf();
    this.pending = null;
    this.current = this.book.views.clamp(view);
    this.book.keep([this.current]);
    this.#showStanding();
    this.onLanded();
  }

  /** Finishes turns in progress at once. */
  settle() {
    if (this.leaf || this.fading) this.stand(this.destination);
  }

  /**
   * Jumps to a view; the reader can come back with the browser's Back.
   * @param {number} wanted
   */
  go(wanted) {
    const view = this.book.views.clamp(wanted);
    const held = this.leaf !== null && !this.leaf.motion;
    if (!held && view !== this.destination) this.onJump(view);
    this.turnTo(view);
  }

  /**
   * Turns to a view; during another turn, that one speeds up and this one follows.
   * @param {number} wanted
   */
  turnTo(wanted) {
    const view = this.book.views.clamp(wanted);
    if (this.atOnce()) {
      this.#jump(view);
      return;
    }
    if (this.leaf && !this.leaf.motion) return;
    if (this.leaf?.motion?.end === 'over') {
      this.pending = view;
      this.#hurry();
      return;
    }
    if (view === this.current) return;
    if (this.leaf && this.leaf.to !== view) this.#dropLeaf();
    if (this.calm.matches) this.#fadeTo(view);
    else this.#turnOver(view, this.book.config.moveTime * 1000);
  }

  /** @param {number} view */
  #jump(view) {
    if (view === this.current) return;
    this.onTurn();
    this.stand(view);
    this.onJumped();
  }

  /** @param {number} steps views forward, negative: backward */
  step(steps) {
    this.turnTo(this.destination + steps);
  }

  /**
   * Starts dragging the leaf that leads to a view.
   * @param {number} view
   * @param {number} edgeShare where it takes the edge, 0 (top) to 1
   * @returns {boolean} whether there is such a leaf
   */
  grab(view, edgeShare) {
    if (view !== this.book.views.clamp(view) || !this.#mayLift()) return false;
    if (this.leaf?.motion?.end === 'over') return false;
    if (this.leaf && this.leaf.to !== view) this.#dropLeaf();
    if (!this.leaf) this.#lift(view, edgeShare);
    if (this.leaf) /** @type {Leaf} */ (this.leaf).motion = null;
    this.onAir(true);
    return true;
  }

  /**
   * @param {Point} held where the pointer drags the edge to, in the leaf's coordinates
   */
  drag(held) {
    if (!this.leaf || this.leaf.motion) return;
    this.leaf.held = this.painter.reach(held, this.leaf);
    this.#requestFrame();
  }

  /** @param {boolean} over whether the held leaf goes on to the new view or falls back */
  release(over) {
    if (!this.leaf || this.leaf.motion) return;
    const config = this.book.config;
    if (over) this.#finish('over', config.moveTime * 700);
    else this.#finish('back', config.riseTime * 800);
  }

  /** Draws the faces of the next turns when idle, so that these start at once: one at a time, which holds no frame up. */
  #prepareSoon() {
    const idle = window.requestIdleCallback ?? ((/** @type {() => void} */ act) => setTimeout(act, 60));
    const view = this.current;
    for (const to of [view + 1, view - 1]) {
      for (const draw of /** @type {const} */ (['drawFront', 'drawFaces'])) {
        idle(() => {
          if (this.leaf || view !== this.current || to !== this.book.views.clamp(to)) return;
          if (this.#mayLift() && this.book.ready(to)) {
            new Leaf(this.book, this.painter, view, to, 0)[draw](this.density);
          }
        });
      }
    }
  }

  #mayLift() {
    return !this.calm.matches && !this.atOnce();
  }

  /**
   * Lifts a corner as a hint that the page can be turned.
   * @param {number} view
   * @param {number} edgeShare 0 or 1
   */
  peek(view, edgeShare) {
    if (this.leaf || !this.#mayLift() || view !== this.book.views.clamp(view)) return;
    const leaf = this.#lift(view, edgeShare);
    const { peek } = this.painter;
    const inward = edgeShare < 0.5 ? 1 : -1;
    this.#move(leaf, {
      end: 'peek', time: this.book.config.riseTime * 700, lift: 0, slideTo: 0,
      to: { x: leaf.held.x + (leaf.reversed ? peek.x : -peek.x) * leaf.width,
        y: leaf.edge.y + inward * peek.y * leaf.width },
    });
  }

  /** Lowers a lifted corner. */
  endPeek() {
    if (this.leaf?.motion?.end === 'peek') this.#finish('back', this.book.config.riseTime * 700);
  }

  /** Resizes the canvas with the window. */
  resized() {
    const { pageWidth, pageHeight } = this.book.layout;
    this.density = Math.min(this.most, window.devicePixelRatio || 1, Math.sqrt(MOST_PIXELS / (pageWidth * pageHeight)));
    this.canvas.width = Math.round(this.canvas.clientWidth * this.density);
    this.canvas.height = Math.round(this.canvas.clientHeight * this.density);
  }

  #showStanding() {
    const { views } = this.book;
    this.book.show(views.at(this.current), this.current / Math.max(1, views.count - 1));
    this.book.moveTo(this.book.shiftFor(this.current));
    this.onStood();
    this.onAir(false);
    this.#prepareSoon();
  }

  /**
   * @param {number} view
   * @param {number} time
   */
  #turnOver(view, time) {
    const { book } = this;
    // The lowest corner that is seen.
    if (!this.leaf) this.#lift(view, Math.min(1, (book.root.clientHeight - book.top) / book.layout.pageHeight));
    this.#finish('over', time);
  }

  /**
   * Lifts a leaf, which still lies flat.
   * @param {number} to
   * @param {number} edgeShare
   * @returns {Leaf}
   */
  #lift(to, edgeShare) {
    const { book, current: from } = this;
    book.keep([to, from]);
    const leaf = new Leaf(book, this.painter, from, to, edgeShare);
    leaf.drawFaces(this.density);
    this.leaf = leaf;
    this.#draw();
    book.show(leaf.beneath, Math.min(from, to) / Math.max(1, book.views.count - 1));
    return leaf;
  }

  /**
   * @param {'over' | 'back'} end
   * @param {number} fullTime of a leaf that has the whole way before it
   */
  #finish(end, fullTime) {
    const leaf = this.leaf;
    if (!leaf) return;
    const { pageWidth } = this.book.layout;
    const turned = (end === 'over') !== leaf.reversed;
    const to = { x: turned ? -pageWidth : pageWidth, y: leaf.edge.y };
    const way = Math.min(1, Math.abs(leaf.held.x - to.x) / (2 * pageWidth));
    const inward = leaf.edge.y < this.book.layout.pageHeight / 2 ? 1 : -1;
    this.#move(leaf, {
      end, to, time: Math.max(Math.min(fullTime, QUICK_MS), fullTime * way ** 0.6),
      lift: inward * pageWidth * 0.2 * way, slideTo: end === 'over' ? 1 : 0,
    });
    if (end !== 'over') return;
    this.onAir(true);
    this.onTurn();
  }

  /**
   * @param {Leaf} leaf
   * @param {Pick<Motion, 'end' | 'time' | 'to' | 'lift' | 'slideTo'>} motion
   */
  #move(leaf, motion) {
    leaf.motion = { ...motion, start: 0, from: { ...leaf.held }, slideFrom: leaf.slide };
    this.#requestFrame();
  }

  #hurry() {
    const motion = this.leaf?.motion;
    if (!motion || !motion.start) return;
    const now = performance.now();
    const passed = Math.min(1, (now - motion.start) / motion.time);
    const time = Math.min(motion.time, HURRIED_MS / Math.max(0.05, 1 - passed));
    motion.start = now - passed * time;
    motion.time = time;
  }

  #requestFrame() {
    if (this.frame) return;
    this.frame = requestAnimationFrame((now) => this.#tick(now));
    this.pace.ask(performance.now());
  }

  /** @param {number} now */
  #tick(now) {
    this.frame = 0;
    const leaf = this.leaf;
    if (!leaf) return;
    this.pace.frame(performance.now());
    const { motion } = leaf;
    if (motion) {
      if (!motion.start) motion.start = this.pending === null ? now : now - 1;
      const passed = Math.min(1, Math.max(0, (now - motion.start) / motion.time));
      this.#advance(leaf, motion, passed);
      if (passed === 1 && motion.end !== 'peek') {
        this.#land(motion.end === 'over');
        return;
      }
      if (passed < 1) this.#requestFrame();
    }
    this.#draw();
  }

  /** Reduces the density where frames come late. */
  #keepPace() {
    const lost = this.density > 1 ? this.pace.lost() : 0;
    if (!lost) return;
    this.most = Math.max(1, this.density - lost);
    this.resized();
    this.book.drawn.clear();
  }

  /**
   * @param {Leaf} leaf
   * @param {Motion} motion
   * @param {number} passed
   */
  #advance(leaf, motion, passed) {
    const fresh = Math.abs(motion.from.x) > this.book.layout.pageWidth * 0.8;
    const eased = fresh ? easeInOut(passed) : 1 - (1 - passed) ** 3;
    const wanted = {
      x: motion.from.x + (motion.to.x - motion.from.x) * eased,
      y: motion.from.y + (motion.to.y - motion.from.y) * eased
        + motion.lift * Math.sin(Math.PI * eased),
    };
    leaf.held = this.painter.reach(wanted, leaf);
    leaf.slide = motion.slideFrom + (motion.slideTo - motion.slideFrom) * eased;
  }

  /** @param {boolean} over */
  #land(over) {
    const leaf = /** @type {Leaf} */ (this.leaf);
    if (over) this.current = leaf.to;
    this.leaf = null;
    this.book.keep([this.current]);
    this.#keepPace();
    this.#showStanding();
    this.#clear();
    this.onLanded();
    const next = this.pending;
    this.pending = null;
    if (next !== null && next !== this.current) {
      this.#turnOver(next, Math.min(QUICK_MS * 1.6, this.book.config.moveTime * 1000));
    }
  }

  #dropLeaf() {
    if (this.fading) this.fading.finish();
    if (!this.leaf) return;
    this.leaf = null;
    this.#showStanding();
    this.#clear();
  }

  #clear() {
    this.context.setTransform(1, 0, 0, 1, 0, 0);
    this.context.clearRect(0, 0, this.canvas.width, this.canvas.height);
  }

  #draw() {
    const leaf = this.leaf;
    if (!leaf) return;
    const { book, context, density } = this;
    const { spineX } = book.layout;
    const { shift } = leaf;
    this.onMoved();
    this.#clear();
    context.setTransform(density, 0, 0, density,
      Math.round((spineX + shift) * density), Math.round(book.top * density));
    this.painter.draw(context, leaf, density);
    book.moveTo(shift);
  }

  /** @param {number} page */
  #imageArrived(page) {
    const leaf = this.leaf;
    if (!leaf) this.#prepareSoon();
    if (!leaf?.shows(page)) return;
    leaf.drawFaces(this.density);
    this.#requestFrame();
  }

  /** @param {number} view */
  #fadeTo(view) {
    if (this.fading) this.fading.finish();
    const { book, context, density } = this;
    const { spineX, pageWidth, pageHeight } = book.layout;
    const pages = book.views.at(this.current);
    const originX = (spineX + book.shiftFor(this.current)) * density;
    context.setTransform(density, 0, 0, density, originX, book.top * density);
    context.drawImage(book.viewFace(pages, density), pages.left ? -pageWidth : 0, 0,
      (pages.left && pages.right ? 2 : 1) * pageWidth, pageHeight);
    this.fading = this.canvas.animate({ opacity: [1, 0] }, FADE_MS);
    this.fading.onfinish = () => {
      this.fading = null;
      this.#clear();
    };
    this.onTurn();
    this.current = view;
    book.keep([view]);
    this.#showStanding();
    this.onLanded();
  }
}

/** @param {number} t */
function easeInOut(t) {
  return t < 0.5 ? 4 * t ** 3 : 1 - (-2 * t + 2) ** 3 / 2;
}
