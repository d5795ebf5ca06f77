#!/usr/bin/env python3
"""The tests that the architecture page names for its promises exist. Usage: promises.py ROOT"""

import pathlib
import re
import sys


def named_tests(text):
    """Each `Suite.Test` between backticks."""
    return re.findall(r"`([A-Z]\w+)\.([A-Z]\w+)`", text)


def tests_of(root):
    found = set()
    for source in (root / "tests").rglob("*.cpp"):
        text = source.read_text(encoding="utf-8")
        found.update(re.findall(r"TEST(?:_F|_P)?\((\w+),\s*(\w+)\)", text))
    return found


def main(root):
    named = named_tests((root / "docs" / "architecture.md").read_text(encoding="utf-8"))
    there = tests_of(root)
    missing = [f"{suite}.{test}" for suite, test in named if (suite, test) not in there]
    for name in missing:
        print(f"docs/architecture.md names {name}, which is no test")
    if not named:
        print("docs/architecture.md names no test at all")
    return 1 if missing or not named else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
