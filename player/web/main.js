import { make, part } from '../src/book/dom.js';
import { recall } from '../src/book/storage.js';
import { Memory } from '../src/controls/memory.js';
import { closePages } from './closed.js';
import { Contents } from './contents.js';
import { DataFiles } from './data.js';
import { reportPages } from './events.js';
import { Facts } from './facts.js';
import { icon } from './icons.js';
import { Layers } from './layers.js';
import { Links } from './links.js';
import { once } from './once.js';
import { PageTexts } from './pagetexts.js';
import { SearchPanel } from './searchpanel.js';
import { Selecting } from './selecting.js';
import { sharedFiles } from './sharedfiles.js';
import { SideRoom } from './side.js';
import { StartList } from './startlist.js';
import { addTextLayer } from './textlayer.js';
import { textLink } from './textlink.js';

/** Lines lower than this have letters of less than 9 CSS pixels. */
const SMALL = 10;

/** A page of fewer lines, such as an imprint, is no reason to read the book in another way. */
const FEWEST_LINES = 10;

/** Larger pictures in a print; each takes browsers some 10 MB. */
const MOST_LARGE = 30;

const single = window.folveroSingle ?? null;
const shared = sharedFiles(/** @type {HTMLElement | null} */ (document.currentScript));
/** @param {string} path */
const address = (path) => single?.address(path) ?? shared(path);
const files = new DataFiles(single);
const start = StartList.find();
start?.announce();
/** @type {Promise<unknown>} */
const asked = start ? Promise.resolve(start.facts) : files.load('web/book');
// The failure is handled where it is awaited; this avoids reporting it as unhandled.
asked.catch(() => {});

/**
 * Makes a button for the bar.
 * @param {'contents' | 'search' | 'keep' | 'reading' | 'bookmark' | 'notes'} name
 * @param {string} key
 * @param {string} fold position in the order in which buttons move from the bar to its menu
 * @param {import('../src/player.js').Say} say
 */
function barButton(name, key, fold, say) {
  const button = make('button', '', icon(name));
  Object.assign(button.dataset, { does: name, name, key, fold });
  button.setAttribute('type', 'button');
  button.setAttribute('aria-label', say(name));
  return button;
}

/** Whether the browser has service workers here: over https, and from this machine. */
function mayKeep() {
  return window.isSecureContext && /^https?:$/.test(location.protocol) && 'serviceWorker' in navigator;
}

/**
 * Calls something once the first pages are shown, which nothing may delay.
 * @param {HTMLElement} root
 * @param {() => void} act
 */
function whenShown(root, act) {
  const observer = new MutationObserver(() => {
    if (root.dataset.state !== 'ready') return;
    observer.disconnect();
    act();
  });
  observer.observe(root, { attributes: true, attributeFilter: ['data-state'] });
}

/**
 * A command that needs a script of its own; where that can't be loaded, the reader may try again.
 * @template T
 * @param {import('../src/player.js').Player} player
 * @param {() => Promise<T>} load
 * @param {(part: T) => void} act
 */
function later({ toast, say }, load, act) {
  const run = () => {
    load().then(act, () => toast.show(say('unreachableText'), say('tryAgain'), run));
  };
  return run;
}

/**
 * Adds reading offline, by a script of its own that is loaded after the first pages.
 * @param {import('../src/player.js').Player} player
 * @param {Layers} layers
 */
function addKeeping(player, layers) {
  const { root, commands, toolbar, say } = player;
  const button = barButton('keep', 'K', '2.5', say);
  button.setAttribute('aria-haspopup', 'dialog');
  /** @type {MessageEvent[]} */
  const early = [];
  /** @param {MessageEvent} message of the service worker */
  let hear = (message) => { early.push(message); };
  navigator.serviceWorker.addEventListener('message', (message) => hear(message));
  const begin = async () => {
    const add = await files.load('web/offline');
    const keeping = /** @type {typeof import('./offlinepart.js').addKeeping} */ (add)(player, layers, button);
    hear = (message) => keeping.hear(message);
    early.forEach(hear);
    return keeping;
  };
  const load = once(begin);
  whenShown(root, load);
  // In a frame: offline, the page around it is missing anyway.
  if (window.parent !== window) return;
  commands.keep = later(player, load, (keeping) => {
    // On a slow connection the reader may have opened another dialog meanwhile.
    if (!root.querySelector('dialog.panel[open]')) keeping.open();
  });
  toolbar.add(button, 'print');
}

