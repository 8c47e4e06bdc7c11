#!/usr/bin/python3
"""Draws and synthesises every picture, gif and wave file of the resource collection.

Run with Debian's interpreter, which has Pillow (python3-pil):

    /usr/bin/python3 resources/make_resources.py [--keep-screens]

It rewrites resources/files/, resources/resources.qrc and resources/contact_sheet.png.
The screenshots it draws are stand-ins: vortic-screens replaces those it can photograph
from the running program, and --keep-screens leaves any screenshot already in
resources/files/ as it is.
The output depends only on this script, Pillow and the DejaVu fonts: every random
choice comes from a fixed seed and no file carries a time stamp, so a rerun gives
the same bytes.
"""

import argparse
import colorsys
import functools
import math
import os
import random
import struct
import sys
import wave

from PIL import Image, ImageChops, ImageDraw, ImageFilter, ImageFont

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = os.path.join(HERE, "files")
QRC = os.path.join(HERE, "resources.qrc")
SHEET = os.path.join(HERE, "contact_sheet.png")
PREFIX = "/new/prefix1"

# Shapes are drawn this many times larger and box-filtered down, which gives
# clean anti-aliased edges without any drawing library beyond Pillow.
SS = 4

CLEAR = (0, 0, 0, 0)
BLACK = (0, 0, 0, 255)
WHITE = (255, 255, 255, 255)
FLAG_WHITE = (255, 255, 255)
FLAG_BLUE = (0, 57, 166)
FLAG_RED = (213, 43, 30)
NAVY = (24, 44, 112)
GOLD = (255, 215, 0)
FINISHED_GREY = (115, 115, 115)
PANEL = (236, 236, 236)

RUSSIAN_LOWER = "абвгдеёжзийклмнопрстуфхцчшщъыьэюя"
RUSSIAN_UPPER = RUSSIAN_LOWER.upper()

# ---------------------------------------------------------------------------
# Fonts and low-level drawing

FONT_DIR = "/usr/share/fonts/truetype/dejavu"
FONT_FILES = {
    "sans": "DejaVuSans.ttf",
    "bold": "DejaVuSans-Bold.ttf",
    "serif": "DejaVuSerif-Bold.ttf",
    "mono": "DejaVuSansMono-Bold.ttf",
}


@functools.lru_cache(maxsize=None)
def font(kind, px):
    path = os.path.join(FONT_DIR, FONT_FILES[kind])
    if not os.path.exists(path):
        sys.exit("missing %s: apt-get install fonts-dejavu-core" % path)
    return ImageFont.truetype(path, max(1, int(round(px))))


def rgba(color, alpha=255):
    return tuple(color[:3]) + ((color[3],) if len(color) == 4 else (alpha,))


def mix(a, b, t):
    return tuple(int(round(a[i] + (b[i] - a[i]) * t)) for i in range(len(a)))


def hue(h, s=1.0, v=1.0):
    r, g, b = colorsys.hsv_to_rgb(h % 1.0, s, v)
    return (int(r * 255), int(g * 255), int(b * 255))


def gradient(size, stops, horizontal=False):
    """An RGB image running through (position, colour) stops along one axis."""
    w, h = size
    n = w if horizontal else h
    line = Image.new("RGB", (n, 1))
    px = line.load()
    for i in range(n):
        t = i / max(1, n - 1)
        for (p0, c0), (p1, c1) in zip(stops, stops[1:]):
            if p0 <= t <= p1:
                px[i, 0] = mix(c0, c1, (t - p0) / max(1e-9, p1 - p0))
                break
        else:
            px[i, 0] = stops[-1][1] if t > stops[-1][0] else stops[0][1]
    if not horizontal:
        line = line.transpose(Image.Transpose.ROTATE_270).transpose(
            Image.Transpose.FLIP_LEFT_RIGHT)
    return line.resize((w, h), Image.Resampling.NEAREST)


def downscale(im, size):
    # Premultiplied alpha, so transparent pixels do not bleed their colour into edges.
    return im.convert("RGBa").resize(size, Image.Resampling.BOX).convert("RGBA")


class Canvas:
    """An RGBA drawing surface in final-pixel coordinates, rendered supersampled."""

    # Pixels of the finished picture per final-pixel unit: 2 for the @2x twins of HiDPI screens.
    scale = 1

    def __init__(self, w, h, bg=CLEAR, ss=SS):
        self.w, self.h, self.ss = w, h, ss
        self.im = Image.new("RGBA", (w * ss, h * ss), rgba(bg))
        self.draw = ImageDraw.Draw(self.im)

    def _pts(self, pts):
        return [(x * self.ss, y * self.ss) for x, y in pts]

    def _box(self, box):
        x0, y0, x1, y1 = box
        s = self.ss
        return [x0 * s, y0 * s, x1 * s - 1, y1 * s - 1]

    def poly(self, pts, fill, outline=None, width=1.0):
        pts = self._pts(pts)
        if fill is not None:
            self.draw.polygon(pts, fill=rgba(fill))
        if outline is not None:
            self.draw.line(pts + pts[:1], fill=rgba(outline), width=int(width * self.ss),
                           joint="curve")

    def ellipse(self, box, fill, outline=None, width=1.0):
        self.draw.ellipse(self._box(box), fill=None if fill is None else rgba(fill),
                          outline=None if outline is None else rgba(outline),
                          width=int(width * self.ss))

    def circle(self, cx, cy, r, fill, outline=None, width=1.0):
        self.ellipse((cx - r, cy - r, cx + r, cy + r), fill, outline, width)

    def rect(self, box, fill, outline=None, width=1.0, radius=0):
        self.draw.rounded_rectangle(self._box(box), radius=radius * self.ss,
                                    fill=None if fill is None else rgba(fill),
                                    outline=None if outline is None else rgba(outline),
                                    width=int(width * self.ss))

    def line(self, pts, fill, width=1.0, round_ends=True):
        pts = self._pts(pts)
        w = max(1, int(width * self.ss))
        self.draw.line(pts, fill=rgba(fill), width=w, joint="curve")
        if round_ends:
            for x, y in (pts[0], pts[-1]):
                self.draw.ellipse([x - w / 2, y - w / 2, x + w / 2, y + w / 2], fill=rgba(fill))

    def arc(self, box, start, end, fill, width=1.0):
        self.draw.arc(self._box(box), start, end, fill=rgba(fill), width=int(width * self.ss))

    def text(self, x, y, s, px, fill, kind="bold", anchor="mm", stroke=0.0, stroke_fill=None):
        self.draw.text((x * self.ss, y * self.ss), s, font=font(kind, px * self.ss),
                       fill=rgba(fill), anchor=anchor, stroke_width=int(stroke * self.ss),
                       stroke_fill=None if stroke_fill is None else rgba(stroke_fill))

    def layer(self):
        return Canvas(self.w, self.h, CLEAR, self.ss)

    def blend(self, other, blur=0.0):
        im = other.im
        if blur:
            im = im.filter(ImageFilter.GaussianBlur(blur * self.ss))
        self.im = Image.alpha_composite(self.im, im)
        self.draw = ImageDraw.Draw(self.im)

    def image(self):
        size = (self.w * Canvas.scale, self.h * Canvas.scale)
        if self.im.size == size:
            return self.im.copy()
        return downscale(self.im, size)


def arrow_points(cx, cy, length, shaft, head_w, head_l, angle):
    """A block arrow centred on (cx, cy) pointing at `angle` degrees (0 = right, 90 = up)."""
    x0, x1 = -length / 2, length / 2
    xh = x1 - head_l
    pts = [(x0, -shaft / 2), (xh, -shaft / 2), (xh, -head_w / 2), (x1, 0),
           (xh, head_w / 2), (xh, shaft / 2), (x0, shaft / 2)]
    a = math.radians(angle)
    ca, sa = math.cos(a), math.sin(a)
    return [(cx + x * ca + y * sa, cy - x * sa + y * ca) for x, y in pts]


def fit_font(kind, text, max_w, max_h, start):
    px = start
    while px > 4:
        box = font(kind, px).getbbox(text, anchor="mm")
        if box[2] - box[0] <= max_w and box[3] - box[1] <= max_h:
            return px
        px -= 1
    return px


