#!/usr/bin/env python3
"""Checks the shipped option tree against the grammar of the Options dialog, the system variables and the formats.

Usage: check_preftree.py [DATA_DIRECTORY]. Prints every fault with the path of its row; the exit status is 0 without any.
"""
import collections
import os
import re
import sys

from param_yaml import RealSize, Size, Wide, load

PAPERS, DIRECTORIES, RASTERS, CURSOR_COLOR, SAVE_FORMATS = 0x10000, 0x80000, 0x800000, 0x200000, 0x1000000
FILE_EXTENSIONS = {0x195C5: ".dwt", 0x195C6: ".dws", 0x195C7: ".log"}
KNOWN_IDS = {PAPERS, DIRECTORIES, RASTERS, CURSOR_COLOR, SAVE_FORMATS, *FILE_EXTENSIONS}
ROW_TYPES = {"Check", "Radio", "RadioCursor", "Color", "AcColor", "EditInt", "EditReal", "EditFile", "Edit",
             "EditMultiFile", "EditDir", "Combo"}
DEFAULT_TYPES = {"Check": int, "Radio": int, "RadioCursor": int, "Color": int, "AcColor": int, "EditInt": int,
                 "EditReal": float}
KEY_TYPES = {"ID": int, "Name": Wide, "Hidden": int, "Description": Wide, "SearchWords": Wide, "Type": Wide,
             "Image": int, "Key": str, "sysvar": int, "Section": str, "IFace": str, "Step": (int, float), "Value": int, "mask": int, "State": int, "Limits": (Size, RealSize), "Default": (int, float, Wide)}
INTEGERS = {"bool", "int8", "int16", "int32"}
VARIABLE_TYPES = {"Check": INTEGERS, "Radio": INTEGERS, "RadioCursor": INTEGERS, "EditInt": INTEGERS,
                  "AcColor": {"int16", "int32"}, "Color": {"int32"}, "EditReal": {"real"}, "Edit": {"string"}}
RANGES = {"bool": (0, 1), "int8": (-128, 127), "int16": (-32768, 32767), "int32": (-2**31, 2**31 - 1)}
ICONS = set(range(1, 39)) - {19}

Row = collections.namedtuple("Row", "path node item parent_item parent_node type")


def is_section(value):
    return isinstance(value, dict)


def text(node, key):
    """An 8-bit text of a node, or the empty text: wide text is not 8-bit text."""
    value = (node or {}).get(key, "")
    return value if type(value) is str else ""


def find_store(node, parent):
    """Key, section and store of an option, climbing one level at most; None where there is no store."""
    key = text(node, "Key")
    if not key and parent is not None:
        key = text(parent, "Key")
        if not key:
            return None
    if node.get("sysvar"):
        return key, "", "SysVar"
    section, store = text(node, "Section"), text(node, "IFace")
    if not section:
        section = text(parent, "Section")
        if not section:
            return None
    store = store or text(parent, "IFace")
    return (key, section, store) if store else None


class Walk:
    """The rows in the order of the dialog, with the nodes that stand for each item while it is built and afterwards."""

    def __init__(self, tree):
        self.rows, self.faults, self.names = [], [], collections.Counter()
        self.transparent = self.hidden = self.items = 0
        self.node_of_item = {}
        self.visit(tree, "", None, "PrefTree")

    def visit(self, node, name, parent_item, path):
        if node.get("Hidden"):
            self.hidden += 1
            self.count_hidden(node, name)
            return
        self.names[name] += 1
        item = parent_item
        if parent_item is not None and node.get("Name") == "":
            self.transparent += 1
        elif path != "PrefTree":
            self.items += 1
            item = self.items
            self.rows.append(Row(path, node, item, parent_item, self.node_of_item.get(parent_item), node.get("Type")))
        else:
            item = 0
        self.node_of_item[item] = node
        for child, value in node.items():
            if is_section(value):
                self.visit(value, child, item, f"{path}/{child}")

    def count_hidden(self, node, name):
        if name == "Choices":
            return
        self.names[name] += 1
        for child, value in node.items():
            if is_section(value):
                self.count_hidden(value, child)


