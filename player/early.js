// Runs at the top of the page: requests the configuration while the rest of the page is still being parsed, which
// matters most for long books.
window.folveroConfiguration = (() => {
  /**
   * Browsers refuse to read sibling files of a page opened from disk, but run sibling scripts.
   * @returns {Promise<Event>}
   */
  const runScript = () => new Promise((resolve, reject) => {
    const script = document.createElement('script');
    script.src = 'files/UserConfig.js';
    script.onload = resolve;
    script.onerror = () => reject(new Error('not found'));
    document.head.append(script);
  });
  // A single-file book has its configuration in its page.
  const here = window.FolveroUserConfig !== undefined;
  const asked = here ? Promise.resolve()
    : location.protocol === 'file:' ? runScript() : fetch('files/UserConfig.bin');
  // The failure is handled where it is awaited; this avoids reporting it as unhandled.
  asked.catch(() => {});
  return { asked, runScript, here };
})();
