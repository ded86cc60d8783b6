import { readFile } from 'node:fs/promises';

/** Runs in the browser: mean difference of two pictures' upper parts, 0 to 255, at a few pixels. */
async function compare([shown, wanted, part]) {
  const pixels = async (source) => {
    const image = new Image();
    image.src = source;
    await image.decode();
    const canvas = Object.assign(document.createElement('canvas'), { width: 24, height: 24 });
    const context = canvas.getContext('2d', { willReadFrequently: true });
    context.imageSmoothingQuality = 'high';
    context.drawImage(image, 0, 0, image.width, image.height * part, 0, 0, 24, 24);
    return context.getImageData(0, 0, 24, 24).data;
  };
  const [a, b] = await Promise.all([pixels(shown), pixels(wanted)]);
  return a.reduce((sum, value, index) => sum + Math.abs(value - b[index]), 0) / (a.length * 0.75);
}

/**
 * Mean differences of a page on the screen from JPEG files, 0 to 255. Only the upper two thirds count,
 * because controls may lie over the foot of a page.
 */
export async function differencesOf(book, side, files) {
  const shot = await book.page.screenshot({ clip: await book.box(side), type: 'jpeg', quality: 90 });
  const data = (bytes) => `data:image/jpeg;base64,${bytes.toString('base64')}`;
  const differences = [];
  for (const file of files) {
    differences.push(await book.page.evaluate(compare, [data(shot), data(await readFile(file)), 2 / 3]));
  }
  return differences;
}
