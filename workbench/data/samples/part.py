"""The mechanical part: a bearing bracket in two views, in millimetres."""

import math

from ezdxf import units
from ezdxf.enums import TextEntityAlignment as Align

from drawing_helpers import add_dimension, add_layers, add_text, new_drawing

LAYERS = [("Outline", 7, "CONTINUOUS"), ("Hidden", 4, "DASHED"), ("Centre lines", 1, "CENTER"),
          ("Section", 8, "CONTINUOUS"), ("Dimensions", 3, "CONTINUOUS"), ("Title", 7, "CONTINUOUS"),
          ("Text", 2, "CONTINUOUS")]
ROUND = math.tan(math.pi / 8)  # bulge of a quarter of a circle
HALF = 1.0                     # bulge of half a circle


def outline(space, points):
    return space.add_lwpolyline(points, format="xyb", close=True, dxfattribs={"layer": "Outline"})


def centre_lines(space, x, y, reach):
    attributes = {"layer": "Centre lines"}
    return [space.add_line((x - reach, y), (x + reach, y), attributes),
            space.add_line((x, y - reach), (x, y + reach), attributes)]


def slot(space, x, y, length, radius):
    """A slot lying along x about its middle."""
    return outline(space, [(x - length / 2, y - radius, 0), (x + length / 2, y - radius, HALF),
                           (x + length / 2, y + radius, 0), (x - length / 2, y + radius, HALF)])


def front_view(drawing, space):
    """The plate with its bore at the origin, the holes around it and two slots."""
    r, high = 12, 56
    corner = (80, -10)
    touch = math.atan2(corner[1], corner[0]) + math.acos(high / math.hypot(*corner))  # where the side meets the arc
    x, y = high * math.cos(touch), high * math.sin(touch)
    outline(space, [(-80 + r, -50, 0), (80 - r, -50, ROUND), (80, -50 + r, 0), (*corner, 0),
                            (x, y, math.tan((math.pi - 2 * touch) / 4)), (-x, y, 0), (-80, -10, 0),
                            (-80, -50 + r, ROUND)])
    bore = [space.add_circle((0, 0), radius, {"layer": "Outline"}) for radius in (18, 22, 38)]
    drawing.groups.new("BORE", "The bore with its chamfer and its boss.").extend(bore + centre_lines(space, 0, 0, 58))
    holes = []
    for i in range(6):
        angle = math.radians(30 + 60 * i)
        holes.append(space.add_circle((30 * math.cos(angle), 30 * math.sin(angle)), 3.3, {"layer": "Outline"}))
    circle = space.add_circle((0, 0), 30, {"layer": "Centre lines"})
    drawing.groups.new("BOLT_CIRCLE", "Six holes M6, clockwise from the upper right.").extend(
        holes[:1] + holes[:0:-1] + [circle])
    slots = []
    for x in (-60, 60):
        slots += [slot(space, x, -30, 14, 6)] + centre_lines(space, x, -30, 17)
    drawing.groups.new("SLOTS", "Both slots with their centre lines.").extend(slots)
    for side in (-40, 40):
        space.add_line((side, -50), (side, -38), {"layer": "Hidden"})


def side_view(space):
    """A cut through the middle of the plate, seen from the left."""
    x = 140
    outline(space, [(x, -50, 0), (x + 14, -50, 0), (x + 14, -41, -ROUND), (x + 17, -38, 0), (x + 34, -38, ROUND),
                    (x + 38, -34, 0), (x + 38, 34, ROUND), (x + 34, 38, 0), (x + 17, 38, -ROUND), (x + 14, 41, 0),
                    (x + 14, 56, 0), (x, 56, 0)])
    for y in (-18, 18):
        space.add_line((x + 2, y), (x + 36, y), {"layer": "Outline"})
        space.add_line((x, y + math.copysign(4, y)), (x + 2, y), {"layer": "Outline"})
        space.add_line((x + 36, y), (x + 38, y + math.copysign(4, y)), {"layer": "Outline"})
    for edge in (2, 36):
        space.add_line((x + edge, -18), (x + edge, 18), {"layer": "Outline"})
    for low, high, right in ((-36, -22, 36), (22, 36, 36), (-49, -38, 13), (38, 55, 13)):
        section_lines(space, x + 1, low, x + right, high)
    space.add_line((x - 10, 0), (x + 48, 0), {"layer": "Centre lines"})


def section_lines(space, left, bottom, right, top):
    """Lines at 45 degrees that fill a rectangle."""
    step = 4
    start = math.ceil((left - top) / step) * step
    while start < right - bottom:
        low = (max(left, start + bottom), max(bottom, left - start))
        high = (min(right, start + top), min(top, right - start))
        if high[0] - low[0] > 0.2:
            space.add_line(low, high, {"layer": "Section"})
        start += step


def dimensions(space):
    add_dimension(space, (-80, -50), (80, -50), -34, 5, "Dimensions")
    add_dimension(space, (-60, -36), (60, -36), -34, 5, "Dimensions")
    add_dimension(space, (-80, -50), (-80, -10), 18, 5, "Dimensions")
    add_dimension(space, (140, -50), (178, -50), -34, 5, "Dimensions")
    add_dimension(space, (178, -18), (178, 18), -14, 5, "Dimensions", "%%c36 H7")
    add_dimension(space, (178, -38), (178, 38), -28, 5, "Dimensions", "%%c76")
    leader = {"layer": "Dimensions"}
    space.add_lwpolyline([(28, 17.5), (62, 68), (120, 68)], dxfattribs=leader)
    add_text(space, "6 × M6, 60%%d apart", (64, 71), 5, "Dimensions", Align.LEFT)
    space.add_lwpolyline([(-71, -47), (-100, -84), (-128, -84)], dxfattribs=leader)
    add_text(space, "R12", (-120, -81), 5, "Dimensions", Align.LEFT)


def title(space):
    left, right, bottom, top = -150, 250, -150, 100
    space.add_lwpolyline([(left, bottom), (right, bottom), (right, top), (left, top)], close=True,
                         dxfattribs={"layer": "Title"})
    block_left, block_top = 90, -105
    space.add_lwpolyline([(block_left, bottom), (block_left, block_top), (right, block_top)],
                         dxfattribs={"layer": "Title"})
    space.add_line((block_left, -127), (right, -127), {"layer": "Title"})
    space.add_line((185, bottom), (185, -127), {"layer": "Title"})
    add_text(space, "Bearing bracket", (96, -120), 9, "Title", Align.LEFT)
    add_text(space, "Cast iron, machined", (96, -137), 5, "Title", Align.LEFT)
    add_text(space, "Tolerance %%p0.1", (96, -146), 4, "Title", Align.LEFT)
    add_text(space, "Scale 1:1", (190, -137), 5, "Title", Align.LEFT)
    add_text(space, "No. 4711-02", (190, -146), 4, "Title", Align.LEFT)
    add_text(space, "Front view", (0, 84), 7, "Text")
    add_text(space, "Section", (159, 84), 7, "Text")
    note = space.add_mtext("Notes\\PAll edges broken 0.5 by 45 degrees.\\PSurfaces not marked: as cast.",
                           {"layer": "Text", "char_height": 5, "width": 200})
    note.set_location((-142, -112))


def make():
    drawing = new_drawing(units.MM, 8)
    add_layers(drawing, LAYERS)
    space = drawing.modelspace()
    front_view(drawing, space)
    side_view(space)
    dimensions(space)
    title(space)
    return drawing
