// The demo book: a cover, five spreads and a back cover, as the bodies of HTML documents.
// A spread is 1200 x 800 pixels, a single page 600 x 800.

import { bird, cloud, conifer, dice, forest, glitter, gradient, land, leafTree, mountain, rolling, stars, sun } from './nature.mjs';
import { desk, programWindow } from './scenes.mjs';
import { look, openBook, sheet } from './things.mjs';

const scene = (width, body) =>
  `<svg class="scene" width="${width}" height="800" viewBox="0 0 ${width} 800">${body}</svg>`;
const folio = (number) => `<div class="folio">${number}</div>`;
const page = (side, number, body, style = '') =>
  `<div class="page ${side}" style="${style}">${body}${folio(number)}</div>`;

function cover() {
  const far = rolling(478, 60, 5);
  const near = rolling(560, 56, 8);
  const birds = [[150, 330, 30], [190, 306, 24], [224, 338, 20], [468, 268, 20], [436, 250, 15]];
  const river = 'M322 470C352 486 262 502 274 524C288 548 404 548 386 590C372 622 250 630 262 668C268 690 296 700 292 800H352C352 720 340 690 346 668C358 622 452 616 446 576C440 540 318 540 312 520C308 502 366 490 330 470Z';
  return scene(600, `<defs>${gradient('dawn', ['#0e2c44', ['#235a74', 0.24], ['#7c7d99', 0.38], ['#dd937f', 0.5], ['#fbd9a4', 0.62]])}
    ${gradient('mist', ['#fbd9a400', '#fbe3bd'])}${gradient('ground', ['#0a1f2d00', '#0a1f2d'])}</defs>
    <rect width="600" height="800" fill="url(#dawn)"/>${stars(46, 600, 210, 12, [[130, 70, 470, 230]])}
    ${sun(322, 420, 78, { light: '#ffd18c', rings: 4, strength: 0.24 })}
    ${cloud(96, 392, 190, '#ffe9c9', 0.7)}${cloud(532, 360, 170, '#ffe9c9', 0.55)}
    ${mountain(70, 352, 560, 330, { lit: '#c98a86', shade: '#8b6f86', snow: 0.26, seed: 3 })}
    ${mountain(540, 326, 560, 350, { lit: '#c07f80', shade: '#7d6683', snow: 0.3, seed: 9 })}
    ${mountain(186, 410, 560, 250, { lit: '#8f6d84', shade: '#5d5878', seed: 4 })}
    ${mountain(444, 418, 560, 230, { lit: '#8a6a83', shade: '#585474', seed: 6 })}
    <rect y="430" width="600" height="110" fill="url(#mist)"/>
    ${land(far, 0, 600, 660, '#3d7077')}${forest(far, 0, 600, { tall: [16, 30], paint: '#2c5c66', gap: 11, seed: 2, where: (x) => Math.abs(x - 322) > 60 })}
    ${land(near, 0, 600, 720, '#1f5560')}${forest(near, 0, 236, { tall: [38, 76], paint: '#143f4c', gap: 18, seed: 5 })}
    ${forest(near, 400, 620, { tall: [38, 84], paint: '#143f4c', gap: 18, seed: 7 })}
    <path d="M-10 640C60 612 140 640 210 636C280 632 330 650 400 638C470 628 540 616 610 640V800H-10Z" fill="#12394a"/>
    ${forest(() => 664, -10, 130, { tall: [70, 120], paint: '#0c2c3b', gap: 26, seed: 15 })}${forest(() => 660, 490, 620, { tall: [70, 126], paint: '#0c2c3b', gap: 26, seed: 17 })}
    <rect y="640" width="600" height="160" fill="url(#ground)"/>
    ${openBook(300, 758, 500, 92)}
    <path d="${river}" fill="#d9573a"/><path d="M330 470C366 490 308 502 312 520C318 540 440 540 446 576C452 616 358 622 346 668C340 690 352 720 352 800H340C340 720 328 690 334 668C346 622 436 612 430 578C424 546 306 544 300 522C296 506 352 490 326 470Z" fill="#b8432b"/>
    ${birds.map(([x, y, span]) => bird(x, y, span, '#17384a')).join('')}`)
    + `<div class="page left single" style="color:#fff4dd; text-align:center; padding-top:74px">
    <h1 style="font-size:118px; line-height:110px; letter-spacing:-0.02em">Folvero</h1>
    <p class="lead" style="margin-top:14px; font-style:italic; font-size:27px">Books whose pages turn</p></div>`;
}

