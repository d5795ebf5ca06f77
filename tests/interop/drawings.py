# Drawings made by ezdxf, our tool that reads and changes them, and ways to look at what it wrote, for the judges of this
# folder.
import re
import subprocess
import zlib

import ezdxf
import ezdxf.bbox

VERSIONS = ["R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018"]


def tool_of(program):
    def tool(*arguments):
        done = subprocess.run([program, *map(str, arguments)], capture_output=True, text=True)
        assert done.returncode == 0, done.stderr
        return done.stdout

    return tool


def build(version):
    """A drawing with a bit of everything."""
    doc = ezdxf.new(version)
    doc.encoding = "cp1252" if version < "R2007" else "utf8"
    space = doc.modelspace()
    doc.layers.add("Mauern", color=3)
    part = doc.blocks.new("PART")
    part.add_circle((1, 1), 1)
    nested = doc.blocks.new("NESTED")
    nested.add_blockref("PART", (10, 0))
    nested.add_line((0, 0), (3, 4))
    entities = [
        space.add_line((0, 0), (10, 5), dxfattribs={"layer": "Mauern"}),
        space.add_circle((20, 20), 5, dxfattribs={"color": 1}),
        space.add_arc((0, 30), 4, 30, 200),
        space.add_point((-7, -8)),
        space.add_text("Küche größer", dxfattribs={"height": 1}),
        space.add_blockref("NESTED", (40, 10)),
    ]
    space.add_polyline2d([(0, 0, 0, 0, 0.5), (5, 0, 0, 0, 0), (5, 5, 0, 0, 0)], format="xyseb")
    if version != "R12":
        entities.append(space.add_lwpolyline([(50, 0, 1), (60, 0, 0)], format="xyb", close=True))
        entities.append(space.add_mtext("Zeile eins\\PZeile zwei"))
        doc.groups.new("Erste", description="die erste").extend(entities[:3])
        doc.groups.new("Zweite", selectable=False).extend(entities[2:5])
        doc.layout("Layout1").add_viewport((5, 5), (10, 10), (0, 0), 20)
        doc.header.custom_vars.append("Projekt", "Haus am See")
        doc.header.custom_vars.append("Projekt", "zweimal")
        doc.add_xref_def("grund/plan.dxf", "Plan")
        space.add_blockref("Plan", (1, 2))
    return doc


def assert_extents(test, found, entities, delta):
    """What we report are the extents that ezdxf finds for these entities."""
    box = ezdxf.bbox.extents(entities)
    test.assertTrue(box.has_data)
    wanted = [box.extmin.x, box.extmin.y, box.extmax.x, box.extmax.y]
    for ours, theirs in zip(found["extmin"][:2] + found["extmax"][:2], wanted):
        test.assertAlmostEqual(ours, theirs, delta=delta)


def raw_tags(path, encoding):
    with open(path, encoding=encoding) as stream:
        lines = stream.read().split("\n")
    return [(int(lines[i]), lines[i + 1]) for i in range(0, len(lines) - 1, 2)]


def picture(path):
    """The drawing operators of LibreCAD's page."""
    out = path.with_suffix(".pdf")
    subprocess.run(["librecad", "dxf2pdf", "-a", "-o", str(out), str(path)], timeout=60, capture_output=True,
                   check=True)
    operators = b""
    for stream in re.findall(rb"stream\r?\n(.*?)endstream", out.read_bytes(), re.S):
        try:
            operators += zlib.decompress(stream)
        except zlib.error:
            pass
    return re.findall(rb" [lc]\n", operators)
