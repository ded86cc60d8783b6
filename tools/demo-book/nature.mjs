// Pieces of landscape as SVG text. Coordinates are pixels of the drawing they go into; the same
// seed always gives the same shapes.

/** Numbers from 0 up to 1 that only look random. */
export function dice(seed) {
  let state = seed >>> 0;
  return () => {
    state = (state + 0x6d2b79f5) >>> 0;
    let t = Math.imul(state ^ (state >>> 15), 1 | state);
    t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
    return ((t ^ (t >>> 14)) >>> 0) / 4294967296;
  };
}

const fixed = (number) => Number(number.toFixed(1));
const points = (list) => list.map(([x, y]) => `${fixed(x)} ${fixed(y)}`).join('L');

export function gradient(id, colours, { x2 = 0, y2 = 1 } = {}) {
  const stops = colours.map((colour, index) => {
    const [paint, at = index / (colours.length - 1)] = Array.isArray(colour) ? colour : [colour];
    return `<stop offset="${at}" stop-color="${paint}"/>`;
  });
  return `<linearGradient id="${id}" x2="${x2}" y2="${y2}">${stops.join('')}</linearGradient>`;
}

/** A sun or moon with rings of light around it. */
export function sun(x, y, radius, { disc = '#fff3d6', light = '#ffe2a8', rings = 4, strength = 0.2 } = {}) {
  const halo = Array.from({ length: rings }, (_, ring) =>
    `<circle cx="${x}" cy="${y}" r="${radius * (1.45 + ring * 0.62)}" fill="${light}" opacity="${strength * (1 - ring / (rings + 1))}"/>`);
  return `${halo.reverse().join('')}<circle cx="${x}" cy="${y}" r="${radius}" fill="${disc}"/>`;
}

/** Height of rolling land at x: `base` less up to about `height`. */
export function rolling(base, height, seed) {
  const roll = dice(seed);
  const waves = [310, 170, 83].map((length, index) => ({ length, shift: roll() * 9, weight: [0.62, 0.28, 0.1][index] }));
  return (x) => base - height * waves.reduce((sum, { length, shift, weight }) =>
    sum + weight * (0.5 + 0.5 * Math.sin(x / length * 2.4 + shift)), 0);
}

/** Land under a line, down to `bottom`. */
export function land(line, from, to, bottom, paint) {
  const edge = [];
  for (let x = from; x <= to + 6; x += 6) edge.push([x, line(x)]);
  return `<path d="M${points(edge)}L${to + 6} ${bottom}L${from} ${bottom}Z" fill="${paint}"/>`;
}

/** A mountain with a lit and a shadowed side; `snow` is the share of its height that is white. */
export function mountain(x, top, bottom, width, { lit, shade, snow = 0, snowLit = '#fdf4e6', snowShade = '#c9d3df', seed = 1 }) {
  const roll = dice(seed);
  const height = bottom - top;
  const left = x - width * (0.46 + roll() * 0.08);
  const right = x + width * (0.46 + roll() * 0.08);
  const rough = Math.min(width * 0.035, height * 0.07);
  const jagged = (to, count, spread) => Array.from({ length: count }, (_, index) => {
    const share = (index + 1) / (count + 1);
    return [x + (to - x) * share + (roll() - 0.5) * spread, top + height * share + (roll() - 0.5) * spread * 0.8];
  });
  const leftEdge = jagged(left, 7, rough);
  const rightEdge = jagged(right, 7, rough);
  const ridge = Array.from({ length: 6 }, (_, index) => {
    const share = (index + 1) / 7;
    return [x + width * 0.05 * share + (index % 2 ? 1 : -1) * width * (0.025 + 0.035 * share), top + height * share];
  });
  const foot = [x + width * 0.06, bottom];
  const parts = [
    `<path d="M${points([[x, top], ...leftEdge, [left, bottom], foot, ...[...ridge].reverse()])}Z" fill="${lit}"/>`,
    `<path d="M${points([[x, top], ...ridge, foot, [right, bottom], ...[...rightEdge].reverse()])}Z" fill="${shade}"/>`,
  ];
  if (snow) {
    const cap = (edge, inner, dents) => {
      const at = (list, share) => {
        const place = share * 8 - 1;
        if (place < 0) return [x + (list[0][0] - x) * share * 8, top + (list[0][1] - top) * share * 8];
        const low = Math.min(Math.floor(place), list.length - 2);
        const part = place - low;
        return [list[low][0] + (list[low + 1][0] - list[low][0]) * part, list[low][1] + (list[low + 1][1] - list[low][1]) * part];
      };
      const outline = [[x, top]];
      for (let share = 0.06; share < snow; share += 0.06) outline.push(at(edge, share));
      const [ox, oy] = at(edge, snow);
      const innerPoints = inner.filter(([, y]) => y < top + height * snow * 0.95);
      const [ix, iy] = innerPoints.at(-1) ?? [x, top + height * snow];
      for (let dent = 0; dent <= dents; dent += 1) {
        const share = dent / dents;
        outline.push([ox + (ix - ox) * share, oy + (iy - oy) * share + (dent % 2 ? 0.32 : -0.12) * height * snow * (dent % dents ? 1 : 0)]);
      }
      return `M${points([...outline, ...[...innerPoints].reverse()])}Z`;
    };
    parts.push(`<path d="${cap(leftEdge, ridge, 6)}" fill="${snowLit}"/>`, `<path d="${cap(rightEdge, ridge, 6)}" fill="${snowShade}"/>`);
  }
  return parts.join('');
}

