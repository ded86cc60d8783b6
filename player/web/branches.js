/** @typedef {import('./facts.js').Entry} Entry */
/**
 * @typedef {object} Item of a tree
 * @property {Entry} entry
 * @property {Item | null} parent
 * @property {Item[]} children
 * @property {number} level from 1
 * @property {boolean} open
 * @property {HTMLElement | null} element none until its branch has been opened
 */

/**
 * @param {Entry} entry
 * @param {Item | null} parent
 * @returns {Item}
 */
export function itemOf(entry, parent = null) {
  /** @type {Item} */
  const item = { entry, parent, children: [], level: (parent?.level ?? 0) + 1, open: false, element: null };
  item.children = entry.children.map((child) => itemOf(child, item));
  return item;
}

/**
 * @param {Item[]} items
 * @param {(item: Item) => boolean} into whether an item's children are wanted too
 * @returns {Item[]}
 */
export function flat(items, into) {
  return items.flatMap((item) => [item, ...(into(item) ? flat(item.children, into) : [])]);
}

/**
 * Items above an item, the nearest first.
 * @param {Item | null | undefined} item
 */
export function above(item) {
  const all = [];
  for (let one = item?.parent; one; one = one.parent) all.push(one);
  return all;
}

/**
 * The item itself, or the branch that it is folded into.
 * @param {Item} item
 */
export function seenFor(item) {
  return above(item).filter(({ open }) => !open).pop() ?? item;
}

/**
 * The item to which a page belongs, null when it comes before all of them.
 * @param {Item[]} items in their order
 * @param {number} page
 */
export function itemOfPage(items, page) {
  /** @type {Item | null} */
  let found = null;
  for (const item of items) {
    const { position } = item.entry;
    if (position && position <= page && position >= (found?.entry.position ?? 0)) found = item;
  }
  return found;
}

/**
 * The next item whose title begins with what was typed. A second letter may stay with the item that the first
 * one found.
 * @param {Item[]} items
 * @param {number} at index of the item from which it is looked for
 * @param {string} typed in lower case
 */
export function nextTyped(items, at, typed) {
  const from = at + (typed.length === 1 ? 1 : 0);
  return [...items.slice(from), ...items.slice(0, from)]
    .find(({ entry }) => entry.title.toLowerCase().startsWith(typed));
}
