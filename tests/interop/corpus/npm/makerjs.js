const maker = require("makerjs");

const models = {
    rectangle: () => new maker.models.Rectangle(40, 20),
    round: () => new maker.models.RoundRectangle(40, 20, 4),
    star: () => new maker.models.Star(7, 30, 14),
    belt: () => new maker.models.Belt(10, 40, 6),
    holes: () => new maker.models.BoltCircle(30, 4, 8),
    curve: () => new maker.models.BezierCurve([0, 0], [10, 30], [30, -20], [40, 5]),
    slot: () => new maker.models.Slot([0, 0], [30, 10], 5),
    paths: () => ({ paths: { a: new maker.paths.Line([0, 0], [9, 9]), b: new maker.paths.Arc([0, 0], 5, 300, 60),
        c: new maker.paths.Circle([20, 0], 3) } }),
    layers: () => ({ models: { wall: { layer: "red", ...new maker.models.Square(10) },
        door: { layer: "blue", ...new maker.models.Oval(4, 9) } } }),
};

const drawings = {};
for (const [name, model] of Object.entries(models))
    drawings[name] = () => maker.exporter.toDXF(model(), { units: maker.unitType.Millimeter });
drawings.polylines = () => maker.exporter.toDXF(models.round(), { usePOLYLINE: true });
drawings.captions = () => maker.exporter.toDXF({ ...models.rectangle(), caption: { text: "Größe", anchor:
    new maker.paths.Line([0, 5], [20, 5]) } });
require("./save")(drawings);
