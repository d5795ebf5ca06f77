#!/usr/bin/python3
"""Drawings of other programs (files/, see README.md): what two other readers find in them we find, they go out byte for byte
unless they were changed, a group of all that they hold is whole for a strict reader, and undoing it gives the first
bytes."""
import collections
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import ezdxf
import ezdxf.recover
from ezdxf.entities import DXFGraphic

from corpus import CORPUS, NO_PROPERTIES_BY_EZDXF, UNREAD_BY_EZDXF, name_of, read_somehow

DXFLIB = sys.argv.pop()
TOOL = sys.argv.pop()
# What dxflib counts as we do, with its names; attributes and polyline parts it tells otherwise.
COUNTED = {"POINT": "POINT", "LINE": "LINE", "ARC": "ARC", "CIRCLE": "CIRCLE", "ELLIPSE": "ELLIPSE", "SPLINE": "SPLINE",
           "HATCH": "HATCH", "MTEXT": "MTEXT", "TEXT": "TEXT", "INSERT": "INSERT", "LWPOLYLINE": "POLYLINE",
           "POLYLINE": "POLYLINE"}
# A strict reader refuses these for what they came with, also when we saved them with a group.
NOT_STRICT_WITH_A_GROUP = {
    "bent/no_end_of_file": "what follows the last section is as it was",
    "dia/round": "its points have no y coordinates",
    "fig2dev/text": "its points have no y coordinates",
}
UNREAD_WITH_A_GROUP = set(UNREAD_BY_EZDXF) - {"bent/no_handles"}  # which got them with the group
NOT_FOR_DXFLIB = {"bent/cr": "it knows no carriage returns alone as line ends"}


def described(entity):
    """The common properties in the form of our tool's report."""
    dxf = entity.dxf
    result = {"kind": entity.dxftype(), "layer": dxf.get("layer", "0"), "linetype": dxf.get("linetype", "BYLAYER").upper(),
              "paper": bool(dxf.get("paperspace", 0)), "visible": not dxf.get("invisible", 0),
              "weight": dxf.get("lineweight", -1), "scale": dxf.get("ltscale", 1), "transparency": dxf.get("transparency", 0)}
    if dxf.hasattr("true_color"):
        result["rgb"] = dxf.true_color & 0xffffff
    else:
        result["color"] = dxf.get("color", 256)
    return result


def found_by_us(path, folder):
    done = subprocess.run([TOOL, path, folder], capture_output=True, text=True, timeout=60)
    assert done.returncode == 0, f"{name_of(path)}: {done.stderr}"
    found = json.loads(done.stdout)
    for entity in found["entities"]:
        entity["linetype"] = entity["linetype"].upper()
    return found


def counted_by_dxflib(path):
    done = subprocess.run([DXFLIB, path], capture_output=True, text=True, errors="replace", timeout=60)
    assert done.returncode == 0, done.stderr
    found = collections.Counter()
    for line in done.stdout.splitlines():
        what, _, count = line.rpartition(" ")
        if what.startswith("entity "):
            found[what.split()[1]] += int(count)
    return found


class Corpus(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)

    def test_there_are_enough_of_them(self):
        self.assertGreaterEqual(len(CORPUS), 150)
        self.assertGreaterEqual(len({path.parent.name for path in CORPUS}), 16)

    def assert_same_properties(self, path, found):
        wanted = [described(entity) for entity in read_somehow(path).modelspace()]
        self.assertEqual(found["entities"], wanted)

    def assert_counts(self, path, found):
        ours = collections.Counter()
        for kind, count in found["counts"].items():
            if kind in COUNTED:
                ours[COUNTED[kind]] += count
        theirs = counted_by_dxflib(path)
        self.assertEqual(ours, collections.Counter({kind: theirs[kind] for kind in ours | theirs if kind in ours or
                                                    kind in COUNTED.values()}))

    def assert_group_is_whole(self, path, found):
        count = len(found["entities"])
        file = self.folder / "grouped.dxf"
        grouped = ezdxf.recover.readfile(file)[0] if name_of(path) in NOT_STRICT_WITH_A_GROUP else ezdxf.readfile(file)
        members = {entity.dxf.handle for entity in grouped.groups.get("EVERYTHING")} if count else set()
        drawn = {entity.dxf.handle for entity in grouped.modelspace() if isinstance(entity, DXFGraphic)}
        self.assertEqual(members, drawn)

    def assert_bytes_come_back(self, path):
        self.assertEqual((self.folder / "copy.dxf").read_bytes(), path.read_bytes())
        newer = self.folder / "newer.dxf"
        first = newer if newer.exists() else path
        self.assertEqual((self.folder / "undone.dxf").read_bytes(), first.read_bytes())

    def assert_contract(self, path):
        name, found = name_of(path), found_by_us(path, self.folder)
        self.assertEqual(found["fault"], "")
        self.assertEqual(found["members"], len(found["entities"]))
        self.assert_bytes_come_back(path)
        if name not in NOT_FOR_DXFLIB:
            self.assert_counts(path, found)
        if name not in {*UNREAD_BY_EZDXF, *NO_PROPERTIES_BY_EZDXF}:
            self.assert_same_properties(path, found)
        if name not in UNREAD_WITH_A_GROUP:
            self.assert_group_is_whole(path, found)

    def test_each_drawing_keeps_the_contract(self):
        for path in CORPUS:
            for made in self.folder.iterdir():
                made.unlink()
            with self.subTest(name_of(path)):
                self.assert_contract(path)


if __name__ == "__main__":
    unittest.main(verbosity=1)
