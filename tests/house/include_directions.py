#!/usr/bin/env python3
"""Every #include between folders must follow the arrows of docs/architecture.md; prints each one that does not."""
import pathlib
import re
import sys

# Folder -> what it may include. The longest matching folder name counts.
ALLOWED = {
    "sdk": {"sdk"},
    "host": {"host", "sdk"},
    "standin": {"standin", "host", "sdk"},
    "module/icons": {"module/icons", "host"},
    "module": {"module", "module/icons", "host", "sdk", "options", "dwgprops", "xref", "groups"},
    "options": {"options", "module/icons", "host", "sdk"},
    "dwgprops": {"dwgprops", "host", "sdk"},
    "xref": {"xref", "host", "sdk"},
    "groups": {"groups", "host", "sdk"},
    "workbench": {"workbench", "standin", "host", "sdk"},
    "benchmarks": {"benchmarks", "sdk", "host", "standin", "workbench", "module", "module/icons", "options", "dwgprops",
                   "xref", "groups", "tests"},
    "tests": None,  # everything
}
# Within sdk: the object model stands below everything, the tags of a file below the database that is made of them.
SDK = {
    "sdk/rx": {"sdk/rx"},
    "sdk/ge": {"sdk/ge", "sdk/rx"},
    "sdk/ed": {"sdk/ed", "sdk/rx"},
    "sdk/dxf": {"sdk/dxf", "sdk/ge", "sdk/rx"},
    "sdk/db": {"sdk/db", "sdk/dxf", "sdk/ge", "sdk/rx"},
}
# Within options: window -> tree -> kinds -> pages -> store. The pages of data do not know of each other. The index of the
# rows holds the lists of directories by value, so that the class of a list lies below the pages.
DIR_LIST = "options/pages/directories/std_dir_item.h"
PAGE = {"options/pages/rows", "options/pages/search", "options/store", DIR_LIST}
OPTIONS = {
    DIR_LIST: {"options/store"},
    "options/store": {"options/store"},
    "options/pages/search": {"options/pages/search", "options/store"},
    "options/pages/rows": PAGE,
    "options/pages/directories": PAGE | {"options/pages/directories"},
    "options/pages/raster": PAGE | {"options/pages/raster"},
    "options/pages/papers": PAGE | {"options/pages/papers"},
}
OPTIONS["options/kinds"] = {"options/kinds"} | set(OPTIONS)
OPTIONS["options/tree"] = {"options/tree"} | set(OPTIONS)
OPTIONS["options/window"] = {"options/window"} | set(OPTIONS)
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def room(path, table):
    best = None
    for folder in table:
        if (path == folder or path.startswith(folder + "/")) and (best is None or len(folder) > len(best)):
            best = folder
    return best


# A folder whose rooms have arrows of their own; every file of it lies in one of them.
INSIDE = {"sdk": SDK, "options": OPTIONS}


def is_wrong_way(name, included, rooms):
    return rooms and room(included, rooms) not in rooms.get(room(name, rooms), set())


def faults(root):
    for source in sorted(root.rglob("*")):
        if source.suffix not in (".h", ".cpp") or "build" in source.relative_to(root).parts[:1]:
            continue
        name = source.relative_to(root).as_posix()
        here = room(name, ALLOWED)
        if here is None:
            yield f"{name}: this folder is not in the table"
            continue
        for included in INCLUDE.findall(source.read_text(encoding="utf-8")):
            if included.endswith(".moc") or included.startswith("moc_"):
                continue
            there = room(included, ALLOWED)
            if there is None:
                yield f'{name}: "{included}" is not named from the root of a folder'
            elif ALLOWED[here] is not None and there not in ALLOWED[here]:
                yield f"{name} ({here}) may not include {included} ({there})"
            elif here == there and is_wrong_way(name, included, INSIDE.get(here, {})):
                yield f"{name} may not include {included}: wrong way inside {here}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1])))
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
