#!/usr/bin/env python3
"""Writes the sample drawings beside this file: plate, curves, blocks, planes and faults, as plain DXF."""
import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))


def number(value):
    return repr(round(value, 12)) if isinstance(value, float) else str(value)


def group(*pairs):
    """Pairs of group code and value as DXF text."""
    return "".join(f"{pairs[i]:3d}\n{number(pairs[i + 1])}\n" for i in range(0, len(pairs), 2))


class Drawing:
    """Collects entities, each with a handle of its own; a block's entities between block() and end()."""

    def __init__(self):
        self.layers, self.blocks, self.entities, self.handle = "", "", "", 0x100
        self.in_block = False

    def put(self, text):
        if self.in_block:
            self.blocks += text
        else:
            self.entities += text

    def layer(self, name, color, flags=0):
        self.layers += group(0, "LAYER", 2, name, 70, flags, 62, color, 6, "CONTINUOUS")

    def block(self, name, x=0.0, y=0.0):
        self.in_block = True
        self.put(group(0, "BLOCK", 8, "0", 2, name, 70, 0, 10, x, 20, y, 30, 0.0, 3, name, 1, ""))

    def end(self):
        self.put(group(0, "ENDBLK", 8, "0"))
        self.in_block = False

    def entity(self, kind, layer, *pairs, color=256):
        self.handle += 1
        own = () if color == 256 else (62, color)
        self.put(group(0, kind, 5, f"{self.handle:X}", 8, layer, *own, *pairs))

    def line(self, layer, x1, y1, x2, y2, **more):
        self.entity("LINE", layer, 10, x1, 20, y1, 30, 0.0, 11, x2, 21, y2, 31, 0.0, **more)

    def circle(self, layer, x, y, r, *pairs, **more):
        self.entity("CIRCLE", layer, 10, x, 20, y, 30, 0.0, 40, r, *pairs, **more)

    def arc(self, layer, x, y, r, start, end, *pairs, **more):
        self.entity("ARC", layer, 10, x, 20, y, 30, 0.0, 40, r, 50, start, 51, end, *pairs, **more)

    def ellipse(self, layer, x, y, mx, my, ratio, start=0.0, end=2 * math.pi, *pairs, **more):
        self.entity("ELLIPSE", layer, 10, x, 20, y, 30, 0.0, 11, mx, 21, my, 31, 0.0, 40, ratio, 41, start, 42, end,
                    *pairs, **more)

    def polyline(self, layer, points, closed=False, *pairs, **more):
        """Points (x, y) or (x, y, bulge)."""
        groups = []
        for x, y, *bulge in points:
            groups += [10, x, 20, y] + ([42, bulge[0]] if bulge else [])
        self.entity("LWPOLYLINE", layer, 90, len(points), 70, int(closed), *groups, *pairs, **more)

    def old_polyline(self, layer, points, flags=0, **own):
        self.entity("POLYLINE", layer, 66, 1, 10, 0.0, 20, 0.0, 30, 0.0, 70, flags, **own)
        for x, y, *more in points:  # a bulge in the plane, a height in space
            last = (30, more[0]) if flags & 8 else (30, 0.0, 42, more[0] if more else 0.0)
            self.entity("VERTEX", layer, 10, x, 20, y, *last)
        self.entity("SEQEND", layer)

    def spline(self, layer, degree, control, knots=None, weights=None, flags=8, **more):
        if knots is None:
            inner = len(control) - degree
            knots = [0.0] * degree + [float(i) for i in range(inner + 1)] + [float(inner)] * degree
        groups = []
        for knot in knots:
            groups += [40, float(knot)]
        for weight in weights or []:
            groups += [41, float(weight)]
        for x, y, *z in control:
            groups += [10, x, 20, y, 30, z[0] if z else 0.0]
        self.entity("SPLINE", layer, 70, flags + (4 if weights else 0), 71, degree, 72, len(knots), 73, len(control),
                    74, 0, *groups, **more)

    def insert(self, layer, name, x, y, sx=1.0, sy=1.0, angle=0.0, *pairs, **more):
        self.entity("INSERT", layer, 2, name, 10, x, 20, y, 30, 0.0, 41, sx, 42, sy, 43, 1.0, 50, angle, *pairs, **more)

    def write(self, name):
        count = self.layers.count("LAYER\n")
        text = group(999, "a sample drawing of kxdraw, written by make_samples.py")
        text += group(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, "AC1015", 0, "ENDSEC")
        text += group(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "LAYER", 70, count) + self.layers
        text += group(0, "ENDTAB", 0, "ENDSEC", 0, "SECTION", 2, "BLOCKS") + self.blocks
        text += group(0, "ENDSEC", 0, "SECTION", 2, "ENTITIES") + self.entities + group(0, "ENDSEC", 0, "EOF")
        with open(os.path.join(HERE, name), "w", encoding="ascii", newline="\n") as file:
            file.write(text)


