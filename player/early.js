// Runs at the top of the page: requests the configuration while the rest of the page is still being parsed, which
// matters most for long books. Pages of web books with their player in files have no need of it.
import { ask } from './src/book/asking.js';

// A single-file book has its configuration in its page.
const here = window.FolveroUserConfig !== undefined;
const asked = here ? Promise.resolve() : ask();
// The failure is handled where it is awaited; this avoids reporting it as unhandled.
asked.catch(() => {});
window.folveroConfiguration = { asked, here };
