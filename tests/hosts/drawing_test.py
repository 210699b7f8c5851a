"""Runs kxdraw on drawings and checks the points it drew against a second computation of every shape.

usage: drawing_test.py KXDRAW SAMPLES; with KXGEOM_DRAWINGS set, the DXF files of that directory are drawn as well.
"""
import collections
import functools
import glob
import math
import os
import subprocess
import sys
import tempfile
import unittest

KXDRAW, SAMPLES = sys.argv[1], sys.argv[2]
DRAWINGS = sorted(path for folder in (SAMPLES, os.environ.get("KXGEOM_DRAWINGS", "-"))
                  for path in glob.glob(os.path.join(folder, "*.dxf")))
SKIPPED = {"plate.dxf": 0, "curves.dxf": 0, "blocks.dxf": 1, "faults.dxf": 27, "planes.dxf": 2, "forms.dxf": 0, "usa.dxf": 0,
           "6_closed_loop_with_arcs.dxf": 0, "hatches_2.dxf": 4, "uncommon.dxf": 205}
Entity = collections.namedtuple("Entity", "index kind groups vertices")


def read_dxf(path):
    """The entities outside blocks, the blocks as name -> (base, entities), and the count of each kind."""
    with open(path, encoding="latin-1") as file:
        lines = [line.strip() for line in file]
    pairs = [(int(code), value) for code, value in zip(lines[::2], lines[1::2])]
    records = []
    for code, value in (pair for pair in pairs if pair[0] != 999):
        if code == 0:
            records.append((value, []))
        else:
            records[-1][1].append((code, value))
    section, home, model, blocks, kinds, count = "", None, [], {}, collections.Counter(), 0
    for kind, groups in records:
        if kind == "SECTION":
            section, home = groups[0][1], model
        elif kind == "BLOCK" and section == "BLOCKS":
            home = []
            blocks[dict(groups)[2].upper()] = (point(groups), home)
        elif kind == "VERTEX":
            home[-1].vertices.append(groups)
        elif section in ("BLOCKS", "ENTITIES") and kind not in ("ENDBLK", "SEQEND", "ENDSEC", "EOF"):
            home.append(Entity(count, kind, groups, []))
            kinds[kind] += 1
            count += 1
    return model, blocks, kinds


def values(groups, code):
    return [float(value) for c, value in groups if c == code]


def one(groups, code, default=0.0):
    return (values(groups, code) or [default])[0]


# A point of space is a pair (z, h), its plan as a complex number and its height; transforms are functions on them.
def entity_axes(groups):
    n = [one(groups, code, float(code == 230)) for code in (210, 220, 230)]
    n = [part / (math.hypot(*n) or 1) for part in n]
    x = (n[2], 0, -n[0]) if max(abs(n[0]), abs(n[1])) < 1 / 64 else (-n[1], n[0], 0)
    x = [part / (math.hypot(*x) or 1) for part in x]
    y = cross(n, x)
    return lambda p: tuple_point([p[0].real * x[i] + p[0].imag * y[i] + p[1] * n[i] for i in range(3)])


def cross(a, b):
    return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]


def tuple_point(xyz):
    return complex(xyz[0], xyz[1]), xyz[2]


def in_space(ent):
    return ent.kind == "POLYLINE" and int(one(ent.groups, 70)) & 8


def point(groups, code=10):
    return complex(one(groups, code), one(groups, code + 10)), one(groups, code + 20)


