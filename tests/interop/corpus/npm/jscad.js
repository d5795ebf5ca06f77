const { primitives, colors, transforms } = require("@jscad/modeling");
const { serialize } = require("@jscad/dxf-serializer");

const shapes = {
    rectangle: () => primitives.rectangle({ size: [40, 20] }),
    circle: () => primitives.circle({ radius: 10, segments: 24 }),
    star: () => primitives.star({ vertices: 8, outerRadius: 20, innerRadius: 12 }),
    arc: () => primitives.arc({ radius: 9, startAngle: 0, endAngle: 4, segments: 20 }),
    coloured: () => colors.colorize([1, 0, 0], primitives.rectangle({ size: [4, 4] })),
    solid: () => primitives.cuboid({ size: [5, 6, 7] }),
    turned: () => transforms.rotateZ(0.6, primitives.roundedRectangle({ size: [30, 12], roundRadius: 3, segments: 12 })),
};

const drawings = {};
for (const [name, shape] of Object.entries(shapes)) drawings[name] = () => serialize({}, shape()).join("");
drawings.faces = () => serialize({ geom3To: "3dface" }, shapes.solid()).join("");
require("./save")(drawings);
