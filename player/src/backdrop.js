import { fileAddress, luminance } from './values.js';

/** @typedef {import('./config.js').Ground} Ground */

/** @type {Record<string, [position: string, size: string, repeat: string]>} */
const POSITIONS = {
  'scale to fit': ['center', '100% 100%', 'no-repeat'],
  'fill': ['center', 'cover', 'no-repeat'],
  'fit': ['center', 'contain', 'no-repeat'],
  'tile': ['left top', 'auto', 'repeat'],
  'center': ['center', 'auto', 'no-repeat'],
  'top left': ['left top', 'auto', 'no-repeat'],
  'top right': ['right top', 'auto', 'no-repeat'],
  'bottom left': ['left bottom', 'auto', 'no-repeat'],
  'bottom right': ['right bottom', 'auto', 'no-repeat'],
};

/**
 * Paints one of the two grounds: its picture over its gradient.
 * @param {HTMLElement} element
 * @param {Ground} ground
 */
export function paintGround(element, ground) {
  // The angle counts clockwise from "to the right"; style sheets count from "upwards".
  const gradient = 'linear-gradient(' + (ground.angle + 90) + 'deg, '
    + ground.from + ', ' + ground.to + ')';
  if (!ground.file) {
    element.style.background = gradient;
    return;
  }
  const [position, size, repeat] = POSITIONS[ground.position.toLowerCase()]
    ?? POSITIONS['scale to fit'];
  element.style.background = 'url("' + fileAddress(ground.file) + '") '
    + position + ' / ' + size + ' ' + repeat + ', ' + gradient;
  element.dataset.picture = 'yes';
}

/**
 * Colours of bar and arrows, readable whatever colour the book's maker chose.
 * @param {HTMLElement} root
 * @param {string} colour
 */
export function paintWindow(root, colour) {
  const light = luminance(colour) > 0.3;
  root.style.setProperty('--bar', colour);
  root.style.setProperty('--bar-ink', light ? '#1d2126' : '#ffffff');
  root.style.setProperty('--bar-wash', light ? 'rgba(0,0,0,.08)' : 'rgba(255,255,255,.14)');
}
