"""What solid modellers, mapping tools, plotting and board programs are given: one entry a drawing."""
import json
import math

SCAD = {
    "square": "square([30, 20]);",
    "rings": "difference() { circle(20, $fn=60); circle(10, $fn=30); }",
    "gear": "union() { circle(20, $fn=48); for (a = [0:30:330]) rotate(a) translate([18, -2]) square([6, 4]); }",
    "letters": 'offset(1) for (i = [0:4]) translate([12 * i, 0]) polygon([[0,0],[8,0],[4,10 + i]]);',
    "cut": "projection(cut=true) translate([0,0,-3]) sphere(10, $fn=40);",
    "minkowski": "minkowski() { square([20, 10]); circle(3, $fn=24); }",
}

STL_TRIANGLES = {
    "strip": [((i, 0, 0), (i + 1, 0, i), (i, 1, 2)) for i in range(8)],
    "pyramid": [((0, 0, 0), (10, 0, 0), (5, 5, 8)), ((10, 0, 0), (10, 10, 0), (5, 5, 8)),
                ((10, 10, 0), (0, 10, 0), (5, 5, 8)), ((0, 10, 0), (0, 0, 0), (5, 5, 8)),
                ((0, 0, 0), (10, 10, 0), (10, 0, 0)), ((0, 0, 0), (0, 10, 0), (10, 10, 0))],
    "fan": [((0, 0, 0), (math.cos(i), math.sin(i), 0.1 * i), (math.cos(i + 1), math.sin(i + 1), 0.1 * i + 0.1))
            for i in range(12)],
}


def stl(name):
    rows = [f"solid {name}"]
    for triangle in STL_TRIANGLES[name]:
        rows += ["facet normal 0 0 0", "outer loop"]
        rows += ["vertex %g %g %g" % point for point in triangle]
        rows += ["endloop", "endfacet"]
    return "\n".join(rows + [f"endsolid {name}", ""])


def feature(kind, coordinates, **properties):
    return {"type": "Feature", "properties": properties, "geometry": {"type": kind, "coordinates": coordinates}}


MAPS = {
    "points": [feature("Point", [i * 1.5, i * i], Layer="Bäume") for i in range(10)],
    "roads": [feature("LineString", [[0, 0], [10, 5], [30, 5]], Layer="Straßen"),
              feature("MultiLineString", [[[0, 9], [9, 9]], [[1, 8], [8, 8]]], Layer="Wege")],
    "parcels": [feature("Polygon", [[[0, 0], [20, 0], [20, 20], [0, 20], [0, 0]], [[5, 5], [9, 5], [9, 9], [5, 5]]],
                        Layer="Parzellen")],
    "far": [feature("LineString", [[3597000.25, 6029500.5], [3597100.125, 6029580.75]], Layer="Netz")],
    "labels": [feature("Point", [5, 5], Layer="Text", OGR_STYLE='LABEL(f:"Arial",s:2.5g,t:"Höhe 12,5 m",a:30)')],
    "styled": [feature("LineString", [[0, 0], [9, 4]], Layer="0", OGR_STYLE='PEN(c:#ff0000,w:5px,p:"4g 2g")'),
               feature("Polygon", [[[0, 0], [6, 0], [3, 6], [0, 0]]], Layer="F", OGR_STYLE="BRUSH(fc:#00ff00)")],
    "heights": [feature("LineString", [[0, 0, 5], [10, 0, 6], [10, 10, 8]], Layer="Hang")],
    "none": [],
}


def geojson(name):
    return json.dumps({"type": "FeatureCollection", "features": MAPS[name]})


PLOTS = {
    "sine": "plot sin(x) title 'sinus'",
    "two": "set grid; plot [-3:3] x**2 lw 2, x**3 dashtype 2",
    "points": "set samples 20; plot [0:10] sqrt(x) with points pt 6, x/3 with impulses",
    "labels": "set title 'Müller & Söhne'; set xlabel 'Länge [m]' ; set label 'here' at 2,2 rotate by 45; plot x",
    "polar": "set polar; plot 1 + cos(t)",
    "empty": "unset border; unset tics; plot [0:1][0:1] NaN notitle",
}
BOARD_HEAD = ('PCB["" 600000 500000]\nGrid[10000.0 0 0 0]\nCursor[0 0 0.0]\nPolyArea[3100.006200]\nThermal[0.500000]\n'
              'DRC[1200 900 1000 700 1500 1000]\nFlags("nameonpcb,clearnew,snappin")\nGroups("1,c:2,s")\n'
              'Styles["Signal,1000,7874,3150,2000"]\n')
BOARDS = {
    "tracks": 'Layer(1 "component")\n(\nLine[100000 100000 300000 100000 2500 2000 "clearline"]\n'
              'Arc[300000 150000 50000 50000 2500 2000 90 180 "clearline"]\n)\nLayer(2 "solder")\n(\n'
              'Line[100000 200000 300000 250000 1000 2000 "clearline"]\n)\n',
    "vias": 'Via[200000 200000 6000 2000 0 2800 "" ""]\nVia[260000 200000 8000 2000 0 4000 "" ""]\n'
            'Layer(1 "component")\n(\n)\nLayer(2 "solder")\n(\n)\n',
    "area": 'Layer(1 "component")\n(\nPolygon("clearpoly")\n(\n[10000 10000] [90000 10000] [90000 60000]\n)\n)\n'
            'Layer(2 "solder")\n(\n)\n',
}


def board(name):
    return BOARD_HEAD + BOARDS[name]
