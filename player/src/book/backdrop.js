import { mayFollow } from './addresses.js';
import { blend, contrast, ENOUGH, writingOn } from './contrast.js';
import { part } from './dom.js';
import { fileAddress } from './values.js';

/** @typedef {import('./config.js').BookConfig} BookConfig */
/** @typedef {import('./config.js').Ground} Ground */

/** @type {[position: string, size: string, repeat: string]} */
const STRETCHED = ['center', '100% 100%', 'no-repeat'];

/** Where a picture lies and how large it is; "own": as large as the configuration says. */
/** @type {Map<string, [position: string, size: string, repeat: string]>} */
const POSITIONS = new Map([
  ['scale to fit', STRETCHED],
  ['fill', ['center', 'cover', 'no-repeat']],
  ['fit', ['center', 'contain', 'no-repeat']],
  ['tile', ['left top', 'own', 'repeat']],
  ['center', ['center', 'own', 'no-repeat']],
  ['top left', ['left top', 'own', 'no-repeat']],
  ['top right', ['right top', 'own', 'no-repeat']],
  ['bottom left', ['left bottom', 'own', 'no-repeat']],
  ['bottom right', ['right bottom', 'own', 'no-repeat']],
]);

/** Colours of panels in the style sheet. */
const PANEL = '#ffffff';
const PANEL_INK = '#1e242b';

/** Opacity of bar and drawer where their colour allows it. */
const SURFACE = 0.94;

/**
 * Applies colours, backgrounds and caption of the configuration.
 * @param {HTMLElement} root
 * @param {BookConfig} config
 */
export function applyLook(root, config) {
  paintGround(part(root, '.outer'), config.outer);
  paintGround(part(root, '.inner'), config.inner);
  paintSurface(root, '--bar', config.windowColour);
  paintSurface(root, '--drawer', config.thumbsColour);
  root.style.setProperty('--paper', config.pageColour);
  root.style.setProperty('--read-from', config.rightToLeft ? '100%' : '0%');
  root.dataset.bar = config.hideBar ? 'no' : 'yes';
  writeCaption(part(root, '.caption'), config.caption);
  if (config.accent) paintAccent(root, config.accent);
}

/**
 * Sets the colour of main buttons, and for writing in it the nearest one that is readable on panels.
 * @param {HTMLElement} root
 * @param {string} colour
 */
function paintAccent(root, colour) {
  const shares = [1, 0.9, 0.8, 0.7, 0.6, 0.5, 0.4, 0.3, 0.2, 0.1, 0];
  const texts = shares.map((share) => blend(colour, PANEL_INK, share));
  root.style.setProperty('--accent', colour);
  root.style.setProperty('--accent-ink', writingOn(colour, 1).ink);
  root.style.setProperty('--accent-text', texts.find((text) => contrast(text, PANEL) >= ENOUGH) ?? PANEL_INK);
}

/**
 * Sets one of the two backgrounds: an image over a gradient.
 * @param {HTMLElement} element
 * @param {Ground} ground
 */
function paintGround(element, ground) {
  // The angle counts clockwise from "to the right"; style sheets count from "upwards".
  const gradient = 'linear-gradient(' + (ground.angle + 90) + 'deg, '
    + ground.from + ', ' + ground.to + ')';
  element.style.background = gradient;
  if (ground.file) paintPicture(element, ground, gradient);
}

/**
 * @param {HTMLElement} element
 * @param {Ground} ground
 * @param {string} gradient
 */
async function paintPicture(element, ground, gradient) {
  const [position, size, repeat] = POSITIONS.get(ground.position.toLowerCase()) ?? STRETCHED;
  const { width, height } = ground.size;
  const own = width > 0 && height > 0 ? width + 'px ' + height + 'px' : 'auto';
  element.style.background = 'url("' + await fileAddress(ground.file) + '") '
    + position + ' / ' + (size === 'own' ? own : size) + ' ' + repeat + ', ' + gradient;
  element.dataset.picture = 'yes';
}

/**
 * Sets the colours of bar or drawer so that they are readable whatever colour is configured.
 * @param {HTMLElement} root
 * @param {'--bar' | '--drawer'} name
 * @param {string} colour
 */
function paintSurface(root, name, colour) {
  const { ink, opacity, wash } = writingOn(colour, SURFACE);
  root.style.setProperty(name, colour);
  root.style.setProperty(name + '-ink', ink);
  root.style.setProperty(name + '-wash', wash);
  root.style.setProperty(name + '-opacity', String(opacity));
}

/**
 * Sets the caption, as a link where it is an address.
 * @param {HTMLElement} caption
 * @param {string} text
 */
function writeCaption(caption, text) {
  if (!/^(?:https?:\/\/|mailto:|tel:[+\d(])/i.test(text) || !mayFollow(text)) {
    caption.textContent = text;
    return;
  }
  const link = document.createElement('a');
  link.href = text;
  link.textContent = text.replace(/^https?:\/\/|^(?:mailto|tel):|\/$/gi, '');
  link.rel = 'noopener';
  link.target = '_blank';
  caption.replaceChildren(link);
}
