#!/usr/bin/env python3
"""exports_test.py LIBRARY: the check of the exports finds a name that is missing and one that is too much."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

import exports

CHECK = str(pathlib.Path(__file__).with_name("exports.py"))
LIBRARY = sys.argv.pop(1)


class Exports(unittest.TestCase):
    def check(self, names):
        with tempfile.NamedTemporaryFile("w", suffix=".map") as version_script:
            version_script.write("{\n  global:\n" + "".join(f"    {name};\n" for name in names) + "  local: *;\n};\n")
            version_script.flush()
            return subprocess.run([sys.executable, CHECK, version_script.name, LIBRARY], capture_output=True, text=True)

    def setUp(self):
        self.names = sorted(exports.exported(LIBRARY, set()))

    def test_the_very_names_pass(self):
        self.assertEqual(self.check(self.names).returncode, 0)

    def test_a_name_that_is_not_exported_is_missed(self):
        result = self.check(self.names + ["noSuchFunction"])
        self.assertEqual(result.returncode, 1)
        self.assertIn("missing: noSuchFunction", result.stdout)

    def test_a_name_that_is_not_on_the_list_is_told(self):
        result = self.check(self.names[1:])
        self.assertEqual(result.returncode, 1)
        self.assertIn(f"not on the list: {self.names[0]}", result.stdout)


if __name__ == "__main__":
    unittest.main()
