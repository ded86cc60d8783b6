import { ask, runScript } from './asking.js';
import { bytesOf } from './base64.js';
import { rc4 } from './rc4.js';
import { cssColour, isYes, numberIn, ownFile } from './values.js';

const CONFIG_KEY = 'zq4mk2pw7rxv1bn8ty';

/** A failure that has a message of its own for the reader. */
export class BookError extends Error {
  /**
   * @param {'failed' | 'unreachable' | 'incomplete' | 'damaged' | 'empty'} title
   * @param {boolean} again whether trying again may help
   */
  constructor(title, again = false) {
    super(title);
    this.title = title;
    this.again = again;
  }
}

/**
 * @typedef {{path: string, width: number, height: number, photo?: boolean}} PageEntry photo: it is a photograph to its edges
 * @typedef {object} Ground
 * @property {string} from
 * @property {string} to
 * @property {number} angle degrees
 * @property {string} file
 * @property {{width: number, height: number}} size of the picture in points, 0 for its own
 * @property {string} position
 *
 * @typedef {object} BookConfig
 * @property {{top: number, right: number, bottom: number, left: number}} margins CSS pixels
 * @property {string} initialShow
 * @property {string} windowColour
 * @property {string} thumbsColour
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
 * @property {{file: string, link: string}} logo
 * @property {string} accent colour, empty for the player's own
 * @property {string} firstView "one", "two" or nothing that is known: as it suits the window
 * @property {string[]} hidden names of commands that readers do not have
 * @property {string} download path of a PDF, empty for none
 * @property {PageEntry[]} pages
 * @property {PageEntry[]} thumbs as many as pages
 * @property {string[] | null} labels what pages are called, empty texts and none: by their numbers
 */

/**
 * @param {Promise<unknown>} request
 * @returns {Promise<Uint8Array>} the enciphered configuration
 */
async function fetchBinary(request) {
  const response = /** @type {Response} */ (await request);
  if (!response.ok) throw new Error('status ' + response.status);
  return new Uint8Array(await response.arrayBuffer());
}

/**
 * @param {Promise<unknown>} [run] of the script that holds a copy
 * @returns {Promise<Uint8Array>}
 */
async function readScriptCopy(run) {
  await run;
  try {
    return bytesOf(/** @type {string} */ (window.FolveroUserConfig));
  } catch {
    throw new BookError('damaged');
  }
}

/** @returns {Promise<BookConfig>} */
export async function loadConfiguration() {
  const { asked, here, whole } = window.folveroConfiguration ?? {};
  const fromDisk = location.protocol === 'file:';
  let answered = true;
  const request = () => asked ?? ask();
  const ofFiles = fromDisk ? [() => readScriptCopy(request())]
    : [() => fetchBinary(request()), () => readScriptCopy(runScript())];
  const inPage = () => readScriptCopy();
  const sources = [...(here ? [inPage] : []), ...(here && !whole ? [] : ofFiles)];
  for (const source of sources) {
    try {
      return parseConfiguration(decipher(await source()));
    } catch (error) {
      if (error instanceof BookError && !(whole && source === inPage)) throw error;
      // fetch() rejects with a TypeError only when no server answers.
      if (error instanceof TypeError) answered = false;
    }
  }
  throw answered ? new BookError('incomplete', !fromDisk) : new BookError('unreachable', true);
}

/** @param {Uint8Array} enciphered */
function decipher(enciphered) {
  const text = new TextDecoder('utf-8').decode(rc4(enciphered, CONFIG_KEY));
  return text.slice(0, text.lastIndexOf('>') + 1);
}

/**
 * @param {string} xml
 * @returns {BookConfig}
 */
export function parseConfiguration(xml) {
  const begin = xml.indexOf('<Ppts>');
  const end = xml.lastIndexOf('</Ppts>');
  const [rest, list] = begin >= 0 && begin < end
    ? [xml.slice(0, begin) + xml.slice(end + '</Ppts>'.length), xml.slice(begin, end)] : [xml, ''];
  const parsed = new DOMParser().parseFromString(rest, 'application/xml');
  const root = parsed.documentElement;
  // Browsers keep what precedes an XML error beside the error element.
  if (root.nodeName !== 'SlidePowerPoint' || parsed.getElementsByTagName('parsererror').length) {
    throw new BookError('damaged');
  }
  const entries = readPages(list);
  if (entries.length === 0) throw new BookError('empty');
  return readConfiguration((path) => textAt(root, path), entries);
}

/**
 * What the texts of a configuration mean.
 * @param {(path: string) => string} text of the element to which child names lead, with blanks between them
 * @param {{page: PageEntry, thumb: PageEntry}[]} entries
 * @returns {BookConfig}
 */
