import { copyFile, symlink, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { TEMPLATE, pixelOf } from './reader.mjs';
import { serve } from './server.mjs';

const EMULATOR = fileURLToPath(new URL('../node_modules/@ruffle-rs/ruffle', import.meta.url));

export const TURN_SOUND = path.join(TEMPLATE, 'moveSound.mp3');

/** The emulator's canvas renderer draws the same everywhere, with and without a graphics card. */
const PAGE = `<!DOCTYPE html>
<meta charset="utf-8">
<link rel="icon" href="data:,">
<style>html, body, ruffle-player { display: block; margin: 0; width: 100%; height: 100%; overflow: hidden }</style>
<body>
<script src="emulator/ruffle.js"></script>
<script>
window.RufflePlayer.config = {
  publicPath: 'emulator/', polyfills: false, autoplay: 'on', unmuteOverlay: 'hidden', letterbox: 'off',
  splashScreen: false, contextMenu: 'off', allowScriptAccess: true, warnOnUnsupportedContent: false,
  openUrlMode: 'allow', preferredRenderer: 'canvas', logLevel: 'warn',
};
window.play = (folder) => {
  window.movie?.remove();
  window.movie = window.RufflePlayer.newest().createPlayer();
  document.body.append(window.movie);
  window.movie.ruffle().load({ url: folder + 'book.swf', base: folder });
};
</script>
`;

/** Emulators name what they do not do yet; that is no fault of the movie. */
const LIMITS_OF_EMULATOR = /stub|Unknown device font|AudioContext|BitmapData\.draw|context (is|has been) closed/;

/** Starting the emulator compiles 14 MB of it, which takes a while on a busy machine. */
const START_MS = 240000;
const WAIT_MS = 60000;

/** A page with an emulator, over http. It stays for many books, since it is slow to start. */
export class Emulator {
  /** Plays books that lie in the reader's folder. */
  static async start(reader) {
    const emulator = new Emulator();
    await writeFile(path.join(reader.folder, 'flash.html'), PAGE);
    await symlink(EMULATOR, path.join(reader.folder, 'emulator'));
    emulator.folder = reader.folder;
    emulator.server = await serve(reader.folder);
    reader.servers.push(emulator.server);
    emulator.page = await reader.browser.newPage();
    await emulator.page.goto(`${emulator.server.address}flash.html`);
    return emulator;
  }

  /** Plays the template's movie, or another, in a book's folder. */
  async play(folder, { viewport = { width: 1000, height: 640 }, movie = path.join(TEMPLATE, 'book.swf') } = {}) {
    await copyFile(movie, path.join(folder, 'book.swf'));
    await copyFile(TURN_SOUND, path.join(folder, 'files/extfiles/moveSound.mp3'));
    await this.page.setViewportSize(viewport);
    this.page.removeAllListeners();
    const played = new PlayedMovie(this.page, this.server.requests);
    const address = `${this.server.address}${path.relative(this.folder, folder)}/`;
    await this.page.evaluate((book) => window.play(book), address);
    await played.waitFor("({ state }) => state !== 'loading'", START_MS);
    // A movie hears keys once it has been clicked; in the middle a click turns no page.
    await this.page.mouse.click(viewport.width / 2, viewport.height * 0.4);
    return played;
  }
}

/** A movie that plays: tells its own state, and what is really on the screen. */
class PlayedMovie {
  constructor(page, requests) {
    this.page = page;
    this.requests = requests;
    this.before = requests.length;
    this.complaints = [];
    page.on('pageerror', (error) => this.complaints.push(error.message));
    page.on('console', (message) => {
      const text = message.text();
      if (/error|warn/i.test(`${message.type()} ${text}`) && !LIMITS_OF_EMULATOR.test(text)) this.complaints.push(text);
    });
  }

  /** What has been asked of the server since the movie began: path and status. */
  get asked() {
    return this.requests.slice(this.before);
  }

  state() {
    return this.page.evaluate(() => window.movie.folveroState());
  }

  async waitFor(condition, timeout = WAIT_MS) {
    await this.page.waitForFunction(
      `window.movie?.folveroState && (${condition})(window.movie.folveroState())`, null, { timeout, polling: 100 });
  }

  async waitForPages(...pages) {
    await this.waitFor(`(state) => !state.lifted && String(state.pages) === '${pages}'`);
  }

  async middle(side) {
    const { x, y, width, height } = (await this.state())[side];
    return [x + width / 2, y + height / 2];
  }

  /** Colour that is really on the screen at a place. */
  async colourAt(x, y) {
    const clip = { x: Math.round(x), y: Math.round(y), width: 1, height: 1 };
    return pixelOf(await this.page.screenshot({ clip }));
  }

  /** Waits until a place on the screen has a colour; emulators load pictures after their turn. */
  async waitForColour([x, y], wanted, within = 6) {
    const until = Date.now() + WAIT_MS;
    for (;;) {
      const found = await this.colourAt(x, y);
      if (found.every((part, index) => Math.abs(part - wanted[index]) <= within)) return;
      if (Date.now() > until) throw new Error(`${x},${y} is ${found} instead of ${wanted}`);
      await this.page.waitForTimeout(100);
    }
  }
}
