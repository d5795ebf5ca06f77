#!/usr/bin/env python3
"""Makes the sample drawings house.dxf, part.dxf and kinds.dxf beside this file; the same bytes every time.

With the workbench as argument it makes site.dxf, too, to which the workbench attaches the first two, and puts the
preview pictures into the others. The workbench plays scripts in a folder of its own, so that the relative paths hold
wherever the samples lie.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import house
import kinds
import part
import site_plan

FOLDER = pathlib.Path(__file__).resolve().parent


def play(workbench, into, script, **names):
    text = (FOLDER / script).read_text()
    for name, value in names.items():
        text = text.replace("{" + name + "}", str(value))
    (into / script).write_text(text)
    subprocess.run([workbench, "--headless", "--root", into / "root", "--script", into / script], check=True)


def add_preview(workbench, path):
    """Takes the preview from a changed copy that the workbench saves; all else stays as it is."""
    with tempfile.TemporaryDirectory() as holder:
        folder = pathlib.Path(holder)
        copy = pathlib.Path(shutil.copy(path, folder))
        play(workbench, folder, "preview.script", file=copy)
        preview = re.search(r"  0\nSECTION\n  2\nTHUMBNAILIMAGE\n.*?\n  0\nENDSEC\n", copy.read_text(), re.DOTALL)
    text = path.read_text()
    end = text.rindex("  0\nEOF\n")
    path.write_text(text[:end] + preview.group() + text[end:])


def make_site(workbench):
    with tempfile.TemporaryDirectory() as holder:
        folder = pathlib.Path(holder)
        for name in ("house.dxf", "part.dxf"):
            shutil.copy(FOLDER / name, folder)
        site_plan.make().saveas(folder / "site.dxf")
        play(workbench, folder, "site.script", folder=folder)
        (FOLDER / "site.dxf").write_text(without_user((folder / "site.dxf").read_text()))


def without_user(text):
    """The drawing as saved by nobody in particular: not by whoever runs this."""
    return re.sub(r"(\$LASTSAVEDBY\n  1\n).*", r"\1Workbench", text)


if __name__ == "__main__":
    if os.environ.get("PYTHONHASHSEED") != "0":  # the order of sets goes into the files
        os.execve(sys.executable, [sys.executable, *sys.argv], {**os.environ, "PYTHONHASHSEED": "0"})
    house.make().saveas(FOLDER / "house.dxf")
    part.make().saveas(FOLDER / "part.dxf")
    kinds.make().saveas(FOLDER / "kinds.dxf")
    if len(sys.argv) > 1:
        add_preview(sys.argv[1], FOLDER / "house.dxf")
        add_preview(sys.argv[1], FOLDER / "part.dxf")
        add_preview(sys.argv[1], FOLDER / "kinds.dxf")
        make_site(sys.argv[1])
