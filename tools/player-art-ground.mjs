// Stone, sand, plaster and paper: surfaces that are a relief under a light.

import { blend, clamp, clouds, Field, layers, lit, mix, noise, rgb, smooth } from './player-art-kit.mjs';

/** Split slate: broad cleavage steps, fine grain, a few rusty and pale veils. */
export function slate(width, height) {
  const relief = new Field(width, height, (x, y) => {
    const warp = layers(x * 0.004, y * 0.004, 3, 11) * 2.4;
    const step = layers(x * 0.0022 + warp * 0.35, y * 0.0052 + warp * 0.2, 5, 3) * 9;
    const ledge = Math.floor(step) + smooth(0.55, 1, step - Math.floor(step));
    return ledge * 1.5 + layers(x * 0.02, y * 0.045, 4, 21) * 5 + noise(x * 0.45, y * 0.45, 31) * 0.55;
  });
  const dark = rgb('#3b4045');
  const pale = rgb('#555b60');
  const rust = rgb('#5b4f45');
  return (x, y) => {
    const stone = blend(dark, pale, layers(x * 0.003, y * 0.006, 4, 41));
    const veil = smooth(0.5, 0.85, clouds(x * 0.0024, y * 0.003, 5, 51)) * 0.42;
    return lit(blend(stone, rust, veil), clamp(relief.light(x, y, 0.24), 0.45, 1.6));
  };
}

/** Beach sand: wind ripples that branch, with grains. */
export function sand(width, height) {
  const relief = new Field(width, height, (x, y) => {
    const drift = layers(x * 0.0021, y * 0.0021, 3, 5) * 5.2 + layers(x * 0.009, y * 0.006, 2, 15) * 0.9;
    const phase = y * 0.0155 + x * 0.0032 + drift;
    const wave = phase - Math.floor(phase);
    // Ripples are steep on the lee side.
    const ripple = wave < 0.68 ? smooth(0, 0.68, wave) : 1 - smooth(0.68, 1, wave);
    const strength = smooth(0.3, 0.62, layers(x * 0.0016, y * 0.0024, 2, 25));
    return ripple * mix(3, 11, strength) + layers(x * 0.012, y * 0.012, 3, 35) * 8;
  });
  const dry = rgb('#dcc7a1');
  const damp = rgb('#c4a97f');
  return (x, y) => {
    const grain = noise(x * 0.85, y * 0.85, 45) - 0.5 + (noise(x * 0.5, y * 0.5, 55) - 0.5) * 0.5;
    const fleck = smooth(0.9, 0.97, noise(x * 0.6, y * 0.6, 65)) * 0.16;
    const ground = blend(dry, damp, layers(x * 0.0018, y * 0.0018, 3, 75));
    return lit(ground, clamp(relief.light(x, y, 0.3), 0.62, 1.3) + grain * 0.085 - fleck);
  };
}

/** A plastered wall with the light of a window on it. */
export function windowLight(width, height) {
  const relief = new Field(width, height, (x, y) =>
    layers(x * 0.012, y * 0.012, 4, 3) * 7 + layers(x * 0.05, y * 0.035, 2, 9) * 1.6);
  const wall = rgb('#ddd8d0');
  const sun = rgb('#fff4df');
  return (x, y) => {
    // The panes lie slanted on the wall, sharper below, where the window is near.
    const u = (x - 210 - y * 0.3) / 1150;
    const v = (y - 60 + x * 0.12) / 1080;
    const soft = mix(0.05, 0.016, clamp(v));
    const inside = (at, from, to) => smooth(from - soft, from + soft, at) * (1 - smooth(to - soft, to + soft, at));
    const panes = [0.02, 0.365, 0.71].reduce((sum, from) => sum + inside(u, from, from + 0.3), 0)
      * [0.02, 0.36, 0.7].reduce((sum, from) => sum + inside(v, from, from + 0.3), 0);
    const shine = panes * 0.92 * mix(0.75, 1, clamp(1 - u));
    const shade = clamp(relief.light(x, y, 0.1), 0.8, 1.15);
    const falloff = mix(0.93, 1.02, clamp(1 - x / width)) * mix(1, 0.96, y / height);
    return lit(blend(wall, sun, clamp(shine)), shade * falloff);
  };
}

/** Washes of thin colour on rough paper, darker where a wash dried at its edge. */
export function watercolour(width, height) {
  const grain = new Field(width, height, (x, y) => clouds(x * 0.16, y * 0.16, 3, 91) * 3);
  const paper = rgb('#fbf9f4');
  const washes = [
    { colour: rgb('#5f9db8'), seed: 3, x: 0.02, y: 0.1, reach: 0.44 },
    { colour: rgb('#7ab0a4'), seed: 29, x: 0.2, y: 1.02, reach: 0.4 },
    { colour: rgb('#e39b84'), seed: 17, x: 1, y: 0.95, reach: 0.42 },
    { colour: rgb('#d9a05f'), seed: 43, x: 0.86, y: -0.02, reach: 0.3 },
  ];
  return (x, y) => {
    let colour = paper;
    for (const wash of washes) {
      const ragged = (clouds(x * 0.0026, y * 0.0026, 6, wash.seed) - 0.5) * 0.5;
      const inside = wash.reach + ragged - Math.hypot(x / width - wash.x, ((y / height - wash.y) * height) / width);
      const wet = smooth(0, 0.012, inside) * (1 - smooth(0.1, wash.reach, inside) * 0.25);
      const rim = smooth(0, 0.008, inside) * (1 - smooth(0.008, 0.05, inside));
      const pool = clouds(x * 0.0034, y * 0.0034, 5, wash.seed + 9);
      colour = blend(colour, wash.colour, clamp(wet * mix(0.12, 0.62, pool) + rim * 0.16));
    }
    return lit(colour, clamp(grain.light(x, y, 0.06), 0.92, 1.05));
  };
}

/** A school board, wiped with a dry cloth many times. */
export function chalkboard() {
  const green = rgb('#2b483f');
  const chalk = rgb('#c3cfc8');
  const wipe = (x, y, angle, seed) => {
    const turn = angle + (clouds(x * 0.0006, y * 0.0006, 2, seed) - 0.5) * 0.7;
    const along = x * Math.cos(turn) + y * Math.sin(turn);
    const across = y * Math.cos(turn) - x * Math.sin(turn);
    const where = smooth(0.42, 0.72, clouds(along * 0.0012, across * 0.003, 3, seed + 2));
    return where * (0.35 + 0.65 * layers(along * 0.0014, across * 0.03, 4, seed + 4));
  };
  return (x, y) => {
    const dust = smooth(0.3, 0.8, clouds(x * 0.0016, y * 0.0016, 4, 28));
    const grit = noise(x * 0.7, y * 0.7, 38) - 0.5;
    const veil = 0.1 * dust + 0.15 * wipe(x, y, -0.28, 8) + 0.1 * wipe(x, y, 0.5, 58);
    return lit(blend(green, chalk, clamp(veil)), 1 + grit * 0.05);
  };
}
