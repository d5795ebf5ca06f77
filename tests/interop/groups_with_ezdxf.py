# The drawing that each transcript of the group commands leaves, read by ezdxf: names, descriptions, flags and order of
# members as in the reference of the case.
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf.lldxf.loader import load_dxf_structure
from ezdxf.lldxf.tagger import ascii_tags_loader, tag_compiler

TOOL = sys.argv.pop()
CASES = pathlib.Path(sys.argv.pop())


def members_in_order(path):
    """By the group's handle. The group objects of ezdxf keep their members in no order, but its tags do."""
    with open(path, encoding="utf8") as stream:
        objects = load_dxf_structure(tag_compiler(ascii_tags_loader(stream)))["OBJECTS"]
    return {tags[1].value: [tag.value for tag in tags if tag.code == 340] for tags in objects if tags[0] == (0, "GROUP")}


def described(group, name, numbers, members):
    text = "group " + ("*" if group.dxf.unnamed else name) + ":"
    assert sorted(members) == sorted(entity.dxf.handle for entity in group)
    text += "".join(f" {numbers[handle]}" for handle in members)
    text += "" if group.dxf.selectable else ", not selectable"
    text += ", unnamed" if group.dxf.unnamed else ""
    return text + (f', "{group.dxf.description}"' if group.dxf.description else "")


def groups_in(path):
    doc = ezdxf.readfile(path)
    numbers = {entity.dxf.handle: number for number, entity in enumerate(doc.modelspace())}
    order = members_in_order(path)
    return [described(group, name, numbers, order[group.dxf.handle]) for name, group in doc.groups], doc.audit()


class GroupsWithEzdxf(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        holder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(holder.cleanup)
        cls.folder = pathlib.Path(holder.name)
        done = subprocess.run([TOOL, "--gtest_filter=Cases/Transcript.AsksPrints*"], capture_output=True, text=True,
                              env={**os.environ, "GROUP_DRAWINGS": holder.name})
        assert done.returncode == 0, done.stdout

    def test_every_case_leaves_the_groups_of_its_reference(self):
        cases = sorted(case.name for case in CASES.iterdir())
        self.assertGreater(len(cases), 30)
        for case in cases:
            with self.subTest(case):
                groups, audit = groups_in(self.folder / f"{case}.dxf")
                reference = (CASES / case / "drawing.txt").read_text(encoding="utf8").splitlines()
                self.assertEqual(groups, [line for line in reference if line.startswith("group ")])
                self.assertFalse(audit.errors)


unittest.main()
