import { luminance } from './values.js';

/** Minimum contrast between text and background, as WCAG AA asks. */
export const ENOUGH = 4.5;
const INKS = ['#ffffff', '#14181d', '#000000'];

/**
 * @param {string} one #rrggbb
 * @param {string} other
 */
export function contrast(one, other) {
  const [dark, light] = [luminance(one), luminance(other)].sort((a, b) => a - b);
  return (light + 0.05) / (dark + 0.05);
}

/**
 * The colour that results from blending one over another.
 * @param {string} top
 * @param {string} ground
 * @param {number} opacity of the upper one
 */
export function blend(top, ground, opacity) {
  const parts = [1, 3, 5].map((at) => {
    const [above, below] = [top, ground].map((one) => Number.parseInt(one.slice(at, at + 2), 16));
    return Math.round(above * opacity + below * (1 - opacity)).toString(16).padStart(2, '0');
  });
  return '#' + parts.join('');
}

/**
 * Text colour and opacity for a surface of any colour, so that text on it is readable over any background.
 * @param {string} colour
 * @param {number} opacity wanted; full where less would not do
 */
export function writingOn(colour, opacity) {
  for (const shown of [opacity, 1]) {
    const grounds = ['#000000', '#ffffff'].map((ground) => blend(colour, ground, shown));
    /** @param {string} ink @param {string[]} on */
    const worst = (ink, on) => Math.min(...on.map((ground) => contrast(ink, ground)));
    const least = INKS.map((ink) => worst(ink, grounds));
    const best = least[0] >= least[2] ? 0 : (least[1] >= ENOUGH ? 1 : 2);
    if (least[best] < ENOUGH && shown < 1) continue;
    // Text must stay readable on hovered controls too.
    const washed = ['#ffffff', '#000000'].map((wash) => worst(INKS[best],
      grounds.map((ground) => blend(wash, ground, 0.14))));
    const towardsInk = best === 0 ? 0 : 1;
    const light = washed[towardsInk] >= ENOUGH ? towardsInk === 0 : towardsInk === 1;
    const wash = light ? 'rgba(255,255,255,.14)' : 'rgba(0,0,0,.14)';
    return { ink: INKS[best], opacity: shown, wash };
  }
  throw new Error('unreachable');
}
