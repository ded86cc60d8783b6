import { webAddress } from './addresses.js';
import { make, part } from './dom.js';
import { loadFile } from './values.js';

/**
 * The publisher's logo in an upper corner. Where it lies beside the pages it stays, over them it comes and goes with
 * the controls.
 * @param {HTMLElement} root
 * @param {import('./book.js').Book} book
 * @returns {() => void} to be called when the pages lie elsewhere
 */
export function addLogo(root, book) {
  const { file, link } = book.config.logo;
  if (!file) return () => {};
  const address = webAddress(link);
  const picture = new Image();
  const logo = make(address ? 'a' : 'span', 'logo', picture);
  picture.alt = address;
  if (address) Object.assign(logo, { href: link, target: '_blank', rel: 'noopener' });
  const place = () => {
    const { bookLeft, bookTop, pageWidth, spread } = book.layout;
    const { left, right, bottom } = logo.getBoundingClientRect();
    const isOver = bottom > bookTop && right > bookLeft && left < bookLeft + pageWidth * (spread ? 2 : 1);
    root.dataset.logo = isOver ? 'over' : 'beside';
  };
  picture.onload = place;
  picture.onerror = () => logo.remove();
  void loadFile(picture, file);
  part(root, '.bar').before(logo);
  return place;
}
