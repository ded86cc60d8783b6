/** For what readers want of all books of a site. */
export const ALL_BOOKS = '*';

/** @param {string} name @param {string} of */
const keyOf = (name, of) => 'folvero:' + of + ':' + name;

/**
 * What was stored for this book, null for nothing.
 * @param {string} name
 * @param {string} [of] what else it was stored for
 */
export function recall(name, of = location.pathname) {
  try {
    return localStorage.getItem(keyOf(name, of));
  } catch {
    return null;
  }
}

/**
 * Stores something for this book, where the browser allows it. Private windows and strict settings forbid it; then it
 * lasts as long as the page.
 * @param {string} name
 * @param {string} value
 * @param {string} [of] what else it is stored for
 * @returns {boolean} whether it is stored
 */
export function keep(name, value, of = location.pathname) {
  try {
    localStorage.setItem(keyOf(name, of), value);
    return true;
  } catch {
    return false;
  }
}
