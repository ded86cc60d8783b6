import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, afterEach, before } from 'node:test';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { inflateSync } from 'node:zlib';
import { writeBook } from './book.mjs';
import { launchChromium } from './chromium.mjs';
import { serve } from './server.mjs';
import { makeWebBook } from './webbook.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));

export const TEMPLATE = process.env.FOLVERO_TEMPLATE_DIR
  ?? path.join(here, '../../../build/release/share/folvero/AppFiles/Templates/float');

/** The part of the player that web books have beside their page. */
export const WEB = path.join(TEMPLATE, '../../Web');

export const DESK = { viewport: { width: 1280, height: 800 } };
export const PHONE = { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true };

/** A reader with a browser: opens books and tells what it sees. */
export class Reader {
  servers = [];

  books = 0;

  /**
   * The reader of a file's tests: there while they run, with nothing open at the beginning of each.
   * whole: the browser as people have it, with all that is around its pages.
   */
  static forTests({ whole = false } = {}) {
    const reader = new Reader();
    before(() => reader.start(whole));
    afterEach(() => reader.closeBooks());
    after(() => reader.stop());
    return reader;
  }

  async start(whole = false) {
    this.browser = await launchChromium({ bare: !whole });
    this.folder = await mkdtemp(path.join(tmpdir(), 'folvero-browser-'));
  }

  async stop() {
    await this.closeBooks();
    await this.browser.close();
    await rm(this.folder, { recursive: true });
  }

  /** Closes what is open, so that one test's book does not run beside the next one's. */
  async closeBooks() {
    for (const context of this.browser.contexts()) await context.close();
    for (const server of this.servers.splice(0)) await server.close();
  }

  /** Writes a book and gives its folder; options as for writeBook. */
  async book(options) {
    this.books += 1;
    return writeBook(path.join(this.folder, String(this.books)), { template: TEMPLATE, ...options });
  }

  /** Writes a web book and gives its folder; options as for writeBook and makeWebBook. */
  async webBook({ description, ...options }) {
    return makeWebBook(await this.book(options), { web: WEB, ...description });
  }

  /** Opens a book folder from disk. */
  async openFromDisk(folder, { hash = '', ...options } = {}) {
    return this.#open(pathToFileURL(path.join(folder, 'index.html')).href + hash, options);
  }

  /** Opens a book folder over http; the result's server tells the requests. */
  async openOverHttp(folder, { hash = '', ...options } = {}) {
    const server = await serve(folder);
    this.servers.push(server);
    const opened = await this.#open(server.address + hash, options);
    opened.server = server;
    return opened;
  }

  /** before: what is done with the browser's page before it goes to the book. */
  async #open(address, { view = DESK, reducedMotion, before = () => {} }) {
    const page = await this.browser.newPage({ ...view, reducedMotion });
    const opened = new OpenBook(page);
    await before(page);
    await page.goto(address);
    await page.waitForSelector('#folvero:is([data-state="ready"], [data-state="error"])', { timeout: 20000 });
    await opened.waitForWords();
    return opened;
  }
}

/** A book in a browser page. */
class OpenBook {
  constructor(page) {
    this.page = page;
    this.errors = [];
    this.requests = [];
    page.on('pageerror', (error) => this.errors.push(error.message));
    page.on('request', (request) => this.requests.push(request.url()));
  }

  /** Waits until the words of the pages in view are there, which are added when the browser is idle. */
  async waitForWords() {
    await this.page.waitForFunction(() => !document.querySelector('.over[aria-busy="true"]'));
  }

  /** Page numbers in view once nothing moves any more. */
  async pages() {
    await this.page.waitForFunction(() => !window.folvero.turning);
    return this.page.evaluate(() => window.folvero.pages);
  }

  async waitForPages(...pages) {
    await this.page.waitForFunction(
      (wanted) => !window.folvero.turning && String(window.folvero.pages) === wanted, String(pages));
    await this.waitForWords();
  }

