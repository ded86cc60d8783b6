// What modules of the player find around them in a browser, as far as their rules need it. Nothing is seen here, and
// time passes only when a test lets it.

class Clock {
  now = 1000;

  #tasks = new Map();

  #last = 0;

  after(act, time = 0) {
    this.#last += 1;
    this.#tasks.set(this.#last, { act, at: this.now + time });
    return this.#last;
  }

  cancel(task) {
    this.#tasks.delete(task);
  }

  /** Lets milliseconds pass. */
  run(time) {
    const end = this.now + time;
    for (;;) {
      const [next] = [...this.#tasks].filter(([, { at }]) => at <= end).sort((a, b) => a[1].at - b[1].at);
      if (!next) break;
      const [id, { act, at }] = next;
      this.#tasks.delete(id);
      this.now = at;
      act(at);
    }
    this.now = end;
  }
}

export const clock = new Clock();

/** Takes every call and every value that a drawing makes of it. */
function drawing(canvas) {
  const context = new Proxy({ canvas }, { get: (target, name) => target[name] ?? (() => context) });
  return context;
}

export class Thing extends EventTarget {
  style = { setProperty(name, value) { this[name] = value; } };

  dataset = {};

  classList = { toggle() {} };

  attributes = {};

  #parts = {};

  querySelector(selector) {
    this.#parts[selector] ??= new Thing();
    return this.#parts[selector];
  }

  setAttribute(name, value) {
    this.attributes[name] = value;
  }

  getContext() {
    this.context ??= drawing(this);
    return this.context;
  }

  animate() {
    return { finish() { this.onfinish?.(); } };
  }

  replaceChildren() {}

  setPointerCapture() {}
}

/** A picture that arrives unless its address says that it is missing. */
class Picture extends Thing {
  naturalWidth = 120;

  naturalHeight = 160;

  removed = [];

  async decode() {
    if (this.src.includes('missing')) throw new Error('not found');
  }

  remove() {}

  removeAttribute(name) {
    this.removed.push(name);
  }
}

/** Something that a reader does, at the time that it is. */
export class Happening extends Event {
  constructor(type, details) {
    super(type, { cancelable: true });
    Object.assign(this, details);
  }

  get timeStamp() {
    return clock.now;
  }
}

const timers = {
  setTimeout: (act, time) => clock.after(act, time), clearTimeout: (task) => clock.cancel(task),
  requestAnimationFrame: (act) => clock.after(act, 16), cancelAnimationFrame: (task) => clock.cancel(task),
  requestIdleCallback: (act) => clock.after(act),
};

/** A window as it is when a page has just been opened. */
export function newWindow() {
  globalThis.window = Object.assign(new EventTarget(), timers, { devicePixelRatio: 1, folveroConfiguration: {} });
  Object.assign(globalThis, timers, {
    document: { createElement: () => new Thing(), hidden: false },
    location: { hash: '', pathname: '/book/', protocol: 'https:' },
    matchMedia: () => ({ matches: false }),
    performance: { now: () => clock.now },
    Image: Picture, HTMLInputElement: class {}, HTMLButtonElement: class {}, DOMMatrix: class {},
  });
  Object.defineProperty(globalThis, 'navigator', { value: { languages: ['en'] }, configurable: true, writable: true });
  return globalThis.window;
}

newWindow();
