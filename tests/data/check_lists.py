#!/usr/bin/env python3
"""Checks the shipped lists: picture and save formats, papers, standard folders and the names of the profiles.

Usage: check_lists.py [DATA_DIRECTORY]. Prints every fault; the exit status is 0 without any.
"""
import os
import re
import sys

from param_yaml import RealPoint, RealSize, Wide, load

FORBIDDEN_NAME = set("\t\r\n/\\:.+-*=,~!@#$%^&(){}[]|?'\"`")
FORBIDDEN_EXTENSION = set("/\\:.*|?")


class Report:
    """The faults found so far."""

    def __init__(self):
        self.faults = []

    def expect(self, holds, message):
        if not holds:
            self.faults.append(message)


def numbered(section):
    """The values Format1, Format2 and so on up to the first gap."""
    names = []
    while f"Format{len(names) + 1}" in section:
        names.append(section[f"Format{len(names) + 1}"])
    return names


def check_formats(report, formats):
    rasters, saves = numbered(formats["Raster"]), numbered(formats["SaveProjects"])
    for title, names in (("Raster", rasters), ("SaveProjects", saves)):
        report.expect(len(names) == len(formats[title]), f"{title}: a gap in the numbers or a stray value")
        report.expect(len(set(names)) == len(names), f"{title}: a name is listed twice")
    report.expect(len(rasters) == 12 and len(saves) == 10, "12 picture formats and 10 save formats are expected")
    report.expect(set(rasters + saves) == set(formats["Formats"]), "Formats: sections and listed names differ")
    for name in rasters + saves:
        check_format(report, name, formats["Formats"].get(name, {}), name in rasters)


def check_format(report, name, section, raster):
    where = f"Formats/{name}"
    report.expect(not set(name) & FORBIDDEN_NAME, f"{where}: a character that a name may not hold")
    for key in ("Description", "LongDescription"):
        value = section.get(key)
        report.expect(isinstance(value, Wide) and value, f"{where}: {key} is no wide text")
    extension = section.get("DefExt", ".")
    report.expect(type(extension) is str and extension and not set(extension) & FORBIDDEN_EXTENSION,
                  f"{where}: DefExt is wrong")
    for key in ("Enabled", "Generic", "CanSetup", "CanDelete") if raster else ("Binary",):
        report.expect(section.get(key) in (0, 1), f"{where}: {key} is neither 0 nor 1")
    if not raster:
        report.expect(re.fullmatch(r"AC10\d\d", section.get("Version", "")), f"{where}: Version is wrong")


def check_papers(report, papers):
    names = [paper.get("Name") for paper in papers.values()]
    report.expect(list(papers) == [f"Paper{n:08d}" for n in range(1, len(papers) + 1)], "papers: wrong section names")
    report.expect(len(set(names)) == len(names), "papers: a name is given twice")
    for series in ("A[0-6]", "B[0-6]", "ANSI [A-E]", "Arch ([A-E]|E1)"):
        count = {"A[0-6]": 7, "B[0-6]": 7, "ANSI [A-E]": 5}.get(series, 6)
        report.expect(sum(bool(re.fullmatch(series, name)) for name in names) == count, f"papers: series {series}")
    for key, paper in papers.items():
        check_paper(report, key, paper)


def check_paper(report, key, paper):
    size = paper.get("Size")
    report.expect(isinstance(paper.get("Name"), Wide) and paper["Name"], f"{key}: Name is no wide text")
    report.expect(paper.get("Used") in (0, 1), f"{key}: Used is neither 0 nor 1")
    report.expect(paper.get("Units") in ("mm", "in"), f"{key}: unknown unit")
    if not isinstance(size, RealSize):
        report.expect(False, f"{key}: no Size")
        return
    report.expect(0 < size[0] < size[1] < 2000, f"{key}: not upright or of no real size")
    if "PortraitSize" not in paper:
        return
    portrait, landscape, origin = paper["PortraitSize"], paper["LandscapeSize"], paper["PaperOriginPoint"]
    report.expect(isinstance(portrait, RealSize) and tuple(landscape) == tuple(reversed(portrait)),
                  f"{key}: the printable sizes differ from each other")
    report.expect(isinstance(origin, RealPoint)
                  and all(0 <= o and o + p <= s for o, p, s in zip(origin, portrait, size)),
                  f"{key}: the printable area leaves the sheet")


def check_folders(report, folders):
    sections = folders["StdDirsDescriptions"]
    report.expect(list(sections) == list(folders["Lists"]), "folders: descriptions and lists differ")
    for key, section in sections.items():
        for name in ("Name", "Description"):
            report.expect(isinstance(section.get(name), Wide) and section[name], f"{key}: {name} is no wide text")
    for key, entries in folders["Lists"].items():
        paths = [entry["path"].lower() for entry in entries.values()]
        report.expect(paths and len(set(paths)) == len(paths), f"{key}: no path, or one that is listed twice")
        for entry in entries.values():
            report.expect(set(entry) == {"path", "key", "editable"} and entry["editable"] in (0, 1)
                          and ";" not in entry["path"] and re.match(r"(\$\{(data|root)\}(/|$)|/)", entry["path"]),
                          f"{key}: a wrong entry {entry}")
    for key in ("TemplatesDir", "AppDataDir"):
        report.expect(isinstance(folders["Dirs"].get(key), Wide), f"Dirs: {key} is missing")


def check_shipped_folders(report, folders, data):
    """What the lists promise below the data folder is there."""
    paths = [entry["path"] for entries in folders["Lists"].values() for entry in entries.values()]
    for path in paths + list(folders["Dirs"].values()):
        if path.startswith("${data}"):
            report.expect(os.path.isdir(path.replace("${data}", data)), f"{path} is not shipped")


def check(data):
    """All faults of the lists in the given folder."""
    report = Report()
    folders = load(os.path.join(data, "stddirs.yaml"))
    check_formats(report, load(os.path.join(data, "formats.yaml")))
    check_papers(report, load(os.path.join(data, "papers.yaml")))
    check_folders(report, folders)
    check_shipped_folders(report, folders, data)
    profiles = load(os.path.join(data, "profile_defaults.yaml"))["Profiles"]
    report.expect(len(profiles) >= 2 and "default" in profiles, "profiles: at least default and another one")
    return report.faults


def main(arguments):
    here = os.path.dirname(os.path.abspath(__file__))
    faults = check(arguments[0] if arguments else os.path.join(here, "..", "..", "workbench", "data"))
    for line in faults:
        print(line, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
