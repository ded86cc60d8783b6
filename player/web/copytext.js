/**
 * @param {string} text
 * @returns {Promise<boolean>} whether it is copied
 */
export async function copyText(text) {
  try {
    await navigator.clipboard.writeText(text);
    return true;
  } catch {
    return copyByEvent(text);
  }
}

/**
 * For pages from disk and over plain http, which have no clipboard API.
 * @param {string} text
 */
function copyByEvent(text) {
  /** @param {ClipboardEvent} event */
  const put = (event) => {
    event.clipboardData?.setData('text/plain', text);
    event.preventDefault();
    event.stopImmediatePropagation();
  };
  document.addEventListener('copy', put, { capture: true, once: true });
  const done = document.execCommand('copy');
  document.removeEventListener('copy', put, { capture: true });
  return done;
}
