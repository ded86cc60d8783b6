/** @typedef {import('../src/book/config.js').BookConfig} BookConfig */
/** @typedef {import('./facts.js').Facts} Facts */

const LOCK = '<path d="M-17-6h34a4 4 0 0 1 4 4v24a4 4 0 0 1-4 4h-34a4 4 0 0 1-4-4v-24a4 4 0 0 1 4-4z'
  + 'M-11-6v-8a11 11 0 0 1 22 0v8M0 7v7"/>';

/**
 * Replaces the images of pages that a preview omits by one that says so. The player then turns, prints and zooms them
 * as any other page.
 * @param {BookConfig} config
 * @param {Facts} facts
 * @param {string} text
 * @returns {(path: string) => string | undefined} address of such a picture
 */
export function closePages(config, facts, text) {
  for (let position = 1; position <= config.pages.length; position++) {
    if (facts.isOpen(position)) continue;
    const page = config.pages[position - 1];
    const thumb = config.thumbs[position - 1];
    config.pages[position - 1] = { path: 'closed/page/' + position, width: page.width, height: page.height };
    config.thumbs[position - 1] = { path: 'closed/thumb/' + position, width: thumb.width, height: thumb.height };
  }
  return (path) => {
    const [, kind, position] = /^closed\/(page|thumb)\/(\d+)$/.exec(path) ?? [];
    if (!kind) return undefined;
    const { width, height } = config.pages[Number(position) - 1];
    return picture(width / height, kind === 'page' ? text : '');
  };
}

/**
 * Paper with a lock and, where there is room, words below it.
 * @param {number} aspect
 * @param {string} text
 */
function picture(aspect, text) {
  const height = 1000;
  const width = Math.round(height * aspect);
  const unit = Math.min(width, height) / 1000;
  const lines = text ? wrapped(text, 24) : [];
  const size = 40 * unit;
  const middle = height / 2 - (lines.length * size) / 2;
  const sign = text ? 2.3 * unit : 6 * unit;
  const words = lines.map((line, index) => '<text x="' + width / 2 + '" y="'
    + (middle + 136 * unit + index * size * 1.45) + '">' + escaped(line) + '</text>').join('');
  const inset = 46 * unit;
  return 'data:image/svg+xml,' + encodeURIComponent(
    '<svg xmlns="http://www.w3.org/2000/svg" width="' + width + '" height="' + height + '">'
    + '<rect width="100%" height="100%" fill="#f4f2ee"/>'
    + '<rect x="' + inset + '" y="' + inset + '" width="' + (width - 2 * inset) + '" height="' + (height - 2 * inset)
    + '" rx="' + 10 * unit + '" fill="none" stroke="#dcd8d0" stroke-width="' + 3 * unit + '"/>'
    + '<g fill="none" stroke="#8b857b" stroke-width="3" stroke-linecap="round" stroke-linejoin="round" transform="translate('
    + width / 2 + ' ' + middle + ') scale(' + sign + ')">' + LOCK + '</g>'
    + '<g fill="#5f5a52" text-anchor="middle" font-family="system-ui, -apple-system, Segoe UI, Roboto, sans-serif" font-size="'
    + size + '">' + words + '</g></svg>');
}

/**
 * @param {string} text
 * @param {number} most characters of a line
 */
function wrapped(text, most) {
  const lines = [''];
  for (const word of text.split(' ')) {
    const last = lines[lines.length - 1];
    if (last && last.length + word.length >= most) lines.push(word);
    else lines[lines.length - 1] = last ? last + ' ' + word : word;
  }
  return lines;
}

/** @param {string} text */
function escaped(text) {
  return text.replace(/&/g, '&amp;').replace(/</g, '&lt;').replace(/>/g, '&gt;');
}
