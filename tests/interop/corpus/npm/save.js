// Writes each drawing of a table { name: () => text } into the folder that the command line names.
const fs = require("fs");
const path = require("path");

module.exports = (drawings) => {
    for (const [name, text] of Object.entries(drawings))
        fs.writeFileSync(path.join(process.argv[2], name + ".dxf"), text());
};
