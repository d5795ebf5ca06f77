"""A sheet with the kinds of objects that the workbench draws, one in each field."""

import math

from ezdxf import units
from ezdxf.enums import TextEntityAlignment as Align

from drawing_helpers import add_dimension, add_layers, add_text, new_drawing

LAYERS = [("Frame", 8, "CONTINUOUS"), ("Titles", 7, "CONTINUOUS"), ("Red", 1, "CONTINUOUS"), ("Green", 3, "CONTINUOUS"),
          ("Blue", 5, "CONTINUOUS"), ("Yellow", 2, "CONTINUOUS"), ("Dashed", 4, "DASHED")]
WIDTH, HEIGHT, COLUMNS = 60, 44, 4


def points(drawing, space):
    drawing.header["$PDMODE"] = 35
    drawing.header["$PDSIZE"] = 5
    for i in range(5):
        space.add_point((10 + 10 * i, 12 + 9 * (i % 2)), {"layer": "Yellow"})


def lines(_, space):
    for i, (name, weight) in enumerate((("CONTINUOUS", 0), ("DASHED", 25), ("CENTER", 35), ("DASHDOT", 50), ("CONTINUOUS", 140))):
        space.add_line((6, 6 + 6 * i), (54, 6 + 6 * i), {"layer": "Green", "linetype": name, "lineweight": weight})


def curves(_, space):
    space.add_circle((16, 17), 10, {"layer": "Red"})
    space.add_arc((16, 17), 6, 30, 270, dxfattribs={"layer": "Yellow"})
    space.add_ellipse((42, 17), (12, 5), 0.5, dxfattribs={"layer": "Blue"})


def polylines(_, space):
    space.add_lwpolyline([(6, 8, 0, 4), (24, 8, 4, 0), (24, 26, 0, 0)], format="xyse", dxfattribs={"layer": "Red"})
    space.add_lwpolyline([(32, 8, 1.5, 1.5, 0), (46, 8, 1.5, 1.5, 1), (46, 26, 1.5, 1.5, 0), (32, 26, 1.5, 1.5, 0)],
                         format="xyseb", close=True, dxfattribs={"layer": "Green"})


def splines(_, space):
    ends = [(6, 8), (16, 30), (28, 4), (40, 30), (54, 10)]
    space.add_spline(ends, dxfattribs={"layer": "Blue"})
    space.add_open_spline(ends, dxfattribs={"layer": "Yellow"})


def multiple_lines(_, space):
    space.add_mline([(8, 8), (8, 28), (34, 28), (50, 12)], dxfattribs={"layer": "Green", "scale_factor": 4})


def texts(drawing, space):
    drawing.styles.add("Slanted", font="DejaVuSans.ttf").dxf.oblique = 20
    add_text(space, "Plain %%c36 %%p0.1", (6, 26), 4.5, "Titles", Align.LEFT)
    space.add_text("Slanted", dxfattribs={"layer": "Red", "height": 4.5, "style": "Slanted", "oblique": 20}).set_placement((6, 17))
    add_text(space, "%%uTurned%%u", (32, 6), 4.5, "Yellow", Align.LEFT, 25)
    space.add_text("aligned", dxfattribs={"layer": "Green"}).set_placement((6, 7), (28, 11), align=Align.ALIGNED)


def paragraphs(_, space):
    text = space.add_mtext("A paragraph with {\\C1;colours}, {\\H1.5x;heights}, \\Llines\\l and stacks \\S1^2; \\S3/4;",
                           {"layer": "Titles", "char_height": 3.5, "width": 50})
    text.set_location((6, 31))


def hatches(_, space):
    for left, name in ((6, None), (23, "ANSI31"), (40, "HONEY")):
        hatch = space.add_hatch(color=3, dxfattribs={"layer": "Green"})
        if name:
            hatch.set_pattern_fill(name, color=4, scale=0.6)
        hatch.paths.add_polyline_path([(left, 6), (left + 14, 6), (left + 14, 30), (left, 30)], is_closed=True)
        hatch.paths.add_polyline_path([(left + 4, 12), (left + 10, 12), (left + 10, 24), (left + 4, 24)], is_closed=True)


