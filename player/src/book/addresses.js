/** What a reader may be led to. Anything else may run a script or reach into the reader's machine. */
const FOLLOWED = ['http:', 'https:', 'mailto:', 'tel:'];

/**
 * Whether a book may lead its reader to an address that stands in it. The browser's own reading of
 * the address decides, which passes over blanks, line breaks and control characters.
 * @param {string} address a whole address, with its scheme
 */
export function mayFollow(address) {
  try {
    return FOLLOWED.includes(new URL(address).protocol);
  } catch {
    return false;
  }
}
