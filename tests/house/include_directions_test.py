#!/usr/bin/env python3
"""The check of the include directions finds each kind of fault in a small tree made for it, and passes a clean one."""
import pathlib
import tempfile
import unittest

import include_directions


class IncludeDirections(unittest.TestCase):
    def faults(self, files):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, included in files.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text("".join(f'#include "{file}"\n' for file in included), encoding="utf-8")
            return list(include_directions.faults(root))

    def assertFault(self, name, included, word):
        found = self.faults({name: [included]})
        self.assertEqual(len(found), 1, found)
        self.assertIn(word, found[0])

    def test_arrows_that_are_allowed_pass(self):
        self.assertEqual(self.faults({
            "host/app.h": ["sdk/rx/rx_object.h"],
            "options/tree/apply.cpp": ["options/tree/apply.h", "module/icons/icon_table.h", "moc_apply.cpp"],
            "sdk/db/group.cpp": ["sdk/dxf/tag.h"],
            "tests/options/apply_test.cpp": ["standin/registry.h", "options/tree/apply.h"],
        }), [])

    def test_the_wrong_way_between_folders_is_a_fault(self):
        self.assertFault("host/app.h", "standin/registry.h", "may not include")
        self.assertFault("groups/group_cmd.cpp", "options/window/preferences.h", "may not include")
        self.assertFault("workbench/workbench.cpp", "module/module_object.h", "may not include")
        self.assertFault("module/icons/icon_table.cpp", "module/module_object.h", "may not include")

    def test_the_wrong_way_inside_the_sdk_is_a_fault(self):
        self.assertFault("sdk/dxf/tag.cpp", "sdk/db/object.h", "wrong way inside sdk")

    def test_the_rooms_of_the_options_know_only_those_below_them(self):
        rooms = ["options/window", "options/tree", "options/kinds", "options/pages/papers", "options/pages/rows", "options/store"]
        for above, below in zip(rooms, rooms[1:]):
            self.assertEqual(self.faults({f"{above}/a.cpp": [f"{below}/b.h"]}), [])
            self.assertFault(f"{below}/b.cpp", f"{above}/a.h", "wrong way inside options")
        for room in rooms[1:]:
            self.assertFault(f"{room}/b.h", "options/window/preferences.h", "wrong way inside options")

    def test_the_pages_of_the_options_do_not_know_of_each_other(self):
        self.assertFault("options/pages/papers/paper_page.cpp", "options/pages/raster/raster_page.h", "wrong way inside")

    def test_a_file_of_the_options_outside_of_their_rooms_is_a_fault(self):
        self.assertFault("options/apply.cpp", "options/store/option_values.h", "wrong way inside options")

    def test_a_name_that_does_not_start_at_a_folder_is_a_fault(self):
        self.assertFault("options/tree/apply.cpp", "apply.h", "not named from the root")

    def test_a_folder_without_a_line_in_the_table_is_a_fault(self):
        self.assertFault("extras/more.cpp", "host/app.h", "not in the table")

    def test_what_lies_in_the_build_folder_is_passed_over(self):
        self.assertEqual(self.faults({"build/dev/generated.cpp": ["anything.h"]}), [])


if __name__ == "__main__":
    unittest.main()
