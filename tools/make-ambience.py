#!/usr/bin/env python3
"""Synthesises the quiet sounds that accompany some styles, as WAV files that repeat without a seam.

Usage: make-ambience.py rain|waves|night|projector OUTPUT.wav

A sound made of noise is longer than what is kept of it: its end is blended into its beginning. Each
sound also breathes, and is softest where it begins again, so that a player that leaves a short gap
there is not noticed.
"""

import math
import random
import sys

import soundfile

RATE = 32000


class LowPass:
    """Takes the sharpness out of noise; one pole."""

    def __init__(self, frequency):
        self.part = 1 - math.exp(-2 * math.pi * frequency / RATE)
        self.level = 0.0

    def next(self, sample):
        self.level += self.part * (sample - self.level)
        return self.level


class Ring:
    """A small body that rings at its pitch when it is struck and dies away."""

    def __init__(self, frequency, seconds):
        self.decay = math.exp(-1 / (seconds * RATE))
        angle = 2 * math.pi * frequency / RATE
        self.factor = 2 * self.decay * math.cos(angle)
        self.first = self.second = 0.0

    def next(self, strike):
        level = strike + self.factor * self.first - self.decay * self.decay * self.second
        self.second, self.first = self.first, level
        return level


def breath(t, length, depth):
    """1 in the middle, 1 - depth where the sound begins again."""
    return 1 - depth * (0.5 + 0.5 * math.cos(2 * math.pi * t / length))


def rain(length):
    """Rain at a window: a soft hiss, a dark murmur and drops that tap on the pane."""
    chance = random.Random(3)
    hiss, edge, murmur = LowPass(5200), LowPass(900), LowPass(260)
    panes = [Ring(pitch, 0.006) for pitch in (1150, 1600, 2150, 2700)]
    while True:
        t = yield
        noise = chance.uniform(-1, 1)
        bright = hiss.next(noise)
        sound = 0.5 * (bright - edge.next(bright)) + 1.6 * murmur.next(noise)
        for pane in panes:
            struck = chance.random() < 5 / RATE
            sound += pane.next(chance.uniform(0.1, 0.5) ** 2 if struck else 0.0)
        yield sound * breath(t, length, 0.55) * (1 + 0.12 * math.sin(2 * math.pi * 3 * t / length))


def waves(length):
    """A calm sea: three waves of different size roll in, break softly and draw back over the sand."""
    chance = random.Random(9)
    deep, body, foam, edge = LowPass(180), LowPass(700), LowPass(4200), LowPass(1100)
    rolls = [(0.18, 1.0), (0.52, 0.7), (0.8, 0.85)]
    while True:
        t = yield
        noise = chance.uniform(-1, 1)
        swell = wash = 0.0
        for middle, size in rolls:
            away = (t / length - middle + 0.5) % 1 - 0.5
            swell += size * math.exp(-((away / (0.05 if away < 0 else 0.09)) ** 2))
            late = away - 0.035
            wash += size * math.exp(-((late / (0.025 if late < 0 else 0.1)) ** 2))
        bright = foam.next(noise)
        yield (2.4 * deep.next(noise) * (0.25 + swell) + 1.1 * body.next(noise) * swell
               + 0.55 * (bright - edge.next(bright)) * (0.06 + wash))


NIGHT_CHORDS = [(110.0, 164.81, 220.0, 277.18, 329.63), (92.5, 138.59, 220.0, 277.18, 329.63),
                (146.83, 220.0, 277.18, 329.63, 369.99), (123.47, 164.81, 207.65, 246.94, 369.99)]


def night(length):
    """Four slow chords of soft tones that slide into one another."""
    share = length / len(NIGHT_CHORDS)
    while True:
        t = yield
        sound = 0.0
        for number, chord in enumerate(NIGHT_CHORDS):
            away = (t / share - number - 0.5 + len(NIGHT_CHORDS) / 2) % len(NIGHT_CHORDS) - len(NIGHT_CHORDS) / 2
            if abs(away) >= 0.85:
                continue
            level = math.cos(math.pi / 2 * away / 0.85) ** 2
            for voice, pitch in enumerate(chord):
                # Whole turns within the length, so that the tones meet themselves again.
                turns = round(pitch * length) + 0.0
                phase = 2 * math.pi * turns * t / length
                drift = 0.7 * math.sin(2 * math.pi * (voice + 2) * t / length)
                sound += level * (0.6 ** (voice / 2)) * (
                    math.sin(phase + drift) + 0.25 * math.sin(2 * phase + drift) + 0.07 * math.sin(3 * phase))
        yield sound * breath(t, length, 0.25)


def projector(length):
    """A film projector in the next room: the hum of its motor and the soft clatter of the film."""
    chance = random.Random(21)
    air, tick = LowPass(900), LowPass(2200)
    gate = [Ring(pitch, 0.004) for pitch in (620, 1040)]
    beat = 18
    last = -1
    while True:
        t = yield
        noise = chance.uniform(-1, 1)
        hum = sum(level * math.sin(2 * math.pi * round(pitch * length) * t / length)
                  for pitch, level in ((50, 0.5), (100, 0.35), (150, 0.12), (200, 0.06)))
        number = int(t * beat)
        strike = 0.0
        if number != last:
            last = number
            strike = 0.5 + 0.12 * chance.uniform(-1, 1) + (0.15 if number % 2 else 0)
        within = t * beat - number
        clatter = tick.next(noise) * math.exp(-within * 7) * 0.35
        sound = 0.3 * hum + 0.9 * air.next(noise) + clatter + sum(0.16 * ring.next(strike) for ring in gate)
        yield sound * breath(t, length, 0.5)


# Length and blended part in seconds and loudest sample of each sound.
SOUNDS = {
    "rain": (rain, 22, 2, 0.16),
    "waves": (waves, 27, 2, 0.2),
    "night": (night, 28, 0, 0.14),
    "projector": (projector, 18, 2, 0.12),
}


def looped(make, length, blend):
    """One round of a sound, its first seconds blended with what would have followed its last."""
    source = make(length)
    samples = []
    for n in range(RATE * (length + blend)):
        next(source)
        samples.append(source.send(n / RATE))
    kept = RATE * length
    for n in range(RATE * blend):
        share = n / (RATE * blend)
        samples[n] = samples[n] * math.sin(share * math.pi / 2) + samples[kept + n] * math.cos(share * math.pi / 2)
    return samples[:kept]


def main():
    make, length, blend, peak = SOUNDS[sys.argv[1]]
    soundfile.write(sys.argv[2], looped(make, length, blend), RATE, peak)


main()
