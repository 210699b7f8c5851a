"""Runs kxplates: every relationship code is drawn once, the two forms of point in polygon agree, what
viewers see and the points of curves stand where they should, the files are pictures.

usage: plates_test.py KXPLATES
"""
import os
import subprocess
import sys
import tempfile
import unittest


class Plates(unittest.TestCase):
    def test_plates(self):
        with tempfile.TemporaryDirectory() as folder:
            run = subprocess.run([sys.argv[1], "-o", os.path.join(folder, "new")], capture_output=True, text=True)
            self.assertEqual((run.returncode, run.stderr), (0, ""))
            for name in ("relationships", "polygons", "wireframes", "curves", "curve_tools"):
                for ending, start in ((".svg", b"<?xml"), (".png", b"\x89PNG")):
                    with open(os.path.join(folder, "new", name + ending), "rb") as file:
                        self.assertEqual(file.read(len(start)), start)
        codes = [int(code) for line in run.stdout.splitlines() if "codes" in line for code in line.split()[2:]]
        crossing = [10 * group + heading for group in range(3, 12) for heading in range(6)]
        self.assertEqual(sorted(codes), [0, *range(8, 30), *crossing, *range(120, 126)])
        self.assertEqual(run.stdout.count(" 0 disagree"), 3)
        self.assertEqual(run.stdout.count("meets itself"), 4)
        self.assertEqual(run.stdout.count(": 40 points, 0 astray"), 18)
        curves = [line for line in run.stdout.splitlines() if line.startswith("curve")]
        self.assertEqual(sum(line.endswith(" points, 0 astray") for line in curves), 37)
        self.assertEqual(sum(line.endswith(": without gaps") for line in curves), 3)
        self.assertEqual(len(curves), 43)

    def test_arguments(self):
        self.assertEqual(subprocess.run([sys.argv[1], "here"], capture_output=True).returncode, 2)
        self.assertEqual(subprocess.run([sys.argv[1], "-o", "/dev/null/no"], capture_output=True).returncode, 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
