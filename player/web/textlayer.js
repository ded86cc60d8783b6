import { make } from '../src/book/dom.js';
import { isUpright } from './pagetext.js';

/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('./pagetext.js').Line} Line */

/** Size at which words are measured; widths at others follow from it. */
const MEASURED = 100;

/** Share of a line's height that letters of its size take. */
const LETTERS = 0.8;

/** Cached measurements; words recur often. */
const MOST_MEASURED = 4000;

const context = /** @type {CanvasRenderingContext2D} */ (document.createElement('canvas').getContext('2d'));
/** @type {Map<string, number>} */
const measured = new Map();

/** @param {string} text */
function widthOf(text) {
  let width = measured.get(text);
  if (width === undefined) {
    if (measured.size >= MOST_MEASURED) measured.clear();
    context.font = MEASURED + 'px sans-serif';
    width = context.measureText(text).width;
    measured.set(text, width);
  }
  return width;
}

/** Words that are added at a time, since the browser lays them out before its next frame. */
const AT_A_TIME = 120;

/** What assistive technology takes parts of a page for, by their kinds; anything else is a paragraph. */
const ROLES = new Map([['item', 'listitem'], ['note', 'note'], ['code', 'code'], ['row', 'row'], ['figure', 'figure']]);

/** What such parts lie in together. */
const GROUPS = new Map([['item', 'list'], ['row', 'table']]);

/**
 * Overlays a page's words as transparent text that can be selected, copied and read aloud. The layer has the page's
 * size in tenths of a point and is scaled as a whole. Its elements are headings, paragraphs, lists and tables without a
 * place of their own, in which the lines lie.
 * @param {Face} face whose text is there
 * @param {() => Promise<void>} rest resolves when there is time for more
 */
export async function addTextLayer({ box, text }, rest) {
  if (!text || text.lines.length === 0) return;
  const layer = make('div', 'text-layer');
  /** @type {HTMLElement} */
  let group = layer;
  /** @type {string[]} headings that the part is below */
  const above = [];
  layer.style.width = text.width + 'px';
  layer.style.height = text.height + 'px';
  box.append(layer);
  let added = 0;
  for (const { kind, lines } of text.parts) {
    if (added > AT_A_TIME) {
      await rest();
      // The reader may have left the page.
      if (!layer.isConnected) return;
      added = 0;
    }
    added += lines.reduce((sum, { words }) => sum + words.length, 0);
    const role = GROUPS.get(kind) ?? '';
    if (!role) group = layer;
    else if (group.getAttribute('role') !== role) {
      group = withRole(make('div', ''), role);
      layer.append(group);
    }
    const element = partElement(kind, lines);
    if (kind[0] === 'h') {
      while (above.length > 0 && above[above.length - 1] >= kind) above.pop();
      above.push(kind);
      // By the headings of this page, below the book's title: no level is left out.
      element.setAttribute('aria-level', String(above.length + 1));
    }
    group.append(element);
  }
}

/**
 * @param {HTMLElement} element
 * @param {string} role
 */
function withRole(element, role) {
  element.setAttribute('role', role);
  return element;
}

/**
 * @param {string} kind
 * @param {Line[]} lines
 */
function partElement(kind, lines) {
  const elements = lines.map(lineElement);
  if (kind === 'row') elements.forEach((line) => withRole(line, 'cell'));
  return withRole(make('div', '', ...elements), kind[0] === 'h' ? 'heading' : ROLES.get(kind) ?? 'paragraph');
}

/** @param {Line} line */
function lineElement(line) {
  const element = make('div', 'line');
  const { x, y, width, height } = line.box;
  const [long, thick] = isUpright(line) ? [height, width] : [width, height];
  const origin = { 0: [x, y], 90: [x + width, y], 180: [x + width, y + height], 270: [x, y + height] }[line.turn];
  const size = thick * LETTERS;
  element.dir = line.rtl ? 'rtl' : 'ltr';
  element.style.cssText = 'width:' + long + 'px;height:' + thick + 'px;font-size:' + size + 'px;line-height:'
    + thick + 'px;transform:translate(' + origin[0] + 'px,' + origin[1] + 'px) rotate(' + line.turn + 'deg)';
  // Distances from the edge at which the line's reading begins.
  const starts = line.words.map(({ start, length }) => {
    const fromLeft = line.turn >= 180 ? long - start - length : start;
    return line.rtl ? long - fromLeft - length : fromLeft;
  });
  let reached = 0;
  line.words.forEach(({ text, length }, index) => {
    const letters = text.trimEnd();
    const own = Math.max(1, (widthOf(letters) * size) / MEASURED);
    const scale = length / own;
    // A blank after the word reaches to the next one, so that selected text has no gaps. In lines of both directions the
    // next one may be elsewhere.
    const way = starts[index + 1] - starts[index] - length;
    const gap = letters !== text && way > 0 && way < thick ? way / scale : 0;
    const blank = ((widthOf(text) - widthOf(letters)) * size) / MEASURED;
    const word = make('span', 'word', text);
    word.style.cssText = 'width:' + (own + gap).toFixed(1) + 'px;margin-inline-start:' + (starts[index] - reached).toFixed(1)
      + 'px;word-spacing:' + (gap && gap - blank).toFixed(1) + 'px;transform:scaleX(' + scale.toFixed(4) + ')';
    reached = starts[index] + own + gap;
    element.append(word);
  });
  element.append(make('br', ''));
  return element;
}