function morning() {
  const hills = rolling(548, 60, 31);
  const coast = (x) => 760 - 232 / (1 + Math.exp((x - 560) / 74)) + 6 * Math.sin(x / 47);
  const meadow = (x) => 716 - 46 * Math.exp(-(((x - 40) / 330) ** 2)) - 26 * Math.exp(-(((x - 1190) / 260) ** 2)) + 5 * Math.sin(x / 37);
  const roll = dice(77);
  const flowers = Array.from({ length: 120 }, () => {
    const x = roll() * 1200;
    const y = meadow(x) + 14 + roll() * 70;
    return `<circle cx="${x.toFixed(0)}" cy="${y.toFixed(0)}" r="${(1.6 + roll() * 2.2).toFixed(1)}" fill="${['#f2b84b', '#e2694a', '#fff4dd'][Math.floor(roll() * 3)]}"/>`;
  }).join('');
  const boat = (x, y, size, paint) => `<path d="M${x} ${y}h${size}l${-size * 0.16} ${size * 0.18}h${-size * 0.68}z" fill="#17384a"/><path d="M${x + size * 0.48} ${y - size * 0.06}V${y - size * 1.1}L${x + size * 0.98} ${y - size * 0.06}Z" fill="${paint}"/><path d="M${x + size * 0.42} ${y - size * 0.06}V${y - size * 0.86}L${x + size * 0.08} ${y - size * 0.06}Z" fill="#fffaf0"/>`;
  return scene(1200, `<defs>${gradient('sky', ['#f7e9cf', ['#fbf1dd', 0.5], ['#d5e8e4', 0.74]])}${gradient('sea', ['#8cc7c9', '#3c93a0', '#1f6f83'])}</defs>
    <rect width="1200" height="800" fill="url(#sky)"/>
    ${sun(864, 478, 54, { disc: '#fffaf0', light: '#f6cf8b', rings: 4, strength: 0.26 })}
    ${cloud(212, 452, 200, '#fffdf6', 0.95)}${cloud(700, 436, 150, '#fffdf6', 0.95)}
    ${mountain(90, 420, 590, 330, { lit: '#a9c6c0', shade: '#7fa9ab', snow: 0.2, seed: 21 })}${mountain(310, 448, 590, 300, { lit: '#b4cdc5', shade: '#8bb1b0', snow: 0.16, seed: 23 })}
    <rect y="540" width="1200" height="260" fill="url(#sea)"/>${glitter(864, 542, 720, 130, '#fff6df', 3, 0.8)}
    ${land((x) => hills(x) + 12 + (x > 420 ? (x - 420) * 0.5 : 0), 0, 560, 640, '#6fa39a')}
    <path d="M1200 506C1150 500 1112 520 1066 526C1040 530 1020 560 976 572C950 580 930 590 900 592C980 604 1100 610 1200 604Z" fill="#4b8785"/>
    <path d="M1200 520C1160 520 1130 540 1090 548C1060 556 1040 580 1000 592L1200 604Z" fill="#35716f"/>
    <g><path d="M1092 520L1098 418H1122L1128 520Z" fill="#fffaf0"/><path d="M1110 418h12l6 102h-18z" fill="#e6ddca"/><path d="M1096.500 444h27l1.300 22h-29.600zM1094 488h32l1.300 22h-34.600z" fill="#d9573a"/><rect x="1092" y="411" width="36" height="8" rx="2" fill="#17384a"/><rect x="1099" y="393" width="22" height="18" fill="#ffdf94"/><path d="M1096 394L1110 376L1124 394Z" fill="#d9573a"/><path d="M1110 393v18" stroke="#17384a" stroke-width="2"/></g>
    ${boat(716, 612, 54, '#e2694a')}${boat(800, 566, 24, '#fffaf0')}${boat(946, 640, 34, '#f2b84b')}
    ${land(coast, 0, 900, 800, '#2f7f70')}${forest(coast, 0, 540, { tall: [24, 50], paint: '#1f6259', gap: 17, seed: 8 })}
    ${land(meadow, 0, 1200, 800, '#3f9270')}${land((x) => meadow(x) + 34, 0, 1200, 800, '#35805f')}${flowers}
    ${leafTree(88, 694, 150, { leaves: '#1c5a50', light: '#5aa98a', trunk: '#5b3b2c' })}${leafTree(1152, 712, 118, { leaves: '#1c5a50', light: '#5aa98a', trunk: '#5b3b2c' })}
    ${[[404, 430, 26], [440, 414, 20], [1000, 420, 22], [1030, 436, 16]].map(([x, y, span]) => bird(x, y, span, '#41606d')).join('')}`)
    + page('left', 2, `<div class="over">What Folvero is</div><h1 style="margin-top:10px">A document you can leaf through</h1>
      <p class="lead after">Folvero turns a PDF into a book for the screen: corners lift, paper bends, pages follow your hand. Readers need nothing but a browser.</p>`, '--folio:#eaf5ea')
    + page('right', 3, `<ol class="contents" style="margin-top:8px">
      <li>From PDF to pages <span>4</span></li><li>Choosing a look <span>5</span></li><li>Making it yours <span>6</span></li>
      <li>Publishing <span>8</span></li><li>On any screen <span>9</span></li><li>For whom <span>10</span></li><li>Keys and gestures <span>11</span></li></ol>`, '--folio:#eaf5ea');
}

