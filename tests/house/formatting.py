#!/usr/bin/env python3
"""Every C++ file must be as clang-format writes it; prints those that are not."""
import pathlib
import subprocess
import sys


def main():
    root = pathlib.Path(sys.argv[1])
    files = [str(f) for f in sorted(root.rglob("*"))
             if f.suffix in (".h", ".cpp") and f.relative_to(root).parts[0] != "build"]
    bad = []
    for start in range(0, len(files), 40):
        result = subprocess.run(["clang-format", "--dry-run", "--Werror"] + files[start:start + 40],
                                capture_output=True, text=True)
        bad += [line for line in result.stderr.splitlines() if "error:" in line]
    print("\n".join(bad[:40]))
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
