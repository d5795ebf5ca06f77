#!/usr/bin/env python3
"""The check of the lengths finds long functions wherever they stand, and takes nothing else for one."""
import pathlib
import tempfile
import unittest

import function_lengths


def body(lines):
    """Between the braces: together with the lines that have them, so many."""
    return "{\n" + "    step();\n" * (lines - 2) + "}\n"


class FunctionLengths(unittest.TestCase):
    def lengths(self, text):
        return list(function_lengths.functions(text))

    def test_functions_of_namespaces_and_classes_are_measured(self):
        self.assertEqual(self.lengths("namespace {\n\nint f() " + body(5) + "\n} // namespace\n"), [(3, 5)])
        self.assertEqual(self.lengths("class A : public B<void(int)> {\n    void f() const " + body(7) + "};\n"), [(2, 7)])
        self.assertEqual(self.lengths('extern "C" {\nvoid f() ' + body(4) + "}\nvoid g() {}\n"), [(2, 4), (7, 1)])
        self.assertEqual(self.lengths("TEST_F(Dialog, Opens) " + body(6)), [(1, 6)])

    def test_the_head_counts_but_not_what_stands_above(self):
        self.assertEqual(self.lengths('#include "a.h"\nDEFINE(A)\n\n// Why.\nint f(int a,\n      int b) ' + body(3)),
                         [(5, 4)])

    def test_blocks_and_lambdas_count_to_the_function_around_them(self):
        self.assertEqual(self.lengths("void f() {\n    if (a) {\n        b([] {\n        });\n    }\n}\n"), [(1, 6)])

    def test_initial_values_in_braces_are_part_of_the_constructor(self):
        self.assertEqual(self.lengths("A::A(int n)\n    : first{n},\n      second{n} " + body(3)), [(1, 5)])

    def test_tables_are_no_functions(self):
        self.assertEqual(self.lengths("const Row rows[] = {\n    {1, f(2)},\n    {3, 4},\n};\nint number{5};\n"), [])

    def test_braces_in_texts_and_comments_count_for_nothing(self):
        self.assertEqual(self.lengths("void f() {\n    a = \"{\" + '{'; // {\n    /* { */ b = R\"x({{)x\"; c = 1'000;\n}\n"),
                         [(1, 4)])

    def test_only_lengths_above_the_limit_are_faults(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "build").mkdir()
            (root / "build" / "made.cpp").write_text("void f() " + body(90), encoding="utf-8")
            (root / "code.cpp").write_text("void f() " + body(60) + "\nvoid g() " + body(61), encoding="utf-8")
            self.assertEqual(list(function_lengths.faults(root)), ["code.cpp:62: 61 lines"])


if __name__ == "__main__":
    unittest.main()
