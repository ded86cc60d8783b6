// What the measurements have to know of each viewer. Functions without a comment run in the viewer's page.

/* global flip, br */

/** From margin to margin: over words a drag selects text. */
const dragAcross = async (page, forward) => {
  const [left, right, height] = [80, 1200, 640];
  const [from, to] = forward ? [right, left] : [left, right];
  await page.mouse.move(from, height);
  await page.mouse.down();
  for (let step = 1; step <= 24; step += 1) {
    const share = step / 24;
    await page.mouse.move(from + (to - from) * share, height - 120 * Math.sin(Math.PI * share));
  }
  await page.mouse.up();
};

/**
 * where: address within the site. shown: whether the first page is painted. turning: whether pages move or are being
 * drawn. at: what is shown, by a value that changes with each turn. width: of the page, in the window's pixels.
 * goTo: shows a page, from 1. content: selector of what holds a page, from 1. complete: whether a page stands there
 * with its words; not all viewers tell. drag: turns by drag, run here; without it, pages do not turn that way.
 */
export const VIEWERS = [
  {
    name: 'folvero', where: 'folvero/index.html', content: () => '.book',
    goTo: (page) => window.folvero.goTo(page),
    complete: (page) => !window.folvero.turning && window.folvero.pages.includes(page)
      && !document.querySelector('[aria-busy="true"]'),
    shown: () => document.getElementById('folvero')?.dataset.state === 'ready',
    turning: () => Boolean(window.folvero?.turning),
    at: () => String(window.folvero.pages),
    width: () => document.querySelector('.page:not([hidden])').getBoundingClientRect().width,
    drag: (page, forward) => dragAcross(page, forward),
  },
  {
    name: 'page-flip', where: 'page-flip.html', content: () => '#book',
    goTo: (page) => flip.turnToPage(page - 1),
    shown: () => typeof flip === 'object' && Boolean(flip.pages?.getPage(0).isLoad),
    turning: () => typeof flip === 'object' && flip.getState() !== 'read',
    at: () => String(flip.getCurrentPageIndex()),
    width: () => document.querySelector('canvas').getBoundingClientRect().width,
    drag: (page, forward) => dragAcross(page, forward),
  },
  {
    name: 'BookReader', where: 'bookreader.html', content: (page) => `.BRpagecontainer.pagediv${page - 1}`,
    goTo: (page) => br.jumpToIndex(page - 1),
    shown: () => [...document.querySelectorAll('.BRpage-visible img, .BRpagecontainer img')]
      .some((picture) => picture.complete && picture.naturalWidth > 0 && picture.getBoundingClientRect().width > 0),
    turning: () => typeof br === 'object' && Boolean(br._modes?.mode2Up?.mode2UpLit?.activeFlip),
    at: () => String(br.currentIndex()),
    width: () => document.querySelector('.BRpage-visible').getBoundingClientRect().width,
  },
  {
    name: 'pdf.js', where: '../viewers/pdf/web/viewer.html?file=/{document}/pages.pdf',
    content: (page) => `.page[data-page-number="${page}"]`,
    goTo: (page) => { window.PDFViewerApplication.page = page; },
    shown: () => window.PDFViewerApplication?.pdfViewer?.getPageView(0)?.renderingState === 3,
    turning: () => {
      const viewer = window.PDFViewerApplication?.pdfViewer;
      return Boolean(viewer?.pageViewsReady) && viewer.getPageView(viewer.currentPageNumber - 1).renderingState !== 3;
    },
    at: () => String(window.PDFViewerApplication.page),
    width: () => document.querySelector('.page').getBoundingClientRect().width,
    // One page at a time, which is how its pages turn by key.
    prepare: () => { window.PDFViewerApplication.pdfViewer.currentScaleValue = 'page-fit'; },
  },
];

export const addressOf = (site, document, { where }) =>
  new URL(where.replace('{document}', document), `${site}${document}/`).href;
