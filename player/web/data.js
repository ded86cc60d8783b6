import { loadFile } from '../src/book/values.js';

/** @typedef {import('./singlefile.js').SingleFile} SingleFile */

/**
 * The book's data files. Browsers let no page from disk read its neighbours but run its sibling
 * scripts, so each file is a script that hands its data over.
 */
export class DataFiles {
  /** @param {SingleFile | null} single the files, where they stand in the page itself */
  constructor(single) {
    this.single = single;
    /** @type {Map<string, {promise: Promise<unknown>, arrived: (data: unknown) => void}>} */
    this.waiting = new Map();
    window.folveroData = (name, data) => this.waiting.get(name)?.arrived(data);
  }

  /**
   * Data of a file that may be missing or broken; asked again it is loaded again.
   * @param {string} name path below the book's files, without its ending
   * @returns {Promise<unknown>}
   */
  load(name) {
    return this.#once(name, () => (this.single ? this.single.data(name) : this.#run(name)));
  }

  /**
   * What a script of the player hands over.
   * @param {string} name
   * @returns {Promise<unknown>}
   */
  run(name) {
    return this.#once(name, () => this.#run(name));
  }

  /**
   * @param {string} name
   * @param {() => Promise<unknown>} start
   */
  #once(name, start) {
    const waiting = this.waiting.get(name);
    if (waiting) return waiting.promise;
    const promise = start()
      .finally(() => this.waiting.delete(name));
    const entry = this.waiting.get(name);
    if (entry) entry.promise = promise;
    return promise;
  }

  /**
   * @param {string} name
   * @returns {Promise<unknown>}
   */
  #run(name) {
    const script = document.createElement('script');
    const promise = new Promise((resolve, reject) => {
      this.waiting.set(name, { promise: Promise.resolve(), arrived: resolve });
      script.onload = () => reject(new Error(name + ' is broken'));
      script.onerror = () => reject(new Error(name + ' is missing'));
    });
    loadFile(script, name + '.js');
    document.head.append(script);
    return promise.finally(() => script.remove());
  }
}