def polar(x, y, r, degrees):
    return x + r * math.cos(math.radians(degrees)), y + r * math.sin(math.radians(degrees))


def bulge(degrees):
    return math.tan(math.radians(degrees) / 4)


def rounded(x1, y1, x2, y2, r):
    """A rectangle with rounded corners, counter-clockwise."""
    b = bulge(90)
    return [(x1 + r, y1), (x2 - r, y1, b), (x2, y1 + r), (x2, y2 - r, b),
            (x2 - r, y2), (x1 + r, y2, b), (x1, y2 - r), (x1, y1 + r, b)]


def slot(x, y, length, r):
    h = length / 2
    return [(x - h, y - r), (x + h, y - r, 1.0), (x + h, y + r), (x - h, y + r, 1.0)]


def curved_slot(x, y, radius, r, start, end):
    """A slot along an arc: outer arc, round end, inner arc backwards, round end."""
    turn = end - start
    return [(*polar(x, y, radius + r, start), bulge(turn)), (*polar(x, y, radius + r, end), 1.0),
            (*polar(x, y, radius - r, end), bulge(-turn)), (*polar(x, y, radius - r, start), 1.0)]


def plate():
    d = Drawing()
    for name, color in (("OUTLINE", 7), ("HOLES", 5), ("BOLTS", 30), ("CENTRE", 1), ("SLOTS", 94), ("MARKS", 8)):
        d.layer(name, color)
    d.block("HOLE")
    d.circle("0", 0.0, 0.0, 1.0)
    d.line("CENTRE", -1.5, 0.0, 1.5, 0.0)
    d.line("CENTRE", 0.0, -1.5, 0.0, 1.5)
    d.end()
    d.block("BOLT")
    d.polyline("0", [polar(0, 0, 7 / math.cos(math.pi / 6), 60 * i) for i in range(6)], True)
    d.circle("0", 0.0, 0.0, 6.6)
    d.circle("0", 0.0, 0.0, 4.0)
    d.arc("MARKS", 0.0, 0.0, 3.3, 100.0, 10.0)
    d.end()
    d.block("PATTERN", 100.0, 100.0)  # a base point away from the origin
    for i in range(6):
        d.insert("BOLTS", "BOLT", *polar(100, 100, 46, 60 * i), 1.0, 1.0, 60.0 * i)
    d.circle("CENTRE", 100.0, 100.0, 46.0)
    d.end()

    d.polyline("OUTLINE", rounded(0.0, 0.0, 240.0, 160.0, 18.0), True)
    d.polyline("MARKS", rounded(4.0, 4.0, 236.0, 156.0, 14.0), True)
    for x in (18.0, 222.0):
        for y in (18.0, 142.0):
            d.insert("HOLES", "HOLE", x, y, 7.0, 7.0)
    d.insert("0", "PATTERN", 92.0, 80.0, 1.0, 1.0, 15.0)
    d.circle("OUTLINE", 92.0, 80.0, 62.0)
    for r in (30.0, 26.0):
        d.circle("HOLES", 92.0, 80.0, r)
    edge = math.degrees(math.asin(5 / 20))  # the bore with its keyway
    d.arc("OUTLINE", 92.0, 80.0, 20.0, 90 + edge, 90 - edge)
    left, right, low = 87.0, 97.0, 80 + 20 * math.cos(math.radians(edge))
    d.line("OUTLINE", left, low, left, 104.0)
    d.line("OUTLINE", left, 104.0, right, 104.0)
    d.line("OUTLINE", right, 104.0, right, low)
    for start in (100.0, 220.0, 340.0):
        d.polyline("SLOTS", curved_slot(92.0, 80.0, 35.0, 2.5, start, start + 40), True)
    for y in (58.0, 82.0, 106.0):
        d.polyline("SLOTS", slot(192.0, y, 44.0, 6.0), True)
        d.line("CENTRE", 158.0, y, 226.0, y)
    d.ellipse("HOLES", 186.0, 131.0, 20.0, 0.0, 0.4)
    d.ellipse("MARKS", 186.0, 131.0, 24.0, 0.0, 0.45, math.radians(20), math.radians(160))
    d.old_polyline("SLOTS", [(160.0, 20.0), (167.0, 20.0, -1.0), (179.0, 20.0), (185.0, 20.0, -1.0), (197.0, 20.0),
                             (204.0, 20.0), (204.0, 32.0, bulge(60)), (160.0, 32.0)], 1)
    d.line("CENTRE", 92.0, 8.0, 92.0, 152.0)
    d.line("CENTRE", 24.0, 80.0, 156.0, 80.0)
    for x in (165.0, 219.0):
        d.entity("POINT", "MARKS", 10, x, 20, 70.0, 30, 0.0)
        d.entity("POINT", "MARKS", 10, x, 20, 94.0, 30, 0.0)
    d.entity("SOLID", "MARKS", 10, 87.0, 20, -10.0, 30, 0.0, 11, 97.0, 21, -10.0, 31, 0.0, 12, 91.0, 22, -3.0, 32, 0.0,
             13, 93.0, 23, -3.0, 33, 0.0)  # its third and fourth corner are crossed
    d.entity("TRACE", "MARKS", 10, 100.0, 20, -9.0, 30, 0.0, 11, 100.0, 21, -6.0, 31, 0.0, 12, 140.0, 22, -9.0, 32, 0.0,
             13, 140.0, 23, -6.0, 33, 0.0)
    d.entity("3DFACE", "MARKS", 10, 44.0, 20, -10.0, 30, 0.0, 11, 84.0, 21, -10.0, 31, 0.0, 12, 84.0, 22, -5.0, 32, 0.0,
             13, 44.0, 23, -5.0, 33, 2.0)
    d.entity("3DFACE", "MARKS", 10, 144.0, 20, -10.0, 30, 0.0, 11, 150.0, 21, -7.5, 31, 0.0, 12, 144.0, 22, -5.0, 32, 0.0)
    d.write("plate.dxf")