def placed(entities, blocks, m, found, within=()):
    for ent in entities:
        own, dimension = m, ent.kind.endswith("DIMENSION")
        if ent.kind in ("CIRCLE", "ARC", "LWPOLYLINE", "POLYLINE", "SOLID", "TRACE", "INSERT") and not in_space(ent):
            own = lambda p, m=m, axes=entity_axes(ent.groups): m(axes(p))
        found[ent.index].append((ent, own))
        name = dict(ent.groups).get(2, "").upper()
        if (ent.kind == "INSERT" or dimension) and name in blocks:
            g = [] if dimension else ent.groups
            base, (at, level) = blocks[name][0], point(g)
            sx, sy, sz = (one(g, code, 1.0) for code in (41, 42, 43))
            turn = complex(math.cos(math.radians(one(g, 50))), math.sin(math.radians(one(g, 50))))
            for row in range(int(one(g, 71, 1))):
                for column in range(int(one(g, 70, 1))):
                    def inner(p, step=complex(column * one(g, 44), row * one(g, 45)), base=base, at=at, level=level,
                              sx=sx, sy=sy, sz=sz, turn=turn, own=own):
                        z = p[0] - base[0]
                        return own(((complex(z.real * sx, z.imag * sy) + step) * turn + at, (p[1] - base[1]) * sz + level))
                    if name not in within and sx * sy != 0:
                        placed(blocks[name][1], blocks, inner, found, (*within, name))


def spline(groups):
    """The curve by the textbook's recursion, and parameters spread evenly over each span."""
    degree, knots = int(one(groups, 71)), values(groups, 40)
    plans = [complex(x, y) for x, y in zip(values(groups, 10), values(groups, 20))]
    control = list(zip(plans, values(groups, 30) or [0.0] * len(plans)))
    weights = values(groups, 41) or [1.0] * len(control)
    ends = sorted(set(knots[degree:len(control) + 1]))

    def at(u):
        @functools.cache
        def basis(i, k):
            if k == 0:
                return 1.0 if knots[i] <= u < knots[i + 1] or (u == ends[-1] and knots[i] < u <= knots[i + 1]) else 0.0
            left, right = knots[i + k] - knots[i], knots[i + k + 1] - knots[i + 1]
            rising = (u - knots[i]) / left * basis(i, k - 1) if left > 0 else 0.0
            return rising + ((knots[i + k + 1] - u) / right * basis(i + 1, k - 1) if right > 0 else 0.0)

        share = {i: basis(i, degree) * weights[i] for i in range(len(control)) if knots[i] <= u <= knots[i + degree + 1]}
        return tuple(sum(n * control[i][part] for i, n in share.items()) / sum(share.values()) for part in (0, 1))

    return at, [a + (b - a) * j / 128 for a, b in zip(ends, ends[1:]) for j in range(128)] + [ends[-1]]


def parameters_at(points, curve, us, eps):
    """The parameters of points that follow each other on a curve; us are parameters that stand close."""
    near, found, first = [curve(u) for u in us], [], 0
    for p in points:
        for i in range(first, len(us)):
            before, after = max(i - 1, 0), min(i + 1, len(us) - 1)
            if abs(p - near[i]) > min(abs(p - near[before]), abs(p - near[after])):
                continue
            along = (near[after] - near[before]).conjugate()
            sides = [(((q - p) * along).real, u) for q, u in ((near[before], us[before]), (near[after], us[after]))]
            u = us[i]
            for _ in range(20):  # secants to where p is neither before nor behind
                if abs(p - curve(u)) < eps / 100 or sides[0][0] == sides[1][0]:
                    break
                (g, low), (h, high) = sides
                u = min(max((low * h - high * g) / (h - g), us[before]), us[after])
                sides = [sides[1], (((curve(u) - p) * along).real, u)]
            if abs(p - curve(u)) < eps and (not found or u > found[-1] - 1e-9 * (us[-1] - us[0])):
                found.append(u)
                first = before
                break
    return found


def circle(groups):
    (centre, height), radius = point(groups), one(groups, 40)
    return lambda u: (centre + radius * complex(math.cos(u), math.sin(u)), height)


def ellipse(groups):
    centre, axis, normal = ([one(groups, code + i, default) for i, default in ((0, 0.0), (10, 0.0), (20, last))]
                            for code, last in ((10, 0.0), (11, 0.0), (210, 1.0)))
    other = [part * one(groups, 40) / math.hypot(*normal) for part in cross(normal, axis)]
    return lambda u: tuple_point([c + math.cos(u) * a + math.sin(u) * b for c, a, b in zip(centre, axis, other)])


def even(first, last, count):
    return [first + (last - first) * i / (count - 1) for i in range(count)]


