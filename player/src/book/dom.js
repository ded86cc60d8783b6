/**
 * The first matching element, which must exist.
 * @param {ParentNode} root
 * @param {string} selector
 * @returns {HTMLElement}
 */
export function part(root, selector) {
  return /** @type {HTMLElement} */ (root.querySelector(selector));
}

/**
 * @param {string} tag
 * @param {string} className
 * @param {...(Node | string)} children
 * @returns {HTMLElement}
 */
export function make(tag, className, ...children) {
  const element = document.createElement(tag);
  if (className) element.className = className;
  element.append(...children);
  return element;
}

/**
 * What has the focus, if readers see that it has, as those do who come to it by key. Something clicked lets go of it, so
 * that Space goes on in the book and does not press it again.
 */
export function focusByKey() {
  const { activeElement } = document;
  if (!(activeElement instanceof HTMLElement) || activeElement.matches('body')) return null;
  if (activeElement.matches(':focus-visible')) return activeElement;
  activeElement.blur();
  return null;
}

/**
 * Gives the focus back to where it was by key, or to nothing.
 * @param {HTMLElement | null | undefined} from
 */
export function giveFocus(from) {
  if (from) from.focus({ preventScroll: true });
  else if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
}