/** A conifer whose foot is at x, y. */
export function conifer(x, y, height, paint) {
  const width = height * 0.42;
  const tiers = [0, 1, 2, 3].map((tier) => {
    const top = y - height + tier * height * 0.2;
    const half = width * (0.2 + 0.1 * tier);
    const base = top + height * 0.34;
    return `M${fixed(x)} ${fixed(top)}L${fixed(x + half)} ${fixed(base)}L${fixed(x - half)} ${fixed(base)}Z`;
  });
  return `<path d="${tiers.join('')}M${fixed(x - height * 0.02)} ${fixed(y - height * 0.1)}h${fixed(height * 0.04)}v${fixed(height * 0.12)}h${fixed(-height * 0.04)}Z" fill="${paint}"/>`;
}

/** Conifers along a line; `tall` is [least, most]. */
export function forest(line, from, to, { tall, paint, gap = 16, seed = 1, where = () => true }) {
  const roll = dice(seed);
  const trees = [];
  for (let x = from; x < to; x += gap * (0.55 + roll() * 0.9)) {
    const height = tall[0] + roll() * (tall[1] - tall[0]);
    if (where(x)) trees.push(conifer(x, line(x) + height * 0.06, height, paint));
  }
  return trees.join('');
}

/** A round tree. */
export function leafTree(x, y, height, { leaves, light, trunk }) {
  const r = height * 0.3;
  return `<path d="M${x - height * 0.03} ${y}L${x - height * 0.015} ${y - height * 0.5}h${height * 0.03}L${x + height * 0.03} ${y}Z" fill="${trunk}"/>
    <circle cx="${x}" cy="${y - height * 0.66}" r="${r}" fill="${leaves}"/><circle cx="${x + r * 0.62}" cy="${y - height * 0.5}" r="${r * 0.66}" fill="${leaves}"/>
    <circle cx="${x - r * 0.66}" cy="${y - height * 0.52}" r="${r * 0.62}" fill="${leaves}"/>
    <path d="M${x - r * 0.62} ${y - height * 0.72}a${r * 0.72} ${r * 0.72} 0 0 1 ${r * 0.9} ${-r * 0.5}" fill="none" stroke="${light}" stroke-width="${height * 0.035}" stroke-linecap="round"/>`;
}

/** A cloud of stacked bars with round ends; x, y is the middle of its lowest one. */
export function cloud(x, y, width, paint, opacity = 1) {
  const height = width * 0.1;
  const bars = [[0, 0, 1], [-0.08, -0.78, 0.66], [0.07, -1.56, 0.36], [0.2, 0.78, 0.52]];
  return `<g fill="${paint}" opacity="${opacity}">${bars.map(([dx, dy, share]) =>
    `<rect x="${fixed(x + dx * width - share * width / 2)}" y="${fixed(y + dy * height)}" width="${fixed(share * width)}" height="${fixed(height)}" rx="${fixed(height / 2)}"/>`).join('')}</g>`;
}

/** A bird far away. */
export function bird(x, y, span, paint) {
  const half = span / 2;
  return `<path d="M${x - half} ${y - half * 0.3}q${half * 0.55} ${-half * 0.34} ${half} ${half * 0.36}q${half * 0.45} ${-half * 0.7} ${half} ${-half * 0.36}q${-half * 0.6} ${-half * 0.02} ${-half} ${half * 0.6}q${-half * 0.4} ${-half * 0.6} ${-half} ${-half * 0.6}z" fill="${paint}"/>`;
}

/** Stars that keep out of `clear`, boxes of [left, top, right, bottom]. */
export function stars(count, width, height, seed, clear = []) {
  const roll = dice(seed);
  return Array.from({ length: count }, () => {
    const [size, x, y, bright] = [0.5 + roll() ** 3 * 1.7, roll() * width, roll() ** 1.3 * height, 0.35 + roll() * 0.65];
    if (clear.some(([left, top, right, bottom]) => x > left && x < right && y > top && y < bottom)) return '';
    return `<circle cx="${fixed(x)}" cy="${fixed(y)}" r="${fixed(size)}" fill="#fff6dd" opacity="${fixed(bright)}"/>`;
  }).join('');
}

/** Short bright lines on water, closer together towards the horizon. */
export function glitter(x, top, bottom, width, paint, seed, opacity = 0.75) {
  const roll = dice(seed);
  const lines = [];
  for (let y = top + 4; y < bottom; y += 5 + (y - top) * 0.055) {
    const share = (y - top) / (bottom - top);
    const half = width * (0.28 + 0.5 * share) * (0.35 + roll() * 0.65);
    const middle = x + (roll() - 0.5) * width * 0.3;
    lines.push(`<rect x="${fixed(middle - half)}" y="${fixed(y)}" width="${fixed(half * 2)}" height="${fixed(1.6 + share * 3.4)}" rx="${fixed(1 + share * 1.6)}"/>`);
  }
  return `<g fill="${paint}" opacity="${opacity}">${lines.join('')}</g>`;
}
