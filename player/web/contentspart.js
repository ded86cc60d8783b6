// Entry point of files/contents.js, which only readers who open the contents need.

import { Tree } from './tree.js';

window.folveroData?.('contents', { Tree });
