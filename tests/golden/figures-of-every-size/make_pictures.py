#!/usr/bin/env python3
"""Makes the pictures of this case: one on each side of every limit of a figure's size.

The pictures have one bit for each pixel and are white with a black frame, so that even the largest
takes a few hundred bytes.
"""
import struct
import zlib
from pathlib import Path

SIZES = {
    "small": (100, 50),
    "just-below-both-limits": (659, 809),
    "just-as-wide": (660, 400),
    "wide": (1201, 801),
    "tall-and-narrow": (100, 2000),
    "just-as-tall": (401, 810),
    "tall": (660, 2000),
    "large-and-wide": (2001, 1000),
    "large-and-square": (1000, 1000),
    "large-and-tall": (1001, 1100),
}


def chunk(kind, data):
    checked = kind + data
    return struct.pack(">I", len(data)) + checked + struct.pack(">I", zlib.crc32(checked))


def picture(width, height):
    def row(inner):
        bits = "0" + inner * (width - 2) + "0"
        bits += "0" * (-len(bits) % 8)
        return b"\0" + bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8))

    rows = row("0") + row("1") * (height - 2) + row("0")
    head = struct.pack(">IIBBBBB", width, height, 1, 0, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows, 9))
            + chunk(b"IEND", b""))


def main():
    folder = Path(__file__).resolve().parent
    for name, size in SIZES.items():
        (folder / f"{name}.png").write_bytes(picture(*size))
    (folder / "no-picture.png").write_text("This is no picture.\n")


if __name__ == "__main__":
    main()
