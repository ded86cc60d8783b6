/**
 * Enciphers or deciphers bytes with RC4 (the operation is its own inverse).
 * @param {Uint8Array} bytes
 * @param {string} key plain ASCII
 * @returns {Uint8Array}
 */
export function rc4(bytes, key) {
  const state = Uint8Array.from({ length: 256 }, (_, index) => index);
  for (let i = 0, j = 0; i < 256; i++) {
    j = (j + state[i] + key.charCodeAt(i % key.length)) & 255;
    [state[i], state[j]] = [state[j], state[i]];
  }
  const result = new Uint8Array(bytes.length);
  // Exchanged by hand: this runs once a byte, and a list for each would be felt in a long book.
  for (let n = 0, i = 0, j = 0; n < bytes.length; n++) {
    i = (i + 1) & 255;
    const one = state[i];
    j = (j + one) & 255;
    const other = state[j];
    state[i] = other;
    state[j] = one;
    result[n] = bytes[n] ^ state[(one + other) & 255];
  }
  return result;
}
