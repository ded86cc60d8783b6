// Pinches at the pace of hands, on a phone.

import { PHONE } from '../../tests/browser/support/reader.mjs';
import { openViewer } from './opening.mjs';

const FACTORS = [1.3, 1.6, 2, 2.5, 3];

/** How wide the page is on the screen: by the viewer's own zoom and by the browser's. */
const widthOnScreen = async (page, viewer) =>
  (await page.evaluate(viewer.width)) * (await page.evaluate(() => window.visualViewport.scale));

/**
 * Pinches apart and together by five factors. A pinch counts if the page became larger or smaller by at least half of
 * what was asked and at most twice that, by the logarithm: Chromium moves the fingers further than asked, by what a
 * system's own pinches take to begin, and viewers that follow the fingers themselves count that, too.
 * @returns {Promise<number>} how many of ten count
 */
export async function measurePinches(browser, address, viewer) {
  const page = await openViewer(browser, address, viewer, { ...PHONE, deviceScaleFactor: 3 });
  await page.waitForTimeout(1500);
  const session = await page.context().newCDPSession(page);
  let done = 0;
  for (const factor of FACTORS.flatMap((apart) => [apart, 1 / apart])) {
    const before = await widthOnScreen(page, viewer);
    await session.send('Input.synthesizePinchGesture',
      { x: 195, y: 400, scaleFactor: factor, relativeSpeed: 200, gestureSourceType: 'touch' });
    await page.waitForTimeout(600);
    const share = Math.log((await widthOnScreen(page, viewer)) / before) / Math.log(factor);
    if (share >= 0.5 && share <= 2) done += 1;
  }
  await page.context().close();
  return done;
}
