/**
 * What SCORM 1.2 gives a course to talk to its learning platform.
 * @typedef {{
 *   LMSInitialize(empty: ''): string | boolean,
 *   LMSGetValue(name: string): string,
 *   LMSSetValue(name: string, value: string): string | boolean,
 *   LMSCommit(empty: ''): string | boolean,
 *   LMSFinish(empty: ''): string | boolean,
 * }} Platform
 */

/** Time between two reports to the platform, each of which is a request, in milliseconds. */
const REPORT_MS = 20_000;

/**
 * @param {Window} place may be of another server, which can't be asked
 * @returns {Platform | null}
 */
function platformAt(place) {
  try {
    return /** @type {any} */ (place).API ?? null;
  } catch {
    return null;
  }
}

/**
 * The platform's functions: they lie in a page around the book, or around the one that opened its window.
 * @param {Window | null} start
 * @returns {Platform | null}
 */
export function findPlatform(start) {
  /** @type {Set<Window>} */
  const seen = new Set();
  for (let place = start; place && !seen.has(place);) {
    const platform = platformAt(place);
    if (platform) return platform;
    seen.add(place);
    place = place.parent === place ? place.opener : place.parent;
  }
  return null;
}

/**
 * A duration as SCORM 1.2 writes it, HHHH:MM:SS.
 * @param {number} milliseconds
 */
export function timespan(milliseconds) {
  const seconds = Math.min(Math.floor(milliseconds / 1000), 9999 * 3600);
  const digits = (/** @type {number} */ value, /** @type {number} */ count) => String(value).padStart(count, '0');
  return [digits(Math.floor(seconds / 3600), 4), digits(Math.floor(seconds / 60) % 60, 2), digits(seconds % 60, 2)].join(':');
}

/** A reader's visit to a book that is a course: keeps the page, the time, and whether the end was reached. */
export class Visit {
  /**
   * @param {Platform} platform
   * @param {() => number} now in milliseconds
   */
  constructor(platform, now = Date.now) {
    this.platform = platform;
    this.now = now;
    this.since = now();
    this.reported = -Infinity;
    this.running = String(platform.LMSInitialize('')) === 'true';
    this.status = this.running ? platform.LMSGetValue('cmi.core.lesson_status') : '';
    if (!['completed', 'passed', 'failed'].includes(this.status)) this.#set('lesson_status', this.status = 'incomplete');
  }

  /**
   * @param {string} name
   * @param {string} value
   */
  #set(name, value) {
    if (this.running) this.platform.LMSSetValue('cmi.core.' + name, value);
  }

  /** The page on which the last visit ended, 0 for none. */
  get page() {
    const kept = this.running ? Number(this.platform.LMSGetValue('cmi.core.lesson_location')) : 0;
    return Number.isInteger(kept) && kept > 0 ? kept : 0;
  }

  /** @param {number} page that is shown now */
  show(page) {
    this.#set('lesson_location', String(page));
    if (this.now() - this.reported >= REPORT_MS) this.report();
  }

  /** The last page was shown. */
  complete() {
    if (this.status !== 'incomplete') return;
    this.#set('lesson_status', this.status = 'completed');
    this.report();
  }

  /** Makes the platform store what was reported to it. */
  report() {
    this.reported = this.now();
    this.#set('session_time', timespan(this.now() - this.since));
    if (this.running) this.platform.LMSCommit('');
  }

  /** The reader leaves. */
  end() {
    // Without it the platform would begin the next visit at the first page.
    this.#set('exit', 'suspend');
    this.report();
    if (this.running) this.platform.LMSFinish('');
    this.running = false;
  }
}
