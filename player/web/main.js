import { make, part } from '../src/book/dom.js';
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
 * @param {import('../src/player.js').Say} say
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
  new Sharper(player, layers);
  const room = new SideRoom(player);
  // Where the bar is short of room, the search is worth more than the number of pages.
  part(toolbar.bar, '.of').dataset.fold = '7.2';
  if (facts.outline.length > 0) {
    const button = barButton('contents', 'C', '7.4', say);
    const contents = new Contents(player, layers, room, button);
    commands.contents = () => contents.panel.toggle();
    toolbar.add(button, 'thumbs');
  }
  if (facts.hasText) {
    const button = barButton('search', '/', '7.6', say);
    const searching = new Searching(player, layers, files, room, button);
    commands.search = () => searching.panel.toggle();
    toolbar.add(button, 'thumbs');
  }
  if (facts.offline && !single && Offline.possible) {
    const button = barButton('keep', 'K', '2.5', say);
    const keeping = new Keeping(player, layers, new Offline(root, layers), button);
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

window.folveroFile = (path) => single?.address(path);
window.folveroExtensions ??= [];
window.folveroExtensions.push(async (beginning) => {
  const { config, say, learn } = beginning;
  learn(WEB_TEXTS);
  await single?.complete;
  const facts = await asked.then((raw) => new Facts(raw, config.pages.length)).catch(() => null);
  // Without them the book is still one to turn.
  if (!facts) return undefined;
  config.labels = facts.labels;
  const closed = closePages(config, facts, say('notOpen'));
  window.folveroFile = (path) => closed(path) ?? single?.address(path);
  return (parts) => addToBook({ ...beginning, ...parts }, facts);
});
