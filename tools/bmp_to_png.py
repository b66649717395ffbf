#!/usr/bin/env python3
"""Turns 24-bit bottom-up BMP files, as the demos write them, into PNG files.

usage: bmp_to_png.py FILE.bmp FILE.png
"""
import struct
import sys
import zlib


def read_bmp(path):
    data = open(path, "rb").read()
    offset, = struct.unpack_from("<I", data, 10)
    width, height = struct.unpack_from("<ii", data, 18)
    bits, = struct.unpack_from("<H", data, 28)
    if data[:2] != b"BM" or bits != 24 or height <= 0:
        sys.exit(f"{path}: no 24-bit bottom-up bitmap")
    stride = (width * 3 + 3) // 4 * 4
    rows = []
    for y in reversed(range(height)):
        row = bytearray(data[offset + y * stride:offset + y * stride + width * 3])
        row[0::3], row[2::3] = row[2::3], row[0::3]
        rows.append(bytes(row))
    return width, height, rows


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


def write_png(path, width, height, rows):
    pixels = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                  chunk(b"IDAT", pixels) + chunk(b"IEND", b""))


if len(sys.argv) != 3:
    sys.exit(__doc__)
write_png(sys.argv[2], *read_bmp(sys.argv[1]))
