# Drawings whose writers leave out handles, owners, tables or whole sections: a group of everything that is added to
# one is found whole by ezdxf, with no handle twice and nothing to complain about.
import pathlib
import sys
import tempfile
import unittest

import ezdxf
from ezdxf.addons import r12writer

from drawings import VERSIONS, build, tool_of

tool = tool_of(sys.argv.pop())


def records(path):
    """Pairs of code and value."""
    lines = path.read_text(encoding="utf8", errors="surrogateescape").split("\n")
    return [(int(code), value) for code, value in zip(lines[::2], lines[1::2])]


def write(path, tags):
    text = "".join(f"{code:3}\n{value}\n" for code, value in tags)
    path.write_text(text, encoding="utf8", errors="surrogateescape")


def sections_of(tags):
    """Each tag with the name of the section that it stands in."""
    name = ""
    for i, tag in enumerate(tags):
        if tag == (0, "SECTION"):
            name = tags[i + 1][1]
        yield name, tag


def without(tags, section, codes):
    """Drops tags with these codes from the records of a section, reactors and extension dictionaries with them."""
    braces = False
    for name, (code, value) in sections_of(tags):
        braces = value.startswith("{") if code == 102 else braces
        dropped = code in codes or braces or (code == 102 and value == "}")
        if name != section or not dropped:
            yield code, value


def minimal(version, lines, handles):
    entities = []
    for i in range(lines):
        own = [(5, f"{0x2F + i:X}")] if handles else []
        entities += [(0, "LINE"), *own, (100, "AcDbEntity"), (8, "0"), (100, "AcDbLine"), (10, f"{i}.0"), (20, "0.0"),
                     (11, "1.0"), (21, "5.0")]
    return [(0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, version), (0, "ENDSEC"), (0, "SECTION"), (2, "ENTITIES"),
            *entities, (0, "ENDSEC"), (0, "EOF")]


class CarelessWithEzdxf(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = pathlib.Path(folder.name)

    def built(self, version):
        path = self.path / f"{version}.dxf"
        build(version).saveas(path)
        return path

    def expect_group(self, source, command="change"):
        out = self.path / "grouped.dxf"
        tool(command, source, out, "group")
        handles = [value for name, (code, value) in sections_of(records(out)) if code in (5, 105) and name != "HEADER"]
        self.assertEqual(len(handles), len(set(handles)), "a handle twice")
        doc = ezdxf.readfile(out)
        auditor = doc.audit()
        self.assertEqual([], [e.message for e in auditor.errors])
        group = doc.groups.get("Everything")
        # The groups of ezdxf keep their members in no order.
        self.assertEqual(sorted(entity.dxf.handle for entity in doc.modelspace()),
                         sorted(entity.dxf.handle for entity in group))
        self.assertGreater(len(group), 0)
        return doc

    def test_entities_without_handles(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                path = self.built(version)
                write(path, without(records(path), "ENTITIES", {5, 330, 360}))
                self.expect_group(path)

    def test_objects_without_handles(self):
        for version in VERSIONS[1:]:
            with self.subTest(version):
                path = self.built(version)
                tags = list(without(records(path), "ENTITIES", {5, 330, 360}))
                objects = [i for i, tag in enumerate(tags) if tag == (2, "OBJECTS")][0]
                write(path, tags[:objects + 1] + [(0, "DICTIONARY"), (100, "AcDbDictionary"), (0, "ENDSEC"), (0, "EOF")])
                self.expect_group(path)

    def test_entities_alone(self):
        for version in ("AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"):
            for handles in (False, True):
                with self.subTest(f"{version} {handles}"):
                    path = self.path / "minimal.dxf"
                    write(path, minimal(version, 3, handles))
                    self.expect_group(path)

    def test_two_with_one_handle(self):
        for version in ("AC1015", "AC1032"):
            with self.subTest(version):
                tags = minimal(version, 4, True)
                tags = [(5, "2F") if tag == (5, "31") else tag for tag in tags]
                path = self.path / "twice.dxf"
                write(path, tags)
                self.expect_group(path)

    def test_the_first_of_two_with_one_handle_in_a_group(self):
        path, out = self.path / "twice.dxf", self.path / "grouped.dxf"
        write(path, [(5, "2F") if tag == (5, "31") else tag for tag in minimal("AC1015", 4, True)])
        tool("change", path, out, "group-first")
        doc = ezdxf.readfile(out)
        self.assertEqual([], [e.message for e in doc.audit().errors])
        self.assertEqual([(0, 0)], [entity.dxf.start.vec2 for entity in doc.groups.get("First")])
        self.assertEqual(4, len(doc.modelspace()))

    def test_no_header(self):
        tags = minimal("AC1015", 3, False)
        objects = [(0, "SECTION"), (2, "OBJECTS"), (0, "ENDSEC")]
        path = self.path / "headless.dxf"
        write(path, tags[5:-1] + objects + tags[-1:])
        self.expect_group(path)

    def test_the_oldest_version_becomes_a_newer_one(self):
        for objects in (False, True):
            with self.subTest(objects):
                path = self.path / "old.dxf"
                with r12writer(path) as old:
                    old.add_line((0, 0), (1, 1))
                    old.add_circle((5, 5), 2)
                    old.add_polyline_2d([(0, 0), (1, 0), (1, 1)])
                if objects:
                    tags = minimal("AC1009", 0, False)[:5] + records(path)
                    write(path, tags[:-1] + [(0, "SECTION"), (2, "OBJECTS"), (0, "DICTIONARY"), (0, "ENDSEC"), (0, "EOF")])
                self.expect_group(path, "newer")


unittest.main()
