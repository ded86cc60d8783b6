// Scenes made of light: a garden out of focus, a wet window at night, a starry sky, a projector.

import { blend, chance, clamp, clouds, layers, mix, noise, rgb, smooth } from './player-art-kit.mjs';

/** Adds light to a buffer of red, green, blue triples as the round blur of a lens does. */
function disc(buffer, width, height, { x, y, radius, colour, strength, rim = 0.25, edge = 0.12 }) {
  const reach = radius * 1.08;
  for (let py = Math.max(0, Math.floor(y - reach)); py < Math.min(height, y + reach); py++) {
    for (let px = Math.max(0, Math.floor(x - reach)); px < Math.min(width, x + reach); px++) {
      const away = Math.hypot(px - x, py - y) / radius;
      const inside = 1 - smooth(1 - edge, 1 + edge * 0.5, away);
      if (inside === 0) continue;
      const light = strength * inside * (1 - rim + rim * smooth(0.55, 0.98, away));
      const at = (py * width + px) * 3;
      // Screen blending: lights that overlap never burn out.
      for (let part = 0; part < 3; part++) {
        buffer[at + part] = 255 - (255 - buffer[at + part]) * (1 - (light * colour[part]) / 255);
      }
    }
  }
}

function bufferOf(width, height, colour) {
  const buffer = new Float32Array(width * height * 3);
  for (let y = 0, at = 0; y < height; y++) {
    for (let x = 0; x < width; x++, at += 3) buffer.set(colour(x, y), at);
  }
  return buffer;
}

const reading = (buffer, width) => (x, y) => {
  const at = (y * width + x) * 3;
  return [buffer[at], buffer[at + 1], buffer[at + 2]];
};

/** Leaves and sun far behind the plane of focus. */
export function garden(width, height) {
  const next = chance(12);
  const deep = rgb('#23402b');
  const fresh = rgb('#86a854');
  const haze = rgb('#dfe6b0');
  const buffer = bufferOf(width, height, (x, y) => {
    const mass = clouds(x * 0.0017, y * 0.0019, 3, 7);
    const sunny = clamp(1.15 - Math.hypot((x - width * 0.72) / width, (y - height * 0.05) / height) * 1.25);
    return blend(blend(deep, fresh, smooth(0.22, 0.8, mass * 0.75 + sunny * 0.3)), haze, sunny * sunny * 0.62);
  });
  for (let number = 0; number < 150; number++) {
    const sunny = next();
    const x = mix(next() * width, width * 0.72 + (next() - 0.5) * 900, sunny * 0.7);
    const y = next() ** 1.25 * height * mix(1, 0.75, sunny);
    const colour = blend(rgb('#8fb65c'), rgb('#fff3b8'), sunny * next());
    disc(buffer, width, height, { x, y, radius: 22 + next() ** 2 * 95, colour, strength: 0.08 + next() ** 2 * 0.34 });
  }
  return reading(buffer, width);
}

const LAMPS = ['#ffb45e', '#ffd9a0', '#ff7a4d', '#7fd0ff', '#fff1d6', '#e95a6a', '#ffc06b', '#9fb7ff'].map(rgb);

function street(width, height) {
  const next = chance(41);
  const above = rgb('#141d2e');
  const below = rgb('#2b3346');
  const glow = rgb('#7a5648');
  const buffer = bufferOf(width, height, (x, y) => {
    const down = y / height;
    const band = Math.exp(-(((down - 0.56) / 0.2) ** 2)) * mix(0.55, 1, noise(x * 0.002, 3, 5));
    return blend(blend(above, below, down), glow, band * 0.62);
  });
  for (let number = 0; number < 130; number++) {
    const spread = (next() + next() + next() + next()) / 4 - 0.5;
    disc(buffer, width, height, {
      x: next() * width, y: height * (0.58 + spread * 1.5), radius: 16 + next() ** 2 * 58,
      colour: LAMPS[Math.floor(next() * LAMPS.length)], strength: 0.2 + next() ** 2 * 0.75, rim: 0.15, edge: 0.34,
    });
  }
  return buffer;
}

/** A drop shows the street behind it upside down; dark above, with a glint. */
function drop(target, source, width, height, { x, y, radius, tall }) {
  for (let py = Math.max(0, Math.floor(y - radius * tall - 1)); py < Math.min(height, y + radius * tall + 1); py++) {
    for (let px = Math.max(0, Math.floor(x - radius - 1)); px < Math.min(width, x + radius + 1); px++) {
      const u = (px - x) / radius;
      const v = (py - y) / (radius * tall);
      const away = Math.hypot(u, v);
      const cover = 1 - smooth(1 - 1.6 / radius, 1, away);
      if (cover === 0) continue;
      const bend = 3.2 + 5 * away * away;
      const sx = Math.round(clamp(x - u * radius * bend, 0, width - 1));
      const sy = Math.round(clamp(y - v * radius * tall * bend - 20, 0, height - 1));
      const from = (sy * width + sx) * 3;
      const light = 1.12 + v * 0.34 - smooth(0.72, 1, away) * 0.5;
      const glint = 70 * (1 - smooth(0, 0.5, Math.hypot(u + 0.3, v + 0.45)));
      const at = (py * width + px) * 3;
      for (let part = 0; part < 3; part++) {
        target[at + part] = mix(target[at + part], source[from + part] * light + 7 + glint * cover, cover);
      }
    }
  }
}

