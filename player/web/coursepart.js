import { findPlatform, Visit } from './course.js';

/** @param {Visit} visit */
function follow(visit) {
  const { page } = visit;
  // Before the player reads where to begin.
  if (page && !location.hash) history.replaceState(null, '', '#page=' + page);
  window.addEventListener('folvero:page', (event) => visit.show(/** @type {CustomEvent} */ (event).detail.page));
  window.addEventListener('folvero:end', () => visit.complete());
  // Phones end pages that are hidden without another word.
  document.addEventListener('visibilitychange', () => {
    if (document.visibilityState === 'hidden') visit.report();
  });
  window.addEventListener('pagehide', () => visit.end());
}

const platform = findPlatform(window);
if (platform) follow(new Visit(platform));
