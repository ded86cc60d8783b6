import puppeteer from 'puppeteer-core';
import { findProgram } from './programs.mjs';

export const DESK = { width: 1280, height: 800 };
export const PHONE = { width: 390, height: 844 };

/** Path of Debian's Firefox, null where it is not installed. */
export const findFirefox = () => findProgram(['firefox-esr', 'firefox']);

/** Firefox as it comes, driven over WebDriver BiDi. */
export async function launchFirefox(executablePath) {
  return puppeteer.launch({
    browser: 'firefox', executablePath, headless: true, timeout: 120000, protocolTimeout: 120000,
    extraPrefsFirefox: { 'media.volume_scale': '0.0', 'browser.cache.disk.enable': false },
  });
}

/**
 * Opens a book's address, as a reader who has never read it, and waits until the player says that
 * it is ready or tells an error.
 */
export async function openBook(browser, address, viewport) {
  const context = await browser.createBrowserContext();
  const page = await context.newPage();
  await page.setViewport(viewport);
  const errors = [];
  page.on('pageerror', (error) => errors.push(error.message));
  page.on('console', (message) => { if (/error|warn/.test(message.type())) errors.push(message.text()); });
  page.on('requestfailed', (request) => errors.push(`${request.url()} failed`));
  await page.goto(address, { timeout: 90000 });
  await page.waitForSelector('#folvero:is([data-state="ready"], [data-state="error"])', { timeout: 90000 });
  return new FirefoxBook(page, errors);
}

/** A book in a Firefox tab. */
class FirefoxBook {
  constructor(page, errors) {
    this.page = page;
    this.errors = errors;
  }

  close() {
    return this.page.browserContext().close();
  }

  async waitForPages(...pages) {
    await this.page.waitForFunction(
      (wanted) => !window.folvero.turning && String(window.folvero.pages) === wanted,
      { timeout: 60000 }, String(pages));
  }

  /** The picture that the first page on the screen shows: its file and whether it can be seen. */
  picture() {
    return this.page.$eval('.page:not([hidden]) img', (image) => {
      const { width, height } = image.getBoundingClientRect();
      return { file: image.src.split('/').at(-1), seen: image.naturalWidth > 0 && width > 50 && height > 50 };
    });
  }

  async box(side) {
    const { x, y, width, height } = await (await this.page.$(`.page.${side}`)).boundingBox();
    return { x, y, width, height };
  }

  async drag(from, to) {
    const { mouse } = this.page;
    await mouse.move(...from);
    await mouse.down();
    await mouse.move(...to, { steps: 8 });
    await mouse.up();
  }
}
