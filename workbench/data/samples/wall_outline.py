"""Walls made of rectangles, with the openings taken out: their outlines and their filling."""


class Walls:
    def __init__(self, walls, openings):
        """Rectangles are (left, bottom, right, top)."""
        rectangles = walls + openings
        self.xs = sorted({value for r in rectangles for value in (r[0], r[2])})
        self.ys = sorted({value for r in rectangles for value in (r[1], r[3])})
        self.cells = {cell for r in walls for cell in self._cells(r)}
        self.cells -= {cell for r in openings for cell in self._cells(r)}

    def _cells(self, rectangle):
        left, bottom, right, top = rectangle
        for i in range(self.xs.index(left), self.xs.index(right)):
            for j in range(self.ys.index(bottom), self.ys.index(top)):
                yield i, j

    def fillings(self):
        """Rectangles that cover the walls without overlap: the runs of cells in each row."""
        for j in range(len(self.ys) - 1):
            start = None
            for i in range(len(self.xs)):
                filled = (i, j) in self.cells
                if filled and start is None:
                    start = i
                if not filled and start is not None:
                    yield self.xs[start], self.ys[j], self.xs[i], self.ys[j + 1]
                    start = None

    def outlines(self):
        """Closed loops of corners around the walls, the walls on their left."""
        following = {}
        for i, j in self.cells:
            sides = (((i, j), (i + 1, j), (i, j - 1)), ((i + 1, j), (i + 1, j + 1), (i + 1, j)),
                     ((i + 1, j + 1), (i, j + 1), (i, j + 1)), ((i, j + 1), (i, j), (i - 1, j)))
            for start, end, beyond in sides:
                if beyond not in self.cells:
                    following.setdefault(start, []).append(end)
        while following:
            yield [(self.xs[i], self.ys[j]) for i, j in corners_only(take_loop(following))]


def take_loop(following):
    start = min(following)
    loop = [start]
    while True:
        ends = following[loop[-1]]
        end = ends.pop()
        if not ends:
            del following[loop[-1]]
        if end == start:
            return loop
        loop.append(end)


def corners_only(loop):
    for before, here, after in zip(loop[-1:] + loop[:-1], loop, loop[1:] + loop[:1]):
        if (here[0] - before[0]) * (after[1] - here[1]) != (here[1] - before[1]) * (after[0] - here[0]):
            yield here