  /**
   * Uses a control of the bar, which a slow machine may have let go before the pointer is there.
   * how: click, tap, hover or focus.
   */
  async use(name, how = 'click') {
    for (let attempt = 0; ; attempt += 1) {
      await this.page.keyboard.press('Shift');
      const failure = await this.page.locator(`.bar [data-does="${name}"]`)[how]({ timeout: 4000 })
        .then(() => null, (error) => error);
      if (!failure) return;
      if (attempt === 8) throw failure;
    }
  }

  /** Where the page on a side lies in the window, or null. */
  async box(side) {
    return this.page.locator(`.page.${side}`).boundingBox();
  }

  /** The picture of the page on a side: its address, its own size and its place. */
  async picture(side) {
    return this.page.locator(`.page.${side} img`).evaluate((image) => {
      const { x, y, width, height } = image.getBoundingClientRect();
      return { source: image.src, loaded: image.complete && image.naturalWidth > 0, x, y, width, height };
    });
  }

  /** Waits until everything that moves or fades, and will end doing so, has come to rest. */
  async rest() {
    await this.page.evaluate(async () => {
      const moving = () => document.getAnimations().filter(({ playState, effect }) =>
        playState === 'running' && Number.isFinite(effect.getComputedTiming().endTime));
      // One that is cancelled rejects its promise, and one that ends may begin another.
      for (let all = moving(); all.length > 0; all = moving()) {
        await Promise.allSettled(all.map(({ finished }) => finished));
      }
    });
  }

  /** Waits until what has changed is on the screen. */
  async drawn() {
    const frames = () => new Promise((done) => { requestAnimationFrame(() => requestAnimationFrame(done)); });
    await this.page.evaluate(frames);
  }

  /** Colour that is really on the screen at a place. */
  async colourAt(x, y) {
    const shot = await this.page.screenshot({ clip: { x: Math.round(x), y: Math.round(y), width: 1, height: 1 } });
    return pixelOf(shot);
  }

  /** Colour in the middle of the page on a side. */
  async colourOf(side) {
    const { x, y, width, height } = await this.box(side);
    return this.colourAt(x + width / 2, y + height / 2);
  }

  async drag(from, to, { steps = 10, pause = 0 } = {}) {
    const { mouse } = this.page;
    await mouse.move(...from);
    await mouse.down();
    for (let step = 1; step <= steps; step += 1) {
      await mouse.move(from[0] + ((to[0] - from[0]) * step) / steps, from[1] + ((to[1] - from[1]) * step) / steps);
    }
    if (pause) await this.page.waitForTimeout(pause);
    await mouse.up();
  }

  /** A finger that moves across a touch screen. */
  async swipe(from, to) {
    const session = await this.page.context().newCDPSession(this.page);
    const touch = (type, points) => session.send('Input.dispatchTouchEvent', { type, touchPoints: points });
    await touch('touchStart', [{ x: from[0], y: from[1] }]);
    for (let step = 1; step <= 6; step += 1) {
      await touch('touchMove', [{
        x: from[0] + ((to[0] - from[0]) * step) / 6, y: from[1] + ((to[1] - from[1]) * step) / 6,
      }]);
      await this.page.waitForTimeout(16);
    }
    await touch('touchEnd', []);
  }

  /** Two taps of a finger, a fifth of a second apart for the page, however busy the machine is. */
  async tapTwice(x, y) {
    const session = await this.page.context().newCDPSession(this.page);
    const start = Date.now() / 1000;
    for (const time of [start, start + 0.2]) {
      const touch = (type, touchPoints, after) =>
        session.send('Input.dispatchTouchEvent', { type, touchPoints, timestamp: time + after });
      await touch('touchStart', [{ x, y }], 0);
      await touch('touchEnd', [], 0.05);
    }
  }
}

/** Colour of a PNG file of one pixel. */
export function pixelOf(file) {
  const parts = [];
  for (let at = 8; at < file.length;) {
    const length = file.readUInt32BE(at);
    if (file.toString('latin1', at + 4, at + 8) === 'IDAT') parts.push(file.subarray(at + 8, at + 8 + length));
    at += length + 12;
  }
  return [...inflateSync(Buffer.concat(parts)).subarray(1, 4)];
}
