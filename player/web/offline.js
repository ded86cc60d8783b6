/** Milliseconds without a turn after which the rest of the book is fetched. */
const REST = 2000;

/**
 * The book stays to be read without a connection, where browsers allow that: over https, and from this
 * machine.
 */
export class Offline {
  /**
   * @param {HTMLElement} root
   * @param {import('./layers.js').Layers} layers
   */
  static start(root, layers) {
    if (!window.isSecureContext || !/^https?:$/.test(location.protocol)) return;
    const offline = new Offline(layers);
    const begin = () => {
      if (root.dataset.state !== 'ready') return;
      observer.disconnect();
      // Whoever can't have it, by a setting or in a frame, reads as ever.
      offline.keep().catch(() => {});
    };
    // Nothing of this may be in the way of the first pages.
    const observer = new MutationObserver(begin);
    observer.observe(root, { attributes: true, attributeFilter: ['data-state'] });
  }

  /** @param {import('./layers.js').Layers} layers */
  constructor(layers) {
    this.lastTurn = Date.now();
    /** How often fetching has begun: only the last round goes on. */
    this.round = 0;
    layers.followers.push(() => { this.lastTurn = Date.now(); });
  }

  async keep() {
    this.#addManifest();
    await this.#quiet();
    const { serviceWorker } = navigator;
    // A worker of another edition takes the place of the one that was asked, and has nothing yet.
    serviceWorker.addEventListener('controllerchange', () => this.#fetchAhead().catch(() => {}));
    await serviceWorker.register('sw.js');
    await serviceWorker.ready;
    await this.#fetchAhead();
  }

  async #fetchAhead() {
    const round = ++this.round;
    await this.#ask({ seen: performance.getEntriesByType('resource').map(({ name }) => name) });
    if (/** @type {any} */ (navigator).connection?.saveData) return;
    do await this.#quiet();
    while (round === this.round && await this.#ask({}));
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

  /**
   * @param {{seen?: string[]}} message
   * @returns {Promise<boolean>} whether there is more to do
   */
  async #ask(message) {
    const { active } = await navigator.serviceWorker.ready;
    const { port1, port2 } = new MessageChannel();
    const answer = new Promise((resolve) => { port1.onmessage = ({ data }) => resolve(data); });
    active?.postMessage(message, [port2]);
    return answer;
  }
}
