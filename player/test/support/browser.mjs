// What modules of the player find around them in a browser, as far as their rules need it. Nothing is seen here.

/** Time, which passes only when a test lets it. */
export const clock = {
  now: 1000,
  tasks: [],
  after(act, time = 0) {
    const task = { act, at: this.now + time };
    this.tasks.push(task);
    return task;
  },
  cancel(task) {
    this.tasks = this.tasks.filter((one) => one !== task);
  },
  /** Lets milliseconds pass. */
  run(time) {
    const end = this.now + time;
    const next = () => this.tasks.filter(({ at }) => at <= end).sort((a, b) => a.at - b.at)[0];
    for (let task = next(); task; task = next()) {
      this.cancel(task);
      this.now = task.at;
      task.act(task.at);
    }
    this.now = end;
  },
};

/** What is drawn while a test looks: what is called or set, and with which values. */
export const drawings = { calls: [] };

/** Takes every call and every value that a drawing makes of it. */
function drawing(canvas) {
  const context = new Proxy({ canvas }, {
    get: (target, name) => target[name] ?? ((...values) => {
      drawings.calls.push([name, values]);
      return context;
    }),
    set: (target, name, value) => {
      drawings.calls.push([name, [value]]);
      return Reflect.set(target, name, value);
    },
  });
  return context;
}

/** An element of the page. */
export class Thing extends EventTarget {
  style = { setProperty(name, value) { this[name] = value; } };
  dataset = {};
  classList = { toggle() {} };
  parts = {};
  context = drawing(this);
  getContext = () => this.context;
  querySelector = (selector) => (this.parts[selector] ??= new Thing());
  animate = () => ({ finish() { this.onfinish?.(); } });
  setAttribute = (name, value) => { this[name] = value; };
  removeAttribute = (name) => { delete this[name]; };
  replaceChildren = () => {};
  append = () => {};
  setPointerCapture = () => {};
  remove = () => {};
}

/** A picture, which arrives unless its address says that it is missing. */
class Picture extends Thing {
  naturalWidth = 120;
  naturalHeight = 160;
  decode = async () => {
    if (this.src.includes('missing')) throw new Error('not found');
  };
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

/** Gives a window as it is when a page has just been opened. */
export function newWindow() {
  const timers = {
    setTimeout: (act, time) => clock.after(act, time), clearTimeout: (task) => clock.cancel(task),
    requestAnimationFrame: (act) => clock.after(act, 16), cancelAnimationFrame: (task) => clock.cancel(task),
    requestIdleCallback: (act) => clock.after(act),
  };
  Object.assign(globalThis, timers, {
    window: Object.assign(new EventTarget(), timers, { devicePixelRatio: 1, folveroConfiguration: {} }),
    document: Object.assign(new EventTarget(), { createElement: () => new Thing(), hidden: false }),
    location: { hash: '', pathname: '/book/', protocol: 'https:' },
    matchMedia: () => ({ matches: false }),
    performance: { now: () => clock.now },
    Image: Picture, HTMLInputElement: class {}, HTMLButtonElement: class {}, DOMMatrix: Array,
  });
  Object.defineProperty(globalThis, 'navigator', { value: { languages: ['en'] }, configurable: true });
  return globalThis.window;
}

newWindow();
