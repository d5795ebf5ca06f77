const Drawing = require("dxf-writer");

const drawing = (...steps) => () => {
    const made = new Drawing();
    made.setUnits("Millimeters");
    for (const step of steps) step(made);
    return made.toDxfString();
};

require("./save")({
    lines: drawing((d) => d.drawLine(0, 0, 100, 50), (d) => d.drawLine3d(0, 0, 0, 10, 20, 30)),
    layers: drawing((d) => d.addLayer("Wand", Drawing.ACI.GREEN, "CONTINUOUS").setActiveLayer("Wand").drawRect(0, 0, 40, 30),
        (d) => d.addLayer("Achse", Drawing.ACI.RED, "DOTTED").setActiveLayer("Achse").drawLine(-5, 15, 45, 15)),
    round: drawing((d) => d.drawCircle(50, -30, 25), (d) => d.drawArc(0, 0, 10, 30, 200),
        (d) => d.drawEllipse(0, 0, 20, 5, 0.4)),
    texts: drawing((d) => d.drawText(10, 0, 10, 0, "Hello"), (d) => d.drawText(0, -20, 5, 45, "Grün", "center", "middle")),
    polylines: drawing((d) => d.drawPolyline([[0, 0], [10, 0, 0.5], [10, 10]], true),
        (d) => d.drawPolyline3d([[0, 0, 0], [5, 5, 5], [9, 0, 2]]), (d) => d.drawPolygon(0, 30, 6, 8)),
    splines: drawing((d) => d.drawSpline([[0, 0], [10, 10], [20, 10], [30, 0]])),
    faces: drawing((d) => d.drawFace(0, 0, 0, 10, 0, 0, 10, 10, 5, 0, 10, 5), (d) => d.drawPoint(3, 4)),
    colours: drawing((d) => d.setTrueColor(0x336699), (d) => d.drawLine(0, 0, 9, 9)),
    many: drawing((d) => { for (let i = 0; i < 60; ++i) d.drawCircle(i, i % 7, 1 + (i % 3)); }),
    empty: drawing(),
});