function making() {
  const flight = [[272, 566, 98, -9, 0], [356, 476, 84, 10, 2], [446, 556, 90, -14, 1], [524, 462, 76, 12, 0], [596, 536, 70, -6, 2], [664, 456, 58, 14, 1]];
  const looks = [
    { ground: '#c9d6e2' }, { ground: '#7a4f33', wood: true, bar: '#3a2416' },
    { ground: '#f7f7f5', bar: '#c9cdd1' }, { ground: '#111418', bar: '#3a4048', dim: true },
    { ground: '#e2694a', spread: false, bar: '#7a2a18' }, { ground: '#1f6f70', spine: false, bar: '#0d3c3e' },
  ];
  return scene(1200, `<defs>${gradient('band', ['#17485a', '#12283c'])}</defs>
    <path d="M0 424C180 384 340 404 600 398C860 392 1020 376 1200 410V800H0Z" fill="url(#band)"/>
    <path d="M0 640C220 600 380 690 600 650C820 610 980 700 1200 650V800H0Z" fill="#0f2234"/>
    <path d="M150 610C300 430 440 640 590 520C640 478 690 462 742 486" fill="none" stroke="#f2b84b" stroke-width="2.500" stroke-dasharray="1 10" stroke-linecap="round"/>
    ${[0, 1, 2, 3].map((layer) => sheet(132 + layer * 5, 612 - layer * 9, 138, [-5, 3, -2, 4][layer], { kind: layer === 3 ? 0 : 3, fold: layer === 3 })).join('')}
    <g transform="translate(150 668) rotate(4)"><rect x="-38" y="-18" width="76" height="34" rx="6" fill="#d9573a"/><text y="7" text-anchor="middle" font-family="Inter" font-weight="700" font-size="19" letter-spacing="1" fill="#fff">PDF</text></g>
    ${flight.map(([x, y, width, angle, kind]) => sheet(x, y, width, angle, { kind })).join('')}
    ${looks.map((kind, index) => look(660 + (index % 3) * 163, 520 + Math.floor(index / 3) * 122, 154, 106, kind)).join('')}`)
    + page('left', 4, `<div class="step"><b>1</b><h2>Bring a PDF</h2></div>
      <p class="after">Slides, a catalogue, a novel, a scan. Folvero draws each page at twice its size, sharp enough to look at closely.</p>
      <p>Take all pages, or name the ones you want, such as <span style="white-space:nowrap">1-3,7</span>. A long document is drawn on all the processor’s cores at once.</p>`, '--folio:#a9bccb')
    + page('right', 5, `<div class="step"><b>2</b><h2>Choose a look</h2></div>
      <p class="after">A template says how the book feels: where it lies, how it turns, whether it has a spine or shows single slides.</p>
      <p>Each template has styles, ready-made sets of colours, background pictures and sounds.</p>`, '--folio:#a9bccb');
}

function editing() {
  return scene(1200, `<defs>${gradient('wall', ['#f4b878', '#e2694a'])}</defs><rect width="1200" height="800" fill="#fbf5e9"/>
    <path d="M0 352C240 316 420 372 600 346C800 318 980 300 1200 344V800H0Z" fill="url(#wall)"/>
    <path d="M0 700C260 660 420 730 660 694C880 664 1040 716 1200 684V800H0Z" fill="#b8432b"/>${programWindow(96, 300, 1008, 438)}`)
    + page('left', 6, `<div class="step"><b>3</b><h2>Make it yours</h2></div>
      <p class="after">Colours, backgrounds, margins, sound, the speed of a turn: every property of the template stands in one list, each explained in plain words.</p>`, '--folio:#ffe3d3')
    + page('right', 7, `<p style="margin-top:78px">The real book lies beside the list. Change what you like, press Apply, and try the pages at once, as your readers will.</p>
      <p>Settings can be saved to a file and used again.</p>`, '--folio:#ffe3d3');
}

