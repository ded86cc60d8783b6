import { spawnSync } from 'node:child_process';

/** Path of the first of some programs that is installed, empty where none is. */
export const findProgram = (names) => spawnSync('which', names, { encoding: 'utf8' }).stdout.split('\n')[0];
