#!/usr/bin/env python3
"""Synthesises the sound of a turning page as a WAV file.

Usage: make-sound.py OUTPUT.wav

A page that is turned is a breath of air, noise in a band that rises and falls, with small crackles
of bending paper in it and a soft pat when it lands.
"""

import math
import random
import sys

import soundfile

RATE = 44100
SECONDS = 0.62
PEAK = 0.5


class BandPass:
    """A two-pole resonator whose centre may move from sample to sample."""

    def __init__(self, sharpness):
        self.sharpness = sharpness
        self.low = 0.0
        self.band = 0.0

    def next(self, sample, frequency):
        f = 2 * math.sin(math.pi * min(frequency, RATE / 7) / RATE)
        self.low += f * self.band
        high = sample - self.low - self.sharpness * self.band
        self.band += f * high
        return self.band


def bump(t, middle, before, after):
    """A smooth hill: 0 far away, 1 at the middle."""
    width = before if t < middle else after
    return math.exp(-(((t - middle) / width) ** 2))


def crackles(chance):
    """Short clicks of paper, each dying away within a few milliseconds."""
    level = 0.0
    while True:
        density = yield level
        level *= 0.93
        if chance.random() < density:
            level += chance.uniform(-0.5, 0.5)


def samples():
    chance = random.Random(7)
    air = BandPass(0.8)
    body = BandPass(1.2)
    pat = BandPass(0.9)
    clicks = crackles(chance)
    next(clicks)
    for n in range(int(RATE * SECONDS)):
        t = n / RATE
        noise = chance.uniform(-1, 1)
        swish = bump(t, 0.2, 0.1, 0.15)
        flutter = 1 + 0.3 * math.sin(2 * math.pi * 23 * t) * bump(t, 0.25, 0.1, 0.1)
        sound = air.next(noise, 900 + 3200 * bump(t, 0.22, 0.13, 0.18)) * swish * flutter
        sound += 0.5 * body.next(noise, 420) * bump(t, 0.16, 0.08, 0.12)
        sound += 0.8 * pat.next(noise, 260) * bump(t, 0.43, 0.012, 0.05)
        sound += 0.22 * clicks.send(0.012 * bump(t, 0.22, 0.12, 0.16))
        ends = min(1.0, t / 0.01, (SECONDS - t) / 0.08)
        yield sound * ends


def main():
    soundfile.write(sys.argv[1], list(samples()), RATE, PEAK)


main()
