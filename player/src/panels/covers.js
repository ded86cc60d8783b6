/** @typedef {import('../controls/place.js').Place} Place */

/** Windows in which no panel lies beside the book: phones, where people go back by a gesture or a button. */
const NARROW = '(max-width: 899px)';

/**
 * Lets the browser's Back close what lies over the book on phones: an entry of the history stands for it.
 * @param {HTMLElement} root
 * @param {Place} place
 * @param {import('./drawer.js').Drawer} drawer
 */
export function closeByBack(root, place, drawer) {
  const narrow = matchMedia(NARROW);
  let entered = false;
  // Going back takes a moment, in which something else may open.
  let leaving = false;
  const follow = () => {
    const covered = root.querySelector('dialog[open], .drawer:not([hidden])') !== null;
    if (leaving || covered === entered) return;
    // A jump from there takes the entry's place.
    leaving = !covered && history.state !== null;
    if (leaving) history.back();
    entered = covered && narrow.matches && place.cover();
  };
  // Called once for a menu that closes and what it opens.
  new MutationObserver(follow).observe(root, { subtree: true, attributeFilter: ['open', 'hidden'] });
  window.addEventListener('popstate', () => {
    if (leaving) {
      leaving = false;
      follow();
    } else if (entered && !history.state) {
      entered = false;
      drawer.hide();
      for (const dialog of root.querySelectorAll('dialog')) {
        if (dialog.open && dialog.dispatchEvent(new Event('cancel', { cancelable: true }))) dialog.close();
      }
    }
  });
}
