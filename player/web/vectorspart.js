// Entry point of files/vectors.js, which only readers who enlarge pages need.

import { svgOf } from './vectors.js';

window.folveroData?.('vectors', svgOf);
