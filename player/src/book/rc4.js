/** Bytes per call: JIT compilers optimize a function that is called often sooner than a long loop. */
const STRETCH = 1024;

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
  let j = 0;
  for (let n = 0; n < bytes.length; n += STRETCH) {
    j = rc4Stretch(bytes, result, state, n, j);
  }
  return result;
}

/**
 * @param {Uint8Array} bytes
 * @param {Uint8Array} result
 * @param {Uint8Array} state
 * @param {number} from where the stretch begins
 * @param {number} j as the stretch before left it
 * @returns {number} j
 */
function rc4Stretch(bytes, result, state, from, j) {
  const end = Math.min(bytes.length, from + STRETCH);
  for (let n = from; n < end; n++) {
    const i = (n + 1) & 255;
    const here = state[i];
    j = (j + here) & 255;
    const there = state[j];
    state[i] = there;
    state[j] = here;
    result[n] = bytes[n] ^ state[(here + there) & 255];
  }
  return j;
}
