"""The house plan: one floor of 12 by 9 metres, in millimetres."""

from ezdxf import units
from ezdxf.enums import TextEntityAlignment as Align

from drawing_helpers import add_dimension, add_layers, add_text, new_drawing
from house_blocks import BLOCKS
from wall_outline import Walls

LAYERS = [("Walls", 7, "CONTINUOUS"), ("Wall filling", 8, "CONTINUOUS"), ("Doors", 30, "CONTINUOUS"),
          ("Windows", 4, "CONTINUOUS"), ("Furniture", 3, "CONTINUOUS"), ("Sanitary", 140, "CONTINUOUS"),
          ("Plants", 94, "CONTINUOUS"), ("Rooms", 2, "CONTINUOUS"), ("Dimensions", 9, "CONTINUOUS"),
          ("Axes", 1, "CENTER"), ("Frame", 7, "CONTINUOUS"), ("Notes", 6, "CONTINUOUS")]

OUTER, INNER = 300, 120
WALLS = [(0, 0, 12000, OUTER), (0, 8700, 12000, 9000), (0, 0, OUTER, 9000), (11700, 0, 12000, 9000),
         (300, 5200, 11700, 5320), (6900, 300, 7020, 8700), (4200, 5320, 4320, 8700), (7020, 6520, 9300, 6640),
         (9300, 5320, 9420, 8700)]
PASSAGE = (6900, 5320, 7020, 6520)
# Openings: (left, bottom, right, top) in the wall.
WINDOWS = [(1200, 0, 3600, 300), (4300, 0, 6100, 300), (8400, 0, 10400, 300), (1200, 8700, 3000, 9000),
           (7700, 8700, 8500, 9000), (9900, 8700, 11300, 9000), (0, 1700, 300, 4100), (11700, 1500, 12000, 3300)]
# Doors: opening, hinge, rotation, mirrored.
DOORS = [((5100, 8700, 6000, 9000), (5100, 8700), 0, True), ((4200, 7300, 4320, 8200), (4200, 7300), 90, False),
         ((5200, 5200, 6100, 5320), (5200, 5200), 0, True), ((7300, 5200, 8200, 5320), (7300, 5200), 0, True),
         ((8150, 6520, 9050, 6640), (8150, 6520), 0, True), ((9300, 5420, 9420, 6320), (9420, 5420), 90, True)]

# Block, place, rotation; a group takes them in this order.
FURNITURE = {
    "LIVING_CORNER": ("Where one sits of an evening.",
                      [("SOFA", (650, 4950), 270), ("LOW_TABLE", (2500, 3200), 90), ("ARMCHAIR", (1350, 1300), 180),
                       ("ARMCHAIR", (3000, 1300), 180)]),
    "DINING_PLACE": ("Table and chairs.", [("DINING_TABLE", (5300, 2300), 90)]),
    "KITCHEN_UNITS": ("Along the outer wall, in the order of work.",
                      [("FRIDGE", (950, 5330), 90), ("SINK", (900, 6300), 90), ("STOVE", (900, 7300), 90)]),
    "BEDROOM_SET": ("Bed between its two tables.",
                    [("NIGHT_TABLE", (7650, 350), 0), ("BED", (9750, 2380), 180), ("NIGHT_TABLE", (9800, 350), 0)]),
    "STUDY": ("Desk and chair.", [("DESK", (9750, 7900), 0), ("CHAIR", (10550, 7650), 180)]),
}
SANITARY = [("BATH_TUB", (7060, 6860), 0), ("TOILET", (8350, 8700), 0), ("BASIN", (9290, 7650), 90)]
LONE = [("WARDROBE", (9500, 4560), 0), ("PLANT", (6400, 700), 15), ("PLANT", (4700, 5750), 40),
        ("PLANT", (11250, 800), 70)]
ROOMS = [("Living room", 32.3, (4000, 4350)), ("Bedroom", 22.9, (9000, 3500)), ("Kitchen", 13.2, (2600, 7100)),
         ("Hall", 11.6, (5700, 7100)), ("Bath", 4.7, (8400, 7300)), ("Study", 7.7, (10600, 6900))]