def curves():
    d = Drawing()
    d.layer("CONTROL", 9)
    d.layer("CURVES", 5)
    d.layer("ELLIPSES", 210)
    zigzag = [(0.0, 0.0), (12.0, 34.0), (26.0, 4.0), (40.0, 36.0), (54.0, 2.0), (68.0, 34.0), (80.0, 6.0), (92.0, 20.0)]
    d.polyline("CONTROL", zigzag)
    for degree, color in ((1, 8), (2, 30), (3, 1), (4, 200), (5, 5)):
        d.spline("CURVES", degree, zigzag, color=color)

    # One arch with the weight of its top from almost nothing to much.
    arch = [(0.0, 50.0), (20.0, 50.0), (46.0, 110.0), (72.0, 50.0), (92.0, 50.0)]
    d.polyline("CONTROL", arch)
    for weight, color in ((0.1, 94), (0.4, 92), (1.0, 3), (2.5, 82), (8.0, 72)):
        d.spline("CURVES", 3, arch, weights=[1, 1, weight, 1, 1], color=color)

    # A full circle as a rational spline of degree 2, in its control square.
    square = [(1, 0), (1, 1), (0, 1), (-1, 1), (-1, 0), (-1, -1), (0, -1), (1, -1), (1, 0)]
    control = [(146.0 + 32 * x, 34.0 + 32 * y) for x, y in square]
    half = math.sqrt(0.5)
    d.polyline("CONTROL", control)
    d.spline("CURVES", 2, control, [-1, -1, -1, 0, 0, 1, 1, 2, 2, 3, 3, 3], [1, half] * 4 + [1], 9, color=1)

    # Rosettes inside: uniform knots without clamped ends, the first points repeated; the inner one's knots are negative.
    for radius, dip, first, color in ((31.0, 12.0, 0, 5), (20.0, 3.0, -40, 30)):
        ring = [polar(146.0, 34.0, dip if i % 2 else radius, 15.0 * i) for i in range(24)]
        d.spline("CURVES", 3, ring + ring[:3], [first + i for i in range(31)], flags=11, color=color)

    # Uneven knots, a knot of full multiplicity that makes a corner, and a high degree.
    wave = [(100.0 + 92 * i / 12, 92.0 + (9.0 if i % 2 else -9.0)) for i in range(13)]
    d.spline("CURVES", 3, wave, [-5, -5, -5, -5, -4.9, -4, -2, -2, -2, 1, 1.5, 4, 9, 20, 20, 20, 20], color=6)
    d.spline("CURVES", 11, wave, color=4)

    for i in range(9):
        x, y = polar(0, 0, 30.0, 20.0 * i)
        d.ellipse("ELLIPSES", 236.0, 34.0, x, y, 0.35, color=20 + 20 * i)
    for i in range(7):
        d.ellipse("ELLIPSES", 236.0, 78.0, 0.0, 34.0 - 4 * i, 0.9, -math.pi / 2, math.pi / 2, color=10 + 40 * (i % 6))
    # Two halves with the same parameters, one against its normal.
    d.ellipse("ELLIPSES", 236.0, 84.0, 0.0, 5.0, 0.6, 0.0, math.pi, 210, 0.0, 220, 0.0, 230, -1.0, color=1)
    d.ellipse("ELLIPSES", 236.0, 84.0, 0.0, 5.0, 0.6, 0.0, math.pi, color=5)
    d.write("curves.dxf")


