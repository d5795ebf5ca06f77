#!/usr/bin/env python3
"""The check of the promises finds a test that is named and is not there, and a page without any."""
import pathlib
import tempfile
import unittest

import promises


class Promises(unittest.TestCase):
    def result(self, page):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "docs").mkdir()
            (root / "tests").mkdir()
            (root / "docs" / "architecture.md").write_text(page, encoding="utf-8")
            (root / "tests" / "save_test.cpp").write_text("TEST_F(Save, IsWhole) {}\nTEST(Plain,\n     Test) {}\n",
                                                          encoding="utf-8")
            return promises.main(root)

    def test_named_tests_have_to_be_there(self):
        self.assertEqual(self.result("Whole (`Save.IsWhole`), plain (`Plain.Test`)."), 0)
        self.assertEqual(self.result("Whole (`Save.IsWhole`), kept (`Save.IsKept`)."), 1)

    def test_a_page_names_tests(self):
        self.assertEqual(self.result("All is well."), 1)


if __name__ == "__main__":
    unittest.main()