def add_walls(drawing, space):
    openings = WINDOWS + [PASSAGE] + [door[0] for door in DOORS]
    walls = Walls(WALLS, openings)
    for left, bottom, right, top in walls.fillings():
        space.add_solid([(left, bottom), (right, bottom), (left, top), (right, top)], {"layer": "Wall filling"})
    lines = [space.add_lwpolyline(loop, close=True, dxfattribs={"layer": "Walls"}) for loop in walls.outlines()]
    drawing.groups.new("ALL_WALLS", "The outlines of the walls.").extend(lines)


def add_openings(space):
    for left, bottom, right, top in WINDOWS:
        upright = top - bottom > right - left
        space.add_blockref("WINDOW", (right if upright else left, bottom),
                           {"layer": "Windows", "rotation": 90 if upright else 0,
                            "xscale": top - bottom if upright else right - left,
                            "yscale": right - left if upright else top - bottom})
    for _, hinge, rotation, mirrored in DOORS:
        space.add_blockref("DOOR", hinge, {"layer": "Doors", "rotation": rotation, "yscale": -1 if mirrored else 1})


def add_furniture(drawing, space):
    def put(name, place, rotation, layer):
        return space.add_blockref(name, place, {"layer": layer, "rotation": rotation})

    for group, (description, pieces) in FURNITURE.items():
        drawing.groups.new(group, description).extend([put(*piece, "Furniture") for piece in pieces])
    bath = [put(*piece, "Sanitary") for piece in SANITARY]
    drawing.groups.new("BATHROOM", "Tub, toilet and basin.").extend(bath)
    for piece in LONE:
        put(*piece, "Plants" if piece[0] == "PLANT" else "Furniture")


def add_rooms(space):
    for name, area, (x, y) in ROOMS:
        add_text(space, name, (x, y), 220, "Rooms")
        add_text(space, f"{area:.1f} m²", (x, y - 330), 160, "Rooms")


def add_dimensions(space):
    def chain(points, offset):
        for start, end in zip(points, points[1:]):
            add_dimension(space, start, end, offset, 170, "Dimensions")

    chain([(x, 0) for x in (0, 1200, 3600, 4300, 6100, 8400, 10400, 12000)], -600)
    chain([(0, 0), (12000, 0)], -1200)
    chain([(12000, y) for y in (0, 1500, 3300, 9000)], -600)
    chain([(12000, 0), (12000, 9000)], -1200)
    chain([(x, 9000) for x in (0, 4200, 6900, 9300, 12000)], 600)


def add_axes(space):
    for i, y in enumerate((150, 5260, 8850)):
        space.add_line((-1500, y), (12500, y), {"layer": "Axes"})
        space.add_circle((-1750, y), 250, {"layer": "Axes", "linetype": "CONTINUOUS"})
        add_text(space, "ABC"[i], (-1750, y), 240, "Axes")


def add_frame(space):
    space.add_lwpolyline([(-2600, -3600), (14400, -3600), (14400, 10900), (-2600, 10900)], close=True,
                         dxfattribs={"layer": "Frame", "const_width": 0})
    space.add_line((-2600, -2100), (14400, -2100), {"layer": "Frame"})
    for x in (4500, 9800):
        space.add_line((x, -3600), (x, -2100), {"layer": "Frame"})
    add_text(space, "House by the lake", (-2200, -2750), 420, "Frame", Align.LEFT)
    add_text(space, "Ground floor plan", (-2200, -3300), 260, "Frame", Align.LEFT)
    note = space.add_mtext("All measures in millimetres.\\PWalls: brick, 300 outside and 120 inside.\\P"
                           "Door leaves 900 wide.", {"layer": "Notes", "char_height": 180, "width": 0})
    note.set_location((4700, -2330))
    add_text(space, "Scale 1:50", (10100, -2750), 300, "Frame", Align.LEFT)
    add_text(space, "Sheet 1 of 1", (10100, -3300), 260, "Frame", Align.LEFT)


def make():
    drawing = new_drawing(units.MM, 300)
    add_layers(drawing, LAYERS)
    for name, draw in BLOCKS.items():
        draw(drawing.blocks.new(name))
    space = drawing.modelspace()
    add_walls(drawing, space)
    add_openings(space)
    add_furniture(drawing, space)
    add_rooms(space)
    add_dimensions(space)
    add_axes(space)
    add_frame(space)
    return drawing
