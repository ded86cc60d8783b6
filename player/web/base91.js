/**
 * Bytes of a text in which two letters are 13 bits. A letter more says that the last byte is none.
 * @param {string} text
 */
export function bytesOf(text) {
  const bytes = new Uint8Array((text.length >> 1) * 13 / 8 - text.length % 2);
  let bits = 0;
  let count = 0;
  let end = 0;
  for (let at = 0; at < text.length; at += 2) {
    bits = bits << 13 | (valueOf(text.charCodeAt(at)) * 91 + valueOf(text.charCodeAt(at + 1)));
    for (count += 13; count > 7;) bytes[end++] = bits >> (count -= 8);
  }
  return bytes;
}

/**
 * All letters from # on but the backslash, with ! for <.
 * @param {number} code
 */
function valueOf(code) {
  return code === 33 ? 25 : code - (code > 92 ? 36 : 35);
}
