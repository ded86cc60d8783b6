import { accessSync, constants } from 'node:fs';
import path from 'node:path';

/** Path of the first of some programs that is installed, null where none is. */
export function findProgram(names) {
  for (const name of names) {
    for (const folder of (process.env.PATH ?? '').split(path.delimiter)) {
      const candidate = path.join(folder, name);
      try {
        accessSync(candidate, constants.X_OK);
        return candidate;
      } catch {
        // Not in this folder.
      }
    }
  }
  return null;
}
