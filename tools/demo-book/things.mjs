// Things that the pages show: books, sheets, screens, a desk. SVG text like nature.mjs.

/**
 * An open book seen from the front, lying on the picture's lower edge.
 * x, y: middle of the near edge; width: of both pages; depth: of the pages as they are seen.
 */
export function openBook(x, y, width, depth, { paper = '#fbf3e2', shade = '#e3d3b4', cover = '#17293d', lines = '' } = {}) {
  const half = width / 2;
  const far = half * 0.86;
  const side = (way) => {
    const edge = `M${x} ${y - depth * 0.04}C${x + way * half * 0.18} ${y - depth * 0.2} ${x + way * half * 0.55} ${y - depth * 0.16} ${x + way * half} ${y}`;
    return `<path d="${edge}L${x + way * far} ${y - depth}C${x + way * far * 0.55} ${y - depth * 1.17} ${x + way * far * 0.18} ${y - depth * 1.2} ${x} ${y - depth * 1.02}Z" fill="url(#${way < 0 ? 'leafLeft' : 'leafRight'})"/>`;
  };
  const block = (way) => [1, 2, 3, 4].map((layer) => {
    const drop = layer * depth * 0.032;
    return `<path d="M${x} ${y - depth * 0.04 + drop}C${x + way * half * 0.18} ${y - depth * 0.2 + drop} ${x + way * half * 0.55} ${y - depth * 0.16 + drop} ${x + way * (half + layer * 1.2)} ${y + drop}" fill="none" stroke="${layer % 2 ? shade : paper}" stroke-width="${depth * 0.036}"/>`;
  }).join('');
  return `<defs><linearGradient id="leafLeft"><stop offset="0" stop-color="${paper}"/><stop offset=".78" stop-color="${paper}"/><stop offset="1" stop-color="${shade}"/></linearGradient>
    <linearGradient id="leafRight"><stop offset="0" stop-color="${shade}"/><stop offset=".2" stop-color="${paper}"/><stop offset="1" stop-color="${paper}"/></linearGradient></defs>
    <path d="M${x - half - 16} ${y + depth * 0.2}L${x - far - 12} ${y - depth * 0.96}H${x + far + 12}L${x + half + 16} ${y + depth * 0.2}C${x + half * 0.5} ${y + depth * 0.1} ${x + 20} ${y + depth * 0.08} ${x} ${y + depth * 0.2}C${x - 20} ${y + depth * 0.08} ${x - half * 0.5} ${y + depth * 0.1} ${x - half - 16} ${y + depth * 0.2}Z" fill="${cover}"/>
    ${block(-1)}${block(1)}${side(-1)}${side(1)}${lines}`;
}

/** A sheet of paper turned by `angle` degrees around its middle; kind 0 to 2 is what stands on it. */
export function sheet(x, y, width, angle, { fold = true, accent = '#e2694a', kind = 0, opacity = 1 } = {}) {
  const height = width * 1.32;
  const w = width;
  const line = (top, share) => `<rect x="${w * 0.14}" y="${height * top}" width="${w * share}" height="${w * 0.045}" rx="${w * 0.02}" fill="#b9c3cc"/>`;
  const pictures = [
    `<rect x="${w * 0.14}" y="${height * 0.14}" width="${w * 0.72}" height="${height * 0.3}" fill="#9cc7cf"/><path d="M${w * 0.14} ${height * 0.44}l${w * 0.22}-${height * 0.16} ${w * 0.16} ${height * 0.1} ${w * 0.14}-${height * 0.07} ${w * 0.2} ${height * 0.13}z" fill="#2b7a78"/><circle cx="${w * 0.7}" cy="${height * 0.21}" r="${w * 0.06}" fill="#f2b84b"/>${line(0.54, 0.72)}${line(0.62, 0.66)}${line(0.7, 0.7)}${line(0.78, 0.42)}`,
    `<rect x="${w * 0.14}" y="${height * 0.13}" width="${w * 0.5}" height="${w * 0.075}" rx="2" fill="${accent}"/>${[0.25, 0.33, 0.41, 0.49, 0.57, 0.65, 0.73].map((top, row) => line(top, [0.72, 0.68, 0.72, 0.4, 0.72, 0.7, 0.52][row])).join('')}`,
    `${line(0.14, 0.5)}${[0.2, 0.34, 0.27, 0.42, 0.37].map((tall, bar) => `<rect x="${w * (0.16 + bar * 0.145)}" y="${height * (0.7 - tall)}" width="${w * 0.1}" height="${height * tall}" fill="${bar === 3 ? accent : '#f2b84b'}"/>`).join('')}<rect x="${w * 0.14}" y="${height * 0.7}" width="${w * 0.72}" height="2" fill="#8593a0"/>${line(0.78, 0.6)}${line(0.85, 0.46)}`,
  ];
  const corner = fold ? w * 0.2 : 0;
  return `<g transform="translate(${x} ${y}) rotate(${angle}) translate(${-w / 2} ${-height / 2})" opacity="${opacity}">
    <path d="M4 6H${w - corner + 4}L${w + 4} ${corner + 6}V${height + 6}H4Z" fill="#0b1c2b" opacity=".16"/>
    <path d="M0 0H${w - corner}L${w} ${corner}V${height}H0Z" fill="#fffdf8"/>${pictures[kind] ?? ''}
    ${fold ? `<path d="M${w - corner} 0V${corner}H${w}Z" fill="#d9dfe4"/>` : ''}</g>`;
}