/** Rain on a window, a street at night behind it. */
export function rainyWindow(width, height) {
  const next = chance(77);
  const source = street(width, height);
  const target = Float32Array.from(source, (value, at) => {
    const pixel = Math.floor(at / 3);
    const mist = clouds((pixel % width) * 0.01, Math.floor(pixel / width) * 0.01, 3, 9);
    return value * 0.84 + 7 + mist * 9;
  });
  for (let number = 0; number < 2600; number++) {
    const radius = 1.2 + next() ** 3 * 4;
    drop(target, source, width, height, { x: next() * width, y: next() * height, radius, tall: 1 + next() * 0.15 });
  }
  for (let number = 0; number < 190; number++) {
    const radius = 5 + next() ** 2 * 13;
    drop(target, source, width, height, { x: next() * width, y: next() * height, radius, tall: 1.05 + next() * 0.3 });
  }
  for (let number = 0; number < 15; number++) trail(target, source, width, height, next);
  return reading(target, width);
}

/** A drop that has run down and left smaller ones behind. */
function trail(target, source, width, height, next) {
  let x = next() * width;
  let y = next() * height * 0.4 - 40;
  const end = y + 250 + next() * 520;
  while (y < end) {
    drop(target, source, width, height, { x, y, radius: 1.8 + next() * 2.6, tall: 1.2 + next() });
    y += 9 + next() * 22;
    x += (next() - 0.5) * 5;
  }
  drop(target, source, width, height, { x, y: end, radius: 8 + next() * 6, tall: 1.4 });
}

/** A clear night over hills. */
export function nightSky(width, height) {
  const next = chance(5);
  const zenith = rgb('#070b1d');
  const low = rgb('#243763');
  const horizon = rgb('#5b6a93');
  const buffer = bufferOf(width, height, (x, y) => {
    const down = y / height;
    const band = (x * 0.55 - y + 260) / 330;
    const cloud = Math.exp(-band * band) * smooth(0.3, 0.75, clouds(x * 0.0026, y * 0.0026, 6, 15));
    const sky = blend(blend(zenith, low, smooth(0, 0.85, down)), horizon, smooth(0.62, 1.02, down) * 0.75);
    return blend(sky, rgb('#8d8fb8'), cloud * 0.34);
  });
  for (let number = 0; number < 2300; number++) {
    const size = next() ** 9;
    const x = next() * width;
    const y = next() ** 1.3 * height * 0.95;
    disc(buffer, width, height, { x, y, radius: 0.9 + size * 1.7, rim: 0, edge: 0.9,
      colour: blend(rgb('#bcd0ff'), rgb('#fff0d8'), next()), strength: 0.14 + next() ** 3 * 0.6 + size * 0.5 });
  }
  const ridge = (x, level, roughness, seed) => height * level - layers(x * roughness, 0.5, 5, seed) * 190;
  const sky = reading(buffer, width);
  return (x, y) => {
    const far = smooth(-1, 1, y - ridge(x, 0.985, 0.0022, 3));
    const near = smooth(-1, 1, y - ridge(x, 1.03, 0.0031, 8));
    return blend(blend(sky(x, y), rgb('#1c294b'), far), rgb('#0b1226'), near);
  };
}

/** The cone of a projector in a dark room, with dust in it. */
export function projectorBeam(width, height) {
  const next = chance(23);
  const dark = rgb('#0c0b0d');
  const brown = rgb('#1d1715');
  const warm = rgb('#ffe3b4');
  const lamp = { x: width * 0.5, y: -150 };
  const buffer = bufferOf(width, height, (x, y) => {
    const dx = x - lamp.x;
    const dy = y - lamp.y;
    const angle = dx / dy;
    const far = Math.hypot(dx, dy) / height;
    const smoke = clouds(x * 0.0026, y * 0.0026, 5, 3);
    const rays = 0.72 + 0.28 * layers(angle * 16 + 20, far * 0.7, 3, 13);
    const cone = (1 - smooth(0.42, 0.86, Math.abs(angle))) * rays * (0.4 + smoke * 0.85);
    const shine = cone * Math.exp(-far * 0.95) * 0.92;
    const wall = blend(dark, brown, clouds(x * 0.002, y * 0.002, 3, 33) * smooth(0, 1, y / height));
    const grain = (noise(x * 0.9, y * 0.9, 43) - 0.5) * 3.4;
    return blend(wall, warm, clamp(shine * 0.62)).map((part) => part + grain);
  });
  for (let number = 0; number < 420; number++) {
    const y = next() ** 1.3 * height;
    const x = lamp.x + (next() - 0.5) * 1.25 * (y - lamp.y);
    disc(buffer, width, height, { x, y, radius: 1.2 + next() ** 4 * 7, colour: warm, rim: 0.1, edge: 0.7,
      strength: (0.05 + next() ** 2 * 0.22) * Math.exp(-y / height) });
  }
  return reading(buffer, width);
}
