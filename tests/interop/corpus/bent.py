"""Drawings of the other writers bent by hand, one table entry a way of bending: what files of the field look like after
transfers, editors, old programs and careless writers."""
import re

# A drawing of each kind that is bent: (folder, name).
R2000 = ("dxflib", "lines_r2000")
R12 = ("dxflib", "lines_r12")
TEXTS = ("dxflib", "texts_r12")
POLYLINES = ("dxflib", "polylines_r2000")
MAPPED = ("gdal", "roads")
BARE = ("admesh", "pyramid")


def pairs(text):
    lines = text.replace("\r\n", "\n").split("\n")
    return [[lines[i], lines[i + 1]] for i in range(0, len(lines) - 1, 2)]


def joined(tags, end="\n"):
    return "".join(f"{code}{end}{value}{end}" for code, value in tags)


def drop_codes(text, *codes):
    return joined([tag for tag in pairs(text) if tag[0].strip() not in codes])


def put_value(text, code, value, after=""):
    """The value of the first tag with that code behind the first tag with the value `after`."""
    tags, seen = pairs(text), not after
    for tag in tags:
        seen = seen or tag[1].strip() == after
        if seen and tag[0].strip() == code:
            tag[1] = value
            return joined(tags)
    raise ValueError(f"no group {code} behind {after}")


def without_section(text, name):
    tags, kept, skipping = pairs(text), [], False
    for i, tag in enumerate(tags):
        if tag == ["0", "SECTION"] or tag[1] == "SECTION":
            skipping = i + 1 < len(tags) and tags[i + 1][1].strip() == name
        if not skipping:
            kept.append(tag)
        if skipping and tag[1].strip() == "ENDSEC":
            skipping = False
    return joined(kept)


def records(tags):
    """The tags of each record, which begins with group 0."""
    result = []
    for tag in tags:
        if tag[0].strip() == "0" or not result:
            result.append([])
        result[-1].append(tag)
    return result


def behind_last_marker(text):
    """The common properties of each entity move behind the marker of its class."""
    moved = []
    for record in records(pairs(text)):
        if record[0][1].strip() in ("LINE", "POINT", "LWPOLYLINE", "POLYLINE", "VERTEX"):
            common = [tag for tag in record if tag[0].strip() in ("8", "62", "420", "370", "6")]
            record = [tag for tag in record if tag not in common] + common
        moved += record
    return joined(moved)


def twice_the_same_handle(text):
    tags = pairs(text)
    inside = [tag for tag in tags if tag[0].strip() == "5"][-2:]
    inside[1][1] = inside[0][1]
    return joined(tags)


