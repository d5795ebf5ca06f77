#!/usr/bin/env python3
"""Makes the sample drawings house.dxf and part.dxf beside this file; the same bytes every time."""

import pathlib

import house
import part

FOLDER = pathlib.Path(__file__).resolve().parent

if __name__ == "__main__":
    house.make().saveas(FOLDER / "house.dxf")
    part.make().saveas(FOLDER / "part.dxf")
