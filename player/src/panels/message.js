import { BookError } from '../book/config.js';
import { part } from '../book/dom.js';
import { say } from '../book/words.js';

/**
 * Tells the reader in words why there is no book to see.
 * @param {HTMLElement} root
 * @param {unknown} error
 */
export function tellReader(root, error) {
  const told = error instanceof BookError ? error : new BookError('failed', true);
  if (told !== error) console.error(error);
  const message = part(root, '.message');
  part(message, 'h2').textContent = say(told.title);
  part(message, 'p').textContent = say(/** @type {import('../book/words.js').Word} */ (told.title + 'Text'));
  const button = part(message, 'button');
  button.hidden = !told.again;
  button.addEventListener('click', () => location.reload());
  message.hidden = false;
  root.dataset.state = 'error';
}
