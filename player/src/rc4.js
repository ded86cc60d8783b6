/**
 * Enciphers or deciphers bytes with RC4 (the operation is its own inverse).
 * @param {Uint8Array | string} input bytes, or a text with a letter for each: turning a long one into
 *   bytes first would take as long again
 * @param {string} key plain ASCII
 * @returns {Uint8Array}
 */
export function rc4(input, key) {
  const state = Uint8Array.from({ length: 256 }, (_, index) => index);
  for (let i = 0, j = 0; i < 256; i++) {
    j = (j + state[i] + key.charCodeAt(i % key.length)) & 255;
    [state[i], state[j]] = [state[j], state[i]];
  }
  const isText = typeof input === 'string';
  const result = new Uint8Array(input.length);
  for (let n = 0, i = 0, j = 0; n < input.length; n++) {
    i = (i + 1) & 255;
    const here = state[i];
    j = (j + here) & 255;
    const there = state[j];
    state[i] = there;
    state[j] = here;
    const byte = isText ? input.charCodeAt(n) : input[n];
    result[n] = byte ^ state[(here + there) & 255];
  }
  return result;
}
