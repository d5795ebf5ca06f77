#!/usr/bin/python3
"""Makes the drawings in files/ anew by the programs that are installed: make.py [WRITER...]. See README.md."""
import pathlib
import shutil
import subprocess
import sys
import tempfile

import bent
import dia_diagrams
import pictures
import solids

HERE = pathlib.Path(__file__).resolve().parent
FILES = HERE / "files"


def call(*words, cwd=None, stdin=None):
    subprocess.run([str(word) for word in words], cwd=cwd, input=stdin, text=True, check=True, timeout=300,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def by_files(names, source_of, ending, command):
    """A writer that turns one source file into one drawing: command(source, target)."""

    def make(folder, scratch):
        for name in names:
            source = scratch / f"{name}.{ending}"
            source.write_text(source_of(name), encoding="utf-8")
            call(*command(source, folder / f"{name}.dxf"), cwd=scratch)

    return make


def inkscape(script):
    """The program's own output script, which it calls for this kind of file."""
    program = f"/usr/share/inkscape/extensions/{script}.py"
    return by_files(pictures.SVG, pictures.svg, "svg", lambda source, target: (
        "/usr/bin/python3", program, f"--output={target}", source))


def pstoedit(form):
    return by_files(pictures.POSTSCRIPT, pictures.postscript, "ps",
                    lambda source, target: ("pstoedit", "-f", form, source, target))


def plot(folder, scratch):
    for name, commands in solids.PLOTS.items():
        call("gnuplot", "-e", f"set terminal dxf; set output '{folder / name}.dxf'; {commands}", cwd=scratch)


def potrace(folder, scratch):
    bitmaps = {"square": ("8 8", ["0" * 8] * 2 + ["00111100"] * 4 + ["0" * 8] * 2),
               "stairs": ("16 16", ["1" * (i + 1) + "0" * (15 - i) for i in range(16)]),
               "ring": ("24 24", ["".join("1" if 36 < (x - 12) ** 2 + (y - 12) ** 2 < 121 else "0" for x in range(24))
                                  for y in range(24)])}
    for name, (size, rows) in bitmaps.items():
        source = scratch / f"{name}.pbm"
        source.write_text(f"P1\n{size}\n" + "\n".join(" ".join(row) for row in rows) + "\n")
        call("potrace", "-b", "dxf", "-o", folder / f"{name}.dxf", source)


def spatial_database(folder, scratch):
    for name in ("points", "roads", "parcels", "heights"):
        source = scratch / f"{name}.geojson"
        source.write_text(solids.geojson(name), encoding="utf-8")
        base = scratch / f"{name}.sqlite"
        call("ogr2ogr", "-f", "SQLite", "-dsco", "SPATIALITE=YES", "-nln", "things", base, source)
        call("env", "SPATIALITE_SECURITY=relaxed", "spatialite", base, stdin=(
            f"SELECT ExportDXF('{folder}', '{name}', 'SELECT layer, geometry FROM things', 'layer', 'geometry', "
            "NULL, NULL, NULL, NULL, NULL);\n"))


def node(script):
    return lambda folder, scratch: call("node", HERE / script, folder)


def with_dxflib(folder, scratch):
    program = scratch / "writer"
    call("g++", "-O0", "-o", program, HERE / "dxflib_writer.cpp", "-ldxflib")
    call(program, folder)


WRITERS = {
    "inkscape_r12": inkscape("dxf12_outlines"),
    "inkscape_r14": inkscape("dxf_outlines"),
    "pstoedit": pstoedit("dxf"),
    "pstoedit_14": pstoedit("dxf_14"),
    "pstoedit_s": pstoedit("dxf_s"),
    "fig2dev": by_files(pictures.FIGURES, pictures.figure, "fig",
                        lambda source, target: ("fig2dev", "-L", "dxf", source, target)),
    "openscad": by_files(solids.SCAD, solids.SCAD.get, "scad",
                         lambda source, target: ("openscad", "-o", target, source)),
    "admesh": by_files(solids.STL_TRIANGLES, solids.stl, "stl",
                       lambda source, target: ("admesh", "-c", f"--write-dxf={target}", source)),
    "gdal": by_files(solids.MAPS, solids.geojson, "geojson",
                     lambda source, target: ("ogr2ogr", "-f", "DXF", target, source)),
    "spatialite": spatial_database,
    "dia": by_files(dia_diagrams.DIAGRAMS, dia_diagrams.diagram, "dia",
                    lambda source, target: ("dia", "-t", "dxf", "-e", target, source)),
    "pcb-rnd": by_files(solids.BOARDS, solids.board, "pcb", lambda source, target: (
        "pcb-rnd", "-x", "dxf", "--outfile", target, source)),
    "gnuplot": plot,
    "potrace": potrace,
    "dxf-writer": node("npm/dxf_writer.js"),
    "tarikjabiri": node("npm/tarikjabiri.js"),
    "makerjs": node("npm/makerjs.js"),
    "jscad": node("npm/jscad.js"),
    "dxflib": with_dxflib,
    "bent": lambda folder, scratch: bent.make(FILES, folder),
}


def main():
    for writer in sys.argv[1:] or WRITERS:
        with tempfile.TemporaryDirectory() as scratch:
            made = pathlib.Path(scratch) / "made"
            made.mkdir()
            try:
                WRITERS[writer](made, pathlib.Path(scratch))
            except (OSError, subprocess.SubprocessError) as error:
                print(f"{writer}: {error}")
                continue
            shutil.rmtree(FILES / writer, ignore_errors=True)
            shutil.copytree(made, FILES / writer)
            print(writer, len(list(made.iterdir())))


if __name__ == "__main__":
    main()
