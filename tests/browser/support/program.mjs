import { execFile } from 'node:child_process';
import path from 'node:path';
import { promisify } from 'node:util';

const { FOLVERO_BIN, FOLVERO_SAMPLES_DIR } = process.env;

/** For tests that need the program and its sample documents. */
export const ready = { skip: !(FOLVERO_BIN && FOLVERO_SAMPLES_DIR) && 'FOLVERO_BIN or FOLVERO_SAMPLES_DIR is not set' };

/** Runs the program and gives what it prints. */
export const folvero = async (...options) => (await promisify(execFile)(FOLVERO_BIN, options)).stdout;

export const sample = (name) => path.join(FOLVERO_SAMPLES_DIR ?? '', `${name}.pdf`);
