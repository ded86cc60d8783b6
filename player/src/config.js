import { rc4 } from './rc4.js';
import { cssColour, isYes, numberIn } from './values.js';

const CONFIG_KEY = 'zq4mk2pw7rxv1bn8ty';

/** A failure that is told to the reader in its own words. */
export class BookError extends Error {
  /**
   * @param {string} title
   * @param {string} detail
   */
  constructor(title, detail) {
    super(title);
    this.detail = detail;
  }
}

/**
 * @typedef {{path: string, width: number, height: number}} PageEntry
 * @typedef {{from: string, to: string, angle: number, file: string, position: string}} Ground
 * @typedef {object} BookConfig
 * @property {{top: number, right: number, bottom: number, left: number}} margins CSS pixels
 * @property {string} initialShow
 * @property {string} windowColour
 * @property {string} pageColour
 * @property {string} caption
 * @property {boolean} hideBar
 * @property {number} riseTime seconds
 * @property {number} moveTime seconds
 * @property {number} slideInterval seconds
 * @property {boolean} rightToLeft
 * @property {boolean} autoPlay
 * @property {boolean} loopPlay
 * @property {Ground} outer
 * @property {Ground} inner
 * @property {{file: string, loops: number}} sound loops below 0: for ever
 * @property {PageEntry[]} pages
 */

/** @returns {Promise<Uint8Array>} the enciphered configuration */
async function fetchBinary() {
  const response = await fetch('files/UserConfig.bin');
  if (!response.ok) throw new Error('status ' + response.status);
  return new Uint8Array(await response.arrayBuffer());
}

/**
 * Browsers refuse to read sibling files of a page opened from disk, but run sibling scripts.
 * @returns {Promise<Uint8Array>}
 */
function loadScriptCopy() {
  return new Promise((resolve, reject) => {
    const script = document.createElement('script');
    script.src = 'files/UserConfig.js';
    script.onerror = () => reject(new Error('not found'));
    script.onload = () => {
      const text = /** @type {any} */ (window).FolveroUserConfig;
      if (typeof text !== 'string') {
        reject(damaged('files/UserConfig.js holds no configuration.'));
        return;
      }
      try {
        resolve(Uint8Array.from(atob(text), (letter) => letter.charCodeAt(0)));
      } catch {
        reject(damaged('files/UserConfig.js cannot be decoded.'));
      }
    };
    document.head.append(script);
  });
}

/** @param {string} reason */
function damaged(reason) {
  return new BookError('This book is damaged',
    'Its configuration could not be read, so the pages cannot be shown. '
    + 'Publishing or copying the book again should help. (' + reason + ')');
}

/** @returns {Promise<BookConfig>} */
export async function loadConfiguration() {
  const sources = location.protocol === 'file:'
    ? [loadScriptCopy] : [fetchBinary, loadScriptCopy];
  for (const source of sources) {
    try {
      return parseConfiguration(decipher(await source()));
    } catch (error) {
      if (error instanceof BookError) throw error;
    }
  }
  throw new BookError('This book is incomplete',
    'The folder \u201cfiles\u201d beside this page holds the pages and the configuration of the '
    + 'book, but it could not be read. Keep this page together with that folder.');
}

/** @param {Uint8Array} bytes */
function decipher(bytes) {
  const text = new TextDecoder('utf-8').decode(rc4(bytes, CONFIG_KEY));
  return text.slice(0, text.lastIndexOf('>') + 1);
}

/**
 * @param {string} xml
 * @returns {BookConfig}
 */
export function parseConfiguration(xml) {
  const parsed = new DOMParser().parseFromString(xml, 'application/xml');
  const root = parsed.documentElement;
  // What stands before a fault is kept beside the note of the fault.
  if (root.nodeName !== 'SlidePowerPoint' || parsed.querySelector('parsererror')) {
    throw damaged('unexpected content');
  }
  /** @param {string} path */
  const text = (path) => root.querySelector(path)?.textContent?.trim() ?? '';
  /** @param {string} side */
  const margin = (side) => numberIn(text('Properties > ' + side), 10, 0, 400);
  const pages = readPages(root);
  if (pages.length === 0) {
    throw new BookError('This book has no pages', 'Nothing was published into it.');
  }
  return {
    margins: {
      top: margin('Top'), right: margin('Right'), bottom: margin('Bottom'), left: margin('Left'),
    },
    initialShow: text('InitialShow'),
    windowColour: cssColour(text('FlashWindowsColor'), '#ffffff'),
    pageColour: cssColour(text('PageBackgroundColor'), '#ffffff'),
    caption: text('TutorialTitle'),
    hideBar: isYes(text('HidePageFrameBar')),
    riseTime: numberIn(text('PageRiseOrFallTime'), 0.5, 0.05, 5),
    moveTime: numberIn(text('PageMoveTime'), 1, 0.1, 10),
    slideInterval: numberIn(text('SlideInterval'), 1, 0.2, 3600),
    rightToLeft: isYes(text('RightToLeft')),
    autoPlay: isYes(text('AutoPlay')),
    loopPlay: isYes(text('LoopPlay')),
    outer: readGround(text, 'Outer', '#c0c0c0', '#808080'),
    inner: readGround(text, 'Inner', '#a3cfd1', '#408080'),
    sound: {
      file: text('BackgroundSound > SoundFile'),
      loops: numberIn(text('BackgroundSound > SoundLoops'), -1, -1, 10000),
    },
    pages,
  };
}

/**
 * @param {(path: string) => string} text
 * @param {'Outer' | 'Inner'} which
 * @param {string} from
 * @param {string} to
 * @returns {Ground}
 */
function readGround(text, which, from, to) {
  return {
    from: cssColour(text('BackgroundColor > ' + which + 'GradiantColorA'), from),
    to: cssColour(text('BackgroundColor > ' + which + 'GradiantColorB'), to),
    angle: numberIn(text('BackgroundColor > ' + which + 'GradiantAngle'), 90, -3600, 3600),
    file: text('BackgroundImage > ' + which + 'BackgroundFile'),
    position: text('BackgroundImage > ' + which + 'BackgroundPosition'),
  };
}

/**
 * @param {Element} root
 * @returns {PageEntry[]}
 */
function readPages(root) {
  return Array.from(root.querySelectorAll('Ppts > Ppt > Normal'), (normal) => ({
    path: normal.querySelector('ImgPath')?.textContent?.trim() ?? '',
    width: numberIn(normal.querySelector('Width')?.textContent ?? '', 600, 1, 100000),
    height: numberIn(normal.querySelector('Height')?.textContent ?? '', 800, 1, 100000),
  }));
}
