// Installs the packages of these tests, unless they are there as the lock file wants them.
// Usage: packages.mjs NPM

import { spawnSync } from 'node:child_process';
import { existsSync, statSync } from 'node:fs';

const installed = 'node_modules/.package-lock.json';
const isCurrent = existsSync(installed)
  && ['package.json', 'package-lock.json'].every((file) => statSync(file).mtimeMs <= statSync(installed).mtimeMs);
if (!isCurrent) {
  const { status } = spawnSync(process.argv[2], ['ci'], { stdio: 'inherit' });
  process.exit(status ?? 1);
}
