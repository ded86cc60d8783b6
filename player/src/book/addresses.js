/** Schemes that links may have. Others may run scripts or open local files. */
const FOLLOWED = ['http:', 'https:', 'mailto:', 'tel:'];

/**
 * Whether a book may link to an address. The URL is parsed as the browser does, which ignores leading blanks, line
 * breaks and control characters.
 * @param {string} address a whole address, with its scheme
 */
export function mayFollow(address) {
  try {
    return FOLLOWED.includes(new URL(address).protocol);
  } catch {
    return false;
  }
}
