"""Writes WAV files, for the scripts that synthesise sounds."""

import struct
import wave


def write(path, samples, rate, peak):
    """One channel of 16 bits; the loudest sample comes out at the peak, a share of full scale."""
    scale = peak * 32767 / max(abs(sample) for sample in samples)
    with wave.open(path, "wb") as output:
        output.setnchannels(1)
        output.setsampwidth(2)
        output.setframerate(rate)
        output.writeframes(b"".join(struct.pack("<h", int(sample * scale)) for sample in samples))
