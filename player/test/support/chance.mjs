const WORDS = ['', '0', 'page/1.jpg', '../', '$&', '\u{1f600}', '<script>', '</g>', '\n', '!', '&', '"', 'javascript:', '%2e',
  '\ufb03', '\ud800', '\u00df-\n'];

/** Values that a file may hold, the same in each run. */
export class Chance {
  constructor(seed) {
    this.state = seed;
  }

  below(limit) {
    this.state = Math.imul(this.state ^ this.state >>> 15, 0x2c1b3c6d) + 0x6d2b79f5 | 0;
    return ((this.state ^ this.state >>> 12) >>> 0) % limit;
  }

  one(list) {
    return list[this.below(list.length)];
  }

  text() {
    return Array.from({ length: this.below(6) },
      () => this.one([this.one(WORDS), String.fromCharCode(this.below(0x3ff)), this.below(99)])).join('');
  }

  /** Anything that JSON can hold, objects that turn into no text or number among them. */
  value() {
    return this.one([() => null, () => this.one([true, [], 0, -1, 1, 2, 0.5, 90, 1e9, 2 ** 53, Infinity]), () => this.text(),
      () => [this.value(), this.value()], () => ({ toString: this.value(), valueOf: 1 })])();
  }

  /** A sample with some of its values changed. */
  changed(sample) {
    if (this.below(12) === 0) return this.value();
    if (typeof sample !== 'object') return sample;
    const changed = Object.entries(sample).map(([name, value]) => [name, this.changed(value)]);
    return Array.isArray(sample) ? changed.map(([, value]) => value) : Object.fromEntries(changed);
  }
}
