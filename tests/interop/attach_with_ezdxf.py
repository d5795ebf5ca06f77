# References attached by us, read by ezdxf: names, paths, overlay flags, insertion, scale and units.
import math
import pathlib
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf import units

from drawings import assert_extents

TOOL = sys.argv.pop()
VERSIONS = ["R12", "R2000", "R2007", "R2010", "R2018"]
XREF, OVERLAY = 4, 8


class Attach(unittest.TestCase):
    def setUp(self):
        self.holder = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.holder.name)
        self.addCleanup(self.holder.cleanup)

    def drawing(self, name, version, unit):
        doc = ezdxf.new(version, units=unit)
        doc.modelspace().add_line((0, 0), (10, 0))
        path = self.folder / name
        doc.saveas(path)
        return path

    def attach(self, site, part, overlay=0, x=0, y=0, scale=1, rotation=0, path_type=0):
        arguments = [TOOL, site, part, overlay, x, y, scale, rotation, path_type]
        done = subprocess.run([str(argument) for argument in arguments], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stderr)
        extents = [float(number) for number in done.stdout.split()]
        self.extents = {"extmin": extents[:2], "extmax": extents[2:]}
        doc = ezdxf.readfile(site)
        auditor = doc.audit()
        self.assertEqual([error.message for error in auditor.errors + auditor.fixes], [])
        return doc

    def test_attachment_stands_as_placed(self):
        for version in VERSIONS:
            with self.subTest(version):
                site = self.drawing(f"site_{version}.dxf", version, units.M)
                part = self.drawing(f"part_{version}.dxf", version, units.M)
                doc = self.attach(site, part, x=12.5, y=-3, scale=2, rotation=0.5)
                block = doc.blocks.get(part.stem)
                self.assertEqual(block.block.dxf.flags & (XREF | OVERLAY), XREF)
                self.assertEqual(block.block.dxf.xref_path, str(part))
                insert = doc.modelspace().query("INSERT").first
                self.assertEqual(insert.dxf.name, part.stem)
                self.assertEqual(tuple(insert.dxf.insert), (12.5, -3, 0))
                self.assertEqual((insert.dxf.xscale, insert.dxf.yscale, insert.dxf.zscale), (2, 2, 2))
                self.assertAlmostEqual(insert.dxf.rotation, math.degrees(0.5))
                self.assertEqual(len(doc.modelspace().query("LINE")), 1)

    def test_extents_are_those_of_the_part_in_its_place(self):
        for version in VERSIONS:
            with self.subTest(version):
                site = self.drawing(f"site_{version}.dxf", version, units.M)
                part = self.drawing(f"part_{version}.dxf", version, units.M)
                doc = ezdxf.readfile(part)
                doc.modelspace().add_line((3, -4), (-6, 7))
                doc.modelspace().add_point((5, 5))
                doc.saveas(part)
                attached = self.attach(site, part, x=12.5, y=-3, scale=2, rotation=0.5)
                place = attached.modelspace().query("INSERT").first.matrix44()
                placed = [entity.copy().transform(place) for entity in doc.modelspace()]
                entities = [*attached.modelspace().query("LINE"), *placed]
                assert_extents(self, self.extents, entities, 0.005)

    def test_overlay_is_flagged(self):
        for version in VERSIONS:
            with self.subTest(version):
                site = self.drawing(f"site_{version}.dxf", version, units.M)
                part = self.drawing(f"part_{version}.dxf", version, units.M)
                doc = self.attach(site, part, overlay=1)
                self.assertTrue(doc.blocks.get(part.stem).block.dxf.flags & OVERLAY)

    def test_units_of_the_part_are_kept_and_scaled_for(self):
        for version in ["R2007", "R2018"]:
            with self.subTest(version):
                site = self.drawing(f"site_{version}.dxf", version, units.M)
                part = self.drawing(f"part_{version}.dxf", version, units.MM)
                doc = self.attach(site, part)
                self.assertEqual(doc.blocks.get(part.stem).units, units.MM)
                self.assertAlmostEqual(doc.modelspace().query("INSERT").first.dxf.xscale, 0.001)

    def test_file_name_alone_is_saved_when_wanted(self):
        site = self.drawing("site.dxf", "R2018", units.M)
        part = self.drawing("part.dxf", "R2018", units.M)
        doc = self.attach(site, part, path_type=2)
        self.assertEqual(doc.blocks.get("part").block.dxf.xref_path, "part.dxf")

    def test_relative_path_counts_from_the_drawing(self):
        (self.folder / "parts").mkdir()
        site = self.drawing("site.dxf", "R2018", units.M)
        part = self.drawing("parts/part.dxf", "R2018", units.M)
        doc = self.attach(site, part, path_type=1)
        self.assertEqual(doc.blocks.get("part").block.dxf.xref_path, "parts/part.dxf")

    def test_names_of_any_characters_are_found_again(self):
        site = self.drawing("site.dxf", "R2018", units.M)
        part = self.drawing("a 'b' ä=1.dxf", "R2018", units.M)
        doc = self.attach(site, part)
        insert = doc.modelspace().query("INSERT").first
        self.assertEqual(insert.dxf.name, "a 'b' ä_1")
        self.assertEqual(doc.blocks.get(insert.dxf.name).block.dxf.xref_path, str(part))

    def test_second_attach_shares_the_block(self):
        site = self.drawing("site.dxf", "R2018", units.M)
        part = self.drawing("part.dxf", "R2018", units.M)
        self.attach(site, part, x=1)
        doc = self.attach(site, part, x=2)
        self.assertEqual([insert.dxf.insert.x for insert in doc.modelspace().query("INSERT")], [1, 2])
        self.assertEqual([block.name for block in doc.blocks if block.block.dxf.flags & XREF], ["part"])


unittest.main()
