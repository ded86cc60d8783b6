// Turning pages: frames, CPU time, and what stays in memory.

import { cpuTime, figures, traceSteps } from '../support.mjs';
import { openViewer } from './opening.mjs';

/** Longest wait for one turn, and shortest time for which frames are counted, milliseconds. */
const LONGEST = 8000;
const SHORTEST = 300;

/** In the page: bench.begin() records frame intervals until other pages are shown and nothing moves. */
function watchFrames({ turning, at, shortest }) {
  const isTurning = new Function(`return (${turning})()`);
  const place = new Function(`return (${at})()`);
  const bench = { intervals: [], recording: false, begin() {
    Object.assign(bench, { recording: true, from: place(), since: performance.now(), last: 0 });
    requestAnimationFrame(note);
  } };
  const note = (now) => {
    if (bench.last) bench.intervals.push(now - bench.last);
    bench.last = now;
    bench.recording = isTurning() || place() === bench.from || now - bench.since < shortest;
    if (bench.recording) requestAnimationFrame(note);
  };
  window.bench = bench;
}

/** Turns one page; whether it came to that. */
async function turn(page, viewer, forward, by) {
  await page.evaluate(() => window.bench.begin());
  if (by === 'drag') await viewer.drag(page, forward);
  else await page.keyboard.press(forward ? 'ArrowRight' : 'ArrowLeft');
  return page.waitForFunction(() => !window.bench.recording, undefined, { polling: 50, timeout: LONGEST })
    .then(() => true, () => false);
}

const openForTurning = async (browser, address, viewer, options) => {
  const { turning, at } = viewer;
  const page = await openViewer(browser, address, viewer, options);
  if (viewer.prepare) await page.evaluate(viewer.prepare);
  await page.evaluate(watchFrames, { turning: String(turning), at: String(at), shortest: SHORTEST });
  await page.waitForTimeout(1500);
  return page;
};

/**
 * One round: frame intervals and CPU times of the main thread's frames, milliseconds; CPU time of a turn; turns that
 * failed. how: { by: key or drag, density, slower: so many times, turns }
 */
export async function measureTurns(browser, address, viewer, { by, density, slower, turns }) {
  const page = await openForTurning(browser, address, viewer,
    { viewport: { width: 1280, height: 800 }, deviceScaleFactor: density });
  const session = await page.context().newCDPSession(page);
  if (slower > 1) await session.send('Emulation.setCPUThrottlingRate', { rate: slower });
  const whole = await browser.newBrowserCDPSession();
  const stop = await traceSteps(whole);
  const before = await cpuTime(whole);
  let failed = 0;
  for (let count = 0; count < turns; count += 1) {
    failed += await turn(page, viewer, count % 8 < 4, by) ? 0 : 1;
    await page.waitForTimeout(120);
  }
  const cpu = ((await cpuTime(whole)) - before) / turns;
  const main = (await stop())['ProxyMain::BeginMainFrame'];
  const intervals = await page.evaluate(() => window.bench.intervals);
  await page.context().close();
  return { intervals: figures(intervals), main: figures(main), cpu, failed };
}

async function heapOf(session) {
  await session.send('HeapProfiler.collectGarbage');
  return (await session.send('Runtime.getHeapUsage')).usedSize / 1e6;
}

/** Megabytes of JavaScript objects after the first view and after turns by key. */
export async function measureHeap(browser, address, viewer, turns) {
  const page = await openForTurning(browser, address, viewer, { viewport: { width: 1280, height: 800 } });
  const session = await page.context().newCDPSession(page);
  const before = await heapOf(session);
  const there = 18;
  let failed = 0;
  for (let count = 0; count < turns; count += 1) {
    failed += await turn(page, viewer, count % (2 * there) < there, 'key') ? 0 : 1;
    await page.evaluate(() => { window.bench.intervals.length = 0; });
  }
  const after = await heapOf(session);
  await page.context().close();
  return { before, after, failed };
}
