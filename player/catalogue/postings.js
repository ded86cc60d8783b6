const DIGITS = 'ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_';
const VALUES = new Map([...DIGITS].map((digit, value) => [digit, value]));

/**
 * Marks the books of a list (src/library/catalogue/Postings.h).
 * @param {string} list
 * @param {Uint8Array} marks by number; numbers beyond it are dropped
 */
export function markAll(list, marks) {
  if (list.startsWith('!')) markBits(list, marks);
  else markDistances(list, marks);
}

/** @param {string} list @param {Uint8Array} marks */
function markBits(list, marks) {
  for (let at = 1; at < list.length; at++) {
    const bits = VALUES.get(list[at]) ?? 0;
    for (let bit = 0; bit < 6; bit++) {
      const number = (at - 1) * 6 + bit;
      if (bits & (1 << bit) && number < marks.length) marks[number] = 1;
    }
  }
}

/** @param {string} list @param {Uint8Array} marks */
function markDistances(list, marks) {
  let number = 0;
  let shift = 0;
  for (const digit of list) {
    const value = VALUES.get(digit) ?? 0;
    number += (value & 31) * 2 ** shift;
    shift += 5;
    if (value >= 32) continue;
    if (number < marks.length) marks[number] = 1;
    number += 1;
    shift = 0;
  }
}
