/**
 * Addresses of the files that the book shares with others: they lie beside web.js, whose element names them.
 * @param {HTMLElement | null} script
 * @returns {(path: string) => string | undefined} none for a file of the book's own
 */
export function sharedFiles(script) {
  const names = script?.dataset.files?.split(' ');
  return (path) => (names?.includes(path) ? script?.getAttribute('src')?.replace('web.js', path) : undefined);
}
