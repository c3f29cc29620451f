#!/usr/bin/env python3
"""Draws the icons of the messages and writes them beside this script (32 x 32 and 16 x 16 pixels, 32 bits).

Each picture is a list of shapes in a square from 0 to 1 with y down; a pixel averages 8 x 8 samples.
"""
import math
import pathlib
import struct

SAMPLES = 8
BLUE, GREEN, AMBER = (0x2B, 0x6C, 0xB0), (0x2F, 0x85, 0x5A), (0xF6, 0xB7, 0x1E)
WHITE, BLACK = (0xFF, 0xFF, 0xFF), (0x20, 0x20, 0x20)


def disc(x, y, radius):
    return lambda px, py: math.hypot(px - x, py - y) <= radius


def bar(x1, y1, x2, y2):
    return lambda px, py: x1 <= px <= x2 and y1 <= py <= y2


def ring(x, y, inner, outer, first, last):
    """The part of a ring between two angles in degrees, clockwise from the x axis."""
    def inside(px, py):
        angle = math.degrees(math.atan2(py - y, px - x)) % 360
        return inner <= math.hypot(px - x, py - y) <= outer and (angle - first) % 360 <= last - first
    return inside


def triangle(top, left, right, bottom):
    def inside(px, py):
        share = (py - top) / (bottom - top)
        half = share * (right - left) / 2
        return 0 <= share <= 1 and abs(px - (left + right) / 2) <= half
    return inside


PICTURES = {
    "message_plain": [(BLUE, disc(.5, .5, .48)), (WHITE, disc(.5, .26, .085)), (WHITE, bar(.43, .42, .57, .8))],
    "message_question": [
        (GREEN, disc(.5, .5, .48)), (WHITE, ring(.5, .36, .11, .22, 180, 450)), (WHITE, bar(.445, .47, .555, .64)),
        (WHITE, disc(.5, .77, .075))],
    "message_warning": [
        (AMBER, triangle(.04, -.02, 1.02, .95)), (BLACK, bar(.445, .36, .555, .68)), (BLACK, disc(.5, .81, .07))],
}


def sample(shapes, x, y):
    colour = None
    for shape_colour, inside in shapes:
        if inside(x, y):
            colour = shape_colour
    return colour


def pixel(shapes, column, row, size):
    """Blue, green, red, alpha."""
    step = 1 / (size * SAMPLES)
    hits = [sample(shapes, column / size + (i + .5) * step, row / size + (j + .5) * step)
            for i in range(SAMPLES) for j in range(SAMPLES)]
    hits = [hit for hit in hits if hit]
    if not hits:
        return bytes(4)
    mean = [round(sum(hit[channel] for hit in hits) / len(hits)) for channel in range(3)]
    return bytes([mean[2], mean[1], mean[0], round(255 * len(hits) / SAMPLES ** 2)])


def image(shapes, size):
    """A bitmap with its header: the colours, then a mask of one bit a pixel, both from the bottom row up."""
    rows = [[pixel(shapes, column, row, size) for column in range(size)] for row in reversed(range(size))]
    mask = b""
    for row in rows:
        bits = "".join("0" if value[3] >= 128 else "1" for value in row).ljust((size + 31) // 32 * 32, "0")
        mask += int(bits, 2).to_bytes(len(bits) // 8, "big")
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    return header + b"".join(b"".join(row) for row in rows) + mask


def icon(shapes):
    sizes = (32, 16)
    images = [image(shapes, size) for size in sizes]
    offset = 6 + 16 * len(images)
    entries = b""
    for size, data in zip(sizes, images):
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return struct.pack("<HHH", 0, 1, len(images)) + entries + b"".join(images)


if __name__ == "__main__":
    folder = pathlib.Path(__file__).parent
    for name, shapes in PICTURES.items():
        (folder / (name + ".ico")).write_bytes(icon(shapes))
