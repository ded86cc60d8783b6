import assert from 'node:assert/strict';
import { test } from 'node:test';
import { findPlatform, timespan, Visit } from '../../web/course.js';

test('finds the platform in the frames around the book and around the window that opened it', () => {
  const top = (more) => {
    const place = { opener: null, ...more };
    place.parent = place;
    return place;
  };
  const platform = {};
  const strange = Object.defineProperty({}, 'API', { get() { throw new Error('of another server'); } });
  assert.equal(findPlatform(top({})), null);
  assert.equal(findPlatform({ parent: top({ API: platform }) }), platform);
  assert.equal(findPlatform({ parent: Object.assign(strange, { parent: top({ API: platform }) }) }), platform);
  assert.equal(findPlatform({ parent: top({ opener: { parent: top({ API: platform }) } }) }), platform);
  const one = top({});
  one.opener = top({ opener: one });
  assert.equal(findPlatform(one), null, 'windows that opened each other');
});

test('writes durations as the format wants them', () => {
  const table = [[0, '0000:00:00'], [59_999, '0000:00:59'], [3_661_000, '0001:01:01'], [1e15, '9999:00:00']];
  for (const [time, text] of table) assert.equal(timespan(time), text);
});

/** A platform that records the calls. */
function platformWith(values, initialized = 'true') {
  const calls = [];
  const note = (name) => (...given) => { calls.push([name, ...given].join(' ').trim()); return 'true'; };
  return {
    calls,
    LMSInitialize: () => initialized,
    LMSGetValue: (name) => values[name] ?? '',
    LMSSetValue: note('set'),
    LMSCommit: note('commit'),
    LMSFinish: note('finish'),
  };
}

test('reports no more often than platforms bear, but always the end of book and visit', () => {
  let time = 0;
  const platform = platformWith({ 'cmi.core.lesson_location': '7' });
  const visit = new Visit(platform, () => time);
  const commits = () => platform.calls.filter((call) => call === 'commit').length;
  assert.equal(visit.page, 7);
  visit.show(1);
  time = 19_999;
  visit.show(2);
  assert.equal(commits(), 1);
  time = 20_000;
  visit.show(3);
  assert.equal(commits(), 2);
  visit.complete();
  visit.complete();
  assert.equal(commits(), 3);
  visit.end();
  assert.deepEqual(platform.calls.slice(-4),
    ['set cmi.core.exit suspend', 'set cmi.core.session_time 0000:00:20', 'commit', 'finish']);
  const { length } = platform.calls;
  visit.show(4);
  visit.end();
  assert.equal(platform.calls.length, length, 'after its end');
});

test('leaves results of earlier visits, and a platform that is not ready, alone', () => {
  for (const status of ['completed', 'passed', 'failed']) {
    const platform = platformWith({ 'cmi.core.lesson_status': status, 'cmi.core.lesson_location': 'iv' });
    const visit = new Visit(platform, () => 0);
    visit.complete();
    assert.deepEqual([platform.calls, visit.page], [[], 0]);
  }
  const closed = platformWith({}, 'false');
  const visit = new Visit(closed, () => 0);
  visit.show(3);
  visit.end();
  assert.deepEqual(closed.calls, []);
});
