#!/usr/bin/env python3
"""Writes the sample pictures, and the seeds of the fuzz targets of the picture readers.

  tools/make_pictures.py

The same bytes come out of every run. samples/pictures holds pictures as users have them; a seed has a few pixels
and shows one variant or one refusal.
"""
import pathlib
import struct

ROOT = pathlib.Path(__file__).resolve().parent.parent


def disc(width, height, inner, outer):
    """Rows of (red, green, blue): a shaded disc on a ground that grows darker downwards."""
    rows = []
    for y in range(height):
        row = []
        for x in range(width):
            dx, dy = 2 * x + 1 - width, 2 * y + 1 - height
            near = (dx * dx + dy * dy) * 4 < min(width, height) ** 2 * 3
            color, light = (inner, 3 * height - 2 * y) if near else (outer, 3 * height - y)
            row.append(tuple(c * light // (3 * height) for c in color))
        rows.append(row)
    return rows


def indexed(rows):
    """The same as rows of indices and the colours in the order of their first pixel."""
    colors = list(dict.fromkeys(pixel for row in rows for pixel in row))
    return [bytes(colors.index(pixel) for pixel in row) for row in rows], colors


def bgr(pixel):
    return bytes(reversed(pixel))


def bmp(rows, colors=(), used=0, info_size=40, offset=None, **fields):
    """24 bits, or 8 with colours: `used` is what the header states of them, 0 standing for 256."""
    bits = 8 if colors else 24
    info = struct.pack('<IiiHHIIiiII', info_size, fields.get('width', len(rows[0])),
                       fields.get('height', len(rows)), 1, bits, fields.get('compression', 0),
                       0, 0, 0, used, 0)[:info_size]
    palette = b''.join(bgr(color) + b'\0' for color in colors)
    palette = palette.ljust(4 * (used or 256) if colors else 0, b'\0')
    body = b''
    for row in reversed(rows):
        line = row if colors else b''.join(map(bgr, row))
        body += line + b'\0' * (-len(line) % 4)
    at = 14 + info_size + len(palette)
    size = at + len(body)
    return struct.pack('<2sIHHI', b'BM', size, 0, 0, at if offset is None else offset) + info + palette + body


def runs(line):
    """Run-length coded; runs of two and more, and bytes that would read as a run."""
    coded, at = b'', 0
    while at < len(line):
        length = 1
        while length < 63 and line[at + length:at + length + 1] == line[at:at + 1]:
            length += 1
        marked = length > 1 or line[at] >= 0xC0
        coded += bytes([0xC0 | length, line[at]]) if marked else line[at:at + 1]
        at += length
    return coded


def pcx(rows, colors=(), coded=True, padding=0, marker=b'\x0c'):
    width, height, planes = len(rows[0]), len(rows), 1 if colors else 3
    header = struct.pack('<4B6H48xBBHH', 10, 5, int(coded), 8, 0, 0, width - 1, height - 1, 75, 75,
                         0, planes, width + padding, 1).ljust(128, b'\0')
    lines = [row + b'\0' * padding if colors else
             b''.join(bytes(pixel[plane] for pixel in row) + b'\0' * padding for plane in range(3))
             for row in rows]
    body = b''.join(map(runs, lines)) if coded else b''.join(lines)
    palette = marker + b''.join(map(bytes, colors)).ljust(768, b'\0') if colors else b''
    return header + body + palette


def packets(pixels):
    """Run-length coded packets, which may cross the ends of rows."""
    coded, at = b'', 0
    while at < len(pixels):
        length = 1
        while at + length < len(pixels) and length < 128 and pixels[at + length] == pixels[at]:
            length += 1
        if length > 1:
            coded += bytes([0x80 | length - 1]) + pixels[at]
        else:
            while at + length < len(pixels) and length < 128 and pixels[at + length] != pixels[at + length - 1]:
                length += 1
            coded += bytes([length - 1]) + b''.join(pixels[at:at + length])
        at += length
    return coded


def tga(rows, alpha=None, coded=False, identification=b'', **fields):
    depth = 24 if alpha is None else 32
    header = struct.pack('<3B9x2H2B', len(identification), fields.get('map', 0),
                         fields.get('type', 10 if coded else 2), len(rows[0]), len(rows),
                         fields.get('depth', depth), fields.get('descriptor', 0))
    tail = b'' if alpha is None else bytes([alpha])
    pixels = [bgr(pixel) + tail for row in reversed(rows) for pixel in row]
    return header + identification + (packets(pixels) if coded else b''.join(pixels))


def dds(width, height, size=124, flags=0x1007):
    """A header and one block of four by four pixels."""
    header = struct.pack('<4s4I', b'DDS ', size, flags, height, width).ljust(128, b'\0')
    return header + bytes.fromhex('00f81f000055aaff')


def samples():
    hero, hero_colors = indexed(disc(48, 40, (230, 180, 60), (40, 60, 110)))
    camera, camera_colors = indexed(disc(30, 24, (90, 90, 100), (200, 210, 220)))
    guard, guard_colors = indexed(disc(40, 16, (190, 40, 40), (120, 120, 90)))
    sky = disc(64, 24, (255, 240, 170), (110, 160, 230))
    return {
        'hero.pcx': pcx(hero, hero_colors),
        'title.pcx': pcx(disc(95, 20, (250, 220, 120), (70, 40, 90)), padding=1),
        'camera.pcx': pcx(camera, camera_colors, coded=False),
        'guard.bmp': bmp(guard, guard_colors, used=len(guard_colors)),
        'gate.bmp': bmp(disc(33, 25, (150, 110, 60), (60, 90, 50))),
        'sky.tga': tga(sky, coded=True),
        'lantern.tga': tga(disc(17, 21, (255, 200, 90), (20, 20, 30)), identification=b'Lamplight'),
        'flame.tga': tga(disc(16, 24, (255, 140, 20), (0, 0, 0)), alpha=128, coded=True),
        'wall.dds': dds(4, 4),
    }


def seeds():
    rows = disc(5, 4, (250, 120, 30), (200, 20, 255))
    flat = [[(200, 100, 50)] * 150, [(200, 100, 50)] * 150]
    indices, colors = indexed(rows)
    high, high_colors = [bytes([0xC1, 0xC1, 0xFF, 3])] * 3, [(1, 2, 3)] * 256
    one = pcx(indices, colors)
    true = bmp(rows)
    return {
        'bmp/true_color': true,
        'bmp/few_colors': bmp(indices, colors, used=len(colors)),
        'bmp/all_colors': bmp(indices, colors),
        'bmp/short_info': bmp(rows, info_size=16),
        'bmp/pixels_at_0': bmp(rows, offset=0),
        'bmp/palette_last': bmp(indices, colors, used=16, offset=54),
        'bmp/top_down': bmp(rows, height=-4),
        'bmp/coded': bmp(indices, colors, used=16, compression=1),
        'bmp/wide': bmp(rows, width=0x55555556, height=3),
        'bmp/cut': true[:-1],
        'pcx/one_plane': one,
        'pcx/one_plane_padded': pcx(indices, colors, padding=3),
        'pcx/not_coded': pcx(indices, colors, coded=False, padding=1),
        'pcx/three_planes': pcx(rows),
        'pcx/three_planes_padded': pcx(rows, padding=2),
        'pcx/long_runs': pcx(flat, padding=40),
        'pcx/high_values': pcx(high, high_colors),
        'pcx/empty_run': one[:128] + b'\xc0\x07' + one[128:],
        'pcx/no_marker': pcx(indices, colors, marker=b'\x55'),
        'pcx/no_palette': one[:-769],
        'pcx/huge': one[:4] + b'\0\0\0\0\xfe\xff\xff\xff' + one[12:66] + b'\xff\xff' + one[68:],
        'tga/true_color': tga(rows),
        'tga/alpha': tga(rows, alpha=77),
        'tga/packets': tga(rows, coded=True),
        'tga/packets_alpha': tga(rows, alpha=77, coded=True),
        'tga/long_runs': tga(flat, coded=True),
        'tga/long_runs_alpha': tga(flat, alpha=1, coded=True),
        'tga/identification': tga(rows, identification=b'seed'),
        'tga/color_map': tga(rows, map=1, type=1),
        'tga/sixteen_bits': tga(rows, depth=16),
        'tga/cut': tga(rows, coded=True)[:-1],
        'dds/known': dds(4, 4),
        'dds/shortest': dds(0xFFFFFFFF, 0)[:20],
        'dds/flag_missing': dds(4, 4, flags=0x1003),
    }


def write(folder, files):
    for name, content in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


if __name__ == '__main__':
    write(ROOT / 'samples/pictures', samples())
    write(ROOT / 'fuzz/corpus', seeds())
