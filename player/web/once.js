/**
 * What does something at its first call, and again at the next one when that failed.
 * @template T
 * @param {() => Promise<T>} act
 */
export function once(act) {
  /** @type {Promise<T> | null} */
  let made = null;
  return () => {
    made ??= act();
    made.catch(() => { made = null; });
    return made;
  };
}
