#!/usr/bin/env python3
"""Makes the sample drawings house.dxf and part.dxf beside this file; the same bytes every time.

With the workbench as argument it makes site.dxf, too, to which the workbench attaches the other two: it plays
site.script in a folder of its own, so that the relative paths hold wherever the samples lie.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import house
import part
import site_plan

FOLDER = pathlib.Path(__file__).resolve().parent


def make_site(workbench):
    with tempfile.TemporaryDirectory() as holder:
        folder = pathlib.Path(holder)
        for name in ("house.dxf", "part.dxf"):
            shutil.copy(FOLDER / name, folder)
        site_plan.make().saveas(folder / "site.dxf")
        script = (FOLDER / "site.script").read_text().replace("{folder}", str(folder))
        (folder / "site.script").write_text(script)
        subprocess.run([workbench, "--headless", "--root", folder / "root", "--script", folder / "site.script"],
                       check=True)
        (FOLDER / "site.dxf").write_text(without_user((folder / "site.dxf").read_text()))


def without_user(text):
    """The drawing as saved by nobody in particular: not by whoever runs this."""
    return re.sub(r"(\$LASTSAVEDBY\n  1\n).*", r"\1Workbench", text)


if __name__ == "__main__":
    house.make().saveas(FOLDER / "house.dxf")
    part.make().saveas(FOLDER / "part.dxf")
    if len(sys.argv) > 1:
        make_site(sys.argv[1])
