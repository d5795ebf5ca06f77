#!/usr/bin/env python3
"""pictures.py ROOT: every picture that the readme and the documents name exists, and every one in docs/images is named."""
import pathlib
import re
import sys


def named(document):
    """The pictures that a document names, as paths."""
    links = re.findall(r"\]\(\s*<?([^)>\s]+\.(?:png|jpe?g|svg|gif))", document.read_text(encoding="utf-8"))
    links += re.findall(r"<img[^>]*\bsrc=[\"']([^\"']+)", document.read_text(encoding="utf-8"))
    return [(document.parent / link).resolve() for link in links if "://" not in link]


def faults(root):
    root = root.resolve()
    seen = set()
    for document in [root / "README.md", *sorted((root / "docs").glob("*.md"))]:
        for picture in named(document):
            seen.add(picture)
            if not picture.is_file():
                yield f"{document.relative_to(root)}: there is no picture {picture.name}"
    for picture in sorted((root / "docs" / "images").iterdir()):
        if picture not in seen:
            yield f"docs/images/{picture.name} is named nowhere"


if __name__ == "__main__":
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    sys.exit(1 if found else 0)
