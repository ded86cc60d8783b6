import { fileAddress } from '../src/book/values.js';
import { svgOf } from './vectors.js';

/**
 * Loads the larger picture of a page from a file, or from data that hold it.
 * @param {HTMLImageElement} image
 * @param {string} file as the book's facts have it
 * @param {import('./data.js').DataFiles} files
 */
export async function loadLarge(image, file, files) {
  if (!file) throw new Error('no larger picture');
  const [, data] = /^(.*)\.js$/.exec(file) ?? [];
  image.src = data ? URL.createObjectURL(new Blob([await svgOf(await files.load(data))], { type: 'image/svg+xml' }))
    : await fileAddress(file);
  try {
    await image.decode();
  } finally {
    if (data) URL.revokeObjectURL(image.src);
  }
}