class Check:
    """All rules, each a function over the rows of one walk."""

    def __init__(self, tree, variables, save_formats):
        self.walk = Walk(tree)
        self.variables, self.save_formats = variables, save_formats
        self.faults = []

    def fault(self, row, message):
        self.faults.append(f"{row.path}: {message}")

    def run(self):
        for row in self.walk.rows:
            self.check_keys(row)
            self.check_texts(row)
            if row.type is not None and row.type not in ROW_TYPES:
                self.fault(row, f"unknown Type {row.type}")
            elif row.type is None:
                self.check_section_row(row)
            else:
                self.check_option(row)
        self.check_names()
        self.check_sharing()
        self.check_radio_groups()
        self.check_coverage()
        return self.faults

    def check_keys(self, row):
        for key, value in row.node.items():
            if is_section(value):
                continue
            wanted = KEY_TYPES.get(key)
            if wanted is None:
                self.fault(row, f"unknown key {key}")
            elif not isinstance(value, wanted) or (wanted is str and isinstance(value, Wide)):
                self.fault(row, f"{key} has the wrong type {type(value).__name__}")
        if row.node.get("Image", 1) not in ICONS:
            self.fault(row, f"Image {row.node['Image']} is not in the icon table")
        if row.node.get("ID", PAPERS) not in KNOWN_IDS:
            self.fault(row, f"ID {row.node['ID']} has no meaning")

    def check_texts(self, row):
        for key in ("Name", "Description"):
            value = row.node.get(key, "")
            if not value or value != value.strip():
                self.fault(row, f"{key} is missing, empty or padded with blanks")
        if not row.node.get("Description", ".").endswith("."):
            self.fault(row, "Description does not end in a full stop")

    def check_section_row(self, row):
        pages = (PAPERS, DIRECTORIES, RASTERS)
        if row.node.get("ID") not in pages and not any(is_section(v) for v in row.node.values()):
            self.fault(row, "a row without Type, page or children has no use")

    def check_option(self, row):
        store = find_store(row.node, row.parent_node)
        if store is None or store[2] not in ("SysVar", "IProfile") or not store[0]:
            self.fault(row, f"no store can be found, only {store}")
            return
        later = find_store(row.node, self.walk.node_of_item.get(row.parent_item))
        if later != store:
            self.fault(row, f"read from {store} but written to {later}, because of a transparent neighbour")
        if store[2] == "SysVar":
            self.check_variable(row, store[0])
        self.check_default(row)
        self.check_limits(row)
        self.check_by_type(row)

    def check_variable(self, row, name):
        variable = self.variables.get(name)
        if variable is None:
            self.fault(row, f"there is no system variable {name}")
            return
        if variable["type"] not in VARIABLE_TYPES.get(row.type, ()):
            self.fault(row, f"a {row.type} row cannot keep its value in {name} of type {variable['type']}")
            return
        if variable.get("readonly"):
            self.fault(row, f"{name} is read-only")
        if row.type not in ("Radio", "RadioCursor") and row.node.get("Default") != variable["default"]:
            self.fault(row, f"Default differs from that of {name}")
        self.check_variable_range(row, name, variable)

    def check_variable_range(self, row, name, variable):
        widest = RANGES.get(variable["type"], (float("-inf"), float("inf")))
        low, high = variable.get("min", widest[0]), variable.get("max", widest[1])
        values = [row.node["Value"]] if row.type == "Radio" and "Value" in row.node else []
        values += list(row.node.get("Limits", (0, 0x7FFFFFFF) if row.type == "EditInt" else ()))
        values += [1, row.node.get("mask", 0)] if row.type == "Check" and "mask" not in row.node else []
        for value in values:
            if not low <= value <= high:
                self.fault(row, f"{value} is outside the range {low} to {high} of {name}")
        if row.node.get("mask", 0) & ~int(high if high < float("inf") else -1):
            self.fault(row, f"the mask reaches beyond the bits of {name}")

    def check_default(self, row):
        if row.type in ("Radio", "RadioCursor"):
            return
        default = row.node.get("Default")
        if row.type == "Combo" and row.node.get("ID") == SAVE_FORMATS:
            if type(default) is not int or not 1 <= default <= len(self.save_formats):
                self.fault(row, "Default is no number of a save format")
        elif type(default) is not DEFAULT_TYPES.get(row.type, Wide):
            self.fault(row, f"Default has the type {type(default).__name__}")

    def check_limits(self, row):
        kinds = {"EditInt": (Size, int, (0, 0x7FFFFFFF)), "EditReal": (RealSize, float, (0.0, 2147483647.0))}
        if row.type not in kinds:
            for key in ("Limits", "Step"):
                if key in row.node:
                    self.fault(row, f"{key} has no meaning for a {row.type} row")
            return
        kind, number, preset = kinds[row.type]
        limits, default, step = row.node.get("Limits", preset), row.node.get("Default"), row.node.get("Step", number(1))
        if "Limits" in row.node and type(limits) is not kind:
            self.fault(row, "Limits have the wrong type")
        elif limits[0] >= limits[1] or default is None or not limits[0] <= default <= limits[1]:
            self.fault(row, f"Default {default} is not within {limits[0]} to {limits[1]}")
        if type(step) is not number or step <= 0:
            self.fault(row, "Step has the wrong type or is not positive")
        if row.type == "EditReal" and any(round(v, 2) != v for v in (*limits, default or 0.0, step)):
            self.fault(row, "the editor shows two decimal places only")
        if ">" in row.node["Name"] and not row.node["Name"].split(">", 1)[1].strip():
            self.fault(row, "the unit after > is empty")

    def check_by_type(self, row):
        rules = {"Check": self.check_mask, "Combo": self.check_combo, "EditFile": self.check_file,
                 "EditMultiFile": self.check_file, "Color": self.check_color, "AcColor": self.check_palette}
        rules.get(row.type, lambda _row: None)(row)

    def check_mask(self, row):
        mask = row.node.get("mask")
        if mask is None:
            if row.node.get("Default") not in (0, 1):
                self.fault(row, "Default of a check box is neither 0 nor 1")
        elif mask <= 0 or mask & (mask - 1):
            self.fault(row, "mask is not one single bit")

    def check_combo(self, row):
        choices = row.node.get("Choices")
        if row.node.get("ID") == SAVE_FORMATS:
            if choices is not None:
                self.fault(row, "the list of save formats has no Choices")
            return
        if not choices or not choices.get("Hidden"):
            self.fault(row, "Choices are missing or not hidden")
            return
        names = {name.lower() for name, value in choices.items() if is_section(value)}
        if row.node.get("Default", "").lower() not in names:
            self.fault(row, "Default is none of the choices")
        for name, choice in choices.items():
            if is_section(choice) and not (isinstance(choice.get("Name"), Wide) and choice.get("Description")):
                self.fault(row, f"the choice {name} has no Name or Description")

    def check_file(self, row):
        extension = FILE_EXTENSIONS.get(row.node.get("ID"))
        if extension is None:
            self.fault(row, "no ID of a file filter is given, so every file would be refused")
            return
        for name in filter(None, row.node.get("Default", "").split(";")):
            if not name.lower().endswith(extension):
                self.fault(row, f"Default {name} does not end in {extension}")

    def check_color(self, row):
        if not 0 <= row.node.get("Default", -1) <= 0xFFFFFF:
            self.fault(row, "Default is no colour")

    def check_palette(self, row):
        if not 1 <= row.node.get("Default", 0) <= 255:
            self.fault(row, "Default is no colour of the palette")

    def check_names(self):
        for name, count in self.walk.names.items():
            if count > 1:
                self.faults.append(f"{count} rows have the name {name}")
            if name and not re.fullmatch(r"[A-Za-z][A-Za-z0-9]{0,31}", name):
                self.faults.append(f"{name} is no short identifier")

    def options(self):
        return [row for row in self.walk.rows if row.type is not None]

    def check_sharing(self):
        users = collections.defaultdict(list)
        for row in self.options():
            store = find_store(row.node, row.parent_node)
            if store is not None:
                users[store].append(row)
        for store, rows in users.items():
            self.check_users(store, rows)
        if ("Color3D", "Cursor", "IProfile") in users:
            self.faults.append("Color3D of the section Cursor belongs to the rule of the cursor colour")

    def check_users(self, store, rows):
        """Rows may share a value only as bits, or as the radio rows of one group."""
        plain = [row for row in rows if "mask" not in row.node]
        groups = {row.parent_item if row.type in ("Radio", "RadioCursor") else -row.item for row in plain}
        if len(groups) > 1 or (groups and len(plain) < len(rows)):
            self.fault(plain[0], f"{store} is shared with {rows[-1].path}")
        taken = {}
        for row in rows:
            mask = row.node.get("mask", 0)
            for other, used in taken.items():
                same_group = row.type == "Radio" and other[0] == row.parent_item
                if mask & used and not same_group:
                    self.fault(row, f"its bits of {store[0]} are taken by {other[1]}")
            taken[(row.parent_item, row.path)] = mask

    def check_radio_groups(self):
        groups = collections.defaultdict(list)
        for row in self.options():
            if row.type in ("Radio", "RadioCursor"):
                groups[row.parent_item].append(row)
        for rows in groups.values():
            self.check_group(rows)

    def check_group(self, rows):
        values = [row.node.get("Value", 0) for row in rows]
        if len(rows) < 2 or len(set(values)) < len(values) or len({row.type for row in rows}) > 1:
            self.fault(rows[0], "its group has one row only, equal values or mixed types")
        masks = {row.node.get("mask") for row in rows}
        store = find_store(rows[0].node, rows[0].parent_node)
        initial = 0
        if store is not None and store[2] == "SysVar" and store[0] in self.variables:
            initial = self.variables[store[0]]["default"]
        if masks != {None}:
            self.check_masked_group(rows, values, masks)
            initial &= next(iter(masks)) or 0
        if initial not in values:
            self.fault(rows[0], f"nothing of its group is selected at the start, for {initial} is no Value of it")
        if rows[0].type == "RadioCursor" and values != [0, 1, 2]:
            self.fault(rows[0], "cursor radios stand for 0, 1 and 2")

    def check_masked_group(self, rows, values, masks):
        if len(masks) > 1:
            self.fault(rows[0], "the masks of its group differ")
            return
        mask, seen = masks.pop(), 0
        masks.add(mask)
        for value in values:
            if value & ~mask or value & seen:
                self.fault(rows[0], f"Value {value} leaves the mask or overlaps another, and would be cleared by it")
            seen |= value

    def check_coverage(self):
        used = {row.type for row in self.options()}
        for missing in sorted(ROW_TYPES - used):
            self.faults.append(f"no row of Type {missing}")
        ids = collections.Counter(row.node.get("ID") for row in self.walk.rows)
        for wanted in sorted(KNOWN_IDS):
            if not ids[wanted]:
                self.faults.append(f"no row with ID 0x{wanted:X}")
            elif ids[wanted] > 1 and wanted not in FILE_EXTENSIONS:
                self.faults.append(f"more than one row with ID 0x{wanted:X}")
        if not self.walk.transparent or not self.walk.hidden:
            self.faults.append("no transparent or no hidden row")
        self.check_features()
        if len(self.options()) < 150:
            self.faults.append(f"{len(self.options())} options instead of at least 150")
        groups = sum(1 for row in self.walk.rows if row.parent_item == 0)
        if not 8 <= groups <= 12:
            self.faults.append(f"{groups} groups instead of 8 to 12")

    def check_features(self):
        """Each thing that a row can be told is shown by at least one option."""
        options = [row.node for row in self.options()]
        texts = [node["Default"] for node in options if isinstance(node.get("Default"), Wide)]
        shown = {"a unit": any(">" in node["Name"] for node in options),
                 "the folder %HISTORY%": "%HISTORY%" in texts,
                 "an environment variable": any(re.search("%(?!HISTORY%)[^%]+%", text) for text in texts)}
        shown.update({f"an own {key}": any(key in node for node in options) for key in ("Limits", "Step", "mask", "sysvar")})
        shown.update({f"an inherited {key}": any(not text(node, key) for node in options if not node.get("sysvar"))
                      for key in ("Key", "Section", "IFace")})
        self.faults += [f"no option has {feature}" for feature, found in shown.items() if not found]


def save_format_names(formats):
    """The names of the save formats in the order of their numbers."""
    listed, number = [], 1
    while f"Format{number}" in formats["SaveProjects"]:
        listed.append(formats["SaveProjects"][f"Format{number}"])
        number += 1
    return listed


def check(data):
    """Faults and figures of the tree in the given folder."""
    tree = load(os.path.join(data, "preftree.yaml"))["PrefTree"]
    variables = load(os.path.join(data, "sysvars.yaml"))["variables"]
    formats = load(os.path.join(data, "formats.yaml"))
    rules = Check(tree, variables, save_format_names(formats))
    return rules.run(), rules


def main(arguments):
    here = os.path.dirname(os.path.abspath(__file__))
    data = arguments[0] if arguments else os.path.join(here, "..", "..", "workbench", "data")
    faults, rules = check(data)
    for line in faults:
        print(line, file=sys.stderr)
    kinds = collections.Counter(row.type for row in rules.options())
    print(f"{len(rules.options())} options in {sum(r.parent_item == 0 for r in rules.walk.rows)} groups: "
          + ", ".join(f"{name} {count}" for name, count in sorted(kinds.items())))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
