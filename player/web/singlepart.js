// Entry point of single.js, which only the page of a single-file book contains, before web.js.

import { SingleFile } from './singlefile.js';

window.folveroSingle = new SingleFile();
