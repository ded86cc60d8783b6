// Opening a viewer: how long it takes until its first page is painted.

import { cpuTime, NETWORKS } from '../support.mjs';

/** In the page: records when its first page is painted, since the start of the navigation. */
function watchOpening(shown) {
  const isShown = new Function(`return (${shown})()`);
  const look = () => {
    if (!document.body || !isShown()) requestAnimationFrame(look);
    // One frame has it, the next one comes after it is painted.
    else requestAnimationFrame(() => requestAnimationFrame(() => { window.openedAt = performance.now(); }));
  };
  requestAnimationFrame(look);
}

/** Opens a viewer in a new context with an empty cache; ready once its first page is painted. */
export async function openViewer(browser, address, { shown }, { network, ...options }) {
  const context = await browser.newContext(options);
  const page = await context.newPage();
  if (network) {
    const session = await context.newCDPSession(page);
    await session.send('Network.enable');
    await session.send('Network.emulateNetworkConditions', NETWORKS[network]);
  }
  await page.addInitScript(watchOpening, String(shown));
  await page.goto(address, { waitUntil: 'commit' });
  await page.waitForFunction(() => window.openedAt, undefined, { timeout: 60000 });
  return page;
}

/** Milliseconds from the start of the navigation until the first page is painted, and CPU milliseconds until then. */
export async function measureOpening(browser, address, viewer, network) {
  const whole = await browser.newBrowserCDPSession();
  const before = await cpuTime(whole);
  const page = await openViewer(browser, address, viewer, { viewport: { width: 1280, height: 800 }, network });
  const cpu = (await cpuTime(whole)) - before;
  const time = await page.evaluate(() => window.openedAt);
  await page.context().close();
  return { time, cpu };
}
