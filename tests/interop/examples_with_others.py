# Drawings that come with LibreCAD, and the samples of the workbench: what ezdxf finds in them we find, too; grouped, undone
# and saved in the workbench they are what ezdxf and LibreCAD expect.
import collections
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import ezdxf
import ezdxf.bbox

from drawings import assert_extents, picture, raw_tags, tool_of

WORKBENCH = sys.argv.pop()
tool = tool_of(sys.argv.pop())
SAMPLES = sorted((pathlib.Path(__file__).resolve().parents[2] / "workbench/data/samples").glob("*.dxf"))
EXAMPLES = sorted(pathlib.Path("/usr/share/librecad/library").rglob("*.dxf"))[::40]
WITH_LETTERS = {"TEXT", "MTEXT", "DIMENSION"}  # whose extents depend on a font

# Looks around, selects, groups, takes the group back, brings it again, and saves after each.
SCRIPT = """OPEN
{source}
ZOOM
In
ZOOM
Extents
-GROUP
Create
MADE

All

UNDO
SAVEAS
{undone}
REDO
SAVEAS
{redone}
QUIT
"""


def complaints(doc):
    auditor = doc.audit()
    return collections.Counter(e.message for e in auditor.errors + auditor.fixes)


def kinds(doc):
    return collections.Counter(entity.dxftype() for entity in doc.modelspace())


def lasting_tags(path):
    """All but the times of saving and editing, and the preview, whose letters depend on the fonts at hand."""
    tags, lasting = raw_tags(path, "utf8"), []
    for i, tag in enumerate(tags):
        if tag[0] == 310 or tags[i - 1][1].startswith("$TD"):
            continue
        lasting.append(tag)
    return lasting


class Examples(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)

    def assert_same_extents(self, doc, found):
        if not WITH_LETTERS & set(kinds(doc)):
            assert_extents(self, found, doc.modelspace(), 0.01 * max(ezdxf.bbox.extents(doc.modelspace()).size))

    def test_there_are_enough_of_them(self):
        self.assertGreater(len(EXAMPLES), 30)
        self.assertEqual([path.name for path in SAMPLES], ["house.dxf", "kinds.dxf", "part.dxf", "site.dxf"])

    def test_they_come_back_byte_for_byte(self):
        for path in EXAMPLES + SAMPLES:
            with self.subTest(path.name):
                tool("copy", path, self.folder / "copy.dxf")
                self.assertEqual(path.read_bytes(), (self.folder / "copy.dxf").read_bytes())

    def test_ezdxf_finds_the_same_entities_and_extents(self):
        for path in EXAMPLES + SAMPLES:
            with self.subTest(path.name):
                doc = ezdxf.readfile(path)
                found = json.loads(tool("report", path))
                self.assertEqual(found["warnings"], [])
                self.assertEqual(found["entities"], kinds(doc))
                self.assertLessEqual({layer.dxf.name for layer in doc.layers} - {"Defpoints"}, set(found["layers"]))
                self.assert_same_extents(doc, found)

    def grouped(self, source):
        undone, redone = self.folder / "undone.dxf", self.folder / "redone.dxf"
        script = self.folder / "test.script"
        script.write_text(SCRIPT.format(source=source, undone=undone, redone=redone))
        for out in (undone, redone):
            out.unlink(missing_ok=True)
        done = subprocess.run([WORKBENCH, "--headless", "--root", self.folder / "root", "--script", script],
                              capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return undone, redone

    def test_the_workbench_groups_them_and_takes_it_back(self):
        for path in EXAMPLES[::4] + SAMPLES:
            with self.subTest(path.name):
                undone, redone = self.grouped(path)
                self.assertEqual(undone.read_bytes(), path.read_bytes())
                before, doc = ezdxf.readfile(path), ezdxf.readfile(redone)
                self.assertEqual(kinds(doc), kinds(before))
                self.assertEqual({name for name, _ in doc.groups}, {name for name, _ in before.groups} | {"MADE"})
                self.assertEqual({e.dxf.handle for e in doc.groups.get("MADE")},
                                 {e.dxf.handle for e in before.modelspace()})
                self.assertEqual(complaints(doc) - complaints(before), collections.Counter())
                self.assert_same_extents(doc, json.loads(tool("report", redone)))
                lost = collections.Counter(lasting_tags(path)) - collections.Counter(lasting_tags(redone))
                self.assertLessEqual(sum(lost.values()), 12, lost)

    def test_the_samples_are_without_fault(self):
        for path in SAMPLES:
            with self.subTest(path.name):
                self.assertEqual(complaints(ezdxf.readfile(path)), collections.Counter())

    def test_the_samples_are_what_their_scripts_make(self):
        scripts = self.folder / "samples"
        shutil.copytree(SAMPLES[0].parent, scripts, ignore=shutil.ignore_patterns("*.dxf"))
        done = subprocess.run([sys.executable, scripts / "make_samples.py", WORKBENCH], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        for path in SAMPLES:
            with self.subTest(path.name):
                self.assertEqual(lasting_tags(scripts / path.name), lasting_tags(path))

    def test_librecad_draws_as_much_of_a_grouped_sample_as_before(self):
        for path in SAMPLES[:2]:
            with self.subTest(path.name):
                undone, redone = self.grouped(path)
                self.assertGreater(len(picture(undone)), 100)
                self.assertEqual(len(picture(redone)), len(picture(undone)))


if __name__ == "__main__":
    unittest.main(verbosity=1)
