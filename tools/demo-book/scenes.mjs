// The two large drawings: the program's window, simplified, and a desk with screens on it.

import { laptop, phone } from './things.mjs';

const INK = '#1b2c3d';

function text(x, y, words, { size = 12.5, weight = 400, fill = INK, anchor = 'start' } = {}) {
  return `<text x="${x}" y="${y}" font-family="Inter" font-size="${size}" font-weight="${weight}" fill="${fill}" text-anchor="${anchor}">${words}</text>`;
}

/** A small picture of hills for a page, in a box. */
function picture(x, y, width, height, id) {
  return `<svg x="${x}" y="${y}" width="${width}" height="${height}" viewBox="0 0 100 130" preserveAspectRatio="xMidYMid slice">
    <defs><linearGradient id="${id}" x2="0" y2="1"><stop offset="0" stop-color="#2f6276"/><stop offset=".55" stop-color="#f0a97e"/><stop offset=".8" stop-color="#fbd9a4"/></linearGradient></defs>
    <rect width="100" height="130" fill="url(#${id})"/><circle cx="56" cy="70" r="15" fill="#fff3d6"/>
    <path d="M-10 100L18 56 36 82 62 50 112 104V130H-10Z" fill="#8b6f86"/><path d="M18 56L36 82 30 100 14 100Z" fill="#5d5878"/><path d="M62 50L112 104H70L60 80Z" fill="#5d5878"/>
    <path d="M-4 104C20 90 50 108 104 92V130H-4Z" fill="#2c5c66"/><path d="M-4 118C30 104 60 122 104 110V130H-4Z" fill="#12394a"/></svg>`;
}

function paragraph(x, y, width, rows, { gap = 9, thick = 2.6, fill = '#b9c0c6' } = {}) {
  return Array.from({ length: rows }, (_, row) =>
    `<rect x="${x}" y="${y + row * gap}" width="${width * [1, 0.96, 1, 0.92, 1, 0.97, 0.9][row % 7] * (row === rows - 1 ? 0.6 : 1)}" height="${thick}" rx="${thick / 2}" fill="${fill}"/>`).join('');
}

/** An open book from above with one leaf on its way over. */
export function turningBook(x, y, pageWidth, pageHeight, id) {
  const right = x + pageWidth * 2;
  const middle = x + pageWidth;
  const foot = y + pageHeight;
  return `<g><rect x="${x + 2}" y="${y + 6}" width="${pageWidth * 2 - 4}" height="${pageHeight}" fill="#0b1c2b" opacity=".3"/>
    <rect x="${x}" y="${y}" width="${pageWidth}" height="${pageHeight}" fill="#fffdf8"/><rect x="${middle}" y="${y}" width="${pageWidth}" height="${pageHeight}" fill="#fffdf8"/>
    ${picture(x, y, pageWidth, pageHeight, id)}
    <rect x="${middle + pageWidth * 0.14}" y="${y + pageHeight * 0.13}" width="${pageWidth * 0.5}" height="9" rx="2" fill="${INK}"/>${paragraph(middle + pageWidth * 0.14, y + pageHeight * 0.24, pageWidth * 0.7, 11, { gap: pageHeight * 0.05 })}
    <path d="M${middle} ${y}h${pageWidth * 0.1}q${-pageWidth * 0.06} ${pageHeight * 0.5} 0 ${pageHeight}h${-pageWidth * 0.1}z" fill="#000" opacity=".1"/>
    <path d="M${middle - pageWidth * 0.07} ${y}h${pageWidth * 0.07}v${pageHeight}h${-pageWidth * 0.07}q${pageWidth * 0.05} ${-pageHeight * 0.5} 0 ${-pageHeight}z" fill="#000" opacity=".12"/>
    <path d="M${right} ${foot - pageHeight * 0.52}L${right - pageWidth * 0.56} ${foot}H${right}Z" fill="#d8c9a8"/>
    <path d="M${right} ${foot - pageHeight * 0.52}C${right - pageWidth * 0.16} ${foot - pageHeight * 0.5} ${right - pageWidth * 0.46} ${foot - pageHeight * 0.36} ${right - pageWidth * 0.5} ${foot - pageHeight * 0.27}C${right - pageWidth * 0.47} ${foot - pageHeight * 0.16} ${right - pageWidth * 0.5} ${foot - pageHeight * 0.06} ${right - pageWidth * 0.56} ${foot}Z" fill="#0b1c2b" opacity=".16"/>
    <path d="M${right} ${foot - pageHeight * 0.52}C${right - pageWidth * 0.2} ${foot - pageHeight * 0.52} ${right - pageWidth * 0.52} ${foot - pageHeight * 0.4} ${right - pageWidth * 0.6} ${foot - pageHeight * 0.31}C${right - pageWidth * 0.52} ${foot - pageHeight * 0.2} ${right - pageWidth * 0.52} ${foot - pageHeight * 0.1} ${right - pageWidth * 0.56} ${foot}Z" fill="#fffaf0"/></g>`;
}