BENDINGS = {
    "crlf": (R2000, lambda t: t.replace("\r\n", "\n").replace("\n", "\r\n")),
    "cr": (R2000, lambda t: t.replace("\r\n", "\n").replace("\n", "\r")),
    "no_end_of_file": (R2000, lambda t: re.sub(r"\s*0\r?\nEOF\s*$", "\n", t)),
    "blanks_round_end": (R2000, lambda t: re.sub(r"EOF\s*$", "  EOF  \n\n\n", t)),
    "no_last_line_end": (R2000, lambda t: t.rstrip()),
    "codes_in_columns": (R2000, lambda t: joined([[c.strip().rjust(3), v] for c, v in pairs(t)])),
    "codes_without_blanks": (R2000, lambda t: joined([[c.strip(), v] for c, v in pairs(t)])),
    "values_with_blanks": (R12, lambda t: joined([[c, v + "  "] for c, v in pairs(t)])),
    "lower_case_sections": (R12, lambda t: t.replace("ENTITIES", "Entities").replace("TABLES", "tables")),
    "no_handles": (R2000, lambda t: drop_codes(t, "5", "105", "330")),
    "no_header": (R2000, lambda t: without_section(t, "HEADER")),
    "no_header_no_handles": (R2000, lambda t: drop_codes(without_section(t, "HEADER"), "5", "105", "330")),
    "no_tables": (R12, lambda t: without_section(t, "TABLES")),
    "no_objects": (R2000, lambda t: without_section(t, "OBJECTS")),
    "no_blocks": (R12, lambda t: without_section(t, "BLOCKS")),
    "no_classes": (R2000, lambda t: without_section(t, "CLASSES")),
    "no_owners": (R2000, lambda t: drop_codes(t, "330")),
    "entities_alone": (R12, lambda t: "0\nSECTION\n2\nENTITIES\n" + t.replace("\r\n", "\n").split("ENTITIES\n")[-1]),
    "no_handle_seed": (R2000, lambda t: t.replace("$HANDSEED", "$HANDSEEX")),
    "small_handle_seed": (R2000, lambda t: put_value(t, "5", "1", "$HANDSEED")),
    "same_handle_twice": (R2000, twice_the_same_handle),
    "common_behind_marker": (R2000, behind_last_marker),
    "common_behind_marker_polyline": (POLYLINES, behind_last_marker),
    "no_markers": (R2000, lambda t: drop_codes(t, "100")),
    "comments": (R2000, lambda t: "999\na comment\n999\nanother\n" + t),
    "exponents": (R12, lambda t: put_value(t, "10", "1.5E+01", "ENTITIES")),
    "plus_sign": (R12, lambda t: put_value(t, "10", "+15.", "ENTITIES")),
    "no_point_before_decimals": (R12, lambda t: put_value(t, "10", "-.5", "ENTITIES")),
    "long_number": (R12, lambda t: put_value(t, "10", "12.123456789012345678901234567890", "ENTITIES")),
    "colour_zero": (R2000, lambda t: put_value(t, "62", "0", "ENTITIES")),
    "colour_beyond": (R2000, lambda t: put_value(t, "62", "257", "ENTITIES")),
    "layer_off": (R2000, lambda t: put_value(t, "62", "-3", "Waende")),
    "layer_unknown": (R2000, lambda t: put_value(t, "8", "nowhere", "ENTITIES")),
    "layer_other_case": (R2000, lambda t: put_value(t, "8", "WAENDE", "ENTITIES")),
    "linetype_unknown": (R2000, lambda t: put_value(t, "6", "NOSUCH", "ENTITIES")),
    "no_layer": (R12, lambda t: drop_codes(t, "8")),
    "text_control_codes": (TEXTS, lambda t: t.replace("Plan 1:50 %%c12", "%%uPlan%%u %%d%%p%%c%%%%%065")),
    "text_caret": (TEXTS, lambda t: t.replace("Plan 1:50 %%c12", "a^Ib^ c^^")),
    "text_empty": (TEXTS, lambda t: t.replace("Plan 1:50 %%c12", "")),
    "text_unicode": (TEXTS, lambda t: t.replace("Plan 1:50 %%c12", "\\U+00D8 12 \\M+1835F")),
    "mapped_far": (MAPPED, lambda t: put_value(t, "10", "3597000.25", "ENTITIES")),
    "bare_no_end": (BARE, lambda t: re.sub(r"\s*0\r?\nEOF\s*$", "\n", t)),
    "unknown_entity": (R2000, lambda t: t.replace("LINE\n", "THINGAMAJIG\n", 1) if "LINE\n" in t else t),
    "unknown_section": (R12, lambda t: "0\nSECTION\n2\nEXTRA\n1\nkept\n0\nENDSEC\n" + t),
}

# Code pages as old programs name them, and a text that each can hold.
CODE_PAGES = {
    "ansi_1250": ("cp1250", "Łazienka Kuchyňa"), "ANSI_1251": ("cp1251", "Кухня план"), "ANSI_1252": ("cp1252", "Küche größer"),
    "ANSI_1253": ("cp1253", "Κουζίνα"), "ANSI_1254": ("cp1254", "Mutfak İş"), "ANSI_1255": ("cp1255", "מטבח"),
    "ANSI_1256": ("cp1256", "مطبخ"), "ANSI_1257": ("cp1257", "Virtuvė"), "ANSI_1258": ("cp1258", "Bêp"),
    "ANSI_874": ("cp874", "ครัว"), "ANSI_932": ("cp932", "台所ソ表"), "ANSI_936": ("gbk", "厨房"), "ANSI_949": ("cp949", "부엌"),
    "ANSI_950": ("big5", "廚房功"), "gb2312": ("gb2312", "厨房"), "big5": ("big5", "廚房"), "dos437": ("cp437", "Küche ½"),
    "dos850": ("cp850", "Küche Ã"), "mac-roman": ("mac_roman", "Küche œ"), "utf-8": ("utf-8", "Küche 厨房"),
    "iso8859-1": ("latin-1", "Küche"), "johab": ("johab", "부엌"),
}


def in_code_page(text, name, codec, words):
    tags = pairs(text.replace("Plan 1:50 %%c12", words))
    for i, tag in enumerate(tags):
        if tag[1].strip() == "$DWGCODEPAGE":
            tags[i + 1][1] = name
            break
    else:
        end = next(i for i, tag in enumerate(tags) if tag[1].strip() == "ENDSEC")
        tags[end:end] = [["9", "$DWGCODEPAGE"], ["3", name]]
    return joined(tags).encode(codec)


def make(files, folder):
    def source(where):
        return (files / where[0] / f"{where[1]}.dxf").read_text(encoding="utf-8", errors="surrogateescape")

    for name, (where, bend) in BENDINGS.items():
        bent = bend(source(where))
        (folder / f"{name}.dxf").write_bytes(bent.encode("utf-8", errors="surrogateescape"))
    for name, (codec, words) in CODE_PAGES.items():
        (folder / f"code_page_{name}.dxf").write_bytes(in_code_page(source(TEXTS), name, codec, words))