/** A small window that shows a book the way a template does. */
export function look(x, y, width, height, { ground, wood = false, spread = true, bar = '#26303b', page = '#fffdf8', dim = false, spine = true }) {
  const ph = height * 0.6;
  const pw = spread ? ph * 0.72 : width * 0.62;
  const hh = spread ? ph : pw * 0.6;
  const left = spread ? x + width / 2 - pw : x + width / 2 - pw / 2;
  const top = y + (height - hh) / 2 - height * 0.04;
  const grain = wood ? [0.2, 0.42, 0.66, 0.86].map((share) => `<rect x="${x}" y="${y + height * share}" width="${width}" height="1.6" fill="#000" opacity=".22"/>`).join('') : '';
  const scene = (px, py, w, h) => `<svg x="${px}" y="${py}" width="${w}" height="${h}" viewBox="0 0 100 100" preserveAspectRatio="none"><rect width="100" height="100" fill="#f4c08a"/><circle cx="62" cy="40" r="13" fill="#fff0cf"/><path d="M0 66L22 42 40 60 62 36 100 70V100H0Z" fill="#2b7a78"/><path d="M0 82C30 68 60 86 100 74V100H0Z" fill="#17384a"/></svg>`;
  const text = (px, py, w) => [0, 1, 2, 3, 4, 5].map((row) => `<rect x="${px}" y="${py + row * ph * 0.085}" width="${w * [1, 0.9, 1, 0.95, 1, 0.55][row]}" height="${ph * 0.028}" fill="${dim ? '#8e979f' : '#b3bcc4'}"/>`).join('');
  const pages = spread
    ? `<rect x="${left - 2}" y="${top + 4}" width="${pw * 2 + 4}" height="${hh}" fill="#000" opacity=".25"/><rect x="${left}" y="${top}" width="${pw * 2}" height="${hh}" fill="${page}"/>${scene(left + pw, top, pw, hh)}${text(left + pw * 0.16, top + hh * 0.2, pw * 0.68)}${spine ? `<rect x="${left + pw - 5}" y="${top}" width="5" height="${hh}" fill="#000" opacity=".1"/><rect x="${left + pw}" y="${top}" width="4" height="${hh}" fill="#000" opacity=".16"/>` : ''}`
    : `<rect x="${left - 2}" y="${top + 4}" width="${pw + 4}" height="${hh}" fill="#000" opacity=".25"/>${scene(left, top, pw, hh)}<rect x="${left + pw * 0.08}" y="${top + hh * 0.14}" width="${pw * 0.34}" height="${hh * 0.1}" fill="#fffdf8"/>`;
  return `<g><rect x="${x}" y="${y + 3}" width="${width}" height="${height}" rx="8" fill="#061523" opacity=".3"/>
    <clipPath id="look${Math.round(x)}-${Math.round(y)}"><rect x="${x}" y="${y}" width="${width}" height="${height}" rx="8"/></clipPath>
    <g clip-path="url(#look${Math.round(x)}-${Math.round(y)})"><rect x="${x}" y="${y}" width="${width}" height="${height}" fill="${ground}"/>${grain}${pages}
    <rect x="${x + width * 0.32}" y="${y + height - 14}" width="${width * 0.36}" height="7" rx="3.5" fill="${bar}"/></g></g>`;
}

/** A telephone that shows `screen`, which is drawn into 100 x 200 units. */
export function phone(x, y, width, angle, screen) {
  const height = width * 2.06;
  return `<g transform="translate(${x} ${y}) rotate(${angle}) translate(${-width / 2} ${-height / 2})">
    <rect x="8" y="12" width="${width}" height="${height}" rx="${width * 0.15}" fill="#0b1c2b" opacity=".28"/>
    <rect width="${width}" height="${height}" rx="${width * 0.15}" fill="#101b28"/><rect x="1.5" y="1.5" width="${width - 3}" height="${height - 3}" rx="${width * 0.145}" fill="none" stroke="#46566a" stroke-width="1.6"/>
    <svg x="${width * 0.05}" y="${width * 0.05}" width="${width * 0.9}" height="${height - width * 0.1}" viewBox="0 0 100 218.9" preserveAspectRatio="none"><clipPath id="screen"><rect width="100" height="218.9" rx="11"/></clipPath><g clip-path="url(#screen)">${screen}</g></svg>
    <rect x="${width * 0.36}" y="${width * 0.085}" width="${width * 0.28}" height="${width * 0.07}" rx="${width * 0.035}" fill="#101b28"/></g>`;
}

/** A laptop whose screen is drawn into `width` x 0.62 width at x, y. */
export function laptop(x, y, width, screen) {
  const height = width * 0.63;
  const pad = width * 0.028;
  return `<g><rect x="${x}" y="${y}" width="${width}" height="${height}" rx="12" fill="#16222f"/>
    <svg x="${x + pad}" y="${y + pad}" width="${width - pad * 2}" height="${height - pad * 2}" viewBox="0 0 400 244" preserveAspectRatio="none">${screen}</svg>
    <path d="M${x - width * 0.1} ${y + height}H${x + width * 1.1}L${x + width * 1.13} ${y + height + width * 0.035}Q${x + width * 1.13} ${y + height + width * 0.05} ${x + width * 1.1} ${y + height + width * 0.05}H${x - width * 0.1}Q${x - width * 0.13} ${y + height + width * 0.05} ${x - width * 0.13} ${y + height + width * 0.035}Z" fill="#c4ccd4"/>
    <path d="M${x - width * 0.1} ${y + height}H${x + width * 1.1}L${x + width * 1.108} ${y + height + width * 0.012}H${x - width * 0.108}Z" fill="#e6ebef"/><rect x="${x + width * 0.42}" y="${y + height}" width="${width * 0.16}" height="${width * 0.016}" rx="3" fill="#a3aeb8"/></g>`;
}
