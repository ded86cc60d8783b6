import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

/**
 * What keeps readers with other senses or hands out of a book as it stands, one line a fault.
 * options: as for axe.run; without them its usual rules, and that of WCAG 2.2 which it leaves out of these
 */
export async function faults(book, options = { rules: { 'target-size': { enabled: true } } }) {
  await book.rest();
  if (!await book.page.evaluate(() => 'axe' in window)) await book.page.evaluate(axe);
  const { violations } = await book.page.evaluate((wanted) => window.axe.run(document, wanted), options);
  return violations.flatMap(({ id, help, nodes }) => nodes.map(({ html }) => `${id}: ${help}: ${html.slice(0, 160)}`));
}
