"""The drawings of other programs, and how ezdxf reads them."""
import pathlib

import ezdxf
import ezdxf.recover

FILES = pathlib.Path(__file__).resolve().parent / "files"
CORPUS = sorted(FILES.rglob("*.dxf"))
# Files that a reader cannot judge, each with the reason: they are held to all the rest.
NO_PROPERTIES_BY_EZDXF = {
    "bent/no_header": "it fails over a table without names",
    "bent/no_header_no_handles": "it fails over a table without names",
    "bent/unknown_entity": "an entity of an unknown kind has no attributes there",
    "bent/lower_case_sections": "it finds no entities in a section of that name",
    "bent/values_with_blanks": "blanks belong to a name there, so that it finds no entities",
}
# It fails over these as they came, before anything is changed in them.
UNREAD_BY_EZDXF = {
    "bent/blanks_round_end": "it takes the blank lines behind the end for tags",
    "bent/no_handles": "it wants handles in this version",
    "bent/no_markers": "it wants the subclass markers",
    "bent/no_owners": "it wants owners in this version",
}


def name_of(path):
    return f"{path.parent.name}/{path.stem}"


def read_strictly(path):
    try:
        return ezdxf.readfile(path)
    except (ezdxf.DXFError, UnicodeDecodeError, ValueError, IOError):
        return None


def read_somehow(path):
    return read_strictly(path) or ezdxf.recover.readfile(path)[0]
