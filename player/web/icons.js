const NAMESPACE = 'http://www.w3.org/2000/svg';

const PATHS = {
  contents: 'M5 6.5h2.4M5 12h2.4M5 17.5h2.4M10.6 6.5H19M10.6 12H19M10.6 17.5h5.6',
  search: 'M16.8 10.8a6 6 0 1 1-12 0 6 6 0 0 1 12 0zM15.2 15.2l4.4 4.4',
  close: 'm7 7 10 10M17 7 7 17',
  keep: 'M12 4.2v10.3M8.3 11 12 14.6l3.7-3.6M5 16v2a1.8 1.8 0 0 0 1.8 1.8h10.4A1.8 1.8 0 0 0 19 18v-2',
  kept: 'm7.6 9.6 3.4 3.4 6-7M5 16v2a1.8 1.8 0 0 0 1.8 1.8h10.4A1.8 1.8 0 0 0 19 18v-2',
  reading: 'm3.5 18.5 5-13 5 13M5.2 14.2h6.6M20.5 12v6.5M20.5 15.2a2.8 3.2 0 1 1-5.6 0 2.8 3.2 0 0 1 5.6 0z',
  bookmark: 'M7 4.5h10v15l-5-4-5 4z',
  notes: 'M14.5 5.5l4 4L9.5 18.5l-5 1 1-5zM12.5 7.5l4 4',
  branch: 'm9.5 7 5 5-5 5',
  up: 'm6.5 14.5 5.5-5.5 5.5 5.5',
  down: 'm6.5 9.5 5.5 5.5 5.5-5.5',
};

/**
 * A sign in the manner of the bar's.
 * @param {keyof typeof PATHS} name
 */
export function icon(name) {
  return drawn(PATHS[name]);
}

/** @param {string} data of the path */
export function drawn(data) {
  const svg = document.createElementNS(NAMESPACE, 'svg');
  svg.setAttribute('viewBox', '0 0 24 24');
  svg.setAttribute('aria-hidden', 'true');
  const path = document.createElementNS(NAMESPACE, 'path');
  path.setAttribute('d', data);
  svg.append(path);
  return svg;
}
