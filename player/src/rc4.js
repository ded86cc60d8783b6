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
  for (let n = 0, i = 0, j = 0; n < bytes.length; n++) {
    i = (i + 1) & 255;
    const here = state[i];
    j = (j + here) & 255;
    const there = state[j];
    state[i] = there;
    state[j] = here;
    result[n] = bytes[n] ^ state[(here + there) & 255];
  }
  return result;
}
