const { DxfWriter, point2d, point3d, Colors, LWPolylineFlags, Units, HatchBoundaryPaths, HatchPolylineBoundary, vertex, pattern,
    HatchPredefinedPatterns } = require("@tarikjabiri/dxf");

const drawing = (...steps) => () => {
    const made = new DxfWriter();
    made.setUnits(Units.Millimeters);
    for (const step of steps) step(made);
    return made.stringify();
};

const square = (size) => [[0, 0], [size, 0], [size, size], [0, size]];

function hatch(d) {
    const boundary = new HatchPolylineBoundary();
    for (const [x, y] of square(20)) boundary.add(vertex(x, y));
    const paths = new HatchBoundaryPaths();
    paths.addPolylineBoundary(boundary);
    d.addHatch(paths, pattern({ name: HatchPredefinedPatterns.ANSI31 }));
}

function blocks(d) {
    const block = d.addBlock("Stuhl");
    block.addLine(point3d(0, 0), point3d(4, 0));
    block.addCircle(point3d(2, 2), 1.5);
    d.addInsert("Stuhl", point3d(10, 10));
    d.addInsert("Stuhl", point3d(30, 10), { scaleFactor: { x: 2, y: -1, z: 1 }, rotationAngle: 30 });
}

require("./save")({
    lines: drawing((d) => d.addLine(point3d(0, 0), point3d(100, 100))),
    layers: drawing((d) => d.addLayer("Wände", Colors.Green, "Continuous"),
        (d) => d.addLine(point3d(0, 0), point3d(9, 2), { layerName: "Wände", colorNumber: Colors.Red })),
    polylines: drawing((d) => d.addLWPolyline(square(30).map(([x, y]) => ({ point: point2d(x, y), bulge: 0.2 })),
        { flags: LWPolylineFlags.Closed })),
    round: drawing((d) => d.addCircle(point3d(5, 5), 4), (d) => d.addArc(point3d(0, 0), 9, 10, 280),
        (d) => d.addEllipse(point3d(0, 0), point3d(20, 5), 0.3, 0, 5)),
    texts: drawing((d) => d.addText(point3d(0, 0), 5, "Küche"), (d) => d.addMText(point3d(0, 20), 3, "one\\Ptwo {\\C1;red}")),
    splines: drawing((d) => d.addSpline({ controlPoints: [point3d(0, 0), point3d(10, 20), point3d(20, -5), point3d(30, 9)] })),
    hatches: drawing(hatch),
    blocks: drawing(blocks),
    faces: drawing((d) => d.add3dFace(point3d(0, 0), point3d(9, 0), point3d(9, 9, 4), point3d(0, 9, 4))),
    dimensions: drawing((d) => d.addAlignedDim(point3d(0, 0), point3d(20, 5)), (d) => d.addRadialDim(point3d(0, 0), point3d(4, 4))),
    images: drawing((d) => d.addImage("./missing.png", "missing", point3d(1, 2), 10, 5, 1, 0)),
});
