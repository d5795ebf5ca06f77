#!/usr/bin/env python3
"""exports.py MAP LIBRARY: the library exports exactly the names of its version script, no more and no less."""
import re
import subprocess
import sys


def wanted(path):
    text = re.sub(r"#[^\n]*", "", open(path, encoding="utf-8").read())
    text = text[text.index("global:"):text.index("local:")]
    demangled = set(re.findall(r'"([^"]+)";', text))
    plain = set(re.findall(r"^\s*([A-Za-z_]\w*);", text, re.M))
    return plain | demangled


def exported(library, wanted_names):
    def names(*flags):
        out = subprocess.run(["nm", "-D", "--defined-only", "--format=posix", *flags, library],
                             capture_output=True, text=True, check=True).stdout
        return [line.rsplit(" ", 3)[0] for line in out.splitlines()]
    for plain, demangled in zip(names(), names("-C")):
        yield demangled if demangled in wanted_names else plain


def main():
    want = wanted(sys.argv[1])
    have = set(exported(sys.argv[2], want))
    for name in sorted(want - have):
        print("missing:", name)
    for name in sorted(have - want):
        print("not on the list:", name)
    print(len(have), "names exported")
    sys.exit(0 if want == have else 1)


if __name__ == "__main__":
    main()
