/**
 * Resolves when the browser has nothing else to do: long work is done in slices.
 * @param {number} [timeout] milliseconds after which it resolves anyway
 */
export function pause(timeout = 60) {
  return new Promise((resolve) => {
    if (window.requestIdleCallback) window.requestIdleCallback(() => resolve(undefined), { timeout });
    else setTimeout(resolve, 4);
  });
}
