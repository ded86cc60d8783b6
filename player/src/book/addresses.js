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

/**
 * How an address for the web or for mail is shown, without what is the same in all; empty for others.
 * @param {string} text
 */
export function webAddress(text) {
  return /^(?:https?:\/\/|mailto:)/i.test(text) && mayFollow(text) ? text.replace(/^https?:\/\/|^mailto:|\/$/gi, '') : '';
}
