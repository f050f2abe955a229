#!/usr/bin/env python3
"""Checks that headers, sources and functions stay small. Usage: check_sizes.py [ROOT]"""

import re
import sys

sys.dont_write_bytecode = True
import tree  # noqa: E402

HEADER, SOURCE, FUNCTION = 250, 500, 60  # lines

# The end of a function's head: its parameters and what may stand between them and the body.
HEAD = re.compile(r"\)\s*(?:(?:const|noexcept|override|final|mutable|try|&&?)\s*)*(?:->\s*[\w:<>,*&\s]+)?$")
SCOPE = re.compile(r'\b(?:namespace|class|struct|union)\b|\bextern\s*""')
NAME = re.compile(r"((?:[\w:]*::)?operator\s*(?:\(\)|[^\s\w(]+)|[\w:~]+)\s*\(")


def matching_brace(code, start):
    """The place of the brace that closes the one at `start`, or the end of the code."""
    depth = 0
    for match in re.compile(r"[{}]").finditer(code, start):
        depth += 1 if match.group() == "{" else -1
        if depth == 0:
            return match.start()
    return len(code) - 1


def table_lines(code, start, end):
    """The lines inside the initialisers of a function body: rows of data, not steps."""
    lines, place = 0, start + 1
    while (place := code.find("{", place, end)) >= 0:
        before = code[:place].rstrip()
        if before.endswith("=") or re.match(r"[\w>\]({,]", code[place - 1]):
            close = matching_brace(code, place)
            lines += code.count("\n", place, close)
            place = close
        place += 1
    return lines


def title(head):
    """The name of the function whose head this is, with the arguments where it is a macro's, as in TEST(A, b)."""
    match = NAME.search(head)
    if not match:
        return "a function"
    if re.fullmatch(r"[A-Z][A-Z0-9_]+", match.group(1)):
        return " ".join(head[match.start():].split()).replace(" (", "(")
    return match.group(1)


def functions(code):
    """Yields (name, line, lines) of the body of each function that is not inside another one."""
    head, place = "", 0
    while match := re.compile(r"[;{}]").search(code, place):
        at = match.start()
        head = (head + code[place:at]).rstrip()
        place = at + 1
        if match.group() == "{":
            if HEAD.search(head):
                end = matching_brace(code, at)
                lines = code.count("\n", at, end) + 1 - table_lines(code, at, end)
                yield title(head), code.count("\n", 0, at) + 1, lines
                place = end + 1
            elif "=" in head or not SCOPE.search(head):
                # An initialiser: the head goes on behind it, as in a constructor's list of members.
                place = matching_brace(code, at) + 1
                head += "()"
                continue
        head = ""


def main():
    root = tree.root_from_arguments()
    findings = {}
    for name in tree.sources(root):
        text = tree.read(root, name)
        lines, allowed = text.count("\n"), HEADER if name.endswith(".h") else SOURCE
        if lines > allowed:
            findings[f"{name} has more than {allowed} lines"] = f"{name}: {lines} lines"
        code = tree.without_directives(tree.without_comments(text))
        for function, line, length in functions(code):
            if length > FUNCTION:
                findings[f"{name}: {function} has more than {FUNCTION} lines"] = f"{name}:{line}: {length} lines"
    return tree.report(root, "sizes", findings)


if __name__ == "__main__":
    sys.exit(main())
