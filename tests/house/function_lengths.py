#!/usr/bin/env python3
"""function_lengths.py ROOT: no function is longer than 60 lines, from the first of its head to its closing brace."""
import pathlib
import re
import sys

LIMIT = 60
COMMENT = r"//[^\n]*|/\*.*?\*/"
LITERAL = r'R"(?P<mark>\w*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|(?<!\d)\'(?:\\.|[^\'\\\n])+\''
COMMENT_OR_LITERAL = re.compile(f"{COMMENT}|{LITERAL}", re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)
SCOPE = re.compile(r"\b(?:namespace|class|struct|union|enum|extern)\b")


def blank(match):
    """As many lines as the text has; a literal leaves a mark as well, since it is part of a statement."""
    lines = "\n" * match.group().count("\n")
    return lines if match.group().lstrip().startswith(("/", "#")) else "_" + lines


def without_arguments(head):
    """Without what stands between angle brackets."""
    count = 1
    while count:
        head, count = re.subn(r"<[^<>]*>", "", head)
    return head


def opens_scope(head):
    """Whether the brace behind this head opens a namespace or a class: in these stand the functions."""
    head = without_arguments(head)
    return bool(SCOPE.search(head)) and "(" not in head


def opens_function(head):
    """Whether it opens a function or a lambda; if not, it is an initial value."""
    return "(" in head and not head.endswith(("=", "(", ","))


def head_at(text, start, end):
    """What stands right before `end`, behind the last empty line if there is one, and where it begins."""
    head = re.split(r"\n[ \t]*\n", text[start:end].rstrip())[-1].lstrip()
    return head, start + len(text[start:end].rstrip()) - len(head)


def functions(text):
    """The first line and the length of each function; one within another counts to that one alone."""
    text = DIRECTIVE.sub(blank, COMMENT_OR_LITERAL.sub(blank, text))
    start = depth = begin = 0
    goes_on = False  # after the braces of a member's initial value
    head = ""
    for mark in re.finditer(r"[{};]", text):
        at = mark.start()
        if depth:
            depth += {"{": 1, "}": -1, ";": 0}[mark.group()]
            if depth == 0:
                goes_on = bool(re.match(r"\s*[,{]", text[at + 1:]))
                if opens_function(head) and not goes_on:
                    first = text.count("\n", 0, begin) + 1
                    yield first, text.count("\n", 0, at) + 2 - first
        elif mark.group() == "{" and not opens_scope(text[start:at]):
            if not goes_on:
                head, begin = head_at(text, start, at)
            depth = 1
        start = at + 1


def faults(root):
    for file in sorted(root.rglob("*")):
        name = file.relative_to(root)
        if file.suffix not in (".h", ".cpp") or name.parts[0] == "build":
            continue
        for line, length in functions(file.read_text(encoding="utf-8")):
            if length > LIMIT:
                yield f"{name}:{line}: {length} lines"


if __name__ == "__main__":
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    sys.exit(1 if found else 0)
