// Runs in the head of a web book's page. Usually the page's start list replaces the configuration, so the configuration
// is requested only when the player asks for it: web.js did not run, or the start list is damaged.
(() => {
  // Set above early.js to keep that from requesting it.
  if (window.FolveroUserConfig !== '') return;
  delete window.FolveroUserConfig;
  const { runScript } = window.folveroConfiguration;
  const ask = () => (location.protocol === 'file:' ? runScript() : fetch('files/UserConfig.bin'));
  /** @type {Promise<Response | Event> | undefined} */
  let answer;
  /** @type {Promise<Response | Event>['then']} */
  const then = (...acts) => (answer ??= ask()).then(...acts);
  const asked = /** @type {Promise<Response | Event>} */ (/** @type {unknown} */ ({ then }));
  window.folveroConfiguration = { asked, runScript, here: false };
})();
