/** Milliseconds without a turn after which more of the book is fetched. */
const REST = 2000;

/**
 * @typedef {object} KeptState what the service worker has of the book
 * @property {number} bytes of the whole book
 * @property {boolean} whole whether all of it is to be kept
 * @property {number} share of its pages that is there, 0 to 1
 * @property {number} left files that are not there
 * @property {boolean} more whether any of these are to be kept
 * @property {boolean} failed whether the last of them did not come
 */

/**
 * What is read stays to be read without a connection, where browsers allow that: over https, and from
 * this machine. So does the whole book where the reader asked for it, or where it is small.
 */
export class Offline {
  /** @param {import('./layers.js').Layers} layers */
  constructor(layers) {
    this.lastTurn = Date.now();
    /** How often fetching has begun: only the last round goes on. */
    this.round = 0;
    /** Whether files are being fetched. */
    this.busy = false;
    /** Whether the browser keeps no books, by a setting or in a frame. */
    this.unable = false;
    /** @type {KeptState | null} none while it is not known */
    this.state = null;
    /** Told of changes of what stands above. */
    this.onChange = () => {};
    /** @type {Promise<void> | null} */
    this.begun = null;
    layers.followers.push(() => { this.lastTurn = Date.now(); });
    this.#quiet().then(() => this.begin());
  }

  /** Takes up keeping the book, once. */
  begin() {
    this.begun ??= this.#register().catch(() => {
      // Whoever can't have it reads as ever.
      this.unable = true;
      this.onChange();
    });
    return this.begun;
  }

  /**
   * Does what the reader wants: the whole book at once, or none of it but what is read from now on.
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
    // A worker of another edition takes the place of the one that was asked, and has less.
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

  /** @param {boolean} atOnce and not only while the reader stays with a page */
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

  /** From disk browsers complain about it. */
  #addManifest() {
    const link = document.createElement('link');
    link.rel = 'manifest';
    link.href = 'manifest.webmanifest';
    document.head.append(link);
  }

  /** Kept when the reader stays with a page. */
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
 * Never kept, and broken where no worker comes to work: the book is just being published, or its server
 * changes files on their way.
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
