"""Runs kxsolids: its bodies are closed and as large as their formulas say, all its files tell the same, pictures do not
depend on the order of faces, and what cannot be done is refused.

usage: solids_test.py KXSOLIDS
"""
import math
import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

PI = math.pi
SQUARE = ["--profile", "1,0,2,0,2,1,1,1"]
# Arguments, the volume that fine steps come near to, and Euler's number. Sizes differ where they may.
BODIES = {
    "block 4 3 2": (24, 2), "pyramid 3 2 5": (10, 2), "hexahedron 3": (27, 2),
    "tetrahedron 2": (math.sqrt(3) / 4 * 12 * 2 / 3, 2), "octahedron 2": (8 / 3, 2),
    "dodecahedron 2": (2 * (15 + 7 * 5**.5), 2), "icosahedron 2": (10 / 3 * (3 + 5**.5), 2),
    "prism 3 2 4 1 -1 --sectors 100": (6 * PI, 2), "cylinder 3 2 4 --sectors 100": (6 * PI, 2),
    "hcylinder 5 4 3 2 3 --sectors 100": (10.5 * PI, 0), "cone 3 1 2 --sectors 100": (13 / 6 * PI, 2),
    "sphere 2 --sectors 64 --stacks 32": (32 / 3 * PI, 2), "ellipsoid 4 3 2 --sectors 64 --stacks 32": (4 * PI, 2),
    "dome 2 1.5 --sectors 64 --stacks 32": (3.375 * PI, 2), "cup 2 1 --sectors 64 --stacks 32": (14 / 3 * PI, 2),
    "torus 3 1 --sectors 64 --stacks 32": (6 * PI * PI, 0),
    "paraboloid 4 3 5 --sectors 64 --stacks 32": (7.5 * PI, 2),
    "hyperboloid 2 4 2 -3 2 --sectors 64 --stacks 48": (8 / 3 * PI, 2),
    "hyperboloid1s 2 4 2 -1 2 --sectors 64 --stacks 32": (12 * PI, 2),
    "hyperboloid2s 2 4 2 -2 2 --sectors 64 --stacks 48": (16 / 3 * PI, 4),
    "bodyrev 0 360 --sectors 96": (3 * PI, 0), "bodyrev 30 90 --sectors 24": (3 / 4 * PI, 2), "extbody 3": (3, 2)}


def run(*arguments):
    return subprocess.run([sys.argv[1], *map(str, arguments)], capture_output=True, text=True)


def read_obj(path):
    points, faces = [], []
    with open(path) as file:
        for word, *rest in map(str.split, file):
            if word == "v":
                points.append(tuple(map(float, rest)))
            elif word == "f":
                faces.append([int(number) - 1 for number in rest])
    return points, faces


def read_stl(path):
    """The points and triangles, and how far stored normals are off those of the triangles at most."""
    with open(path, "rb") as file:
        data = file.read()
    if data.startswith(b"solid "):
        words = re.findall(rb"(?:normal|vertex) (\S+) (\S+) (\S+)", data)
        rows = [tuple(map(float, row)) for row in words]
    else:
        assert len(data) == 84 + 50 * struct.unpack_from("<I", data, 80)[0]
        rows = [row for at in range(84, len(data), 50) for row in struct.iter_unpack("<3f", data[at:at + 48])]
    numbers, faces, off = {}, [], 0
    for at in range(0, len(rows), 4):
        faces.append([numbers.setdefault(p, len(numbers)) for p in rows[at + 1:at + 4]])
        n = cross(*rows[at + 1:at + 4])
        off = max(off, *(abs(x / math.dist(n, (0, 0, 0)) - y) for x, y in zip(n, rows[at])))
    return list(numbers), faces, off


def cross(a, b, c):
    u, v = [q - p for p, q in zip(a, b)], [q - p for p, q in zip(a, c)]
    return [u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]]


def volume(points, faces):
    return sum(sum(x * y for x, y in zip(points[face[0]], cross(points[face[0]], points[b], points[c]))) / 6
               for face in faces for b, c in zip(face[1:], face[2:]))


