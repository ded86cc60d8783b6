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
    // Where letters are others than Latin ones, the key counts.
    const key = event.key > '~' ? event.code.slice(-1) : event.key.toUpperCase();
    const command = commandFor(root, key);
    if (!command) return;
    event.preventDefault();
    commands[command]();
  });
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