class Drawings(unittest.TestCase):
    def run_kxdraw(self, *arguments, status=0):
        done = subprocess.run([KXDRAW, *arguments], capture_output=True, text=True, cwd=self.folder, timeout=120)
        self.assertEqual(done.returncode, status, f"{arguments} {done.stderr}")
        return done

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = temporary.name

    def draw(self, path, *arguments):
        done = self.run_kxdraw(path, "-o", "picture.svg", "--points", "points.txt", *arguments)
        with open(os.path.join(self.folder, "points.txt"), encoding="ascii") as file:
            lines = file.read().splitlines()
        paths, at, tolerance = [], 1, float(lines[0].split()[1])
        while at < len(lines):
            _, kind, index, _, copy, closed, count = lines[at].split()
            points = [complex(*map(float, line.split())) for line in lines[at + 1:at + 1 + int(count)]]
            paths.append((kind, int(index), int(copy), closed == "closed", points))
            at += 1 + int(count)
        return done.stdout, tolerance, paths

    def on_curve(self, points, curve, parameters, m, tolerance, eps):
        """Every point stands where it should, and halfway between two the curve is within the tolerance of the chord."""
        self.assertEqual(len(points), len(parameters))
        for p, u in zip(points, parameters):
            self.assertLess(abs(p - m(curve(u))[0]), eps)
        for a, b, u, v in zip(points, points[1:], parameters, parameters[1:]):
            chord, mid = b - a, m(curve((u + v) / 2))[0] - a
            share = min(1, max(0, (mid / chord).real)) if chord else 0
            self.assertLess(abs(mid - share * chord), tolerance + eps)

    def on_polyline(self, corners, points, m, tolerance, eps):
        """Corners ((z, h), bulge): each is met in turn, and what lies between two is on their arc."""
        self.assertLess(abs(points[0] - m(corners[0][0])[0]), eps)
        at = 0
        for (a, bulge), (b, _) in zip(corners, corners[1:]):
            last = at + 1
            while abs(points[last] - m(b)[0]) >= eps:
                last += 1
            if bulge:
                (a, h), b = a, b[0]
                sweep, centre = 4 * math.atan(bulge), (a + b) / 2 + 1j * (b - a) * (1 - bulge * bulge) / (4 * bulge)
                arc = lambda u, a=a, c=centre, h=h: (c + (a - c) * complex(math.cos(u), math.sin(u)), h)
                self.on_curve(points[at:last + 1], arc, even(0, sweep, last - at + 1), m, tolerance, eps)
            else:
                self.assertEqual(last, at + 1)
            at = last
        self.assertEqual(at, len(points) - 1)

    def check_path(self, ent, m, closed, points, tolerance):
        g, size = ent.groups, max(abs(p) for p in points) + 1
        is_closed, eps, n = int(one(g, 70)) & 1, 1e-9 * size, len(points)
        if ent.kind == "CIRCLE":
            self.on_curve(points, circle(g), even(0, 2 * math.pi, n), m, tolerance, eps)
        elif ent.kind == "ARC":
            start, sweep = one(g, 50), (one(g, 51) - one(g, 50)) % 360 or 360
            self.on_curve(points, circle(g), even(math.radians(start), math.radians(start + sweep), n), m, tolerance, eps)
        elif ent.kind == "ELLIPSE":
            u, v = one(g, 41), one(g, 42, 2 * math.pi)
            v += 2 * math.pi * (v <= u)
            self.on_curve(points, ellipse(g), even(u, v, n), m, tolerance, 2e-7 * size)
        elif ent.kind == "SPLINE":
            curve, us = spline(g)
            found = parameters_at(points, lambda u: m(curve(u))[0], us, eps)
            self.on_curve(points, curve, found, m, tolerance, eps)
            self.assertEqual((found[0], found[-1]), (us[0], us[-1]))
        elif ent.kind == "LINE":
            self.on_polyline([(point(g, code), 0) for code in (10, 11)], points, m, tolerance, eps)
        elif ent.kind in ("LWPOLYLINE", "POLYLINE"):
            vertices, height = ent.vertices, one(g, 30)
            if ent.kind == "LWPOLYLINE":
                vertices, height = [], one(g, 38)
                for code, value in g:
                    if code == 10:
                        vertices.append([])
                    if vertices and code in (10, 20, 42):
                        vertices[-1].append((code, value))
            turns = [((point(v)[0], one(v, 30) if in_space(ent) else height), one(v, 42)) for v in vertices]
            self.on_polyline(turns + turns[:is_closed], points, m, tolerance, eps)
        elif ent.kind == "POINT":
            self.assertLess(abs(points[0] - m(point(g))[0]), eps)
        else:
            last = 2 if not values(g, 13) else 3
            order = (0, 1, 2, 3, 0) if ent.kind == "3DFACE" else (0, 1, 3, 2, 0)
            around = [point(g, 10 + min(i, last)) for i in order]
            self.on_polyline([(p, 0) for p in around], points, m, tolerance, eps)
        if closed:
            self.assertEqual(points[0], points[-1])

    def test_drawings(self):
        for path in DRAWINGS:
            for arguments in ((), ("-t", "0.001"), ("-t", "3")):
                with self.subTest(os.path.basename(path), arguments=arguments):
                    model, blocks, kinds = read_dxf(path)
                    found = collections.defaultdict(list)
                    placed(model, blocks, lambda p: p, found)
                    table, tolerance, paths = self.draw(path, *arguments)
                    for _, index, copy, closed, points in paths:
                        ent, m = found[index][copy]
                        self.check_path(ent, m, closed, points, tolerance)
                    rows = [line.split() for line in table.split("\n\n")[1].splitlines()[1:]]
                    self.assertEqual({row[0]: int(row[1]) for row in rows[:-1]}, dict(kinds))
                    skipped = sum(int(line.split()[1]) for part in table.split("\n\n") if part.startswith("skipped,")
                                  for line in part.splitlines()[1:])
                    for row in rows:
                        self.assertEqual(int(row[1]), int(row[2]) + int(row[3]))
                    self.assertEqual(int(rows[-1][3]), skipped)
                    self.assertEqual(skipped, SKIPPED.get(os.path.basename(path), skipped))
                    shown = sum(int(row[2]) for row in rows[:-1] if row[0] != "INSERT" and "DIMENSION" not in row[0])
                    self.assertEqual(shown, len({p[1] for p in paths}))
                    if "closed_loop" in path:
                        ends = [p for path_ in paths for p in (path_[4][0], path_[4][-1])]
                        for p in ends:
                            self.assertEqual(sum(abs(p - q) < 1e-6 for q in ends), 2)

    def test_faults_are_named(self):
        table = self.draw(os.path.join(SAMPLES, "faults.dxf"))[0]
        for words in ("status 3: degree 16", "status 1: 3 control points", "status 4: 6 knots", "status 2: 2 weights",
                      "status 6: a weight", "not in order", "fit points only", "contains itself", "no block of its name",
                      "no block that shows it", "scale factor", "circlepnts_2d gives status 3", "direction has no length",
                      "layer is off", "layer is frozen", "paper space",
                      "invisible", "3  one of its numbers", "announces another number", "polyface", "width"):
            self.assertIn(words, table)
        self.assertIn("skipped", self.run_kxdraw(os.path.join(SAMPLES, "faults.dxf"), "-q").stderr)

    def made(self, shapes):
        pairs = [(0, "SECTION"), (2, "ENTITIES")]
        for kind, *groups in shapes:
            pairs += [(0, kind), (8, "0"), *zip(groups[::2], groups[1::2])]
        path = os.path.join(self.folder, "made.dxf")
        with open(path, "w", encoding="ascii") as file:
            file.writelines(f"{code}\n{value}\n" for code, value in pairs + [(0, "ENDSEC"), (0, "EOF")])
        return path

    def test_splines_that_jump(self):
        """An inner knot of degree + 1 lets a spline jump, unless the control points beside it are the same."""
        for begin, count in (((3, 2), 2), ((2, 0), 1)):
            control = [(0, 0), (1, 2), (2, 0), begin, (4, 3), (5, 0)]
            knots = [group for knot in (0, 0, 0, 1, 1, 1, 2, 2, 2) for group in (40, knot)]
            plans = [group for x, y in control for group in (10, x, 20, y)]
            paths = self.draw(self.made([("SPLINE", 71, 2, 72, 9, 73, 6, *knots, *plans)]))[2]
            ends = [point for path in paths for point in (path[4][0], path[4][-1])]
            self.assertEqual(ends, [0, 2, complex(*begin), 5] if count == 2 else [0, 5])
            self.assertGreater(min(len(path[4]) for path in paths), 8)

    def test_tolerance_too_fine(self):
        spline = self.made([("SPLINE", 71, 2, 40, 0, 40, 0, 40, 0, 40, 1, 40, 1, 40, 1, 10, 0, 20, 0, 10, 5, 20, 9, 10, 9, 20, 0)])
        self.assertIn("the tolerance is not reached", self.run_kxdraw(spline, "-t", "1e-12", "-o", "fine.png").stdout)

    def test_small_and_far(self):
        for scale, x in ((1e-9, 0.0), (1e9, 0.0), (1.0, 5e6)):
            with self.subTest(scale=scale, x=x):
                shapes = [("CIRCLE", 10, x, 20, 0, 40, scale), ("ARC", 10, x, 20, 0, 40, 2 * scale, 50, 350, 51, 10)]
                shapes.append(("SPLINE", 71, 2, 72, 6, 73, 3, 40, 0, 40, 0, 40, 0, 40, 1e-8, 40, 1e-8, 40, 1e-8, 10, x, 20, 0,
                               10, x + scale, 20, 3 * scale, 10, x + 2 * scale, 20, 0))
                path = self.made(shapes)
                _, tolerance, paths = self.draw(path)
                self.assertAlmostEqual(tolerance / scale, 5e-4, 6)
                self.assertEqual(len(paths), 3)
                for _, index, _, closed, points in paths:
                    self.check_path(read_dxf(path)[0][index], lambda p: p, closed, points, tolerance)
                    self.assertGreater(len(points), 5)

    def test_pictures_and_arguments(self):
        plate = os.path.join(SAMPLES, "plate.dxf")
        for name, start in (("a.png", b"\x89PNG"), ("a.PDF", b"%PDF"), ("a.svg", b"<?xml")):
            self.run_kxdraw(plate, "-o", name, "-s", "300x200", "-q")
            with open(os.path.join(self.folder, name), "rb") as file:
                self.assertEqual(file.read(len(start)), start)
        for arguments in ((), ("-x", plate), (plate, "-t", "0"), (plate, "-t", "nan"), (plate, "-s", "0x5"), (plate, "-o", "a.txt"),
                          (plate, "-o"), (plate, plate)):
            self.assertIn("usage", self.run_kxdraw(*arguments, status=2).stderr)
        self.assertEqual(len(self.run_kxdraw(plate, "-o", "no/where.svg", status=1).stderr.splitlines()), 1)

    def test_bad_files(self):
        with open(os.path.join(SAMPLES, "plate.dxf"), "rb") as file:
            whole = file.read()
        bad = {f"cut{i}": whole[:len(whole) * i // 9] for i in range(1, 9)}
        bad |= {"empty": b"", "binary": b"AutoCAD Binary DXF\r\n\x1a\0" + whole, "picture": b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR",
                "text": b"Dear reader,\nthis is no drawing.\n", "noend": whole.rstrip()[:-1], "code": whole.replace(b" 10\n", b" 1o\n", 1)}
        for name, content in bad.items():
            with open(os.path.join(self.folder, name + ".dxf"), "wb") as file:
                file.write(content)
        os.mkdir(os.path.join(self.folder, "directory.dxf"))
        for name in (*bad, "directory", "missing"):
            with self.subTest(name):
                done = self.run_kxdraw(name + ".dxf", status=1)
                self.assertEqual((done.stdout, len(done.stderr.splitlines())), ("", 1))
                self.assertFalse(os.path.exists(os.path.join(self.folder, name + ".svg")))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