def blocks():
    d = Drawing()
    for name, color in (("STEM", 36), ("LEAF", 94), ("WHEEL", 5), ("TILES", 32), ("FRAME", 8)):
        d.layer(name, color)
    d.block("LEAF")
    d.spline("LEAF", 3, [(0.0, 0.0), (3.0, 3.2), (8.0, 3.0), (12.0, 0.0)])
    d.spline("LEAF", 3, [(0.0, 0.0), (4.0, -1.6), (8.0, -1.4), (12.0, 0.0)])
    d.line("0", 0.0, 0.0, 9.0, 0.5, color=0)
    d.end()
    d.block("TWIG")
    d.arc("0", 0.0, -60.0, 60.0, 55.0, 90.0)
    for i in range(4):
        x, y = polar(0, -60, 60, 84 - 8 * i)
        size = 1.0 - 0.15 * i
        d.insert("0", "LEAF", x, y, size, size, 45.0 - 10 * i, color=0)
        d.insert("0", "LEAF", x, y, size, -size, -50.0 - 10 * i, color=0)  # mirrored
    d.insert("0", "LEAF", *polar(0, -60, 60, 55), 0.8, 0.8, -35.0, color=0)
    d.end()
    d.block("TREE")
    for side in (1.0, -1.0):
        d.insert("STEM", "TWIG", 0.0, 22.0, 0.7 * side, 0.7, 0.0, color=62)
        d.insert("STEM", "TWIG", 0.0, 44.0, 0.9 * side, 0.9, 18.0 * side, color=82)
        d.insert("STEM", "TWIG", 0.0, 62.0, 0.8 * side, 0.8, 42.0 * side, color=102)
    d.polyline("STEM", [(-2.5, 0.0), (2.5, 0.0, 0.08), (0.6, 66.0), (-0.6, 66.0, 0.08)], True)
    d.end()
    d.block("WHEEL", 5.0, 5.0)
    for r in (10.0, 8.6, 2.0):
        d.circle("0", 5.0, 5.0, r)
    for i in range(12):
        d.line("0", *polar(5, 5, 2, 30 * i), *polar(5, 5, 8.6, 30 * i + 12))
    d.arc("0", 5.0, 5.0, 5.5, 15.0, 75.0, color=1)  # shows which way it is turned
    d.end()
    d.block("TILE")
    d.polyline("0", [(0.0, 0.0), (10.0, 0.0), (10.0, 10.0), (0.0, 10.0)], True)
    d.arc("0", 0.0, 0.0, 5.0, 0.0, 90.0)
    d.arc("0", 10.0, 10.0, 5.0, 180.0, 270.0)
    d.ellipse("0", 5.0, 5.0, 2.0, 2.0, 0.4)
    d.end()
    d.block("EMPTY")
    d.end()
    d.block("UNUSED")
    d.line("0", 0.0, 0.0, 1.0, 1.0)
    d.end()

    d.polyline("FRAME", rounded(-62.0, -50.0, 178.0, 112.0, 6.0), True)
    d.insert("0", "TREE", 0.0, 0.0)
    d.line("FRAME", -56.0, 0.0, 56.0, 0.0)
    # The same wheel eight times: as it is, mirrored in x, in y, in both; then drawn out, and against its normal.
    for i, (sx, sy) in enumerate(((1.0, 1.0), (-1.0, 1.0), (1.0, -1.0), (-1.0, -1.0))):
        d.insert("WHEEL", "WHEEL", 78.0 + 25 * i, 94.0, sx, sy)
    for i, (sx, sy) in enumerate(((1.0, 0.5), (0.5, 1.0), (-1.1, -0.6))):
        d.insert("WHEEL", "WHEEL", 78.0 + 25 * i, 68.0, sx, sy, 30.0)
    d.insert("WHEEL", "WHEEL", -153.0, 68.0, 1.0, 1.0, 0.0, 210, 0.0, 220, 0.0, 230, -1.0)
    d.insert("TILES", "TILE", 72.0, 8.0, 0.9, 0.9, 0.0, 70, 10, 71, 5, 44, 9.0, 45, 9.0)  # an array
    d.insert("TILES", "TILE", -50.0, -40.0, 2.0, 1.0, 0.0, 70, 5, 71, 3, 44, 21.0, 45, 11.0)
    d.insert("WHEEL", "TREE", 92.0, -46.0, 0.45, 0.45)
    d.insert("WHEEL", "TREE", 152.0, -10.0, -0.45, -0.45)  # upside down
    d.insert("0", "EMPTY", 0.0, 0.0)
    away = (210, 0.0, 220, 0.0, 230, -1.0)  # seen from behind: x counts to the left
    d.arc("FRAME", 42.0, 92.0, 9.0, 20.0, 160.0, *away)
    d.circle("FRAME", 42.0, 92.0, 4.0, *away)
    d.polyline("FRAME", [(51.0, 92.0), (42.0, 80.0, 0.4), (33.0, 92.0)], False, *away)
    d.write("blocks.dxf")


