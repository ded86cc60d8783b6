// Wood: boards with rings, fibres and pores.

import { blend, clamp, layers, lit, mix, noise, rgb, smooth } from './player-art-kit.mjs';

/**
 * Colour of a board, whose fibres run along x, at a place in pixels.
 * early, late: colours of spring and summer wood; seed tells boards apart.
 */
function board(x, y, { early, late, seed, rings = 0.055, figure = 1 }) {
  const bend = (layers(x * 0.0016, y * 0.006, 3, seed) - 0.5) * 150 * figure;
  const middle = 140 * noise(seed * 3.7, 0.5, 5) - 20 + bend;
  // A board is a flat cut through a cone of rings: near its middle they open into arches.
  const depth = 36 + (x + 700 * noise(seed, 9.5, 8)) * 0.035 * figure;
  const ring = Math.hypot((y - middle) * 0.9, depth) * rings + layers(x * 0.004, y * 0.05, 2, seed + 3) * 0.8;
  const within = ring - Math.floor(ring);
  const band = smooth(0.25, 0.9, within) * (1 - smooth(0.93, 1, within));
  const strength = 0.35 + 0.65 * noise(Math.floor(ring) * 1.7, seed, 44);
  const fibre = layers(x * 0.008, y * 0.75, 3, seed + 7) - 0.5;
  const streak = layers(x * 0.0022, y * 0.09, 3, seed + 13) - 0.5;
  const pore = smooth(0.72, 0.86, noise(x * 0.035, y * 0.95, seed + 19)) * mix(0.35, 1, band);
  const wood = blend(early, late, clamp(band * strength * 0.75 + streak * 0.9 + 0.12));
  return lit(wood, 1 + fibre * 0.2 - pore * 0.17);
}

/** A wide floor or table top of boards that lie along x. */
export function boards({ early, late, height, seed, gap = 0.55, tone = 0.12, rings, figure }) {
  const from = rgb(early);
  const to = rgb(late);
  return (x, y) => {
    // A board begins above the upper edge, so that no joint runs along it.
    const row = Math.floor(y / height + 0.4);
    const inRow = y - (row - 0.4) * height;
    const number = seed + row * 31;
    const colour = board(x, inRow, { early: from, late: to, seed: number, rings, figure });
    const edge = Math.min(inRow, height - inRow);
    const joint = 1 - gap * (1 - smooth(0.6, 2.6, edge)) + 0.07 * smooth(0, 2, inRow - 1) * (1 - smooth(2.5, 6, inRow));
    return lit(colour, joint * (1 + tone * (noise(row * 5.3, seed, 2) - 0.5) * 2));
  };
}

/** Upright panels on a wall, with lamps above that throw cones of light on them. */
export function panelledWall({ early, late, width, seed, lamps }) {
  const standing = boards({ early, late, height: width, seed, gap: 0.7, tone: 0.1, figure: 0.5 });
  return (x, y) => {
    let light = 0.3;
    for (const lamp of lamps) {
      const away = Math.abs(x - lamp) / (70 + y * 0.42);
      light += 1.25 * Math.exp(-away * away * 1.9) * Math.exp(-y / 560) * smooth(-40, 90, y);
    }
    const warm = [light, light * 0.96, light * 0.9];
    return standing(y, x).map((part, at) => part * warm[at]);
  };
}
