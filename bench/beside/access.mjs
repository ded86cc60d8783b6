// What readers with other senses or hands find: rules that are broken, and what the accessibility tree has of a page.

import { faults } from '../../tests/browser/support/axe.mjs';
import { openViewer } from './opening.mjs';

/** axe's rules for WCAG 2.2, levels A and AA. */
export const WCAG = { runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa'] };
const ROLES = ['heading', 'paragraph', 'link', 'list', 'table', 'image'];

/** Faults of a viewer as it opens. */
export async function startFaults(browser, address, viewer) {
  const page = await openViewer(browser, address, viewer, { viewport: { width: 1280, height: 800 } });
  await page.waitForTimeout(1500);
  const found = await faults({ page, rest: async () => {} }, WCAG);
  await page.context().close();
  return found;
}

/** A page of text with a heading, a list and links. */
const PAGE = 9;

/** Counts of a page's nodes in the accessibility tree by role, and letters of its text. */
export async function treeOf(browser, address, viewer) {
  // So narrow that each viewer shows one page.
  const page = await openViewer(browser, address, viewer, { viewport: { width: 700, height: 1000 } });
  if (!viewer.complete) await page.waitForTimeout(1500);
  await page.evaluate(viewer.goTo, PAGE);
  if (viewer.complete) await page.waitForFunction(viewer.complete, PAGE);
  else await page.waitForTimeout(3000);
  const session = await page.context().newCDPSession(page);
  await session.send('Accessibility.enable');
  const { result } = await session.send('Runtime.evaluate',
    { expression: `document.querySelector(${JSON.stringify(viewer.content(PAGE))})` });
  const nodesOf = async (role) => (await session.send('Accessibility.queryAXTree',
    { objectId: result.objectId, role })).nodes.filter(({ ignored }) => !ignored);
  const counts = {};
  for (const role of ROLES) counts[role] = (await nodesOf(role)).length;
  counts.letters = (await nodesOf('StaticText')).reduce((sum, { name }) => sum + name.value.length, 0);
  await page.context().close();
  return counts;
}
