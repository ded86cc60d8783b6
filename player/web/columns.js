/** @typedef {import('./pagetext.js').PageText} PageText */
/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('../src/controls/reading.js').Area} Area */

/** Into how many strips a page is cut from top to bottom to find the gaps between its columns. */
const STRIPS = 100;

/** Lines wider than this share of the text are titles and the like, which lie over several columns. */
const WIDE = 0.6;

/** In a gap lies at most this share of the text that lies in the fullest strip: a centred line now and then. */
const GAP = 0.12;

/** Narrower columns than this share of the text are those of a table, which is read across. */
const LEAST = 0.22;

/** A page of which fewer lines are narrow has lists, tables or short lines in one column. */
const MOST = 0.7;

/** White space that is left around text, as a share of the page. */
const MARGIN = 0.012;

/**
 * Columns of a page in reading order, as shares of its size.
 * @param {Pick<Face, 'text' | 'box' | 'over'> | undefined} face
 * @returns {Area[] | null} null where no text is known
 */
export function columnsOf(face) {
  if (!face?.text) return null;
  const { box: { offsetLeft, offsetTop, offsetWidth, offsetHeight }, over } = face;
  /** @param {number} share */
  const across = (share) => (offsetLeft + share * offsetWidth) / over.offsetWidth;
  /** @param {number} share */
  const down = (share) => (offsetTop + share * offsetHeight) / over.offsetHeight;
  return columnsIn(face.text)?.map(({ left, top, right, bottom }) =>
    ({ left: across(left), top: down(top), right: across(right), bottom: down(bottom) })) ?? null;
}

/**
 * Columns of a page's text in reading order, as shares of the picture: one where the text is not set in columns.
 * @param {PageText} text
 * @returns {Area[] | null} null without text
 */
export function columnsIn({ lines, width, height }) {
  const level = lines.filter(({ turn }) => turn === 0).map(({ box }) => box);
  if (level.length === 0) return null;
  const from = Math.min(...level.map(({ x }) => x));
  const to = Math.max(...level.map((box) => box.x + box.width));
  const narrow = level.filter((box) => box.width < WIDE * (to - from));
  const found = runsIn(filled(narrow, from, to)).map(([first, end]) => {
    const step = (to - from) / STRIPS;
    const own = narrow.filter((box) => {
      const strip = (box.x + box.width / 2 - from) / step;
      return strip >= first && strip <= end;
    });
    return {
      left: (from + first * step) / width - MARGIN, right: (from + end * step) / width + MARGIN,
      top: Math.min(...own.map(({ y }) => y)) / height - MARGIN,
      bottom: Math.max(...own.map((box) => box.y + box.height)) / height + MARGIN,
    };
  });
  const isTable = found.some(({ left, right }) => (right - left) * width < LEAST * (to - from));
  const isSet = found.length > 1 && !isTable && narrow.length >= MOST * level.length;
  const columns = isSet ? found : [{ ...found[0], left: from / width - MARGIN, right: to / width + MARGIN }];
  if (lines.filter(({ rtl }) => rtl).length > lines.length / 2) columns.reverse();
  // Titles, headings and notes belong to the first and the last column.
  columns[0].top = 0;
  columns[columns.length - 1].bottom = 1;
  return columns;
}

/**
 * How much text lies in each strip.
 * @param {import('./pagetext.js').Box[]} boxes
 * @param {number} from where the strips begin
 * @param {number} to
 */
function filled(boxes, from, to) {
  const strips = new Array(STRIPS).fill(0);
  const width = Math.max(1, to - from);
  for (const box of boxes) {
    const first = Math.floor(((box.x - from) / width) * STRIPS);
    const end = Math.ceil(((box.x + box.width - from) / width) * STRIPS);
    for (let strip = first; strip < end; strip++) strips[strip] += box.height;
  }
  return strips;
}

/**
 * Runs of strips that have text.
 * @param {number[]} strips
 * @returns {[number, number][]} the first of each, and the one after it
 */
function runsIn(strips) {
  const least = Math.max(...strips) * GAP;
  /** @type {[number, number][]} */
  const runs = [];
  strips.forEach((strip, at) => {
    const last = runs[runs.length - 1];
    if (strip <= least) return;
    if (last && last[1] === at) last[1] = at + 1;
    else runs.push([at, at + 1]);
  });
  return runs;
}
