// Elements as the modules that make them leave them, which can be written down. Nothing is laid out.

import { clock, newWindow } from './browser.mjs';

const OWN = new Set(['tag', 'nodes', 'parent', 'style', 'dataset', 'classList', 'className']);
const SELECTOR = /^(\w*)(?:\.([\w-]+))?(?:\[([\w-]+)(?:="([^"]*)")?\])?$/;
const dashed = (name) => name.replace(/[A-Z]/g, (letter) => `-${letter.toLowerCase()}`);

export class Piece extends EventTarget {
  nodes = [];
  parent = null;
  className = '';
  dataset = {};
  style = Object.defineProperty({}, 'setProperty', { value(name, value) { this[name] = value; } });
  attributes = new Map();
  classList = {
    list: () => this.className.split(' ').filter(Boolean),
    add: (name) => { this.className = [...new Set([...this.classList.list(), name])].join(' '); },
    remove: (name) => { this.className = this.classList.list().filter((one) => one !== name).join(' '); },
  };

  constructor(tag) {
    super();
    this.tag = tag;
  }

  append(...nodes) { this.#insert(this.nodes.length, nodes); }
  prepend(...nodes) { this.#insert(0, nodes); }
  after(...nodes) { this.parent.#insert(this.parent.nodes.indexOf(this) + 1, nodes); }
  replaceChildren(...nodes) { this.nodes.splice(0); this.append(...nodes); }
  setAttribute(name, value) { this.attributes.set(name, String(value)); }
  getAttribute(name) { return this.attributes.get(name) ?? null; }
  removeAttribute(name) { this.attributes.delete(name); }
  focus() { document.activeElement = this; }
  scrollIntoView() {}
  getContext() { return { measureText: (text) => ({ width: 20 * text.length + 30 * text.trimEnd().length }) }; }
  contains(other) { return Boolean(other) && (other === this || this.contains(other.parent)); }
  closest(selector) { return this.matches(selector) ? this : this.parent?.closest(selector) ?? null; }
  querySelector(selector) { return this.all.find((one) => one.matches(selector)) ?? null; }

  get isConnected() { return true; }
  get all() { return this.pieces.flatMap((one) => [one, ...one.all]); }
  get pieces() { return this.nodes.filter((node) => node instanceof Piece); }
  get lastElementChild() { return this.pieces.at(-1) ?? null; }
  get nextElementSibling() { return this.parent.pieces[this.parent.pieces.indexOf(this) + 1] ?? null; }

  matches(selector) {
    const [, tag, name, attribute, value] = SELECTOR.exec(selector);
    return (!tag || tag === this.tag) && (!name || this.classList.list().includes(name))
      && (!attribute || (value === undefined ? this.attributes.has(attribute) : this.getAttribute(attribute) === value));
  }

  #insert(at, nodes) {
    for (const node of nodes) if (node instanceof Piece) node.parent = this;
    this.nodes.splice(at, 0, ...nodes);
  }

  /** A line for each element and each text. */
  written(depth = 0) {
    const own = Object.entries(this).filter(([name, value]) => !OWN.has(name) && Object(value) !== value && value !== false);
    const all = [...own, ...this.attributes, ...Object.entries(this.dataset).map(([name, value]) => [`data-${dashed(name)}`, value]),
      ...Object.entries(this.style).map(([name, value]) => [`style.${dashed(name)}`, value])];
    const blank = ' '.repeat(depth);
    const shortened = (text) => (text.length > 200 ? `${text.slice(0, 40)}... of ${text.length} letters` : text);
    return [[blank + [this.tag, ...this.classList.list()].join('.'), ...all.map(([name, value]) => shortened(`${name}=${value}`))].join(' '),
      ...this.nodes.flatMap((node) => (node instanceof Piece ? node.written(depth + 1) : `${blank} "${shortened(node)}"`))];
  }
}

/** A key, at the time that it is pressed. */
export class Key extends Event {
  constructor(key) {
    super('keydown', { cancelable: true });
    this.key = key;
  }

  get timeStamp() {
    return clock.now;
  }
}

newWindow();
Object.assign(globalThis.document, {
  createElement: (tag) => new Piece(tag), createElementNS: (_, tag) => new Piece(tag), activeElement: null,
});
