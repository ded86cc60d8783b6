import { Happening, Thing, clock, newWindow } from './browser.mjs';

const { Book } = await import('../../src/book/book.js');
const { Turner } = await import('../../src/turning/turner.js');
const { Gestures } = await import('../../src/controls/gestures.js');
const { Reading } = await import('../../src/controls/reading.js');
const { Zoom } = await import('../../src/controls/zoom.js');
const { ZoomGestures } = await import('../../src/controls/zoomgestures.js');

export const PHONE = { width: 390, height: 844, page: 2 };

/** A book that lies open before a reader, and what this one does with it. */
export class Table {
  /** further: what else the book's configuration says. */
  constructor({ count = 9, page = 4, width = 1280, height = 800, look = {}, ...further } = {}) {
    this.window = newWindow();
    const root = Object.assign(new Thing(), { clientWidth: width, clientHeight: height, dataset: look });
    this.book = new Book({
      pages: Array.from({ length: count }, (_, index) => ({ path: `${index + 1}.jpg`, width: 120, height: 160 })),
      margins: { top: 10, right: 10, bottom: 10, left: 10 }, rightToLeft: false, moveTime: 0.6, riseTime: 0.3,
      ...further,
    }, root);
    this.book.resize();
    this.turner = new Turner(this.book, new Thing());
    this.turner.stand(this.book.views.viewOf(page));
    this.stage = new Thing();
    this.zoom = new Zoom(this.book, this.turner);
    this.middleTaps = 0;
    this.reading = new Reading(this.zoom, this.stage);
    this.gestures = new Gestures(this.book, this.turner, this.stage, this.reading, () => { this.middleTaps += 1; });
    new ZoomGestures(this.reading, this.stage, () => this.gestures.drop());
  }

  get pagesNow() {
    return this.book.views.pagesOf(this.turner.current);
  }

  /** Pages that are seen once all has come to rest. */
  get pages() {
    clock.run(20000);
    return this.pagesNow;
  }

  get level() {
    clock.run(1000);
    return this.zoom.now.level;
  }

  pointer(type, clientX, clientY, { id = 1, pointerType = 'mouse', button = 0 } = {}) {
    const details = { clientX, clientY, pointerId: id, pointerType, button };
    this.stage.dispatchEvent(new Happening(`pointer${type}`, details));
  }

  /** Drags along places, with that time from each to the next and before letting go. */
  drag(places, { pause = 16, rest = pause, ...options } = {}) {
    places.forEach((place, index) => {
      if (index > 0) clock.run(pause);
      this.pointer(index > 0 ? 'move' : 'down', ...place, options);
    });
    clock.run(rest);
    this.pointer('up', ...places.at(-1), options);
  }

  tap(x, y, options) {
    this.drag([[x, y]], options);
  }

  /** Gives whether the browser is kept from what it would do itself. */
  wheel(details) {
    const nothing = { deltaX: 0, deltaY: 0, clientX: 640, clientY: 400 };
    return !this.stage.dispatchEvent(new Happening('wheel', { ...nothing, ...details }));
  }

  /** Gives whether the key was taken. */
  key(key, details) {
    return !this.window.dispatchEvent(new Happening('keydown', { key, ...details }));
  }

  /** Where a place of the book that is not enlarged lies in the window now. */
  seen(x, y) {
    const { now } = this.zoom;
    return [now.level * x + now.x, now.level * y + now.y];
  }
}
