import { readFileSync } from 'node:fs';
import path from 'node:path';

const FIELDS = ['key', 'title', 'desc', 'value', 'valueSource', 'defaultValue'];
const PROPERTY = new RegExp(`<property type="(\\w+)"( aType="\\w*")?>\\s*${
  FIELDS.map((name) => `<${name}>([^<]*)</${name}>`).join('\\s*')}`, 'g');

function plain(text) {
  return text.replaceAll('&lt;', '<').replaceAll('&gt;', '>').replaceAll('&amp;', '&');
}

/** The properties of a template at every depth, in the order of its file; a check box counts as pt_bool. */
export function readProperties(templateFolder) {
  const xml = readFileSync(path.join(templateFolder, 'flashTemplate.xml'), 'utf8');
  const found = Array.from(xml.matchAll(PROPERTY), ([, type, check, ...texts]) => ({
    type: check ? 'pt_bool' : type,
    ...Object.fromEntries(FIELDS.map((name, index) => [name, plain(texts[index])])),
  }));
  const count = xml.split('<property ').length - 1;
  if (found.length !== count) throw new Error(`${count - found.length} properties were not understood`);
  return found;
}
