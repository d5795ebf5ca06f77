"""The blocks of the house plan: doors, windows and furniture, in millimetres, drawn on layer 0."""

import math


def box(block, left, bottom, right, top, radius=0):
    """A rectangle with rounded corners."""
    if radius == 0:
        block.add_lwpolyline([(left, bottom), (right, bottom), (right, top), (left, top)], close=True)
        return
    bulge = math.tan(math.pi / 8)
    r = radius
    block.add_lwpolyline([(left + r, bottom, 0), (right - r, bottom, bulge), (right, bottom + r, 0),
                          (right, top - r, bulge), (right - r, top, 0), (left + r, top, bulge), (left, top - r, 0),
                          (left, bottom + r, bulge)], format="xyb", close=True)


def door(block):
    """Hinged at the origin, 900 wide along x, opened upwards."""
    box(block, 0, 0, 40, 900)
    block.add_arc((0, 0), 900, 0, 90)


def window(block):
    """1000 wide, in a wall of thickness 1: to be scaled."""
    box(block, 0, 0, 1, 1)
    block.add_line((0, 0.4), (1, 0.4))
    block.add_line((0, 0.6), (1, 0.6))


def bed(block):
    box(block, 0, 0, 1600, 2050, 40)
    box(block, 80, 1550, 760, 1970, 80)
    box(block, 840, 1550, 1520, 1970, 80)
    block.add_lwpolyline([(0, 1400), (1600, 1400)])
    block.add_lwpolyline([(0, 1250, 0.12), (1600, 1250)], format="xyb")


def night_table(block):
    box(block, 0, 0, 450, 400, 30)
    block.add_circle((225, 200), 110)
    block.add_circle((225, 200), 25)


def wardrobe(block):
    box(block, 0, 0, 2000, 600)
    block.add_line((0, 300), (2000, 300))
    for i in range(16):
        block.add_line((80 + 120 * i, 60), (110 + 120 * i, 540))


def sofa(block):
    box(block, 0, 0, 2400, 950, 120)
    box(block, 220, 60, 1200, 700, 60)
    box(block, 1200, 60, 2180, 700, 60)
    block.add_line((220, 700), (220, 950))
    block.add_line((2180, 700), (2180, 950))


def armchair(block):
    box(block, 0, 0, 900, 850, 120)
    box(block, 160, 40, 740, 620, 60)


def low_table(block):
    box(block, 0, 0, 1100, 600, 80)
    box(block, 60, 60, 1040, 540, 50)


def chair(block):
    """Its middle is the origin, its back is above."""
    box(block, -220, -220, 220, 220, 60)
    block.add_lwpolyline([(-220, 160, -0.35), (220, 160)], format="xyb")


def dining_table(block):
    """A table with its six chairs: a block of blocks."""
    box(block, -900, -450, 900, 450, 60)
    for x in (-550, 0, 550):
        block.add_blockref("CHAIR", (x, 620))
        block.add_blockref("CHAIR", (x, -620), dxfattribs={"rotation": 180})


def stove(block):
    box(block, 0, 0, 600, 600)
    for x, y, radius in ((160, 160, 95), (440, 160, 75), (160, 440, 75), (440, 440, 95)):
        block.add_circle((x, y), radius)
        block.add_circle((x, y), radius * 0.45)


def sink(block):
    box(block, 0, 0, 900, 600)
    box(block, 60, 100, 480, 540, 60)
    block.add_circle((270, 320), 30)
    for i in range(5):
        block.add_line((540 + 70 * i, 120), (540 + 70 * i, 520))


def fridge(block):
    box(block, 0, 0, 600, 650)
    block.add_line((0, 570), (600, 570))
    block.add_line((120, 0), (480, 570))


def bath_tub(block):
    box(block, 0, 0, 800, 1800)
    box(block, 80, 80, 720, 1720, 280)
    block.add_circle((400, 1540), 35)


def toilet(block):
    box(block, -190, -180, 190, 0, 30)
    block.add_ellipse((0, -430), major_axis=(0, -270), ratio=0.68)
    block.add_ellipse((0, -430), major_axis=(0, -200), ratio=0.68)


def basin(block):
    box(block, 0, 0, 650, 480, 60)
    block.add_ellipse((325, 220), major_axis=(230, 0), ratio=0.65)
    block.add_circle((325, 220), 22)


def desk(block):
    box(block, 0, 0, 1600, 750)
    box(block, 500, 420, 1100, 700, 20)
    box(block, 560, 120, 1040, 280, 20)


def plant(block):
    block.add_circle((0, 0), 200)
    for i in range(9):
        angle = 2 * math.pi * i / 9
        block.add_lwpolyline([(0, 0, 0.5), (330 * math.cos(angle), 330 * math.sin(angle), 0.5)], format="xyb",
                             close=True)


BLOCKS = {
    "DOOR": door, "WINDOW": window, "BED": bed, "NIGHT_TABLE": night_table, "WARDROBE": wardrobe, "SOFA": sofa,
    "ARMCHAIR": armchair, "LOW_TABLE": low_table, "CHAIR": chair, "DINING_TABLE": dining_table, "STOVE": stove,
    "SINK": sink, "FRIDGE": fridge, "BATH_TUB": bath_tub, "TOILET": toilet, "BASIN": basin, "DESK": desk,
    "PLANT": plant,
}