def planes():
    """Entities in planes of their own: patches on a sphere, and a lantern that lies on its sides."""
    d = Drawing()
    for name, color in (("PATCHES", 5), ("STARS", 30), ("MARKS", 8), ("LANTERN", 94), ("MEASURES", 1)):
        d.layer(name, color)
    d.block("STAR", 0.0, 0.0)
    d.polyline("0", [(*polar(0, 0, 7.0 if i % 2 else 3.2, 36.0 * i), 0.2) for i in range(10)], True)
    d.entity("SOLID", "MARKS", 10, -1.5, 20, -1.5, 30, 0.0, 11, 1.5, 21, -1.5, 31, 0.0, 12, 0.0, 22, 2.0, 32, 0.0)
    d.end()
    d.block("LANTERN", 0.0, 0.0)
    for z, r in ((0.0, 6.0), (16.0, 9.0), (20.0, 3.0)):
        d.entity("CIRCLE", "0", 10, 0.0, 20, 0.0, 30, z, 40, r)
    for i in range(6):
        (x, y), (u, v), (p, q) = polar(0, 0, 6, 60 * i), polar(0, 0, 9, 60 * i), polar(0, 0, 3, 60 * i)
        d.entity("LINE", "0", 10, x, 20, y, 30, 0.0, 11, u, 21, v, 31, 16.0)
        d.old_polyline("0", [(u, v, 16.0), (p, q, 20.0), (0.0, 0.0, 21.0)], 8)
        d.entity("ELLIPSE", "MARKS", 10, u * 0.83, 20, v * 0.83, 30, 8.0, 11, 0.0, 21, 0.0, 31, 4.0, 40, 0.45, 41, 0.0,
                 42, 2 * math.pi, 210, u, 220, v, 230, 0.0, color=30)
    turns = [polar(0, 0, 6 + 0.1 * i, 45 * i) for i in range(28)]
    d.spline("0", 3, [(x, y, 0.6 * i) for i, (x, y) in enumerate(turns)], color=1)
    d.entity("3DFACE", "MARKS", 10, -2.0, 20, -2.0, 30, 20.0, 11, 2.0, 21, -2.0, 31, 20.0, 12, 0.0, 22, 0.0, 32, 26.0)
    d.end()
    d.block("*D1")  # what shows a dimension, in world coordinates
    for x in (-64.0, 64.0):
        d.line("0", x, -4.0, x, -76.0)
        d.entity("POINT", "Defpoints", 10, x, 20, -4.0, 30, 0.0)
    d.line("0", -64.0, -74.0, 64.0, -74.0)
    for side in (-1.0, 1.0):
        d.entity("SOLID", "0", 10, 64.0 * side, 20, -74.0, 30, 0.0, 11, 58.0 * side, 21, -73.0, 31, 0.0,
                 12, 58.0 * side, 22, -75.0, 32, 0.0)
    d.end()

    for tilt, count in ((0, 1), (24, 6), (48, 12), (70, 15), (89, 18)):
        for i in range(count):
            turn = 360.0 * i / count + tilt / 5
            (side, up), z = polar(0, 0, 1, turn), math.cos(math.radians(tilt))
            size = 2.0 + i  # of any length
            normal = (210, size * side * math.sin(math.radians(tilt)), 220, size * up * math.sin(math.radians(tilt)),
                      230, size * z)
            d.entity("CIRCLE", "PATCHES", 10, 0.0, 20, 0.0, 30, 62.0, 40, 10.4, *normal)
            d.entity("LWPOLYLINE", "PATCHES", 90, 4, 70, 1, 38, 64.0, 10, 8.0, 20, 0.0, 42, 0.4, 10, 0.0, 20, 8.0, 10, -8.0,
                     20, 0.0, 42, 0.4, 10, 0.0, 20, -8.0, *normal, color=152)
            d.entity("INSERT", "STARS", 2, "STAR", 10, 0.0, 20, 0.0, 30, 64.0, 41, 1.0, 42, 1.0, 43, 1.0, 50, 90.0, *normal)
    for i in range(8):
        side, up = polar(0, 0, 1, 45 * i)
        far, stretch = (104.0, -1.0) if i % 2 else (82.0, 1.2)  # every other one points inwards
        d.entity("INSERT", "LANTERN", 2, "LANTERN", 10, 0.0, 20, 0.0, 30, far, 41, 1.0, 42, 1.0, 43, stretch, 50, 15.0 * i,
                 210, side, 220, up, 230, 0.1 * i - 0.3)
    d.entity("ARC", "MARKS", 10, 0.0, 20, 0.0, 30, 0.0, 40, 112.0, 50, 58.0, 51, 122.0, 210, 0.0, 220, -0.8, 230, 0.6)
    d.entity("TRACE", "MARKS", 10, 100.0, 20, 90.0, 30, 5.0, 11, 100.0, 21, 98.0, 31, 5.0, 12, 70.0, 22, 90.0, 32, 5.0,
             13, 70.0, 23, 98.0, 33, 5.0, 210, 0.0, 220, 0.3, 230, 1.0)
    d.entity("POINT", "MARKS", 10, 0.0, 20, 108.0, 30, 50.0, 210, 1.0, 220, 0.0, 230, 0.0)  # a thickness, not a plane
    d.entity("DIMENSION", "MEASURES", 2, "*D1", 10, 0.0, 20, -74.0, 30, 0.0, 70, 32)
    d.write("planes.dxf")


