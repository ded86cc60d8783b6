#!/usr/bin/env node
// Draws the icon of a book that is published as a Mac application.
// Usage: make-mac-icon.mjs FILE.icns [PREVIEW.png]

import { writeFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const { launchChromium } = await import(path.join(here, '../tests/browser/support/chromium.mjs'));

const GROUND = `<defs>
<linearGradient id="sky" x2="0" y2="1"><stop offset="0" stop-color="#12324b"/><stop offset=".4" stop-color="#2a6079"/>
<stop offset=".62" stop-color="#dd937f"/><stop offset=".8" stop-color="#fbd9a4"/></linearGradient>
<linearGradient id="left"><stop offset="0" stop-color="#fffaf0"/><stop offset=".8" stop-color="#fbf3e2"/><stop offset="1" stop-color="#dccbaa"/></linearGradient>
<linearGradient id="right"><stop offset="0" stop-color="#e6d8bb"/><stop offset=".2" stop-color="#fbf3e2"/><stop offset="1" stop-color="#fffaf0"/></linearGradient>
<filter id="soft" x="-10%" y="-10%" width="120%" height="120%"><feGaussianBlur stdDeviation="16"/></filter>
<clipPath id="tile"><rect x="100" y="100" width="824" height="824" rx="186"/></clipPath></defs>`;

const FAR = `<circle cx="520" cy="520" r="330" fill="#ffd18c" opacity=".16"/><circle cx="520" cy="520" r="238" fill="#ffd18c" opacity=".2"/>
<path d="M60 640L236 372L330 470L420 640Z" fill="#c98a86"/><path d="M236 372L330 470L420 640H270L232 500L262 440Z" fill="#8b6f86"/>
<path d="M610 640L796 340L980 640Z" fill="#c07f80"/><path d="M796 340L980 640H812L772 520L812 440Z" fill="#7d6683"/>
<path d="M236 372L200 427L222 418L240 444L262 430L283 421Z" fill="#fff4e0"/><path d="M796 340L757 403L782 394L802 424L824 402L846 422Z" fill="#fff4e0"/>`;

/** Small sizes leave out what would only blur. */
function icon(small) {
  return `<svg xmlns="http://www.w3.org/2000/svg" viewBox="${small ? '70 70 884 884' : '0 0 1024 1024'}">${GROUND}
  ${small ? '' : '<rect x="104" y="118" width="816" height="816" rx="184" fill="#061523" opacity=".4" filter="url(#soft)"/>'}
  <g clip-path="url(#tile)"><rect width="1024" height="1024" fill="url(#sky)"/>${small ? '' : FAR}
  <circle cx="520" cy="520" r="${small ? 190 : 150}" fill="#fff3d6"/>
  <path d="M60 610C220 540 380 600 520 606C680 612 820 560 980 600V960H60Z" fill="#2c6670"/>
  <path d="M60 700C240 640 420 700 560 690C700 680 840 660 980 690V960H60Z" fill="#12394a"/>
  <path d="M${small ? '140 880L196 640' : '166 874L222 660'}C330 612 440 622 512 664C584 622 694 612 802 ${small ? '640L884 880' : '660L858 874'}C720 832 600 836 512 884C424 836 304 832 ${small ? '140 880' : '166 874'}Z" fill="#0a1f2d"/>
  <path d="M${small ? '166' : '190'} 848L232 650C330 606 440 616 512 658V862C430 818 310 812 ${small ? '166' : '190'} 848Z" fill="url(#left)"/>
  <path d="M${small ? '858' : '834'} 848L792 650C694 606 584 616 512 658V862C594 818 714 812 ${small ? '858' : '834'} 848Z" fill="url(#right)"/>
  ${small
    ? '<path d="M470 640H580V960H470Z" fill="#d9573a"/>'
    : '<path d="M516 566C560 580 452 596 468 622C484 646 596 640 582 690C570 732 456 724 462 790C464 826 470 860 470 930H560V830C560 780 560 760 584 730C626 680 650 650 590 622C550 604 512 600 530 566Z" fill="#d9573a"/><path d="M524 566C566 580 500 600 524 616C560 632 640 640 598 700C570 738 536 740 540 800C542 840 544 880 544 930H564V830C564 780 566 760 588 730C630 680 654 650 594 622C552 604 514 600 532 566Z" fill="#b8432b"/>'}
  <rect x="103" y="103" width="818" height="818" rx="183" fill="none" stroke="#fff" stroke-opacity=".18" stroke-width="6"/></g></svg>`;
}

/** One channel in the packing of the old small icons: runs of 3 to 130 bytes, or up to 128 as they are. */
function packed(bytes) {
  const result = [];
  for (let at = 0; at < bytes.length;) {
    const runFrom = (start) => {
      let end = start + 1;
      while (end < bytes.length && end - start < 130 && bytes[end] === bytes[start]) end += 1;
      return end - start;
    };
    const run = runFrom(at);
    if (run >= 3) {
      result.push(run + 125, bytes[at]);
      at += run;
      continue;
    }
    let end = at;
    while (end < bytes.length && end - at < 128 && runFrom(end) < 3) end += 1;
    result.push(end - at - 1, ...bytes.slice(at, end));
    at = end;
  }
  return result;
}

/** A picture of pixels as the two parts of an old small icon: colours and mask. */
function oldParts(pixels) {
  const channel = (offset) => pixels.filter((_, index) => index % 4 === offset);
  return { colours: Buffer.from([0, 1, 2].flatMap((offset) => packed(channel(offset)))), mask: Buffer.from(channel(3)) };
}

async function draw(page, size) {
  await page.setViewportSize({ width: size, height: size });
  await page.setContent(`<style>body { margin: 0; background: transparent } svg { display: block; width: 100vw }</style>${icon(size <= 32)}`);
  return page.screenshot({ omitBackground: true });
}

function pixelsOf(page, png) {
  return page.evaluate(async (source) => {
    const image = new Image();
    image.src = source;
    await image.decode();
    const canvas = Object.assign(document.createElement('canvas'), { width: image.width, height: image.height });
    const context = canvas.getContext('2d');
    context.drawImage(image, 0, 0);
    return [...context.getImageData(0, 0, image.width, image.height).data];
  }, `data:image/png;base64,${png.toString('base64')}`);
}

/** Types that hold a PNG file, with its size; the last four are for screens of twice the density. */
const PNG_TYPES = { ic07: 128, ic08: 256, ic09: 512, ic11: 32, ic12: 64, ic13: 256, ic14: 512, ic10: 1024 };

const [file, preview] = process.argv.slice(2);
const browser = await launchChromium();
const page = await browser.newPage();
const parts = [];
for (const [size, colours, mask] of [[16, 'is32', 's8mk'], [32, 'il32', 'l8mk']]) {
  const old = oldParts(await pixelsOf(page, await draw(page, size)));
  parts.push([colours, old.colours], [mask, old.mask]);
}
for (const [type, size] of Object.entries(PNG_TYPES)) parts.push([type, await draw(page, size)]);
if (preview) await writeFile(preview, parts.at(-1)[1]);
await browser.close();

const head = (type, length) => {
  const bytes = Buffer.alloc(8);
  bytes.write(type, 'latin1');
  bytes.writeUInt32BE(length + 8, 4);
  return bytes;
};
const body = Buffer.concat(parts.flatMap(([type, bytes]) => [head(type, bytes.length), bytes]));
await writeFile(file, Buffer.concat([head('icns', body.length), body]));
