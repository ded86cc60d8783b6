/** @typedef {import('../src/book/config.js').BookConfig} BookConfig */
/**
 * @typedef {object} Entry of the contents
 * @property {string} title
 * @property {number} position page to which it leads, 0 for none
 * @property {Entry[]} children
 */

/** Data that hold vectors, and pictures. */
const LARGE_KINDS = ['js', 'png', 'jpg'];

const PANELS = ['contents', 'thumbs'];

/** Contents deeper than this are no contents that anyone could read. */
const DEEPEST = 24;

/** What is known of a web book beside its configuration. Whatever its file holds, this is well formed. */
export class Facts {
  /**
   * @param {unknown} data as the file has it
   * @param {number} pageCount
   */
  constructor(data, pageCount) {
    const raw = fieldsOf(data);
    this.pageCount = pageCount;
    /** @type {number[]} picture numbers by position, empty where both are the same */
    this.numbers = listOf(raw.numbers).map(numberOf);
    const labels = listOf(raw.labels).map(textOf).slice(0, pageCount);
    const own = labels.some((label, index) => label && label !== String(index + 1));
    /** @type {string[] | null} none where all pages are called by their positions */
    this.labels = own ? labels : null;
    this.outline = entriesOf(raw.outline, pageCount, 0);
    /** Whether there are contents, even if the outline is still to be loaded. */
    this.hasContents = raw.outline === true || this.outline.length > 0;
    this.large = listOf(raw.large).map((kind) => (LARGE_KINDS.includes(kind) ? kind : ''));
    this.hasText = raw.text === true;
    /** Number of files with the text for searching. */
    this.searchParts = Number.isInteger(raw.searchParts) ? Math.max(1, Number(raw.searchParts)) : 1;
    /** Positions of pages of contents and indexes. */
    this.listings = listOf(raw.listings).map(numberOf);
    /** @type {number[]} pages at which the files with the structure of the text begin */
    this.reading = listOf(raw.reading).map((page) => positionOf(page, pageCount) || 1);
    this.start = positionOf(raw.start, pageCount);
    /** What is open at first where there is room beside the book. */
    this.panel = PANELS.find((name) => name === raw.panel) ?? '';
    this.offline = raw.offline === true;
    const ranges = listOf(raw.open).filter(Array.isArray).map((range) => range.map(numberOf));
    /** Pages that can be read, none where all can. */
    this.open = Array.isArray(raw.open) ? ranges : null;
    const [language, textPage] = [raw.language, raw.textPage].map(textOf);
    this.language = /^[a-z]{2,3}(?:-[a-z0-9]{1,8})*$/i.test(language) ? language : '';
    this.textPage = /^[\w-][\w.-]*\.html$/.test(textPage) ? textPage : '';
  }

  /**
   * Whether a page can be read; all others only tell that they cannot.
   * @param {number} position
   */
  isOpen(position) {
    return !this.open || this.open.some(([from, to]) => position >= from && position <= to);
  }

  /**
   * Number in the names of a page's files.
   * @param {number} position
   */
  numberOf(position) {
    const number = this.numbers[position - 1];
    return Number.isSafeInteger(number) && number > 0 ? number : position;
  }

  /**
   * Path of the picture for enlarged pages, empty when there is none.
   * @param {number} position
   */
  largeFile(position) {
    const kind = this.large[position - 1];
    return kind && this.isOpen(position) ? 'large/' + this.numberOf(position) + '.' + kind : '';
  }
}

/**
 * What data holds by name.
 * @param {unknown} data
 * @returns {Record<string, unknown>}
 */
export function fieldsOf(data) {
  return /** @type {Record<string, unknown>} */ (Object(data));
}

/**
 * @param {unknown} value
 * @returns {any[]} of what is still to be checked
 */
export function listOf(value) {
  return Array.isArray(value) ? value : [];
}

/** @param {unknown} value */
export function textOf(value) {
  return typeof value === 'string' ? value : '';
}

/**
 * @param {unknown} value
 * @returns {number} NaN for what is no finite number
 */
export function numberOf(value) {
  return Number.isFinite(value) ? Number(value) : NaN;
}

/**
 * @param {unknown} value
 * @param {number} pageCount
 * @returns {number} a page's position, 0 for anything else
 */
function positionOf(value, pageCount) {
  const position = Number.isInteger(value) ? Number(value) : 0;
  return position >= 1 && position <= pageCount ? position : 0;
}

/**
 * @param {unknown} raw
 * @param {number} pageCount
 * @param {number} depth
 * @returns {Entry[]}
 */
function entriesOf(raw, pageCount, depth) {
  if (depth > DEEPEST) return [];
  return listOf(raw).filter((entry) => Array.isArray(entry)).map(([title, position, children]) => ({
    title: textOf(title).trim() || '\u2026',
    position: positionOf(position, pageCount),
    children: entriesOf(children, pageCount, depth + 1),
  }));
}
