# Drawings that we wrote or changed, before dxflib (what it finds in them) and LibreCAD (the picture it draws of them).
import pathlib
import subprocess
import sys
import tempfile
import unittest

import ezdxf

from drawings import VERSIONS, build, picture, tool_of

DXFLIB = sys.argv.pop()
tool = tool_of(sys.argv.pop())
EVERYTHING = "layer,entities,group,summary,xref"
# Groups and summary records have no place in the oldest version.
CHANGES = {"R12": "layer,entities,xref"}
POLYLINES = ("LWPOLYLINE", "POLYLINE")
COUNTED = ("POINT", "LINE", "ARC", "CIRCLE", "ELLIPSE", "SPLINE", "HATCH", "MTEXT", "TEXT", "INSERT") + POLYLINES


def found_by_dxflib(path):
    done = subprocess.run([DXFLIB, path], capture_output=True, text=True, errors="replace")
    assert done.returncode == 0, done.stderr
    return {what: int(count) for what, _, count in (line.rpartition(" ") for line in done.stdout.splitlines())}


def found_by_ezdxf(path):
    doc = ezdxf.readfile(path)
    found = {}

    def add(what):
        found[what] = found.get(what, 0) + 1

    for layer in doc.layers:
        add("layer " + layer.dxf.name)
    for block in doc.blocks:
        add("block " + block.name)
        for entity in block:
            kind = entity.dxftype()
            if kind in COUNTED:
                add("entity " + ("POLYLINE" if kind in POLYLINES else kind))
            if kind == "INSERT":
                add("insert " + entity.dxf.name)
    return found


def comparable(found):
    """Model and paper space go by different names in the oldest version; ezdxf adds a layer for points by itself."""
    return {what: count for what, count in found.items()
            if "_space" not in what.lower() and what != "layer Defpoints"}


class WithOthers(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = pathlib.Path(folder.name)

    def changed(self, version):
        source, out = self.path / f"{version}.dxf", self.path / f"{version}_changed.dxf"
        build(version).saveas(source)
        tool("change", source, out, CHANGES.get(version, EVERYTHING))
        return source, out

    def new(self):
        out = self.path / "new.dxf"
        tool("new", out, EVERYTHING)
        return out

    def test_dxflib_finds_what_was_added(self):
        for version in VERSIONS:
            with self.subTest(version):
                source, out = self.changed(version)
                wanted = found_by_dxflib(source)
                added = ["entity LINE", "entity ARC", "entity TEXT", "entity INSERT", "insert Attached",
                         "block Attached", "layer Added"] + (["entity MTEXT"] if version != "R12" else [])
                for what in added:
                    wanted[what] = wanted.get(what, 0) + 1
                self.assertEqual(wanted, found_by_dxflib(out))

    def test_dxflib_and_ezdxf_find_the_same(self):
        files = [self.changed(version)[1] for version in VERSIONS] + [self.new()]
        for file in files:
            with self.subTest(file.name):
                self.assertEqual(comparable(found_by_ezdxf(file)), comparable(found_by_dxflib(file)))

    def test_librecad_draws_what_was_added(self):
        for version in VERSIONS:
            with self.subTest(version):
                source, out = self.path / "source.dxf", self.path / "changed.dxf"
                doc = ezdxf.new(version)
                doc.modelspace().add_line((0, 0), (100, 50))
                doc.saveas(source)
                tool("change", source, out, CHANGES.get(version, EVERYTHING))
                self.assertGreater(len(picture(out)), len(picture(source)))

    def test_librecad_draws_a_new_drawing(self):
        self.assertGreater(len(picture(self.new())), 0)


if __name__ == "__main__":
    unittest.main(verbosity=1)
