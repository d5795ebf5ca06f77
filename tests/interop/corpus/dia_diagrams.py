"""Diagrams as the XML of a diagram program."""

HEAD = ('<?xml version="1.0" encoding="UTF-8"?>\n<dia:diagram xmlns:dia="http://www.lysator.liu.se/~alla/dia/">'
        '<dia:layer name="{layer}" visible="true" active="true">')
TAIL = "</dia:layer></dia:diagram>\n"


def attribute(name, kind, value):
    return f'<dia:attribute name="{name}"><dia:{kind} val="{value}"/></dia:attribute>'


def thing(kind, number, *attributes):
    return f'<dia:object type="{kind}" version="0" id="O{number}">' + "".join(attributes) + "</dia:object>"


def points(name, *pairs):
    return f'<dia:attribute name="{name}">' + "".join(f'<dia:point val="{x},{y}"/>' for x, y in pairs) + "</dia:attribute>"


def box(number, x, y, w, h, colour="#000000"):
    return thing("Standard - Box", number, attribute("elem_corner", "point", f"{x},{y}"),
                 attribute("elem_width", "real", w), attribute("elem_height", "real", h),
                 attribute("border_color", "color", colour))


def line(number, a, b, colour="#000000", style=0):
    return thing("Standard - Line", number, points("conn_endpoints", a, b), attribute("line_color", "color", colour),
                 attribute("line_style", "enum", style))


def ellipse(number, x, y, w, h):
    return thing("Standard - Ellipse", number, attribute("elem_corner", "point", f"{x},{y}"),
                 attribute("elem_width", "real", w), attribute("elem_height", "real", h))


def text(number, x, y, words):
    return thing("Standard - Text", number, attribute("obj_pos", "point", f"{x},{y}"),
                 f'<dia:attribute name="text"><dia:composite type="text"><dia:attribute name="string"><dia:string>#{words}#'
                 f'</dia:string></dia:attribute>{attribute("height", "real", 0.8)}{attribute("pos", "point", f"{x},{y}")}'
                 f'</dia:composite></dia:attribute>')


def polygon(number, *pairs):
    return thing("Standard - Polygon", number, points("poly_points", *pairs))


def arc(number, a, b, bend):
    return thing("Standard - Arc", number, points("conn_endpoints", a, b), attribute("curve_distance", "real", bend))


def curve(number, *pairs):
    return thing("Standard - BezierLine", number, points("bez_points", *pairs))


DIAGRAMS = {
    "boxes": ("Plan", box(0, 1, 1, 4, 2) + box(1, 7, 1, 4, 2, "#ff0000") + line(2, (5, 2), (7, 2))),
    "round": ("Kreise", ellipse(0, 2, 2, 5, 5) + ellipse(1, 9, 2, 6, 3)),
    "words": ("Text", text(0, 3, 3, "Küche") + text(1, 3, 5, "Bad &amp; WC")),
    "arcs": ("0", arc(0, (1, 1), (6, 1), 1.5) + arc(1, (1, 5), (6, 5), -1)),
    "shapes": ("Formen", polygon(0, (1, 1), (5, 1), (3, 6)) + curve(1, (1, 9), (3, 12), (6, 6), (9, 9))),
    "dashes": ("Linien", "".join(line(i, (1, 1 + i), (12, 1 + i), "#0000ff", i) for i in range(5))),
}


def diagram(name):
    layer, objects = DIAGRAMS[name]
    return HEAD.format(layer=layer) + objects + TAIL
