/** Entrance animations of the book by their names in the configuration. */
/** @type {Map<string, Keyframe[]>} */
const WAYS = new Map([
  ['fade in', [{ opacity: 0 }, { opacity: 1 }]],
  ['rise', [
    { transformOrigin: '0 60%', opacity: 0, translate: '0 60px', scale: '0.94' },
    { transformOrigin: '0 60%', opacity: 1, translate: '0 0', scale: '1' },
  ]],
  ['drop', [
    { transformOrigin: '0 60%', opacity: 0, translate: '0 -40px', scale: '1.12' },
    { transformOrigin: '0 60%', opacity: 1, translate: '0 0', scale: '1' },
  ]],
]);

/**
 * @param {HTMLElement} element
 * @param {string} way
 */
export function playEntrance(element, way) {
  const frames = WAYS.get(way.toLowerCase());
  if (!frames || matchMedia('(prefers-reduced-motion: reduce)').matches) return;
  element.animate(frames, { duration: 800, easing: 'cubic-bezier(.2, .8, .2, 1)' });
}
