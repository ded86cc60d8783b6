/** Milliseconds without a turn before more of the book is fetched. */
const REST = 2000;

/**
 * @typedef {object} KeptState how much of the book the service worker has cached
 * @property {number} bytes of the whole book
 * @property {boolean} whole whether all of it is wanted
 * @property {number} share of its pages that is cached, 0 to 1
 * @property {number} left files that are not cached
 * @property {boolean} more whether any of these are wanted
 * @property {boolean} failed whether the last fetch failed
 */

/**
 * Makes a book available offline, where browsers allow that: the pages that were read, and the whole book where the
 * reader asked for it or where it is small.
 */
export class Offline {
  /** @param {import('./layers.js').Layers} layers */
  constructor(layers) {
    this.lastTurn = Date.now();
    /** Number of the current round of fetching; earlier ones stop. */
    this.round = 0;
    /** Whether files are being fetched. */
    this.busy = false;
    /** Whether the browser refuses, by a setting or in a frame. */
    this.unable = false;
    /** @type {KeptState | null} null until the service worker has answered */
    this.state = null;
    /** Called when any of these change. */
    this.onChange = () => {};
    /** @type {Promise<void> | null} */
    this.begun = null;
    layers.followers.push(() => { this.lastTurn = Date.now(); });
    this.#quiet().then(() => this.begin());
  }

  /** Registers the service worker, once. */
  begin() {
    this.begun ??= this.#register().catch(() => {
      // The book is read online as usual.
      this.unable = true;
      this.onChange();
    });
    return this.begun;
  }

  /**
   * Saves the whole book at once, or removes it and caches only what is read from now on.
   * @param {'whole' | 'read'} wish
   */
  async want(wish) {
    this.busy = wish === 'whole';
    if (this.state) this.state = { ...this.state, whole: this.busy, failed: false };
    this.onChange();
    await this.begin();
    this.round += 1;
    this.busy = wish === 'whole';
    await this.#ask({ does: 'wish', wish });
    if (this.busy) await this.#fetchAhead(true);
  }

  async #register() {
    this.#addManifest();
    const { serviceWorker } = navigator;
    // The service worker of another edition has taken over, and has cached less.
    serviceWorker.addEventListener('controllerchange', () => this.#goOn());
    const registration = await serviceWorker.register('sw.js');
    await Promise.race([serviceWorker.ready, failureOf(registration)]);
    await this.#ask({ does: 'state' });
    this.#goOn();
    await this.#quiet();
    registration.waiting?.postMessage({ does: 'replace' });
  }

  async #goOn() {
    const round = ++this.round;
    await this.#ask({ does: 'seen', seen: performance.getEntriesByType('resource').map(({ name }) => name) });
    if (round === this.round && !navigator.connection?.saveData) await this.#fetchAhead(false);
  }

  /** @param {boolean} atOnce without waiting until the reader stays with a page */
  async #fetchAhead(atOnce) {
    const round = ++this.round;
    while (this.state?.more) {
      this.busy = true;
      if (!atOnce) await this.#quiet();
      if (round !== this.round) return;
      await this.#ask({ does: 'ahead' });
      if (round !== this.round) return;
      if (this.state?.failed) break;
    }
    this.busy = false;
    this.onChange();
  }

  /** Added by script: for pages opened from disk browsers report an error. */
  #addManifest() {
    const link = document.createElement('link');
    link.rel = 'manifest';
    link.href = 'manifest.webmanifest';
    document.head.append(link);
  }

  /** Resolves when the reader stays with a page. */
  async #quiet() {
    for (;;) {
      const left = this.lastTurn + REST - Date.now();
      if (left <= 0) return;
      await new Promise((resolve) => { setTimeout(resolve, left); });
    }
  }

  /** @param {{does: string, seen?: string[], wish?: string}} message */
  async #ask(message) {
    const { active } = await navigator.serviceWorker.ready;
    const { port1, port2 } = new MessageChannel();
    const answer = new Promise((resolve) => { port1.onmessage = ({ data }) => resolve(data); });
    active?.postMessage(message, [port2]);
    this.state = await answer;
    this.onChange();
  }
}

/**
 * Never resolves; rejects where the service worker could not be installed: the book is being published at this moment,
 * or its server alters files.
 * @param {ServiceWorkerRegistration} registration
 */
function failureOf(registration) {
  const { installing } = registration;
  return new Promise((_, reject) => {
    installing?.addEventListener('statechange', () => {
      if (installing.state === 'redundant' && !registration.active) reject(new Error('not installed'));
    });
  });
}
