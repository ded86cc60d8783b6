import { make, part } from '../src/dom.js';
import { closePages } from './closed.js';
import { Contents } from './contents.js';
import { DataFiles } from './data.js';
import { Facts } from './facts.js';
import { icon } from './icons.js';
import { Keeping } from './keeping.js';
import { Layers } from './layers.js';
import { Links } from './links.js';
import { Offline } from './offline.js';
import { PageTexts } from './pagetexts.js';
import { Searching } from './searching.js';
import { Selecting } from './selecting.js';
import { Sharper } from './sharper.js';
import { SideRoom } from './side.js';
import { SingleFile } from './singlefile.js';
import { addTextLayer } from './textlayer.js';
import { WEB_WORDS } from './words.js';

const single = SingleFile.here ? new SingleFile() : null;
const files = new DataFiles(single);
const asked = files.load('web/book');
// Whoever waits for it deals with a failure; until then it is nobody's.
asked.catch(() => {});

/**
 * Makes a button for the bar.
 * @param {'contents' | 'search' | 'keep'} name
 * @param {string} key
 * @param {string} fold place in the order in which the bar's buttons go into its menu
 * @param {(word: string) => string} say
 */
function barButton(name, key, fold, say) {
  const button = make('button', '', icon(name));
  Object.assign(button.dataset, { does: name, name, key, fold });
  button.setAttribute('type', 'button');
  button.setAttribute('aria-label', say(name));
  return button;
}

/**
 * The first thing that is reached by key, for whom pages that turn are no help; unseen until then.
 * @param {HTMLElement} root
 * @param {string} address
 * @param {string} words
 */
function addTextLink(root, address, words) {
  const link = /** @type {HTMLAnchorElement} */ (make('a', 'text-link', words));
  link.href = address;
  root.prepend(link);
}

/**
 * @param {any} parts of the player
 * @param {Facts} facts
 */
function addToBook(parts, facts) {
  const { root, toolbar, commands, gestures, turner, book, say } = parts;
  const texts = new PageTexts(files, facts);
  const layers = new Layers(parts, texts);
  layers.fillers.push(addTextLayer);
  const links = new Links(parts, layers);
  const selecting = new Selecting(parts, layers);
  gestures.answersTap = (/** @type {PointerEvent} */ event) => selecting.answers || links.followAt(event);
  new Sharper(parts, layers);
  const room = new SideRoom(parts);
  // Where the bar is short of room, the search is worth more than the number of pages.
  part(toolbar.bar, '.of').dataset.fold = '7.2';
  if (facts.outline.length > 0) {
    const button = barButton('contents', 'C', '7.4', say);
    const contents = new Contents(parts, layers, room, button);
    commands.contents = () => contents.panel.toggle();
    toolbar.add(button, 'thumbs');
  }
  if (facts.hasText) {
    const button = barButton('search', '/', '7.6', say);
    const searching = new Searching(parts, layers, files, room, button);
    commands.search = () => searching.panel.toggle();
    toolbar.add(button, 'thumbs');
  }
  if (facts.offline && !single && Offline.possible) {
    const button = barButton('keep', 'K', '2.5', say);
    const keeping = new Keeping(parts, layers, new Offline(root, layers), button);
    // Without a connection the page around a frame isn't there either.
    if (window.parent === window) {
      commands.keep = () => keeping.open();
      toolbar.add(button, 'print');
    }
  }
  if (facts.textPage) addTextLink(root, facts.textPage, say('textPage'));
  if (facts.labels) toolbar.box.inputMode = 'text';
  layers.followers.push(() => {
    const idle = window.requestIdleCallback ?? ((/** @type {() => void} */ act) => setTimeout(act, 60));
    // The words of the next pages are there when they are turned to.
    idle(() => book.views.pagesOf(book.views.clamp(turner.current + 1)).forEach((page) => texts.get(page)));
  });
  layers.update();
}

const page = /** @type {any} */ (window);
page.folveroFile = (/** @type {string} */ path) => single?.address(path);
page.folveroExtensions ??= [];
page.folveroExtensions.push(async (/** @type {any} */ early) => {
  const { config, say, learn } = early;
  learn(WEB_WORDS);
  await single?.complete;
  const facts = await asked.then((raw) => new Facts(raw, config.pages.length)).catch(() => null);
  // Without them the book is still one to turn.
  if (!facts) return undefined;
  config.labels = facts.labels;
  const closed = closePages(config, facts, say('notOpen'));
  page.folveroFile = (/** @type {string} */ path) => closed(path) ?? single?.address(path);
  return (/** @type {any} */ parts) => addToBook({ ...early, ...parts }, facts);
});
