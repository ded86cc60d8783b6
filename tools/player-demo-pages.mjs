// Pages of a small picture book about the sea, as HTML documents of 560 x 740 pixels.

const FRAME = 'width="560" height="740" viewBox="0 0 560 740" preserveAspectRatio="none"';

function wave(y, height, length, phase) {
  let line = `M-20 ${y}`;
  for (let x = -20; x <= 600; x += length) {
    const lift = height * (1 + 0.35 * Math.sin(x * 0.013 + phase));
    line += ` q ${length / 4} ${-lift} ${length / 2} 0 t ${length / 2} 0`;
  }
  return `${line} V760 H-20 Z`;
}

/** A seascape: sky, sun and layered waves. */
function seascape({ sky, sun, sea, sunAt, horizon = 380 }) {
  const gradient = sky.map((colour, index) =>
    `<stop offset="${index / (sky.length - 1)}" stop-color="${colour}"/>`).join('');
  const waves = sea.map((colour, index) => {
    const y = horizon + ((740 - horizon) * index) / sea.length;
    return `<path d="${wave(y, 7 + index * 5, 150 + index * 34, index * 1.7)}" fill="${colour}"/>`;
  }).join('');
  return `<svg ${FRAME}><defs><linearGradient id="s" x2="0" y2="1">${gradient}</linearGradient>
    <radialGradient id="g"><stop offset="0" stop-color="${sun}" stop-opacity=".9"/>
    <stop offset="1" stop-color="${sun}" stop-opacity="0"/></radialGradient></defs>
    <rect width="560" height="740" fill="url(#s)"/>
    <circle cx="${sunAt[0]}" cy="${sunAt[1]}" r="190" fill="url(#g)"/>
    <circle cx="${sunAt[0]}" cy="${sunAt[1]}" r="58" fill="${sun}"/>${waves}</svg>`;
}

function sheet(body, ground = '#fdfbf7') {
  return `<!DOCTYPE html><style>
    body { margin: 0; width: 560px; height: 740px; overflow: hidden; background: ${ground}; position: relative;
      font: 17px/1.62 "P052", "Palatino Linotype", Palatino, Georgia, serif; color: #29323c; }
    svg { position: absolute; inset: 0; } h1, h2, p { margin: 0; position: relative; }
    .text { position: absolute; left: 66px; right: 66px; top: 84px; }
    .text h2 { font-size: 31px; font-weight: 400; line-height: 1.2; margin-bottom: 22px; color: #1f4e66; }
    .text p + p { text-indent: 1.4em; } .text p:first-of-type::first-letter { font-size: 58px; float: left;
      line-height: .84; padding: 5px 8px 0 0; color: #c2683f; }
    .number { position: absolute; bottom: 38px; left: 0; right: 0; text-align: center; font-size: 13px; color: #8a8f94; }
    .title { position: absolute; left: 56px; top: 66px; color: #fff; }
    .title h1 { font-size: 88px; font-weight: 400; letter-spacing: .01em; line-height: 1; }
    .title p { font-size: 20px; margin-top: 16px; letter-spacing: .04em; opacity: .92; }
    </style>${body}`;
}

const TEXTS = [
  ['Before the light', 'The harbour sleeps with its ropes slack. Nothing moves but the water, and the water moves '
    + 'without a sound, filling the spaces between the stones one after another as a reader fills an evening.',
  'By five the gulls have found the wall. They stand in a row and say nothing, which is unusual for gulls, and '
    + 'look towards the place where the day will come from.',
  'A lamp goes on above the bakery. It is the colour of bread, and for a while it is the only warm thing in the town.'],
  ['High water', 'At noon the sea has come as far as it means to come. It rests against the steps and lets the '
    + 'children count them: eleven dry, nine under, and one that is never quite either.',
  'Boats that lay on their sides all morning stand up again. You can hear them do it, a long wooden breath along '
    + 'the quay, and after it the small bright noise of halyards.',
  'Whoever has a line puts it in. Whoever has none sits down beside somebody who has.'],
  ['What it leaves', 'When it goes it goes quickly. It leaves a field of ribs in the sand, each with its own '
    + 'shadow, and pools the size of plates with the whole sky in them.',
  'It leaves a shoe, a float of green glass, a great deal of rope, and the print of a bird that walked with much '
    + 'purpose towards the sea and then evidently flew.',
  'We walk out as far as the posts. Behind us the town is small enough to put in a pocket.'],
  ['Home', 'Evening lays the light down flat. The windows answer it, first the tall ones by the church and then, '
    + 'house by house, the others, until the hill has said all it knows.',
  'Somebody carries the chairs in. Somebody else is told, for the last time, that it is the last time.',
  'Then the water, which has waited outside all this while, begins again at the first stone.'],
];

function textPage([title, ...paragraphs], number) {
  return sheet(`<div class="text"><h2>${title}</h2>${paragraphs.map((text) => `<p>${text}</p>`).join('')}</div>
    <div class="number">${number}</div>`);
}

const DAWN = { sky: ['#28456b', '#7a6f9c', '#e79a86', '#f8d3a6'], sun: '#fff0cf', sunAt: [366, 330],
  sea: ['#6d86a6', '#4f7299', '#365d86', '#234870', '#173556'] };
const NOON = { sky: ['#2c86b8', '#7fc0dc', '#d8eef2'], sun: '#fffdf0', sunAt: [176, 170], horizon: 330,
  sea: ['#4fb0bf', '#2f97ae', '#1d7c99', '#12627f', '#0b4a66'] };
const EBB = { sky: ['#b9c9cf', '#dfe4df', '#f3e7d2'], sun: '#fff8e6', sunAt: [420, 250], horizon: 430,
  sea: ['#c9b892', '#bba57c', '#a98f66', '#937853'] };
const DUSK = { sky: ['#1b2148', '#5b3a72', '#c5566a', '#f39a5e'], sun: '#ffd79a', sunAt: [250, 372],
  sea: ['#6e4a78', '#4f3a6d', '#372e5e', '#24224b', '#161838'] };

export function demoPages() {
  return [
    sheet(`${seascape(DAWN)}<div class="title"><h1>Tides</h1><p>A day at the edge of the sea</p></div>`),
    sheet(seascape({ ...DAWN, sunAt: [150, 300] })), textPage(TEXTS[0], 3),
    sheet(seascape(NOON)), textPage(TEXTS[1], 5),
    sheet(seascape(EBB)), textPage(TEXTS[2], 7),
    sheet(seascape(DUSK)), textPage(TEXTS[3], 9),
    sheet(`${seascape({ ...DUSK, sunAt: [280, 520], horizon: 520 })}`),
  ];
}
