"""The site: a plot with its road, paths and trees, in metres. House and part are attached to it by site.script."""

import math

from ezdxf import units
from ezdxf.enums import TextEntityAlignment as Align

from drawing_helpers import add_dimension, add_layers, add_text, new_drawing

LAYERS = [("Boundary", 1, "DASHDOT"), ("Road", 8, "CONTINUOUS"), ("Kerb", 7, "CONTINUOUS"), ("Trees", 94, "CONTINUOUS"),
          ("Paths", 9, "CONTINUOUS"), ("Dimensions", 3, "CONTINUOUS"), ("Text", 2, "CONTINUOUS"),
          ("Frame", 7, "CONTINUOUS")]
CORNERS = [(0, 0), (38, 2), (36, 30), (-2, 28)]
TREES = [(4, 23.5, 1.8), (9, 25, 1.4), (32, 25, 2.1), (33.5, 19, 1.5), (3.5, 5, 1.6), (34.5, 8, 1.3)]


def add_tree(drawing, space, x, y, radius):
    if "TREE" not in drawing.blocks:
        block = drawing.blocks.new("TREE")
        block.add_circle((0, 0), 1)
        block.add_circle((0, 0), 0.08)
        for i in range(8):
            angle = math.radians(45 * i + 10)
            block.add_line((0.2 * math.cos(angle), 0.2 * math.sin(angle)),
                           (0.85 * math.cos(angle), 0.85 * math.sin(angle)))
    space.add_blockref("TREE", (x, y), {"layer": "Trees", "xscale": radius, "yscale": radius, "zscale": radius})


def add_road(space):
    for y, layer in ((-2, "Kerb"), (-8, "Kerb"), (-3.5, "Road")):
        space.add_line((-8, y), (48, y + 56 * 2 / 38), {"layer": layer})
    add_text(space, "MILL LANE", (20, -3.9), 1.2, "Text", rotation=math.degrees(math.atan2(2, 38)))


def add_north(space):
    space.add_circle((43, 26), 2, {"layer": "Text"})
    space.add_lwpolyline([(42.3, 24.6), (43, 28), (43.7, 24.6), (43, 25.2)], close=True, dxfattribs={"layer": "Text"})
    add_text(space, "N", (43, 29), 1, "Text")


def make():
    drawing = new_drawing(units.M, 1)
    add_layers(drawing, LAYERS)
    space = drawing.modelspace()
    space.add_lwpolyline(CORNERS, close=True, dxfattribs={"layer": "Boundary"})
    add_road(space)
    for tree in TREES:
        add_tree(drawing, space, *tree)
    for x in (17, 18.5):
        space.add_line((x, x * 2 / 38), (x, 7), {"layer": "Paths"})
    add_dimension(space, CORNERS[0], CORNERS[3], 3, 0.7, "Dimensions", "28.07")
    add_dimension(space, CORNERS[1], CORNERS[2], -3, 0.7, "Dimensions", "28.07")
    add_north(space)
    space.add_lwpolyline([(-9, -10), (85, -10), (85, 33), (-9, 33)], close=True, dxfattribs={"layer": "Frame"})
    add_text(space, "SITE PLAN", (64, 30), 1.6, "Text")
    add_text(space, "Plan: house.dxf", (64, 27.5), 0.8, "Text", Align.MIDDLE_CENTER)
    add_text(space, "Detail, 80 times as large: part.dxf", (64, 26), 0.8, "Text", Align.MIDDLE_CENTER)
    return drawing
