import { bytesOf } from './base91.js';
import { fieldsOf, textOf } from './facts.js';

/**
 * The SVG file of a page.
 * @param {unknown} data of the page's file
 */
export async function svgOf(data) {
  const packed = new Blob([bytesOf(textOf(fieldsOf(data).vectors))]);
  return new Response(packed.stream().pipeThrough(new DecompressionStream('deflate'))).text();
}
