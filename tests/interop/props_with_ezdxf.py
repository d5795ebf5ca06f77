# Drawing properties edited in the dialog, read by ezdxf; drawings written by ezdxf, shown in the dialog.
import datetime
import json
import os
import pathlib
import pwd
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode as decoded
from ezdxf.lldxf.loader import load_dxf_structure
from ezdxf.lldxf.tagger import ascii_tags_loader, tag_compiler
from ezdxf.sections.header import HeaderSection
from ezdxf.tools.juliandate import calendardate, juliandate

TOOL = sys.argv.pop()
VERSIONS = ["R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018"]
WITH_PROPERTIES = VERSIONS[2:]  # and with "last saved by"; the older ones keep them in a record of their own
CREATED = datetime.datetime(2024, 3, 7, 14, 5, 9)
EDITS = {
    "fields": {"titleEdit": "Haus am See", "commentsEdit": "Zeile eins\nZeile zwei", "authorEdit": "Änne 世界"},
    "add": [["Blatt", "3 von 7"], ["100 %1", "<b>&amp;</b>"], ["Küche", " größer "], ["世界", "🏠"]],
}
ADDED = [("Blatt", "3 von 7"), ("100 %1", "<b>&amp;</b>"), ("Küche", "größer"), ("世界", "🏠")]


def tool(*arguments):
    done = subprocess.run([TOOL, *map(str, arguments)], capture_output=True, text=True)
    assert done.returncode == 0, done.stderr
    return done.stdout


def header(path):
    """The header alone: ezdxf gives every drawing that it reads a new date of creation."""
    with open(path, encoding="utf8", errors="surrogateescape") as stream:
        sections = load_dxf_structure(tag_compiler(ascii_tags_loader(stream)))
        return HeaderSection.load(sections["HEADER"][0])


def shown(path):
    return json.loads(tool("show", path))


def text(escaped):
    """ezdxf leaves the two halves of a character beyond 16 bits apart."""
    return decoded(escaped).encode("utf-16", "surrogatepass").decode("utf-16")


def properties(doc):
    return [(text(tag), text(value)) for tag, value in doc.header.custom_vars.properties]


class PropertiesWithEzdxf(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)

    def drawing(self, version, custom=()):
        doc = ezdxf.new(version)
        doc.encoding = "cp1252" if version < "R2007" else "utf8"
        doc.modelspace().add_line((0, 0), (10, 5))
        for tag, value in custom:
            doc.header.custom_vars.append(tag, value)
        path = self.folder / f"{version}.dxf"
        doc.saveas(path)
        return path

    def edited(self, path, edits):
        out = self.folder / f"edited_{path.name}"
        tool("ok", path, out, json.dumps(edits))
        doc = ezdxf.readfile(out)
        auditor = doc.audit()
        self.assertEqual([], [e.message for e in auditor.errors + auditor.fixes])
        return doc

    def test_properties_from_the_dialog_are_read(self):
        for version in WITH_PROPERTIES:
            with self.subTest(version):
                doc = self.edited(self.drawing(version, [("alt", "1"), ("alt", "2")]), EDITS)
                self.assertEqual([("alt", "1"), ("alt", "2")] + ADDED, properties(doc))

    def test_deleted_properties_are_gone(self):
        for version in WITH_PROPERTIES:
            with self.subTest(version):
                path = self.drawing(version, [("a", "1"), ("b", "2"), ("c", "3")])
                self.assertEqual([("a", "1"), ("c", "3")], properties(self.edited(path, {"delete": [1]})))

    def test_ten_thousand_properties_are_read(self):
        many = [(f"name {i}", f"value {i}") for i in range(10000)]
        doc = self.edited(self.drawing("R2018", many), {"add": [["last", "one"]]})
        self.assertEqual(many + [("last", "one")], properties(doc))

    def test_properties_of_ezdxf_are_shown(self):
        custom = [["Projekt", "Haus"], ["Projekt", "zweimal"], ["leer", ""], ["Küche", "größer 50 %"]]
        for version in WITH_PROPERTIES:
            with self.subTest(version):
                self.assertEqual(custom, shown(self.drawing(version, custom))["custom"])

    def test_dates_of_ezdxf_are_shown_and_stay(self):
        for version in VERSIONS:
            with self.subTest(version):
                path = self.drawing(version)
                doc = ezdxf.readfile(path)
                doc.header["$TDCREATE"] = juliandate(CREATED)
                doc.header["$TDINDWG"] = 1.5 / 24
                doc.saveas(path)
                self.assertEqual("07 March 2024 14:05:09", shown(path)["createdLabel"])
                self.assertEqual("1 h", shown(path)["editingTimeLabel"])
                self.edited(path, EDITS)
                created = header(self.folder / f"edited_{path.name}")["$TDCREATE"]
                self.assertEqual(juliandate(CREATED), created)

    def test_a_save_tells_when_and_by_whom(self):
        user = pwd.getpwuid(os.geteuid()).pw_name
        for version in VERSIONS:
            with self.subTest(version):
                before = datetime.datetime.now() - datetime.timedelta(seconds=2)
                doc = self.edited(self.drawing(version), EDITS)
                updated = calendardate(doc.header["$TDUPDATE"])
                self.assertTrue(before <= updated <= datetime.datetime.now() + datetime.timedelta(seconds=2))
                if version in WITH_PROPERTIES:
                    self.assertEqual(user, doc.header["$LASTSAVEDBY"])
                self.assertEqual(user, shown(self.folder / f"edited_{version}.dxf")["lastSavedByLabel"])

    def test_last_saved_by_of_ezdxf_is_shown(self):
        for version in WITH_PROPERTIES:
            with self.subTest(version):
                path = self.drawing(version)
                self.assertEqual("ezdxf", shown(path)["lastSavedByLabel"])

    def test_edits_are_shown_again_in_every_version(self):
        for version in VERSIONS:
            with self.subTest(version):
                self.edited(self.drawing(version), EDITS)
                found = shown(self.folder / f"edited_{version}.dxf")
                for name, text in EDITS["fields"].items():
                    self.assertEqual(text, found[name])
                self.assertEqual([list(p) for p in ADDED], found["custom"])

    def test_cancel_leaves_every_tag_as_it_was(self):
        for version in VERSIONS:
            with self.subTest(version):
                path = self.drawing(version, [("a", "1"), ("b", "2")])
                out = self.folder / "cancelled.dxf"
                delete = [0] if version in WITH_PROPERTIES else []
                tool("cancel", path, out, json.dumps({**EDITS, "delete": delete}))
                self.assertEqual(path.read_bytes(), out.read_bytes())


if __name__ == "__main__":
    unittest.main(verbosity=1)
