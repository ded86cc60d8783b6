// Cloth: linen and baize as tiles that repeat without a seam, velvet as a hanging curtain.

import { blend, clamp, clouds, Field, layers, lit, mix, noise, rgb, smooth } from './player-art-kit.mjs';

/** Plain weave of uneven threads; a tile of size pixels, threads of 5 pixels. */
export function linen(size) {
  const pitch = 5;
  const count = size / pitch;
  const relief = new Field(size, size, (x, y) => {
    const drift = (noise(x / 40, y / 8, 3, size / 40, size / 8) - 0.5) * 1.6;
    const sway = (noise(x / 8, y / 40, 13, size / 8, size / 40) - 0.5) * 1.6;
    const column = (x + sway) / pitch;
    const row = (y + drift) / pitch;
    const warp = Math.sin(Math.PI * (column - Math.floor(column)));
    const weft = Math.sin(Math.PI * (row - Math.floor(row)));
    const over = (Math.floor(column) + Math.floor(row)) % 2 === 0;
    const thickness = over
      ? noise(Math.floor(column) + 0.5, y / 30, 23, count, size / 30)
      : noise(x / 30, Math.floor(row) + 0.5, 33, size / 30, count);
    return (over ? warp * (1.3 + weft) : weft * (1.3 + warp)) * mix(0.8, 1.35, thickness);
  }, { tile: true });
  const pale = rgb('#e2dacb');
  const dark = rgb('#c3b7a2');
  return (x, y) => {
    const column = noise(Math.floor(x / pitch) + 0.5, y / 60, 43, count, size / 60);
    const row = noise(x / 60, Math.floor(y / pitch) + 0.5, 53, size / 60, count);
    return lit(blend(pale, dark, (column + row) / 2), clamp(relief.light(x, y, 0.3), 0.72, 1.16));
  };
}

/** Billiard cloth: short fibres laid one way over a close weave. */
export function baize(size) {
  const relief = new Field(size, size, (x, y) => {
    const lean = x + y * 0.5;
    return noise(lean / 3, y / 2, 3, size / 2, size / 2) * 1.2
      + layers(x / 8, y / 8, 3, 13, size / 8) * 1.5 + noise(x / 2, y / 2, 23, size / 2) * 0.5;
  }, { tile: true });
  const green = rgb('#23684a');
  const deep = rgb('#1c573e');
  return (x, y) => {
    const nap = layers(x / 128, y / 128, 3, 33, size / 128);
    return lit(blend(green, deep, nap), clamp(relief.light(x, y, 0.1), 0.85, 1.15) + (noise(x / 1.25, y / 1.25, 43, size / 1.25) - 0.5) * 0.1);
  };
}

/** A red stage curtain; velvet is bright where it turns away from the eye. */
export function curtain(width, height) {
  const depth = (x, y) => {
    const hang = y / height;
    const gather = layers(x * 0.0042, y * 0.0005, 2, 3) * 4;
    const fold = x * 0.034 + gather + Math.sin(hang * 1.8 + x * 0.004) * 0.14;
    return Math.sin(fold * 1.7) * 0.6 + Math.sin(fold * 3.1 + 1.3) * 0.24 * mix(1, 0.7, hang)
      + (layers(x * 0.03, y * 0.0012, 2, 13) - 0.5) * 0.3;
  };
  const red = rgb('#a01524');
  const black = rgb('#190309');
  const sheen = rgb('#e0525c');
  return (x, y) => {
    const here = depth(x, y);
    const slope = (depth(x + 2, y) - depth(x - 2, y)) * 9;
    const tilt = slope / Math.sqrt(1 + slope * slope);
    const body = smooth(-0.1, 1.15, 0.46 + here * 0.42 - tilt * 0.3);
    const rim = tilt < 0 ? tilt * tilt : tilt * tilt * 0.25;
    const pile = (noise(x * 0.7, y * 0.22, 23) - 0.5) * 0.08 + (clouds(x * 0.006, y * 0.003, 4, 33) - 0.5) * 0.2;
    const across = (x / width - 0.5) * 2;
    const spot = 0.22 + 0.9 * Math.exp(-(across * across * 1.1 + ((y / height - 0.3) ** 2) * 2.2));
    return lit(blend(blend(black, red, clamp(body + pile)), sheen, rim * 0.3 * clamp(body * 1.6)), spot);
  };
}
