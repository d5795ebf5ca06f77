#!/usr/bin/env python3
"""Shows that the check of the option tree finds faults: each test breaks the shipped tree in one way."""
import copy
import os
import unittest

from check_preftree import Check, save_format_names
from param_yaml import RealSize, Size, Wide, load

DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "workbench", "data")
TREE = load(os.path.join(DATA, "preftree.yaml"))["PrefTree"]
VARIABLES = load(os.path.join(DATA, "sysvars.yaml"))["variables"]
FORMATS = save_format_names(load(os.path.join(DATA, "formats.yaml")))


def find(section, name):
    """The section of that name, wherever it is."""
    for child, value in section.items():
        if isinstance(value, dict):
            found = value if child == name else find(value, name)
            if found is not None:
                return found
    return None


class BrokenTree(unittest.TestCase):
    def faults_after(self, name, **changes):
        tree = copy.deepcopy(TREE)
        node = find(tree, name)
        for key, value in changes.items():
            if value is None:
                del node[key]
            else:
                node[key] = value
        return "\n".join(Check(tree, VARIABLES, FORMATS).run())

    def test_the_shipped_tree_has_no_fault(self):
        self.assertEqual(Check(TREE, VARIABLES, FORMATS).run(), [])

    def test_type_in_wrong_case(self):
        self.assertIn("unknown Type edit", self.faults_after("StartScript", Type=Wide("edit")))

    def test_missing_description(self):
        self.assertIn("Description is missing", self.faults_after("SnapOn", Description=None))

    def test_narrow_name(self):
        self.assertIn("Name has the wrong type", self.faults_after("SnapOn", Name="Snap"))

    def test_store_is_not_found_two_levels_up(self):
        self.assertIn("FilesLogFile: no store", self.faults_after("FilesLogOn", Section=None))

    def test_unknown_store(self):
        self.assertIn("no store", self.faults_after("UiWindow", IFace="Registry"))

    def test_unknown_variable(self):
        self.assertIn("no system variable OSNOPE", self.faults_after("DraftOsnap", Key="OSNOPE"))

    def test_read_only_variable(self):
        self.assertIn("read-only", self.faults_after("TextFontAlt", Key="TEXTSTYLE", Default=Wide("Standard")))

    def test_combo_on_a_system_variable(self):
        self.assertIn("cannot keep its value", self.faults_after("TextEditor", sysvar=1, Key="FONTALT"))

    def test_default_outside_the_limits(self):
        self.assertIn("is not within", self.faults_after("CursorWidth", Default=9))

    def test_default_of_an_integer_as_real(self):
        self.assertIn("Default has the type float", self.faults_after("CursorWidth", Default=1.0))

    def test_limits_of_the_other_kind(self):
        self.assertIn("Limits have the wrong type", self.faults_after("CursorWidth", Limits=RealSize((1.0, 5.0))))

    def test_limits_beyond_the_variable(self):
        self.assertIn("outside the range", self.faults_after("CursorSize", Limits=Size((1, 200))))

    def test_default_that_is_no_choice(self):
        self.assertIn("none of the choices", self.faults_after("PlotArea", Default=Wide("everything")))

    def test_choices_that_would_be_rows(self):
        tree = copy.deepcopy(TREE)
        find(tree, "PlotArea")["Choices"]["Hidden"] = 0
        self.assertIn("not hidden", "\n".join(Check(tree, VARIABLES, FORMATS).run()))

    def test_file_row_without_filter(self):
        self.assertIn("every file would be refused", self.faults_after("FilesTemplate", ID=None))

    def test_file_of_another_extension(self):
        self.assertIn("does not end in .dwt", self.faults_after("FilesTemplate", Default=Wide("metric.dxf")))

    def test_save_format_that_does_not_exist(self):
        self.assertIn("no number of a save format", self.faults_after("SaveDefaultFormat", Default=11))

    def test_radio_group_without_a_selected_row(self):
        self.assertIn("nothing of its group is selected", self.faults_after("ThemeDark", Value=7))

    def test_masked_radios_that_clear_each_other(self):
        self.assertIn("overlaps another", self.faults_after("PolarAbsolute", Value=1))

    def test_mask_of_two_bits(self):
        self.assertIn("not one single bit", self.faults_after("OsnapEnd", mask=3))

    def test_two_rows_with_the_same_value(self):
        self.assertIn("is shared with", self.faults_after("UiStatusBar", Key="ShowToolBar"))

    def test_two_checks_with_the_same_bit(self):
        self.assertIn("are taken by", self.faults_after("OsnapMid", mask=1))

    def test_transparent_neighbour_that_changes_the_store(self):
        tree = copy.deepcopy(TREE)
        find(tree, "UiWindow")["Intruder"] = {"Name": Wide(""), "Section": "Elsewhere", "IFace": "IProfile"}
        self.assertIn("because of a transparent neighbour", "\n".join(Check(tree, VARIABLES, FORMATS).run()))

    def test_missing_page(self):
        self.assertIn("no row with ID 0x10000", self.faults_after("PlotPapers", ID=None))

    def test_name_used_twice(self):
        tree = copy.deepcopy(TREE)
        find(tree, "System")["Undo"] = copy.deepcopy(find(tree, "SystemStart"))
        self.assertIn("2 rows have the name Undo", "\n".join(Check(tree, VARIABLES, FORMATS).run()))

    def test_unknown_icon(self):
        self.assertIn("not in the icon table", self.faults_after("Undo", Image=19))

    def test_environment_variables_are_shown(self):
        self.assertIn("no option has the folder %HISTORY%",
                      self.faults_after("SaveAutoDir", Default=Wide("")))

    def test_more_options_are_no_fault(self):
        tree = copy.deepcopy(TREE)
        for number in range(100):
            find(tree, "System")[f"Page{number}"] = {
                "Name": Wide("Show the page"), "Description": Wide("The page is shown."), "Type": Wide("Check"),
                "IFace": "IProfile", "Section": "Start", "Key": f"Page{number}", "Default": 1}
        self.assertEqual(Check(tree, VARIABLES, FORMATS).run(), [])

    def test_too_few_options(self):
        tree = copy.deepcopy(TREE)
        del tree["Drafting"], tree["Display"], tree["Select"]
        self.assertIn("options instead of at least 150", "\n".join(Check(tree, VARIABLES, FORMATS).run()))


if __name__ == "__main__":
    unittest.main()