export function readConfiguration(text, entries) {
  /** @param {string} side */
  const margin = (side) => numberIn(text('Properties ' + side), 10, 0, 400);
  return {
    margins: {
      top: margin('Top'), right: margin('Right'), bottom: margin('Bottom'), left: margin('Left'),
    },
    initialShow: text('Properties InitialShow'),
    windowColour: cssColour(text('Properties FlashWindowsColor'), '#ffffff'),
    thumbsColour: cssColour(text('Properties ThumbnailsBgColor'), '#ffffff'),
    pageColour: cssColour(text('Properties PageBackgroundColor'), '#ffffff'),
    caption: text('Properties TutorialTitle'),
    hideBar: isYes(text('Properties HidePageFrameBar')),
    riseTime: numberIn(text('Properties PageRiseOrFallTime'), 0.5, 0.05, 5),
    moveTime: numberIn(text('Properties PageMoveTime'), 1, 0.1, 10),
    slideInterval: numberIn(text('Properties SlideInterval'), 1, 0.2, 3600),
    rightToLeft: isYes(text('Properties RightToLeft')),
    autoPlay: isYes(text('Properties AutoPlay')),
    loopPlay: isYes(text('Properties LoopPlay')),
    outer: readGround(text, 'Outer', '#c0c0c0', '#808080'),
    inner: readGround(text, 'Inner', '#a3cfd1', '#408080'),
    sound: {
      file: ownFile(text('BackgroundConfig BackgroundSound SoundFile')),
      loops: Math.floor(numberIn(text('BackgroundConfig BackgroundSound SoundLoops'), -1, -1, 1e4)),
    },
    logo: { file: ownFile(text('Properties LogoFile')), link: text('Properties LogoLink') },
    accent: cssColour(text('Properties AccentColor'), ''),
    firstView: text('Properties FirstView').toLowerCase().split(' ')[0],
    hidden: text('Properties HiddenButtons').split(' '),
    download: ownFile(text('Properties DownloadFile')),
    pages: entries.map(({ page }) => page),
    thumbs: entries.map(({ thumb }) => thumb),
    labels: null,
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
  const colour = 'BackgroundConfig BackgroundColor ' + which;
  const image = 'BackgroundConfig BackgroundImage ' + which;
  return {
    from: cssColour(text(colour + 'GradiantColorA'), from),
    to: cssColour(text(colour + 'GradiantColorB'), to),
    angle: numberIn(text(colour + 'GradiantAngle'), 90, -3600, 3600),
    file: ownFile(text(image + 'BackgroundFile')),
    size: {
      width: numberIn(text(image + 'ImgWidth'), 0, 0, 20000),
      height: numberIn(text(image + 'ImgHeight'), 0, 0, 20000),
    },
    position: text(image + 'BackgroundPosition'),
  };
}

/**
 * Text of the element at a path of child names; empty when there is none.
 * @param {Element} root
 * @param {string} path names with blanks between them
 */
export function textAt(root, path) {
  /** @type {Element | undefined} */
  let element = root;
  for (const name of path.split(' ')) {
    element = [...(element?.children ?? [])].find((child) => child.nodeName === name);
  }
  return element?.textContent?.trim() ?? '';
}

const ENTITIES = new Map([['amp', '&'], ['lt', '<'], ['gt', '>'], ['quot', '"'], ['apos', "'"]]);

/** A page of the list, parsed when it is accessed: a book may have thousands. */
class ListedPage {
  /**
   * @param {string} text the page's part of the list
   * @param {'Normal' | 'Thumb'} kind
   * @param {{width: number, height: number, path: string}} otherwise
   */
  constructor(text, kind, otherwise) {
    this.text = text;
    this.kind = kind;
    this.otherwise = otherwise;
  }

  get path() {
    return ownFile(this.#read('ImgPath')) || this.otherwise.path;
  }

  get width() {
    return numberIn(this.#read('Width'), this.otherwise.width, 1, 1e5);
  }

  get height() {
    return numberIn(this.#read('Height'), this.otherwise.height, 1, 1e5);
  }

  /** @param {string} name */
  #read(name) {
    const [, own = ''] = this.text.split('<' + this.kind + '>');
    const [, rest = ''] = own.split('</' + this.kind + '>')[0].split('<' + name + '>');
    return plainText(rest.split('<')[0]);
  }
}

/**
 * Lists the pages without building a DOM: for thousands of them that would take longer than everything else that
 * opening a book does.
 * @param {string} list
 * @returns {{page: PageEntry, thumb: PageEntry}[]}
 */
export function readPages(list) {
  return list.split('<Ppt>').slice(1).map((text) => {
    const page = new ListedPage(text, 'Normal', { path: '', width: 600, height: 800 });
    const thumb = { width: 85, height: 113, get path() { return page.path; } };
    return { page, thumb: new ListedPage(text, 'Thumb', thumb) };
  });
}

/** @param {string} text with the five entities that every XML document knows */
function plainText(text) {
  return text.includes('&') ? text.replace(/&(\w+);/g, (all, name) => ENTITIES.get(name) ?? all) : text;
}
