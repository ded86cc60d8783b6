/**
 * Browsers refuse to read sibling files of a page opened from disk, but run sibling scripts.
 * @param {string} [address] by default that of the configuration
 * @returns {Promise<Event>}
 */
export const runScript = (address = 'files/UserConfig.js') => new Promise((resolve, reject) => {
  const script = document.createElement('script');
  script.src = address;
  script.onload = resolve;
  script.onerror = () => reject(new Error('not found'));
  document.head.append(script);
});

/** Requests the configuration. */
export const ask = () => (location.protocol === 'file:' ? runScript() : fetch('files/UserConfig.bin'));
