// Pages for showing templates, as HTML documents: slides of a short talk about tides for templates
// that show slides, and plain pages that can be distinguished in an icon.

export const SLIDE = { width: 960, height: 540 };

const INK = '#14324a';
const SEA = ['#0f4c75', '#1b6f9a', '#3fa0b8', '#9fd3d6'];

function slide(body, { ground = '#fcfdfe', ink = INK } = {}) {
  return `<!DOCTYPE html><meta charset="utf-8"><style>
    body { margin: 0; width: 960px; height: 540px; overflow: hidden; position: relative; background: ${ground};
      font: 22px/1.5 Inter, "Helvetica Neue", Arial, sans-serif; color: ${ink}; }
    svg { position: absolute; left: 0; top: 0; } h1, h2, p, ul { margin: 0; padding: 0; }
    .block { position: absolute; left: 72px; top: 64px; width: 400px; }
    h1 { font-size: 76px; line-height: 1.02; letter-spacing: -.03em; font-weight: 700; }
    h2 { font-size: 40px; line-height: 1.12; letter-spacing: -.02em; font-weight: 650; margin-bottom: 26px; }
    .small { font-size: 19px; opacity: .78; margin-top: 22px; }
    li { list-style: none; padding: 9px 0 9px 26px; position: relative; }
    li::before { content: ""; position: absolute; left: 0; top: 20px; width: 12px; height: 12px; border-radius: 50%; background: ${SEA[2]}; }
    .foot { position: absolute; left: 72px; right: 72px; bottom: 30px; font-size: 14px; opacity: .55;
      display: flex; justify-content: space-between; }
    </style>${body}`;
}

const foot = (number) => `<p class="foot"><span>Reading the tide</span><span>${number}</span></p>`;

function waves(top, step = 46) {
  return SEA.map((colour, index) => {
    const y = top + index * step;
    const lift = 26 - index * 3;
    return `<path fill="${colour}" d="M${-120 - index * 70} ${y} q 110 ${-lift} 220 0 t 220 0 t 220 0 t 220 0 t 220 0 t 220 0 V560 H-200 Z"/>`;
  }).join('');
}

/** Height of the water over a day, as a curve. */
function curve() {
  const point = (hour) => [500 + hour * 16.6, 286 - 108 * Math.cos(((hour - 3.2) / 12.4) * 2 * Math.PI) * (1 - hour * 0.008)];
  const line = Array.from({ length: 97 }, (_, index) => point(index / 4).map((n) => n.toFixed(1)).join(' ')).join(' L');
  const hours = [0, 6, 12, 18, 24].map((hour) =>
    `<text x="${500 + hour * 16.6}" y="446" text-anchor="middle" font-size="15" fill="#6b8294">${hour}h</text>`);
  return `<svg width="960" height="540"><defs><linearGradient id="w" x2="0" y2="1"><stop offset="0" stop-color="${SEA[2]}" stop-opacity=".5"/>
    <stop offset="1" stop-color="${SEA[2]}" stop-opacity=".04"/></linearGradient></defs>
    ${[180, 286, 392].map((y) => `<path d="M500 ${y}H898" stroke="#dbe5ec" stroke-width="1.5"/>`).join('')}
    <path d="M${line} L898 418 L500 418 Z" fill="url(#w)"/><path d="M${line}" fill="none" stroke="${SEA[1]}" stroke-width="4" stroke-linecap="round"/>
    ${hours.join('')}</svg>`;
}

/** Sun, moon and earth in a row. */
const PULL = `<svg width="960" height="540"><circle cx="960" cy="270" r="150" fill="#ffb84d"/>
  <ellipse cx="530" cy="270" rx="98" ry="74" fill="${SEA[2]}" opacity=".45"/><circle cx="530" cy="270" r="66" fill="${SEA[1]}"/>
  <circle cx="694" cy="270" r="24" fill="#c4ced8"/><path d="M614 270h44M734 270h56" stroke="${INK}" stroke-width="3" stroke-dasharray="3 8" stroke-linecap="round"/></svg>`;

/** Pages of an icon: broad lines on one, a sea at sunset on the other. */
export function iconPages({ width, height }) {
  const sheet = (body, ground) => `<!DOCTYPE html><style>body { margin: 0; background: ${ground}; } svg { display: block; }</style>
    <svg width="${width}" height="${height}" viewBox="0 0 100 100" preserveAspectRatio="none">${body}</svg>`;
  const lines = [0.9, 0.7, 0.9, 0.82, 0.5].map((length, index) =>
    `<rect x="14" y="${18 + index * 14}" width="${72 * length}" height="6" fill="#8fa0b0"/>`).join('');
  const text = sheet(`<rect x="14" y="18" width="52" height="9" fill="#d9573a"/>${lines.slice(lines.indexOf('/>') + 2)}`, '#fdfaf3');
  const sea = sheet(`<rect width="100" height="100" fill="#f5b26b"/><ellipse cx="50" cy="50" rx="24" ry="${(24 * width) / height}" fill="#fff1cf"/>
    <path d="M0 56q25-8 50 0t50 0V100H0z" fill="#2b8a8f"/><path d="M0 72q25-8 50 0t50 0V100H0z" fill="#14516b"/>`, '#f5b26b');
  return [sea, sea, sea, text, sea, text, sea, text];
}

export function demoSlides() {
  return [
    slide(`<svg width="960" height="540"><circle cx="716" cy="196" r="86" fill="#fff3d1"/>${waves(330)}</svg>
      <div class="block" style="width: 560px"><h1>Reading<br>the tide</h1><p class="small">A short talk in six slides</p></div>`,
      { ground: 'linear-gradient(#bfe3ea, #eef6f2)' }),
    slide(`${PULL}<div class="block" style="width: 370px"><h2>Two that pull</h2><ul><li>The moon, near and small</li><li>The sun, far and great</li><li>In a row they pull together</li></ul></div>${foot(2)}`),
    slide(`<div class="block" style="width: 800px"><h2>Three things to take along</h2></div>
      <svg width="960" height="540">${['A table', 'A watch', 'A friend'].map((word, index) => `<rect x="${72 + index * 282}" y="170" width="252" height="250" rx="16" fill="${SEA[3 - index]}"/>
      <text x="${198 + index * 282}" y="312" text-anchor="middle" font-size="30" font-weight="650" font-family="Inter, Arial" fill="${index ? '#fff' : INK}">${word}</text>`).join('')}</svg>${foot(3)}`),
    slide(`${curve()}<div class="block"><h2>Twice a day<br>the sea returns</h2><p>From low water to high<br>it takes six hours<br>and a little more.</p></div>${foot(4)}`),
    slide(`<div class="block" style="top: 150px; width: 780px"><h2 style="font-size: 54px">Never turn your back<br>on the sixth wave.</h2><p class="small">What the harbour master says</p></div>
      <svg width="960" height="540">${waves(440, 28)}</svg>`, { ground: SEA[0], ink: '#f4fbfc' }),
    slide(`<svg width="960" height="540"><circle cx="210" cy="330" r="92" fill="#ffd9a0"/>${waves(350)}</svg>
      <div class="block" style="left: 420px; width: 480px"><h1>Low water</h1><p class="small">Thank you</p></div>`,
      { ground: 'linear-gradient(#2d4a78, #e39a7d)', ink: '#fff' }),
  ];
}
