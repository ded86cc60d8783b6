/** @typedef {import('./toolbar.js').Commands} Commands */

/**
 * Makes the shortcut keys of the bar's buttons work everywhere in the book.
 * @param {HTMLElement} root
 * @param {Commands} commands
 */
export function wireKeys(root, commands) {
  window.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.altKey || event.metaKey || event.defaultPrevented) return;
    if (event.target instanceof HTMLInputElement || root.dataset.state !== 'ready') return;
    const command = commandFor(root, keyOf(event));
    if (!command) return;
    event.preventDefault();
    commands[command]();
  });
}

/**
 * Keeps the keys that are pressed while the book opens, and gives them to it once it is there.
 * @param {HTMLElement} root
 * @returns {() => void} to be called when the book is ready
 */
export function keepKeys(root) {
  /** @type {KeyboardEvent[]} */
  const kept = [];
  const keep = (/** @type {KeyboardEvent} */ event) => {
    const { target, key } = event;
    if (event.ctrlKey || event.altKey || event.metaKey || key === 'Tab' || target !== document.body) return;
    event.stopImmediatePropagation();
    kept.push(event);
  };
  window.addEventListener('keydown', keep, true);
  return () => {
    window.removeEventListener('keydown', keep, true);
    for (const event of kept) root.dispatchEvent(new KeyboardEvent('keydown', event));
  };
}

/**
 * The key as shortcuts name it. Where letters are others than Latin ones, its place on the keyboard counts.
 * @param {KeyboardEvent} event
 */
export function keyOf({ key, code }) {
  return key > '~' ? code.slice(-1) : key.toUpperCase();
}

/**
 * @param {HTMLElement} root
 * @param {string} key
 */
function commandFor(root, key) {
  if (key === 'G') return 'goTo';
  if (key === 'ESCAPE') return 'escape';
  for (const button of root.querySelectorAll('[data-does][data-key]')) {
    const { dataset, hidden } = /** @type {HTMLElement} */ (button);
    if (dataset.key === key && !hidden) return dataset.does;
  }
  return '';
}
