/** Resolves when the browser has nothing else to do: long work is done in slices. */
export function pause() {
  return new Promise((resolve) => {
    if (window.requestIdleCallback) window.requestIdleCallback(() => resolve(undefined), { timeout: 60 });
    else setTimeout(resolve, 4);
  });
}
