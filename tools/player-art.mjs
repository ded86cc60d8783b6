#!/usr/bin/env node
// Draws the pictures of the template library that are kept in the repository: the template's icon
// and the background pictures of its styles.
// Usage: player-art.mjs RESOURCES_DIR

import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const ICON = `<svg width="64" height="64" viewBox="0 0 64 64">
<defs><linearGradient id="g" x2="0" y2="1"><stop offset="0" stop-color="#e9eef4"/>
<stop offset="1" stop-color="#a9b7c6"/></linearGradient>
<linearGradient id="p" x2="1"><stop offset="0" stop-color="#fff"/><stop offset=".86" stop-color="#f4f4f2"/>
<stop offset="1" stop-color="#c9ccd0"/></linearGradient>
<linearGradient id="q" x1="1" x2="0"><stop offset="0" stop-color="#fff"/><stop offset=".86" stop-color="#f4f4f2"/>
<stop offset="1" stop-color="#c9ccd0"/></linearGradient>
<filter id="s" x="-30%" y="-30%" width="160%" height="180%"><feDropShadow dy="2.4" stdDeviation="2.4" flood-opacity=".4"/></filter>
</defs><rect x="1" y="1" width="62" height="62" rx="13" fill="url(#g)"/>
<g filter="url(#s)"><path d="M9 17h23v31H9z" fill="url(#p)"/><path d="M32 17h23v31H32z" fill="url(#q)"/></g>
<path d="M13 22h15M13 26h15M13 30h11" stroke="#9aa7b5" stroke-width="1.6" stroke-linecap="round"/>
<path d="M36 22h15v10H36z" fill="#4fa3b8"/><path d="M36 32c4-4 7-3 9-1s4 1 6-1v7H36z" fill="#1d6683"/>
<path d="M55 34 41 48h14z" fill="#dfe5ec"/><path d="M55 34c-5 3-8 2-10 1 2 4 1 9-4 13z" fill="#fff" stroke="#c3ccd6" stroke-width=".6"/>
</svg>`;

/** Long, slightly wavy grain in three layers, boards with dark joints, and lamp light. */
const DESK = `<svg width="1920" height="1200" viewBox="0 0 1920 1200">
<defs>
<filter id="grain" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
  <feTurbulence type="fractalNoise" baseFrequency="0.0016 0.055" numOctaves="5" seed="11"/>
  <feColorMatrix values="0 0 0 0 .16  0 0 0 0 .085  0 0 0 0 .04  1.35 0 0 0 -.5"/></filter>
<filter id="fibre" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
  <feTurbulence type="fractalNoise" baseFrequency="0.006 0.62" numOctaves="3" seed="4"/>
  <feColorMatrix values="0 0 0 0 .1  0 0 0 0 .05  0 0 0 0 .02  0 1.1 0 0 -.5"/></filter>
<filter id="sheen" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
  <feTurbulence type="fractalNoise" baseFrequency="0.0011 0.016" numOctaves="3" seed="29"/>
  <feColorMatrix values="0 0 0 0 .82  0 0 0 0 .56  0 0 0 0 .34  0 0 1.1 0 -.5"/></filter>
<radialGradient id="lamp" cx=".5" cy=".36" r=".78"><stop offset="0" stop-color="#ffdca8" stop-opacity=".34"/>
<stop offset=".45" stop-color="#ffce92" stop-opacity=".1"/><stop offset=".75" stop-color="#000" stop-opacity=".12"/>
<stop offset="1" stop-color="#000" stop-opacity=".52"/></radialGradient>
<linearGradient id="joint" x2="0" y2="1"><stop offset="0" stop-color="#000" stop-opacity="0"/>
<stop offset=".55" stop-color="#0b0502" stop-opacity=".75"/><stop offset=".7" stop-color="#e2b285" stop-opacity=".25"/>
<stop offset="1" stop-color="#e2b285" stop-opacity="0"/></linearGradient></defs>
${[0, 1, 2, 3].map((board) => `<svg y="${board * 300}" width="1920" height="300" overflow="hidden">
  <rect width="1920" height="300" fill="${['#71492f', '#7a5034', '#6b442b', '#754b30'][board]}"/>
  <g transform="translate(${-board * 431} ${-board * 517})">
  <rect width="3600" height="2400" filter="url(#sheen)"/><rect width="3600" height="2400" filter="url(#grain)"/>
  <rect width="3600" height="2400" filter="url(#fibre)"/></g></svg>`).join('')}
${[300, 600, 900].map((y) => `<rect y="${y - 5}" width="1920" height="9" fill="url(#joint)"/>`).join('')}
<rect width="1920" height="1200" fill="url(#lamp)"/></svg>`;

const PICTURES = [
  { svg: ICON, width: 64, height: 64, file: 'AppFiles/Templates/float/icon.png' },
  { svg: DESK, width: 1920, height: 1200, file: 'AppFiles/Styles/float/Writing desk/desk.jpg' },
];

const resources = process.argv[2];
const browser = await launchChromium();
const page = await browser.newPage();
for (const { svg, width, height, file } of PICTURES) {
  await page.setViewportSize({ width, height });
  await page.setContent(`<style>body { margin: 0; background: transparent } svg { display: block }</style>${svg}`);
  const asPhoto = file.endsWith('.jpg') ? { type: 'jpeg', quality: 80 } : { omitBackground: true };
  await page.screenshot({ path: path.join(resources, file), ...asPhoto });
}
await browser.close();