def read_png(path):
    with open(path, "rb") as file:
        data = file.read()
    width, height = struct.unpack_from(">II", data, 16)
    at, packed = 8, b""
    while at < len(data):
        size, kind = struct.unpack_from(">I4s", data, at)
        packed += data[at + 8:at + 8 + size] if kind == b"IDAT" else b""
        at += size + 12
    raw, stride, before, rows = zlib.decompress(packed), 3 * width + 1, bytes(3 * width), []
    for start in range(0, height * stride, stride):
        row, kind = bytearray(raw[start + 1:start + stride]), raw[start]
        for i in range(len(row)):
            left, up, corner = (row[i - 3], before[i], before[i - 3]) if i > 2 else (0, before[i], 0)
            nearest = min((abs(left + up - corner - x), n, x) for n, x in enumerate((left, up, corner)))[2]
            row[i] = (row[i] + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
        rows.append(row)
        before = row
    return b"".join(rows)


def mesh_file(path, rows):
    points, columns = [p for row in rows for p in row], len(rows[0])
    cells = [a for a in range(len(points) - columns) if (a + 1) % columns]
    with open(path, "wb") as file:
        file.write(struct.pack("<iii20x", 0, len(rows), columns))
        file.writelines(struct.pack("<ii3d", 1, i, *p) for i, p in enumerate(points))
        file.writelines(struct.pack("<6i8x", 2, i + 1, a, a + 1, a + 1 + columns, a + columns)
                        for i, a in enumerate(cells))


class Solids(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = lambda name: os.path.join(folder.name, name)

    def make(self, *arguments):
        made = run(*arguments)
        self.assertEqual((made.returncode, made.stderr), (0, ""), arguments)
        return made.stdout

    def closed(self, faces):
        edges = [edge for face in faces for edge in zip(face, face[1:] + face[:1])]
        return len(edges) == len(set(edges)) and set(edges) == {(b, a) for a, b in edges}

    def test_every_body_in_every_file(self):
        listed = [line.split()[0] for line in self.make("list").splitlines()]
        self.assertEqual(sorted(set(listed)), sorted({name.split()[0] for name in BODIES} | {"ripples"}))
        obj, stl, text = map(self.path, ("a.obj", "a.stl", "b.stl"))
        for arguments, (expected, euler) in BODIES.items():
            profile = SQUARE if arguments[:7] in ("bodyrev", "extbody") else []
            with self.subTest(arguments):
                asked = [*arguments.split(), *profile, "--axis", "1,-2,0.5", "-o"]
                told = self.make(*asked, obj, "-o", stl)
                self.make(*asked, text, "--ascii")
                points, faces = read_obj(obj)
                edges = sum(map(len, faces)) / 2
                self.assertTrue(self.closed(faces))
                self.assertEqual(len(points) - edges + len(faces), euler)
                self.assertAlmostEqual(volume(points, faces) / expected, 1, delta=0.01)
                self.assertIn(f": {len(points)} vertices, {len(faces)} faces", told)
                for path in (stl, text):
                    corners, triangles, off = read_stl(path)
                    self.assertEqual(len(triangles), sum(len(face) - 2 for face in faces))
                    self.assertTrue(self.closed(triangles))
                    self.assertAlmostEqual(volume(corners, triangles) / volume(points, faces), 1, delta=1e-5)
                    self.assertLess(off, 1e-3)

    def test_concave_rings_are_cut_into_triangles(self):
        for arguments, last in ((["extbody", 2], 20), (["extbody", 2], 40), (["bodyrev", 10, 100], 40)):
            comb = "".join(f"{x},{1 if x % 2 else 5}," for x in range(last + 1))
            told = self.make(*arguments, "--profile", f"0,0,{comb}{last},0", "-o", self.path("a.stl"))
            points, faces, _ = read_stl(self.path("a.stl"))
            self.assertTrue(self.closed(faces))
            area = sum(math.dist(cross(*(points[number] for number in face)), (0, 0, 0)) / 2 for face in faces)
            self.assertAlmostEqual(area / float(re.search("area ([^,]+),", told)[1]), 1, delta=1e-4)

    def test_mesh_file_and_hidden_faces(self):
        names = ("t.obj", "t.png", "a.mesh", "a.png", "b.mesh", "b.png", "c.mesh")
        obj, solid, mesh, png, turned, turned_png, again = map(self.path, names)
        size, seen = 12, ["--view", "300,75", "--size", "100", "-o"]
        self.make("torus", 3, 1.4, "--sectors", 24, "--stacks", size, *seen, solid, "-o", obj)
        points, faces = read_obj(obj)
        rings = [[points[i * size + k % size] for k in range(size, -1, -1)] for i in [*range(24), 0]]
        mesh_file(mesh, rings)
        mesh_file(turned, [ring[5:-1] + ring[:6] for ring in [ring[::-1] for ring in (rings[9:-1] + rings[:10])[::-1]]])
        self.make("read", mesh, "-o", again, *seen, png)
        self.make("read", turned, *seen, turned_png)
        with open(mesh, "rb") as one, open(again, "rb") as other:
            self.assertEqual(one.read(), other.read())
        first = read_png(solid)
        self.assertGreater(len(set(first)), 50)
        for path in (png, turned_png):
            off = sum(abs(a - b) > 30 for a, b in zip(first, read_png(path)))
            self.assertLess(off, len(first) * 0.01)
        for name, change in (("short", lambda d: d[:-1]), ("kind", lambda d: b"\1" + d[1:])):
            with open(mesh, "rb") as good, open(self.path(name), "wb") as bad:
                bad.write(change(good.read()))
            self.assertEqual(run("read", self.path(name)).returncode, 1)

    def test_gallery(self):
        self.make("gallery", "-o", self.path("new"))
        for ending, start in ((".svg", b"<?xml"), (".png", b"\x89PNG")):
            with open(self.path("new/solids" + ending), "rb") as file:
                self.assertEqual(file.read(len(start)), start)

    def test_arguments(self):
        for wrong in ("", "ball", "block 1 2 3 4", "block x", "block 0", "block nan", "block --sectors 3", "torus -x",
                      "sphere --sectors", "sphere --sectors 2147483647", "sphere --axis 0,0,0", "sphere --axis 1,2",
                      "cone 2 -1", "extbody --profile 1,2,3", "extbody --profile 0,0,1,1", "bodyrev --profile -1,0,1,0,0,1",
                      "ripples --axis 1,0,0", "block -o a.dxf", "block -o a.mesh", "block --view 400,0", "block --size 9",
                      "list 1", "gallery -o a -o b", "read", "read a --sectors 4"):
            refused = run(*wrong.split())
            self.assertEqual((wrong, refused.returncode, refused.stdout), (wrong, 2, ""))
            self.assertRegex(refused.stderr, "^kxsolids: .+\nusage")
        for out in ("/dev/full", "/dev/null/no"):
            self.assertEqual(run("gallery", "-o", out).returncode, 1)
        for ending in ("obj", "stl", "svg", "png"):
            self.assertEqual(run("block", "-o", f"/dev/null/a.{ending}").returncode, 1)
        self.assertEqual(run("ripples", "-o", "/dev/null/a.mesh").returncode, 1)
        self.assertEqual(run("read", self.path("none")).returncode, 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