/**
 * Adds the reading view, a script of its own that is loaded when it is first used, or where letters are small.
 * @param {import('../src/player.js').Player} player
 * @param {Layers} layers
 * @param {SideRoom} room
 */
function addReading(player, layers, room) {
  const { commands, toolbar, say } = player;
  const button = barButton('reading', 'A', '7.5', say);
  toolbar.add(button, 'thumbs');
  const load = once(() => files.run('reading').then((make) =>
    /** @type {typeof import('./readingpart.js').makeReading} */ (make)(player, layers, files, room, button)));
  commands.reading = later(player, load, (view) => view.toggle());
  if (button.hidden) return;
  layers.fillers.push(({ text, height }) => {
    if (!text || text.lines.length < FEWEST_LINES || text.lineHeight * height >= SMALL * text.height) return;
    load().then((view) => view.offer(), () => {});
  });
}

/**
 * Adds bookmarks, highlights and notes, a script of its own that is loaded when it is first used, or where the reader
 * has some.
 * @param {import('../src/player.js').Player} player
 * @param {Layers} layers
 * @param {SideRoom} room
 * @returns {(fragment: string) => void} marks what an address quotes
 */
function addNotes(player, layers, room) {
  const { root, commands, toolbar, say } = player;
  const buttons = { bookmark: barButton('bookmark', 'B', '5.5', say), notes: barButton('notes', 'M', '6.2', say) };
  buttons.bookmark.setAttribute('aria-pressed', 'false');
  Object.values(buttons).forEach((button) => toolbar.add(button, 'thumbs'));
  if (buttons.notes.hidden || buttons.bookmark.hidden) return () => {};
  const load = once(() => files.run('notes').then((make) =>
    /** @type {typeof import('./notespart.js').makeNotes} */ (make)(player, layers, files, room, buttons)));
  commands.bookmark = later(player, load, (notes) => notes.toggleBookmark());
  commands.notes = later(player, load, (notes) => notes.list.panel.toggle());
  commands.mark = later(player, load, (notes) => notes.markByKey());
  // A key without a button, for the keys and their list.
  const key = make('span', '');
  Object.assign(key.dataset, { does: 'mark', name: 'mark', key: 'H' });
  key.style.display = 'none';
  toolbar.bar.append(key);
  // A selection changes many times during a press; where the script can't be loaded, once is enough.
  let tried = false;
  for (const kind of ['pointerdown', 'keydown']) window.addEventListener(kind, () => { tried = false; }, { capture: true });
  document.addEventListener('selectionchange', () => {
    if (tried || !getSelection()?.anchorNode?.parentElement?.closest('.word, .read-text')) return;
    tried = true;
    load().catch(() => {});
  });
  if (recall('notes')) whenShown(root, load);
  return (fragment) => later(player, load, (notes) => notes.showQuote(fragment))();
}

/**
 * @param {import('../src/player.js').Player} player
 * @param {Facts} facts
 */
