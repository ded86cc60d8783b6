export const CONFIG_KEY = 'zq4mk2pw7rxv1bn8ty';

/** RC4, written apart from the player's so that one checks the other. */
export function rc4(input, key) {
  const s = Array.from(Array(256).keys());
  const k = Buffer.from(key, 'utf8');
  let j = 0;
  for (let i = 0; i < 256; i += 1) {
    j = (j + s[i] + k[i % k.length]) % 256;
    const held = s[i];
    s[i] = s[j];
    s[j] = held;
  }
  let a = 0;
  let b = 0;
  return Buffer.from(input).map((byte) => {
    a = (a + 1) % 256;
    b = (b + s[a]) % 256;
    const held = s[a];
    s[a] = s[b];
    s[b] = held;
    return byte ^ s[(s[a] + s[b]) % 256];
  });
}
