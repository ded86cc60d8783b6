import { mayFollow } from '../src/book/addresses.js';
import { make } from '../src/book/dom.js';
import { fullLabel } from '../src/book/labels.js';
import { report } from './events.js';
import { putOver } from './layers.js';
import { boxAlong, distance } from './pagetext.js';

/** @typedef {import('./layers.js').Face} Face */
/** @typedef {import('./pagetext.js').PageLink} PageLink */

/** How far beside a link a finger may come down, in CSS pixels. */
const FINGER = 12;

/** Time in which the browser's own click follows a tap, in milliseconds. */
const CLICK_MS = 700;

/** Longest address that is told beside the pointer. */
const LONGEST_TIP = 64;

/** The links of the standing pages. */
export class Links {
  /**
   * @param {import('../src/player.js').Player} player
   * @param {import('./layers.js').Layers} layers
   */
  constructor({ config, book, toolbar, gestures, say, root }, layers) {
    this.root = root;
    this.config = config;
    this.book = book;
    this.layers = layers;
    this.tips = toolbar.tips;
    this.say = say;
    layers.fillers.push((face) => this.#add(face));
    gestures.isOver = (event) => isOn(event, '.page-link, .word');
    root.addEventListener('dragstart', (event) => event.preventDefault());
    /** When a tap was followed last. */
    this.followed = -Infinity;
    // The browser clicks on what a finger has tapped, too: a link would open twice. Keys click without a count.
    root.addEventListener('click', (event) => {
      const again = event.isTrusted && event.detail > 0 && event.timeStamp - this.followed < CLICK_MS;
      if (!again || !isOn(event, '.page-link')) return;
      event.preventDefault();
      event.stopPropagation();
    }, true);
  }

  /** @param {Face} face */
  #add({ box, text }) {
    if (!text || text.links.length === 0) return;
    /** @type {NodeListOf<HTMLElement>} */
    const words = box.querySelectorAll('.word');
    for (const link of text.links) {
      const found = text.wordsIn(link.box);
      const element = this.#element(link, found.map((word) => word.text).join(' '));
      const own = found.map(({ at }) => words[at]).filter(Boolean);
      if (own.length > 0) putIntoLine(element, own, boxAlong(found[0].line, link.box));
      else {
        putOver(element, text, link.box);
        box.append(element);
      }
    }
  }

  /**
   * @param {PageLink} link
   * @param {string} words
   */
  #element({ target }, words) {
    const { pageCount } = this.book.views;
    const element = /** @type {HTMLAnchorElement} */ (make('a', 'page-link'));
    element.setAttribute('role', 'link');
    if (typeof target === 'number' && target >= 1 && target <= pageCount) {
      const page = this.say('page', fullLabel(this.config, target));
      element.href = '#page=' + target;
      element.setAttribute('aria-label', words ? words + ', ' + page : page);
      element.dataset.tip = page;
      element.addEventListener('click', (event) => {
        event.preventDefault();
        report('link', { target });
        this.layers.show(target);
      });
      return element;
    }
    if (typeof target === 'string' && mayFollow(target)) {
      element.href = target;
      element.target = '_blank';
      element.rel = 'noopener noreferrer';
      element.addEventListener('click', () => report('link', { target }));
      element.setAttribute('aria-label', words || target);
      element.dataset.tip = shortened(target.replace(/^https?:\/\/|^(?:mailto|tel):/i, ''));
      return element;
    }
    const away = this.say('linkAway');
    element.setAttribute('aria-disabled', 'true');
    element.setAttribute('aria-label', words ? words + ', ' + away : away);
    element.dataset.tip = away;
    element.tabIndex = 0;
    return element;
  }

  /**
   * Follows the link under a tap. The press itself belongs to the book, as it may become a drag.
   * @param {PointerEvent} event
   * @returns {boolean} whether there was one
   */
  followAt(event) {
    const reach = event.pointerType === 'mouse' ? 0 : FINGER;
    const link = this.#nearest(event.clientX, event.clientY, reach);
    if (!link) return false;
    // A finger that has gone up has left everything, which takes tips away.
    if (link.hasAttribute('aria-disabled')) setTimeout(() => this.tips.follow(link));
    this.followed = event.timeStamp;
    const { ctrlKey, shiftKey, metaKey } = event;
    link.dispatchEvent(new MouseEvent('click', { bubbles: true, cancelable: true, ctrlKey, shiftKey, metaKey, view: window }));
    return true;
  }

  /**
   * @param {number} x
   * @param {number} y
   * @param {number} reach CSS pixels
   */
  #nearest(x, y, reach) {
    /** @type {{link: HTMLElement, away: number} | null} */
    let nearest = null;
    /** @type {NodeListOf<HTMLElement>} */
    const links = this.book.element.querySelectorAll('.over:not([hidden]) .page-link');
    for (const link of links) {
      const away = distance(link.getBoundingClientRect(), x, y);
      if (away <= reach && (!nearest || away < nearest.away)) nearest = { link, away };
    }
    return nearest?.link ?? null;
  }
}

/**
 * Puts a link into the line of its words, before the first of them: there readers who hear the page or go through it by
 * key come to it. It takes no room in the line.
 * @param {HTMLElement} link
 * @param {HTMLElement[]} words
 * @param {import('./pagetext.js').Box} box the link's, along the line
 */
function putIntoLine(link, words, { x, y, width, height }) {
  const line = /** @type {HTMLElement} */ (words[0].parentElement);
  const start = line.dir === 'rtl' ? parseFloat(line.style.width) - x - width : x;
  const margin = start - endOf(words[0].previousElementSibling);
  link.style.cssText = 'top:' + y + 'px;width:' + width + 'px;height:' + height + 'px;margin-inline:' + margin + 'px '
    + -(margin + width) + 'px';
  words[0].before(link);
  for (const word of words) word.setAttribute('aria-hidden', 'true');
}

/**
 * How far a line has come behind one of its words, by the places that they were given.
 * @param {Element | null} last
 */
function endOf(last) {
  let end = 0;
  for (let word = last; word instanceof HTMLElement; word = word.previousElementSibling) {
    if (word.className === 'word') end += parseFloat(word.style.marginInlineStart) + parseFloat(word.style.width);
  }
  return end;
}

/**
 * @param {Event} event
 * @param {string} selector
 */
function isOn({ target }, selector) {
  return target instanceof Element && target.closest(selector) !== null;
}

/** @param {string} address */
function shortened(address) {
  return address.length > LONGEST_TIP ? address.slice(0, LONGEST_TIP) + '\u2026' : address;
}
