import { chromium } from 'playwright-core';
import { findProgram } from './programs.mjs';

const ARGUMENTS = [
  '--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync', '--mute-audio', '--hide-scrollbars',
];
const WHOLE = ['chromium', 'chromium-browser'];

/**
 * Chromium without a screen. bare: without the browser around its pages where Debian's package of that is
 * installed; the pages are the same, and opening one takes a third of the processor time.
 */
export function launchChromium({ bare = false } = {}) {
  const names = bare ? ['chromium-headless-shell', ...WHOLE] : WHOLE;
  const executablePath = findProgram(names);
  if (!executablePath) throw new Error(`none of ${names.join(', ')} is in the PATH`);
  return chromium.launch({ executablePath, headless: true, args: ARGUMENTS });
}
