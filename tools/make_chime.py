#!/usr/bin/env python3
"""Writes packaging/sounds/open-slot.wav, the chime that tells of an open slot. Usage: make_chime.py"""

import math
import pathlib
import struct
import wave

RATE = 22050  # samples a second
LENGTH = 0.56  # seconds
LOUDNESS = 0.42  # of what a sample can hold; leaves room for both notes at once
NOTES = [(0.0, 784.0), (0.13, 1175.0)]  # second of its begin, pitch: a fifth upwards
PARTIALS = [(1, 1.0), (2, 0.22), (3, 0.06)]  # multiple of the pitch, loudness: a struck bar, not an organ
ATTACK, DECAY, FADE = 0.006, 0.11, 0.06  # seconds; without attack and fade a click would be heard


def note(time, pitch):
    """What a note that began `time` seconds ago adds."""
    if time < 0:
        return 0.0
    shape = min(time / ATTACK, 1.0) * math.exp(-time / DECAY)
    return shape * sum(part * math.sin(2 * math.pi * pitch * multiple * time) for multiple, part in PARTIALS)


def sample(index):
    time = index / RATE
    fade = min((LENGTH - time) / FADE, 1.0)
    return round(32767 * LOUDNESS * fade * sum(note(time - begin, pitch) for begin, pitch in NOTES))


def main():
    target = pathlib.Path(__file__).resolve().parent.parent / "packaging/sounds/open-slot.wav"
    samples = [sample(index) for index in range(round(RATE * LENGTH))]
    with wave.open(str(target), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack(f"<{len(samples)}h", *samples))


if __name__ == "__main__":
    main()
