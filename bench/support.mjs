// Shared code of the benchmark scripts that run in Chromium: servers, networks, frames, figures, tables.

import { spawn } from 'node:child_process';
import { once } from 'node:events';

/** "Fast 3G" and "Fast 4G" of Chromium's developer tools; bytes a second, milliseconds. */
export const NETWORKS = {
  '3g': { offline: false, latency: 562.5, downloadThroughput: (1.6e6 / 8) * 0.9, uploadThroughput: (750e3 / 8) * 0.9 },
  '4g': { offline: false, latency: 165, downloadThroughput: (9e6 / 8) * 0.9, uploadThroughput: (1.5e6 / 8) * 0.9 },
};

/** Serves a folder with `folvero serve`. */
export async function serve(program, folder) {
  const server = spawn(program, ['serve', '--port', '0', folder], { stdio: ['ignore', 'pipe', 'ignore'] });
  const [line] = await Promise.race([once(server.stdout, 'data'), once(server, 'exit')]);
  if (server.exitCode !== null) throw new Error(`${folder} is not served, exit code ${server.exitCode}`);
  return { address: String(line).trim(), stop: () => server.kill('SIGINT') };
}

/** Starts a trace; the result stops it and returns CPU times in milliseconds by event name. */
export async function traceSteps(session) {
  const steps = { 'ProxyMain::BeginMainFrame': [], 'Display::DrawAndSwap': [] };
  const collect = ({ value }) => {
    for (const { name, ph, tdur } of value) {
      if (ph === 'X' && tdur !== undefined) steps[name]?.push(tdur / 1000);
    }
  };
  session.on('Tracing.dataCollected', collect);
  await session.send('Tracing.start', { categories: 'cc,viz', transferMode: 'ReportEvents' });
  return async () => {
    const complete = new Promise((resolve) => { session.once('Tracing.tracingComplete', resolve); });
    await session.send('Tracing.end');
    await complete;
    session.off('Tracing.dataCollected', collect);
    return steps;
  };
}

/** CPU milliseconds that a browser's processes for pages and for drawing have used; session: of the whole browser. */
export async function cpuTime(session) {
  const { processInfo } = await session.send('SystemInfo.getProcessInfo');
  return processInfo.filter(({ type }) => type !== 'browser').reduce((sum, { cpuTime: time }) => sum + time * 1000, 0);
}

const round = (value) => Math.round(value * 10) / 10;

export const median = (values) => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

export function figures(values) {
  const sorted = [...values].sort((a, b) => a - b);
  const at = (share) => sorted[Math.min(sorted.length - 1, Math.floor(sorted.length * share))];
  return { median: round(at(0.5)), p95: round(at(0.95)), max: round(sorted.at(-1)), frames: sorted.length };
}

/** Prints a Markdown table; the first column is text, the others are figures. */
export function printTable(header, rows) {
  const line = (cells) => console.log(`| ${cells.join(' | ')} |`);
  line(header);
  line(header.map((_, index) => (index ? '---:' : '---')));
  rows.forEach(line);
  console.log('');
}
