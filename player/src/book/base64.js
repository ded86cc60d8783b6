/**
 * @param {string} base64
 * @returns {Uint8Array}
 */
export function bytesOf(base64) {
  if (Uint8Array.fromBase64) return Uint8Array.fromBase64(base64);
  const letters = atob(base64);
  // Not Uint8Array.from: thousands of pages make a million bytes, too many for a call each.
  const bytes = new Uint8Array(letters.length);
  for (let at = 0; at < letters.length; at++) bytes[at] = letters.charCodeAt(at);
  return bytes;
}
