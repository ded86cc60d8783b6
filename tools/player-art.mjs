#!/usr/bin/env node
// Draws the background pictures of the template library's styles, which are kept in the repository.
// Usage: player-art.mjs RESOURCES_DIR [PART_OF_A_NAME] [--png FOLDER]
//
// With part of a name only the pictures whose path holds it are drawn. With --png they go to a
// folder as PNG files instead, to look at.

import { mkdir } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { baize, curtain, linen } from './player-art-cloth.mjs';
import { chalkboard, sand, slate, watercolour, windowLight } from './player-art-ground.mjs';
import { garden, nightSky, projectorBeam, rainyWindow } from './player-art-light.mjs';
import { boards, panelledWall } from './player-art-wood.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const support = path.join(here, '../tests/browser/support');
const { launchChromium } = await import(path.join(support, 'chromium.mjs'));
const { png } = await import(path.join(support, 'png.mjs'));

const WIDE = [1920, 1200];

/** Blue paper with white lines every 24 pixels and bolder ones every 120. */
function blueprint(x, y) {
  const line = (every, strength) => (x % every === 0 || y % every === 0 ? strength : 0);
  const white = Math.max(line(24, 0.1), line(120, 0.22));
  return [31, 79, 137].map((part) => part + (255 - part) * white);
}

const BLOBS = [['#ff8a5c', 180, 120, 640], ['#f9c46b', 760, -80, 520], ['#ff5f8f', 1000, 520, 620],
  ['#7b5cff', 1780, 200, 720], ['#3aa8ff', 1500, 1120, 700], ['#8be0c8', 420, 1180, 560]];

/** Broad pools of colour that run into each other. */
const BRIGHT = `<svg width="1920" height="1200"><filter id="b" x="-50%" y="-50%" width="200%" height="200%"
  color-interpolation-filters="sRGB"><feGaussianBlur stdDeviation="150"/></filter>
  <rect width="1920" height="1200" fill="#e9718f"/><g filter="url(#b)">${BLOBS.map(([fill, x, y, r]) =>
    `<circle cx="${x}" cy="${y}" r="${r * 0.82}" fill="${fill}"/>`).join('')}</g></svg>`;

const WALNUT = { early: '#7d5236', late: '#472a19' };

/** Each picture: where it goes, its size, and either SVG or a colour for every pixel. */
const PICTURES = [
  ['float/Writing desk/desk.jpg', WIDE, () => boards({ ...WALNUT, height: 300, seed: 5 })],
  ['float/Garden/garden.jpg', WIDE, garden],
  ['float/Rainy window/window.jpg', WIDE, rainyWindow],
  ['float/Watercolour/paper.jpg', WIDE, watercolour],
  ['desk/Oak/oak.jpg', WIDE, () => boards({ early: '#cfa878', late: '#a67a4b', height: 200, seed: 3, gap: 0.45 })],
  ['desk/Slate/slate.jpg', WIDE, slate],
  ['desk/Linen/linen.jpg', [480, 480], linen],
  ['desk/Green baize/baize.jpg', [500, 500], baize],
  ['desk/Green baize/rail.jpg', WIDE, () => boards({ early: '#6d4226', late: '#3c2112', height: 400, seed: 17 })],
  ['desk/Beach/sand.jpg', WIDE, sand],
  ['gallery/Morning light/wall.jpg', WIDE, windowLight],
  ['cinema/Velvet/curtain.jpg', WIDE, curtain],
  ['cinema/Midnight/sky.jpg', WIDE, nightSky],
  ['cinema/Projector/beam.jpg', WIDE, projectorBeam],
  ['deck/Boardroom/wall.jpg', WIDE, () => panelledWall({ early: '#8a6245', late: '#55351f', width: 240, seed: 9,
    lamps: [120, 540, 960, 1380, 1800] })],
  ['deck/Chalkboard/board.jpg', WIDE, chalkboard],
  ['deck/Chalkboard/frame.jpg', WIDE, () => boards({ early: '#c39a68', late: '#94693d', height: 400, seed: 7 })],
  ['deck/Bright/colours.jpg', WIDE, BRIGHT],
  ['deck/Blueprint/grid.png', [120, 120], () => blueprint],
];

function drawing(picture, width, height) {
  if (typeof picture === 'string') return picture;
  const colour = picture(width, height);
  const bytes = png(width, height, (x, y) => colour(x, y).map((part) => Math.min(255, Math.max(0, part))));
  return `<img src="data:image/png;base64,${bytes.toString('base64')}">`;
}

const [resources, ...options] = process.argv.slice(2);
const lookAt = options.includes('--png') ? options[options.indexOf('--png') + 1] : null;
const wanted = options[0] && options[0] !== '--png' ? options[0] : '';
const browser = await launchChromium();
const page = await browser.newPage();
for (const [name, [width, height], picture] of PICTURES.filter(([name]) => name.includes(wanted))) {
  await page.setViewportSize({ width, height });
  await page.setContent(`<style>body { margin: 0 } img, svg { display: block }</style>${drawing(picture, width, height)}`);
  await page.waitForFunction(() => [...document.images].every((image) => image.complete));
  const target = lookAt ? path.join(lookAt, name.replaceAll('/', ' - ').replace('.jpg', '.png'))
    : path.join(resources, 'AppFiles/Styles', name);
  await mkdir(path.dirname(target), { recursive: true });
  await page.screenshot({ path: target, ...(target.endsWith('.jpg') ? { type: 'jpeg', quality: 80 } : {}) });
}
await browser.close();
