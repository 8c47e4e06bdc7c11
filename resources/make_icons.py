#!/usr/bin/python3
"""Draws the program's icon for the desktop: a keyboard key with Ж on a Russian-flag skirt.

Run with Debian's interpreter, which has Pillow and fontTools (python3-pil, python3-fonttools):

    /usr/bin/python3 resources/make_icons.py

It rewrites dist/icons/hicolor/<n>x<n>/apps/<id>.png for every size of the hicolor theme
and dist/icons/hicolor/scalable/apps/<id>.svg. Both come from one list of shapes on a
256-unit grid, so the scalable icon and the pixel sizes cannot drift apart. Like the
resource generator, the output depends only on this script, Pillow and the DejaVu fonts.
"""

import os
import sys

from fontTools.pens.recordingPen import RecordingPen
from fontTools.ttLib import TTFont
from PIL import Image, ImageDraw

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from make_resources import FLAG_BLUE, FLAG_RED, FLAG_WHITE, FONT_DIR, FONT_FILES  # noqa: E402

APP_ID = "io.github.vortic.VorticTypingRussian"
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
HICOLOR = os.path.join(ROOT, "dist", "icons", "hicolor")
SIZES = (16, 32, 48, 64, 128, 256)
GRID = 256

# Small sizes are drawn this many pixels per grid unit and box-filtered down, so a
# 16 px icon gets the same anti-aliasing as the large ones.
RENDER = 1024

BODY = (12, 14, 244, 246)
FACE = (26, 20, 230, 196)
SKIRT = (40, 203, 216, 237)
KEY_DARK = (10, 27, 84)
FACE_TOP = (88, 146, 250)
FACE_BOTTOM = FLAG_BLUE
GLYPH_CENTRE = (128, 110)
GLYPH_WIDTH = 160
SHADOW_DROP = 5


def glyph_outline(char, width, centre):
    """The outline of one DejaVu Sans Bold glyph as polygons in grid units, sized to width.

    The Cyrillic capitals we use there are drawn with straight lines only, which keeps the
    SVG path and the pixel polygons identical; a curved glyph would need flattening first.
    """
    font = TTFont(os.path.join(FONT_DIR, FONT_FILES["bold"]))
    glyphs = font.getGlyphSet()
    pen = RecordingPen()
    glyphs[font.getBestCmap()[ord(char)]].draw(pen)
    contours, points = [], []
    for op, args in pen.value:
        if op in ("moveTo", "lineTo"):
            points.append(args[0])
        elif op in ("closePath", "endPath"):
            contours.append(points)
            points = []
        else:
            sys.exit("%s has curves; flatten them before drawing" % char)
    xs = [x for c in contours for x, _ in c]
    ys = [y for c in contours for _, y in c]
    scale = width / (max(xs) - min(xs))
    cx, cy = (max(xs) + min(xs)) / 2, (max(ys) + min(ys)) / 2
    # Font units grow upwards, the grid grows downwards.
    return [[(centre[0] + (x - cx) * scale, centre[1] - (y - cy) * scale) for x, y in c]
            for c in contours]


def shapes():
    """The icon, back to front: (kind, geometry, fill, opacity).

    kind "rect" takes (x0, y0, x1, y1, radius), "polygons" a list of point lists; fill is a
    colour or ("vertical", top, bottom) for a gradient across the shape's height.
    """
    glyph = glyph_outline("Ж", GLYPH_WIDTH, GLYPH_CENTRE)
    shadow = [[(x, y + SHADOW_DROP) for x, y in c] for c in glyph]
    x0, y0, x1, y1 = SKIRT
    band = (y1 - y0) / 3
    return [
        ("rect", BODY + (44,), KEY_DARK, 1.0),
        ("rect", FACE + (32,), ("vertical", FACE_TOP, FACE_BOTTOM), 1.0),
        ("rect", (x0, y0, x1, y0 + band, 3), FLAG_WHITE, 1.0),
        ("rect", (x0, y0 + band, x1, y0 + 2 * band, 0), FLAG_BLUE, 1.0),
        ("rect", (x0, y0 + 2 * band, x1, y1, 3), FLAG_RED, 1.0),
        ("polygons", shadow, KEY_DARK, 0.55),
        ("polygons", glyph, FLAG_WHITE, 1.0),
    ]