def word_art(w, h, text, kind="bold", stops=((0, (255, 220, 60)), (1, (220, 60, 0))),
             outline=(40, 20, 0), outline_w=0.07, shadow=0.55, slant=0.0, bg=CLEAR,
             gloss=True, horizontal=False, pad=0.06, fill_alpha=255):
    """Text-art title: gradient fill, outline, drop shadow, optional slant and gloss."""
    ss = SS
    W, H = w * ss, h * ss
    avail_w = W * (1 - 2 * pad)
    avail_h = H * (1 - 2 * pad)
    px = H
    while px > 6:
        f = font(kind, px)
        x0, y0, x1, y1 = f.getbbox(text, anchor="mm", stroke_width=int(px * outline_w))
        if (x1 - x0) + abs(slant) * (y1 - y0) <= avail_w and (y1 - y0) <= avail_h * 0.92:
            break
        px -= max(1, px // 40)
    f = font(kind, px)
    sw = max(1, int(px * outline_w)) if outline is not None else 0

    def mask(stroke):
        m = Image.new("L", (W, H), 0)
        ImageDraw.Draw(m).text((W / 2, H / 2), text, font=f, fill=255, anchor="mm",
                               stroke_width=stroke, stroke_fill=255)
        if slant:
            m = m.transform((W, H), Image.Transform.AFFINE,
                            (1, slant, -slant * H / 2, 0, 1, 0), Image.Resampling.BILINEAR)
        return m

    fill_mask = mask(0)
    out_mask = mask(sw) if sw else fill_mask
    bx = out_mask.getbbox() or (0, 0, W, H)
    base = Image.new("RGBA", (W, H), rgba(bg))
    if shadow:
        off = max(2, int(H * 0.045))
        sh = Image.new("L", (W, H), 0)
        sh.paste(out_mask, (off, off))
        sh = sh.filter(ImageFilter.GaussianBlur(H * 0.02))
        sh = sh.point(lambda v: int(v * shadow))
        base.alpha_composite(Image.merge("RGBA", [Image.new("L", (W, H), 0)] * 3 + [sh]))
    if sw:
        ol = Image.new("RGBA", (W, H), rgba(outline))
        ol.putalpha(out_mask)
        base.alpha_composite(ol)
    span = (bx[2] - bx[0], bx[3] - bx[1])
    g = gradient(span, stops, horizontal).convert("RGBA")
    fill = Image.new("RGBA", (W, H), CLEAR)
    fill.paste(g, bx[:2])
    fill.putalpha(fill_mask.point(lambda v: v * fill_alpha // 255))
    base.alpha_composite(fill)
    if gloss:
        # A soft white sheen on the upper half reads as "shiny lettering".
        top = bx[1] + (bx[3] - bx[1]) * 0.5
        ramp = Image.new("L", (1, H), 0)
        for y in range(H):
            ramp.putpixel((0, y), 95 if y < top else 0)
        ramp = ramp.resize((W, H))
        a = ImageChops.multiply(ramp, fill_mask)
        sheen = Image.new("RGBA", (W, H), WHITE)
        sheen.putalpha(a)
        base.alpha_composite(sheen)
    return downscale(base, (w, h))


# ---------------------------------------------------------------------------
# Little pictures

ARROW_ANGLES = {"up": 90, "down": 270, "left": 180, "right": 0, "topleft": 135,
                "topright": 45, "bottomleft": 225, "bottomright": 315}


def dial_arrow(w, h, way, style="plain"):
    """A piece of the nine-point alignment dial: an arrow towards its edge or corner.

    plain: dark arrow with a corner bracket; lit: the same on a blue tile (the
    chosen position); thin: a line arrow.
    """
    c = Canvas(w, h)
    ink = NAVY
    if style == "lit":
        c.rect((1, 1, w - 1, h - 1), (205, 225, 255), outline=(40, 90, 200), width=1.5, radius=5)
        ink = (20, 70, 200)
    if way == "centre":
        c.circle(w / 2, h / 2, w * 0.22, ink)
        c.circle(w / 2, h / 2, w * 0.36, None, outline=ink, width=1.6)
        for dx, dy in ((0, -1), (0, 1), (-1, 0), (1, 0)):
            c.line([(w / 2 + dx * w * 0.36, h / 2 + dy * h * 0.36),
                    (w / 2 + dx * w * 0.47, h / 2 + dy * h * 0.47)], ink, 1.6)
        return c.image()
    a = ARROW_ANGLES[way]
    diag = a % 90 != 0
    length = min(w, h) * (0.78 if diag else 0.66)
    if style == "thin":
        pts = arrow_points(w / 2, h / 2, length, 0.1, min(w, h) * 0.42, min(w, h) * 0.3, a)
        c.line([pts[0], pts[3]], ink, min(w, h) * 0.09)
        c.line([pts[2], pts[3], pts[4]], ink, min(w, h) * 0.09)
    else:
        c.poly(arrow_points(w / 2, h / 2, length, min(w, h) * 0.2, min(w, h) * 0.5,
                            min(w, h) * 0.3, a), ink)
    # Corner bracket (or edge bar) on the side the arrow points to.
    ux, uy = math.cos(math.radians(a)), -math.sin(math.radians(a))
    m, k = 2.5, min(w, h) * 0.28
    ex = w - m if ux > 0.3 else (m if ux < -0.3 else None)
    ey = h - m if uy > 0.3 else (m if uy < -0.3 else None)
    bar = (200, 40, 40) if style != "lit" else (20, 70, 200)
    if ex is not None and ey is not None:
        c.line([(ex, ey - k * math.copysign(1, uy)), (ex, ey), (ex - k * math.copysign(1, ux), ey)],
               bar, 1.8)
    elif ex is not None:
        c.line([(ex, h / 2 - k), (ex, h / 2 + k)], bar, 1.8)
    elif ey is not None:
        c.line([(w / 2 - k, ey), (w / 2 + k, ey)], bar, 1.8)
    return c.image()


def corner_picture(w, h, corner):
    """A wallpaper frame with a small picture parked in one corner."""
    c = Canvas(w, h)
    c.rect((0.5, 0.5, w - 0.5, h - 0.5), (250, 250, 250), outline=(80, 80, 80), width=1, radius=2)
    pw, ph = w * 0.45, h * 0.5
    x = 3 if "left" in corner.lower() else w - 3 - pw
    y = 3 if "top" in corner.lower() else h - 3 - ph
    c.rect((x, y, x + pw, y + ph), (120, 190, 255), outline=(40, 60, 120), width=0.8)
    c.poly([(x, y + ph), (x + pw * 0.4, y + ph * 0.35), (x + pw * 0.7, y + ph * 0.7),
            (x + pw, y + ph * 0.45), (x + pw, y + ph)], (60, 150, 60))
    c.circle(x + pw * 0.75, y + ph * 0.28, ph * 0.13, (255, 220, 0))
    return c.image()


def big_arrow(w, h, way, top, bottom, outline=(60, 0, 0)):
    """A chunky arrow with a gradient fill, for pointing at things on screen."""
    c = Canvas(w, h)
    a = ARROW_ANGLES[way]
    long_side = h if a % 180 else w
    short_side = w if a % 180 else h
    pts = arrow_points(w / 2, h / 2, long_side - 3, short_side * 0.42, short_side - 3,
                       long_side * 0.45, a)
    sh = c.layer()
    sh.poly([(x + 1.5, y + 1.5) for x, y in pts], (0, 0, 0, 110))
    c.blend(sh, blur=1.2)
    mask = Canvas(w, h)
    mask.poly(pts, WHITE)
    g = gradient(c.im.size, [(0, top), (1, bottom)], horizontal=(a % 180 == 0)).convert("RGBA")
    g.putalpha(mask.im.split()[3])
    c.im.alpha_composite(g)
    c.draw = ImageDraw.Draw(c.im)
    c.poly(pts, None, outline=outline, width=1.4)
    return c.image()


def draw_key(c, x, y, w, h, face=(0, 0, 0), english="F", upper="А", lower="а",
             eng_ink=(255, 255, 255), rus_ink=(255, 255, 255), radius=10, border=None,
             scale=1.0):
    c.rect((x, y, x + w, y + h), face, outline=border, width=1.5 * scale, radius=radius)
    s = scale
    # On a round key the corners are gone, so the letters move in towards the middle.
    inset = 0.13 * w if radius >= min(w, h) / 2 - 2 else 0
    c.text(x + 5 * s + inset, y + 3 * s + inset, english, 15 * s, eng_ink, kind="sans",
           anchor="la")
    c.text(x + w - 6 * s - inset, y + 3 * s + inset, upper, 16 * s, rus_ink, kind="sans",
           anchor="ra")
    c.text(x + w - 6 * s - inset, y + h - 4 * s - inset, lower, 16 * s, rus_ink, kind="sans",
           anchor="rd")


def key_picture(w, h, face=(0, 0, 0), eng_ink=WHITE, rus_ink=WHITE, radius=10, border=None,
                english="F", upper="А", lower="а", extra=None):
    c = Canvas(w, h)
    draw_key(c, 1, 1, w - 2, h - 2, face, english, upper, lower, eng_ink, rus_ink, radius,
             border, scale=w / 56)
    if extra:
        extra(c)
    return c.image()


def pointer(c, x, y, s=1.0, fill=WHITE, ink=BLACK):
    """The usual mouse pointer with its tip at (x, y)."""
    pts = [(0, 0), (0, 16), (4, 12.5), (7, 19), (9.5, 18), (6.5, 11.5), (11.5, 11.5)]
    c.poly([(x + px * s, y + py * s) for px, py in pts], fill, outline=ink, width=1.1 * s)


def mouse_over_extra(c):
    pointer(c, c.w * 0.45, c.h * 0.42, c.w / 54)


def paint_key_extra(c):
    w, h = c.w, c.h
    for i in range(6):
        c.rect((w * 0.1 + i * w * 0.13, h * 0.78, w * 0.1 + (i + 1) * w * 0.13, h * 0.9),
               hue(i / 6.0))
    brush(c, w * 0.55, h * 0.1, w * 0.42)


def brush(c, x, y, size):
    """A paint brush lying from top right down to a wet tip at the lower left."""
    s = size / 40.0
    handle = [(x + 36 * s, y + 2 * s), (x + 40 * s, y + 6 * s), (x + 20 * s, y + 26 * s),
              (x + 16 * s, y + 22 * s)]
    c.poly(handle, (170, 90, 30), outline=(90, 40, 10), width=0.8 * s)
    c.poly([(x + 16 * s, y + 22 * s), (x + 20 * s, y + 26 * s), (x + 16 * s, y + 30 * s),
            (x + 12 * s, y + 26 * s)], (190, 190, 200), outline=(90, 90, 100), width=0.8 * s)
    c.poly([(x + 12 * s, y + 26 * s), (x + 16 * s, y + 30 * s), (x + 9 * s, y + 37 * s),
            (x + 3 * s, y + 39 * s), (x + 5 * s, y + 33 * s)], (220, 30, 60),
           outline=(120, 10, 30), width=0.8 * s)


def paint_brush_picture(w, h):
    c = Canvas(w, h)
    c.ellipse((w * 0.05, h * 0.8, w * 0.55, h * 0.98), (220, 30, 60, 200))
    brush(c, w * 0.02, h * 0.0, w * 0.96)
    return c.image()


def folder(c, x, y, w, h, open_by=0.0):
    back = (200, 150, 40)
    front = (250, 200, 70)
    c.rect((x, y + h * 0.12, x + w * 0.45, y + h * 0.3), back, outline=(120, 80, 10), width=0.8,
           radius=w * 0.05)
    c.rect((x, y + h * 0.22, x + w, y + h), back, outline=(120, 80, 10), width=0.8, radius=w * 0.06)
    if open_by:
        c.rect((x + w * 0.15, y + h * (0.3 - 0.25 * open_by), x + w * 0.85, y + h * 0.9),
               (255, 255, 255), outline=(150, 150, 150), width=0.6)
        for i in range(3):
            ly = y + h * (0.4 - 0.25 * open_by + i * 0.12)
            c.line([(x + w * 0.25, ly), (x + w * 0.75, ly)], (150, 150, 170), 0.6)
    lift = h * 0.18 * open_by
    c.poly([(x + w * 0.08 + lift, y + h * 0.42), (x + w + lift * 0.3, y + h * 0.42),
            (x + w * 0.92, y + h), (x, y + h)], front, outline=(150, 100, 10), width=0.8)


def folder_picture(w, h):
    c = Canvas(w, h)
    folder(c, 1, 2, w - 2, h - 4, open_by=0.6)
    return c.image()


def disk_picture(w, h):
    c = Canvas(w, h)
    m = 1.5
    c.poly([(m, m), (w - m - w * 0.16, m), (w - m, m + w * 0.16), (w - m, h - m), (m, h - m)],
           (40, 70, 160), outline=(10, 20, 60), width=1.2)
    c.rect((w * 0.24, m, w * 0.72, h * 0.36), (215, 215, 225), outline=(90, 90, 110), width=0.8)
    c.rect((w * 0.56, h * 0.07, w * 0.66, h * 0.3), (40, 70, 160))
    c.rect((w * 0.16, h * 0.52, w * 0.84, h - m - 1), (250, 250, 250), outline=(90, 90, 110),
           width=0.8, radius=1)
    for i in range(3):
        ly = h * (0.64 + i * 0.1)
        c.line([(w * 0.24, ly), (w * 0.76, ly)], (160, 160, 190), 0.9)
    return c.image()


def video_button_picture(w, h):
    c = Canvas(w, h)
    bw, bh = w - 2, (w - 2) * 0.7
    y0 = (h - bh) / 2
    c.rect((1, y0, 1 + bw, y0 + bh), (230, 20, 20), radius=bh * 0.28)
    cx, cy = w / 2 + w * 0.03, h / 2
    t = bh * 0.24
    c.poly([(cx - t * 0.8, cy - t), (cx - t * 0.8, cy + t), (cx + t * 0.95, cy)], WHITE)
    return c.image()


def colour_wheel(c, cx, cy, r):
    """A hue disc fading to white at the centre, drawn pixel by pixel at supersampled size."""
    ss = c.ss
    R = r * ss
    X, Y = cx * ss, cy * ss
    px = c.im.load()
    for j in range(int(Y - R) - 1, int(Y + R) + 2):
        for i in range(int(X - R) - 1, int(X + R) + 2):
            dx, dy = i + 0.5 - X, j + 0.5 - Y
            d = math.hypot(dx, dy)
            if d <= R and 0 <= i < c.im.width and 0 <= j < c.im.height:
                col = hue(math.atan2(-dy, dx) / (2 * math.pi), min(1.0, d / R * 1.1), 1.0)
                px[i, j] = col + (255,)


def colour_picker_picture(w, h):
    c = Canvas(w, h)
    colour_wheel(c, w / 2, h / 2, min(w, h) / 2 - 1.5)
    c.circle(w / 2, h / 2, min(w, h) / 2 - 1.5, None, outline=(60, 60, 60), width=1.2)
    return c.image()


def palette_picture(w, h):
    c = Canvas(w, h)
    c.ellipse((1, 2, w - 1, h - 2), (225, 190, 140), outline=(120, 80, 40), width=1.2)
    c.ellipse((w * 0.62, h * 0.55, w * 0.8, h * 0.8), CLEAR)
    c.ellipse((w * 0.62, h * 0.55, w * 0.8, h * 0.8), None, outline=(120, 80, 40), width=1)
    for i, (px, py) in enumerate([(0.22, 0.35), (0.4, 0.22), (0.6, 0.25), (0.78, 0.38),
                                  (0.25, 0.62), (0.43, 0.7)]):
        c.circle(w * px, h * py, min(w, h) * 0.1, hue(i / 6.0))
    return c.image()


def key_bg_picker_picture(w, h):
    c = Canvas(w, h)
    c.rect((1, 1, w - 1, h - 1), (0, 0, 0), radius=8)
    colour_wheel(c, w * 0.5, h * 0.56, min(w, h) * 0.3)
    c.text(w * 0.1, h * 0.06, "F", h * 0.26, WHITE, kind="sans", anchor="la")
    return c.image()


def glasses_picture(w, h):
    c = Canvas(w, h)
    r = h * 0.36
    for cx in (w * 0.27, w * 0.73):
        lens = c.layer()
        lens.circle(cx, h * 0.55, r, (120, 220, 120, 150))
        c.blend(lens)
        c.circle(cx, h * 0.55, r, None, outline=(20, 20, 20), width=2.5)
        # Spiral rings: the cartoon sign of "seeing through things".
        c.circle(cx, h * 0.55, r * 0.6, None, outline=(20, 120, 20), width=1)
        c.circle(cx, h * 0.55, r * 0.25, None, outline=(20, 120, 20), width=1)
    c.arc((w * 0.42, h * 0.35, w * 0.58, h * 0.7), 200, 340, (20, 20, 20), 2.5)
    c.line([(w * 0.27 - r, h * 0.5), (2, h * 0.25)], (20, 20, 20), 2.2)
    c.line([(w * 0.73 + r, h * 0.5), (w - 2, h * 0.25)], (20, 20, 20), 2.2)
    c.text(w * 0.5, h * 0.12, "X", h * 0.22, (200, 0, 0))
    return c.image()


def duck(c, x, y, s, flip=False):
    """A yellow duckling, about 40 x 36 at s = 1."""
    def p(px, py):
        return (x + (40 - px if flip else px) * s, y + py * s)
    body = [p(4, 22), p(10, 14), p(24, 16), p(34, 18), p(36, 26), p(30, 34), p(12, 34), p(5, 29)]
    c.poly(body, (255, 210, 40), outline=(150, 110, 0), width=1 * s)
    hx, hy = p(28, 10)
    c.circle(hx, hy, 8 * s, (255, 210, 40), outline=(150, 110, 0), width=1 * s)
    bill = [p(34, 9), p(43, 11), p(34, 14)]
    c.poly(bill, (255, 130, 20), outline=(160, 70, 0), width=0.8 * s)
    ex, ey = p(30, 8)
    c.circle(ex, ey, 1.4 * s, BLACK)
    wing = [p(12, 22), p(24, 21), p(20, 29)]
    c.poly(wing, (240, 180, 20), outline=(150, 110, 0), width=0.8 * s)


def duck_picture(w, h):
    c = Canvas(w, h)
    c.ellipse((w * 0.05, h * 0.8, w * 0.95, h * 0.98), (80, 160, 230, 180))
    duck(c, w * 0.02, h * 0.06, w / 46)
    return c.image()


def computer_mouse(c, x, y, w, h, pressed=False, waves=False):
    c.rect((x, y, x + w, y + h), (235, 235, 240), outline=(60, 60, 70), width=1.3, radius=w * 0.48)
    c.line([(x + w / 2, y + 1), (x + w / 2, y + h * 0.38)], (60, 60, 70), 1)
    c.line([(x + 2, y + h * 0.38), (x + w - 2, y + h * 0.38)], (60, 60, 70), 1)
    if pressed:
        c.poly([(x + w / 2 - 0.5, y + 1.5), (x + w / 2 - 0.5, y + h * 0.38 - 0.5),
                (x + 2, y + h * 0.38 - 0.5), (x + w * 0.12, y + h * 0.12),
                (x + w * 0.3, y + 2)], (60, 140, 255))
    c.rect((x + w / 2 - 1.5, y + h * 0.1, x + w / 2 + 1.5, y + h * 0.28), (90, 90, 100), radius=1.5)
    c.line([(x + w / 2, y), (x + w / 2 - w * 0.2, y - h * 0.15),
            (x + w / 2 + w * 0.1, y - h * 0.3)],
           (60, 60, 70), 1.2)
    if waves:
        for i in range(3):
            r = w * (0.35 + 0.22 * i)
            c.arc((x + w + 1 - r, y + h * 0.15 - r, x + w + 1 + r, y + h * 0.15 + r), 300, 360,
                  (220, 60, 60), 1.2)


def mouse_picture(w, h, pressed=False, waves=False):
    c = Canvas(w, h)
    computer_mouse(c, w * 0.2, h * 0.25, w * 0.5, h * 0.7, pressed, waves)
    return c.image()


def draw_note(c, x, y, w, h, ink=(30, 30, 140)):
    c.ellipse((x + w * 0.12, y + h * 0.66, x + w * 0.46, y + h * 0.92), ink)
    c.line([(x + w * 0.43, y + h * 0.78), (x + w * 0.43, y + h * 0.12)], ink, w * 0.08,
           round_ends=False)
    c.poly([(x + w * 0.43, y + h * 0.1), (x + w * 0.85, y + h * 0.3), (x + w * 0.85, y + h * 0.45),
            (x + w * 0.43, y + h * 0.27)], ink)


def note_picture(w, h):
    c = Canvas(w, h)
    draw_note(c, 0, 0, w, h)
    return c.image()


def speaker_picture(w, h):
    c = Canvas(w, h)
    c.poly([(w * 0.1, h * 0.36), (w * 0.3, h * 0.36), (w * 0.52, h * 0.14), (w * 0.52, h * 0.86),
            (w * 0.3, h * 0.64), (w * 0.1, h * 0.64)], (40, 40, 60))
    for i in range(2):
        r = w * (0.18 + 0.16 * i)
        c.arc((w * 0.5 - r, h * 0.5 - r, w * 0.5 + r, h * 0.5 + r), -50, 50, (30, 110, 220),
              w * 0.07)
    return c.image()


def push_button_picture(w, h):
    c = Canvas(w, h)
    c.ellipse((w * 0.08, h * 0.5, w * 0.92, h * 0.94), (90, 90, 100))
    c.ellipse((w * 0.14, h * 0.42, w * 0.86, h * 0.82), (220, 30, 30), outline=(110, 0, 0),
              width=1.2)
    c.ellipse((w * 0.3, h * 0.48, w * 0.58, h * 0.6), (255, 140, 140))
    hand = [(0.56, 0.0), (0.66, 0.0), (0.66, 0.28), (0.78, 0.3), (0.8, 0.44), (0.6, 0.5),
            (0.5, 0.38), (0.56, 0.3)]
    c.poly([(w * px, h * py) for px, py in hand], (250, 210, 170), outline=(120, 80, 50), width=1)
    return c.image()


def instructor_picture(w, h, pose):
    """The virtual instructor: a small round-headed fellow in a red shirt and blue cap.

    pose 0: arms and head down; 1: arms out; 2: arms and head up, cheering.
    """
    c = Canvas(w, h)
    cx = w / 2
    head_y = {0: 36, 1: 32, 2: 28}[pose]
    shoulder_y = 66
    skin, skin_ink = (250, 214, 175), (150, 100, 60)
    shirt, shirt_ink = (205, 40, 40), (110, 10, 10)
    # Legs and shoes.
    for side in (-1, 1):
        c.rect((cx + side * 10 - 6, 94, cx + side * 10 + 6, 108), (40, 50, 120))
        c.ellipse((cx + side * 11 - 9, 104, cx + side * 11 + 9, 113), (40, 30, 20))
    # Arms behind the shirt's edge: shoulder to hand.
    arm_angle = {0: -70, 1: 5, 2: 58}[pose]
    for side in (-1, 1):
        sx = cx + side * 18
        a = math.radians(arm_angle)
        ex = sx + side * 16 * math.cos(a)
        ey = shoulder_y - 16 * math.sin(a)
        a2 = math.radians(arm_angle + (15 if pose == 2 else -10))
        hx = ex + side * 15 * math.cos(a2)
        hy = ey - 15 * math.sin(a2)
        c.line([(sx, shoulder_y), (ex, ey), (hx, hy)], shirt_ink, 9.5)
        c.line([(sx, shoulder_y), (ex, ey), (hx, hy)], shirt, 7)
        c.circle(hx, hy, 5, skin, outline=skin_ink, width=1)
    # Shirt.
    c.poly([(cx - 20, 62), (cx + 20, 62), (cx + 23, 98), (cx - 23, 98)], shirt, outline=shirt_ink,
           width=1.2)
    c.line([(cx, 64), (cx, 97)], shirt_ink, 0.8)
    for by in (72, 82, 92):
        c.circle(cx + 3, by, 1.3, (250, 230, 120))
    # Head, tilted by pose.
    tilt = {0: 8, 1: 0, 2: -6}[pose]
    c.circle(cx, head_y, 20, skin, outline=skin_ink, width=1.2)
    for side in (-1, 1):
        c.circle(cx + side * 20, head_y + 3, 4.5, skin, outline=skin_ink, width=1)
    # Cap with a visor.
    c.poly([(cx - 20, head_y - 4), (cx - 16, head_y - 17), (cx, head_y - 22),
            (cx + 16, head_y - 17),
            (cx + 20, head_y - 4)], (30, 80, 190), outline=(10, 30, 90), width=1)
    c.rect((cx - 22, head_y - 6, cx + 22, head_y - 2), (20, 60, 160), radius=2)
    c.circle(cx, head_y - 22, 3, (255, 255, 255))
    ey = head_y + 3 + tilt * 0.45
    for side in (-1, 1):
        c.ellipse((cx + side * 7 - 3, ey - 3.5, cx + side * 7 + 3, ey + 3.5), WHITE,
                  outline=(40, 40, 40), width=0.8)
        c.circle(cx + side * 7, ey + tilt * 0.2, 1.8, BLACK)
        c.circle(cx + side * 12, ey + 7, 2.6, (250, 150, 150))
    my = head_y + 12 + tilt * 0.3
    if pose == 0:
        c.line([(cx - 5, my + 1), (cx + 5, my + 1)], (120, 40, 40), 1.4)
    elif pose == 1:
        c.arc((cx - 7, my - 6, cx + 7, my + 3), 20, 160, (120, 40, 40), 1.6)
    else:
        c.poly([(cx - 8, my - 2), (cx + 8, my - 2), (cx + 5, my + 5), (cx - 5, my + 5)],
               (150, 30, 40), outline=(90, 20, 20), width=1)
        c.rect((cx - 6, my - 2, cx + 6, my), WHITE)
    if pose == 2:
        for sx, sy in ((14, 18), (w - 14, 18), (22, 50), (w - 22, 50)):
            star(c, sx, sy, 5, 2.2, GOLD)
    return c.image()


def star(c, cx, cy, r_out, r_in, fill, points=5, rot=0.0):
    pts = []
    for i in range(points * 2):
        r = r_out if i % 2 == 0 else r_in
        a = rot + math.pi / 2 + i * math.pi / points
        pts.append((cx + r * math.cos(a), cy - r * math.sin(a)))
    c.poly(pts, fill)


def alpha_channel_picture(w, h):
    c = Canvas(w, h)
    n = 8
    for j in range(0, h, n):
        for i in range(0, w, n):
            shade = (205, 205, 205) if (i // n + j // n) % 2 else (250, 250, 250)
            c.rect((i, j, i + n, j + n), shade)
    g = gradient(c.im.size, [(0, (230, 40, 40)), (0.5, (40, 160, 40)), (1, (40, 60, 230))],
                 horizontal=True).convert("RGBA")
    a = gradient(c.im.size, [(0, (255, 255, 255)), (1, (0, 0, 0))], horizontal=True).convert("L")
    band = Image.new("L", c.im.size, 0)
    ImageDraw.Draw(band).rectangle([0, c.im.height * 0.2, c.im.width, c.im.height * 0.8], fill=255)
    g.putalpha(ImageChops.multiply(a, band))
    c.im.alpha_composite(g)
    c.draw = ImageDraw.Draw(c.im)
    c.text(w * 0.03, h * 0.03, "100%", h * 0.18, BLACK, kind="sans", anchor="la")
    c.text(w * 0.97, h * 0.03, "0%", h * 0.18, BLACK, kind="sans", anchor="ra")
    return c.image()


def caption_with_arrow(w, h, text, arrow_way, ink=(200, 0, 0)):
    c = Canvas(w, h)
    px = fit_font("bold", text, w * 0.95, h * 0.42, int(h * 0.42))
    c.text(w / 2, h * 0.27, text, px, ink)
    a = ARROW_ANGLES[arrow_way]
    c.poly(arrow_points(w / 2, h * 0.74, h * 0.44, h * 0.12, h * 0.3, h * 0.18, a), ink)
    return c.image()


def click_key_picture(w, h):
    c = Canvas(w, h)
    draw_key(c, 2, 4, h - 8, h - 8, (0, 0, 0), "F", "А", "а", scale=(h - 8) / 54)
    pointer(c, (h - 8) * 0.55, h * 0.45, h / 60)
    px = fit_font("bold", "Click key to set", w - h - 4, h * 0.4, int(h * 0.4))
    c.text(h + (w - h) / 2, h / 2, "Click key to set", px, (20, 60, 170))
    return c.image()


def include_header_picture(w, h):
    c = Canvas(w, h)
    c.rect((4, 2, w - 4, h * 0.3), (200, 220, 255), outline=(60, 60, 60), width=1, radius=4)
    c.text(w / 2, h * 0.16, "Match This", h * 0.16, BLACK, kind="sans")
    c.rect((w * 0.3, h * 0.34, w * 0.7, h * 0.74), WHITE, outline=(120, 120, 120), width=2)
    c.text(w / 2, h * 0.54, "Ж", h * 0.3, BLACK, kind="sans")
    c.rect((6, h * 0.8, 6 + h * 0.15, h * 0.95), WHITE, outline=(40, 40, 40), width=1)
    c.line([(8, h * 0.87), (6 + h * 0.06, h * 0.93), (4 + h * 0.15, h * 0.81)], (0, 120, 0), 1.4)
    c.text(12 + h * 0.15, h * 0.875, "Include Header", h * 0.14, BLACK, kind="sans", anchor="lm")
    return c.image()


def wallpaper_picture(w, h):
    """A soft repeating pattern: it tiles seamlessly since every term has a whole period."""
    im = Image.new("RGB", (w, h))
    px = im.load()
    for y in range(h):
        for x in range(w):
            u, v = 2 * math.pi * x / w, 2 * math.pi * y / h
            t = 0.5 + 0.25 * math.sin(u + math.sin(2 * v)) + 0.25 * math.cos(2 * v - math.sin(u))
            px[x, y] = mix((200, 225, 255), (255, 235, 205), t)
    return im.quantize(64, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).convert("RGB")


def menu_heading(w, h, text, stops, icon=None, horizontal=False):
    """A small heading of the options menu: an icon and a bit of text art."""
    c = Canvas(w, h)
    x = 0
    if icon:
        icon(c, 2, 2, h - 4)
        x = h
    art = word_art(w - x, h, text, stops=stops, outline=(30, 30, 60), outline_w=0.05,
                   shadow=0.4, horizontal=horizontal, pad=0.04)
    img = c.image()
    img.alpha_composite(art, (x, 0))
    return img


def icon_rainbow_key(c, x, y, s):
    c.rect((x, y, x + s, y + s), (0, 0, 0), radius=s * 0.2)
    for i in range(6):
        c.rect((x + 2 + i * (s - 4) / 6, y + s * 0.7, x + 2 + (i + 1) * (s - 4) / 6, y + s * 0.9),
               hue(i / 6.0))
    c.text(x + s * 0.5, y + s * 0.38, "А", s * 0.45, GOLD, kind="sans")


def icon_brush(c, x, y, s):
    brush(c, x, y, s)


def icon_fonts(c, x, y, s):
    c.text(x + s * 0.35, y + s * 0.55, "A", s * 0.8, (20, 20, 120), kind="serif")
    c.text(x + s * 0.8, y + s * 0.62, "a", s * 0.55, (180, 20, 20), kind="sans")


def icon_photo(c, x, y, s):
    c.rect((x, y + s * 0.12, x + s, y + s * 0.88), WHITE, outline=(60, 60, 60), width=1)
    c.rect((x + 2, y + s * 0.12 + 2, x + s - 2, y + s * 0.88 - 2), (120, 190, 255))
    c.poly([(x + 2, y + s * 0.86), (x + s * 0.4, y + s * 0.4), (x + s * 0.65, y + s * 0.7),
            (x + s * 0.8, y + s * 0.55), (x + s - 2, y + s * 0.86)], (60, 150, 60))
    c.circle(x + s * 0.72, y + s * 0.32, s * 0.08, (255, 220, 0))


def icon_shadow(c, x, y, s):
    c.rect((x + s * 0.3, y + s * 0.3, x + s, y + s), (90, 90, 90, 160), radius=3)
    c.rect((x, y, x + s * 0.72, y + s * 0.72), (70, 130, 230), outline=(20, 40, 100), width=1,
           radius=3)


def icon_note(c, x, y, s):
    draw_note(c, x, y, s, s)


def icon_burst(c, x, y, s):
    star(c, x + s / 2, y + s / 2, s * 0.5, s * 0.22, (255, 140, 0), points=8)
    star(c, x + s / 2, y + s / 2, s * 0.3, s * 0.14, (255, 240, 80), points=8, rot=0.2)


def icon_box(c, x, y, s):
    c.rect((x, y + s * 0.1, x + s, y + s * 0.9), (255, 255, 255), outline=(40, 40, 40), width=1.2,
           radius=4)
    c.rect((x + s * 0.15, y + s * 0.3, x + s * 0.45, y + s * 0.7), WHITE, outline=(120, 120, 120))
    c.rect((x + s * 0.55, y + s * 0.3, x + s * 0.85, y + s * 0.7), WHITE, outline=(120, 120, 120))


# ---------------------------------------------------------------------------
# A schematic of the main window, the source of the screenshots' stand-ins

# (English label, lower row, upper row) of each character key, row by row, with
# the row's y and the x of its first key; keys are 62 apart.
KEY_ROWS = [
    (394, 146, [("`", "ё", "Ё"), ("1", "1", "!"), ("2", "2", '"'), ("3", "3", "№"),
                ("4", "4", ";"), ("5", "5", "%"), ("6", "6", ":"), ("7", "7", "?"),
                ("8", "8", "*"), ("9", "9", "("), ("0", "0", ")"), ("-", "-", "_"),
                ("=", "=", "+")]),
    (454, 238, [("Q", "й", "Й"), ("W", "ц", "Ц"), ("E", "у", "У"), ("R", "к", "К"),
                ("T", "е", "Е"), ("Y", "н", "Н"), ("U", "г", "Г"), ("I", "ш", "Ш"),
                ("O", "щ", "Щ"), ("P", "з", "З"), ("[", "х", "Х"), ("]", "ъ", "Ъ"),
                ("\\", "\\", "/")]),
    (514, 270, [("A", "ф", "Ф"), ("S", "ы", "Ы"), ("D", "в", "В"), ("F", "а", "А"),
                ("G", "п", "П"), ("H", "р", "Р"), ("J", "о", "О"), ("K", "л", "Л"),
                ("L", "д", "Д"), (";", "ж", "Ж"), ("'", "э", "Э")]),
    (574, 300, [("Z", "я", "Я"), ("X", "ч", "Ч"), ("C", "с", "С"), ("V", "м", "М"),
                ("B", "и", "И"), ("N", "т", "Т"), ("M", "ь", "Ь"), (",", "б", "Б"),
                (".", "ю", "Ю"), ("/", ".", ",")]),
]
CONTROL_KEYS = [("Caps Lock", 145, 514, 118), ("Spacebar", 474, 634, 228),
                ("Enter", 952, 514, 102), ("Shift", 920, 574, 134), ("Shift", 146, 574, 148),
                ("Backspace", 952, 394, 102), ("Tab", 146, 454, 84)]
BAR_ROWS = [(266, list(RUSSIAN_UPPER)), (294, list(RUSSIAN_LOWER)),
            (330, list('!"№;%:?*()_+') + [None, ",", "/"]),
            (358, list("1234567890-=") + [None, ".", "\\"])]


def character_keys():
    for y, x0, keys in KEY_ROWS:
        for i, (eng, lower, upper) in enumerate(keys):
            w = 74 if eng == "\\" else 54
            yield eng, lower, upper, x0 + 62 * i, y, w


def ui_button(d, box, text, px=11, fill=(228, 228, 228), ink=(0, 0, 0), radius=3):
    d.rounded_rectangle(box, radius=radius, fill=fill, outline=(140, 140, 140))
    lines = text.split("\n")
    f = font("sans", px)
    cy = (box[1] + box[3]) / 2 - (len(lines) - 1) * px * 0.6
    for i, line in enumerate(lines):
        d.text(((box[0] + box[2]) / 2, cy + i * px * 1.2), line, font=f, fill=ink, anchor="mm")


def ui_radio(d, x, y, text, checked, px=11, ink=(0, 0, 0)):
    d.ellipse([x, y + 2, x + 11, y + 13], fill=(255, 255, 255), outline=(90, 90, 90))
    if checked:
        d.ellipse([x + 3, y + 5, x + 8, y + 10], fill=(30, 30, 30))
    d.text((x + 15, y + 8), text, font=font("sans", px), fill=ink, anchor="lm")


def lines_text(d, x, y, text, px, ink, kind="sans", anchor="la", spacing=1.2):
    for i, line in enumerate(text.split("\n")):
        d.text((x, y + i * px * spacing), line, font=font(kind, px), fill=ink, anchor=anchor)


@functools.lru_cache(maxsize=None)
def instructor(pose):
    return instructor_picture(144, 115, pose)


def main_window(soft=True, done=0, lit=None, game=False, lines=None, highlight=None,
                bridges=()):
    """The main window at rest (or in a game), 1211 x 695, drawn from its layout tables.

    lines: None, "over" or "under" the keys; highlight: English label of the gold key.
    """
    im = Image.new("RGB", (1211, 695), (255, 255, 255))
    d = ImageDraw.Draw(im, "RGBA")

    # Steps along the top, one of them lit as in the guided demonstration.
    boxes = {1: (192, 215), 2: (430, 179), 3: (636, 204), 4: (868, 127)}
    for n, (x, w) in boxes.items():
        fill = (176, 196, 222) if lit == n else None
        d.rectangle([x, 2, x + w - 1, 109], fill=fill,
                    outline=(0, 0, 0) if lit == n else (200, 200, 200))
        d.ellipse([x + 6, 8, x + 32, 34], fill=(30, 60, 160))
        d.text((x + 19, 21), str(n), font=font("bold", 16), fill=(255, 255, 255), anchor="mm")
    lines_text(d, 232, 8, "Select\nGame", 11, (0, 0, 0), "bold")
    lines_text(d, 282, 8, "from\nbelow", 11, (0, 0, 0), "bold")
    lines_text(d, 332, 8, " on the\nleft", 11, (0, 0, 0), "bold")
    for i, (sym, cap) in enumerate((("◀", "Reverse"), ("⇄", "Random"), ("▶", "Forward"))):
        x = 214 + 62 * i
        ui_button(d, [x, 52, x + 44, 76], sym, 14)
        d.text((x + 22, 88), cap, font=font("sans", 10), fill=(0, 0, 0), anchor="mm")
    lines_text(d, 470, 12, "Start\nGame", 12, (0, 0, 0), "bold")
    ui_button(d, [444, 72, 514, 106], "Start", 12)
    ui_button(d, [520, 72, 590, 106], "Stop", 12)
    d.text((676, 21), "Difficulty", font=font("bold", 12), fill=(0, 0, 0), anchor="lm")
    ui_radio(d, 760, 9, "Soft", soft)
    ui_radio(d, 760, 33, "Strict", not soft)
    d.text((676, 60), "Soft: Space enters", font=font("sans", 9),
           fill=(0, 0, 200) if soft else (110, 110, 110), anchor="lm")
    d.text((676, 76), "Strict: any key enters", font=font("sans", 9),
           fill=(110, 110, 110) if soft else (0, 0, 200), anchor="lm")
    lines_text(d, 906, 8, "Can't\nfind\nit?", 11, (0, 0, 0), "bold")
    ui_button(d, [898, 58, 965, 80], "Highlight", 10,
              fill=GOLD if game else (228, 228, 228), ink=(0, 0, 0) if game else (110, 110, 110))
    ui_button(d, [866, 84, 909, 105], "Lines", 10, ink=(0, 0, 0) if game else (110, 110, 110))

    # Scoreboard.
    d.rounded_rectangle([4, 16, 182, 207], radius=10, fill=(40, 70, 140), outline=(0, 0, 0))
    d.rounded_rectangle([22, 6, 162, 26], radius=6, fill=(255, 255, 255), outline=(0, 0, 0))
    d.text((92, 16), "Scoreboard", font=font("bold", 12), fill=(0, 0, 0), anchor="mm")
    d.rectangle([52, 40, 122, 80], fill=(20, 20, 20), outline=(120, 120, 120))
    d.text((118, 60), "42" if game else "0", font=font("mono", 26), fill=(80, 255, 80), anchor="rm")
    d.rectangle([26, 84, 158, 106], fill=(230, 235, 245))
    ui_radio(d, 40, 87, "Off", False)
    ui_radio(d, 106, 87, "On", True)
    d.text((48, 134), "Correct", font=font("sans", 11), fill=(255, 255, 255), anchor="mm")
    d.text((136, 132), "Incorrect", font=font("sans", 11), fill=(255, 255, 255), anchor="mm")
    for x, value in ((16, "7" if game else "0"), (110, "1" if game else "0")):
        d.rectangle([x, 146, x + 59, 196], fill=(255, 255, 255), outline=(128, 128, 128), width=2)
        d.text((x + 30, 171), value, font=font("sans", 19), fill=(0, 0, 0), anchor="mm")

    # Game groups on the left.
    groups = [(230, 249, "Everything !!"), (298, 318, "Uppercase"), (374, 394, "Lowercase"),
              (454, 474, "Number Line Plus+")]
    for hy, by, title in groups:
        d.text((4, hy), title, font=font("bold", 12), fill=(0, 0, 255), anchor="la")
        ui_button(d, [25, by, 54, by + 24], "◀", 13)
        ui_button(d, [53, by, 102, by + 24], "⇄", 13)
        ui_button(d, [101, by, 130, by + 24], "▶", 13)

    # Current game and the bar's animation switch.
    d.text((202, 140), "Current Game", font=font("bold", 13), fill=(0, 0, 0), anchor="la")
    d.text((202, 168), "Everything !!", font=font("sans", 12), fill=(0, 0, 200), anchor="la")
    d.text((202, 192), "Forward", font=font("sans", 12), fill=(0, 0, 200), anchor="la")
    d.rectangle([202, 216, 286, 243], fill=(235, 240, 255), outline=(150, 150, 200))
    d.text((244, 229), "а → 9", font=font("sans", 13), fill=(0, 0, 0), anchor="mm")
    d.text((352, 214), "Animation", font=font("sans", 10), fill=(0, 0, 0), anchor="la")
    ui_button(d, [352, 229, 381, 248], "On", 10, ink=(0, 0, 255) if not game else (110, 110, 110))
    ui_button(d, [390, 229, 419, 248], "Off", 10, ink=(110, 110, 110) if game else (0, 0, 0))

    # Game play fields, messages and the instructor.
    d.rounded_rectangle([472, 136, 699, 249], radius=10, fill=(225, 235, 250),
                        outline=(90, 110, 160))
    for x, title, value in ((496, "Match This", "Ж"), (620, "Your Entry", "Ж")):
        d.text((x + 30, 155), title, font=font("bold", 11), fill=(0, 0, 0), anchor="mm")
        d.rectangle([x, 174, x + 60, 234], fill=(255, 255, 255), outline=(128, 128, 128), width=2)
        if game:
            d.text((x + 30, 204), value, font=font("sans", 34), fill=(0, 0, 0), anchor="mm")
    d.rectangle([712, 140, 845, 231], fill=(255, 255, 255), outline=(200, 200, 200))
    msg = "Good job!\nKeep going." if game else "Welcome!\nSelect a game\nand press Start."
    lines_text(d, 718, 148, msg, 12, (110, 110, 110))
    im.paste(instructor(2 if game else 1), (850, 130), instructor(2 if game else 1))

    # Keyboard options.
    d.rounded_rectangle([1000, 14, 1208, 256], radius=12, fill=(245, 245, 250), outline=(0, 0, 0))
    d.text((1104, 24), "Keyboard Options", font=font("bold", 12), fill=(0, 0, 0), anchor="mm")
    ui_button(d, [1006, 40, 1095, 109], "Show\nAdvanced\nOptions", 11)
    d.text((1152, 44), "Key Shape", font=font("sans", 10), fill=(0, 0, 0), anchor="mm")
    d.rounded_rectangle([1118, 58, 1142, 82], radius=3, fill=(0, 0, 0))
    d.ellipse([1160, 58, 1184, 82], fill=(0, 0, 0))
    d.line([1122, 96, 1182, 96], fill=(120, 120, 120), width=3)
    d.rectangle([1124, 90, 1130, 102], fill=(60, 60, 200))
    d.text((1000, 128), " Letters Displayed", font=font("sans", 11), fill=(0, 0, 0), anchor="la")
    for x, sample, cap, on in ((1006, "", "None", False), (1060, "Я ", "Russian", False),
                               (1120, " Z", "English", False), (1172, " ZЯ", "Both", True)):
        d.rectangle([x, 158, x + 27, 185], fill=(0, 0, 0))
        d.text((x + 14, 171), sample.strip(), font=font("sans", 10), fill=(255, 255, 255),
               anchor="mm")
        d.text((x + 14, 194), cap, font=font("sans", 9), fill=(0, 0, 255) if on else (0, 0, 0),
               anchor="mm")
        if on:
            d.text((x + 14, 150), "√", font=font("sans", 11), fill=(0, 0, 255), anchor="mm")
    d.text((1104, 214), "Keypress Color Timer", font=font("sans", 10), fill=(0, 0, 0), anchor="mm")
    ui_radio(d, 1020, 228, "Constant", True, 9)
    ui_radio(d, 1110, 228, "Flash", False, 9)

    # Alphabet bar.
    finished = set((RUSSIAN_LOWER + RUSSIAN_UPPER)[:done])
    for y, cells in BAR_ROWS:
        for col, ch in enumerate(cells):
            if ch is None:
                continue
            x = 144 + 28 * col
            is_done = ch in finished
            d.rounded_rectangle([x, y, x + 27, y + 27], radius=6,
                                fill=FINISHED_GREY if is_done else (0, 0, 0))
            d.text((x + 14, y + 25), ch, font=font("sans", 16), fill=(255, 255, 255), anchor="md")

    # Keyboard: faces, the lines of the highlight under or over them, letters.
    hl = None

    def draw_lines():
        if hl:
            x, y, w = hl
            d.rectangle([140, y + 24, 1060, y + 30], fill=(220, 0, 0, 200))
            d.rectangle([x + w // 2 - 3, 386, x + w // 2 + 3, 692], fill=(220, 0, 0, 200))

    for eng, lower, upper, x, y, w in character_keys():
        if eng == highlight:
            hl = (x, y, w)
    if lines == "under":
        draw_lines()
    for eng, lower, upper, x, y, w in character_keys():
        face = GOLD if eng == highlight else (0, 0, 0)
        ink = (0, 0, 0) if eng == highlight else (255, 255, 255)
        d.rounded_rectangle([x, y, x + w - 1, y + 53], radius=10, fill=face)
        d.text((x + 5, y + 3), eng, font=font("sans", 15), fill=ink, anchor="la")
        d.text((x + w - 6, y + 3), upper, font=font("sans", 16), fill=ink, anchor="ra")
        d.text((x + w - 6, y + 50), lower, font=font("sans", 16), fill=ink, anchor="rd")
    for caption, x, y, w in CONTROL_KEYS:
        d.rounded_rectangle([x, y, x + w - 1, y + 53], radius=10, fill=(0, 0, 0))
        d.text((x + 8, y + 4), caption, font=font("sans", 14), fill=(255, 255, 255), anchor="la")
    for x in (456, 642):
        d.text((x + 27, 566), "_", font=font("sans", 15), fill=(255, 255, 255), anchor="md")
    if lines == "over":
        draw_lines()
    for i in bridges:
        y = (451, 511)[i]
        d.rectangle([130, y, 1071, y + 59], fill=(0, 0, 255, 153))
        d.text((150, y + 30), "Bridge", font=font("bold", 16), fill=(255, 0, 0), anchor="lm")

    # A key's map and the two instruction panes.
    d.text((1138, 396), "A Key's Map", font=font("sans", 9), fill=(0, 0, 0), anchor="mb")
    d.rounded_rectangle([1111, 404, 1164, 457], radius=10, fill=(0, 0, 0))
    d.text((1116, 407), "F", font=font("sans", 14), fill=(255, 255, 255), anchor="la")
    d.text((1159, 407), "А", font=font("sans", 14), fill=(255, 255, 255), anchor="ra")
    d.text((1159, 454), "а", font=font("sans", 14), fill=(255, 255, 255), anchor="rd")
    d.text((1138, 462), "Shift + F = А", font=font("sans", 9), fill=(0, 0, 0), anchor="ma")
    d.rounded_rectangle([6, 546, 94, 646], radius=8, fill=(255, 250, 225), outline=(150, 130, 60))
    lines_text(d, 12, 552, "Keyboard\npress a key:\nit lights up\nhere and in\nthe bar", 10,
               (60, 50, 0))
    d.rounded_rectangle([1110, 528, 1204, 644], radius=8, fill=(230, 245, 255),
                        outline=(60, 110, 160))
    lines_text(d, 1116, 534, "Mouse\nmove over a\nkey: its\nletters light\nup in red", 10,
               (0, 40, 80))
    ui_button(d, [2, 662, 47, 691], "X", 14)
    ui_button(d, [1120, 660, 1207, 691], "Help", 12)
    ui_button(d, [1004, 674, 1047, 691], "Hide", 9)
    return im


def shot(box, scale=1.0, grey=False, **state):
    im = main_window(**state).crop(box)
    if scale != 1.0:
        im = im.resize((int(im.width * scale), int(im.height * scale)), Image.Resampling.LANCZOS)
    if grey:
        white = Image.new("RGB", im.size, (255, 255, 255))
        im = Image.blend(im.convert("L").convert("RGB"), white, 0.45)
    return im


def options_menu(w, h):
    """The options menu as it slides in: seven entries, each a heading, a caption and Open."""
    im = Image.new("RGB", (w, h), (204, 188, 255))
    d = ImageDraw.Draw(im)
    d.rectangle([0, 0, w - 1, h - 1], outline=(0, 0, 0))
    entries = [(36, "Change colors", "Color Madness"), (132, "Key located effects", "Effects"),
               (246, "Change the fonts", "Fonts"), (348, "Add images", "Pictures"),
               (448, "Text / box shadows", "Shadows"), (548, "Keypress sounds", "Sounds"),
               (646, "Game Play box", "Game Play")]
    for i, (y, caption, title) in enumerate(entries):
        d.text((w / 2, y - 16), title, font=font("bold", 14), fill=hue(i / 7.0, 0.9, 0.7),
               anchor="mm")
        d.text((4, y), caption, font=font("sans", 10), fill=(0, 0, 0), anchor="la")
        ui_button(d, [34, y + 20, 107, y + 41], "Close" if i == 0 else "Open", 10)
        if i == 0:
            d.text((18, y + 31), "✓", font=font("bold", 16), fill=(0, 130, 0), anchor="mm")
        if i < 6:
            d.line([6, y + 60, w - 6, y + 60], fill=(120, 100, 170))
    return im


def in_game_fields(w, h):
    """The game play box recoloured with a gradient, as the Game Play panel can do."""
    im = gradient((w, h), [(0, (255, 240, 180)), (1, (255, 170, 60))]).convert("RGBA")
    mask = Image.new("L", (w, h), 0)
    ImageDraw.Draw(mask).rounded_rectangle([0, 0, w - 1, h - 1], radius=14, fill=255)
    im.putalpha(mask)
    d = ImageDraw.Draw(im)
    d.rounded_rectangle([0, 0, w - 1, h - 1], radius=14, outline=(150, 80, 0), width=2)
    for x, title, value in ((w * 0.1, "Match This", "Щ"), (w * 0.62, "Your Entry", "Щ")):
        d.text((x + 30, h * 0.17), title, font=font("bold", 11), fill=(90, 40, 0), anchor="mm")
        d.rounded_rectangle([x, h * 0.33, x + 60, h * 0.33 + 60], radius=8, fill=(255, 255, 255),
                            outline=(150, 80, 0), width=2)
        d.text((x + 30, h * 0.33 + 30), value, font=font("sans", 34), fill=(0, 0, 0), anchor="mm")
    return im


# The regions of the instruction window's map: label text and rectangle on the tab.
MAP_ORIGIN = (90, 18)
MAP_REGIONS = [
    ("Keyboard", (176, 264, 589, 163), "keyboard"),
    ("Step 1: choose a game", (206, 18, 135, 81), "step"),
    ("Step 2", (354, 18, 127, 81), "step"),
    ("Step 3", (492, 18, 135, 81), "step"),
    ("Step 4", (634, 18, 85, 81), "step"),
    ("Uppercase", (174, 186, 598, 22), "bar-upper"),
    ("Lowercase", (174, 206, 598, 22), "bar-lower"),
    ("Number Line", (176, 228, 291, 41), "bar-numbers"),
    ("Uppercase", (86, 208, 91, 41), "group"),
    ("Lowercase", (86, 254, 91, 41), "group"),
    ("Number Line", (86, 298, 91, 41), "group"),
    ("Everything !!", (86, 164, 91, 41), "group"),
    ("Current Game", (204, 98, 101, 89), "panel"),
    ("Animation", (300, 122, 69, 65), "panel"),
    ("Match\nThis", (390, 108, 67, 73), "field"),
    ("Your\nEntry", (468, 108, 67, 73), "field"),
    ("Instructor", (624, 94, 101, 75), "instructor"),
    ("Messages", (538, 104, 85, 63), "panel"),
    ("Letters\nDisplayed", (720, 92, 140, 61), "panel"),
    ("Keypress Timer", (720, 150, 140, 38), "panel"),
    ("Advanced\nOptions", (722, 40, 65, 47), "button"),
    ("Key\nShape", (791, 34, 63, 57), "panel"),
    ("A Key's\nMap", (782, 258, 71, 71), "key"),
    ("Timer", (100, 68, 93, 21), "panel"),
    ("Correct", (92, 92, 56, 60), "score"),
    ("Incorrect", (148, 92, 56, 60), "score"),
    ("Keyboard\nArrow", (86, 342, 79, 95), "pane"),
    ("Mouse\nArrow", (782, 342, 75, 95), "pane"),
    ("Quit", (88, 442, 36, 26), "button"),
    ("Help", (796, 440, 60, 27), "button"),
    ("Hide", (718, 440, 46, 27), "button"),
    ("Reverse", (210, 54, 42, 37), "button"),
    ("Random", (252, 54, 42, 37), "button"),
    ("Forward", (294, 54, 42, 37), "button"),
    ("Start", (366, 60, 49, 33), "button"),
    ("Stop", (412, 60, 53, 33), "button"),
    ("Soft", (566, 16, 51, 22), "button"),
    ("Strict", (566, 34, 51, 22), "button"),
    ("Lines", (634, 68, 44, 22), "button"),
    ("Options", (680, 68, 38, 22), "button"),
    ("Highlight", (650, 52, 60, 21), "gold"),
]
MAP_FILLS = {"keyboard": (250, 250, 250), "step": (235, 240, 252), "group": (225, 232, 255),
             "panel": (245, 245, 235), "field": (255, 255, 255), "instructor": (255, 245, 235),
             "button": (226, 226, 226), "gold": GOLD, "key": (0, 0, 0), "score": (40, 70, 140),
             "pane": (255, 250, 225), "bar-upper": None, "bar-lower": None, "bar-numbers": None}


def main_screen_map():
    """The map of the instruction window: each region drawn where the map's frame lies."""
    w, h = 767, 449
    c = Canvas(w, h, (250, 251, 253), ss=2)
    ox, oy = MAP_ORIGIN
    # The scoreboard panel behind Timer, Correct and Incorrect.
    c.rect((0, 44, 118, 140), (40, 70, 140), outline=(0, 0, 0), width=1, radius=8)
    c.text(59, 40, "Scoreboard", 10, BLACK, kind="bold", anchor="mb")
    regions = sorted(MAP_REGIONS, key=lambda r: -r[1][2] * r[1][3])
    for label, (x, y, rw, rh), kind in regions:
        x, y = x - ox, y - oy
        box = (x, y, x + rw, y + rh)
        fill = MAP_FILLS[kind]
        if kind == "keyboard":
            c.rect(box, fill, outline=(170, 170, 170), width=1)
            sx, sy = rw / 915.0, rh / 300.0
            for eng, _, upper, kx, ky, kw in character_keys():
                x0, y0 = x + (kx - 142) * sx, y + (ky - 390) * sy + 3
                x1, y1 = x + (kx - 142 + kw) * sx - 1, y + (ky - 390 + 54) * sy + 2
                c.rect((x0, y0, x1, y1), (0, 0, 0), radius=3)
                c.text(x0 + 2, y0 + 1, eng, 8, WHITE, kind="sans", anchor="la")
                c.text(x1 - 2, y1 - 1, upper, 11, WHITE, kind="sans", anchor="rd")
            for _, kx, ky, kw in CONTROL_KEYS:
                c.rect((x + (kx - 142) * sx, y + (ky - 390) * sy + 3,
                        x + (kx - 142 + kw) * sx - 1, y + (ky - 390 + 54) * sy + 2),
                       (0, 0, 0), radius=3)
            c.text(x + rw - 4, y + rh - 3, label, 11, (200, 0, 0), anchor="rd")
            continue
        if kind.startswith("bar"):
            rows = {"bar-upper": [RUSSIAN_UPPER], "bar-lower": [RUSSIAN_LOWER],
                    "bar-numbers": ['!"№;%:?*()_+ ,/', "1234567890-= .\\"]}[kind]
            for r, text in enumerate(rows):
                cw = rw / len(text)
                ch = rh / len(rows)
                for i, letter in enumerate(text):
                    if letter == " ":
                        continue
                    cx0 = x + i * cw
                    cy0 = y + r * ch
                    c.rect((cx0 + 0.5, cy0 + 1, cx0 + cw - 0.5, cy0 + ch - 1), (0, 0, 0), radius=3)
                    c.text(cx0 + cw / 2, cy0 + ch / 2 + 0.5, letter, min(cw, ch) * 0.7, WHITE,
                           kind="sans")
            continue
        c.rect(box, fill, outline=(120, 120, 120), width=1, radius=3)
        ink = WHITE if kind in ("key", "score") else (20, 20, 60)
        if kind == "instructor":
            ph = rh - 4
            pw = int(ph * 144 / 115)
            pic = instructor(1).resize((pw * c.ss, ph * c.ss), Image.Resampling.LANCZOS)
            c.im.alpha_composite(pic, (int((x + rw - pw - 1) * c.ss), int((y + 2) * c.ss)))
            c.draw = ImageDraw.Draw(c.im)
            c.text(x + 3, y + 2, label, 9, ink, anchor="la")
            continue
        big = rw * rh > 5000
        px = fit_font("bold", max(label.split("\n"), key=len), rw - 6, rh * 0.45, 12)
        lines = label.split("\n")
        for i, line in enumerate(lines):
            if big:
                c.text(x + 4, y + 3 + i * px * 1.15, line, px, ink, anchor="la")
            else:
                c.text(x + rw / 2, y + rh / 2 + (i - (len(lines) - 1) / 2) * px * 1.1, line, px,
                       ink)
    return c.image().convert("RGB")


# ---------------------------------------------------------------------------
# Gifs: each function draws frame i of n at the gif's size

def gif_swirl(w, h, i, n, colours, turn=1):
    c = Canvas(w, h)
    arms = 5
    R = min(w, h) / 2 - 1
    rot = turn * 2 * math.pi / arms * i / n
    steps = 44
    for arm in range(arms):
        for s in range(steps):
            t = s / (steps - 1)
            r = 2 + t * (R - 4)
            a = rot + arm * 2 * math.pi / arms + t * 1.6 * math.pi
            rad = 0.8 + t * R * 0.11
            c.circle(w / 2 + r * math.cos(a), h / 2 - r * math.sin(a), rad,
                     colours(t, arm))
    c.circle(w / 2, h / 2, R * 0.09, WHITE)
    return c.image()


def rainbow_along(t, arm):
    return hue(0.95 - 0.8 * t, 0.85, 1.0)


def cool_along(t, arm):
    return mix((250, 240, 255), (90, 40, 200), t) if arm % 2 == 0 else mix((220, 250, 255),
                                                                           (20, 120, 220), t)


def gif_cat(w, h, i, n):
    """A tabby walking on the spot: diagonal leg pairs swing, the tail sways."""
    c = Canvas(w, h)
    ph = 2 * math.pi * i / n
    bob = 1.0 * math.sin(2 * ph)
    fur, ink, stripe = (235, 150, 60), (110, 60, 20), (190, 100, 30)
    ground = h - 3
    legs = [(30, 0.0, True), (38, math.pi, False), (62, math.pi, True), (70, 0.0, False)]
    for far in (True, False):
        for hx, off, is_far in legs:
            if is_far != far:
                continue
            a = 0.45 * math.sin(ph + off)
            lift = max(0.0, math.cos(ph + off)) * 3
            top = (hx, 24 + bob)
            foot = (hx + 14 * math.sin(a), ground - lift)
            col = mix(fur, ink, 0.35) if far else fur
            c.line([top, foot], ink, 6.2)
            c.line([top, foot], col, 4.4)
    sway = math.sin(ph) * 4
    c.line([(24, 21 + bob), (13, 15 + bob), (8 + sway * 0.5, 6 + bob), (12 + sway, 2 + bob)], ink,
           5.5)
    c.line([(24, 21 + bob), (13, 15 + bob), (8 + sway * 0.5, 6 + bob), (12 + sway, 2 + bob)], fur,
           3.6)
    c.ellipse((22, 14 + bob, 76, 32 + bob), fur, outline=ink, width=1.1)
    for sx in (36, 46, 56):
        c.line([(sx, 15 + bob), (sx - 3, 22 + bob)], stripe, 2)
    hx, hy = 80, 15 + bob * 1.3
    c.poly([(hx - 9, hy - 4), (hx - 7, hy - 15), (hx - 1, hy - 7)], fur, outline=ink, width=1)
    c.poly([(hx + 2, hy - 7), (hx + 8, hy - 15), (hx + 10, hy - 3)], fur, outline=ink, width=1)
    c.circle(hx, hy, 10, fur, outline=ink, width=1.1)
    blink = i == n // 2
    for ex in (hx - 1, hx + 6):
        if blink:
            c.line([(ex - 2, hy - 2), (ex + 2, hy - 2)], (20, 20, 20), 1)
        else:
            c.ellipse((ex - 1.8, hy - 4.5, ex + 1.8, hy + 0.5), (60, 160, 60), outline=(20, 20, 20),
                      width=0.6)
    c.poly([(hx + 8, hy + 2), (hx + 11, hy + 2), (hx + 9.5, hy + 4)], (240, 110, 130))
    for d in (-1, 1):
        c.line([(hx + 8, hy + 4), (hx + 17, hy + 3 + 2 * d)], (250, 250, 250), 0.6)
    return c.image()


def gif_sheep(w, h, i, n):
    c = Canvas(w, h)
    up = 22 * math.sin(math.pi * i / n)
    base = h - 4
    shadow = 1 - up / 30
    c.ellipse((w / 2 - 12 * shadow, base - 2, w / 2 + 12 * shadow, base + 2), (60, 60, 60, 200))
    y = base - 19 - up
    tuck = up > 3
    for lx in (9, 14, 20, 25):
        c.line([(lx, y + 12), (lx + (2 if tuck else 0), y + (16 if tuck else 19))], (30, 30, 30),
               2.4)
    for cx, cy in ((9, 8), (15, 5), (21, 5), (26, 8), (12, 12), (19, 12), (25, 12), (17, 9)):
        c.circle(cx, y + cy, 5.2, (250, 250, 250), outline=(150, 150, 150), width=0.7)
    for cx, cy in ((9, 8), (15, 5), (21, 5), (26, 8), (12, 12), (19, 12), (25, 12)):
        c.circle(cx, y + cy, 4.2, (250, 250, 250))
    c.ellipse((25, y + 2, 33, y + 12), (40, 40, 40))
    c.circle(30, y + 5, 1, WHITE)
    c.ellipse((23, y + 1, 27, y + 4), (60, 60, 60))
    return c.image()


def gif_butterfly(w, h, i, n):
    c = Canvas(w, h)
    flap = abs(math.cos(2 * math.pi * 3 * i / n))
    sx = 0.18 + 0.82 * flap
    cx = w / 2 + 10 * math.sin(2 * math.pi * i / n)
    cy = h / 2 + 6 * math.sin(4 * math.pi * i / n)
    wing_fill, wing_ink = (255, 140, 20), (40, 20, 0)
    for side in (-1, 1):
        upper = [(0, -2), (10, -22), (26, -28), (34, -18), (30, -4), (8, 2)]
        lower = [(0, 2), (10, 4), (24, 10), (24, 22), (12, 26), (4, 16)]
        for shape, col in ((upper, wing_fill), (lower, (255, 190, 40))):
            pts = [(cx + side * px * sx, cy + py) for px, py in shape]
            c.poly(pts, col, outline=wing_ink, width=1.6)
        for px, py, r in ((24, -20, 3), (29, -11, 2.2), (16, 16, 2.5)):
            c.circle(cx + side * px * sx, cy + py, r * max(0.4, sx), WHITE)
    c.ellipse((cx - 2.2, cy - 14, cx + 2.2, cy + 18), (40, 25, 10))
    c.circle(cx, cy - 15, 3, (40, 25, 10))
    c.line([(cx - 1, cy - 17), (cx - 7, cy - 28)], (40, 25, 10), 1)
    c.line([(cx + 1, cy - 17), (cx + 7, cy - 28)], (40, 25, 10), 1)
    return c.image()


def gif_birds(w, h, i, n):
    c = Canvas(w, h)
    ph = 2 * math.pi * i / n
    for k, (bx, col, dark) in enumerate(((28, (70, 140, 230), (20, 60, 140)),
                                         (68, (230, 70, 70), (130, 20, 20)))):
        hop = 5 * abs(math.sin(ph + k * math.pi / 2))
        by = h - 22 - hop
        lean = 3 * math.sin(ph + k * math.pi)
        c.line([(bx - 4, by + 10), (bx - 5, h - 4)], (230, 150, 20), 1.4)
        c.line([(bx + 4, by + 10), (bx + 5, h - 4)], (230, 150, 20), 1.4)
        c.ellipse((bx - 13, by - 7, bx + 13, by + 13), col, outline=dark, width=1.2)
        flap = 7 * math.sin(2 * ph + k)
        c.poly([(bx - 4, by), (bx - 16, by - 2 - flap), (bx - 8, by + 8)], dark)
        hx, hy = bx + 7 + lean, by - 10
        c.circle(hx, hy, 7, col, outline=dark, width=1.2)
        c.poly([(hx + 6, hy - 1), (hx + 12, hy + 1), (hx + 6, hy + 3)], (250, 170, 20))
        c.circle(hx + 2, hy - 2, 1.5, BLACK)
    nx = (i / n) * 30
    c.text(44 + nx * 0.3, 10 + 3 * math.sin(ph), "♪", 14, (40, 40, 40), kind="sans")
    c.text(60 - nx * 0.2, 16 - 3 * math.sin(ph), "♫", 12, (40, 40, 40), kind="sans")
    return c.image()


def gif_angry(w, h, i, n):
    c = Canvas(w, h)
    ph = 2 * math.pi * i / n
    heat = 0.5 + 0.5 * math.sin(2 * ph)
    face = mix((255, 170, 40), (235, 30, 20), heat)
    shake = 3 * math.sin(4 * ph)
    cx, cy, r = w / 2 + shake, h / 2 + 4, 25
    for k, sx in enumerate((cx - 30, cx + 30)):
        t = (i / n * 2 + k * 0.5) % 1.0
        sy = cy - 8 - 22 * t
        pr = 3 + 5 * t
        if sy - pr > 0:
            c.circle(sx + 2 * math.sin(ph * 2 + k), sy, pr, (235, 235, 235),
                     outline=(170, 170, 170), width=1)
    c.circle(cx, cy, r, face, outline=(120, 20, 0), width=1.6)
    for side in (-1, 1):
        ex, ey = cx + side * 9, cy - 3
        c.ellipse((ex - 4, ey - 3, ex + 4, ey + 5), WHITE, outline=BLACK, width=0.8)
        c.circle(ex - side * 1, ey + 1.5, 2, BLACK)
        c.line([(cx + side * 3, cy - 8), (cx + side * 15, cy - 15)], (60, 10, 0), 3)
    c.arc((cx - 11, cy + 7, cx + 11, cy + 22), 200, 340, (60, 10, 0), 2.6)
    vein = 1 + heat
    c.line([(cx + 14, cy - 20), (cx + 18, cy - 16), (cx + 14, cy - 13)], (150, 0, 0), vein)
    return c.image()


class Particles:
    """A seeded cloud of particles flying out from the centre; the fire ball and the burst."""

    def __init__(self, seed, count, speed, size):
        rng = random.Random(seed)
        self.items = []
        for _ in range(count):
            a = rng.uniform(0, 2 * math.pi)
            v = speed * (0.35 + 0.65 * rng.random() ** 0.5)
            self.items.append((a, v, size * rng.uniform(0.6, 1.3), rng.uniform(-0.12, 0.12),
                               rng.random()))


FIRE = Particles(7, 70, 1.0, 1.0)


def fire_colour(temp):
    stops = [(0.0, (60, 50, 45)), (0.3, (150, 30, 10)), (0.55, (235, 90, 10)),
             (0.8, (255, 200, 40)), (1.0, (255, 255, 220))]
    for (t0, c0), (t1, c1) in zip(stops, stops[1:]):
        if t0 <= temp <= t1:
            return mix(c0, c1, (temp - t0) / (t1 - t0))
    return stops[-1][1] if temp > 1 else stops[0][1]


def gif_fireball(w, h, i, n):
    c = Canvas(w, h)
    t = i / (n - 1)
    grow = 1 - (1 - min(1.0, t / 0.35)) ** 2
    R = min(w, h) / 2 - 2
    cx, cy = w / 2, h / 2
    drawn = []
    for a, v, size, wobble, temp in FIRE.items:
        dist = R * 0.62 * v * grow + R * 0.1 * t
        rad = R * 0.28 * size * (0.4 + 0.6 * grow) * (1 - 0.7 * max(0.0, t - 0.7) / 0.3)
        heat = max(0.0, min(1.0, 1.05 - 1.1 * t - 0.4 * v + 0.25 * temp))
        if t < 0.12:
            heat = max(heat, 0.95)
        x = cx + dist * math.cos(a + wobble * t * 6)
        y = cy - dist * math.sin(a + wobble * t * 6) - R * 0.25 * t * t
        drawn.append((heat, x, y, rad))
    for heat, x, y, rad in sorted(drawn):
        if rad > 0.4:
            c.circle(x, y, rad, fire_colour(heat))
    return c.image()


BURST = Particles(11, 40, 1.0, 1.0)


def gif_burst(w, h, i, n):
    c = Canvas(w, h)
    t = (i + 0.5) / n
    R = min(w, h) / 2 - 2
    cx, cy = w / 2, h / 2
    for a, v, size, _, temp in BURST.items:
        dist = R * v * (1 - (1 - t) ** 2)
        tail = dist * 0.45
        col = hue(temp, 0.7 * t, 1.0)
        x0 = cx + (dist - tail) * math.cos(a)
        y0 = cy - (dist - tail) * math.sin(a) + 6 * t * t
        x1 = cx + dist * math.cos(a)
        y1 = cy - dist * math.sin(a) + 8 * t * t
        # Never fade to nothing: an empty last frame would be dropped by the encoder.
        fade = 1 - 0.8 * max(0.0, t - 0.7) / 0.3
        if fade > 0.05:
            c.line([(x0, y0), (x1, y1)], col, 1.6 * size * fade + 0.4)
            c.circle(x1, y1, 1.4 * size * fade + 0.4, (255, 255, 230))
    if t < 0.3:
        star(c, cx, cy, R * (0.2 + t), R * 0.1, (255, 255, 200), points=8, rot=t)
    return c.image()


def gif_bomb(w, h, i, n):
    c = Canvas(w, h)
    rng = random.Random(100 + i)
    c.circle(w * 0.42, h * 0.6, w * 0.34, (35, 35, 45), outline=(0, 0, 0), width=1)
    c.circle(w * 0.32, h * 0.5, w * 0.08, (120, 120, 140))
    c.rect((w * 0.52, h * 0.2, w * 0.7, h * 0.32), (80, 80, 90), radius=2)
    fuse = [(w * 0.62, h * 0.22), (w * 0.7, h * 0.1), (w * 0.8, h * 0.1)]
    c.line(fuse, (190, 150, 90), 2)
    sx, sy = w * 0.82, h * 0.1
    r = 4 + 3 * rng.random()
    for k in range(8):
        a = k * math.pi / 4 + rng.random() * 0.5
        c.line([(sx, sy), (sx + r * 1.4 * math.cos(a), sy - r * 1.4 * math.sin(a))],
               (255, 200, 40), 1)
    star(c, sx, sy, r, r * 0.45, (255, 120, 0), points=6, rot=rng.random())
    c.circle(sx, sy, r * 0.35, (255, 255, 200))
    return c.image()


def gif_glow(w, h, i, n, rays=False):
    c = Canvas(w, h)
    # The phase offset keeps frames distinct for any count (3 frames would repeat one).
    pulse = 0.5 + 0.5 * math.sin(2 * math.pi * i / n + 0.3)
    R = min(w, h) / 2 - 1
    r = R * (0.55 + 0.45 * pulse)
    if rays:
        for k in range(12):
            a = k * math.pi / 6 + i * math.pi / (6 * n)
            c.line([(w / 2, h / 2), (w / 2 + r * math.cos(a), h / 2 - r * math.sin(a))],
                   (255, 220, 120), 2)
    steps = 14
    for s in range(steps):
        t = s / (steps - 1)
        c.circle(w / 2, h / 2, r * (1 - t * 0.9),
                 mix((255, 120, 0), (255, 255, 235), t ** 0.8))
    return c.image()


def gif_snow(w, h, i, n, seed, count, big):
    """Snow that wraps round: every flake travels a whole number of heights per cycle."""
    c = Canvas(w, h)
    rng = random.Random(seed)
    margin = 6 if big else 3
    span = h + 2 * margin
    for _ in range(count):
        x0 = rng.uniform(0, w)
        y0 = rng.uniform(0, span)
        laps = rng.choice((1, 1, 2))
        size = rng.uniform(1.2, 2.6) * (1.8 if big else 1.0)
        sway = rng.uniform(1, 4)
        phase = rng.uniform(0, 2 * math.pi)
        y = (y0 + laps * span * i / n) % span - margin
        x = x0 + sway * math.sin(2 * math.pi * i / n + phase)
        if big and size > 3.4:
            for k in range(3):
                a = k * math.pi / 3 + phase
                dx, dy = size * math.cos(a), size * math.sin(a)
                c.line([(x - dx, y - dy), (x + dx, y + dy)], (110, 150, 210), 1.6)
                c.line([(x - dx, y - dy), (x + dx, y + dy)], WHITE, 0.9)
        else:
            c.circle(x, y, size / 2 + 0.6, (110, 150, 210))
            c.circle(x, y, size / 2, WHITE)
    return c.image()


def gif_rain(w, h, i, n):
    c = Canvas(w, h)
    rng = random.Random(31)
    span = h + 14
    for _ in range(26):
        x0 = rng.uniform(-6, w + 4)
        y0 = rng.uniform(0, span)
        laps = rng.choice((3, 4, 5))
        length = rng.uniform(5, 9)
        y = (y0 + laps * span * i / n) % span - 10
        x = x0 + (y + 10) * 0.15
        c.line([(x, y), (x + length * 0.15, y + length)], (110, 170, 255), 1.3)
    return c.image()


def gif_marble(w, h, i, n):
    c = Canvas(w, h)
    R = min(w, h) / 2 - 1.5
    cx, cy = w / 2, h / 2
    steps = 16
    for s in range(steps):
        t = s / (steps - 1)
        off = R * 0.25 * t
        c.circle(cx - off, cy - off, R * (1 - 0.8 * t), mix((20, 60, 150), (120, 190, 255), t))
    for k in range(3):
        a0 = k * 2 * math.pi / 3
        pts = [(cx + R * 0.8 * s / 10 * math.cos(a0 + s * 0.35),
                cy - R * 0.8 * s / 10 * math.sin(a0 + s * 0.35)) for s in range(11)]
        c.line(pts, ((255, 140, 20), (250, 250, 250), (230, 40, 90))[k], 2.5)
    c.ellipse((cx - R * 0.55, cy - R * 0.7, cx - R * 0.05, cy - R * 0.35), (255, 255, 255, 230))
    c.circle(cx, cy, R, None, outline=(10, 30, 90), width=1)
    return c.image()


def gif_flag(w, h, i, n, painter):
    """A flag waving: each column of the flat flag is shifted and shaded along a wave."""
    flat = Canvas(w, h - 6)
    painter(flat, w, h - 6)
    src = flat.image()
    out = Image.new("RGBA", (w, h), CLEAR)
    for x in range(w):
        ph = 2 * math.pi * (x / (w * 0.9) - i / n)
        dy = 2.5 * math.sin(ph) * (0.3 + 0.7 * x / w)
        shade = 1.0 + 0.18 * math.cos(ph)
        col = src.crop((x, 0, x + 1, src.height))
        col = col.point(lambda v: min(255, int(v * shade))) if shade != 1.0 else col
        r, g, b, a = col.split()
        col = Image.merge("RGBA", (r, g, b, src.crop((x, 0, x + 1, src.height)).split()[3]))
        out.alpha_composite(col, (x, int(round(3 + dy))))
    return out


def russian_flag(c, w, h):
    c.rect((0, 0, w, h / 3), FLAG_WHITE)
    c.rect((0, h / 3, w, 2 * h / 3), FLAG_BLUE)
    c.rect((0, 2 * h / 3, w, h), FLAG_RED)
    c.rect((0, 0, w, h), None, outline=(150, 150, 150), width=0.6)


def english_flag(c, w, h):
    blue, red = (1, 33, 105), (200, 16, 46)
    c.rect((0, 0, w, h), blue)
    c.line([(0, 0), (w, h)], WHITE, h * 0.2, round_ends=False)
    c.line([(0, h), (w, 0)], WHITE, h * 0.2, round_ends=False)
    c.line([(0, 0), (w, h)], red, h * 0.07, round_ends=False)
    c.line([(0, h), (w, 0)], red, h * 0.07, round_ends=False)
    c.rect((w / 2 - h * 0.17, 0, w / 2 + h * 0.17, h), WHITE)
    c.rect((0, h / 2 - h * 0.17, w, h / 2 + h * 0.17), WHITE)
    c.rect((w / 2 - h * 0.1, 0, w / 2 + h * 0.1, h), red)
    c.rect((0, h / 2 - h * 0.1, w, h / 2 + h * 0.1), red)


def gif_arrow(w, h, i, n, way):
    c = Canvas(w, h)
    ph = math.sin(2 * math.pi * i / n)
    a = ARROW_ANGLES[way]
    dx, dy = 5 * ph * math.cos(math.radians(a)), -5 * ph * math.sin(math.radians(a))
    L = (h if a % 180 else w) - 12
    S = (w if a % 180 else h) - 4
    pts = arrow_points(w / 2 + dx, h / 2 + dy, L, S * 0.4, S, L * 0.45, a)
    c.poly(pts, (230, 30, 30), outline=(110, 0, 0), width=1.2)
    return c.image()


def gif_folder(w, h, i, n):
    c = Canvas(w, h)
    folder(c, 1, 2, w - 2, h - 3, open_by=0.5 - 0.5 * math.cos(2 * math.pi * i / n))
    return c.image()


def gif_blank(w, h, i, n):
    return Image.new("RGBA", (w, h), CLEAR)


# ---------------------------------------------------------------------------
# Sounds: each function returns (left, right) lists of floats for n samples

RATE = 44100


def env_adsr(t, total, attack, release):
    if t < attack:
        return t / attack
    if t > total - release:
        return max(0.0, (total - t) / release)
    return 1.0


def formant_gain(f, formants):
    return 0.04 + sum(a * math.exp(-((f - fc) / bw) ** 2) for fc, bw, a in formants)


def voiced(n, f0_of, formants_of, env_of, rng, noise=0.0, max_h=5200):
    """Additive voice: harmonics of a moving pitch weighted by moving formants."""
    out = []
    phase = 0.0
    breath = 0.0
    for s in range(n):
        t = s / RATE
        f0 = f0_of(t)
        phase += f0 / RATE
        fm = formants_of(t)
        v = 0.0
        k = 1
        while k * f0 < max_h:
            v += formant_gain(k * f0, fm) / k ** 0.3 * math.sin(2 * math.pi * k * phase)
            k += 1
        # Low-passed noise: a throat is breathy, not hissy.
        breath += 0.3 * ((rng.random() * 2 - 1) - breath)
        v += 2 * noise * breath
        out.append(v * env_of(t))
    return out


def lerp_path(t, points):
    for (t0, v0), (t1, v1) in zip(points, points[1:]):
        if t0 <= t <= t1:
            u = (t - t0) / (t1 - t0)
            u = 0.5 - 0.5 * math.cos(math.pi * u)
            return v0 + (v1 - v0) * u
    return points[-1][1] if t > points[-1][0] else points[0][1]


def snd_bark(n, rng):
    T = n / RATE
    jitter = [1 + 0.3 * (rng.random() - 0.5) for _ in range(64)]
    return voiced(
        n, lambda t: 430 - 180 * t / T,
        lambda t: [(750, 350, 1.0), (1700, 450, 0.6), (2900, 500, 0.25)],
        lambda t: (min(1.0, t / 0.006) * math.exp(-max(0.0, t - 0.04) / 0.05)
                   * jitter[int(t * 300) % 64]),
        rng, noise=0.35)


def snd_meow(n, rng):
    T = n / RATE
    return voiced(
        n, lambda t: lerp_path(t / T, [(0, 560), (0.3, 820), (0.75, 620), (1, 470)])
        * (1 + 0.015 * math.sin(2 * math.pi * 6 * t)),
        lambda t: [(lerp_path(t / T, [(0, 320), (0.35, 850), (1, 420)]), 160, 1.0),
                   (lerp_path(t / T, [(0, 2300), (0.35, 1350), (1, 850)]), 250, 0.7),
                   (2900, 400, 0.2)],
        lambda t: env_adsr(t, T, 0.05, 0.18), rng, noise=0.01)


def snd_quacks(n, rng, pitches):
    """One quack per pitch: nasal buzz with a falling pitch, spread over the length."""
    T = n / RATE
    slot = T / len(pitches)
    out = [0.0] * n
    for q, f0 in enumerate(pitches):
        start = int(q * slot * RATE)
        length = int(slot * RATE * 0.92)
        dur = length / RATE
        part = voiced(
            length, lambda t, f0=f0: f0 * (1.1 - 0.3 * t / dur),
            lambda t: [(1050, 220, 1.0), (1600, 260, 0.8), (2600, 400, 0.4)],
            lambda t, dur=dur: env_adsr(t, dur, 0.012, 0.07)
            * (0.75 + 0.25 * math.sin(2 * math.pi * 14 * t)),
            rng, noise=0.08, max_h=4500)
        for s, v in enumerate(part):
            if start + s < n:
                out[start + s] += v
    return out


def snd_quack1(n, rng):
    return snd_quacks(n, rng, [190])


def snd_quack(n, rng):
    return snd_quacks(n, rng, [215, 175])


def snd_photon(n, rng):
    """A falling zap: a square-ish tone diving from high to low."""
    T = n / RATE
    out = []
    phase = 0.0
    for s in range(n):
        t = s / RATE
        f = 1900 * math.exp(-3.2 * t) + 140
        phase += f / RATE
        x = 2 * math.pi * phase
        v = math.sin(x) + math.sin(3 * x) / 3 + math.sin(5 * x) / 5
        out.append(v * min(1.0, t / 0.004) * math.exp(-t / 0.42) * env_adsr(t, T, 0.001, 0.05))
    return out


def snd_photon2(n, rng):
    """A rising, warbling beam: ring-modulated sweep with tremolo, unlike the falling zap."""
    T = n / RATE
    out = []
    phase = 0.0
    for s in range(n):
        t = s / RATE
        f = 220 + 1500 * (t / T) ** 0.7
        phase += f / RATE
        v = math.sin(2 * math.pi * phase) * (0.6 + 0.4 * math.sin(2 * math.pi * 37 * t))
        v *= 0.7 + 0.3 * math.sin(2 * math.pi * 11 * t)
        out.append(v * env_adsr(t, T, 0.04, 0.3))
    return out


def snd_whistle(n, rng):
    T = n / RATE
    out = []
    phase = 0.0
    for s in range(n):
        t = s / RATE
        f = 1850 + 800 * (t / T) + 45 * math.sin(2 * math.pi * 9 * t)
        phase += f / RATE
        v = math.sin(2 * math.pi * phase) + 0.06 * (rng.random() * 2 - 1)
        out.append(v * env_adsr(t, T, 0.02, 0.06))
    return out


def snd_bubble(n, rng):
    out = [0.0] * n
    for start, f0, tau in ((0.0, 480, 0.035), (0.11, 690, 0.03), (0.205, 400, 0.045)):
        phase = 0.0
        s0 = int(start * RATE)
        for s in range(s0, n):
            t = (s - s0) / RATE
            if t > 8 * tau:
                break
            phase += f0 * (1 + 9 * t) / RATE
            out[s] += math.sin(2 * math.pi * phase) * min(1.0, t / 0.002) * math.exp(-t / tau)
    return out


def snd_chime(n, rng):
    """Three bell strikes of a major chord; inharmonic partials ring and die away."""
    T = n / RATE
    out = [0.0] * n
    partials = [(0.5, 0.35, 2.4), (1.0, 1.0, 1.6), (2.0, 0.45, 1.0), (2.76, 0.3, 0.7),
                (5.4, 0.12, 0.3)]
    for start, f0 in ((0.0, 1046.5), (0.42, 1318.5), (0.84, 1568.0)):
        s0 = int(start * RATE)
        for s in range(s0, n):
            t = (s - s0) / RATE
            v = 0.0
            for ratio, amp, tau in partials:
                v += amp * math.exp(-t / tau) * math.sin(2 * math.pi * f0 * ratio * t)
            out[s] += v * min(1.0, t / 0.002) * env_adsr(s / RATE, T, 0.0001, 0.25)
    return out


def snd_explosion(n, rng):
    """A boom: low-passed noise whose cutoff falls, a thump, and early crackle."""
    T = n / RATE
    channels = []
    for ch in range(2):
        r = random.Random(1000 + ch)
        out = []
        lp = lp2 = 0.0
        thump_phase = 0.0
        for s in range(n):
            t = s / RATE
            cutoff = 150 + 3200 * math.exp(-t / 0.35)
            k = 1 - math.exp(-2 * math.pi * cutoff / RATE)
            lp += k * ((r.random() * 2 - 1) - lp)
            lp2 += k * (lp - lp2)
            thump_phase += (35 + 30 * math.exp(-t / 0.15)) / RATE
            v = 2.2 * lp2 + 0.9 * math.sin(2 * math.pi * thump_phase) * math.exp(-t / 0.45)
            if t < 1.6 and r.random() < 0.002 * (1.6 - t):
                v += r.uniform(-0.6, 0.6)
            out.append(v * min(1.0, t / 0.004) * math.exp(-t / 0.95) * env_adsr(t, T, 0.0001, 0.4))
        channels.append(out)
    return channels


def snd_machine_gun(n, rng):
    out = [0.0] * n
    period = 0.075
    shot = 0
    while shot * period < n / RATE - 0.02:
        s0 = int(shot * period * RATE)
        gain = 0.85 + 0.3 * rng.random()
        lp = 0.0
        for s in range(s0, min(n, s0 + int(0.07 * RATE))):
            t = (s - s0) / RATE
            lp += 0.5 * ((rng.random() * 2 - 1) - lp)
            v = lp * math.exp(-t / 0.016) + 0.8 * math.sin(2 * math.pi * 110 * t) * math.exp(
                -t / 0.025)
            out[s] += gain * v * min(1.0, t / 0.0005)
        shot += 1
    return out


def snd_typewriter(n, rng):
    out = [0.0] * n
    for start, gain in ((0.0, 1.0), (0.085, 0.45), (0.2, 0.2)):
        s0 = int(start * RATE)
        prev = 0.0
        for s in range(s0, min(n, s0 + int(0.12 * RATE))):
            t = (s - s0) / RATE
            w = rng.random() * 2 - 1
            hp = w - prev
            prev = w
            v = (0.9 * hp * math.exp(-t / 0.003)
                 + 0.7 * math.sin(2 * math.pi * 180 * t) * math.exp(-t / 0.02)
                 + 0.35 * math.sin(2 * math.pi * 3150 * t) * math.exp(-t / 0.025))
            out[s] += gain * v
    return out


def snd_silence(n, rng):
    return [0.0] * n


# ---------------------------------------------------------------------------
# Writers

def save_png(path, im):
    im.save(path, "PNG", optimize=True)


def palette_for(frames, transparent):
    """One shared palette for all frames; index 255 is kept for transparency."""
    strip = Image.new("RGB", (sum(f.width for f in frames), frames[0].height))
    x = 0
    for f in frames:
        rgb = Image.new("RGB", f.size, (0, 0, 0))
        rgb.paste(f, mask=f.split()[3] if transparent else None)
        strip.paste(rgb, (x, 0))
        x += f.width
    q = strip.quantize(colors=255 if transparent else 256, method=Image.Quantize.MEDIANCUT,
                       dither=Image.Dither.NONE)
    pal = q.getpalette()[:768]
    colours = []
    for k in range(0, len(pal), 3):
        col = tuple(pal[k:k + 3])
        # Duplicate entries would confuse palette matching; nudge them apart.
        while col in colours:
            col = ((col[0] + 1) % 256, col[1], col[2])
        colours.append(col)
    filler = 0
    while len(colours) < 256:
        col = (255, filler % 256, 255 - filler // 256)
        filler += 1
        if col not in colours:
            colours.append(col)
    if transparent:
        colours = colours[:255] + [(255, 0, 254)]
    return [v for col in colours for v in col]


def save_gif(path, frames, delay, transparent):
    pal = palette_for(frames, transparent)
    pal_im = Image.new("P", (1, 1))
    pal_im.putpalette(pal)
    out = []
    for f in frames:
        rgb = f.convert("RGB")
        p = rgb.quantize(palette=pal_im, dither=Image.Dither.NONE)
        if transparent:
            hole = f.split()[3].point(lambda v: 255 if v < 128 else 0)
            p.paste(255, mask=hole)
        p.putpalette(pal)
        out.append(p)
    opts = dict(loop=0, duration=delay, optimize=False, palette=bytes(pal),
                disposal=2 if transparent else 1)
    if transparent:
        opts["transparency"] = 255
    if len(out) == 1:
        out[0].save(path, "GIF", **opts)
    else:
        out[0].save(path, "GIF", save_all=True, append_images=out[1:], **opts)
    with Image.open(path) as check:
        if getattr(check, "n_frames", 1) != len(frames):
            sys.exit("%s: wrote %d frames, wanted %d (two frames alike?)"
                     % (path, getattr(check, "n_frames", 1), len(frames)))


def save_wav(path, channels, peak):
    stereo = bool(channels) and isinstance(channels[0], list)
    left, right = channels if stereo else (channels, channels)
    top = max(1e-9, max(max(abs(v) for v in left), max(abs(v) for v in right)))
    gain = peak / top if peak else 0.0
    data = bytearray()
    for a, b in zip(left, right):
        data += struct.pack("<hh", int(round(a * gain * 32767)), int(round(b * gain * 32767)))
    with wave.open(path, "wb") as w:
        w.setnchannels(2)
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(bytes(data))


# ---------------------------------------------------------------------------
# The collection

def P(fn, *args, **kw):
    return lambda: fn(*args, **kw)


def S(fn, *args, **kw):
    """A stand-in for a screenshot of the program, which vortic-screens may have replaced."""
    painter = P(fn, *args, **kw)
    painter.screenshot = True
    return painter


SOUNDS = [  # name, seconds, synthesiser
    ("bark.wav", 0.209, snd_bark),
    ("bubble2.wav", 0.366, snd_bubble),
    ("chime1.wav", 3.892, snd_chime),
    ("explosion1.wav", 3.527, snd_explosion),
    ("machineGun2.wav", 0.836, snd_machine_gun),
    ("meow.wav", 0.888, snd_meow),
    ("photon.wav", 1.306, snd_photon),
    ("photon2.wav", 1.228, snd_photon2),
    ("quack.wav", 0.520, snd_quack),
    ("quack1.wav", 0.313, snd_quack1),
    ("silence.wav", 0.836, snd_silence),
    ("typewriter.wav", 0.392, snd_typewriter),
    ("whistle.wav", 0.340, snd_whistle),
]

GIFS = [  # name, width, height, frames, delay in ms, transparent, frame painter
    ("angryEmotion2.gif", 96, 60, 24, 60, True, gif_angry),
    ("arrow.gif", 40, 48, 8, 80, True, lambda w, h, i, n: gif_arrow(w, h, i, n, "down")),
    ("arrowSide.gif", 48, 40, 8, 80, True, lambda w, h, i, n: gif_arrow(w, h, i, n, "right")),
    ("birdsdance2.gif", 96, 60, 11, 90, True, gif_birds),
    ("blank.gif", 1, 1, 1, 0, True, gif_blank),
    ("bomb2.gif", 48, 48, 10, 70, True, gif_bomb),
    ("bouncingSheepSmall.gif", 34, 54, 8, 80, True, gif_sheep),
    ("butterfly1.gif", 96, 76, 23, 60, True, gif_butterfly),
    ("english.gif", 48, 32, 8, 100, True, lambda w, h, i, n: gif_flag(w, h, i, n, english_flag)),
    ("explodeAll.gif", 72, 72, 20, 50, True, gif_burst),
    ("explodeAll2.gif", 96, 96, 30, 40, True, gif_fireball),
    ("iconOpen.gif", 25, 25, 6, 120, True, gif_folder),
    ("kittyWalk.gif", 100, 46, 12, 80, True, gif_cat),
    ("marbleTransparentSmall.gif", 54, 54, 1, 0, True, gif_marble),
    ("pulsingLight.gif", 100, 100, 6, 120, True,
     lambda w, h, i, n: gif_glow(w, h, i, n, rays=True)),
    ("pulsingLightSmall.gif", 54, 54, 3, 150, True, gif_glow),
    ("rain.gif", 80, 60, 60, 40, True, gif_rain),
    ("russianFlag.gif", 48, 32, 8, 100, True,
     lambda w, h, i, n: gif_flag(w, h, i, n, russian_flag)),
    ("snow.gif", 120, 80, 20, 90, True, lambda w, h, i, n: gif_snow(w, h, i, n, 5, 40, False)),
    ("snowfall.gif", 100, 120, 19, 90, True, lambda w, h, i, n: gif_snow(w, h, i, n, 9, 34, True)),
    ("snowSmall.gif", 84, 54, 20, 90, True, lambda w, h, i, n: gif_snow(w, h, i, n, 3, 26, False)),
    ("swirl.gif", 100, 100, 12, 70, True,
     lambda w, h, i, n: gif_swirl(w, h, i, n, cool_along, turn=-1)),
    ("swirl1.gif", 100, 100, 10, 70, True, lambda w, h, i, n: gif_swirl(w, h, i, n, rainbow_along)),
    ("swirl1Small.gif", 54, 54, 10, 70, True,
     lambda w, h, i, n: gif_swirl(w, h, i, n, rainbow_along)),
]

GOLDEN = [(0, (255, 240, 120)), (0.5, (255, 190, 20)), (1, (190, 90, 0))]
BLUES = [(0, (140, 200, 255)), (0.5, (40, 100, 230)), (1, (20, 30, 130))]
REDS = [(0, (255, 150, 130)), (0.5, (220, 30, 30)), (1, (110, 0, 10))]
GREENS = [(0, (190, 255, 160)), (0.5, (40, 170, 60)), (1, (0, 80, 30))]
PURPLES = [(0, (240, 190, 255)), (0.5, (150, 60, 220)), (1, (60, 10, 110))]
RAINBOW = [(k / 6.0, hue(k / 7.0)) for k in range(7)]
FLAG = [(0, (255, 255, 255)), (0.34, (235, 240, 255)), (0.35, (60, 110, 230)),
        (0.66, (20, 60, 190)), (0.67, (240, 60, 50)), (1, (170, 20, 20))]

MAIN_BAR = (140, 262, 1068, 390)
MAIN_KEYBOARD = (138, 386, 1062, 692)

# Pictures that a HiDPI screen shows from a twin of twice the pixels, "<name>@2x.png", drawn
# from the same strokes. The title art is drawn at twice its label's size already.
DOUBLED = ["chdown.png", "chmiddle.png", "chup.png"]


def doubled_name(name):
    stem, ext = os.path.splitext(name)
    return stem + "@2x" + ext


PICTURES = [  # name, painter (S: the stand-in for a screenshot)
    ("alphaAndShadows.png", P(word_art, 240, 60, "Alpha & Shadows", stops=PURPLES,
                              outline=(255, 255, 255), shadow=0.8, fill_alpha=170)),
    ("alphabetBar.png", S(shot, MAIN_BAR)),
    ("AlphabetBarFinished.png", S(shot, MAIN_BAR, done=20)),
    ("alphaChannel.png", P(alpha_channel_picture, 160, 48)),
    ("animation.png", S(shot, (340, 206, 430, 254))),
    ("arrow2.png", P(big_arrow, 55, 63, "down", (255, 120, 90), (200, 0, 0))),
    ("arrowDown.png", P(big_arrow, 32, 40, "down", (120, 190, 255), (20, 60, 200),
                        (0, 20, 80))),
    ("arrowUp.png", P(big_arrow, 32, 40, "up", (120, 190, 255), (20, 60, 200), (0, 20, 80))),
    ("bottomLeft.PNG", P(dial_arrow, 30, 30, "bottomleft")),
    ("bottomLeft1.png", P(dial_arrow, 30, 30, "bottomleft", "lit")),
    ("bottomLeftPix.png", P(corner_picture, 40, 30, "bottomleft")),
    ("bottomRightPix.png", P(corner_picture, 40, 30, "bottomright")),
    ("bridge1.png", S(shot, (130, 440, 520, 575), bridges=(0,))),
    ("bridge2.png", S(shot, (130, 500, 520, 635), bridges=(1,))),
    ("cantFindIt.png", S(shot, (864, 0, 999, 114), lit=4, game=True)),
    ("chdown.png", P(instructor_picture, 144, 115, 0)),
    ("chmiddle.png", P(instructor_picture, 144, 115, 1)),
    ("chup.png", P(instructor_picture, 144, 115, 2)),
    ("circleKey.png", S(key_picture, 54, 54, radius=27)),
    ("clickKeyToSet.png", P(click_key_picture, 170, 40)),
    ("clickThis.png", P(caption_with_arrow, 90, 50, "Click this", "down")),
    ("colorMadnessKeySmall.png", P(menu_heading, 136, 32, "Color Madness", RAINBOW,
                                   icon_rainbow_key, horizontal=True)),
    ("colorMadnessPaintSmall.png", P(menu_heading, 136, 32, "Paint", RAINBOW, icon_brush,
                                     horizontal=True)),
    ("colorPicker.png", P(colour_picker_picture, 45, 45)),
    ("cp.png", P(palette_picture, 40, 32)),
    ("cpKeyBg.png", P(key_bg_picker_picture, 45, 45)),
    ("currentGame.png", S(shot, (196, 134, 430, 252))),
    ("digRight.png", P(dial_arrow, 30, 30, "bottomright", "thin")),
    ("directionButtons.PNG", S(shot, (0, 226, 140, 280))),
    ("down.PNG", P(dial_arrow, 30, 30, "down")),
    ("downleft.PNG", P(dial_arrow, 30, 30, "bottomleft", "thin")),
    ("downleft1.png", P(dial_arrow, 30, 30, "bottomleft", "lit")),
    ("duck.png", P(duck_picture, 46, 42)),
    ("extra1.png", P(menu_heading, 136, 32, "Extra", GREENS, icon_box)),
    ("extraBox.png", P(word_art, 220, 44, "Game Play Box", stops=GREENS, outline=(0, 40, 0))),
    ("extras.png", P(word_art, 278, 50, "Extras", stops=GREENS, outline=(0, 40, 0))),
    ("fonts1small.png", P(menu_heading, 136, 32, "Fonts", BLUES, icon_fonts)),
    ("fonts2small.png", P(word_art, 136, 32, "Aa Bb Вв", kind="serif", stops=REDS,
                          outline=(60, 0, 0))),
    ("fonts3.png", P(word_art, 278, 50, "Fonts", kind="serif", stops=BLUES, outline=(0, 0, 60),
                     slant=0.2)),
    ("gamePlay.png", S(shot, (466, 124, 1000, 254), game=True)),
    ("gamePlay3.png", S(in_game_fields, 228, 114)),
    ("glasses.png", P(glasses_picture, 64, 36)),
    ("grayedOut.png", S(shot, MAIN_KEYBOARD, scale=0.5, grey=True)),
    ("help.png", S(shot, (1114, 654, 1211, 695))),
    ("hideNonVitals.PNG", S(shot, (998, 668, 1054, 695))),
    ("highlight.png", P(key_picture, 54, 54, face=GOLD, eng_ink=BLACK, rus_ink=BLACK)),
    ("includeHeader.png", P(include_header_picture, 150, 100)),
    ("insLeft.png", S(shot, (2, 540, 100, 652))),
    ("insRight.png", S(shot, (1104, 522, 1210, 650))),
    ("installedThemes.png", P(word_art, 240, 40, "Installed Themes", stops=PURPLES,
                              outline=(40, 0, 60))),
    ("Instructions.png", P(word_art, 278, 50, "Instructions", stops=BLUES, outline=(0, 0, 50))),
    ("key.png", P(key_picture, 54, 54)),
    ("keyboard.png", S(shot, MAIN_KEYBOARD)),
    ("keyFinished.png", P(key_picture, 54, 54, face=FINISHED_GREY)),
    ("keyPress.png", P(key_picture, 54, 54, eng_ink=(60, 120, 255), rus_ink=(60, 120, 255),
                       border=(60, 120, 255))),
    ("left.PNG", P(dial_arrow, 30, 30, "left")),
    ("lineHigh1.png", S(shot, (390, 440, 620, 640), lines="over", highlight="D", game=True)),
    ("lineHigh2.png", S(shot, (390, 440, 620, 640), lines="under", highlight="D", game=True)),
    ("Lines.png", S(shot, MAIN_KEYBOARD, scale=0.6, lines="over", highlight="D", game=True)),
    ("mainScreen.png", S(main_screen_map)),
    ("mouse1.png", P(mouse_picture, 32, 40)),
    ("mouse2.png", P(mouse_picture, 32, 40, pressed=True, waves=True)),
    ("mouseOver.png", P(key_picture, 54, 54, face=GOLD, eng_ink=(0, 0, 255), rus_ink=(0, 0, 255),
                        extra=mouse_over_extra)),
    ("multiCharacters.png", P(key_picture, 108, 108, english="S", upper="Ы", lower="ы")),
    ("open.png", P(folder_picture, 32, 28)),
    ("options.png", S(shot, (996, 10, 1211, 261))),
    ("optionsClosed.png", S(shot, (1002, 36, 1100, 114))),
    ("optionsMain.png", S(options_menu, 142, 695)),
    ("paint.png", P(paint_brush_picture, 40, 40)),
    ("paintKey.png", P(key_picture, 54, 54, face=(120, 0, 160), eng_ink=(255, 230, 0),
                       rus_ink=(0, 255, 200), extra=paint_key_extra)),
    ("pictures.png", P(word_art, 278, 50, "Pictures", stops=GOLDEN)),
    ("picturesSmall.png", P(menu_heading, 136, 32, "Pictures", GOLDEN, icon_photo)),
    ("playLabel.png", P(speaker_picture, 24, 24)),
    ("push.png", P(push_button_picture, 44, 44)),
    ("quit.png", S(shot, (0, 656, 52, 695))),
    ("right.PNG", P(dial_arrow, 30, 30, "right")),
    ("russianNosferatu.png", P(word_art, 414, 122, "Russian", kind="serif", stops=FLAG,
                               outline=(20, 10, 40), outline_w=0.05, slant=0.22, shadow=0.6)),
    ("save.png", P(disk_picture, 30, 30)),
    ("saveFile.png", P(word_art, 200, 40, "Save / Open", stops=BLUES, outline=(0, 0, 50))),
    ("scoreboard.png", S(shot, (0, 2, 187, 212), game=True)),
    ("Shadows2.png", P(word_art, 278, 50, "Shadows", stops=[(0, (200, 200, 210)),
                                                            (1, (90, 90, 110))],
                       outline=(20, 20, 30), shadow=1.0)),
    ("shadowsFinal.png", P(menu_heading, 136, 32, "Shadows", [(0, (200, 200, 210)),
                                                              (1, (70, 70, 90))], icon_shadow)),
    ("smallNote.png", P(note_picture, 20, 20)),
    ("sof.png", S(shot, (636, 0, 844, 114), soft=True)),
    ("soundEffects.png", P(word_art, 278, 50, "Sound Effects", stops=REDS, outline=(50, 0, 0))),
    ("soundEffects1.png", P(menu_heading, 136, 32, "Sounds", REDS, icon_note)),
    ("squareKey.png", S(key_picture, 54, 54, radius=4)),
    ("start1.png", S(shot, (188, 0, 411, 114), lit=1)),
    ("start2.png", S(shot, (426, 0, 613, 114), lit=2)),
    ("start3.png", S(shot, (632, 0, 844, 114), lit=3)),
    ("start4.png", S(shot, (188, 0, 999, 114))),
    ("strick.png", S(shot, (636, 0, 844, 114), soft=False)),
    ("topleft.PNG", P(dial_arrow, 30, 30, "topleft")),
    ("topleft1.png", P(dial_arrow, 30, 30, "topleft", "lit")),
    ("topLeftPix.png", P(corner_picture, 40, 30, "topleft")),
    ("topright.PNG", P(dial_arrow, 30, 30, "topright")),
    ("topright1.png", P(dial_arrow, 30, 30, "topright", "lit")),
    ("topRightPix.png", P(corner_picture, 40, 30, "topright")),
    ("transparent_text_effectCov.png", P(word_art, 240, 60, "Text Effect", stops=BLUES,
                                         outline=(0, 0, 80), fill_alpha=90, gloss=False)),
    ("up.PNG", P(dial_arrow, 30, 30, "up")),
    ("veryCenter.PNG", P(dial_arrow, 30, 30, "centre")),
    ("vortic1.png", P(word_art, 381, 65, "Vortic Keyboard", stops=GOLDEN, outline=(60, 20, 0),
                      slant=0.12)),
    ("vorticKeyboardFinal.png", P(menu_heading, 136, 32, "Effects", GOLDEN, icon_burst)),
    ("vorticTypingBrelom.png", P(word_art, 702, 138, "Vortic-Typing", stops=BLUES,
                                 outline=(255, 255, 255), outline_w=0.06, slant=0.15,
                                 shadow=0.7)),
    ("wallpaper.png", P(wallpaper_picture, 240, 160)),
    ("youTube.png", P(video_button_picture, 48, 48)),
]


def contact_sheet(items):
    """All pictures and the first frame of every gif, on a checkerboard, with their names."""
    cell_w, cell_h, cols = 190, 150, 10
    rows = (len(items) + cols - 1) // cols
    sheet = Image.new("RGB", (cols * cell_w, rows * cell_h), (255, 255, 255))
    d = ImageDraw.Draw(sheet)
    for k, (name, im) in enumerate(items):
        x, y = (k % cols) * cell_w, (k // cols) * cell_h
        box_w, box_h = cell_w - 10, cell_h - 26
        for j in range(0, box_h, 8):
            for i in range(0, box_w, 8):
                shade = (225, 225, 225) if (i // 8 + j // 8) % 2 else (250, 250, 250)
                d.rectangle([x + 5 + i, y + 5 + j, x + 5 + min(box_w, i + 8) - 1,
                             y + 5 + min(box_h, j + 8) - 1], fill=shade)
        im = im.convert("RGBA")
        scale = min(1.0, box_w / im.width, box_h / im.height)
        if scale < 1.0:
            im = im.resize((max(1, int(im.width * scale)), max(1, int(im.height * scale))),
                           Image.Resampling.LANCZOS)
        px, py = x + 5 + (box_w - im.width) // 2, y + 5 + (box_h - im.height) // 2
        sheet.paste(im, (px, py), im)
        d.text((x + cell_w / 2, y + cell_h - 12), name, font=font("sans", 10), fill=(0, 0, 0),
               anchor="mm")
    return sheet


def main():
    parser = argparse.ArgumentParser(description="Draws the resource collection.")
    parser.add_argument("--keep-screens", action="store_true",
                        help="keep the screenshots already in files/ instead of drawing stand-ins")
    args = parser.parse_args()

    os.makedirs(OUT, exist_ok=True)
    names = [n for n, *_ in SOUNDS] + [n for n, *_ in GIFS] + [n for n, _ in PICTURES]
    if len(names) != len(set(names)) or len(names) != 143:
        sys.exit("the collection must hold 143 distinct names, not %d" % len(set(names)))
    stale = set(os.listdir(OUT)) - set(names) - {doubled_name(n) for n in DOUBLED}
    for name in sorted(stale):
        os.remove(os.path.join(OUT, name))

    for seed, (name, seconds, synth) in enumerate(SOUNDS):
        n = int(round(seconds * RATE))
        save_wav(os.path.join(OUT, name), synth(n, random.Random(seed)),
                 0.0 if synth is snd_silence else 0.8)

    sheet_items = []
    for name, w, h, count, delay, transparent, painter in GIFS:
        frames = [painter(w, h, i, count) for i in range(count)]
        save_gif(os.path.join(OUT, name), frames, delay, transparent)
        with Image.open(os.path.join(OUT, name)) as first:
            sheet_items.append((name, first.convert("RGBA")))

    kept = 0
    for name, painter in PICTURES:
        path = os.path.join(OUT, name)
        if args.keep_screens and getattr(painter, "screenshot", False) and os.path.exists(path):
            with Image.open(path) as screen:
                sheet_items.append((name, screen.convert("RGBA")))
            kept += 1
            continue
        im = painter()
        save_png(path, im)
        sheet_items.append((name, im))
        if name in DOUBLED:
            Canvas.scale = 2
            save_png(os.path.join(OUT, doubled_name(name)), painter())
            Canvas.scale = 1

    with open(QRC, "w", encoding="utf-8", newline="\n") as f:
        f.write("<RCC>\n")
        f.write('    <qresource prefix="%s">\n' % PREFIX)
        for name in names + [doubled_name(n) for n in DOUBLED]:
            f.write('        <file alias="%s">files/%s</file>\n' % (name, name))
        f.write("    </qresource>\n")
        f.write("</RCC>\n")

    sheet_items.sort(key=lambda item: item[0].lower())
    save_png(SHEET, contact_sheet(sheet_items))
    total = sum(os.path.getsize(os.path.join(OUT, n))
                for n in names + [doubled_name(n) for n in DOUBLED])
    print("%d files, %.1f KiB" % (len(names), total / 1024.0)
          + (", %d screenshots kept" % kept if kept else ""))


if __name__ == "__main__":
    main()
