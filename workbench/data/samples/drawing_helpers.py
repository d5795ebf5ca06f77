"""What both samples need: a new drawing with fixed dates, layers, dimensions of plain lines."""

import math

import ezdxf
from ezdxf.enums import TextEntityAlignment as Align


def new_drawing(units, dashes):
    """A drawing of format R2010, its dash patterns `dashes` times as long; the same every time that it is made."""
    ezdxf.options.write_fixed_meta_data_for_testing = True
    drawing = ezdxf.new("R2010", setup=["linetypes"], units=units)
    drawing.header["$LTSCALE"] = dashes
    return drawing


def add_layers(drawing, layers):
    for name, colour, linetype in layers:
        drawing.layers.add(name, color=colour, linetype=linetype)


def add_text(space, text, at, height, layer, align=Align.MIDDLE_CENTER, rotation=0):
    entity = space.add_text(text, height=height, rotation=rotation, dxfattribs={"layer": layer})
    entity.set_placement(at, align=align)
    return entity


def add_dimension(space, start, end, offset, height, layer, text=None):
    """A dimension of lines, strokes and a text, `offset` to the left of the way from start to end."""
    length = math.dist(start, end)
    along = ((end[0] - start[0]) / length, (end[1] - start[1]) / length)
    left = (-along[1], along[0])

    def place(point, sideways, forward=0.0):
        return (point[0] + left[0] * sideways + along[0] * forward,
                point[1] + left[1] * sideways + along[1] * forward)

    side = math.copysign(1, offset)
    attributes = {"layer": layer}
    space.add_line(place(start, offset, -height), place(end, offset, height), attributes)
    for point in (start, end):
        space.add_line(place(point, side * height), place(point, offset + side * height), attributes)
        space.add_line(place(point, offset - height / 2, -height / 2), place(point, offset + height / 2, height / 2),
                       attributes)
    middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
    angle = math.degrees(math.atan2(along[1], along[0]))
    above = 1.1 * height
    if not -89 < angle < 91:
        angle, above = angle - 180, -above
    add_text(space, text or f"{length:.0f}", place(middle, offset + above), height, layer, rotation=angle)
