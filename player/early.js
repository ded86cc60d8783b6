// Stands at the top of the page: the configuration is on its way while the rest of the page is
// still being read, which a long book gains most from.
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
  // A book that is one file has its configuration in its page.
  const here = window.FolveroUserConfig !== undefined;
  const asked = here ? Promise.resolve()
    : location.protocol === 'file:' ? runScript() : fetch('files/UserConfig.bin');
  // Whoever waits for it deals with a failure; until then it is nobody's.
  asked.catch(() => {});
  return { asked, runScript, here };
})();