function row(x, y, width, name, value, { level = 1, selected = false } = {}) {
  const left = x + 16 + level * 16;
  return `${selected ? `<rect x="${x + 6}" y="${y - 15}" width="${width - 12}" height="23" rx="5" fill="#1f6f70"/>` : ''}
    ${text(left, y, name, { fill: selected ? '#fff' : INK })}${value(x + width * 0.56, y, selected)}`;
}

const heading = (x, y, name) => `<path d="M${x + 15} ${y - 6}h8l-4 5z" fill="#66727d"/>${text(x + 30, y, name, { weight: 600 })}`;
const colour = (paint) => (x, y) => `<rect x="${x}" y="${y - 10.5}" width="34" height="14" rx="3" fill="${paint}" stroke="#00000030"/>`;
const number = (value) => (x, y, selected) => text(x, y, value, { fill: selected ? '#fff' : '#41525f' });
const file = (name) => (x, y) => `<rect x="${x}" y="${y - 12}" width="104" height="17" rx="4" fill="#fff" stroke="#cdd4da"/>${text(x + 7, y, name, { size: 10, fill: '#41525f' })}`;

/** The program's window over a spread: the list on the left page, the preview on the right one. */
export function programWindow(x, y, width, height) {
  const list = 600 - x;
  const rows = [
    heading(x, y + 82, 'Pages'),
    row(x, y + 106, list, 'Paper colour', colour('#fffdf8')),
    row(x, y + 130, list, 'Right to left', number('No')),
    heading(x, y + 160, 'Turning'),
    row(x, y + 184, list, 'Turning time', number('0.8'), { selected: true }),
    row(x, y + 208, list, 'Opening', number('Rise')),
    row(x, y + 232, list, 'Play by itself', number('No')),
    heading(x, y + 262, 'Outer background'),
    row(x, y + 286, list, 'First colour', colour('#7fb2ba')),
    row(x, y + 310, list, 'Second colour', colour('#12394a')),
    row(x, y + 334, list, 'Picture', file('hills.jpg')),
  ];
  return `<g><rect x="${x + 4}" y="${y + 14}" width="${width - 8}" height="${height}" rx="14" fill="#4d1508" opacity=".35"/>
    <clipPath id="window"><rect x="${x}" y="${y}" width="${width}" height="${height}" rx="12"/></clipPath><g clip-path="url(#window)">
    <rect x="${x}" y="${y}" width="${width}" height="${height}" fill="#f7f8f9"/>
    <defs><linearGradient id="preview" x2="0" y2="1"><stop offset="0" stop-color="#7fb2ba"/><stop offset="1" stop-color="#12394a"/></linearGradient></defs>
    <rect x="600" y="${y}" width="${width - list}" height="${height}" fill="url(#preview)"/>
    <rect x="${x}" y="${y}" width="${width}" height="46" fill="#e9edf0"/><rect x="${x}" y="${y + 46}" width="${width}" height="1" fill="#cdd4da"/>
    ${['#e2694a', '#f2b84b', '#4b9c7c'].map((paint, index) => `<circle cx="${x + 24 + index * 19}" cy="${y + 23}" r="5.500" fill="${paint}"/>`).join('')}
    ${['Import', 'Template', 'Publish'].map((name, index) => `<rect x="${x + 104 + index * 92}" y="${y + 10}" width="82" height="26" rx="6" fill="#fff" stroke="#cdd4da"/>${text(x + 145 + index * 92, y + 27, name, { anchor: 'middle', weight: 500 })}`).join('')}
    <rect x="${x + 396}" y="${y + 10}" width="82" height="26" rx="6" fill="#d9573a"/>${text(x + 437, y + 27, 'Apply', { anchor: 'middle', weight: 600, fill: '#fff' })}
    ${rows.join('')}
    <rect x="${x + 14}" y="${y + 354}" width="${list - 28}" height="66" rx="8" fill="#e9edf0"/>${text(x + 28, y + 377, 'Turning time', { weight: 600 })}${text(x + 28, y + 399, 'Seconds that a page takes to turn over.', { fill: '#41525f' })}
    ${turningBook(648, y + 84, 204, 272, 'windowPicture')}
    <rect x="772" y="${y + 388}" width="160" height="24" rx="12" fill="#0c2331" opacity=".85"/>${['M800 400l6-5v10z', 'M904 400l-6-5v10z'].map((path) => `<path d="${path.replace(/ 400/, ` ${y + 400}`)}" fill="#fff"/>`).join('')}${text(852, y + 404, '6-7 / 12', { anchor: 'middle', fill: '#fff', size: 10.5 })}
    </g></g>`;
}

