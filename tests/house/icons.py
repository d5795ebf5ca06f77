#!/usr/bin/env python3
"""icons.py ROOT: the icons in res/ are those that the script makes of their drawings, no more and no fewer."""
import filecmp
import pathlib
import shutil
import subprocess
import sys
import tempfile


def files(folder):
    return {str(f.relative_to(folder)) for f in folder.rglob("*") if f.suffix in (".ico", ".qrc")}


def main():
    shipped = pathlib.Path(sys.argv[1]) / "res"
    with tempfile.TemporaryDirectory() as scratch:
        made = pathlib.Path(scratch) / "res"
        made.mkdir()
        shutil.copy(shipped / "make_icons.py", made)
        shutil.copytree(shipped / "svg", made / "svg")
        subprocess.run([sys.executable, str(made / "make_icons.py")], check=True)
        want, have = files(made), files(shipped)
        faults = [f"missing: {name}" for name in sorted(want - have)]
        faults += [f"without a drawing: {name}" for name in sorted(have - want)]
        faults += [f"not as the script makes it: {name}" for name in sorted(want & have)
                   if not filecmp.cmp(made / name, shipped / name, shallow=False)]
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
