import puppeteer from 'puppeteer-core';
import { findProgram } from './programs.mjs';

const DESK = { width: 1280, height: 800 };
export const PHONE = { width: 390, height: 844 };

/** Path of Debian's Firefox, empty where it is not installed. */
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
export async function openBook(browser, address) {
  const context = await browser.createBrowserContext();
  const page = await context.newPage();
  await page.setViewport(DESK);
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

  /** File of the picture that the first page on the screen shows, once it is there. */
  async picture() {
    const shown = await this.page.waitForSelector('.page:not([hidden]) img');
    return shown.evaluate((image) => image.naturalWidth > 0 && image.src.split('/').at(-1));
  }

  async drag(from, to) {
    const { mouse } = this.page;
    await mouse.move(...from);
    await mouse.down();
    await mouse.move(...to, { steps: 8 });
    await mouse.up();
  }
}
