/** @param {string} name */
const keyOf = (name) => 'folvero:' + location.pathname + ':' + name;

/**
 * What was stored for this book, null for nothing.
 * @param {string} name
 */
export function recall(name) {
  try {
    return localStorage.getItem(keyOf(name));
  } catch {
    return null;
  }
}

/**
 * Stores something for this book, where the browser allows it.
 * @param {string} name
 * @param {string} value
 */
export function keep(name, value) {
  try {
    localStorage.setItem(keyOf(name), value);
  } catch {
    // Private windows and strict settings forbid it; then the book opens at its cover.
  }
}
