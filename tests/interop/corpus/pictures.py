"""The drawings that vector programs get as SVG, PostScript and figures: one entry a picture, the same shapes in each form."""

SVG_HEAD = '<svg xmlns="http://www.w3.org/2000/svg" width="210mm" height="297mm" viewBox="0 0 210 297">'

SVG = {
    "lines": '<path d="M10 10 L100 10 L100 80 Z" stroke="#000" fill="none"/>'
             '<line x1="5" y1="5" x2="120" y2="95" stroke="#f00" stroke-width="0.5"/>',
    "curves": '<path d="M10 80 C 40 10, 65 10, 95 80 S 150 150, 180 80" stroke="#00f" fill="none"/>'
              '<path d="M20 200 Q 60 120 100 200 T 180 200" stroke="#080" fill="none"/>',
    "round": '<circle cx="50" cy="50" r="30" stroke="#000" fill="none"/>'
             '<ellipse cx="120" cy="80" rx="40" ry="15" transform="rotate(30 120 80)" stroke="#000" fill="none"/>',
    "layers": '<g xmlns:i="http://www.inkscape.org/namespaces/inkscape" i:groupmode="layer" i:label="Wände">'
              '<rect x="10" y="10" width="80" height="40" stroke="#00f" fill="none"/></g>'
              '<g xmlns:i="http://www.inkscape.org/namespaces/inkscape" i:groupmode="layer" i:label="Türen">'
              '<path d="M30 10 A 20 20 0 0 1 50 30" stroke="#f0f" fill="none"/></g>',
    "many": "".join(f'<path d="M{10 + 3 * i} 10 l 2 {5 + i} l -3 2 z" stroke="#0{i % 16:x}0" fill="none"/>'
                    for i in range(40)),
    "turned": '<g transform="translate(100 100) rotate(37) scale(2 -0.5)"><rect width="30" height="20" stroke="#000" '
              'fill="none"/><path d="M0 0 C 5 5 10 5 15 0" stroke="#a00" fill="none"/></g>',
    "empty": "",
    "dashes": '<path d="M10 20 H 200" stroke="#000" stroke-dasharray="4 2"/><path d="M10 40 V 200" stroke="#888" '
              'stroke-width="3" stroke-dasharray="1 1"/>',
}

POSTSCRIPT = {
    "lines": "10 10 moveto 300 10 lineto 300 200 lineto closepath stroke 1 0 0 setrgbcolor 0 0 moveto 400 300 lineto stroke",
    "curves": "0 0 1 setrgbcolor 100 100 moveto 150 300 250 300 300 100 curveto stroke 200 200 80 0 270 arc stroke",
    "filled": "0 0.5 0 setrgbcolor 50 50 moveto 150 50 lineto 100 150 lineto closepath fill",
    "text": "/Helvetica findfont 24 scalefont setfont 72 500 moveto (Plan 1:50) show 72 450 moveto 30 rotate (turned) show",
    "dashes": "[6 3] 0 setdash 2 setlinewidth 20 20 moveto 500 20 lineto stroke [1 2 5 2] 1 setdash 20 60 moveto 500 90 "
              "lineto stroke",
    "many": " ".join(f"{20 * i} 10 moveto {20 * i + 15} {100 + 7 * i} lineto stroke" for i in range(25)),
}


def svg(name):
    return f"{SVG_HEAD}{SVG[name]}</svg>\n"


def postscript(name):
    return f"%!PS-Adobe-3.0\n%%BoundingBox: 0 0 595 842\n{POSTSCRIPT[name]}\nshowpage\n"


FIGURE_HEAD = "#FIG 3.2\nLandscape\nCenter\nMetric\nA4\n100.00\nSingle\n-2\n1200 2\n"
FIGURES = {
    "lines": "2 1 0 1 0 7 50 -1 -1 0.000 0 0 -1 0 0 3\n\t 450 450 4500 450 4500 2250\n",
    "box": "2 2 0 2 1 7 50 -1 -1 0.000 0 0 -1 0 0 5\n\t 450 450 4500 450 4500 2250 450 2250 450 450\n",
    "round": "1 3 0 1 4 7 50 -1 -1 0.000 1 0.0000 2250 2250 900 900 2250 2250 3150 2250\n"
             "1 1 0 1 2 7 50 -1 -1 0.000 1 0.5236 4500 2250 1200 500 4500 2250 5700 2750\n",
    "arc": "5 1 0 1 0 7 50 -1 -1 0.000 0 0 0 0 2250.000 2250.000 1350 2250 2250 1350 3150 2250\n",
    "text": "4 0 0 50 -1 0 12 0.0000 4 180 900 450 900 Plan\\001\n4 1 1 50 -1 16 18 0.7854 4 180 900 2450 1900 "
            "gr\\374n\\001\n",
    "spline": "3 2 0 1 0 7 50 -1 -1 0.000 0 0 0 4\n\t 450 450 1350 2250 3150 450 4500 2250\n\t 0.000 -1.000 -1.000 "
              "0.000\n",
}


def figure(name):
    return FIGURE_HEAD + FIGURES[name]
