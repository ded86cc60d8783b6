/** @typedef {import('./pagetext.js').PageText} PageText */
/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('../src/controls/reading.js').Column} Column */

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
 * Columns of a page in reading order.
 * @param {Pick<Face, 'text' | 'box' | 'over'> | undefined} face
 * @param {Column} whole the page
 */
export function columnsOf(face, whole) {
  const found = face?.text ? columnsIn(face.text) : [];
  if (!face || found.length === 0) return [whole];
  const { box, over } = face;
  const [width, height] = [whole.right - whole.left, whole.bottom - whole.top];
  /** @param {number} share */
  const across = (share) => whole.left + (width * (box.offsetLeft + share * box.offsetWidth)) / over.offsetWidth;
  /** @param {number} share */
  const down = (share) => whole.top + (height * (box.offsetTop + share * box.offsetHeight)) / over.offsetHeight;
  return found.map(({ left, top, right, bottom }) =>
    ({ page: whole.page, left: across(left), top: down(top), right: across(right), bottom: down(bottom) }));
}

/**
 * Columns of a page's text in reading order, as shares of the picture: one where the text is not set in columns.
 * @param {PageText} text
 */
export function columnsIn({ lines, width, height }) {
  const level = lines.filter(({ turn }) => turn === 0).map(({ box }) => box);
  if (level.length === 0) return [];
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
