import { BookError } from '../book/config.js';
import { part } from '../book/dom.js';
import { say } from '../book/words.js';

/**
 * Shows the reader why the book could not be opened.
 * @param {HTMLElement} root
 * @param {unknown} error
 */
export function showFailure(root, error) {
  const failure = error instanceof BookError ? error : new BookError('failed', true);
  if (failure !== error) console.error(error);
  const message = part(root, '.message');
  part(message, 'h2').textContent = say(failure.title);
  part(message, 'p').textContent = say(/** @type {import('../book/words.js').Word} */ (failure.title + 'Text'));
  const button = part(message, 'button');
  button.hidden = !failure.again;
  button.addEventListener('click', () => location.reload());
  message.hidden = false;
  root.dataset.state = 'error';
}
