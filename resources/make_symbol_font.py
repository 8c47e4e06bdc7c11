#!/usr/bin/python3
"""Draws the program's symbol font, "Vortic Symbols", into resources/fonts/vortic-symbols.ttf.

The form writes its small buttons and markers as single letters in symbol fonts that a Linux
desktop does not have. At start-up the program maps those families onto this font, so each
letter the form uses must be here and draw the picture the button means. Nothing else is in
the font: any other character falls back to the text fonts, as it would for a missing glyph.

Usage: /usr/bin/python3 resources/make_symbol_font.py [output.ttf]
Needs Debian's python3-fonttools. The output is the same bytes on every run.
"""

import sys
from pathlib import Path

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

FAMILY = "Vortic Symbols"
UNITS_PER_EM = 1000
ASCENT = 800
DESCENT = 200
# A fixed date (2026-01-01) instead of "now", so that reruns change no byte.
TIMESTAMP = 3849984000

# Thickness of every stroke, and the lengths of the arrowheads, in font units.
BAND = 120
HEAD = 240


def clockwise(points):
    """TrueType fills clockwise outlines (y up); overlapping ones then add up, never cut holes."""
    area = sum(x0 * y1 - x1 * y0 for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]))
    return points if area < 0 else list(reversed(points))


def arrow(tail, tip, middle, shaft, head, head_length):
    """A horizontal arrow from x=tail to x=tip around height `middle`."""
    direction = 1 if tip > tail else -1
    neck = tip - direction * head_length
    return [
        (tail, middle - shaft // 2),
        (neck, middle - shaft // 2),
        (neck, middle - head // 2),
        (tip, middle),
        (neck, middle + head // 2),
        (neck, middle + shaft // 2),
        (tail, middle + shaft // 2),
    ]


def band(x0, y0, x1, y1):
    """A stroke of thickness BAND between two points, cut off vertically at both ends."""
    half = BAND // 2
    return [(x0, y0 - half), (x1, y1 - half), (x1, y1 + half), (x0, y0 + half)]


def double_arrow(left, right, middle, shaft, head, head_length):
    return [
        (left, middle),
        (left + head_length, middle + head // 2),
        (left + head_length, middle + shaft // 2),
        (right - head_length, middle + shaft // 2),
        (right - head_length, middle + head // 2),
        (right, middle),
        (right - head_length, middle - head // 2),
        (right - head_length, middle - shaft // 2),
        (left + head_length, middle - shaft // 2),
        (left + head_length, middle - head // 2),
    ]


# Shuffle: two crossing strokes that trade places. "s" draws the crossing; "q", which follows it
# on the random buttons, carries the strokes on to their arrowheads. Each stroke of "q" starts a
# little left of its origin so that rounding of the advance never leaves a gap at the seam.
SHUFFLE_LOW, SHUFFLE_HIGH = 130, 530
SHUFFLE_SEAM = 640

GLYPHS = {
    # Forward and reverse order on the game buttons (18pt in 30 x 25).
    "[": (820, [arrow(60, 780, 330, 200, 460, 300)]),
    "Z": (820, [arrow(760, 40, 330, 200, 460, 300)]),
    # Random order, 16pt in 50 x 25.
    "s": (
        SHUFFLE_SEAM,
        [
            band(40, SHUFFLE_LOW, 180, SHUFFLE_LOW),
            band(40, SHUFFLE_HIGH, 180, SHUFFLE_HIGH),
            band(160, SHUFFLE_LOW, SHUFFLE_SEAM, SHUFFLE_HIGH),
            band(160, SHUFFLE_HIGH, SHUFFLE_SEAM, SHUFFLE_LOW),
        ],
    ),
    "q": (
        620,
        [
            arrow(-30, 580, SHUFFLE_LOW, BAND, 300, HEAD),
            arrow(-30, 580, SHUFFLE_HIGH, BAND, 300, HEAD),
        ],
    ),
    # The arrows that point at the options button and at the menu (58pt in 69 x 59 and in
    # 70 x 56): ink only around the middle of the line, so that the tall size stays inside the
    # short label.
    "_": (800, [arrow(30, 770, 300, 160, 500, 310)]),
    # Swap the two colours of a gradient (30 x 27).
    "D": (900, [double_arrow(40, 860, 330, 150, 420, 260)]),
    # The check mark of an open panel's entry (24pt in 32 x 22): half an em tall, so that it
    # fits the short label.
    "C": (
        760,
        [
            [(50, 290), (150, 390), (290, 250), (600, 560), (700, 460), (290, 50)],
        ],
    ),
}


def draw(contours):
    pen = TTGlyphPen(None)
    for contour in contours:
        points = clockwise(contour)
        pen.moveTo(points[0])
        for point in points[1:]:
            pen.lineTo(point)
        pen.closePath()
    return pen.glyph()


def notdef():
    """An empty box, as fonts show for a character they lack."""
    outer = [(60, 0), (60, 700), (540, 700), (540, 0)]
    inner = [(120, 60), (480, 60), (480, 640), (120, 640)]
    pen = TTGlyphPen(None)
    for points in (clockwise(outer), list(reversed(clockwise(inner)))):
        pen.moveTo(points[0])
        for point in points[1:]:
            pen.lineTo(point)
        pen.closePath()
    return pen.glyph()


def glyph_name(character):
    return "uni%04X" % ord(character)


def build(path):
    order = [".notdef", "space"] + [glyph_name(c) for c in sorted(GLYPHS)]
    glyphs = {".notdef": notdef(), "space": TTGlyphPen(None).glyph()}
    advances = {".notdef": (600, 60), "space": (500, 0)}
    cmap = {0x20: "space"}
    for character, (advance, contours) in GLYPHS.items():
        name = glyph_name(character)
        glyphs[name] = draw(contours)
        cmap[ord(character)] = name
    builder = FontBuilder(UNITS_PER_EM, isTTF=True)
    builder.font.recalcTimestamp = False
    builder.setupGlyphOrder(order)
    builder.setupCharacterMap(cmap)
    builder.setupGlyf(glyphs)
    glyf = builder.font["glyf"]
    for name in order:
        if name not in advances:
            character = next(c for c in GLYPHS if glyph_name(c) == name)
            advances[name] = (GLYPHS[character][0], 0)
        glyf[name].recalcBounds(glyf)
        advances[name] = (advances[name][0], getattr(glyf[name], "xMin", 0))
    builder.setupHorizontalMetrics(advances)
    builder.setupHorizontalHeader(ascent=ASCENT, descent=-DESCENT)
    builder.setupNameTable(
        {
            "familyName": FAMILY,
            "styleName": "Regular",
            "uniqueFontIdentifier": FAMILY + " Regular 1.0",
            "fullName": FAMILY,
            "psName": FAMILY.replace(" ", "") + "-Regular",
            "version": "Version 1.000",
            "copyright": "Drawn for Vortic-Typing: Russian",
        }
    )
    builder.setupOS2(
        sTypoAscender=ASCENT,
        sTypoDescender=-DESCENT,
        sTypoLineGap=0,
        usWinAscent=ASCENT,
        usWinDescent=DESCENT,
        achVendID="VRTC",
        fsType=0,
    )
    builder.setupPost()
    builder.setupHead(created=TIMESTAMP, modified=TIMESTAMP, unitsPerEm=UNITS_PER_EM)
    builder.save(str(path))


def main():
    default = Path(__file__).resolve().parent / "fonts" / "vortic-symbols.ttf"
    path = Path(sys.argv[1]) if len(sys.argv) > 1 else default
    path.parent.mkdir(parents=True, exist_ok=True)
    build(path)
    print("%s: %d symbols" % (path, len(GLYPHS)))


if __name__ == "__main__":
    main()