const ICONS = {
  folder: '<path d="M4 12a4 4 0 0 1 4-4h10l5 6h15a4 4 0 0 1 4 4v18a4 4 0 0 1-4 4H8a4 4 0 0 1-4-4z" fill="#f2b84b"/><path d="M4 20h38v16a4 4 0 0 1-4 4H8a4 4 0 0 1-4-4z" fill="#f7cd7e"/>',
  application: '<rect x="5" y="5" width="36" height="36" rx="9" fill="#1f6f70"/><path d="M11 15q7-3 12 1v17q-5-4-12-1zM35 15q-7-3-12 1v17q5-4 12-1z" fill="#fbf5e9"/>',
  web: '<circle cx="23" cy="23" r="18" fill="#d9573a"/><path d="M5 23h36M23 5c-12 10-12 26 0 36c12-10 12-26 0-36z" fill="none" stroke="#fbf5e9" stroke-width="2.4"/>',
};

function publishing() {
  const way = (icon, title, text) => `<li><svg width="46" height="46" viewBox="0 0 46 46">${ICONS[icon]}</svg><div><b>${title}</b><br>${text}</div></li>`;
  return scene(1200, desk())
    + page('left', 8, `<div class="step"><b>4</b><h2>Publish</h2></div>
      <ul class="ways after">${way('folder', 'A folder', 'Opens from disk with a double-click.')}
      ${way('web', 'A web server', 'Any will do: copy the folder there.')}
      ${way('application', 'A Mac application', 'The whole book in one icon.')}</ul>`, '--folio:#f3d9b8')
    + page('right', 9, `<div class="step"><b></b><h2>On any screen</h2></div>
      <p class="after">Two pages on a wide window, one on a phone. Turn the phone and the book follows.</p>
      <p>Zoom in, look through the thumbnails, fill the screen, share the page you are on, or print.</p>`, '--folio:#f3d9b8');
}

function night() {
  const far = rolling(560, 44, 51);
  const shore = (x) => 742 - 44 * Math.exp(-(((x - 60) / 250) ** 2)) - 62 * Math.exp(-(((x - 1120) / 240) ** 2));
  const use = (who, what) => `<li><b>${who}</b><span>${what}</span></li>`;
  const key = (keys, what) => `<dt>${keys.map((name) => `<kbd>${name}</kbd>`).join('')}</dt><dd>${what}</dd>`;
  return scene(1200, `<defs>${gradient('dark', ['#0a1a2c', ['#12304a', 0.5], ['#2c5a72', 0.74], ['#5c8290', 0.8]])}${gradient('lake', ['#3d6b80', '#16374f', '#0c2236'])}</defs>
    <rect width="1200" height="800" fill="url(#dark)"/>${stars(260, 1200, 560, 44, [[50, 56, 555, 440], [650, 56, 1130, 450], [500, 470, 640, 610]])}
    ${sun(572, 540, 32, { disc: '#fff4d9', light: '#cfe0e4', rings: 4, strength: 0.12 })}
    ${mountain(150, 474, 640, 420, { lit: '#34607a', shade: '#214a63', snow: 0.22, snowLit: '#b9d0d8', snowShade: '#7fa0b1', seed: 33 })}${mountain(410, 530, 640, 280, { lit: '#2d566f', shade: '#1d435b', seed: 35 })}
    ${mountain(826, 522, 640, 300, { lit: '#2d566f', shade: '#1d435b', seed: 37 })}${mountain(1050, 466, 640, 420, { lit: '#34607a', shade: '#214a63', snow: 0.24, snowLit: '#b9d0d8', snowShade: '#7fa0b1', seed: 39 })}
    ${land((x) => far(x) + 62, 0, 1200, 660, '#143850')}${forest((x) => far(x) + 62, 0, 1200, { tall: [14, 30], paint: '#0f2c42', gap: 11, seed: 6 })}
    <rect y="640" width="1200" height="160" fill="url(#lake)"/>${glitter(572, 640, 760, 90, '#fff0cf', 9, 0.7)}
    ${land(shore, 0, 1200, 800, '#081726')}${forest(shore, 0, 150, { tall: [60, 120], paint: '#081726', gap: 26, seed: 61 })}${forest(shore, 1120, 1210, { tall: [80, 130], paint: '#081726', gap: 30, seed: 63 })}
    ${conifer(208, 722, 62, '#081726')}
    <g><path d="M968 708L1024 640L1080 708Z" fill="#d9573a"/><path d="M1024 640L1080 708H1042Z" fill="#a93d27"/><path d="M1024 652L1042 708H1004Z" fill="#ffd27a"/><circle cx="1022" cy="692" r="7" fill="#5b3b2c"/><path d="M1013 708q9-16 18 0z" fill="#1b2c3d"/><path d="M1010 702q6-4 12 0q6-4 12 0v5q-6-3-12 0q-6-3-12 0z" fill="#fffaf0"/></g>`)
    + page('left', 10, `<div class="over" style="color:#ffb98f">For whom</div><h2 style="margin:8px 0 20px">Whoever has pages</h2><ul class="uses">
      ${use('Teachers', 'Worksheets and readers that open on the pupils’ phones, even with no internet.')}
      ${use('Publishers', 'Catalogues, magazines and first chapters to leaf through on your own website.')}
      ${use('Archives', 'Scanned volumes as plain pictures in plain folders, on your own disks.')}
      ${use('Families', 'Albums and recipes as a folder to hand around.')}</ul>`, 'color:#f7ecd6; --folio:#8fa9ba')
    + page('right', 11, `<div class="over" style="color:#ffb98f">By heart</div><h2 style="margin:8px 0 20px">Keys and gestures</h2><dl class="keys" style="">
      ${key(['←', '→'], 'Turn a page')}${key(['Page Up', 'Page Down'], 'Turn a page')}${key(['Space'], 'On to the next pages')}${key(['Home', 'End'], 'To the covers')}
      ${key(['Drag'], 'Take a page by its corner or edge')}${key(['Swipe'], 'Turn on a phone or tablet')}${key(['Double-click'], 'Look closer, or pinch')}${key(['Wheel'], 'Turn; with Ctrl, look closer')}</dl>`,
    'color:#f7ecd6; --folio:#8fa9ba');
}

