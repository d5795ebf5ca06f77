#!/usr/bin/python3
"""What the drawings of other programs (files/) look like, object by object, beside what ezdxf's renderer draws of them: no
object is missing, and each is in its place."""
import json
import subprocess
import sys
import unittest

from ezdxf.addons.drawing import Frontend, RenderContext
from ezdxf.addons.drawing.backend import Backend
from ezdxf.addons.drawing.config import Configuration, LinePolicy
from ezdxf.math import BoundingBox2d, Vec3
from ezdxf.tools.fonts import FontMeasurements

from corpus import CORPUS, NO_PROPERTIES_BY_EZDXF, UNREAD_BY_EZDXF, name_of, read_somehow

TOOL = sys.argv.pop()
TEXTS = {"TEXT", "MTEXT", "ATTRIB", "ATTDEF"}
TOLERANCE = 0.02  # of the size of the drawing
# What looks different, and why; the first two by the kind of object. It draws neither images nor anything in their place,
# while we draw a frame with the name.
NOT_DRAWN_BY_EZDXF = {"IMAGE"}
# Lines without end have some length there, and count by all of it.
OF_ANOTHER_LENGTH = {"XLINE", "RAY"}
# Objects in their files: a vector without a second coordinate is none there, and it takes one of length 1 instead.
ELSEWHERE_FOR_EZDXF = {"dia/round": {"ELLIPSE"}}
FAILS_IN_EZDXF = {
    "fig2dev/text": "it wants a second point for each text that is aligned",
}


class Recorder(Backend):
    """Keeps the extents of what is drawn instead of drawing it."""

    def begin(self):
        self.box = BoundingBox2d()

    def add(self, points):
        self.box.extend([Vec3(point).vec2 for point in points])

    def draw_point(self, pos, properties):
        self.add([pos])

    def draw_line(self, start, end, properties):
        self.add([start, end])

    def draw_path(self, path, properties):
        self.add(path.approximate(32))

    def draw_filled_polygon(self, points, properties):
        self.add(points)

    def draw_text(self, text, transform, properties, cap_height):
        if not text.strip():
            return
        width = self.get_text_line_width(text, cap_height)
        self.add(transform.transform_vertices([Vec3(0, 0), Vec3(width, cap_height)]))

    def get_font_measurements(self, cap_height, font=None):
        return FontMeasurements(0, cap_height, cap_height / 2, cap_height / 4)

    def get_text_line_width(self, text, cap_height, font=None):
        return len(text) * cap_height

    def set_background(self, color):
        pass

    def clear(self):
        pass


def drawn_by_ezdxf(path):
    """The kind of each object and its box, or None."""
    document = read_somehow(path)
    recorder = Recorder()
    context = RenderContext(document)
    context.set_current_layout(document.modelspace())
    frontend = Frontend(context, recorder, Configuration.defaults().with_changes(line_policy=LinePolicy.SOLID))
    found = []
    for entity in document.modelspace():
        recorder.begin()
        frontend.draw_entities([entity])
        box = recorder.box
        found.append((entity.dxftype(), (*box.extmin, *box.extmax) if box.has_data else None))
    return found


def drawn_by_us(paths):
    done = subprocess.run([TOOL, *paths], capture_output=True, text=True, timeout=120)
    assert done.returncode == 0, done.stderr
    return [json.loads(line) for line in done.stdout.splitlines()]


def size_of(boxes):
    sides = [side for box in boxes if box for side in (box[2] - box[0], box[3] - box[1])]
    corners = [corner for box in boxes if box for corner in box]
    return max(sides + [max(corners) - min(corners)]) if corners else 0


def is_in_place(kind, ours, theirs, size):
    if kind not in TEXTS:
        return all(abs(a - b) <= TOLERANCE * size for a, b in zip(ours, theirs))
    slack = max(theirs[2] - theirs[0], theirs[3] - theirs[1], TOLERANCE * size)
    return (ours[0] <= theirs[2] + slack and theirs[0] <= ours[2] + slack and ours[1] <= theirs[3] + slack and
            theirs[1] <= ours[3] + slack)


class Pictures(unittest.TestCase):
    def assert_same_look(self, what, ours, other, size, elsewhere):
        kind, theirs = other
        if theirs is None:
            self.assertTrue(ours is None or kind in NOT_DRAWN_BY_EZDXF, f"{what} is drawn by us alone")
            return
        self.assertIsNotNone(ours, f"{what} is missing")
        if kind not in elsewhere:
            self.assertTrue(is_in_place(kind, ours, theirs, size), f"{what} is at {ours} instead of {theirs}")

    def assert_same_picture(self, path, ours, theirs):
        self.assertEqual(len(ours), len(theirs))
        size = size_of([box for _, box in theirs])
        elsewhere = OF_ANOTHER_LENGTH | ELSEWHERE_FOR_EZDXF.get(name_of(path), set())
        for number, (mine, other) in enumerate(zip(ours, theirs)):
            self.assert_same_look(f"object {number}, {other[0]},", mine, other, size, elsewhere)

    def test_no_object_is_missing_and_each_is_in_its_place(self):
        left_out = {**NO_PROPERTIES_BY_EZDXF, **UNREAD_BY_EZDXF, **FAILS_IN_EZDXF}
        paths = [path for path in CORPUS if name_of(path) not in left_out]
        self.assertGreater(len(paths), 140)
        seen = 0
        for path, ours in zip(paths, drawn_by_us(paths)):
            with self.subTest(name_of(path)):
                theirs = drawn_by_ezdxf(path)
                self.assert_same_picture(path, ours, theirs)
                seen += sum(box is not None for _, box in theirs)
        self.assertGreater(seen, 1000, "too few objects were compared")


if __name__ == "__main__":
    unittest.main(verbosity=1)