function phoneScreen() {
  return `<rect width="100" height="219" fill="#1f4a5a"/><rect width="100" height="219" fill="#0c2331" opacity=".35"/>
    ${picture(6, 43, 88, 117, 'phonePicture')}
    <path d="M94 96C80 97 60 106 52 122C58 136 56 150 50 160L94 160Z" fill="#fbf5e9"/><path d="M94 96C76 97 54 104 46 118C54 132 54 148 50 160L62 160C60 148 60 134 58 124C66 108 82 100 94 96Z" fill="#e9dcc0"/>
    <rect x="68" y="133" width="20" height="2" fill="#b9c0c6"/><rect x="66" y="139" width="22" height="2" fill="#b9c0c6"/><rect x="66" y="145" width="16" height="2" fill="#b9c0c6"/>
    <circle cx="56" cy="146" r="9" fill="#fff" opacity=".4"/><circle cx="56" cy="146" r="5" fill="#fff" opacity=".85"/>
    <rect x="26" y="188" width="48" height="12" rx="6" fill="#0c2331"/><path d="M33 194l4-3.500v7zM67 194l-4-3.500v7z" fill="#fff"/>`;
}

/** A desk in evening light across a spread; a laptop on the left page, a phone on the right one. */
export function desk() {
  const boards = [618, 676, 742].map((y) => `<rect y="${y}" width="1200" height="2" fill="#5b321d" opacity=".45"/>`).join('');
  const screen = `<defs><linearGradient id="laptopGround" x2="0" y2="1"><stop offset="0" stop-color="#d6e4ea"/><stop offset="1" stop-color="#8fb0bd"/></linearGradient></defs><rect width="400" height="244" fill="url(#laptopGround)"/>${turningBook(68, 24, 132, 176, 'laptopPicture')}<rect x="150" y="216" width="100" height="16" rx="8" fill="#26303b"/><path d="M166 224l5-4v8zM234 224l-5-4v8z" fill="#fff"/>`;
  const spines = [['#d9573a', 30, 126], ['#f2b84b', 22, 112], ['#fbf5e9', 26, 134], ['#1f6f70', 34, 120], ['#8b6f86', 24, 106]];
  let left = 602;
  const books = spines.map(([paint, width, height], index) => {
    const at = left - 66;
    left += width + 2;
    return `<rect x="${at}" y="${566 - height}" width="${width}" height="${height}" rx="2" fill="${paint}"/><rect x="${at + 4}" y="${566 - height + 16}" width="${width - 8}" height="3" fill="#000" opacity=".2"/><rect x="${at + 4}" y="${566 - 22}" width="${width - 8}" height="3" fill="#000" opacity=".2"/>${index === 2 ? `<rect x="${at + width / 2 - 2}" y="${566 - height + 34}" width="4" height="50" fill="#d9573a"/>` : ''}`;
  }).join('');
  return `<defs><linearGradient id="wood" x2="0" y2="1"><stop offset="0" stop-color="#b9774a"/><stop offset="1" stop-color="#7a4528"/></linearGradient>
    <radialGradient id="lamp"><stop offset="0" stop-color="#ffe9bd" stop-opacity=".95"/><stop offset="1" stop-color="#ffe9bd" stop-opacity="0"/></radialGradient></defs>
    <rect width="1200" height="800" fill="#fbf5e9"/><path d="M0 404C260 372 420 420 640 396C860 372 1020 398 1200 380V570H0Z" fill="#f3dfbb"/>
    <ellipse cx="980" cy="560" rx="330" ry="150" fill="url(#lamp)"/>
    <rect y="566" width="1200" height="234" fill="url(#wood)"/><rect y="566" width="1200" height="5" fill="#d89a68"/>${boards}
    <ellipse cx="276" cy="700" rx="262" ry="16" fill="#3d1f10" opacity=".4"/>${laptop(84, 456, 380, screen)}
    ${books}
    <g><path d="M712 566c-22 0-26-40-24-58h48c2 18-2 58-24 58z" fill="#e9dcc0"/><path d="M712 508c-6-40-34-50-46-46c2 22 18 42 46 46zM712 508c2-46 28-66 44-62c0 30-16 54-44 62zM712 508c-2-30-4-56 4-80c12 22 8 52-4 80z" fill="#2f7f70"/></g>
    <g><rect x="1086" y="452" width="8" height="116" fill="#12283c"/><ellipse cx="1090" cy="570" rx="46" ry="8" fill="#12283c"/><path d="M1052 396H1128L1152 456H1028Z" fill="#d9573a"/><path d="M1104 396h24l24 60h-34z" fill="#b8432b"/><ellipse cx="1090" cy="456" rx="61" ry="6" fill="#ffe9bd"/></g>
    <ellipse cx="846" cy="728" rx="118" ry="14" fill="#3d1f10" opacity=".4"/><path d="M800 640L784 726H908L892 640Z" fill="#5b321d"/>
    ${phone(846, 566, 156, 4, phoneScreen())}
    <g><path d="M752 712H930L944 732Q944 740 934 740H748Q738 740 738 732Z" fill="#5b321d"/><path d="M752 712H930L936 720H746Z" fill="#85502f"/><ellipse cx="1080" cy="712" rx="62" ry="12" fill="#3d1f10" opacity=".4"/><path d="M1030 622h84v58q0 30-30 30h-24q-30 0-30-30z" fill="#fbf5e9"/><path d="M1114 636h10q22 2 20 24q-4 24-34 24" fill="none" stroke="#fbf5e9" stroke-width="9"/><ellipse cx="1072" cy="622" rx="42" ry="9" fill="#e9dcc0"/><ellipse cx="1072" cy="623" rx="35" ry="6.500" fill="#4a2a18"/><path d="M1058 604q-6-9 0-18q6-9 0-18M1080 604q-6-9 0-18q6-9 0-18" fill="none" stroke="#fff" stroke-width="4" stroke-linecap="round" opacity=".55"/></g>`;
}
