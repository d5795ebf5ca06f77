# Drawings written by ezdxf, read and saved by us; drawings written by us, read and audited by ezdxf.
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest
from collections import Counter

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode as decoded

from drawings import VERSIONS, assert_extents, build, raw_tags, tool_of

TOOL = sys.argv.pop()
tool = tool_of(TOOL)
EVERYTHING = "layer,entities,group,summary,xref"


def report(path):
    return json.loads(tool("report", path))


class WithEzdxf(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.path = pathlib.Path(self.folder.name)

    def tearDown(self):
        self.folder.cleanup()

    def saved(self, version):
        path = self.path / f"{version}.dxf"
        build(version).saveas(path)
        return path

    def audited(self, path):
        doc = ezdxf.readfile(path)
        auditor = doc.audit()
        self.assertEqual([], [e.message for e in auditor.errors])
        self.assertEqual([], [e.message for e in auditor.fixes])
        return doc

    def test_unchanged_drawings_come_back_byte_for_byte(self):
        for version in VERSIONS:
            with self.subTest(version):
                path = self.saved(version)
                tool("copy", path, self.path / "copy.dxf")
                self.assertEqual(path.read_bytes(), (self.path / "copy.dxf").read_bytes())

    def test_entities_and_texts_are_found(self):
        for version in VERSIONS:
            with self.subTest(version):
                path = self.saved(version)
                found = report(path)
                expected = {}
                for entity in ezdxf.readfile(path).modelspace():
                    expected[entity.dxftype()] = expected.get(entity.dxftype(), 0) + 1
                self.assertEqual(expected, found["entities"])
                self.assertIn("Küche größer", found["texts"])
                self.assertEqual([], found["warnings"])
                self.assertIn("Mauern", found["layers"])

    def test_groups_custom_properties_and_references_are_found(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                path = self.saved(version)
                doc = ezdxf.readfile(path)
                found = report(path)
                groups = {name: sorted(e.dxf.handle for e in group) for name, group in doc.groups}
                self.assertEqual(groups, {n: sorted(g["members"]) for n, g in found["groups"].items()})
                tags = raw_tags(path, "cp1252" if version < "R2007" else "utf8")
                handles = {e.dxf.handle for e in doc.modelspace()}
                in_file = [v for c, v in tags if c == 340 and v in handles]
                ours = found["groups"]["Erste"]["members"] + found["groups"]["Zweite"]["members"]
                self.assertEqual(in_file, ours)
                self.assertFalse(found["groups"]["Zweite"]["selectable"])
                self.assertEqual("die erste", found["groups"]["Erste"]["description"])
                self.assertEqual(True, found["blocks"]["Plan"]["xref"])
                self.assertEqual("grund/plan.dxf", found["blocks"]["Plan"]["path"])
                if version >= "R2004":
                    self.assertEqual([["Projekt", "Haus am See"], ["Projekt", "zweimal"]], found["custom"])

    def test_viewports_have_their_numbers(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                doc, path = build(version), self.path / "viewports.dxf"
                doc.layout("Layout1").reset_main_viewport()
                doc.saveas(path)
                viewports = ezdxf.readfile(path).layout("Layout1").query("VIEWPORT")
                self.assertEqual(2, len({viewport.dxf.id for viewport in viewports}))
                self.assertEqual([viewport.dxf.id for viewport in viewports], report(path)["viewports"])

    def test_code_pages_of_old_files_are_read_and_written(self):
        # Some of these characters end in the byte of a backslash.
        texts = {"cp1250": "Žluťoučký", "cp1251": "Кухня", "cp1253": "Κουζίνα", "cp932": "台所の表", "gbk": "厨房",
                 "cp949": "부엌", "cp950": "廚房功能"}
        for encoding, text in texts.items():
            for version in ("R12", "R2000", "R2004"):
                with self.subTest(encoding + version):
                    doc = ezdxf.new(version)
                    doc.encoding = encoding
                    doc.layers.add(text)
                    doc.modelspace().add_text(text, dxfattribs={"layer": text})
                    path, out = self.path / "old.dxf", self.path / "changed.dxf"
                    doc.saveas(path)
                    self.assertIn(text.encode(encoding), path.read_bytes())
                    self.assertEqual([text], report(path)["texts"])
                    self.assertIn(text, report(path)["layers"])
                    tool("change", path, out, "layer,entities")
                    changed = self.audited(out)
                    self.assertEqual(encoding, changed.encoding)
                    self.assertIn(text, changed.layers)
                    self.assertEqual(text, changed.modelspace().query("TEXT").first.dxf.text)
                    self.assertEqual("ÄÖÜ 世", decoded(changed.modelspace().query("TEXT").last.dxf.text))

    def without_texts(self, version):
        """Without those whose extents depend on a font."""
        path = self.path / "extents.dxf"
        doc = build(version)
        for entity in list(doc.modelspace().query("TEXT MTEXT")):
            for _, group in doc.groups:
                if entity in list(group):
                    group.clear()
            doc.modelspace().delete_entity(entity)
        doc.saveas(path)
        return doc, path

    def test_extents_agree(self):
        for version in VERSIONS:
            with self.subTest(version):
                doc, path = self.without_texts(version)
                assert_extents(self, report(path), doc.modelspace(), 0.005)

    def test_extents_of_changed_drawings_agree(self):
        out = self.path / "changed.dxf"
        for version in VERSIONS:
            with self.subTest(version):
                _, path = self.without_texts(version)
                tool("change", path, out, "layer,xref,erase" + (",group,summary" if version != "R12" else ""))
                assert_extents(self, report(out), ezdxf.readfile(out).modelspace(), 0.005)

    def test_extents_shrink_by_what_was_erased(self):
        path, out = self.path / "wide.dxf", self.path / "erased.dxf"
        for version in VERSIONS:
            with self.subTest(version):
                doc = ezdxf.new(version)
                doc.modelspace().add_line((-50, 0), (900, 700))
                doc.modelspace().add_circle((20, 30), 5)
                doc.saveas(path)
                assert_extents(self, report(path), doc.modelspace(), 0.005)
                tool("change", path, out, "erase")
                assert_extents(self, report(out), ezdxf.readfile(out).modelspace(), 0.005)
                self.assertEqual(([15, 25], [25, 35]), (report(out)["extmin"][:2], report(out)["extmax"][:2]))

    def test_extents_of_splines_and_hatches_agree(self):
        for version in ("R2000", "R2018"):
            doc = ezdxf.new(version)
            space = doc.modelspace()
            hatch = space.add_hatch()
            hatch.paths.add_polyline_path([(20, 0), (30, 0, 0.5), (30, 8)], is_closed=True)
            edges = space.add_hatch().paths.add_edge_path()
            edges.add_ellipse((40, 5), major_axis=(0, 3), ratio=0.5, start_angle=0, end_angle=360)
            edges.add_arc((50, 5), radius=2, start_angle=30, end_angle=300, ccw=False)
            entities = [space.add_open_spline([(0, 0), (1, 9), (6, 9), (8, -3), (12, 4)]), *space.query("HATCH")]
            path = self.path / "curves.dxf"
            for entity in entities:
                others = [other for other in space if other is not entity]
                for other in others:
                    space.unlink_entity(other)
                doc.saveas(path)
                with self.subTest(version + entity.dxftype()):
                    assert_extents(self, report(path), space, 0.05)
                for other in others:
                    space.add_entity(other)

    def test_changed_drawings_are_read_without_complaint(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                path = self.saved(version)
                before = ezdxf.readfile(path)
                out = self.path / "changed.dxf"
                tool("change", path, out, EVERYTHING)
                doc = self.audited(out)
                self.assertEqual(len(before.modelspace()) + 5, len(doc.modelspace()))
                group = doc.groups.get("Everything")
                self.assertEqual(len(doc.modelspace()) - 1, len(group))
                self.assertEqual("Grüße 世界", decoded(group.dxf.description))
                self.assertTrue(doc.blocks.get("Attached").block.is_xref_overlay)
                self.assertEqual("other.dxf", doc.blocks.get("Attached").block.dxf.xref_path)
                self.assertIn("Added", doc.layers)
                text = doc.modelspace().query("TEXT").last
                self.assertEqual("ÄÖÜ 世", decoded(text.dxf.text))
                if version >= "R2004":
                    custom = doc.header.custom_vars.properties
                    self.assertEqual(("key", "value"), custom[2])
                self.assertEqual(report(out)["title"], "Tïtle")
                self.assertEqual(["key", "世界"], report(out)["custom"][-1])

    def test_only_what_was_changed_differs(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                path = self.saved(version)
                out = self.path / "changed.dxf"
                tool("change", path, out, "group")
                encoding = "cp1252" if version < "R2007" else "utf8"
                before, after = raw_tags(path, encoding), raw_tags(out, encoding)
                handles = [v for c, v in after if c == 5]
                self.assertEqual(len(set(handles)), len(handles))
                gone = Counter(before) - Counter(after)
                self.assertLessEqual(sum(gone.values()), 8, gone)

    def test_oldest_version_takes_entities_and_references(self):
        path = self.saved("R12")
        out = self.path / "changed.dxf"
        tool("change", path, out, "layer,entities,xref")
        doc = self.audited(out)
        self.assertIn("Attached", doc.blocks)
        self.assertIn("Added", doc.layers)

    def test_oldest_version_refuses_groups_instead_of_losing_them(self):
        path = self.saved("R12")
        out = self.path / "changed.dxf"
        done = subprocess.run([TOOL, "change", path, out, "group"], capture_output=True, text=True)
        self.assertEqual(1, done.returncode)
        self.assertIn("R12", done.stderr)
        self.assertFalse(out.exists())

    def test_oldest_version_becomes_a_newer_one_with_its_groups(self):
        source, out = self.path / "source.dxf", self.path / "newer.dxf"
        old = build("R12")
        space = old.modelspace()
        space.add_blockref("PART", (1, 1)).add_attrib("TAG", "größer", (1, 1))
        space.add_polyline3d([(0, 0, 1), (5, 0, 2), (6, 6, 6)])
        space.add_solid([(0, 0), (1, 0), (0, 1), (1, 1)])
        space.add_3dface([(0, 0, 0), (1, 0, 0), (1, 1, 1)])
        old.linetypes.add("STRICHE", [1.0, 0.5, -0.5])
        old.layers.get("Mauern").dxf.linetype = "STRICHE"
        old.saveas(source)
        tool("newer", source, out, "layer,entities,group")
        doc = self.audited(out)
        self.assertEqual("AC1027", doc.dxfversion)
        before, after = report(source), report(out)
        self.assertEqual("Küche größer", doc.modelspace().query("TEXT").first.dxf.text)
        for kind, count in before["entities"].items():
            added = 1 if kind in ("LINE", "ARC", "TEXT") else 0
            self.assertEqual(count + added, len(doc.modelspace().query(kind)), kind)
        self.assertEqual(len(doc.modelspace()), len(doc.groups.get("Everything")))
        self.assertEqual("größer", doc.modelspace().query("INSERT").last.attribs[0].dxf.text)
        self.assertEqual((3, "STRICHE"), (doc.layers.get("Mauern").color, doc.layers.get("Mauern").dxf.linetype))
        self.assertEqual({"PART", "NESTED"}, {block.name for block in doc.blocks} - {"*Model_Space", "*Paper_Space"})
        for ours, theirs in zip(before["extmin"], after["extmin"]):
            self.assertAlmostEqual(ours, theirs)

    def test_erased_entities_are_gone_without_a_trace(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                path = self.saved(version)
                out = self.path / "changed.dxf"
                tool("change", path, out, "erase")
                doc = self.audited(out)
                self.assertEqual(len(ezdxf.readfile(path).modelspace()) - 1, len(doc.modelspace()))
                self.assertEqual(2, len(doc.groups.get("Erste")))

    def test_new_drawings_are_read_without_complaint(self):
        out = self.path / "new.dxf"
        tool("new", out, EVERYTHING)
        doc = self.audited(out)
        self.assertEqual(5, len(doc.modelspace()))
        self.assertEqual(4, len(doc.groups.get("Everything")))

    def test_binary_drawings_hold_the_same(self):
        for version in VERSIONS:
            with self.subTest(version):
                doc = build(version)
                text, binary = self.path / "text.dxf", self.path / "binary.dxf"
                doc.saveas(text)
                doc.saveas(binary, fmt="bin")
                self.assertEqual(report(text), report(binary))
                tool("copy", binary, self.path / "copy.dxf")
                self.assertEqual(report(text), report(self.path / "copy.dxf"))
                self.audited(self.path / "copy.dxf")


if __name__ == "__main__":
    unittest.main(verbosity=1)
