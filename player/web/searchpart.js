// Entry point of files/search.js, which only readers who search need.

import { Searching } from './searching.js';

export { Searching };

window.folveroData?.('search', { Searching });
