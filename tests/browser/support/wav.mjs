/** A sound file of silence. */
export function silence(seconds) {
  const rate = 8000;
  const samples = Buffer.alloc(Math.round(seconds * rate), 128);
  const header = Buffer.from('RIFF....WAVEfmt \x10\0\0\0\x01\0\x01\0................data....', 'latin1').subarray(0, 44);
  header.writeUInt32LE(36 + samples.length, 4);
  header.writeUInt32LE(rate, 24);
  header.writeUInt32LE(rate, 28);
  header.writeUInt16LE(1, 32);
  header.writeUInt16LE(8, 34);
  header.write('data', 36, 'latin1');
  header.writeUInt32LE(samples.length, 40);
  return Buffer.concat([header, samples]);
}
