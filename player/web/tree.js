import { make } from '../src/book/dom.js';
import { above, flat, itemOf, itemOfPage, nextTyped, seenFor } from './branches.js';
import { icon } from './icons.js';

/** @typedef {import('./facts.js').Entry} Entry */
/** @typedef {import('./branches.js').Item} Item */

/** Time within which typed letters belong together, in milliseconds. */
const TYPING_MS = 700;

/** Maximum indentation; deeper levels are not indented further. */
const MOST_STEPS = 7;

/** The contents as an ARIA tree with a roving tab index. Branches are created when they are first opened. */
export class Tree {
  /**
   * @param {HTMLElement} element that becomes the tree
   * @param {Entry[]} entries
   * @param {(entry: Entry) => string} labelOf page of an entry as it is called, empty for none
   * @param {(position: number) => string} spokenOf the same in a sentence
   * @param {(item: Item) => void} choose
   */
  constructor(element, entries, labelOf, spokenOf, choose) {
    this.element = element;
    this.labelOf = labelOf;
    this.spokenOf = spokenOf;
    this.choose = choose;
    this.typed = '';
    this.typedAt = 0;
    /** Number of branches created, for their ids. */
    this.made = 0;
    this.items = entries.map((entry) => itemOf(entry));
    /** @type {Item} */
    this.active = this.items[0];
    /** @type {Item | null} */
    this.current = null;
    element.setAttribute('role', 'tree');
    element.append(...this.items.map((item) => this.#make(item)));
    element.addEventListener('keydown', (event) => this.#key(event));
    element.addEventListener('click', (event) => this.#click(event));
    this.#activate(this.active, false);
  }

  /** All entries in their order, opened or not. */
  get all() {
    return flat(this.items, () => true);
  }

  /**
   * The entry to which a page belongs, null when it comes before all of them.
   * @param {number} page
   */
  ofPage(page) {
    return itemOfPage(this.all, page);
  }

  /** The visible entries. */
  get visible() {
    return flat(this.items, ({ open }) => open);
  }

  /**
   * Marks the reader's current entry, or the branch that contains it where that is collapsed.
   * @param {Item | null} item
   */
  mark(item) {
    for (const name of ['current', 'within']) {
      this.element.querySelector('.' + name)?.classList.remove(name);
    }
    this.element.querySelector('[aria-current]')?.removeAttribute('aria-current');
    this.current = item;
    if (!item) return;
    const seen = seenFor(item);
    seen.element?.classList.add(seen === item ? 'current' : 'within');
    if (seen === item) seen.element?.setAttribute('aria-current', 'page');
  }

  /**
   * Opens the branches above an entry.
   * @param {Item | null} item
   */
  reveal(item) {
    for (const one of above(item).reverse()) this.#set(one, true);
    if (item) this.#activate(item, false);
  }

  /** Scrolls the active entry into view and focuses it. */
  focus() {
    this.active.element?.focus({ preventScroll: true });
    this.active.element?.scrollIntoView({ block: 'nearest' });
  }

  /** Opens every branch. */
  openAll() {
    for (const item of this.all) if (item.children.length) this.#set(item, true);
  }

  /** @param {Item} item */
  #make(item) {
    const { entry, level, children } = item;
    const label = this.labelOf(entry);
    const sign = make('span', 'tree-sign');
    if (children.length) sign.append(icon('branch'));
    const title = make('span', 'tree-title', entry.title);
    title.dir = 'auto';
    const page = make('span', 'tree-page', label);
    page.setAttribute('aria-hidden', 'true');
    const element = make('div', 'tree-row', sign, title, page);
    if (entry.position) element.append(make('span', 'unseen', ', ' + this.spokenOf(entry.position)));
    element.style.setProperty('--step', String(Math.min(MOST_STEPS, level - 1)));
    element.setAttribute('role', 'treeitem');
    element.setAttribute('aria-level', String(level));
    if (children.length) element.setAttribute('aria-expanded', 'false');
    else if (!entry.position) element.setAttribute('aria-disabled', 'true');
    element.tabIndex = -1;
    item.element = element;
    const place = make('li', '', element);
    place.setAttribute('role', 'none');
    return place;
  }

  /** @param {Item} item */
  #makeGroup(item) {
    const group = make('ul', '', ...item.children.map((child) => this.#make(child)));
    group.id = 'branch-' + ++this.made;
    group.setAttribute('role', 'group');
    item.element?.setAttribute('aria-owns', group.id);
    item.element?.after(group);
    return group;
  }

  /**
   * @param {Item} item
   * @param {boolean} open
   */
  #set(item, open) {
    if (item.children.length === 0 || item.open === open) return;
    item.open = open;
    item.element?.setAttribute('aria-expanded', String(open));
    const group = /** @type {HTMLElement | null} */ (item.element?.nextElementSibling) ?? this.#makeGroup(item);
    group.hidden = !open;
    if (!open && above(this.active).includes(item)) this.#activate(item, this.element.contains(document.activeElement));
    this.mark(this.current);
  }

  /**
   * @param {Item} item
   * @param {boolean} focus
   */
  #activate(item, focus = true) {
    if (this.active?.element) this.active.element.tabIndex = -1;
    this.active = item;
    if (item?.element) item.element.tabIndex = 0;
    if (focus) this.focus();
  }

  /** @param {MouseEvent} event */
  #click(event) {
    const target = /** @type {Element} */ (event.target);
    const element = target.closest('.tree-row');
    const item = this.visible.find((one) => one.element === element);
    if (!item) return;
    this.#activate(item);
    if (target.closest('.tree-sign') || !item.entry.position) this.#set(item, !item.open);
    else this.choose(item);
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const { active, visible } = this;
    const at = visible.indexOf(active);
    /** @type {Record<string, () => void>} */
    const actions = {
      ArrowDown: () => this.#activate(visible[Math.min(visible.length - 1, at + 1)]),
      ArrowUp: () => this.#activate(visible[Math.max(0, at - 1)]),
      Home: () => this.#activate(visible[0]),
      End: () => this.#activate(visible[visible.length - 1]),
      ArrowRight: () => {
        if (!active.open) this.#set(active, true);
        else if (active.children.length) this.#activate(active.children[0]);
      },
      ArrowLeft: () => {
        if (active.open) this.#set(active, false);
        else if (active.parent) this.#activate(active.parent);
      },
      Enter: () => this.#take(active),
      ' ': () => this.#take(active),
      '*': () => (active.parent?.children ?? this.items).forEach((one) => this.#set(one, true)),
    };
    const action = actions[event.key];
    if (action) {
      this.typed = '';
      action();
    } else if (/^[\p{L}\p{N}]$/u.test(event.key)) this.#type(event, visible, at);
    else return;
    event.preventDefault();
  }

  /** @param {Item} item */
  #take(item) {
    if (item.entry.position) this.choose(item);
    else this.#set(item, !item.open);
  }

  /**
   * Goes to the next entry that begins with what is typed.
   * @param {KeyboardEvent} event
   * @param {Item[]} visible
   * @param {number} at
   */
  #type(event, visible, at) {
    const again = this.typed !== '' && event.timeStamp - this.typedAt < TYPING_MS;
    this.typed = (again ? this.typed : '') + event.key.toLowerCase();
    this.typedAt = event.timeStamp;
    const found = nextTyped(visible, at, this.typed);
    if (found) this.#activate(found);
  }
}