function addToBook(player, facts) {
  const { root, toolbar, commands, gestures, turner, book, say } = player;
  const texts = new PageTexts(files, facts);
  const layers = new Layers(player, texts);
  layers.fillers.push(addTextLayer);
  const links = new Links(player, layers);
  const selecting = new Selecting(player, layers);
  gestures.answersTap = (event) => selecting.answers || links.followAt(event);
  addLargePages(player, layers);
  const room = new SideRoom(player);
  // Where the bar is narrow, the search is worth more than the page count, which the slider has too.
  part(toolbar.bar, '.of').dataset.fold = '7.2';
  if (facts.hasContents) {
    const button = barButton('contents', 'C', '7.4', say);
    const contents = new Contents(player, layers, files, room, button);
    commands.contents = () => contents.panel.toggle();
    toolbar.add(button, 'thumbs');
  }
  /** @type {(typed: string) => void} */
  let mark = () => {};
  if (facts.hasText) {
    const button = barButton('search', '/', '7.6', say);
    const search = new SearchPanel(player, layers, files, room, button);
    commands.search = () => search.panel.toggle();
    toolbar.add(button, 'thumbs');
    mark = (typed) => search.mark(typed);
  }
  if (facts.reading.length > 0) addReading(player, layers, room);
  const showQuote = addNotes(player, layers, room);
  const follow = (/** @type {string} */ fragment) => {
    const values = new URLSearchParams(fragment.slice(1));
    const search = values.get('search');
    if (search) mark(search);
    if (values.get('quote')) showQuote(fragment);
  };
  window.addEventListener('hashchange', () => follow(location.hash));
  // What the address named at first: the page in view is in it now.
  follow(player.asked.fragment);
  if (facts.offline && !single && mayKeep()) addKeeping(player, layers);
  // The first in the tab order and hidden until focused: for readers whom a page-flip book does not help.
  if (facts.textPage) root.prepend(textLink(layers, 'text-link', say('textPage')));
  if (facts.labels) toolbar.box.inputMode = 'text';
  layers.followers.push(() => {
    const idle = window.requestIdleCallback ?? ((/** @type {() => void} */ act) => setTimeout(act, 60));
    // Prefetches the words of the next pages.
    idle(() => book.views.pagesOf(book.views.clamp(turner.current + 1)).forEach((page) => texts.get(page)));
  });
  reportPages(player, layers);
  layers.update();
  // An open panel would stop a book that plays by itself.
  if (room.isWide && !player.config.autoPlay) openPanel(facts.panel, player);
}

/**
 * Loads what only enlarged and printed pages need, a script of its own, when it is first needed.
 * @param {import('../src/player.js').Player} player
 * @param {Layers} layers
 */
function addLargePages(player, layers) {
  const { root, zoom, sheets } = player;
  const { onChange } = zoom;
  const { load } = sheets;
  const needed = once(() => /** @type {Promise<typeof import('./vectorspart.js')>} */ (files.run('vectors')));
  const begin = once(() => needed().then(({ beginEnlarged }) => beginEnlarged(player, layers, files)));
  const look = () => { if (zoom.pans) begin(); };
  const { toggleAt } = zoom;
  zoom.toggleAt = (x, y) => {
    const usual = () => toggleAt.call(zoom, x, y);
    if (zoom.active) usual();
    else begin().then((showColumn) => showColumn(x, y) || usual()).catch(usual);
  };
  // A double tap is not to wait.
  root.addEventListener('pointerdown', ({ pointerType }) => {
    if (pointerType !== 'mouse') needed().catch(() => {});
  });
  zoom.onChange = () => {
    onChange();
    look();
  };
  layers.followers.push(look);
  sheets.load = (page, count) => {
    const usual = () => load(page, count);
    if (count > MOST_LARGE) return usual();
    return needed().then(({ largePage }) => largePage(page, player, layers, files)).catch(usual);
  };
}

/**
 * Begins at that page, where neither the address nor the reader's last visit names one.
 * @param {number} page 0 for none
 */
function beginAt(page) {
  if (!page) return;
  try {
    history.replaceState(null, '', '#page=' + page);
  } catch {
    // Some viewers of local files forbid it; the book begins at its first page then.
  }
}

/**
 * Opens what the document asks for; keys still turn pages.
 * @param {string} panel
 * @param {import('../src/player.js').Player} player
 */
function openPanel(panel, { commands, config }) {
  if (config.hidden.includes(panel)) return;
  if (panel === 'contents') commands.contents?.();
  else if (panel === 'thumbs') commands.thumbs();
  else return;
  /** @type {HTMLElement} */ (document.activeElement).blur();
}

window.folveroFile = address;
window.folveroExtensions ??= [];
window.folveroExtensions.push(async (beginning) => {
  const { config, say, learn } = beginning;
  learn(WEB_TEXTS, 'web');
  start?.complete(config);
  const facts = await asked.then((raw) => new Facts(raw, config.pages.length)).catch(() => null);
  // Without them the book still works as a classic one.
  if (!facts) return undefined;
  config.labels = facts.labels;
  if (!beginning.asked.page && !new Memory(config.pages.length).page) {
    start?.askForNext();
    beginAt(facts.start);
  }
  const closed = closePages(config, facts, say('notOpen'));
  window.folveroFile = (path) => closed(path) ?? address(path);
  return (parts) => addToBook({ ...beginning, ...parts }, facts);
});
