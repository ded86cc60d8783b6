// What the drawings of materials have in common: noise, colours and a canvas of plain numbers.

/** A number between 0 and 1 that looks random and is always the same for the same place. */
function hash(x, y, seed) {
  let h = Math.imul(x, 374761393) ^ Math.imul(y, 668265263) ^ Math.imul(seed, 2147483647 - 58);
  h = Math.imul(h ^ (h >>> 13), 1274126177);
  h = Math.imul(h ^ (h >>> 16), 2246822519);
  return ((h ^ (h >>> 15)) >>> 0) / 4294967296;
}

/** Random numbers from 0 to 1, the same at every run. */
export function chance(seed) {
  let count = 0;
  return () => hash(count++, 17, seed);
}

export const clamp = (value, least = 0, most = 1) => Math.min(most, Math.max(least, value));
export const mix = (a, b, t) => a + (b - a) * t;

export function smooth(from, to, value) {
  const t = clamp((value - from) / (to - from));
  return t * t * (3 - 2 * t);
}

/** Smooth noise from 0 to 1. With a period it repeats after so many units, for tiles. */
export function noise(x, y, seed, periodX = 0, periodY = periodX) {
  const x0 = Math.floor(x);
  const y0 = Math.floor(y);
  const fx = x - x0;
  const fy = y - y0;
  const sx = fx * fx * fx * (fx * (fx * 6 - 15) + 10);
  const sy = fy * fy * fy * (fy * (fy * 6 - 15) + 10);
  const wrap = (at, period) => (period ? ((at % period) + period) % period : at);
  const left = wrap(x0, periodX);
  const right = wrap(x0 + 1, periodX);
  const top = wrap(y0, periodY);
  const bottom = wrap(y0 + 1, periodY);
  return mix(mix(hash(left, top, seed), hash(right, top, seed), sx),
    mix(hash(left, bottom, seed), hash(right, bottom, seed), sx), sy);
}

/** Noise in several sizes, each half as large and half as strong as the one before; 0 to 1. */
export function layers(x, y, count, seed, periodX = 0, periodY = periodX) {
  let sum = 0;
  let strength = 1;
  let total = 0;
  for (let layer = 0, scale = 1; layer < count; layer++, scale *= 2) {
    sum += strength * noise(x * scale, y * scale, seed + layer * 101, periodX * scale, periodY * scale);
    total += strength;
    strength /= 2;
  }
  return sum / total;
}

/** The same without a direction: every size is turned, so that no grid shows. */
export function clouds(x, y, count, seed) {
  let sum = 0;
  let strength = 1;
  let total = 0;
  for (let layer = 0, scale = 1; layer < count; layer++, scale *= 2.03) {
    const turn = 0.6 + layer * 1.1;
    const along = (x * Math.cos(turn) + y * Math.sin(turn)) * scale;
    const across = (y * Math.cos(turn) - x * Math.sin(turn)) * scale;
    sum += strength * noise(along + layer * 17.3, across, seed + layer * 101);
    total += strength;
    strength /= 2;
  }
  return sum / total;
}

/** [red, green, blue] of a text like "#a0b0c0", each 0 to 255. */
export function rgb(text) {
  return [1, 3, 5].map((at) => parseInt(text.slice(at, at + 2), 16));
}

export const blend = (a, b, t) => [mix(a[0], b[0], t), mix(a[1], b[1], t), mix(a[2], b[2], t)];
export const lit = (colour, light) => [colour[0] * light, colour[1] * light, colour[2] * light];

/** A field of numbers, one a pixel. A tile goes on at its other side, a picture ends. */
export class Field {
  constructor(width, height, value, { tile = false } = {}) {
    this.width = width;
    this.height = height;
    this.tile = tile;
    this.values = new Float32Array(width * height);
    for (let y = 0, at = 0; y < height; y++) {
      for (let x = 0; x < width; x++) this.values[at++] = value(x, y);
    }
  }

  at(x, y) {
    const { width, height, tile } = this;
    const within = (place, size) => (tile ? (place + size) % size : clamp(place, 0, size - 1));
    return this.values[within(y, height) * width + within(x, width)];
  }

  /** Light on the field taken as a relief, from the upper left; 1 on level ground. */
  light(x, y, steepness) {
    const dx = (this.at(x + 1, y) - this.at(x - 1, y)) * steepness;
    const dy = (this.at(x, y + 1) - this.at(x, y - 1)) * steepness;
    return (1 - 0.55 * dx - 0.75 * dy) / Math.sqrt(1 + dx * dx + dy * dy);
  }
}
