// Storage of the kind that S3 has, in a folder; prints the port. Usage: s3-server.mjs MODULES FOLDER BUCKET
import { createRequire } from 'node:module';
import { join } from 'node:path';

const [modules, directory, bucket] = process.argv.slice(2);
const S3rver = createRequire(join(modules, 'x'))('@20minutes/s3rver');
const server = new S3rver({
  port: 0, address: '127.0.0.1', silent: true, directory, configureBuckets: [{ name: bucket }],
});
console.log((await server.run()).port);
