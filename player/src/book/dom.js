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