def faults():
    d = Drawing()
    d.layer("OFF", -3)
    d.layer("FROZEN", 5, 1)
    d.block("SNAKE")  # bites its tail
    d.circle("0", 0.0, 0.0, 5.0, color=3)
    d.insert("0", "SNAKE", 4.0, 0.0, 0.9, 0.9)
    d.end()
    hill = [(0.0, 0.0), (10.0, 12.0), (20.0, 12.0), (30.0, 0.0)]
    good = [0, 0, 0, 0, 1, 1, 1, 1]
    d.spline("0", 3, hill, good, color=5)
    d.spline("0", 16, [(float(i), float(i % 3)) for i in range(20)])
    d.spline("0", 3, hill[:3], good[:7])
    d.spline("0", 3, hill, good[:6])
    d.spline("0", 3, hill, good, [0, 1, 1, 1])
    d.spline("0", 3, hill, good, [1, -1, -1, 1])
    d.spline("0", 3, hill, good, [1, 1])
    d.spline("0", 3, hill, [0, 0, 0, 0, 1, 0.5, 1, 1])
    d.entity("SPLINE", "0", 70, 8, 71, 3, 72, 0, 73, 0, 74, 2, 11, 0.0, 21, 0.0, 31, 0.0, 11, 9.0, 21, 9.0, 31, 0.0)
    d.entity("LWPOLYLINE", "0", 90, 2, 70, 0, 10, 0.0, 20, 0.0, 10, 1.0, 20, 0.0, 10, 2.0, 20, 1.0)
    d.insert("0", "SNAKE", 15.0, 24.0)
    d.insert("0", "NOWHERE", 0.0, 0.0)
    d.insert("0", "SNAKE", 0.0, 0.0, 0.0, 1.0)
    d.circle("0", 5.0, 5.0, 0.0)
    d.circle("0", 5.0, 5.0, 3.0, 210, 0.0, 220, 0.0, 230, 0.0)
    d.entity("DIMENSION", "0", 10, 0.0, 20, 0.0, 30, 0.0, 70, 32)
    d.entity("DIMENSION", "0", 2, "*D7", 10, 0.0, 20, 0.0, 30, 0.0, 70, 32)
    d.circle("OFF", 5.0, 5.0, 3.0)
    d.circle("FROZEN", 5.0, 5.0, 3.0)
    d.circle("0", 5.0, 5.0, 3.0, 67, 1)
    d.circle("0", 5.0, 5.0, 3.0, 60, 1)
    d.entity("LINE", "0", 10, "nan", 20, 0.0, 30, 0.0, 11, 5.0, 21, 5.0, 31, 0.0)
    d.entity("LINE", "0", 10, "1e400", 20, 0.0, 30, 0.0, 11, 5.0, 21, 5.0, 31, 0.0)
    d.entity("LINE", "0", 10, 1e30, 20, 0.0, 30, 0.0, 11, 5.0, 21, 5.0, 31, 0.0)
    d.entity("TEXT", "0", 10, 0.0, 20, -6.0, 30, 0.0, 40, 2.5, 1, "text is not drawn")
    d.entity("MTEXT", "0", 10, 0.0, 20, -9.0, 30, 0.0, 40, 2.5, 1, "x" * 3000)
    d.entity("HATCH", "0", 2, "SOLID", 70, 1, 71, 0, 91, 0, 75, 0, 76, 1, 98, 0)
    d.entity("WHATEVER", "0", 10, 0.0, 20, 0.0)
    d.old_polyline("0", [(0.0, 0.0), (1.0, 0.0), (1.0, 1.0), (0.0, 1.0)], 64)
    d.polyline("0", [(-4.0, -4.0), (34.0, -4.0), (34.0, 36.0), (-4.0, 36.0)], True, 43, 0.5)
    d.write("faults.dxf")


if __name__ == "__main__":
    plate()
    curves()
    blocks()
    planes()
    faults()