def faces(_, space):
    space.add_solid([(6, 8), (22, 8), (6, 28), (22, 28)], {"layer": "Blue"})
    space.add_3dface([(28, 8), (42, 8), (46, 28), (32, 28)], {"layer": "Yellow"})
    space.add_3dface([(42, 8), (54, 12), (54, 24), (46, 28)], {"layer": "Yellow"})


def meshes(_, space):
    mesh = space.add_polymesh((7, 5), {"layer": "Green"})
    for i in range(7):
        for j in range(5):
            mesh.set_mesh_vertex((i, j), (8 + 6 * i + 2 * j, 8 + 4 * j + 3 * math.sin(i), 0))


def dimensions(_, space):
    space.add_lwpolyline([(10, 14), (50, 14), (50, 28), (10, 28)], close=True, dxfattribs={"layer": "Titles"})
    add_dimension(space, (10, 14), (50, 14), -7, 3.5, "Yellow")


def leaders(_, space):
    space.add_leader([(10, 8), (20, 22), (30, 22)], dxfattribs={"layer": "Red"}, override={"dimasz": 4})
    add_text(space, "a leader", (32, 20), 4, "Titles", Align.LEFT)
    tolerance = space.new_entity("TOLERANCE", {"layer": "Yellow", "insert": (8, 29), "content": "{\\Fgdt;j}%%v0.1%%vA"})
    tolerance.dxf.dimstyle = "Standard"


def blocks(drawing, space):
    bolt = drawing.blocks.new("BOLT")
    bolt.add_circle((0, 0), 3)
    bolt.add_line((-4, 0), (4, 0))
    bolt.add_line((0, -4), (0, 4))
    for i, layer in enumerate(("Red", "Green", "Blue")):
        space.add_blockref("BOLT", (12 + 18 * i, 26), {"layer": layer, "rotation": 15 * i})
    space.add_blockref("BOLT", (12, 10), {"layer": "Yellow", "column_count": 4, "column_spacing": 12})


def transparent(_, space):
    for i, colour in enumerate((1, 3, 5)):
        hatch = space.add_hatch(color=colour, dxfattribs={"layer": "Red"})
        hatch.transparency = 0.5
        hatch.paths.add_edge_path().add_arc((20 + 10 * i, 14 + 8 * (i % 2)), 9, 0, 360)


def frames(drawing, space):
    picture = drawing.add_image_def("photo.png", (400, 300))
    space.add_image(picture, (6, 8), (24, 18), dxfattribs={"layer": "Yellow"})
    space.add_wipeout([(36, 8), (54, 8), (54, 18), (45, 28), (36, 18)], dxfattribs={"layer": "Green"})


FIELDS = [("Points", points), ("Lines", lines), ("Circles, arcs, ellipses", curves), ("Polylines", polylines),
          ("Splines", splines), ("Multiple lines", multiple_lines), ("Texts", texts), ("Paragraphs", paragraphs),
          ("Hatches", hatches), ("Faces and areas", faces), ("Meshes", meshes), ("Dimensions", dimensions),
          ("Leaders, tolerances", leaders), ("Blocks and arrays", blocks), ("Transparency", transparent),
          ("Images, wipeouts", frames)]


def add_field(drawing, space, number, title, draw):
    x, y = WIDTH * (number % COLUMNS), -HEIGHT * (number // COLUMNS)
    before = len(space)
    draw(drawing, space)
    for entity in list(space)[before:]:
        entity.translate(x, y, 0)
    space.add_lwpolyline([(x, y), (x + WIDTH, y), (x + WIDTH, y + HEIGHT), (x, y + HEIGHT)], close=True,
                         dxfattribs={"layer": "Frame"})
    add_text(space, title, (x + WIDTH / 2, y + HEIGHT - 5), 3.5, "Titles")


def make():
    drawing = new_drawing(units.MM, 3)
    drawing.header["$LWDISPLAY"] = 1
    add_layers(drawing, LAYERS)
    space = drawing.modelspace()
    for number, (title, draw) in enumerate(FIELDS):
        add_field(drawing, space, number, title, draw)
    return drawing
