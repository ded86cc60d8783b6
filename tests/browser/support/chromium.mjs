import { accessSync, constants } from 'node:fs';
import path from 'node:path';
import { chromium } from 'playwright-core';

const ARGUMENTS = [
  '--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync', '--mute-audio', '--hide-scrollbars',
];

function findInPath(names) {
  for (const folder of (process.env.PATH ?? '').split(path.delimiter)) {
    for (const name of names) {
      const candidate = path.join(folder, name);
      try {
        accessSync(candidate, constants.X_OK);
        return candidate;
      } catch {
        // Not in this folder.
      }
    }
  }
  throw new Error(`none of ${names.join(', ')} is in the PATH`);
}

export function launchChromium() {
  return chromium.launch({
    executablePath: findInPath(['chromium', 'chromium-browser']), headless: true, args: ARGUMENTS,
  });
}
