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
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def room(path, table):
    best = None
    for folder in table:
        if (path == folder or path.startswith(folder + "/")) and (best is None or len(folder) > len(best)):
            best = folder
    return best


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
            elif here == "sdk" and room(included, SDK) not in SDK.get(room(name, SDK), set()):
                yield f"{name} may not include {included}: wrong way inside sdk"
            elif name.startswith("options/pages/") and name.endswith(".h") and included.endswith("preferences.h"):
                yield f"{name}: a page's header only forward-declares Preferences"


def main():
    found = list(faults(pathlib.Path(sys.argv[1])))
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