function backCover() {
  const near = rolling(664, 50, 18);
  return scene(600, `<defs>${gradient('ground', ['#0a1f2d00', '#0a1f2d'])}${gradient('dusk', ['#0e2c44', ['#235a74', 0.4], ['#7c7d99', 0.56], ['#dd937f', 0.69], ['#fbd9a4', 0.8]])}</defs>
    <rect width="600" height="800" fill="url(#dusk)"/>${stars(90, 600, 360, 92, [[140, 190, 460, 380]])}
    ${sun(300, 596, 54, { light: '#ffd18c', rings: 4, strength: 0.2 })}
    ${mountain(96, 556, 700, 300, { lit: '#8f6d84', shade: '#5d5878', seed: 71 })}${mountain(520, 544, 700, 320, { lit: '#8a6a83', shade: '#585474', seed: 72 })}
    ${land((x) => near(x) - 4, 0, 600, 800, '#2c5c66')}${forest((x) => near(x) - 4, 0, 600, { tall: [16, 30], paint: '#1f5560', gap: 11, seed: 22, where: (x) => Math.abs(x - 300) > 70 })}
    ${land((x) => near(x) + 40, 0, 600, 800, '#12394a')}${forest((x) => near(x) + 44, 0, 600, { tall: [40, 84], paint: '#0c2c3b', gap: 24, seed: 25, where: (x) => Math.abs(x - 300) > 120 })}
    <rect y="660" width="600" height="140" fill="url(#ground)"/>
    <path d="M276 0H324V168L300 148L276 168Z" fill="#d9573a"/><path d="M312 0h12v168l-12-10z" fill="#b8432b"/>`)
    + `<div class="page left single" style="color:#fff4dd; text-align:center; padding-top:214px">
    <h2 style="font-size:52px; line-height:54px">Now with a<br>book of yours</h2>
    <p class="lead" style="margin-top:18px; font-style:italic">Bring a PDF and turn the first page.</p>
    <p style="position:absolute; left:60px; right:60px; bottom:24px; font-size:12px; line-height:18px; color:#b9ccd2">Words and drawings made for Folvero, free software. Set in EB Garamond and Inter.</p></div>`;
}

/** In order: the documents and how many pages each holds side by side. */
export function demoBook() {
  return [
    { body: cover(), pages: 1 }, { body: morning(), pages: 2 }, { body: making(), pages: 2 },
    { body: editing(), pages: 2 }, { body: publishing(), pages: 2 }, { body: night(), pages: 2 },
    { body: backCover(), pages: 1 },
  ];
}
