#!/usr/bin/env python3
"""The check of the pictures finds one that is missing and one that nobody names, and passes a clean tree."""
import pathlib
import tempfile
import unittest

import pictures


class Pictures(unittest.TestCase):
    def faults(self, readme, guide, images):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "docs" / "images").mkdir(parents=True)
            (root / "README.md").write_text(readme, encoding="utf-8")
            (root / "docs" / "guide.md").write_text(guide, encoding="utf-8")
            for name in images:
                (root / "docs" / "images" / name).touch()
            return list(pictures.faults(root))

    def test_pictures_that_are_there_and_named_pass(self):
        self.assertEqual(self.faults("![One](docs/images/one.png)", '![Two](images/two.png) <img src="images/three.png">',
                                     ["one.png", "two.png", "three.png"]), [])

    def test_a_picture_that_is_not_there_is_missed(self):
        self.assertEqual(self.faults("", "![One](images/one.png)\n![Two](images/two.png \"2\")", ["one.png"]),
                         ["docs/guide.md: there is no picture two.png"])

    def test_the_readme_names_its_pictures_from_its_own_folder(self):
        self.assertEqual(self.faults("![One](images/one.png)", "![One](images/one.png)", ["one.png"]),
                         ["README.md: there is no picture one.png"])

    def test_a_picture_that_nobody_names_is_told(self):
        self.assertEqual(self.faults("", "the file two.png", ["two.png"]), ["docs/images/two.png is named nowhere"])


if __name__ == "__main__":
    unittest.main()