def hex_colour(colour):
    return "#%02x%02x%02x" % tuple(colour[:3])


def num(value):
    return ("%.2f" % value).rstrip("0").rstrip(".")


def svg():
    defs, body = [], []
    for i, (kind, geometry, fill, opacity) in enumerate(shapes()):
        if isinstance(fill, tuple) and fill[0] == "vertical":
            gid = "shade%d" % i
            defs.append('    <linearGradient id="%s" x1="0" y1="0" x2="0" y2="1">\n'
                        '      <stop offset="0" stop-color="%s"/>\n'
                        '      <stop offset="1" stop-color="%s"/>\n'
                        '    </linearGradient>\n' % (gid, hex_colour(fill[1]), hex_colour(fill[2])))
            paint = "url(#%s)" % gid
        else:
            paint = hex_colour(fill)
        extra = "" if opacity == 1.0 else ' fill-opacity="%s"' % num(opacity)
        if kind == "rect":
            x0, y0, x1, y1, r = geometry
            body.append('  <rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s"%s/>\n'
                        % (num(x0), num(y0), num(x1 - x0), num(y1 - y0), num(r), paint, extra))
        else:
            d = " ".join("M" + " L".join("%s %s" % (num(x), num(y)) for x, y in c) + " Z"
                         for c in geometry)
            body.append('  <path d="%s" fill="%s"%s/>\n' % (d, paint, extra))
    return ('<?xml version="1.0" encoding="UTF-8"?>\n'
            '<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d">\n'
            '  <defs>\n%s  </defs>\n%s</svg>\n'
            % (GRID, GRID, GRID, GRID, "".join(defs), "".join(body)))


def vertical_gradient(size, top, bottom):
    w, h = size
    column = Image.new("RGB", (1, h))
    for y in range(h):
        t = y / max(1, h - 1)
        column.putpixel((0, y), tuple(int(round(a + (b - a) * t)) for a, b in zip(top, bottom)))
    return column.resize((w, h), Image.Resampling.NEAREST)


def png(size):
    k = max(1, RENDER // size) * size / GRID
    full = int(round(GRID * k))
    im = Image.new("RGBA", (full, full), (0, 0, 0, 0))
    for kind, geometry, fill, opacity in shapes():
        mask = Image.new("L", (full, full), 0)
        draw = ImageDraw.Draw(mask)
        if kind == "rect":
            x0, y0, x1, y1, r = geometry
            draw.rounded_rectangle([x0 * k, y0 * k, x1 * k - 1, y1 * k - 1], radius=r * k,
                                   fill=255)
        else:
            for contour in geometry:
                draw.polygon([(x * k, y * k) for x, y in contour], fill=255)
        if opacity != 1.0:
            mask = mask.point(lambda v: int(round(v * opacity)))
        if isinstance(fill, tuple) and fill[0] == "vertical":
            box = mask.getbbox()
            paint = Image.new("RGB", (full, full))
            paint.paste(vertical_gradient((box[2] - box[0], box[3] - box[1]), fill[1], fill[2]),
                        box[:2])
        else:
            paint = Image.new("RGB", (full, full), tuple(fill[:3]))
        layer = paint.convert("RGBA")
        layer.putalpha(mask)
        im = Image.alpha_composite(im, layer)
    # Premultiplied, so the transparent margin does not bleed colour into the edges.
    return im.convert("RGBa").resize((size, size), Image.Resampling.BOX).convert("RGBA")


def main():
    for size in SIZES:
        folder = os.path.join(HICOLOR, "%dx%d" % (size, size), "apps")
        os.makedirs(folder, exist_ok=True)
        png(size).save(os.path.join(folder, APP_ID + ".png"), "PNG", optimize=True)
    folder = os.path.join(HICOLOR, "scalable", "apps")
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, APP_ID + ".svg"), "w", encoding="utf-8", newline="\n") as f:
        f.write(svg())
    print("%d sizes and the scalable icon in %s" % (len(SIZES), os.path.relpath(HICOLOR, ROOT)))


if __name__ == "__main__":
    main()
